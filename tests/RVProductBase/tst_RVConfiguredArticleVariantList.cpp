#include <RVProductBase/RVConfiguredArticleVariantList.h>

#include <QDebug>
#include <QDomDocument>
#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

using List = RVConfiguredArticleVariantList;
using Variant = RVConfiguredArticleVariant;

/// From forms, each given by its attributes.
List fromForms(const QStringList &forms)
{
    QString xml = u"<product><forms>"_s;
    for (const QString &attributes : forms)
        xml += u"<form %1/>"_s.arg(attributes);
    QDomDocument document;
    document.setContent(QString(xml + u"</forms></product>"_s));
    return List(document.documentElement());
}

List fromCsv(const QString &text)
{
    return List::createFromCSV(text);
}

QStringList texts(const List &list)
{
    QStringList result;
    for (const Variant &variant : list)
        result += variant.toString();
    return result;
}

RVArticleVariants variants(const QStringList &pairs)
{
    RVArticleVariants result;
    for (const QString &pair : pairs)
        result.insert(pair.section(u':', 0, 0), pair.section(u':', 1));
    return result;
}

QStringList sortedTexts(const RVArticleVariants &variants)
{
    QStringList result;
    for (const QString &key : variants.keys())
        result += key + u':' + variants.value(key);
    return result;
}

}

class tst_RVConfiguredArticleVariantList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void readsXml_data();
    void readsXml();
    void readsAnew();
    void readsCsv_data();
    void readsCsv();
    void expands_data();
    void expands();
    void expandsKeyAndValueOnly();
    void findsByKeyAndValue();
    void findsNotAccountable();
    void findsMatching_data();
    void findsMatching();
    void filters();
    void keys();
    void containsVariants();
    void containsLists_data();
    void containsLists();
    void containsConfigurations_data();
    void containsConfigurations();
    void containsOnlyColorWhite_data();
    void containsOnlyColorWhite();
    void defaults_data();
    void defaults();
    void names();
    void namesOfEmptyValues();
    void boxStyles_data();
    void boxStyles();
    void joins_data();
    void joins();
    void intersects_data();
    void intersects();
    void intersectsItself();
    void debugOutput_data();
    void debugOutput();
};

void tst_RVConfiguredArticleVariantList::construction()
{
    QVERIFY(List().isEmpty());
    QCOMPARE(texts(List(Variant(u"a"_s, u"1"_s))), QStringList { u"a:1"_s });
    QVERIFY(List(Variant(u"a"_s, u""_s)).isEmpty());
    QVERIFY(List(Variant()).isEmpty());
    QVERIFY(List(QDomElement()).isEmpty());
    QVERIFY(!std::is_polymorphic_v<List>);
}

void tst_RVConfiguredArticleVariantList::readsXml_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("options");
    const QString a = u"<form key='a' value='1'/>"_s;
    const QString b = u"<form key='b' value='2'/>"_s;
    QTest::newRow("in order, with duplicates") << u"<forms>%1%2%1</forms>"_s.arg(b, a)
                                               << QStringList { u"b:2"_s, u"a:1"_s, u"b:2"_s };
    QTest::newRow("invalid ones left out") << u"<forms><form key='x'/>%1<form value='y'/><form/></forms>"_s.arg(a)
                                           << QStringList { u"a:1"_s };
    QTest::newRow("other elements between") << u"<forms><x/>%1text<forms>%2</forms>%2</forms>"_s.arg(a, b)
                                            << QStringList { u"a:1"_s, u"b:2"_s };
    QTest::newRow("first forms only") << u"<forms>%1</forms><forms>%2</forms>"_s.arg(a, b) << QStringList { u"a:1"_s };
    QTest::newRow("first forms empty") << u"<forms/><forms>%1</forms>"_s.arg(a) << QStringList();
    QTest::newRow("form outside") << a << QStringList();
    QTest::newRow("deeper") << u"<x><forms>%1</forms></x>"_s.arg(a) << QStringList();
    QTest::newRow("nothing") << u""_s << QStringList();
}

void tst_RVConfiguredArticleVariantList::readsXml()
{
    QFETCH(QString, content);
    QDomDocument document;
    QVERIFY(document.setContent(u"<product>%1</product>"_s.arg(content)));
    QTEST(texts(List(document.documentElement())), "options");
}

