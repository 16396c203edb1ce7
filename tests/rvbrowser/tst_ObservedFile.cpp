#include "TestFolder.h"

#include <FileCopy.h>
#include <ObservedFile.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ObservedFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsThePercentage();
    void isEmpty();
    void endsOnRequest();
    void isCopied();

private:
    TestFolder myFolder;
    QList<int> myPercents;
};

void tst_ObservedFile::tellsThePercentage()
{
    myPercents.clear();
    QVERIFY(myFolder.write(u"f"_s, QByteArray(400, 'x')));
    ObservedFile file(myFolder.path(u"f"_s), [this](int percent) {
        myPercents += percent;
        return true;
    });
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    for (int i = 0; i < 4; ++i)
        QCOMPARE(file.read(100), QByteArray(100, 'x'));
    QCOMPARE(file.read(100), QByteArray());
    QCOMPARE(myPercents, (QList<int> { 0, 25, 50, 75, 100 }));
}

// Such a file, and one that does not know its size, have no percentage.
void tst_ObservedFile::isEmpty()
{
    myPercents.clear();
    QVERIFY(myFolder.write(u"f"_s, QByteArray()));
    ObservedFile file(myFolder.path(u"f"_s), [this](int percent) {
        myPercents += percent;
        return true;
    });
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    QCOMPARE(file.read(100), QByteArray());
    QCOMPARE(myPercents, QList<int> { 0 });
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

QTEST_GUILESS_MAIN(tst_ObservedFile)
#include "tst_ObservedFile.moc"
