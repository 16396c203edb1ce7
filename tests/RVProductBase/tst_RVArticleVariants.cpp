#include <RVProductBase/RVArticleVariants.h>

#include <QDebug>
#include <QDomDocument>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <future>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// The entries, each as "key=value".
RVArticleVariants variants(const QStringList &entries)
{
    RVArticleVariants result;
    for (const QString &entry : entries)
        result.insert(entry.section(u'=', 0, 0), entry.section(u'=', 1));
    return result;
}

QStringList entries(const RVArticleVariants &variants)
{
    QStringList result;
    for (const QString &key : variants.keys())
        result += key + u'=' + variants.value(key, u"absent"_s);
    return result;
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

const QStringList MANY = { u"k1=v8"_s, u"k2=v7"_s, u"k3=v6"_s, u"k4=v5"_s,
                           u"k5=v4"_s, u"k6=v3"_s, u"k7=v2"_s, u"k8=v1"_s };

}

class tst_RVArticleVariants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstUseFromManyThreads();
    void isPolymorphicValue();
    void startsEmpty();
    void names_data();
    void names();
    void giftBoxes();
    void createsFromPair_data();
    void createsFromPair();
    void createsFromText_data();
    void createsFromText();
    void createsFromXml_data();
    void createsFromXml();
    void createsFromJson_data();
    void createsFromJson();
    void createsFromKTX_data();
    void createsFromKTX();
    void value();
    void keysAndValues();
    void hasOptions_data();
    void hasOptions();
    void notAccountable_data();
    void notAccountable();
    void contains_data();
    void contains();
    void containsAtLeastOne_data();
    void containsAtLeastOne();
    void compares_data();
    void compares();
    void hashes();
    void insertsPairs();
    void merges_data();
    void merges();
    void mergesItself();
    void copiesAreIndependent();
    void splits_data();
    void splits();
    void writesKTX_data();
    void writesKTX();
    void writesXTCI_data();
    void writesXTCI();
    void writesOrderTxt_data();
    void writesOrderTxt();
    void keepsCompositeTogether();
    void writersAgreeOnOrder();
    void debugOutput_data();
    void debugOutput();
    void debugSpacing();
};

void tst_RVArticleVariants::firstUseFromManyThreads()
{
    std::vector<std::future<QStringList>> readers;
    for (int i = 0; i < 16; ++i)
        readers.push_back(std::async(std::launch::async, [] { return entries(RVArticleVariants(u"alcolor|red"_s)); }));
    for (std::future<QStringList> &reader : readers)
        QCOMPARE(reader.get(), QStringList(u"alcolor=red"_s));
}

void tst_RVArticleVariants::isPolymorphicValue()
{
    QVERIFY(std::has_virtual_destructor_v<RVArticleVariants>);
    QVERIFY(std::is_copy_assignable_v<RVArticleVariants>);
    QCOMPARE(sizeof(RVArticleVariants), sizeof(void *) + sizeof(QHash<QString, QString>));
}

void tst_RVArticleVariants::startsEmpty()
{
    const RVArticleVariants empty;
    QVERIFY(!empty.isValid());
    QCOMPARE(empty.keys(), QStringList());
    QCOMPARE(empty.values(), QStringList());
    QCOMPARE(empty.toKTX(), u""_s);
    QCOMPARE(empty.toOrderTxt(), u""_s);
    QVERIFY(!empty.toXTCI().isValid());
}

void tst_RVArticleVariants::names_data()
{
    QTest::addColumn<QString>("actual");
    QTest::addColumn<QString>("expected");
    QTest::newRow("cover colour") << RVArticleVariants::coverColorKeyName() << u"alcolor"_s;
    QTest::newRow("cover photo") << RVArticleVariants::coverFotoKeyName() << u"coverphoto"_s;
    QTest::newRow("picture box") << RVArticleVariants::pictureBoxKeyName() << u"boxstyle"_s;
    QTest::newRow("fly-leaf colour") << RVArticleVariants::flyLeafKeyColorName() << u"flyleafcolor"_s;
    QTest::newRow("gift box colour") << RVArticleVariants::pxwGiftBoxColorKeyName() << u"giftboxcolor"_s;
    QTest::newRow("black gift box") << RVArticleVariants::blackPXWGiftBoxValue() << u"black"_s;
    QTest::newRow("cut-out") << RVArticleVariants::cutoutKeyName() << u"cutout"_s;
    QTest::newRow("gift box") << RVArticleVariants::pxwGiftBoxKeyName() << u"variant"_s;
}

void tst_RVArticleVariants::names()
{
    QFETCH(QString, actual);
    QTEST(actual, "expected");
}

void tst_RVArticleVariants::giftBoxes()
{
    QCOMPARE(entries(RVArticleVariants::blackPXWGiftBox()), QStringList(u"giftboxcolor=black"_s));
    QCOMPARE(entries(RVArticleVariants::confettiPXWGiftBox()), QStringList(u"variant=confetti"_s));
}

