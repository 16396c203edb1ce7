#include <RVProductBase/RVPriceClass.h>
#include <RVProductBase/RVProductType.h>

#include <QDomDocument>
#include <QHash>
#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

class tst_RVProductType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normalises_data();
    void normalises();
    void unknownType();
    void calendars_data();
    void calendars();
    void fromPriceClass();
    void fromProject_data();
    void fromProject();
    void hashes();
    void compares_data();
    void compares();
    void orders();
    void worksAsKey();
    void familyExpression();
};

void tst_RVProductType::normalises_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("family and variant") << u"DUN9_30"_s << u"DUN9"_s;
    QTest::newRow("family alone") << u"DUN9"_s << u"DUN9"_s;
    QTest::newRow("several digits") << u"DUN123abc"_s << u"DUN123"_s;
    QTest::newRow("other family") << u"DUNS7B"_s << u"DUNS7"_s;
    QTest::newRow("other family, two digits") << u"DUNS12XL"_s << u"DUNS12"_s;
    QTest::newRow("no digits") << u"DUNX"_s << u"DUNX"_s;
    QTest::newRow("no digits, other family") << u"DUNS"_s << u"DUNS"_s;
    QTest::newRow("not at the start") << u"DXDUN5A"_s << u"DUN5"_s;
    QTest::newRow("first of two") << u"DUN5DUN6"_s << u"DUN5"_s;
    QTest::newRow("first letter only") << u"D"_s << u"D"_s;
    QTest::newRow("lower case") << u"dun7_30"_s << u"dun7_30"_s;
    QTest::newRow("lower-case first letter") << u"dXDUN5A"_s << u"dXDUN5A"_s;
    QTest::newRow("blank before") << u" DUN9_30"_s << u" DUN9_30"_s;
    QTest::newRow("agenda") << u"VIR29"_s << u"VIR29"_s;
    QTest::newRow("other code that holds a family") << u"KUR2DUN5"_s << u"KUR2DUN5"_s;
    QTest::newRow("line feed before the family") << u"D\nDUN5A"_s << u"DUN5"_s;
}

void tst_RVProductType::normalises()
{
    QFETCH(QString, code);
    QFETCH(QString, name);
    const RVProductType type(code);
    QCOMPARE(type.toString(), name);
    QCOMPARE(type.orderTxtName(), name);
    QVERIFY(type.isValid());
    QVERIFY(!type.isUnknown());
    QCOMPARE(type.calcHashValue(), qHash(name, 0));
}

void tst_RVProductType::unknownType()
{
    for (const RVProductType &type : { RVProductType(), RVProductType(u""_s), RVProductType(QString()) }) {
        QVERIFY(type.isUnknown());
        QVERIFY(!type.isValid());
        QCOMPARE(type.toString(), u""_s);
        QCOMPARE(type.orderTxtName(), u"UNKNOWN"_s);
        QCOMPARE(type.calcHashValue(), std::size_t(0));
        QVERIFY(!type.isCalendar());
        QVERIFY(!type.isAgenda());
        QVERIFY(type == RVProductType());
    }
    QVERIFY(!std::is_polymorphic_v<RVProductType>);
}

void tst_RVProductType::calendars_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("agenda");
    QTest::addColumn<bool>("calendar");
    QTest::newRow("agenda") << u"VIR29"_s << true << true;
    QTest::newRow("other agenda") << u"VIR30"_s << true << true;
    QTest::newRow("below") << u"VIR28"_s << false << true;
    QTest::newRow("above") << u"VIR31"_s << false << true;
    QTest::newRow("longer") << u"VIR290"_s << false << true;
    QTest::newRow("prefix alone") << u"VIR"_s << false << true;
    QTest::newRow("lower case") << u"vir29"_s << false << false;
    QTest::newRow("not at the start") << u"XVIR29"_s << false << false;
    QTest::newRow("book") << u"DUN9"_s << false << false;
}

