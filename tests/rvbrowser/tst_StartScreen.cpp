#include <StartScreen.h>

#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_StartScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opens();
    void listsRecentFiles();
};

void tst_StartScreen::opens()
{
    StartScreen screen;
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen));
    screen.setFocus();
    QSignalSpy requested(&screen, &StartScreen::openRequested);
    QCOMPARE(QApplication::focusWidget()->objectName(), u"startOpen"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(requested.size(), 1);
    QVERIFY(!screen.findChild<QListWidget *>()->isVisible()); // there is nothing to list
}

void tst_StartScreen::listsRecentFiles()
{
    const QTemporaryDir folder;
    const QString there = folder.filePath(u"a & b.xml"_s);
    QFile file(there);
    QVERIFY(file.open(QIODevice::WriteOnly));
    StartScreen screen;
    screen.setRecentFiles({ folder.filePath(u"gone.xml"_s), there });
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen));
    const auto *list = screen.findChild<QListWidget *>();
    QVERIFY(list->isVisible());
    QCOMPARE(list->count(), 2);
    QVERIFY(!list->verticalScrollBar()->isVisible());
    QCOMPARE(list->item(0)->text(), u"gone.xml (missing)\n"_s + folder.path());
    QVERIFY(!(list->item(0)->flags() & Qt::ItemIsEnabled));
    QCOMPARE(list->item(1)->text(), u"a & b.xml\n"_s + folder.path());
    QSignalSpy chosen(&screen, &StartScreen::fileChosen);
    QTest::keyClick(screen.findChild<QPushButton *>(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), list);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(chosen, (QList<QVariantList> { { there } }));
    screen.setRecentFiles({});
    QVERIFY(!list->isVisible());
}

QTEST_MAIN(tst_StartScreen)
#include "tst_StartScreen.moc"