void tst_RVArticleVariants::createsFromPair_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("both") << u"alcolor"_s << u"red"_s << QStringList(u"alcolor=red"_s);
    QTest::newRow("empty key") << u""_s << u"red"_s << QStringList();
    QTest::newRow("empty value") << u"alcolor"_s << u""_s << QStringList();
    QTest::newRow("null key") << QString() << u"red"_s << QStringList();
    QTest::newRow("null value") << u"alcolor"_s << QString() << QStringList();
    QTest::newRow("both empty") << u""_s << u""_s << QStringList();
    QTest::newRow("blanks") << u" "_s << u" "_s << QStringList(u" = "_s);
    QTest::newRow("separators are kept") << u"a;b:+"_s << u"x,|"_s << QStringList(u"a;b:+=x,|"_s);
}

void tst_RVArticleVariants::createsFromPair()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QStringList, expected);
    const RVArticleVariants created(key, value);
    QCOMPARE(entries(created), expected);
    QCOMPARE(created.isValid(), !expected.isEmpty());
}

void tst_RVArticleVariants::createsFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("colon") << u"alcolor:red"_s << QStringList(u"alcolor=red"_s);
    QTest::newRow("bar") << u"alcolor|red"_s << QStringList(u"alcolor=red"_s);
    QTest::newRow("plus") << u"alcolor+red"_s << QStringList(u"alcolor=red"_s);
    QTest::newRow("blanks are kept") << u" alcolor : red "_s << QStringList(u" alcolor = red "_s);
    QTest::newRow("empty key") << u":red"_s << QStringList(u"=red"_s);
    QTest::newRow("empty value") << u"alcolor:"_s << QStringList(u"alcolor="_s);
    QTest::newRow("separator alone") << u"+"_s << QStringList(u"="_s);
    QTest::newRow("no separator") << u"alcolor"_s << QStringList();
    QTest::newRow("two separators") << u"a:b:x"_s << QStringList();
    QTest::newRow("two kinds of separators") << u"a:b+x"_s << QStringList();
    QTest::newRow("adjacent separators") << u"a||x"_s << QStringList();
    QTest::newRow("trailing separator") << u"a:x:"_s << QStringList();
    QTest::newRow("other punctuation") << u"a=x;y-z[0]"_s << QStringList();
    QTest::newRow("comma belongs to the value") << u"a:x,y"_s << QStringList(u"a=x,y"_s);
    QTest::newRow("composite") << u"a;b:x;y"_s << QStringList(u"a;b=x;y"_s);
    QTest::newRow("surrogate pairs") << u"\U0001F4D6:\U0001F4F7"_s << QStringList(u"\U0001F4D6=\U0001F4F7"_s);
    QTest::newRow("half a surrogate pair") << u"a:x"_s + QChar(0xD83D) << QStringList();
    QTest::newRow("empty") << u""_s << QStringList();
    QTest::newRow("null") << QString() << QStringList();
}

void tst_RVArticleVariants::createsFromText()
{
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    const RVArticleVariants created(text);
    QCOMPARE(entries(created), expected);
    QCOMPARE(created.isValid(), !expected.isEmpty());
}

void tst_RVArticleVariants::createsFromXml_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("both") << u"<form key='alcolor' value='red'/>"_s << QStringList(u"alcolor=red"_s);
    QTest::newRow("no key") << u"<form value='red'/>"_s << QStringList(u"=red"_s);
    QTest::newRow("no value") << u"<form key='alcolor'/>"_s << QStringList(u"alcolor="_s);
    QTest::newRow("empty attributes") << u"<form key='' value=''/>"_s << QStringList(u"="_s);
    QTest::newRow("no attribute") << u"<form/>"_s << QStringList(u"="_s);
    QTest::newRow("other letter case") << u"<form Key='alcolor' VALUE='red'/>"_s << QStringList(u"="_s);
    QTest::newRow("separators are kept") << u"<form key='a:b' value='x+y'/>"_s << QStringList(u"a:b=x+y"_s);
    QTest::newRow("child elements do not count")
            << u"<form><form key='alcolor' value='red'/></form>"_s << QStringList(u"="_s);
    QTest::newRow("null element") << u""_s << QStringList(u"="_s);
}

void tst_RVArticleVariants::createsFromXml()
{
    QFETCH(QString, xml);
    QDomDocument document;
    document.setContent(xml);
    const RVArticleVariants created(document.documentElement());
    QTEST(entries(created), "expected");
    QVERIFY(created.isValid());
    QVERIFY(!created.keys().constFirst().isNull());
    QVERIFY(!created.value(created.keys().constFirst(), u"absent"_s).isNull());
}

