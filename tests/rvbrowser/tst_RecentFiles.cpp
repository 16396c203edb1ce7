#include <RecentFiles.h>
#include <Settings.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_RecentFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newestFirst();
    void relativeNames();
    void damaged();
};

void tst_RecentFiles::newestFirst()
{
    const QTemporaryDir folder;
    Settings settings(folder.filePath(u"settings.ini"_s));
    RecentFiles files(&settings);
    QVERIFY(files.fileNames().isEmpty());
    for (int i = 0; i < 12; ++i)
        files.add(u"/catalogues/%1 & Söhne.xml"_s.arg(i));
    QCOMPARE(files.fileNames().size(), 10);
    QCOMPARE(files.fileNames().constFirst(), u"/catalogues/11 & Söhne.xml"_s);
    QCOMPARE(files.fileNames().constLast(), u"/catalogues/2 & Söhne.xml"_s);
    files.add(u"/catalogues/5 & Söhne.xml"_s);
    QCOMPARE(files.fileNames().size(), 10);
    QCOMPARE(files.fileNames().constFirst(), u"/catalogues/5 & Söhne.xml"_s);
    settings.refresh();
    Settings again(folder.filePath(u"settings.ini"_s));
    QCOMPARE(RecentFiles(&again).fileNames(), files.fileNames());
    files.clear();
    QVERIFY(files.fileNames().isEmpty());
}

void tst_RecentFiles::relativeNames()
{
    const QTemporaryDir folder;
    Settings settings(folder.filePath(u"settings.ini"_s));
    RecentFiles files(&settings);
    files.add(u"a/../c.xml"_s);
    files.add(QDir::current().absoluteFilePath(u"c.xml"_s));
    QCOMPARE(files.fileNames(), QStringList { QDir::current().absoluteFilePath(u"c.xml"_s) });
}

void tst_RecentFiles::damaged()
{
    const QTemporaryDir folder;
    Settings settings(folder.filePath(u"settings.ini"_s));
    settings.setValue(u"recent/x/used"_s, 7);
    settings.setValue(u"recent/y"_s, 7);
    QVERIFY(RecentFiles(&settings).fileNames().isEmpty());
}

QTEST_GUILESS_MAIN(tst_RecentFiles)
#include "tst_RecentFiles.moc"
