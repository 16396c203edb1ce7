#include "AttributeTest.h"

#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVFotoPaperType.h>

using namespace Qt::StringLiterals;

class tst_RVFotoPaperType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void values_data();
    void values();
    void combinationsHaveNoName();
    void defaults_data();
    void defaults();
    void orderTransfer_data();
    void orderTransfer();
    void debugOutput();
};

void tst_RVFotoPaperType::keywordTable()
{
    const KeywordTableTest<RVFotoPaperType> test(
            {
                    { NO_FOTO_PAPER, { u"0"_s } },
                    { GLOSSY, { u"1"_s, u"glossy"_s } },
                    { MATT, { u"2"_s, u"matt"_s } },
            },
            u""_s, 0, KeywordTableTest<RVFotoPaperType>::Left);
    test.check();
    QCOMPARE(int(NO_FOTO_PAPER), 0);
    QCOMPARE(int(GLOSSY), 1);
    QCOMPARE(int(MATT), 2);
}

void tst_RVFotoPaperType::values_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("code");
    QTest::newRow("none") << 0 << u"Unbekanntes Fotopapier"_s << u""_s;
    QTest::newRow("glossy") << 1 << u"Glänzend"_s << u"1"_s;
    QTest::newRow("matt") << 2 << u"Matt"_s << u"2"_s;
    QTest::newRow("both") << 3 << QString() << u""_s;
    QTest::newRow("unknown bit") << 4 << QString() << u""_s;
}

void tst_RVFotoPaperType::values()
{
    QFETCH(int, value);
    QFETCH(QString, name);
    const RVFotoPaperType paper { RVFotoPaperTypeEnum(value) };
    QCOMPARE(paper.humanReadableName(), name);
    QCOMPARE(paper.humanReadableName().isNull(), name.isNull());
    QTEST(paper.encodeForProduction(), "code");
}

void tst_RVFotoPaperType::combinationsHaveNoName()
{
    for (int value = 3; value < 0x100; ++value) {
        const RVFotoPaperType paper { RVFotoPaperTypeEnum(value) };
        QVERIFY(paper.humanReadableName().isNull());
        QCOMPARE(paper.encodeForProduction(), u""_s);
    }
}

void tst_RVFotoPaperType::defaults_data()
{
    QTest::addColumn<qint64>("articleClass");
    QTest::addColumn<int>("value");
    QTest::newRow("photo") << Q_INT64_C(0x8000) << 1;
    QTest::newRow("premium photo") << Q_INT64_C(0x10000) << 1;
    QTest::newRow("poster photo") << Q_INT64_C(0x20000) << 1;
    QTest::newRow("all photos") << Q_INT64_C(0x38000) << 0;
    QTest::newRow("two photos") << Q_INT64_C(0x18000) << 0;
    QTest::newRow("photo and book") << Q_INT64_C(0x8001) << 0;
    QTest::newRow("card") << Q_INT64_C(0x8) << 0;
    QTest::newRow("none") << Q_INT64_C(0) << 0;
}

void tst_RVFotoPaperType::defaults()
{
    QFETCH(qint64, articleClass);
    QTEST(int(RVFotoPaperType::defaultFor(RVArticleClassEnum(articleClass)).value()), "value");
}

void tst_RVFotoPaperType::orderTransfer_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QList<int>>("values");
    QTest::newRow("zero, both surfaces in order") << u"0"_s << QList<int> { 1, 2 };
    QTest::newRow("one") << u"1"_s << QList<int> { 1 };
    QTest::newRow("two") << u"2"_s << QList<int> { 2 };
    QTest::newRow("three") << u"3"_s << QList<int>();
    QTest::newRow("minus one") << u"-1"_s << QList<int>();
    QTest::newRow("empty") << u""_s << QList<int>();
    QTest::newRow("null") << QString() << QList<int>();
    QTest::newRow("word") << u"glossy"_s << QList<int>();
    QTest::newRow("too large") << u"4294967297"_s << QList<int>();
    QTest::newRow("hexadecimal") << u"0x1"_s << QList<int>();
    QTest::newRow("null character behind a number") << QString(u"1\0abc"_s) << QList<int>();
    QTest::newRow("null character before a number") << QString(u"\0001"_s) << QList<int>();
}

void tst_RVFotoPaperType::orderTransfer()
{
    QFETCH(QString, code);
    QList<int> values;
    for (const RVFotoPaperType &paper : RVFotoPaperType::createFromXTCI(code))
        values += paper.value();
    QTEST(values, "values");
}

void tst_RVFotoPaperType::debugOutput()
{
    QCOMPARE(debugText(RVFotoPaperType(GLOSSY | MATT)), u"RVFotoPaperType(1, 2) "_s);
    QCOMPARE(debugText(RVFotoPaperType()), u"RVFotoPaperType() "_s);
}

QTEST_GUILESS_MAIN(tst_RVFotoPaperType)
#include "tst_RVFotoPaperType.moc"