void tst_RVArticleVariants::createsFromJson_data()
{
    QTest::addColumn<QJsonArray>("array");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("prefix") << QJsonArray { u"form_parameter-alcolor:red"_s } << QStringList(u"alcolor=red"_s);
    QTest::newRow("no prefix") << QJsonArray { u"alcolor:red"_s } << QStringList(u"alcolor=red"_s);
    QTest::newRow("several prefixes") << QJsonArray { u"form_parameter-form_parameter-al:form_parameter-red"_s }
                                      << QStringList(u"al=red"_s);
    QTest::newRow("prefix in the middle")
            << QJsonArray { u"alform_parameter-color:red"_s } << QStringList(u"alcolor=red"_s);
    QTest::newRow("prefix that arises by removing")
            << QJsonArray { u"form_form_parameter-parameter-al:red"_s } << QStringList(u"form_parameter-al=red"_s);
    QTest::newRow("prefix in other letter case")
            << QJsonArray { u"Form_parameter-alcolor:red"_s } << QStringList(u"Form_parameter-alcolor=red"_s);
    QTest::newRow("part of the prefix") << QJsonArray { u"form_parameteralcolor:red"_s }
                                        << QStringList(u"form_parameteralcolor=red"_s);
    QTest::newRow("several") << QJsonArray { u"form_parameter-b:y"_s, u"form_parameter-a:x"_s }
                             << QStringList { u"a=x"_s, u"b=y"_s };
    QTest::newRow("later wins") << QJsonArray { u"a:x"_s, u"form_parameter-a:y"_s } << QStringList(u"a=y"_s);
    QTest::newRow("only the colon separates")
            << QJsonArray { u"a|x"_s, u"b+y"_s, u"d|e:z+z"_s } << QStringList(u"d|e=z+z"_s);
    QTest::newRow("no colon") << QJsonArray { u"form_parameter-alcolor"_s } << QStringList();
    QTest::newRow("two colons") << QJsonArray { u"a:b:x"_s } << QStringList();
    QTest::newRow("adjacent colons") << QJsonArray { u"a::x"_s } << QStringList();
    QTest::newRow("empty key") << QJsonArray { u"form_parameter-:red"_s } << QStringList(u"=red"_s);
    QTest::newRow("empty value") << QJsonArray { u"alcolor:"_s } << QStringList(u"alcolor="_s);
    QTest::newRow("malformed among well-formed")
            << QJsonArray { u"a:x"_s, u"junk"_s, u"b:y"_s } << QStringList { u"a=x"_s, u"b=y"_s };
    QTest::newRow("half a surrogate pair")
            << QJsonArray { QString(u"a:x"_s + QChar(0xD83D)) } << QStringList(u"a=x"_s + QChar(0xD83D));
    QTest::newRow("no texts") << QJsonArray { 17, true, QJsonValue::Null, QJsonObject { { u"a:x"_s, u"a:x"_s } },
                                              QJsonArray { u"a:x"_s } }
                              << QStringList();
    QTest::newRow("empty text") << QJsonArray { u""_s } << QStringList();
    QTest::newRow("empty") << QJsonArray() << QStringList();
}

void tst_RVArticleVariants::createsFromJson()
{
    QFETCH(QJsonArray, array);
    QFETCH(QStringList, expected);
    const RVArticleVariants created(array);
    QCOMPARE(entries(created), expected);
    QCOMPARE(created.isValid(), !expected.isEmpty());
}

void tst_RVArticleVariants::createsFromKTX_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("one") << u"alcolor:red"_s << QStringList(u"alcolor=red"_s);
    QTest::newRow("two with an empty piece")
            << u"alcolor:red,,coverphoto+yes"_s << QStringList { u"alcolor=red"_s, u"coverphoto=yes"_s };
    QTest::newRow("every separator") << u"a:x,b|y,d+z"_s << QStringList { u"a=x"_s, u"b=y"_s, u"d=z"_s };
    QTest::newRow("later wins") << u"alcolor:red,alcolor:blue"_s << QStringList(u"alcolor=blue"_s);
    QTest::newRow("no separator") << u"x"_s << QStringList();
    QTest::newRow("malformed among well-formed") << u"a:x,junk,b:y:z,d:w"_s << QStringList { u"a=x"_s, u"d=w"_s };
    QTest::newRow("empty key and empty value") << u":red,alcolor:"_s << QStringList { u"=red"_s, u"alcolor="_s };
    QTest::newRow("later empty value wins") << u"alcolor:red,alcolor:"_s << QStringList(u"alcolor="_s);
    QTest::newRow("composite") << u"a;b:x;y"_s << QStringList(u"a;b=x;y"_s);
    QTest::newRow("blanks are kept") << u"a:x, b:y"_s << QStringList { u" b=y"_s, u"a=x"_s };
    QTest::newRow("semicolon does not separate pieces") << u"a:x;b:y"_s << QStringList();
    QTest::newRow("commas only") << u",,"_s << QStringList();
    QTest::newRow("empty") << u""_s << QStringList();
    QTest::newRow("null") << QString() << QStringList();
    QTest::newRow("surrogate pairs") << u"a:\U0001F4D6,\U0001F4D6|y,d+z"_s
                                     << QStringList { u"a=\U0001F4D6"_s, u"d=z"_s, u"\U0001F4D6=y"_s };
    QTest::newRow("surrogate pair without separator") << u"\U0001F4D6,a:x"_s << QStringList(u"a=x"_s);
    QTest::newRow("surrogate pair and two separators") << u"a:\U0001F4D6:x,b:y"_s << QStringList(u"b=y"_s);
    // A piece with broken UTF-16 is not searched for a separator.
    const QString high = QChar(0xD83D);
    const QString low = QChar(0xDCD6);
    QTest::newRow("high surrogate alone") << u"b:y,a:x"_s + high + u",d:z"_s << QStringList { u"b=y"_s, u"d=z"_s };
    QTest::newRow("low surrogate alone") << u"b:y,"_s + low + u"a:x,d:z"_s << QStringList { u"b=y"_s, u"d=z"_s };
    QTest::newRow("pair the wrong way round") << u"a:"_s + low + high + u",d:z"_s << QStringList(u"d=z"_s);
    QTest::newRow("pair torn by a comma") << u"a:"_s + high + u',' + low + u":x,d:z"_s << QStringList(u"d=z"_s);
    QTest::newRow("broken piece does not replace an earlier one") << u"a:x,a:"_s + high << QStringList(u"a=x"_s);
    QTest::newRow("broken piece without separator") << high + u",a:x"_s << QStringList(u"a=x"_s);
}

