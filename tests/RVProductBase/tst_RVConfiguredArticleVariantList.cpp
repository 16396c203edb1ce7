#include "NameSpaces.h"

#include <RVProductBase/RVConfiguredArticleVariantList.h>

#include <QDebug>
#include <QDomDocument>
#include <QTest>

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The options, each as "key:value", invalid ones included.
RVConfiguredArticleVariantList list(const QStringList &texts)
{
    RVConfiguredArticleVariantList result;
    for (const QString &text : texts)
        result.append(RVConfiguredArticleVariant(text));
    return result;
}

QStringList texts(const RVConfiguredArticleVariantList &list)
{
    QStringList result;
    for (const RVConfiguredArticleVariant &option : list)
        result += option.key() + u':' + option.value();
    return result;
}

QStringList texts(const RVConfiguredArticleVariant &option)
{
    return { option.key() + u':' + option.value() };
}

/// The options, sorted by key.
QStringList entries(const RVArticleVariants &variants)
{
    QStringList result;
    for (const QString &key : variants.keys())
        result += key + u':' + variants.value(key);
    return result;
}

RVArticleVariants variants(const QStringList &entries)
{
    RVArticleVariants result;
    for (const QString &entry : entries)
        result.insert(entry.section(u':', 0, 0), entry.section(u':', 1));
    return result;
}

QDomElement product(const QString &content)
{
    static QDomDocument document;
    document.setContent(u"<product>%1</product>"_s.arg(content));
    return document.documentElement();
}

RVConfiguredArticleVariantList read(const QString &forms)
{
    return RVConfiguredArticleVariantList(product(u"<forms>%1</forms>"_s.arg(forms)));
}

const QString NAMED = u"<form key='alcolor' value='red' key_name='Farbe' value_name='Rot' editor_name='Roter Einband'/>"
                      "<form key='cutout' value='round' key_name='Stanzung' value_name='Rund' editor_name='Kreis'/>"
                      "<form key='alcolor' value='blue' key_name='Farbe' value_name='Blau' editor_name='Blauer'/>"
                      "<form key='alcolor' value='red' key_name='%2' value_name='%1' editor_name=''/>"_s;

}

class tst_RVConfiguredArticleVariantList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isPlainList();
    void startsEmpty();
    void createsFromVariant();
    void createsFromXml_data();
    void createsFromXml();
    void createsFromXmlWithNameSpaces();
    void createsFromXmlCompletely();
    void readingReplaces();
    void createsFromCSV_data();
    void createsFromCSV();
    void createsForProduction_data();
    void createsForProduction();
    void createsKeyAndValueOnly();
    void variantByKey_data();
    void variantByKey();
    void variantByValue_data();
    void variantByValue();
    void notAccountableVariant();
    void variant_data();
    void variant();
    void lookupsReturnCopies();
    void filters_data();
    void filters();
    void keys_data();
    void keys();
    void containsVariant_data();
    void containsVariant();
    void containsList_data();
    void containsList();
    void containsArticleVariants_data();
    void containsArticleVariants();
    void containsAtLeastOne_data();
    void containsAtLeastOne();
    void containsOnlyColorWhite_data();
    void containsOnlyColorWhite();
    void defaultVariants_data();
    void defaultVariants();
    void names_data();
    void names();
    void possibleBoxStyles_data();
    void possibleBoxStyles();
    void joinsForOrderTxt_data();
    void joinsForOrderTxt();
    void intersects_data();
    void intersects();
    void intersectsByDefaultWithoutTaking();
    void intersectsItself();
    void intersectingKeepsOwnElements();
    void copiesAreIndependent();
    void debugOutput_data();
    void debugOutput();
    void debugSpacing();
};

void tst_RVConfiguredArticleVariantList::isPlainList()
{
    QVERIFY((std::is_convertible_v<RVConfiguredArticleVariantList *, QList<RVConfiguredArticleVariant> *>));
    QVERIFY(!std::is_polymorphic_v<RVConfiguredArticleVariantList>);
    QCOMPARE(sizeof(RVConfiguredArticleVariantList), sizeof(QList<RVConfiguredArticleVariant>));
}

void tst_RVConfiguredArticleVariantList::startsEmpty()
{
    const RVConfiguredArticleVariantList empty;
    QVERIFY(empty.isEmpty());
    QVERIFY(RVConfiguredArticleVariantList(QDomElement()).isEmpty());
    QVERIFY(!empty.variantByKey(u""_s).isValid());
    QVERIFY(!empty.variantByValue(u""_s).isValid());
    QVERIFY(!empty.notAccountableVariant().isValid());
    QVERIFY(!empty.variant(RVArticleVariants()).isValid());
    QVERIFY(empty.filter(u"a"_s).isEmpty());
    QCOMPARE(empty.keys(), QStringList());
    QVERIFY(!empty.defaultVariants().isValid());
    QCOMPARE(empty.visibleNames(RVArticleVariants()), QStringList());
    QCOMPARE(empty.editorNames(RVArticleVariants()), QStringList());
    QVERIFY(empty.possibleBoxStyles().isEmpty());
    QCOMPARE(empty.joinForOrderTxt(), u""_s);
}

