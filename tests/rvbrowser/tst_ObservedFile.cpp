#include "TestFolder.h"

#include <FileCopy.h>
#include <ObservedFile.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ObservedFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsThePercentage_data();
    void tellsThePercentage();
    void isCutOffMeanwhile();
    void endsOnRequest();
    void isCopied();
    void isNotCopied();

private:
    TestFolder myFolder;
};

void tst_ObservedFile::tellsThePercentage_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QList<int>>("pieces");
    QTest::addColumn<QList<int>>("percents"); // before each piece, and before nothing more comes

    QTest::newRow("quarters") << 400 << QList<int> { 100, 100, 100, 100 } << QList<int> { 0, 25, 50, 75, 100 };
    QTest::newRow("rounded down") << 200 << QList<int> { 199, 1 } << QList<int> { 0, 99, 100 };
    QTest::newRow("a single byte") << 1 << QList<int> { 1 } << QList<int> { 0, 100 };
    // Such a file, and one that does not know its size, have no percentage.
    QTest::newRow("empty") << 0 << QList<int> {} << QList<int> { 0 };
}

void tst_ObservedFile::tellsThePercentage()
{
    QFETCH(int, size);
    QFETCH(QList<int>, pieces);
    QList<int> percents;
    QVERIFY(myFolder.write(u"f"_s, QByteArray(size, 'x')));
    ObservedFile file(myFolder.path(u"f"_s), [&percents](int percent) {
        percents += percent;
        return true;
    });
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    for (const int piece : pieces)
        QCOMPARE(file.read(piece), QByteArray(piece, 'x'));
    QCOMPARE(file.read(100), QByteArray());
    QTEST(percents, "percents");
}

void tst_ObservedFile::isCutOffMeanwhile()
{
    QList<int> percents;
    QVERIFY(myFolder.write(u"f"_s, QByteArray(400, 'x')));
    ObservedFile file(myFolder.path(u"f"_s), [&percents](int percent) {
        percents += percent;
        return true;
    });
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    QCOMPARE(file.read(400).size(), 400);
    QVERIFY(QFile::resize(myFolder.path(u"f"_s), 200));
    QCOMPARE(file.read(1), QByteArray());
    QCOMPARE(percents, (QList<int> { 0, 100 }));
}

void tst_ObservedFile::endsOnRequest()
{
    QVERIFY(myFolder.write(u"f"_s, QByteArray(400, 'x')));
    ObservedFile file(myFolder.path(u"f"_s), [](int percent) { return percent < 50; });
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    QCOMPARE(file.read(200), QByteArray(200, 'x'));
    QCOMPARE(file.read(200), QByteArray());
}

void tst_ObservedFile::isCopied()
{
    QVERIFY(myFolder.write(u"f"_s, "abcde"));
    FileCopy copy(u"f"_s);
    ObservedFile file(myFolder.path(u"f"_s), [](int) { return true; });
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    QCOMPARE(file.read(2), QByteArray("ab"));
    file.setCopy(&copy);
    QCOMPARE(file.read(1), QByteArray("c"));
    file.setCopy(nullptr);
    QCOMPARE(file.read(2), QByteArray("de"));
    copy.finish();
    QFile copied(copy.fileName());
    QVERIFY(copied.open(QIODevice::ReadOnly));
    QCOMPARE(copied.readAll(), QByteArray("c"));
}

// An empty file has nothing that a copy could have.
void tst_ObservedFile::isNotCopied()
{
    QVERIFY(myFolder.write(u"f"_s, QByteArray()));
    FileCopy copy(u"f"_s);
    ObservedFile file(myFolder.path(u"f"_s), [](int) { return true; });
    file.setCopy(&copy);
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    QCOMPARE(file.read(100), QByteArray());
    copy.finish();
    QCOMPARE(copy.fileName(), QString());
}

QTEST_GUILESS_MAIN(tst_ObservedFile)
#include "tst_ObservedFile.moc"