void tst_RVArticleVariants::createsFromKTX()
{
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    const RVArticleVariants created = RVArticleVariants::createFromKTX(text);
    QCOMPARE(entries(created), expected);
    QCOMPARE(created.isValid(), !expected.isEmpty());
}

void tst_RVArticleVariants::value()
{
    const RVArticleVariants stored = variants({ u"alcolor=red"_s, u"cutout="_s });
    QCOMPARE(stored.value(u"alcolor"_s, u"default"_s), u"red"_s);
    QCOMPARE(stored.value(u"alcolor"_s), u"red"_s);
    QCOMPARE(stored.value(u"cutout"_s, u"default"_s), u""_s);
    QCOMPARE(stored.value(u"boxstyle"_s, u"default"_s), u"default"_s);
    QCOMPARE(stored.value(u"Alcolor"_s, u"default"_s), u"default"_s);
    QCOMPARE(stored.value(u""_s, u"default"_s), u"default"_s);
    QVERIFY(stored.value(u"boxstyle"_s).isNull());
    QCOMPARE(stored.keys().size(), 2);
}

void tst_RVArticleVariants::keysAndValues()
{
    const RVArticleVariants stored = variants({ u"b=y"_s, u"a=y"_s, u"B=x"_s, u"_=z"_s, u"A=x"_s, u"a1=w"_s });
    QCOMPARE(stored.keys(), (QStringList { u"A"_s, u"B"_s, u"_"_s, u"a"_s, u"a1"_s, u"b"_s }));
    QCOMPARE(sorted(stored.values()), (QStringList { u"w"_s, u"x"_s, u"x"_s, u"y"_s, u"y"_s, u"z"_s }));
}

void tst_RVArticleVariants::hasOptions_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<bool>("coverColor");
    QTest::addColumn<bool>("flyLeafColor");
    QTest::addColumn<bool>("cutOut");
    QTest::newRow("cover colour") << QStringList(u"alcolor=red"_s) << true << false << false;
    QTest::newRow("fly-leaf colour") << QStringList(u"flyleafcolor=red"_s) << false << true << false;
    QTest::newRow("cut-out") << QStringList(u"cutout=round"_s) << false << false << true;
    QTest::newRow("all three") << QStringList { u"alcolor=a"_s, u"flyleafcolor=b"_s, u"cutout=d"_s } << true << true
                               << true;
    QTest::newRow("empty values") << QStringList { u"alcolor="_s, u"flyleafcolor="_s, u"cutout="_s } << true << true
                                  << true;
    QTest::newRow("values do not count") << QStringList { u"a=alcolor"_s, u"b=flyleafcolor"_s, u"d=cutout"_s } << false
                                         << false << false;
    QTest::newRow("other letter case") << QStringList { u"Alcolor=a"_s, u"FlyLeafColor=b"_s, u"CUTOUT=d"_s } << false
                                       << false << false;
    QTest::newRow("part of a composite") << QStringList { u"alcolor;cutout=a;b"_s, u"boxstyle;flyleafcolor=d;e"_s }
                                         << false << false << false;
    QTest::newRow("other keys") << QStringList { u"coverphoto=a"_s, u"boxstyle=b"_s, u"giftboxcolor=d"_s,
                                                 u"variant=e"_s }
                                << false << false << false;
    QTest::newRow("empty") << QStringList() << false << false << false;
}

void tst_RVArticleVariants::hasOptions()
{
    QFETCH(QStringList, stored);
    QTEST(variants(stored).hasCoverColor(), "coverColor");
    QTEST(variants(stored).hasFlyLeafColor(), "flyLeafColor");
    QTEST(variants(stored).hasCutOut(), "cutOut");
}

void tst_RVArticleVariants::notAccountable_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<bool>("expected");
    QTest::newRow("only value") << QStringList(u"cutout=notAccountable"_s) << true;
    QTest::newRow("among others") << QStringList { u"a=x"_s, u"cutout=notAccountable"_s, u"d=y"_s } << true;
    QTest::newRow("key") << QStringList(u"notAccountable=x"_s) << false;
    QTest::newRow("other letter case") << QStringList(u"cutout=notaccountable"_s) << false;
    QTest::newRow("part of a value") << QStringList { u"a=x;notAccountable"_s, u"b=notAccountables"_s } << false;
    QTest::newRow("surrounding blank") << QStringList(u"cutout= notAccountable"_s) << false;
    QTest::newRow("empty value") << QStringList(u"cutout="_s) << false;
    QTest::newRow("empty") << QStringList() << false;
}