void tst_RVConfiguredArticleVariantList::createsFromVariant()
{
    QCOMPARE(texts(RVConfiguredArticleVariantList(RVConfiguredArticleVariant(u"a:x"_s))), QStringList(u"a:x"_s));
    QCOMPARE(texts(RVConfiguredArticleVariantList(RVConfiguredArticleVariant(u"a;b:x;y"_s))),
             QStringList(u"a;b:x;y"_s));
    QCOMPARE(RVConfiguredArticleVariantList(RVConfiguredArticleVariant()).size(), 0);
    QCOMPARE(RVConfiguredArticleVariantList(RVConfiguredArticleVariant(u":x"_s)).size(), 0);
    QCOMPARE(RVConfiguredArticleVariantList(RVConfiguredArticleVariant(u"a:"_s)).size(), 0);
}

void tst_RVConfiguredArticleVariantList::createsFromXml_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("document order, duplicates") << u"<forms><form key='b' value='y'/><form key='a' value='x'/>"
                                                   "<form key='b' value='y'/></forms>"_s
                                                << QStringList { u"b:y"_s, u"a:x"_s, u"b:y"_s };
    QTest::newRow("invalid ones") << u"<forms><form key='a'/><form value='x'/><form/><form key='' value='x'/>"
                                     "<form key='b' value='y'/></forms>"_s
                                  << QStringList(u"b:y"_s);
    QTest::newRow("other elements between") << u"<x/><forms>text<form key='a' value='x'/><other key='o' value='o'/>"
                                               "<!-- --><form key='b' value='y'/></forms>"_s
                                            << QStringList { u"a:x"_s, u"b:y"_s };
    QTest::newRow("only the first forms") << u"<forms><form key='a' value='x'/></forms>"
                                             "<forms><form key='b' value='y'/></forms>"_s
                                          << QStringList(u"a:x"_s);
    QTest::newRow("first forms empty") << u"<forms/><forms><form key='b' value='y'/></forms>"_s << QStringList();
    QTest::newRow("forms deeper down") << u"<x><forms><form key='a' value='x'/></forms></x>"_s << QStringList();
    QTest::newRow("form deeper down") << u"<forms><x><form key='a' value='x'/></x></forms>"_s << QStringList();
    QTest::newRow("forms within forms") << u"<forms><form key='a' value='x'/><forms><form key='b' value='y'/></forms>"
                                           "<form key='d' value='z'/></forms>"_s
                                        << QStringList { u"a:x"_s, u"d:z"_s };
    QTest::newRow("form without forms") << u"<form key='a' value='x'/>"_s << QStringList();
    QTest::newRow("instructions of the same names") << u"<?forms a?><forms><?form key='b' value='y'?>"
                                                       "<form key='a' value='x'/></forms>"_s
                                                    << QStringList(u"a:x"_s);
    QTest::newRow("other letter case") << u"<Forms><form key='a' value='x'/></Forms>"
                                          "<forms><Form key='a' value='x'/></forms>"_s
                                       << QStringList();
    QTest::newRow("nothing") << u""_s << QStringList();
}

void tst_RVConfiguredArticleVariantList::createsFromXml()
{
    QFETCH(QString, content);
    const QDomElement element = product(content);
    QTEST(texts(RVConfiguredArticleVariantList(element)), "expected");
    RVConfiguredArticleVariantList list;
    list.readVariants(element);
    QTEST(texts(list), "expected");
}

// Prefixes do not count if the document was parsed with name spaces.
void tst_RVConfiguredArticleVariantList::createsFromXmlWithNameSpaces()
{
    const QDomDocument document = parseWithNameSpaces(
            u"<product xmlns:shop='urn:shop'><shop:forms><shop:form key='a' value='x'/><form key='b' value='y'/>"
            "<shop:form key='d' value='z'/></shop:forms><forms/></product>"_s);
    const QStringList expected { u"a:x"_s, u"b:y"_s, u"d:z"_s };
    QCOMPARE(texts(RVConfiguredArticleVariantList(document.documentElement())), expected);
}

