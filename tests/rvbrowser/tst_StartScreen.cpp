#include <StartScreen.h>

#include <QFile>
#include <QLabel>
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
    void looksLikeAList();
    void standsInTheMiddle();
    void listIsAsHighAsItsFiles();
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
    QCOMPARE(list->item(0)->toolTip(), folder.filePath(u"gone.xml"_s));
    QCOMPARE(list->currentRow(), 0);
    QTest::keyClick(screen.findChild<QPushButton *>(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), list);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(chosen, (QList<QVariantList> { { there } }));
    screen.setRecentFiles({ there });
    QCOMPARE(list->count(), 1);
    const auto *title = screen.findChildren<QLabel *>().constLast();
    QCOMPARE(title->text(), u"Recent catalogues"_s);
    QVERIFY(title->isVisible());
    screen.setRecentFiles({});
    QVERIFY(!list->isVisible());
    QVERIFY(!title->isVisible());
}

void tst_StartScreen::looksLikeAList()
{
    const StartScreen screen;
    const auto *list = screen.findChild<QListWidget *>(u"recentList"_s);
    QCOMPARE(list->accessibleName(), u"Recent catalogues"_s);
    QVERIFY(list->alternatingRowColors());
    QVERIFY(!list->acceptDrops()); // the window opens files that are dropped
    QCOMPARE(list->textElideMode(), Qt::ElideMiddle); // the name and the upper folder are to be seen
    QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    const auto *hint = screen.findChild<QLabel *>(u"welcome"_s);
    QCOMPARE(hint->textFormat(), Qt::PlainText);
    QVERIFY(hint->wordWrap());
}

// In half of the width, with twice as much free room below as above.
void tst_StartScreen::standsInTheMiddle()
{
    StartScreen screen;
    screen.setRecentFiles({ u"/a.xml"_s });
    screen.resize(1200, 900);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    const QList<QLabel *> labels = screen.findChildren<QLabel *>();
    const QLabel *title = labels.constFirst();
    for (const QLabel *label : labels) {
        if (label->text() == "Catalogues of print products"_L1)
            title = label;
    }
    const auto *hint = screen.findChild<QLabel *>(u"welcome"_s);
    const auto *open = screen.findChild<QPushButton *>();
    const auto *list = screen.findChild<QListWidget *>();
    QVERIFY(title->font().bold());
    QVERIFY(title->font().pointSizeF() > hint->font().pointSizeF());
    const int left = title->x();
    const int right = 1199 - title->geometry().right();
    QVERIFY(left > 250);
    QVERIFY2(qAbs(left - right) < 3, qPrintable(u"%1 %2"_s.arg(left).arg(right)));
    QVERIFY2(qAbs(title->width() - 2 * left) < 40, qPrintable(u"%1 %2"_s.arg(left).arg(title->width())));
    const int above = title->y();
    const int below = 899 - list->geometry().bottom();
    QVERIFY(above > 100);
    QVERIFY2(qAbs(2 * above - below) < 50, qPrintable(u"%1 %2"_s.arg(above).arg(below)));
    const int usual = screen.style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, &screen);
    QCOMPARE(hint->y() - title->geometry().bottom() - 1, usual + screen.fontMetrics().height() / 2);
    int bottom = title->geometry().bottom();
    for (const QWidget *part : std::initializer_list<const QWidget *> { hint, open, list }) {
        QVERIFY(part->y() > bottom + title->fontMetrics().height() / 4);
        QVERIFY(part->y() < bottom + 60);
        QCOMPARE(part->x(), left);
        bottom = part->geometry().bottom();
        if (part == open) // the title of the list
            bottom = labels.constLast()->geometry().bottom();
    }
    QVERIFY(open->width() <= open->sizeHint().width());
    QCOMPARE(list->width(), title->width());
}

void tst_StartScreen::listIsAsHighAsItsFiles()
{
    StartScreen screen;
    const auto *list = screen.findChild<QListWidget *>();
    for (const int count : { 1, 3 }) {
        screen.setRecentFiles(QStringList(count, u"/a.xml"_s));
        QCOMPARE(list->maximumHeight(), count * list->sizeHintForRow(0) + 2 * list->frameWidth());
    }
}

QTEST_MAIN(tst_StartScreen)
#include "tst_StartScreen.moc"
