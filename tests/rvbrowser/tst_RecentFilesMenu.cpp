#include <RecentFiles.h>
#include <RecentFilesMenu.h>
#include <Settings.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_RecentFilesMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void empty();
    void listsFiles();

private:
    static QAction *clearAction(const RecentFilesMenu &menu) { return menu.actions().constLast(); }
};

void tst_RecentFilesMenu::empty()
{
    Settings settings;
    RecentFiles files(&settings);
    const RecentFilesMenu menu(&files);
    QCOMPARE(menu.actions().constFirst()->text(), u"No catalogue was opened yet"_s);
    QVERIFY(!menu.actions().constFirst()->isEnabled());
    QVERIFY(!clearAction(menu)->isEnabled());
}

void tst_RecentFilesMenu::listsFiles()
{
    const QTemporaryDir folder;
    Settings settings(folder.filePath(u"settings.ini"_s));
    RecentFiles files(&settings);
    RecentFilesMenu menu(&files);
    QFile file(folder.filePath(u"a & b.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (int i = 0; i < 9; ++i)
        files.add(folder.filePath(u"gone%1.xml"_s.arg(i)));
    files.add(file.fileName());
    menu.update();
    QCOMPARE(menu.actions().size(), 12); // ten files, a line, and what clears them
    QAction *there = menu.actions().constFirst();
    QVERIFY2(there->text().startsWith("&1 "_L1) && there->text().endsWith("a && b.xml"_L1), qPrintable(there->text()));
    QCOMPARE(there->toolTip(), file.fileName());
    QVERIFY(there->isEnabled());
    const QAction *missing = menu.actions().at(9);
    QVERIFY2(missing->text().endsWith("gone0.xml (missing)"_L1), qPrintable(missing->text()));
    QVERIFY(!missing->isEnabled());

    QSignalSpy chosen(&menu, &RecentFilesMenu::fileChosen);
    there->trigger();
    QCOMPARE(chosen, (QList<QVariantList> { { file.fileName() } }));
    QSignalSpy cleared(&menu, &RecentFilesMenu::cleared);
    clearAction(menu)->trigger();
    QCOMPARE(cleared.size(), 1);
    QVERIFY(files.fileNames().isEmpty());
    menu.update();
    QCOMPARE(menu.actions().size(), 3);
}

QTEST_MAIN(tst_RecentFilesMenu)
#include "tst_RecentFilesMenu.moc"
