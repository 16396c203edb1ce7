#include <RVProductBase/RVPriceClass.h>

#include <QMap>
#include <QSet>
#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

static_assert(!std::is_polymorphic_v<RVPriceClass>);
static_assert(sizeof(RVPriceClass) == sizeof(QString));
static_assert(std::is_convertible_v<QString, RVPriceClass>);

class tst_RVPriceClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIsNull();
    void holdsTheCode_data();
    void holdsTheCode();
    void nullAndEmptyAreEqual();
    void compares_data();
    void compares();
    void sortsAsKey();
    void hash_data();
    void hash();
    void findsInHashes();
    void copies();
};

void tst_RVPriceClass::defaultIsNull()
{
    const RVPriceClass priceClass;
    QVERIFY(priceClass.toString().isNull());
    QVERIFY(priceClass.isEmpty());
    QVERIFY(!priceClass.isValid());
    QVERIFY(priceClass.isFree());
}

void tst_RVPriceClass::holdsTheCode_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("empty");
    QTest::addColumn<bool>("free");
    QTest::newRow("null") << QString() << true << true;
    QTest::newRow("empty") << u""_s << true << true;
    QTest::newRow("one zero") << u"0"_s << false << true;
    QTest::newRow("run of zeros") << u"000"_s << false << true;
    QTest::newRow("zero and a code") << u"0KUR2"_s << false << true;
    QTest::newRow("zero in the middle") << u"QO20"_s << false << false;
    QTest::newRow("zero behind a blank") << u" 0"_s << false << false;
    QTest::newRow("another digit") << u"61"_s << false << false;
    QTest::newRow("slash, the sign before zero") << u"/1"_s << false << false;
    QTest::newRow("negative zero") << u"-0"_s << false << false;
    QTest::newRow("full-width zero") << u"\uFF10"_s << false << false;
    QTest::newRow("Arabic-Indic zero") << u"\u0660"_s << false << false;
    QTest::newRow("letter O") << u"O1"_s << false << false;
    QTest::newRow("NUL sign") << QString(QChar(0)) << false << false;
    QTest::newRow("upper case") << u"KUR2"_s << false << false;
    QTest::newRow("lower case") << u"kur2"_s << false << false;
    QTest::newRow("leading blank") << u" KUR2"_s << false << false;
    QTest::newRow("trailing blank") << u"KUR2 "_s << false << false;
    QTest::newRow("blank") << u" "_s << false << false;
    QTest::newRow("keyword") << u"premium_design"_s << false << false;
    QTest::newRow("umlaut") << u"\u00C4"_s << false << false;
}

void tst_RVPriceClass::holdsTheCode()
{
    QFETCH(QString, code);
    QFETCH(bool, empty);
    QFETCH(bool, free);
    for (const RVPriceClass &priceClass : { RVPriceClass(code), RVPriceClass::create(code) }) {
        QCOMPARE(priceClass.toString(), code);
        QCOMPARE(priceClass.toString().isNull(), code.isNull());
        QCOMPARE(priceClass.isEmpty(), empty);
        QCOMPARE(priceClass.isValid(), !empty);
        QCOMPARE(priceClass.isFree(), free);
    }
}

void tst_RVPriceClass::nullAndEmptyAreEqual()
{
    QVERIFY(RVPriceClass() == RVPriceClass(u""_s));
    QVERIFY(!(RVPriceClass() != RVPriceClass(u""_s)));
    QCOMPARE(qHash(RVPriceClass()), qHash(RVPriceClass(u""_s)));
}