void tst_RVConfiguredArticleVariantList::createsFromXmlCompletely()
{
    const RVConfiguredArticleVariantList list = read(
            u"<form key='a' key_name='kn' value='x' value_name='vn' editor_name='en' preview='p' color='#112233' "
            "not_accountable='true'/>"_s);
    QCOMPARE(list.size(), 1);
    QCOMPARE(list.at(0).keyName(), u"kn"_s);
    QCOMPARE(list.at(0).visibleName(), u"vn"_s);
    QCOMPARE(list.at(0).editorName(), u"en"_s);
    QCOMPARE(list.at(0).preview(), u"p"_s);
    QCOMPARE(list.at(0).color(), QColor(0x11, 0x22, 0x33));
    QCOMPARE(list.at(0).isDefault(), false);
    QCOMPARE(list.at(0).isNotAccountable(), true);
}

void tst_RVConfiguredArticleVariantList::readingReplaces()
{
    RVConfiguredArticleVariantList changed = list({ u"a:x"_s, u"b:y"_s });
    changed.readVariants(product(u"<forms><form key='d' value='z'/></forms>"_s));
    QCOMPARE(texts(changed), QStringList(u"d:z"_s));
    changed.readVariants(product(u""_s));
    QCOMPARE(texts(changed), QStringList());
    changed = list({ u"a:x"_s });
    changed.readVariants(QDomElement());
    QCOMPARE(texts(changed), QStringList());
}

void tst_RVConfiguredArticleVariantList::createsFromCSV_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("two") << u"alcolor:red,pocketcolor:white"_s
                         << QStringList { u"alcolor:red"_s, u"pocketcolor:white"_s };
    QTest::newRow("order and duplicates")
            << u"b:y,a:x,b:y,b:z"_s << QStringList { u"b:y"_s, u"a:x"_s, u"b:y"_s, u"b:z"_s };
    QTest::newRow("junk") << u"alcolor:red,junk"_s << QStringList(u"alcolor:red"_s);
    QTest::newRow("two colons") << u"a:b:x"_s << QStringList();
    QTest::newRow("empty value") << u"a:"_s << QStringList();
    QTest::newRow("empty key") << u":x"_s << QStringList();
    QTest::newRow("other separators") << u"a|x,b+y"_s << QStringList();
    QTest::newRow("composite") << u"a;b:x;y"_s << QStringList(u"a;b:x;y"_s);
    QTest::newRow("blanks are kept") << u"a:x, b:y"_s << QStringList { u"a:x"_s, u" b:y"_s };
    QTest::newRow("empty pieces") << u",a:x,,b:y,"_s << QStringList { u"a:x"_s, u"b:y"_s };
    QTest::newRow("commas only") << u",,"_s << QStringList();
    QTest::newRow("empty") << u""_s << QStringList();
    QTest::newRow("null") << QString() << QStringList();
}

void tst_RVConfiguredArticleVariantList::createsFromCSV()
{
    QFETCH(QString, text);
    QTEST(texts(RVConfiguredArticleVariantList::createFromCSV(text)), "expected");
}

void tst_RVConfiguredArticleVariantList::createsForProduction_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("single") << u"a"_s << u"1"_s << QStringList(u"a:1"_s);
    QTest::newRow("two") << u"b;a"_s << u"1;2"_s << QStringList { u"b:1"_s, u"a:2"_s };
    QTest::newRow("same key twice") << u"a;a"_s << u"1;2"_s << QStringList { u"a:1"_s, u"a:2"_s };
    QTest::newRow("more keys") << u"a;b;x"_s << u"1;2"_s << QStringList();
    QTest::newRow("more values") << u"a;b"_s << u"1;2;3"_s << QStringList();
    QTest::newRow("empty piece of the key") << u"a;;b"_s << u"1;2"_s << QStringList { u"a:1"_s, u"b:2"_s };
    QTest::newRow("empty piece of the value") << u"a;b"_s << u";1;;2;"_s << QStringList { u"a:1"_s, u"b:2"_s };
    QTest::newRow("comma does not split") << u"a,b"_s << u"1,2"_s << QStringList(u"a,b:1,2"_s);
    QTest::newRow("empty key") << u""_s << u"1"_s << QStringList();
    QTest::newRow("empty value") << u"a"_s << u""_s << QStringList();
    QTest::newRow("semicolons only") << u";"_s << u";"_s << QStringList();
    QTest::newRow("empty") << u""_s << u""_s << QStringList();
}

void tst_RVConfiguredArticleVariantList::createsForProduction()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    const RVConfiguredArticleVariant composite(key, value);
    QTEST(texts(RVConfiguredArticleVariantList::createForProduction(composite)), "expected");
    QTEST(texts(RVConfiguredArticleVariantList::createFromReduced(composite)), "expected");
}