void tst_RVConfiguredArticleVariantList::readsAnew()
{
    List list = fromCsv(u"old:1"_s);
    QDomDocument document;
    document.setContent(u"<product><forms><form key='a' value='1'/></forms></product>"_s);
    list.readVariants(document.documentElement());
    QCOMPARE(texts(list), QStringList { u"a:1"_s });
    list.readVariants(QDomElement());
    QVERIFY(list.isEmpty());
}

void tst_RVConfiguredArticleVariantList::readsCsv_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("options");
    QTest::newRow("two") << u"alcolor:red,pocketcolor:white"_s
                         << QStringList { u"alcolor:red"_s, u"pocketcolor:white"_s };
    QTest::newRow("junk") << u"alcolor:red,junk"_s << QStringList { u"alcolor:red"_s };
    QTest::newRow("two colons") << u"a:b:x"_s << QStringList();
    QTest::newRow("no value") << u"a:"_s << QStringList();
    QTest::newRow("no key") << u":1"_s << QStringList();
    QTest::newRow("duplicates") << u"a:1,a:1,a:2"_s << QStringList { u"a:1"_s, u"a:1"_s, u"a:2"_s };
    QTest::newRow("blanks stay") << u"a:1, b:2"_s << QStringList { u"a:1"_s, u" b:2"_s };
    QTest::newRow("empty") << u""_s << QStringList();
    QTest::newRow("commas only") << u",,"_s << QStringList();
}

void tst_RVConfiguredArticleVariantList::readsCsv()
{
    QFETCH(QString, text);
    QTEST(texts(fromCsv(text)), "options");
}

void tst_RVConfiguredArticleVariantList::expands_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("options");
    QTest::newRow("single") << u"a"_s << u"1"_s << QStringList { u"a:1"_s };
    QTest::newRow("two") << u"b;a"_s << u"1;2"_s << QStringList { u"b:1"_s, u"a:2"_s };
    QTest::newRow("same key twice") << u"a;a"_s << u"1;2"_s << QStringList { u"a:1"_s, u"a:2"_s };
    QTest::newRow("empty pieces are skipped first") << u"a;;b"_s << u"1;2"_s << QStringList { u"a:1"_s, u"b:2"_s };
    QTest::newRow("empty pieces on both sides") << u";a"_s << u"1;"_s << QStringList { u"a:1"_s };
    QTest::newRow("more keys") << u"a;b;x"_s << u"1;2"_s << QStringList();
    QTest::newRow("more values") << u"a"_s << u"1;2"_s << QStringList();
    QTest::newRow("separators only") << u";"_s << u";"_s << QStringList();
    QTest::newRow("nothing") << u""_s << u""_s << QStringList();
}

void tst_RVConfiguredArticleVariantList::expands()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QTEST(texts(List::createForProduction(Variant(key, value))), "options");
    QTEST(texts(List::createFromReduced(Variant(key, value))), "options");
}

void tst_RVConfiguredArticleVariantList::expandsKeyAndValueOnly()
{
    const Variant form = fromForms({ u"key='a;b' value='1;2' key_name='kn' value_name='vn' color='red' "
                                     "preview='p' not_accountable='1'"_s })
                                 .first();
    for (const Variant &variant : List::createForProduction(form)) {
        QVERIFY(variant.keyName().isEmpty());
        QVERIFY(variant.visibleName().isEmpty());
        QVERIFY(variant.preview().isEmpty());
        QVERIFY(!variant.color().isValid());
        QVERIFY(!variant.isNotAccountable());
        QVERIFY(variant.isDefault());
    }
}

void tst_RVConfiguredArticleVariantList::findsByKeyAndValue()
{
    const List list = fromCsv(u"a:1,b:2,a:2"_s);
    QCOMPARE(list.variantByKey(u"a"_s).toString(), u"a:1"_s);
    QCOMPARE(list.variantByKey(u"b"_s).toString(), u"b:2"_s);
    QVERIFY(!list.variantByKey(u"A"_s).isValid());
    QCOMPARE(list.variantByValue(u"2"_s).toString(), u"b:2"_s);
    QVERIFY(!list.variantByValue(u"3"_s).isValid());
    QVERIFY(!List().variantByKey(u"a"_s).isValid());
}