void tst_RVArticleVariants::notAccountable()
{
    QFETCH(QStringList, stored);
    QTEST(variants(stored).containsNotAccountableVariant(), "expected");
}

void tst_RVArticleVariants::contains_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("other");
    QTest::addColumn<bool>("expected");
    QTest::newRow("same") << QStringList(u"a=x"_s) << QStringList(u"a=x"_s) << true;
    QTest::newRow("subset") << QStringList { u"a=x"_s, u"b=y"_s } << QStringList(u"b=y"_s) << true;
    QTest::newRow("superset") << QStringList(u"a=x"_s) << QStringList { u"a=x"_s, u"b=y"_s } << false;
    QTest::newRow("one of two differs") << QStringList { u"a=x"_s, u"b=y"_s } << QStringList { u"a=x"_s, u"b=z"_s }
                                        << false;
    QTest::newRow("other letter case") << QStringList(u"a=x"_s) << QStringList(u"a=X"_s) << false;
    QTest::newRow("empty value matches absent key") << QStringList(u"b=y"_s) << QStringList(u"a="_s) << true;
    QTest::newRow("empty value matches empty value") << QStringList(u"a="_s) << QStringList(u"a="_s) << true;
    QTest::newRow("empty value differs from value") << QStringList(u"a=x"_s) << QStringList(u"a="_s) << false;
    QTest::newRow("value differs from empty value") << QStringList(u"a="_s) << QStringList(u"a=x"_s) << false;
    QTest::newRow("composite is one key") << QStringList { u"a=x"_s, u"b=y"_s } << QStringList(u"a;b=x;y"_s) << false;
    QTest::newRow("other empty") << QStringList(u"a=x"_s) << QStringList() << true;
    QTest::newRow("both empty") << QStringList() << QStringList() << true;
    QTest::newRow("this empty") << QStringList() << QStringList(u"a=x"_s) << false;
    QTest::newRow("this empty, empty value") << QStringList() << QStringList(u"a="_s) << true;
}

void tst_RVArticleVariants::contains()
{
    QFETCH(QStringList, stored);
    QFETCH(QStringList, other);
    const RVArticleVariants tested = variants(stored);
    QTEST(tested.contains(variants(other)), "expected");
    QVERIFY(tested.contains(tested));
}

void tst_RVArticleVariants::containsAtLeastOne_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("other");
    QTest::addColumn<bool>("expected");
    QTest::newRow("same") << QStringList(u"a=x"_s) << QStringList(u"a=x"_s) << true;
    QTest::newRow("one of two") << QStringList { u"a=x"_s, u"b=y"_s } << QStringList { u"a=z"_s, u"b=y"_s } << true;
    QTest::newRow("none of two") << QStringList { u"a=x"_s, u"b=y"_s } << QStringList { u"a=y"_s, u"b=x"_s } << false;
    QTest::newRow("other letter case") << QStringList(u"a=x"_s) << QStringList(u"a=X"_s) << false;
    QTest::newRow("different keys") << QStringList(u"a=x"_s) << QStringList(u"b=x"_s) << false;
    QTest::newRow("empty value matches absent key") << QStringList(u"a="_s) << QStringList(u"b=y"_s) << true;
    QTest::newRow("absent key does not match empty value") << QStringList(u"b=y"_s) << QStringList(u"a="_s) << false;
    QTest::newRow("other empty") << QStringList(u"a=x"_s) << QStringList() << true;
    QTest::newRow("this empty") << QStringList() << QStringList(u"a=x"_s) << true;
    QTest::newRow("both empty") << QStringList() << QStringList() << true;
}

void tst_RVArticleVariants::containsAtLeastOne()
{
    QFETCH(QStringList, stored);
    QFETCH(QStringList, other);
    const RVArticleVariants tested = variants(stored);
    QTEST(tested.containsAtLeastOne(variants(other)), "expected");
    QVERIFY(tested.containsAtLeastOne(tested));
}

void tst_RVArticleVariants::compares_data()
{
    QTest::addColumn<QStringList>("first");
    QTest::addColumn<QStringList>("second");
    QTest::addColumn<bool>("equal");
    QTest::newRow("same entries") << QStringList(u"a=x"_s) << QStringList(u"a=x"_s) << true;
    QTest::newRow("other order") << MANY << QStringList(MANY.rbegin(), MANY.rend()) << true;
    QTest::newRow("other value") << QStringList(u"a=x"_s) << QStringList(u"a=y"_s) << false;
    QTest::newRow("other key") << QStringList(u"a=x"_s) << QStringList(u"b=x"_s) << false;
    QTest::newRow("letter case of the value") << QStringList(u"a=x"_s) << QStringList(u"a=X"_s) << false;
    QTest::newRow("letter case of the key") << QStringList(u"a=x"_s) << QStringList(u"A=x"_s) << false;
    QTest::newRow("subset") << QStringList(u"a=x"_s) << QStringList { u"a=x"_s, u"b=y"_s } << false;
    QTest::newRow("empty value is not an absent key") << QStringList() << QStringList(u"a="_s) << false;
    QTest::newRow("empty value and another key") << QStringList(u"b="_s) << QStringList(u"a="_s) << false;
    QTest::newRow("composite and single") << QStringList(u"a;b=x;y"_s) << QStringList { u"a=x"_s, u"b=y"_s } << false;
    QTest::newRow("both empty") << QStringList() << QStringList() << true;
}