void tst_RVConfiguredArticleVariantList::createsKeyAndValueOnly()
{
    const RVConfiguredArticleVariant composite =
            read(u"<form key='a;b' key_name='kn' value='1;2' value_name='vn' editor_name='en' preview='p' "
                 "color='#112233' not_accountable='true'/>"_s)
                    .constFirst();
    for (const RVConfiguredArticleVariantList &expanded :
         { RVConfiguredArticleVariantList::createForProduction(composite),
           RVConfiguredArticleVariantList::createFromReduced(composite) }) {
        QCOMPARE(texts(expanded), (QStringList { u"a:1"_s, u"b:2"_s }));
        for (const RVConfiguredArticleVariant &option : expanded) {
            QVERIFY(option.keyName().isNull());
            QVERIFY(option.visibleName().isNull());
            QVERIFY(option.editorName().isNull());
            QVERIFY(option.preview().isNull());
            QVERIFY(!option.color().isValid());
            QVERIFY(option.isDefault());
            QVERIFY(!option.isNotAccountable());
        }
    }
}

void tst_RVConfiguredArticleVariantList::variantByKey_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("first") << u"a"_s << QStringList(u"a:x"_s);
    QTest::newRow("later, first of two") << u"b"_s << QStringList(u"b:y"_s);
    QTest::newRow("other letter case") << u"B"_s << QStringList(u":"_s);
    QTest::newRow("value") << u"x"_s << QStringList(u":"_s);
    QTest::newRow("unknown") << u"d"_s << QStringList(u":"_s);
    QTest::newRow("empty") << u""_s << QStringList(u":"_s);
}

void tst_RVConfiguredArticleVariantList::variantByKey()
{
    QFETCH(QString, key);
    QTEST(texts(list({ u"a:x"_s, u"b:y"_s, u"b:x"_s }).variantByKey(key)), "expected");
}

void tst_RVConfiguredArticleVariantList::variantByValue_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("later") << u"y"_s << QStringList(u"b:y"_s);
    QTest::newRow("first of two") << u"x"_s << QStringList(u"a:x"_s);
    QTest::newRow("other letter case") << u"X"_s << QStringList(u":"_s);
    QTest::newRow("key") << u"a"_s << QStringList(u":"_s);
    QTest::newRow("unknown") << u"z"_s << QStringList(u":"_s);
    QTest::newRow("empty") << u""_s << QStringList(u":"_s);
}

void tst_RVConfiguredArticleVariantList::variantByValue()
{
    QFETCH(QString, value);
    QTEST(texts(list({ u"a:x"_s, u"b:y"_s, u"b:x"_s }).variantByValue(value)), "expected");
}

void tst_RVConfiguredArticleVariantList::notAccountableVariant()
{
    QCOMPARE(texts(read(u"<form key='a' value='x'/><form key='b' value='y' not_accountable='true'/>"
                        "<form key='d' value='z' not_accountable='true'/>"_s)
                           .notAccountableVariant()),
             QStringList(u"b:y"_s));
    const RVConfiguredArticleVariant none = read(u"<form key='a' value='x'/><form key='b' value='notAccountable'/>"_s)
                                                    .notAccountableVariant();
    QVERIFY(!none.isValid());
    QVERIFY(none.key().isNull());
    QVERIFY(none.isDefault());
}

void tst_RVConfiguredArticleVariantList::variant_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("variants");
    QTest::addColumn<QStringList>("expected");
    const QStringList options = { u"a:x"_s, u"b:y"_s, u"a:z"_s };
    QTest::newRow("one") << options << QStringList(u"a:z"_s) << QStringList(u"a:z"_s);
    QTest::newRow("first in the list's order")
            << options << QStringList { u"a:z"_s, u"b:y"_s } << QStringList(u"b:y"_s);
    QTest::newRow("more keys than options") << options << QStringList { u"b:y"_s, u"d:w"_s } << QStringList(u"b:y"_s);
    QTest::newRow("other letter case") << options << QStringList(u"a:X"_s) << QStringList(u":"_s);
    QTest::newRow("value of another key") << options << QStringList(u"a:y"_s) << QStringList(u":"_s);
    QTest::newRow("none asked") << options << QStringList() << QStringList(u":"_s);
    QTest::newRow("empty value matches absent key")
            << QStringList { u"a:x"_s, u"b:"_s } << QStringList(u"d:w"_s) << QStringList(u"b:"_s);
    QTest::newRow("empty value matches empty value")
            << QStringList { u"a:x"_s, u"b:"_s } << QStringList(u"b:"_s) << QStringList(u"b:"_s);
}

void tst_RVConfiguredArticleVariantList::variant()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, variants);
    QTEST(texts(list(options).variant(::variants(variants))), "expected");
}