void tst_RVConfiguredArticleVariantList::findsNotAccountable()
{
    const List list = fromForms({ u"key='a' value='1'"_s, u"key='b' value='2' not_accountable='1'"_s,
                                  u"key='c' value='3' not_accountable='1'"_s });
    QCOMPARE(list.notAccountableVariant().toString(), u"b:2"_s);
    QVERIFY(!fromCsv(u"a:1"_s).notAccountableVariant().isValid());
}

void tst_RVConfiguredArticleVariantList::findsMatching_data()
{
    QTest::addColumn<QStringList>("configuration");
    QTest::addColumn<QString>("option");
    QTest::newRow("one") << QStringList { u"b:2"_s } << u"b:2"_s;
    QTest::newRow("first of two") << QStringList { u"b:2"_s, u"a:1"_s } << u"a:1"_s;
    QTest::newRow("other value") << QStringList { u"a:3"_s } << QString();
    QTest::newRow("letter case") << QStringList { u"A:1"_s } << QString();
    QTest::newRow("nothing") << QStringList() << QString();
}

void tst_RVConfiguredArticleVariantList::findsMatching()
{
    QFETCH(QStringList, configuration);
    QTEST(fromCsv(u"a:1,b:2,a:2"_s).variant(variants(configuration)).toString(), "option");
}

void tst_RVConfiguredArticleVariantList::filters()
{
    const List list = fromCsv(u"a:1,b:2,a:2,a:1"_s);
    QCOMPARE(texts(list.filter(u"a"_s)), (QStringList { u"a:1"_s, u"a:2"_s, u"a:1"_s }));
    QVERIFY(list.filter(u"x"_s).isEmpty());
    QCOMPARE(list.size(), 4);
}

void tst_RVConfiguredArticleVariantList::keys()
{
    QCOMPARE(fromCsv(u"b:1,a:2,B:3,b:4"_s).keys(), (QStringList { u"B"_s, u"a"_s, u"b"_s }));
    QVERIFY(List().keys().isEmpty());
}

void tst_RVConfiguredArticleVariantList::containsVariants()
{
    const List list = fromForms({ u"key='a' value='1' key_name='kn'"_s });
    QVERIFY(list.contains(Variant(u"a"_s, u"1"_s)));
    QVERIFY(!list.contains(Variant(u"a"_s, u"2"_s)));
    QVERIFY(!list.contains(Variant(u"A"_s, u"1"_s)));
    QVERIFY(!List().contains(Variant()));
}

void tst_RVConfiguredArticleVariantList::containsLists_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("all");
    QTest::addColumn<bool>("one");
    QTest::newRow("both empty") << u""_s << u""_s << true << true;
    QTest::newRow("other empty") << u"a:1"_s << u""_s << true << true;
    QTest::newRow("list empty") << u""_s << u"a:1"_s << false << true;
    QTest::newRow("all") << u"a:1,b:2"_s << u"b:2,a:1,b:2"_s << true << true;
    QTest::newRow("one of two") << u"a:1,b:2"_s << u"b:2,c:3"_s << false << true;
    QTest::newRow("none") << u"a:1,b:2"_s << u"a:2"_s << false << false;
}

void tst_RVConfiguredArticleVariantList::containsLists()
{
    QFETCH(QString, list);
    QFETCH(QString, other);
    QTEST(fromCsv(list).contains(fromCsv(other)), "all");
    QTEST(fromCsv(list).containsAtLeastOne(fromCsv(other)), "one");
}

void tst_RVConfiguredArticleVariantList::containsConfigurations_data()
{
    QTest::addColumn<QStringList>("configuration");
    QTest::addColumn<bool>("contains");
    QTest::newRow("nothing") << QStringList() << true;
    QTest::newRow("one") << QStringList { u"a:2"_s } << true;
    QTest::newRow("all keys") << QStringList { u"a:1"_s, u"b:2"_s } << true;
    QTest::newRow("other value") << QStringList { u"a:1"_s, u"b:1"_s } << false;
    QTest::newRow("other key") << QStringList { u"a:1"_s, u"c:3"_s } << false;
    QTest::newRow("empty value") << QStringList { u"x:"_s } << false;
}

