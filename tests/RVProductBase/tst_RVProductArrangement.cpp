#include "AttributeTest.h"

#include <RVProductBase/RVProductArrangement.h>

using namespace Qt::StringLiterals;

class tst_RVProductArrangement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void bitWithoutKeyword();
    void debugOutput();
};

void tst_RVProductArrangement::keywordTable()
{
    const KeywordTableTest<RVProductArrangement> test(
            {
                    { 1, { u"trivial"_s } },
                    { 4, { u"gift"_s } },
                    { 8, { u"card"_s } },
                    { 16, { u"photobook"_s } },
                    { 32, { u"calendar"_s } },
            },
            u""_s, 0);
    test.check();
}

void tst_RVProductArrangement::bitWithoutKeyword()
{
    QCOMPARE(RVProductArrangement(RVProductArrangementEnum(2)).encodeCSV(), u""_s);
    QCOMPARE(RVProductArrangement(RVProductArrangementEnum(6)).encodeCSV(), u", gift"_s);
    QCOMPARE(int(RVProductArrangement(u"gift,card"_s).value()), 12);
}

void tst_RVProductArrangement::debugOutput()
{
    QCOMPARE(debugText(RVProductArrangement(PRODUCT_ARRANGEMENT_GIFT | PRODUCT_ARRANGEMENT_CARD)),
             u"RVProductArrangement(gift, card) "_s);
    QCOMPARE(debugText(RVProductArrangement()), u"RVProductArrangement() "_s);
}

QTEST_GUILESS_MAIN(tst_RVProductArrangement)
#include "tst_RVProductArrangement.moc"