void tst_RVConfiguredArticleVariantList::lookupsReturnCopies()
{
    const RVConfiguredArticleVariantList source = read(u"<form key='a' value='x' preview='p'/>"_s);
    RVConfiguredArticleVariant found = source.variantByKey(u"a"_s);
    QCOMPARE(found.preview(), u"p"_s);
    found.merge(RVConfiguredArticleVariant());
    QCOMPARE(found.preview(), u""_s);
    QCOMPARE(source.at(0).preview(), u"p"_s);
}

void tst_RVConfiguredArticleVariantList::filters_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("several in order") << u"b"_s << QStringList { u"b:z"_s, u"b:y"_s, u"b:z"_s };
    QTest::newRow("one") << u"a"_s << QStringList(u"a:b"_s);
    QTest::newRow("other letter case") << u"A"_s << QStringList();
    QTest::newRow("unknown") << u"d"_s << QStringList();
    QTest::newRow("empty") << u""_s << QStringList();
}

void tst_RVConfiguredArticleVariantList::filters()
{
    QFETCH(QString, key);
    const RVConfiguredArticleVariantList source = list({ u"b:z"_s, u"a:b"_s, u"b:y"_s, u"b:z"_s });
    QTEST(texts(source.filter(key)), "expected");
    QCOMPARE(source.size(), 4);
}

void tst_RVConfiguredArticleVariantList::keys_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("sorted and distinct") << QStringList { u"b:x"_s, u"a:x"_s, u"b:y"_s, u"b:x"_s }
                                         << QStringList { u"a"_s, u"b"_s };
    QTest::newRow("letter case") << QStringList { u"a:x"_s, u"B:x"_s, u"b:x"_s, u"A:x"_s }
                                 << QStringList { u"A"_s, u"B"_s, u"a"_s, u"b"_s };
    QTest::newRow("composite is one key") << QStringList { u"b;a:x;y"_s, u"a:x"_s } << QStringList { u"a"_s, u"b;a"_s };
    QTest::newRow("empty") << QStringList() << QStringList();
}

void tst_RVConfiguredArticleVariantList::keys()
{
    QFETCH(QStringList, options);
    QTEST(list(options).keys(), "expected");
}

void tst_RVConfiguredArticleVariantList::containsVariant_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<bool>("expected");
    QTest::newRow("first") << u"alcolor:red"_s << true;
    QTest::newRow("later") << u"alcolor:blue"_s << true;
    QTest::newRow("value of another key") << u"cutout:red"_s << false;
    QTest::newRow("other letter case") << u"alcolor:Red"_s << false;
    QTest::newRow("invalid") << u""_s << false;
}

void tst_RVConfiguredArticleVariantList::containsVariant()
{
    QFETCH(QString, option);
    QTEST(read(NAMED).contains(RVConfiguredArticleVariant(option)), "expected");
    QVERIFY(!RVConfiguredArticleVariantList().contains(RVConfiguredArticleVariant(option)));
}

void tst_RVConfiguredArticleVariantList::containsList_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("other");
    QTest::addColumn<bool>("expected");
    const QStringList options = { u"a:x"_s, u"b:y"_s };
    QTest::newRow("same") << options << options << true;
    QTest::newRow("other order, duplicates") << options << QStringList { u"b:y"_s, u"a:x"_s, u"b:y"_s } << true;
    QTest::newRow("part") << options << QStringList(u"b:y"_s) << true;
    QTest::newRow("more") << options << QStringList { u"a:x"_s, u"b:y"_s, u"d:z"_s } << false;
    QTest::newRow("other value") << options << QStringList { u"a:x"_s, u"b:x"_s } << false;
    QTest::newRow("other empty") << options << QStringList() << true;
    QTest::newRow("this empty") << QStringList() << QStringList(u"a:x"_s) << false;
    QTest::newRow("both empty") << QStringList() << QStringList() << true;
}

void tst_RVConfiguredArticleVariantList::containsList()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, other);
    const RVConfiguredArticleVariantList tested = list(options);
    QTEST(tested.contains(list(other)), "expected");
    QVERIFY(tested.contains(tested));
}

void tst_RVConfiguredArticleVariantList::containsArticleVariants_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("variants");
    QTest::addColumn<bool>("expected");
    const QStringList options = { u"a:x"_s, u"a:z"_s, u"b:y"_s };
    QTest::newRow("one") << options << QStringList(u"a:z"_s) << true;
    QTest::newRow("two") << options << QStringList { u"a:x"_s, u"b:y"_s } << true;
    QTest::newRow("one of two differs") << options << QStringList { u"a:x"_s, u"b:x"_s } << false;
    QTest::newRow("first of two differs") << options << QStringList { u"a:y"_s, u"b:y"_s } << false;
    QTest::newRow("unknown key") << options << QStringList(u"d:x"_s) << false;
    QTest::newRow("other letter case") << options << QStringList(u"a:X"_s) << false;
    QTest::newRow("empty value of an unknown key") << options << QStringList(u"d:"_s) << false;
    QTest::newRow("empty value among the options") << QStringList(u"d:"_s) << QStringList(u"d:"_s) << true;
    QTest::newRow("nothing asked for") << options << QStringList() << true;
    QTest::newRow("empty list") << QStringList() << QStringList(u"a:x"_s) << false;
    QTest::newRow("empty list, nothing asked for") << QStringList() << QStringList() << true;
}