void tst_RVConfiguredArticleVariantList::containsConfigurations()
{
    QFETCH(QStringList, configuration);
    const List list = fromCsv(u"a:1,b:2,a:2"_s);
    QTEST(list.contains(variants(configuration)), "contains");
    QTEST(list.contains(variants(configuration), true), "contains");
    QTEST(list.contains(variants(configuration), false), "contains");
}

void tst_RVConfiguredArticleVariantList::containsOnlyColorWhite_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("only");
    QTest::newRow("white") << u"color:white"_s << true;
    QTest::newRow("twice") << u"color:white,color:white"_s << false;
    QTest::newRow("with another") << u"color:white,a:1"_s << false;
    QTest::newRow("black") << u"color:black"_s << false;
    QTest::newRow("other key") << u"alcolor:white"_s << false;
    QTest::newRow("empty") << u""_s << false;
}

void tst_RVConfiguredArticleVariantList::containsOnlyColorWhite()
{
    QFETCH(QString, list);
    QTEST(fromCsv(list).containsOnlyColorWhite(), "only");
}

void tst_RVConfiguredArticleVariantList::defaults_data()
{
    QTest::addColumn<QStringList>("forms");
    QTest::addColumn<QStringList>("options");
    const QString a1 = u"key='a' value='1'"_s;
    const QString a2 = u"key='a' value='2'"_s;
    const QString b1 = u"key='b' value='1'"_s;
    const QString b2 = u"key='b' value='2'"_s;
    const QString selected = u" preselected='1'"_s;
    QTest::newRow("empty") << QStringList() << QStringList();
    QTest::newRow("none selected, first of each key") << QStringList { b2, a1, a2, b1 }
                                                      << QStringList { u"a:1"_s, u"b:2"_s };
    QTest::newRow("one selected, the other key has none") << QStringList { a1, QString(a2 + selected), b1 }
                                                          << QStringList { u"a:2"_s };
    QTest::newRow("two of a key selected, the last wins")
            << QStringList { QString(a1 + selected), QString(a2 + selected), QString(b2 + selected) }
            << QStringList { u"a:2"_s, u"b:2"_s };
}

void tst_RVConfiguredArticleVariantList::defaults()
{
    QFETCH(QStringList, forms);
    QTEST(sortedTexts(fromForms(forms).defaultVariants()), "options");
    QCOMPARE(sortedTexts(fromCsv(u"a:1,b:2"_s).defaultVariants()), (QStringList { u"a:1"_s, u"b:2"_s }));
}

void tst_RVConfiguredArticleVariantList::names()
{
    const List list = fromForms({ u"key='b' value='2' key_name='B' value_name='Zwei' editor_name='E2'"_s,
                                  u"key='a' value='1' key_name='A' value_name='Eins' editor_name='E1'"_s,
                                  u"key='a' value='3' key_name='A' value_name='Drei' editor_name='E3'"_s,
                                  u"key='c' value='4' key_name='%2'"_s });
    const RVArticleVariants chosen = variants({ u"a:1"_s, u"b:2"_s, u"c:4"_s });
    QCOMPARE(list.visibleNames(chosen), (QStringList { u"B: Zwei"_s, u"A: Eins"_s, u"%2: "_s }));
    QCOMPARE(list.editorNames(chosen), (QStringList { u"E2"_s, u"E1"_s, u""_s }));
    QVERIFY(list.visibleNames(RVArticleVariants()).isEmpty());
    QVERIFY(list.editorNames(variants({ u"a:2"_s })).isEmpty());
}

// An option without a value cannot be read, but it can be appended: then it matches what lacks its key.
void tst_RVConfiguredArticleVariantList::namesOfEmptyValues()
{
    List list;
    list.append(Variant(u"a"_s, u""_s));
    QCOMPARE(list.visibleNames(RVArticleVariants()), QStringList { u": "_s });
    QCOMPARE(list.editorNames(RVArticleVariants()).size(), 1);
    QCOMPARE(list.variant(RVArticleVariants()).key(), u"a"_s);
    QVERIFY(list.visibleNames(variants({ u"a:1"_s })).isEmpty());
}