void tst_RVArticleVariants::compares()
{
    QFETCH(QStringList, first);
    QFETCH(QStringList, second);
    QFETCH(bool, equal);
    const RVArticleVariants a = variants(first);
    const RVArticleVariants b = variants(second);
    QCOMPARE(a == b, equal);
    QCOMPARE(b == a, equal);
    QCOMPARE(a != b, !equal);
    QCOMPARE(b != a, !equal);
    QCOMPARE(a.hash() == b.hash(), equal);
    const RVArticleVariants copy = a;
    QCOMPARE(copy == a, true);
    QCOMPARE(copy != a, false);
}

void tst_RVArticleVariants::hashes()
{
    const QHash<QString, QString> entries = { { u"alcolor"_s, u"red"_s }, { u"cutout"_s, u""_s } };
    QCOMPARE(variants({ u"cutout="_s, u"alcolor=red"_s }).hash(), qHash(entries, 0));
    QCOMPARE(RVArticleVariants().hash(), qHash(QHash<QString, QString>(), 0));
    QCOMPARE(RVArticleVariants().hash(), size_t(0));
}

void tst_RVArticleVariants::insertsPairs()
{
    RVArticleVariants changed;
    changed.insert(u"alcolor"_s, u"red"_s);
    QCOMPARE(entries(changed), QStringList(u"alcolor=red"_s));
    changed.insert(u"alcolor"_s, u"blue"_s);
    QCOMPARE(entries(changed), QStringList(u"alcolor=blue"_s));
    changed.insert(u"alcolor"_s, u""_s);
    QCOMPARE(entries(changed), QStringList(u"alcolor="_s));
    changed.insert(u""_s, u"x"_s);
    QCOMPARE(entries(changed), (QStringList { u"=x"_s, u"alcolor="_s }));
    changed.insert(u"a;b"_s, u"x;y"_s);
    QCOMPARE(entries(changed), (QStringList { u"=x"_s, u"a;b=x;y"_s, u"alcolor="_s }));
}

void tst_RVArticleVariants::merges_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("other");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("different keys") << QStringList(u"a=x"_s) << QStringList(u"b=y"_s)
                                    << QStringList { u"a=x"_s, u"b=y"_s };
    QTest::newRow("other wins") << QStringList { u"a=x"_s, u"b=y"_s } << QStringList { u"b=z"_s, u"d=w"_s }
                                << QStringList { u"a=x"_s, u"b=z"_s, u"d=w"_s };
    QTest::newRow("empty value wins too") << QStringList(u"a=x"_s) << QStringList(u"a="_s) << QStringList(u"a="_s);
    QTest::newRow("this empty") << QStringList() << QStringList { u"a=x"_s, u"b=y"_s }
                                << QStringList { u"a=x"_s, u"b=y"_s };
    QTest::newRow("other empty") << QStringList(u"a=x"_s) << QStringList() << QStringList(u"a=x"_s);
    QTest::newRow("both empty") << QStringList() << QStringList() << QStringList();
}

void tst_RVArticleVariants::merges()
{
    QFETCH(QStringList, stored);
    QFETCH(QStringList, other);
    QFETCH(QStringList, expected);
    const RVArticleVariants source = variants(other);
    RVArticleVariants changed = variants(stored);
    changed.insert(source);
    QCOMPARE(entries(changed), expected);
    changed.insert(u"new"_s, u"value"_s);
    QCOMPARE(entries(source), other);
}

void tst_RVArticleVariants::mergesItself()
{
    RVArticleVariants changed = variants(MANY);
    changed.insert(changed);
    QCOMPARE(entries(changed), MANY);
    const RVArticleVariants copy = changed;
    changed.insert(copy);
    QCOMPARE(entries(changed), MANY);
    RVArticleVariants empty;
    empty.insert(empty);
    QVERIFY(!empty.isValid());
}

void tst_RVArticleVariants::copiesAreIndependent()
{
    const RVArticleVariants source = variants({ u"a=x"_s });
    RVArticleVariants inserted = source;
    inserted.insert(u"a"_s, u"y"_s);
    QCOMPARE(entries(inserted), QStringList(u"a=y"_s));
    RVArticleVariants merged = source;
    merged.insert(variants({ u"b=y"_s }));
    QCOMPARE(entries(merged), (QStringList { u"a=x"_s, u"b=y"_s }));
    RVArticleVariants split = source;
    split.splitForProduction(u"a"_s, u"z"_s);
    QCOMPARE(entries(split), QStringList(u"a=z"_s));
    RVArticleVariants assigned;
    assigned = source;
    assigned.insert(u""_s, u""_s);
    QCOMPARE(entries(assigned), (QStringList { u"="_s, u"a=x"_s }));
    QCOMPARE(entries(source), QStringList(u"a=x"_s));
    const RVArticleVariants moved = std::move(assigned);
    QCOMPARE(entries(moved), (QStringList { u"="_s, u"a=x"_s }));
}

