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
    void shortensNames();
    void isUpToDate();

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
    QVERIFY(menu.actions().at(10)->isSeparator());
    QVERIFY(menu.toolTipsVisible());
    QCOMPARE(menu.objectName(), u"recentFiles"_s);
    QVERIFY(menu.actions().at(8)->text().startsWith("&9 "_L1));
    QVERIFY(!menu.actions().at(9)->text().startsWith(u'&')); // there are only nine such keys
    QVERIFY(clearAction(menu)->isEnabled());
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

void tst_RecentFilesMenu::shortensNames()
{
    const QTemporaryDir folder;
    Settings settings(folder.filePath(u"settings.ini"_s));
    RecentFiles files(&settings);
    const QString name = u"/"_s + QString(200, u'n') + u".xml"_s;
    files.add(name);
    const RecentFilesMenu menu(&files);
    const QFontMetrics metrics = menu.fontMetrics();
    const QString shortName = metrics.elidedText(name, Qt::ElideMiddle, 60 * metrics.averageCharWidth());
    QVERIFY(shortName.size() < 100);
    QCOMPARE(menu.actions().constFirst()->text(), u"&1 "_s + shortName + u" (missing)"_s);
    QCOMPARE(menu.actions().constFirst()->toolTip(), name);
}

void tst_RecentFilesMenu::isUpToDate()
{
    const QTemporaryDir folder;
    Settings settings(folder.filePath(u"settings.ini"_s));
    RecentFiles files(&settings);
    RecentFilesMenu menu(&files);
    files.add(u"/a.xml"_s);
    Q_EMIT menu.aboutToShow();
    QVERIFY(menu.actions().constFirst()->text().contains("a.xml"_L1));
}

QTEST_MAIN(tst_RecentFilesMenu)
#include "tst_RecentFilesMenu.moc"