void tst_RVConfiguredArticleVariantList::boxStyles_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("styles");
    QTest::newRow("boxes and photos, box by box")
            << u"coverphoto:1,boxstyle:a,coverphoto:2,boxstyle:b,coverphoto:3,alcolor:red"_s
            << QStringList { u"boxstyle:a,coverphoto:1"_s, u"boxstyle:a,coverphoto:2"_s, u"boxstyle:a,coverphoto:3"_s,
                             u"boxstyle:b,coverphoto:1"_s, u"boxstyle:b,coverphoto:2"_s, u"boxstyle:b,coverphoto:3"_s };
    QTest::newRow("boxes only") << u"boxstyle:b,boxstyle:a"_s << QStringList { u"boxstyle:b"_s, u"boxstyle:a"_s };
    QTest::newRow("photos only") << u"coverphoto:1"_s << QStringList();
    QTest::newRow("neither") << u"alcolor:red"_s << QStringList();
}

void tst_RVConfiguredArticleVariantList::boxStyles()
{
    QFETCH(QString, list);
    QStringList styles;
    for (const RVArticleVariants &style : fromCsv(list).possibleBoxStyles())
        styles += sortedTexts(style).join(u',');
    QTEST(styles, "styles");
}

void tst_RVConfiguredArticleVariantList::joins_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("text");
    QTest::newRow("composite first") << u"a;b:1;2,d:3"_s << u"a:1;b:2;d:3"_s;
    QTest::newRow("order of the list") << u"d:3,a:1"_s << u"d:3;a:1"_s;
    QTest::newRow("counts differ") << u"a;b:1,d:3"_s << u"d:3"_s;
    QTest::newRow("empty") << u""_s << u""_s;
}

void tst_RVConfiguredArticleVariantList::joins()
{
    QFETCH(QString, list);
    QTEST(fromCsv(list).joinForOrderTxt(), "text");
}

void tst_RVConfiguredArticleVariantList::intersects_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QStringList>("kept");
    QTest::addColumn<QStringList>("keptOrTaken");
    const QStringList none;
    QTest::newRow("some, in order") << u"c:3,a:1,b:2,a:1"_s << u"a:1,c:3,x:9"_s
                                    << QStringList { u"c:3"_s, u"a:1"_s, u"a:1"_s }
                                    << QStringList { u"c:3"_s, u"a:1"_s, u"a:1"_s };
    QTest::newRow("nothing common") << u"a:1"_s << u"a:2"_s << none << none;
    QTest::newRow("other empty") << u"a:1"_s << u""_s << none << none;
    QTest::newRow("list empty") << u""_s << u"b:2,a:1"_s << none << QStringList { u"b:2"_s, u"a:1"_s };
    QTest::newRow("both empty") << u""_s << u""_s << none << none;
}

void tst_RVConfiguredArticleVariantList::intersects()
{
    QFETCH(QString, list);
    QFETCH(QString, other);
    List tested = fromCsv(list);
    const List copy = tested;
    tested.intersect(fromCsv(other));
    QTEST(texts(tested), "kept");
    QCOMPARE(texts(copy), texts(fromCsv(list)));
    tested = copy;
    tested.intersect(fromCsv(other), false);
    QTEST(texts(tested), "kept");
    tested = copy;
    tested.intersect(fromCsv(other), true);
    QTEST(texts(tested), "keptOrTaken");
}

void tst_RVConfiguredArticleVariantList::intersectsItself()
{
    List tested = fromCsv(u"a:1,b:2"_s);
    tested.intersect(tested);
    QCOMPARE(texts(tested), (QStringList { u"a:1"_s, u"b:2"_s }));
}

void tst_RVConfiguredArticleVariantList::debugOutput_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << u""_s << u"RVConfiguredArticleVariantList: [ ] "_s;
    QTest::newRow("one") << u"a:b"_s
                         << u"RVConfiguredArticleVariantList: [1: \"RVConfiguredArticleVariant: key: a value: b \"  ] "_s;
    QTest::newRow("two") << u"a:b,c:d"_s
                         << u"RVConfiguredArticleVariantList: [1: \"RVConfiguredArticleVariant: key: a value: b \" "
                            "2: \"RVConfiguredArticleVariant: key: c value: d \"  ] "_s;
}

void tst_RVConfiguredArticleVariantList::debugOutput()
{
    QFETCH(QString, list);
    QString text;
    QDebug(&text) << fromCsv(list);
    QTEST(text, "text");
}

QTEST_APPLESS_MAIN(tst_RVConfiguredArticleVariantList)
#include "tst_RVConfiguredArticleVariantList.moc"