void tst_RVArticleVariants::splits_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("single") << u"a"_s << u"x"_s << QStringList { u"a=x"_s, u"old=1"_s };
    QTest::newRow("two") << u"a;b"_s << u"x;y"_s << QStringList { u"a=x"_s, u"b=y"_s, u"old=1"_s };
    QTest::newRow("empty pieces") << u";a;;b"_s << u"x;y;;"_s << QStringList { u"a=x"_s, u"b=y"_s, u"old=1"_s };
    QTest::newRow("replaces") << u"a;old"_s << u"x;y"_s << QStringList { u"a=x"_s, u"old=y"_s };
    QTest::newRow("later piece wins") << u"a;a"_s << u"x;y"_s << QStringList { u"a=y"_s, u"old=1"_s };
    QTest::newRow("fewer values") << u"a;b"_s << u"x"_s << QStringList(u"old=1"_s);
    QTest::newRow("more values") << u"a"_s << u"x;y"_s << QStringList(u"old=1"_s);
    QTest::newRow("empty key") << u""_s << u"x"_s << QStringList(u"old=1"_s);
    QTest::newRow("empty value") << u"a"_s << u""_s << QStringList(u"old=1"_s);
    QTest::newRow("both empty") << u""_s << u""_s << QStringList(u"old=1"_s);
    QTest::newRow("null") << QString() << QString() << QStringList(u"old=1"_s);
    QTest::newRow("semicolons only") << u";"_s << u";;"_s << QStringList(u"old=1"_s);
    QTest::newRow("other separators are kept")
            << u"a,b:;d"_s << u"x|;y+"_s << QStringList { u"a,b:=x|"_s, u"d=y+"_s, u"old=1"_s };
}

void tst_RVArticleVariants::splits()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    RVArticleVariants changed = variants({ u"old=1"_s });
    changed.splitForProduction(key, value);
    QTEST(entries(changed), "expected");
}

void tst_RVArticleVariants::writesKTX_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("pieces");
    QTest::newRow("one") << QStringList(u"alcolor=red"_s) << QStringList(u"alcolor:red"_s);
    QTest::newRow("two") << QStringList { u"a=x"_s, u"b=y"_s } << QStringList { u"a:x"_s, u"b:y"_s };
    QTest::newRow("composite") << QStringList(u"a;b=x;y"_s) << QStringList(u"a;b:x;y"_s);
    QTest::newRow("uneven composite") << QStringList(u"a;b=x"_s) << QStringList(u"a;b:x"_s);
    QTest::newRow("empty key") << QStringList { u"=red"_s, u"a=x"_s } << QStringList(u"a:x"_s);
    QTest::newRow("empty value") << QStringList { u"a=x"_s, u"alcolor="_s } << QStringList(u"a:x"_s);
    QTest::newRow("only empty ones") << QStringList { u"=red"_s, u"alcolor="_s } << QStringList(u""_s);
    QTest::newRow("place markers are kept") << QStringList(u"%2=%1"_s) << QStringList(u"%2:%1"_s);
    QTest::newRow("empty") << QStringList() << QStringList(u""_s);
}

void tst_RVArticleVariants::writesKTX()
{
    QFETCH(QStringList, stored);
    const RVArticleVariants written = variants(stored);
    QTEST(sorted(written.toKTX().split(u',')), "pieces");
    QCOMPARE(entries(written), stored);
}

void tst_RVArticleVariants::writesXTCI_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("single") << QStringList(u"a=x"_s) << QStringList(u"a=x"_s);
    QTest::newRow("composite") << QStringList(u"a;b=x;y"_s) << QStringList { u"a=x"_s, u"b=y"_s };
    QTest::newRow("composite and single")
            << QStringList { u"a;b=x;y"_s, u"d=z"_s } << QStringList { u"a=x"_s, u"b=y"_s, u"d=z"_s };
    QTest::newRow("empty pieces") << QStringList(u";a;;b=x;;y;"_s) << QStringList { u"a=x"_s, u"b=y"_s };
    QTest::newRow("fewer values") << QStringList { u"a;b=x"_s, u"d=z"_s } << QStringList(u"d=z"_s);
    QTest::newRow("more values") << QStringList { u"a=x;y"_s, u"d=z"_s } << QStringList(u"d=z"_s);
    QTest::newRow("empty key or value") << QStringList { u"=x"_s, u"a="_s } << QStringList();
    QTest::newRow("single option behind a composite one")
            << QStringList { u"a;b=x;y"_s, u"b=z"_s } << QStringList { u"a=x"_s, u"b=z"_s };
    QTest::newRow("composite option behind a single one")
            << QStringList { u"a=z"_s, u"b;a=x;y"_s } << QStringList { u"a=y"_s, u"b=x"_s };
    QTest::newRow("same option five times")
            << QStringList { u"k=1"_s, u"k;a=2;x"_s, u"k;b=3;x"_s, u"k;c=4;x"_s, u"k;d=5;x"_s }
            << QStringList { u"a=x"_s, u"b=x"_s, u"c=x"_s, u"d=x"_s, u"k=5"_s };
    QTest::newRow("capital letters come first")
            << QStringList { u"B=x"_s, u"a;B=y;z"_s } << QStringList { u"B=z"_s, u"a=y"_s };
    QTest::newRow("umlauts come last") << QStringList { u"z=x"_s, u"ä;z=y;w"_s } << QStringList { u"z=w"_s, u"ä=y"_s };
    QTest::newRow("empty") << QStringList() << QStringList();
}

