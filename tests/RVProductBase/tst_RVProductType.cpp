#include <RVProductBase/RVPriceClass.h>
#include <RVProductBase/RVProductType.h>

#include <QDomDocument>
#include <QHash>
#include <QTest>

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

static_assert(!std::is_polymorphic_v<RVProductType>);
static_assert(std::is_convertible_v<QString, RVProductType>);
static_assert(std::is_same_v<decltype(RVProductType().calcHashValue()), std::size_t>);

namespace {

size_t textHash(const QString &text)
{
    return qHash(text, size_t(0));
}

}

class tst_RVProductType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normalises_data();
    void normalises();
    void defaultIsUnknown();
    void unknown_data();
    void unknown();
    void calendars_data();
    void calendars();
    void fromPriceClass_data();
    void fromPriceClass();
    void fromKtx_data();
    void fromKtx();
    void fromNullElement();
    void equality_data();
    void equality();
    void equalHashes_data();
    void equalHashes();
    void ordersByHash();
    void hashKey();
    void bookPattern_data();
    void bookPattern();
    void copies();
    void isWholeAfterAMove();
};

void tst_RVProductType::normalises_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("size") << u"DUN9_30"_s << u"DUN9"_s;
    QTest::newRow("family alone") << u"DUN9"_s << u"DUN9"_s;
    QTest::newRow("several digits") << u"DUN123_4"_s << u"DUN123"_s;
    QTest::newRow("leading zero") << u"DUN09"_s << u"DUN09"_s;
    QTest::newRow("second family") << u"DUNS12XL"_s << u"DUNS12"_s;
    QTest::newRow("second family, one digit") << u"DUNS7B"_s << u"DUNS7"_s;
    QTest::newRow("behind another text") << u"DXDUN5A"_s << u"DUN5"_s;
    QTest::newRow("second family behind another text") << u"D_DUNS5A"_s << u"DUNS5"_s;
    QTest::newRow("first of two") << u"DUN5DUN6"_s << u"DUN5"_s;
    QTest::newRow("first one without digits") << u"DUNDUNS6"_s << u"DUNS6"_s;
    QTest::newRow("doubled first letter") << u"DDUN5"_s << u"DUN5"_s;
    QTest::newRow("on the second line") << u"D\nDUN5\nX"_s << u"DUN5"_s;
    QTest::newRow("no digits") << u"DUNX"_s << u"DUNX"_s;
    QTest::newRow("letter before the digits") << u"DUNX5"_s << u"DUNX5"_s;
    QTest::newRow("letter behind the second family") << u"DUNST5"_s << u"DUNST5"_s;
    QTest::newRow("second family with one more S") << u"DUNSS5A"_s << u"DUNSS5A"_s;
    QTest::newRow("second family behind one with one more S") << u"DUNSS5DUNS6"_s << u"DUNS6"_s;
    QTest::newRow("blank before the digits") << u"DUN 5"_s << u"DUN 5"_s;
    QTest::newRow("digits of another script") << u"DUN\u0665"_s << u"DUN\u0665"_s;
    QTest::newRow("digits of two scripts") << u"DUN5\u0665"_s << u"DUN5"_s;
    QTest::newRow("family alone, no digits") << u"DUN"_s << u"DUN"_s;
    QTest::newRow("first letter alone") << u"D"_s << u"D"_s;
    QTest::newRow("lower case") << u"dun7"_s << u"dun7"_s;
    QTest::newRow("lower case with a size") << u"dun7_30"_s << u"dun7_30"_s;
    QTest::newRow("lower case behind the first letter") << u"Dun7_30"_s << u"Dun7_30"_s;
    QTest::newRow("lower case s") << u"DUNs7B"_s << u"DUNs7B"_s;
    QTest::newRow("other first letter") << u"XDUN5A"_s << u"XDUN5A"_s;
    QTest::newRow("leading blank") << u" DUN9_30"_s << u" DUN9_30"_s;
    QTest::newRow("trailing blank") << u"DUN9 "_s << u"DUN9"_s;
    QTest::newRow("calendar") << u"VIR29"_s << u"VIR29"_s;
    QTest::newRow("calendar with a size") << u"VIR29_30"_s << u"VIR29_30"_s;
    QTest::newRow("blank") << u" "_s << u" "_s;
    QTest::newRow("half a surrogate pair") << u"DUN5A"_s + QChar(0xD800) << u"DUN5A"_s + QChar(0xD800);
}