void tst_RVConfiguredArticleVariantList::containsArticleVariants()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, variants);
    QTEST(list(options).contains(::variants(variants)), "expected");
    QTEST(list(options).contains(::variants(variants), false), "expected");
    QTEST(list(options).contains(::variants(variants), true), "expected");
}

void tst_RVConfiguredArticleVariantList::containsAtLeastOne_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("other");
    QTest::addColumn<bool>("expected");
    const QStringList options = { u"a:x"_s, u"b:y"_s };
    QTest::newRow("one of two") << options << QStringList { u"d:z"_s, u"b:y"_s } << true;
    QTest::newRow("all") << options << options << true;
    QTest::newRow("none") << options << QStringList { u"a:y"_s, u"b:x"_s } << false;
    QTest::newRow("other letter case") << options << QStringList(u"A:x"_s) << false;
    QTest::newRow("other empty") << options << QStringList() << true;
    QTest::newRow("this empty") << QStringList() << options << true;
    QTest::newRow("both empty") << QStringList() << QStringList() << true;
}

void tst_RVConfiguredArticleVariantList::containsAtLeastOne()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, other);
    const RVConfiguredArticleVariantList tested = list(options);
    QTEST(tested.containsAtLeastOne(list(other)), "expected");
    QVERIFY(tested.containsAtLeastOne(tested));
}

void tst_RVConfiguredArticleVariantList::containsOnlyColorWhite_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<bool>("expected");
    QTest::newRow("white") << QStringList(u"color:white"_s) << true;
    QTest::newRow("white and more") << QStringList { u"color:white"_s, u"a:x"_s } << false;
    QTest::newRow("white twice") << QStringList { u"color:white"_s, u"color:white"_s } << false;
    QTest::newRow("black") << QStringList(u"color:black"_s) << false;
    QTest::newRow("other key") << QStringList(u"alcolor:white"_s) << false;
    QTest::newRow("letter case of the key") << QStringList(u"Color:white"_s) << false;
    QTest::newRow("letter case of the value") << QStringList(u"color:White"_s) << false;
    QTest::newRow("empty") << QStringList() << false;
}

void tst_RVConfiguredArticleVariantList::containsOnlyColorWhite()
{
    QFETCH(QStringList, options);
    QTEST(list(options).containsOnlyColorWhite(), "expected");
}

void tst_RVConfiguredArticleVariantList::defaultVariants_data()
{
    QTest::addColumn<QString>("forms");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("defaults only") << u"<form key='a' value='x'/><form key='a' value='y' preselected='true'/>"
                                      "<form key='b' value='z' preselected='true'/><form key='d' value='w'/>"_s
                                   << QStringList { u"a:y"_s, u"b:z"_s };
    QTest::newRow("later default wins") << u"<form key='a' value='x' preselected='true'/>"
                                           "<form key='a' value='y' preselected='true'/><form key='a' value='z'/>"_s
                                        << QStringList(u"a:y"_s);
    QTest::newRow("no default") << u"<form key='b' value='y'/><form key='a' value='x'/><form key='b' value='z'/>"
                                   "<form key='a' value='w'/>"_s
                                << QStringList { u"a:x"_s, u"b:y"_s };
    QTest::newRow("composite stays together") << u"<form key='a;b' value='x;y'/>"_s << QStringList(u"a;b:x;y"_s);
    QTest::newRow("empty") << u""_s << QStringList();
}

void tst_RVConfiguredArticleVariantList::defaultVariants()
{
    QFETCH(QString, forms);
    QTEST(entries(read(forms).defaultVariants()), "expected");
    QCOMPARE(entries(list({ u"a:x"_s, u"b:y"_s, u"a:z"_s }).defaultVariants()), (QStringList { u"a:z"_s, u"b:y"_s }));
}

