#include <RVCore/RVSpotColor.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVSpotColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywords_data();
    void keywords();
    void defaults();
};

void tst_RVSpotColor::keywords_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("keyword");
    QTest::newRow("gloss") << 1 << u"gloss"_s;
    QTest::newRow("gold") << 2 << u"gold"_s;
    QTest::newRow("silver") << 4 << u"silver"_s;
    QTest::newRow("rosegold") << 8 << u"rosegold"_s;
    QTest::newRow("silver ink") << 16 << u"silver_ink"_s;
}

void tst_RVSpotColor::keywords()
{
    QFETCH(int, value);
    QFETCH(QString, keyword);
    QCOMPARE(int(RVSpotColor(keyword).value()), value);
    QCOMPARE(RVSpotColor(RVSpotColorEnum(value)).encode(), keyword);
    QCOMPARE(RVSpotColor().allKnownKeywords().size(), 5);
}

void tst_RVSpotColor::defaults()
{
    QCOMPARE(int(RVSpotColor().value()), 0);
    QCOMPARE(int(RVSpotColor(u"copper"_s).value()), 0);
    QCOMPARE(RVSpotColor().encode(), QString());
    for (int value = 0; value < 0x80; ++value) {
        if (value >= 0x20 || qPopulationCount(quint32(value)) != 1)
            QCOMPARE(RVSpotColor(RVSpotColorEnum(value)).encode(), QString());
    }
    QCOMPARE(RVSpotColor(u"gold,GLOSS"_s).encodeCSV(), u"gloss, gold"_s);
}

QTEST_APPLESS_MAIN(tst_RVSpotColor)
#include "tst_RVSpotColor.moc"