void tst_RVProductType::normalises()
{
    QFETCH(QString, code);
    QFETCH(QString, name);
    const RVProductType type(code);
    QCOMPARE(type.toString(), name);
    QCOMPARE(type.orderTxtName(), name);
    QCOMPARE(type.calcHashValue(), textHash(name));
    QVERIFY(type.isValid());
    QVERIFY(!type.isUnknown());
}

void tst_RVProductType::defaultIsUnknown()
{
    const RVProductType type;
    QVERIFY(type.isUnknown());
    QVERIFY(type.toString().isNull());
    QCOMPARE(type, RVProductType(u""_s));
}

void tst_RVProductType::unknown_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << u""_s;
}

void tst_RVProductType::unknown()
{
    QFETCH(QString, code);
    const RVProductType type(code);
    QVERIFY(type.isUnknown());
    QVERIFY(!type.isValid());
    QCOMPARE(type.toString(), u""_s);
    QCOMPARE(type.toString().isNull(), code.isNull());
    QCOMPARE(type.orderTxtName(), u"UNKNOWN"_s);
    QCOMPARE(type.calcHashValue(), std::size_t(0));
    QVERIFY(!type.isCalendar());
    QVERIFY(!type.isAgenda());
}

void tst_RVProductType::calendars_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("agenda");
    QTest::addColumn<bool>("calendar");
    QTest::newRow("first agenda") << u"VIR29"_s << true << true;
    QTest::newRow("second agenda") << u"VIR30"_s << true << true;
    QTest::newRow("below the agendas") << u"VIR28"_s << false << true;
    QTest::newRow("above the agendas") << u"VIR31"_s << false << true;
    QTest::newRow("agenda with a size") << u"VIR29_30"_s << false << true;
    QTest::newRow("agenda with a blank") << u"VIR30 "_s << false << true;
    QTest::newRow("family alone") << u"VIR"_s << false << true;
    QTest::newRow("letters behind the family") << u"VIRTUAL"_s << false << true;
    QTest::newRow("part of the family") << u"VI"_s << false << false;
    QTest::newRow("lower case agenda") << u"vir29"_s << false << false;
    QTest::newRow("mixed case agenda") << u"Vir30"_s << false << false;
    QTest::newRow("family in the middle") << u"XVIR29"_s << false << false;
    QTest::newRow("leading blank") << u" VIR29"_s << false << false;
    QTest::newRow("photo book") << u"DUN9_30"_s << false << false;
    QTest::newRow("named like the unknown type") << u"UNKNOWN"_s << false << false;
}

void tst_RVProductType::calendars()
{
    QFETCH(QString, code);
    QTEST(RVProductType(code).isAgenda(), "agenda");
    QTEST(RVProductType(code).isCalendar(), "calendar");
}

void tst_RVProductType::fromPriceClass_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("add-on") << u"KUR2"_s << u"KUR2"_s;
    QTest::newRow("calendar") << u"VIR30"_s << u"VIR30"_s;
    QTest::newRow("photo book") << u"DUNS12XL"_s << u"DUNS12"_s;
}

void tst_RVProductType::fromPriceClass()
{
    QFETCH(QString, code);
    QTEST(RVProductType::fromPriceClass(RVPriceClass(code)).toString(), "name");
}