void tst_RVConfiguredArticleVariantList::names_data()
{
    QTest::addColumn<QStringList>("variants");
    QTest::addColumn<QStringList>("visibleNames");
    QTest::addColumn<QStringList>("editorNames");
    QTest::newRow("one") << QStringList(u"alcolor:blue"_s) << QStringList(u"Farbe: Blau"_s) << QStringList(u"Blauer"_s);
    QTest::newRow("in the list's order") << QStringList { u"alcolor:blue"_s, u"cutout:round"_s }
                                         << QStringList { u"Stanzung: Rund"_s, u"Farbe: Blau"_s }
                                         << QStringList { u"Kreis"_s, u"Blauer"_s };
    QTest::newRow("two options, place markers, no editor name")
            << QStringList(u"alcolor:red"_s) << QStringList { u"Farbe: Rot"_s, u"%2: %1"_s }
            << QStringList { u"Roter Einband"_s, u""_s };
    QTest::newRow("unknown") << QStringList { u"alcolor:Blue"_s, u"x:round"_s } << QStringList() << QStringList();
    QTest::newRow("none asked") << QStringList() << QStringList() << QStringList();
}

void tst_RVConfiguredArticleVariantList::names()
{
    QFETCH(QStringList, variants);
    QTEST(read(NAMED).visibleNames(::variants(variants)), "visibleNames");
    QTEST(read(NAMED).editorNames(::variants(variants)), "editorNames");
    QCOMPARE(list({ u"a:x"_s, u"b:"_s }).visibleNames(RVArticleVariants()), QStringList(u": "_s));
    QCOMPARE(list({ u"a:x"_s, u"b:"_s }).editorNames(RVArticleVariants()), QStringList(u""_s));
    QCOMPARE(list({ u"b:"_s }).visibleNames(RVArticleVariants(u"b:y"_s)), QStringList());
}

void tst_RVConfiguredArticleVariantList::possibleBoxStyles_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("two boxes, three photos") << QStringList {
        u"coverphoto:p2"_s, u"boxstyle:b2"_s, u"alcolor:red"_s, u"boxstyle:b1"_s, u"coverphoto:p1"_s, u"coverphoto:p3"_s
    } << QStringList { u"boxstyle:b2,coverphoto:p2"_s, u"boxstyle:b2,coverphoto:p1"_s, u"boxstyle:b2,coverphoto:p3"_s,
                       u"boxstyle:b1,coverphoto:p2"_s, u"boxstyle:b1,coverphoto:p1"_s, u"boxstyle:b1,coverphoto:p3"_s };
    QTest::newRow("one box, one photo") << QStringList { u"boxstyle:b"_s, u"coverphoto:p"_s }
                                        << QStringList(u"boxstyle:b,coverphoto:p"_s);
    QTest::newRow("no photos") << QStringList { u"boxstyle:b2"_s, u"alcolor:red"_s, u"boxstyle:b1"_s }
                               << QStringList { u"boxstyle:b2"_s, u"boxstyle:b1"_s };
    QTest::newRow("duplicates") << QStringList { u"boxstyle:b"_s, u"boxstyle:b"_s }
                                << QStringList { u"boxstyle:b"_s, u"boxstyle:b"_s };
    QTest::newRow("no boxes") << QStringList { u"coverphoto:p"_s, u"alcolor:red"_s } << QStringList();
    QTest::newRow("other letter case") << QStringList { u"BoxStyle:b"_s, u"coverphoto:p"_s } << QStringList();
}

void tst_RVConfiguredArticleVariantList::possibleBoxStyles()
{
    QFETCH(QStringList, options);
    QStringList styles;
    for (const RVArticleVariants &style : list(options).possibleBoxStyles())
        styles += entries(style).join(u',');
    QTEST(styles, "expected");
}

void tst_RVConfiguredArticleVariantList::joinsForOrderTxt_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("expected");
    QTest::newRow("composite and single") << QStringList { u"a;b:1;2"_s, u"d:3"_s } << u"a:1;b:2;d:3"_s;
    QTest::newRow("order and duplicates") << QStringList { u"d:3"_s, u"b;a:1;2"_s, u"d:3"_s } << u"d:3;b:1;a:2;d:3"_s;
    QTest::newRow("uneven composite") << QStringList { u"a;b:1"_s, u"d:3"_s, u"e:4;5"_s } << u"d:3"_s;
    QTest::newRow("empty pieces") << QStringList(u";a;;b:1;2;"_s) << u"a:1;b:2"_s;
    QTest::newRow("invalid") << QStringList { u":1"_s, u"a:"_s, u"d:3"_s } << u"d:3"_s;
    QTest::newRow("place markers are kept") << QStringList(u"%2:%1"_s) << u"%2:%1"_s;
    QTest::newRow("empty") << QStringList() << u""_s;
}

void tst_RVConfiguredArticleVariantList::joinsForOrderTxt()
{
    QFETCH(QStringList, options);
    QTEST(list(options).joinForOrderTxt(), "expected");
}