void tst_RVPriceClass::compares_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<bool>("equal");
    QTest::addColumn<bool>("less");
    QTest::addColumn<bool>("greater");
    QTest::newRow("same") << u"KUR2"_s << u"KUR2"_s << true << false << false;
    QTest::newRow("case") << u"KUR2"_s << u"kur2"_s << false << true << false;
    QTest::newRow("lower case behind later upper case") << u"a"_s << u"B"_s << false << false << true;
    QTest::newRow("leading blank") << u" KUR2"_s << u"KUR2"_s << false << true << false;
    QTest::newRow("trailing blank") << u"KUR2 "_s << u"KUR2"_s << false << false << true;
    QTest::newRow("as strings, not as numbers") << u"KUR10"_s << u"KUR2"_s << false << true << false;
    QTest::newRow("prefix") << u"KUR"_s << u"KUR2"_s << false << true << false;
    QTest::newRow("empty and code") << u""_s << u"0"_s << false << true << false;
    QTest::newRow("umlaut behind z") << u"\u00C4"_s << u"z"_s << false << false << true;
    QTest::newRow("composed and decomposed") << u"\u00C4"_s << u"A\u0308"_s << false << false << true;
    QTest::newRow("surrogate before later unit") << u"\U0001F4F7"_s << u"\uFB01"_s << false << true << false;
}

void tst_RVPriceClass::compares()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    const RVPriceClass a(left);
    const RVPriceClass b(right);
    QTEST(a == b, "equal");
    QTEST(b == a, "equal");
    QTEST(!(a != b), "equal");
    QTEST(a < b, "less");
    QTEST(b < a, "greater");
}

void tst_RVPriceClass::sortsAsKey()
{
    QMap<RVPriceClass, int> counts;
    for (const QString &code : { u"kur2"_s, u"KUR2"_s, u"61"_s, u"KUR10"_s, u"KUR2"_s, u""_s })
        ++counts[RVPriceClass(code)];
    QStringList keys;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        keys += it.key().toString();
    QCOMPARE(keys, QStringList({ u""_s, u"61"_s, u"KUR10"_s, u"KUR2"_s, u"kur2"_s }));
    QCOMPARE(counts.values(), QList<int>({ 1, 1, 1, 2, 1 }));
}

void tst_RVPriceClass::hash_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("empty") << u""_s;
    QTest::newRow("code") << u"KUR2"_s;
    QTest::newRow("keyword") << u"premium_design"_s;
}

// The text is hashed without a seed, so the hash of a code is the same in every run; the table adds its own seed.
void tst_RVPriceClass::hash()
{
    QFETCH(QString, code);
    QCOMPARE(qHash(RVPriceClass(code)), qHash(code, size_t(0)));
    QCOMPARE(qHash(RVPriceClass(code), 0), qHash(code, size_t(0)));
    QCOMPARE(qHash(RVPriceClass(code), 12345), qHash(code, size_t(0)) ^ size_t(12345));
}

void tst_RVPriceClass::findsInHashes()
{
    const QSet<RVPriceClass> set { RVPriceClass(u"KUR2"_s), RVPriceClass(u"kur2"_s), RVPriceClass(u"KUR2"_s) };
    QCOMPARE(set.size(), 2);
    QVERIFY(set.contains(RVPriceClass(u"KUR2"_s)));
    QVERIFY(set.contains(RVPriceClass(u"kur2"_s)));
    QVERIFY(!set.contains(RVPriceClass(u"Kur2"_s)));
}

void tst_RVPriceClass::copies()
{
    const RVPriceClass source(u"VEL4"_s);
    RVPriceClass copy = source;
    QCOMPARE(copy, source);
    copy = RVPriceClass(u"VEL5"_s);
    QCOMPARE(source.toString(), u"VEL4"_s);
    QCOMPARE(copy.toString(), u"VEL5"_s);
    RVPriceClass &self = copy;
    copy = self;
    QCOMPARE(copy.toString(), u"VEL5"_s);
    const RVPriceClass moved = std::move(copy);
    QCOMPARE(moved.toString(), u"VEL5"_s);
    copy = moved;
    QCOMPARE(copy.toString(), u"VEL5"_s);
}

QTEST_GUILESS_MAIN(tst_RVPriceClass)
#include "tst_RVPriceClass.moc"