void tst_RVProductType::fromKtx_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("name");
    QTest::newRow("no attribute") << u"<project/>"_s << u"DUN9"_s;
    QTest::newRow("other letter case") << u"<project productName='VIR29'/>"_s << u"DUN9"_s;
    QTest::newRow("attribute of a child") << u"<project><page productname='VIR29'/></project>"_s << u"DUN9"_s;
    QTest::newRow("empty attribute") << u"<project productname=''/>"_s << u""_s;
    QTest::newRow("photo book") << u"<project productname='DUNS7B'/>"_s << u"DUNS7"_s;
    QTest::newRow("agenda") << u"<project productname='VIR29' pages='26'/>"_s << u"VIR29"_s;
    QTest::newRow("blanks") << u"<project productname=' VIR29 '/>"_s << u" VIR29 "_s;
}

void tst_RVProductType::fromKtx()
{
    QFETCH(QString, xml);
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    QTEST(RVProductType::fromKtx(document.documentElement()).toString(), "name");
}

void tst_RVProductType::fromNullElement()
{
    QCOMPARE(RVProductType::fromKtx(QDomElement()).toString(), u"DUN9"_s);
}

void tst_RVProductType::equality_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("equal");
    QTest::newRow("same") << u"VIR29"_s << u"VIR29"_s << true;
    QTest::newRow("one family") << u"DUN9_30"_s << u"DUN9XL"_s << true;
    QTest::newRow("two families") << u"DUN9"_s << u"DUNS9"_s << false;
    QTest::newRow("two numbers") << u"DUN9"_s << u"DUN90"_s << false;
    QTest::newRow("letter case") << u"VIR29"_s << u"vir29"_s << false;
    QTest::newRow("unknown and known") << u""_s << u"VIR29"_s << false;
    QTest::newRow("unknown and its order name") << u""_s << u"UNKNOWN"_s << false;
    QTest::newRow("null and empty") << QString() << u""_s << true;
    QTest::newRow("trailing blank") << u"VIR29"_s << u"VIR29 "_s << false;
}

void tst_RVProductType::equality()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    const RVProductType a(left);
    const RVProductType b(right);
    QTEST(a == b, "equal");
    QTEST(b == a, "equal");
    QTEST(!(a != b), "equal");
    QTEST(!(b != a), "equal");
    QVERIFY(a == RVProductType(a));
    QVERIFY(!(a < RVProductType(a)));
}

// The text hash of Qt, unseeded and in 64 bits, is the same for both names of a row; with any other they are unequal.
void tst_RVProductType::equalHashes_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("equalWhereHashesAre");
    QTest::newRow("letter case only") << u"PHotOBOokwitHhaRDcOverandPrEMIumpApERforThEFAmilyalbumoFTHESumME"_s
                                      << u"pHoTOBoOkwiThHArdCovEraNDpRemiuMPapERFoRTHEfaMilYalbUMoFThEsUMmE"_s << true;
    QTest::newRow("other letters") << u"enfiibckhkojfhml"_s << u"pafjdndegpeeibme"_s << false;
}

void tst_RVProductType::equalHashes()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(bool, equalWhereHashesAre);
    const RVProductType a(left);
    const RVProductType b(right);
    const bool sameHash = textHash(left) == textHash(right);
    QCOMPARE(a == b, sameHash && equalWhereHashesAre);
    QCOMPARE(b == a, sameHash && equalWhereHashesAre);
    QCOMPARE(a != b, !(sameHash && equalWhereHashesAre));
    QCOMPARE(a < b, sameHash || textHash(left) < textHash(right));
    QCOMPARE(b < a, !sameHash && textHash(right) < textHash(left));
}

void tst_RVProductType::ordersByHash()
{
    QStringList names { u""_s };
    for (int i = 1; i <= 20; ++i)
        names += u"VIR%1"_s.arg(i);
    for (const QString &left : std::as_const(names)) {
        const size_t leftHash = left.isEmpty() ? 0 : textHash(left);
        for (const QString &right : std::as_const(names)) {
            const size_t rightHash = right.isEmpty() ? 0 : textHash(right);
            QCOMPARE(RVProductType(left) < RVProductType(right), leftHash < rightHash);
        }
    }
}