void tst_RVConfiguredArticleVariantList::intersects_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("other");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QStringList>("expectedTaking");
    const QStringList options = { u"b:y"_s, u"a:x"_s, u"d:z"_s, u"b:y"_s };
    QTest::newRow("own order, duplicates")
            << options << QStringList { u"e:w"_s, u"d:z"_s, u"b:y"_s } << QStringList { u"b:y"_s, u"d:z"_s, u"b:y"_s }
            << QStringList { u"b:y"_s, u"d:z"_s, u"b:y"_s };
    QTest::newRow("nothing common") << options << QStringList { u"b:z"_s, u"A:x"_s } << QStringList() << QStringList();
    QTest::newRow("other empty") << options << QStringList() << QStringList() << QStringList();
    QTest::newRow("this empty") << QStringList() << options << QStringList() << options;
    QTest::newRow("both empty") << QStringList() << QStringList() << QStringList() << QStringList();
}

void tst_RVConfiguredArticleVariantList::intersects()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, other);
    const RVConfiguredArticleVariantList argument = list(other);
    RVConfiguredArticleVariantList changed = list(options);
    changed.intersect(argument, false);
    QTEST(texts(changed), "expected");
    changed = list(options);
    changed.intersect(argument, true);
    QTEST(texts(changed), "expectedTaking");
    changed.append(RVConfiguredArticleVariant(u"new:option"_s));
    QCOMPARE(texts(argument), other);
}

void tst_RVConfiguredArticleVariantList::intersectsByDefaultWithoutTaking()
{
    RVConfiguredArticleVariantList changed;
    changed.intersect(list({ u"a:x"_s }));
    QVERIFY(changed.isEmpty());
}

void tst_RVConfiguredArticleVariantList::intersectsItself()
{
    RVConfiguredArticleVariantList changed = list({ u"b:y"_s, u"a:x"_s, u"b:y"_s });
    changed.intersect(changed, true);
    QCOMPARE(texts(changed), (QStringList { u"b:y"_s, u"a:x"_s, u"b:y"_s }));
    changed.clear();
    changed.intersect(changed, true);
    QVERIFY(changed.isEmpty());
}

void tst_RVConfiguredArticleVariantList::intersectingKeepsOwnElements()
{
    RVConfiguredArticleVariantList changed = read(NAMED);
    changed.intersect(list({ u"cutout:round"_s }));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).visibleName(), u"Rund"_s);
}

void tst_RVConfiguredArticleVariantList::copiesAreIndependent()
{
    const RVConfiguredArticleVariantList source = list({ u"a:x"_s, u"b:y"_s });
    RVConfiguredArticleVariantList copy = source;
    copy.intersect(list({ u"b:y"_s }));
    QCOMPARE(texts(copy), QStringList(u"b:y"_s));
    RVConfiguredArticleVariantList reread = source;
    reread.readVariants(product(u""_s));
    QVERIFY(reread.isEmpty());
    QCOMPARE(texts(source), (QStringList { u"a:x"_s, u"b:y"_s }));
    const RVConfiguredArticleVariantList moved = std::move(copy);
    QCOMPARE(texts(moved), QStringList(u"b:y"_s));
}

void tst_RVConfiguredArticleVariantList::debugOutput_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one") << QStringList(
            u"a:b"_s) << u"RVConfiguredArticleVariantList: [1: \"RVConfiguredArticleVariant: key: a value: b \"  ] "_s;
    QTest::newRow("two") << QStringList { u"b:y"_s, u"a:"_s }
                         << u"RVConfiguredArticleVariantList: [1: \"RVConfiguredArticleVariant: key: b value: y \" "
                            "2: \"RVConfiguredArticleVariant: key: a value:  \"  ] "_s;
    QTest::newRow("empty") << QStringList() << u"RVConfiguredArticleVariantList: [ ] "_s;
}

void tst_RVConfiguredArticleVariantList::debugOutput()
{
    QFETCH(QStringList, options);
    QString text;
    QDebug(&text) << list(options);
    QTEST(text, "expected");
}

void tst_RVConfiguredArticleVariantList::debugSpacing()
{
    QString text;
    QDebug(&text).noquote().nospace() << 1 << list({ u"a:b"_s }) << 2 << 3;
    QCOMPARE(text, u"1RVConfiguredArticleVariantList: [1: RVConfiguredArticleVariant: key: a value: b   ] 2 3 "_s);
    text.clear();
    QDebug(&text).nospace() << RVConfiguredArticleVariantList() << 2;
    QCOMPARE(text, u"RVConfiguredArticleVariantList: [ ] 2 "_s);
}

QTEST_GUILESS_MAIN(tst_RVConfiguredArticleVariantList)
#include "tst_RVConfiguredArticleVariantList.moc"
