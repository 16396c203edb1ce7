#include "TestFolder.h"

#include <CatalogueStamp.h>

#include <QDateTime>
#include <QTest>

using namespace Qt::StringLiterals;

/// The stamps of a file and of a catalogue.
class tst_CatalogueStamp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void file();
    void fileOfTheSameSize();
    void timeThatWasSetBack();
    void missingFile();
    void configuration();

private:
    QString name() const { return myFolder.path(u"c.xml"_s); }

    TestFolder myFolder;
};

void tst_CatalogueStamp::init()
{
    QVERIFY(myFolder.write(u"c.xml"_s, "1"));
}

void tst_CatalogueStamp::file()
{
    const FileStamp first = FileStamp::of(name());
    QVERIFY(first.exists);
    QCOMPARE(first.size, 1);
    QVERIFY(first == FileStamp::of(name()));
    QVERIFY(myFolder.write(u"c.xml"_s, "22"));
    QVERIFY(first != FileStamp::of(name()));
}

void tst_CatalogueStamp::fileOfTheSameSize()
{
    const FileStamp first = FileStamp::of(name());
    QFile file(name());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(first.modified.addMSecs(1), QFileDevice::FileModificationTime));
    file.close();
    QVERIFY(first != FileStamp::of(name()));
    QCOMPARE(FileStamp::of(name()).size, 1);
}

void tst_CatalogueStamp::timeThatWasSetBack()
{
    const FileStamp first = FileStamp::of(name());
    QTest::qSleep(20); // longer than the step of any clock of a file system
    QVERIFY(myFolder.write(u"c.xml"_s, "2"));
    QFile file(name());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(first.modified, QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(FileStamp::of(name()).modified, first.modified);
    QVERIFY(first != FileStamp::of(name()));
}

void tst_CatalogueStamp::missingFile()
{
    const FileStamp missing = FileStamp::of(myFolder.path(u"missing.xml"_s));
    QVERIFY(!missing.exists);
    QVERIFY(missing == FileStamp());
}

void tst_CatalogueStamp::configuration()
{
    const CatalogueStamp without = CatalogueStamp::of(name());
    QVERIFY(myFolder.write(u"rvcatalog.toml"_s, "[rules]\n"));
    const CatalogueStamp with = CatalogueStamp::of(name());
    QVERIFY(without != with);
    QVERIFY(with == CatalogueStamp::of(name()));
    QVERIFY(myFolder.write(u"rvcatalog.toml"_s, "[rules]\n\n"));
    QVERIFY(with != CatalogueStamp::of(name()));
    QCOMPARE(with.catalogue.size, 1);
}

QTEST_GUILESS_MAIN(tst_CatalogueStamp)
#include "tst_CatalogueStamp.moc"