void tst_RVProductType::calendars()
{
    QFETCH(QString, code);
    QTEST(RVProductType(code).isAgenda(), "agenda");
    QTEST(RVProductType(code).isCalendar(), "calendar");
}

void tst_RVProductType::fromPriceClass()
{
    QCOMPARE(RVProductType::fromPriceClass(u"DUN9_30"_s).toString(), u"DUN9"_s);
    QCOMPARE(RVProductType::fromPriceClass(u"KUR2"_s).toString(), u"KUR2"_s);
    QVERIFY(RVProductType::fromPriceClass(RVPriceClass()).isUnknown());
}

void tst_RVProductType::fromProject_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("name");
    QTest::newRow("book") << u"<project productname='DUNS7B'/>"_s << u"DUNS7"_s;
    QTest::newRow("calendar") << u"<project productname='VIR5'/>"_s << u"VIR5"_s;
    QTest::newRow("missing") << u"<project/>"_s << u"DUN9"_s;
    QTest::newRow("empty") << u"<project productname=''/>"_s << u""_s;
}

void tst_RVProductType::fromProject()
{
    QFETCH(QString, xml);
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    QTEST(RVProductType::fromKtx(document.documentElement()).toString(), "name");
    QCOMPARE(RVProductType::fromKtx(QDomElement()).toString(), u"DUN9"_s);
}

void tst_RVProductType::hashes()
{
    const RVProductType type(u"DUN9_30"_s);
    QCOMPARE(qHash(type, 0), qHash(u"DUN9"_s, 0));
    QCOMPARE(qHash(type, 1234), qHash(u"DUN9"_s, 0) ^ 1234);
    QCOMPARE(qHash(RVProductType(), 1234), std::size_t(1234));
}

void tst_RVProductType::compares_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("equal");
    QTest::newRow("same code") << u"VIR29"_s << u"VIR29"_s << true;
    QTest::newRow("same family") << u"DUN9_30"_s << u"DUN9XL"_s << true;
    QTest::newRow("other code") << u"VIR29"_s << u"VIR30"_s << false;
    QTest::newRow("other letter case, other hash") << u"VIR29"_s << u"vir29"_s << false;
    QTest::newRow("known and unknown") << u"VIR29"_s << u""_s << false;
    QTest::newRow("both unknown") << QString() << u""_s << true;
}

void tst_RVProductType::compares()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(bool, equal);
    QCOMPARE(RVProductType(a) == RVProductType(b), equal);
    QCOMPARE(RVProductType(a) != RVProductType(b), !equal);
}

void tst_RVProductType::orders()
{
    const QStringList codes = { u"DUN9"_s, u"VIR29"_s, u"vir29"_s, u"KUR2"_s, u"A"_s, u"a"_s, u"B"_s };
    for (const QString &a : codes) {
        for (const QString &b : codes)
            QCOMPARE(RVProductType(a) < RVProductType(b), qHash(a, 0) < qHash(b, 0));
        QVERIFY(RVProductType() < RVProductType(a));
        QVERIFY(!(RVProductType(a) < RVProductType()));
    }
    QVERIFY(!(RVProductType() < RVProductType()));
}

void tst_RVProductType::worksAsKey()
{
    QHash<RVProductType, int> pages;
    pages.insert(u"DUN9_30"_s, 26);
    pages.insert(u"DUN9"_s, 30);
    pages.insert(u"VIR29"_s, 13);
    QCOMPARE(pages.size(), 2);
    QCOMPARE(pages.value(u"DUN9XL"_s), 30);
    QVERIFY(!pages.contains(u"vir29"_s));
}

void tst_RVProductType::familyExpression()
{
    QCOMPARE(RVProductType::myBookRegExp.pattern(), u"((DUN|DUNS)\\d+).*"_s);
    QCOMPARE(RVProductType::myBookRegExp.patternOptions(), QRegularExpression::NoPatternOption);
}

QTEST_APPLESS_MAIN(tst_RVProductType)
#include "tst_RVProductType.moc"