void tst_RVProductType::hashKey()
{
    QCOMPARE(qHash(RVProductType(u"VIR29"_s), 0), textHash(u"VIR29"_s));
    QCOMPARE(qHash(RVProductType(u"VIR29"_s), 12345), textHash(u"VIR29"_s) ^ size_t(12345));
    QCOMPARE(qHash(RVProductType(u""_s), 12345), size_t(12345));
    QHash<RVProductType, int> pages;
    pages.insert(RVProductType(u"DUN9_30"_s), 26);
    pages.insert(RVProductType(u"VIR29"_s), 12);
    pages.insert(RVProductType(u""_s), 1);
    QCOMPARE(pages.value(RVProductType(u"DUN9XL"_s)), 26);
    QCOMPARE(pages.value(RVProductType(u"VIR29"_s)), 12);
    QCOMPARE(pages.value(RVProductType()), 1);
    QCOMPARE(pages.value(RVProductType(u"vir29"_s), -1), -1);
}

void tst_RVProductType::bookPattern_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("family");
    QTest::newRow("first family") << u"DUN9_30"_s << u"DUN9"_s;
    QTest::newRow("second family") << u"DUNS12XL"_s << u"DUNS12"_s;
    QTest::newRow("in the middle") << u"xDUN5A"_s << u"DUN5"_s;
    QTest::newRow("lower case") << u"dun9"_s << QString();
}

void tst_RVProductType::bookPattern()
{
    QFETCH(QString, text);
    QTEST(RVProductType::myBookRegExp.match(text).captured(1), "family");
    QCOMPARE(RVProductType::myBookRegExp.pattern(), u"((DUN|DUNS)\\d+).*"_s);
    QCOMPARE(RVProductType::myBookRegExp.patternOptions(), QRegularExpression::NoPatternOption);
}

void tst_RVProductType::copies()
{
    const RVProductType source(u"DUN9_30"_s);
    RVProductType copy = source;
    QCOMPARE(copy, source);
    copy = RVProductType(u"VIR29"_s);
    QCOMPARE(source.toString(), u"DUN9"_s);
    QCOMPARE(copy.toString(), u"VIR29"_s);
    QCOMPARE(copy.calcHashValue(), textHash(u"VIR29"_s));
    const RVProductType &self = copy;
    copy = self;
    QCOMPARE(copy.toString(), u"VIR29"_s);
    const RVProductType moved = std::move(copy);
    QCOMPARE(moved.toString(), u"VIR29"_s);
    QCOMPARE(moved.calcHashValue(), textHash(u"VIR29"_s));
}

void tst_RVProductType::isWholeAfterAMove()
{
    RVProductType first(u"DUN9_30"_s);
    const RVProductType taken = std::move(first);
    QCOMPARE(taken, RVProductType(u"DUN9"_s));
    QVERIFY(first.isUnknown());
    QCOMPARE(first.calcHashValue(), std::size_t(0));
    QCOMPARE(first, RVProductType());
    QVERIFY(!(first < RVProductType()));
    QVERIFY(!(RVProductType() < first));

    RVProductType second(u"VIR29"_s);
    RVProductType target(u"KUR2"_s);
    target = std::move(second);
    QCOMPARE(target, RVProductType(u"VIR29"_s));
    QCOMPARE(second, RVProductType(second.toString()));
    QCOMPARE(second.calcHashValue(), RVProductType(second.toString()).calcHashValue());
    target.swap(second);
    QCOMPARE(second, RVProductType(u"VIR29"_s));
    QCOMPARE(target, RVProductType(u"KUR2"_s));
}

QTEST_GUILESS_MAIN(tst_RVProductType)
#include "tst_RVProductType.moc"