void tst_RVArticleVariants::writesXTCI()
{
    QFETCH(QStringList, stored);
    const RVArticleVariants written = variants(stored);
    QTEST(entries(written.toXTCI()), "expected");
    QCOMPARE(entries(written), stored);
}

void tst_RVArticleVariants::writesOrderTxt_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QStringList>("anyOf");
    QTest::newRow("single") << QStringList(u"a=x"_s) << QStringList(u"a:x"_s);
    QTest::newRow("composite") << QStringList(u"b;a=x;y"_s) << QStringList(u"b:x;a:y"_s);
    QTest::newRow("composite and single")
            << QStringList { u"a;b=x;y"_s, u"d=z"_s } << QStringList { u"a:x;b:y;d:z"_s, u"d:z;a:x;b:y"_s };
    QTest::newRow("same key twice") << QStringList(u"a;a=x;y"_s) << QStringList(u"a:x;a:y"_s);
    QTest::newRow("empty pieces") << QStringList(u";a;;b=x;;y;"_s) << QStringList(u"a:x;b:y"_s);
    QTest::newRow("fewer values") << QStringList { u"a;b=x"_s, u"d=z"_s } << QStringList(u"d:z"_s);
    QTest::newRow("more values") << QStringList { u"a=x;y"_s, u"d=z"_s } << QStringList(u"d:z"_s);
    QTest::newRow("empty key or value") << QStringList { u"=x"_s, u"a="_s } << QStringList(u""_s);
    QTest::newRow("place markers are kept") << QStringList(u"%2;b=%1;y"_s) << QStringList(u"%2:%1;b:y"_s);
    QTest::newRow("empty") << QStringList() << QStringList(u""_s);
}

void tst_RVArticleVariants::writesOrderTxt()
{
    QFETCH(QStringList, stored);
    QFETCH(QStringList, anyOf);
    const RVArticleVariants written = variants(stored);
    const QString text = written.toOrderTxt();
    QVERIFY2(anyOf.contains(text), qPrintable(text));
    QCOMPARE(entries(written), stored);
}

void tst_RVArticleVariants::keepsCompositeTogether()
{
    const RVArticleVariants stored = variants({ u"a;b=x;y"_s });
    QCOMPARE(stored.keys(), QStringList(u"a;b"_s));
    QCOMPARE(stored.values(), QStringList(u"x;y"_s));
    QCOMPARE(stored.value(u"a"_s, u"absent"_s), u"absent"_s);
    QCOMPARE(entries(RVArticleVariants::createFromKTX(stored.toKTX())), QStringList(u"a;b=x;y"_s));
}

void tst_RVArticleVariants::writersAgreeOnOrder()
{
    const RVArticleVariants stored = variants(MANY);
    QStringList pieces;
    for (const QString &value : stored.values())
        pieces += u"k%1:%2"_s.arg(9 - value.mid(1).toInt()).arg(value);
    QCOMPARE(sorted(pieces),
             (QStringList { u"k1:v8"_s, u"k2:v7"_s, u"k3:v6"_s, u"k4:v5"_s, u"k5:v4"_s, u"k6:v3"_s, u"k7:v2"_s,
                            u"k8:v1"_s }));
    QCOMPARE(stored.toKTX(), pieces.join(u','));
    QCOMPARE(stored.toOrderTxt(), pieces.join(u';'));
    QCOMPARE(entries(RVArticleVariants::createFromKTX(stored.toKTX())), MANY);
}

void tst_RVArticleVariants::debugOutput_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one") << QStringList(u"alcolor=red"_s) << u"\"alcolor = red\" "_s;
    QTest::newRow("sorted") << QStringList { u"b=y"_s, u"a=z"_s, u"B=x"_s } << u"\"B = x; a = z; b = y\" "_s;
    QTest::newRow("composite") << QStringList(u"a;b=x;y"_s) << u"\"a;b = x;y\" "_s;
    QTest::newRow("empty key, empty value") << QStringList { u"=red"_s, u"a="_s } << u"\" = red; a = \" "_s;
    QTest::newRow("place markers are kept") << QStringList(u"%2=%1"_s) << u"\"%2 = %1\" "_s;
    QTest::newRow("empty") << QStringList() << u"\"\" "_s;
}

void tst_RVArticleVariants::debugOutput()
{
    QFETCH(QStringList, stored);
    QString text;
    QDebug(&text) << variants(stored);
    QTEST(text, "expected");
}

void tst_RVArticleVariants::debugSpacing()
{
    QString text;
    QDebug(&text) << variants({ u"a=x"_s }) << 17;
    QCOMPARE(text, u"\"a = x\" 17 "_s);
    text.clear();
    QDebug(&text).noquote().nospace() << variants({ u"a=x"_s }) << 17;
    QCOMPARE(text, u"a = x17"_s);
}

QTEST_GUILESS_MAIN(tst_RVArticleVariants)
#include "tst_RVArticleVariants.moc"
