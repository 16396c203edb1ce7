#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVConfiguredArticleVariant.h>

#include <QDebug>
#include <QDomDocument>
#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

RVConfiguredArticleVariant form(const QString &attributes)
{
    QDomDocument document;
    document.setContent(u"<form %1/>"_s.arg(attributes));
    return RVConfiguredArticleVariant(document.documentElement());
}

}

class tst_RVConfiguredArticleVariant : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultConstruction();
    void fromKeyAndValue();
    void fromText_data();
    void fromText();
    void fromXml();
    void fromXmlWithoutAttributes();
    void readsFlags_data();
    void readsFlags();
    void readsColors_data();
    void readsColors();
    void visibleNames_data();
    void visibleNames();
    void previews_data();
    void previews();
    void describes_data();
    void describes();
    void spotColors_data();
    void spotColors();
    void merges();
    void mergesItself();
    void toArticleVariants_data();
    void toArticleVariants();
    void compares_data();
    void compares();
    void orders_data();
    void orders();
    void debugOutput();
    void implFields();
};

void tst_RVConfiguredArticleVariant::defaultConstruction()
{
    const RVConfiguredArticleVariant variant;
    QVERIFY(!variant.isValid());
    QVERIFY(variant.isDefault());
    QVERIFY(!variant.isNotAccountable());
    QVERIFY(!variant.color().isValid());
    QVERIFY(variant.key().isNull());
    QVERIFY(variant.keyName().isNull());
    QVERIFY(variant.value().isNull());
    QVERIFY(variant.visibleName().isNull());
    QVERIFY(variant.editorName().isNull());
    QVERIFY(variant.preview().isNull());
    QVERIFY(variant.toString().isNull());
    QVERIFY(variant.describe().isEmpty());
    QVERIFY(!std::is_polymorphic_v<RVConfiguredArticleVariant>);
}

void tst_RVConfiguredArticleVariant::fromKeyAndValue()
{
    const RVConfiguredArticleVariant variant(u"alcolor"_s, u"red"_s);
    QCOMPARE(variant.key(), u"alcolor"_s);
    QCOMPARE(variant.value(), u"red"_s);
    QVERIFY(variant.isValid());
    QVERIFY(variant.isDefault());
    QCOMPARE(RVConfiguredArticleVariant(u"a:b"_s, u" "_s).key(), u"a:b"_s);
    QVERIFY(!RVConfiguredArticleVariant(u""_s, u"red"_s).isValid());
    QCOMPARE(RVConfiguredArticleVariant(u""_s, u"red"_s).value(), u"red"_s);
    QVERIFY(!RVConfiguredArticleVariant(u"alcolor"_s, u""_s).isValid());
}

void tst_RVConfiguredArticleVariant::fromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("valid");
    QTest::newRow("pair") << u"alcolor:red"_s << u"alcolor"_s << u"red"_s << true;
    QTest::newRow("composite") << u"a;b:x;y"_s << u"a;b"_s << u"x;y"_s << true;
    QTest::newRow("blanks stay") << u" a : b "_s << u" a "_s << u" b "_s << true;
    QTest::newRow("no key") << u":x"_s << u""_s << u"x"_s << false;
    QTest::newRow("no value") << u"a:"_s << u"a"_s << u""_s << false;
    QTest::newRow("colon alone") << u":"_s << u""_s << u""_s << false;
    QTest::newRow("two colons") << u"a:b:x"_s << u""_s << u""_s << false;
    QTest::newRow("no colon") << u"alcolor"_s << u""_s << u""_s << false;
    QTest::newRow("other separators") << u"a|b"_s << u""_s << u""_s << false;
    QTest::newRow("plus") << u"a+b"_s << u""_s << u""_s << false;
    QTest::newRow("empty") << u""_s << u""_s << u""_s << false;
}

void tst_RVConfiguredArticleVariant::fromText()
{
    QFETCH(QString, text);
    const RVConfiguredArticleVariant variant(text);
    QTEST(variant.key(), "key");
    QTEST(variant.value(), "value");
    QTEST(variant.isValid(), "valid");
    QVERIFY(variant.isDefault());
}

void tst_RVConfiguredArticleVariant::fromXml()
{
    const RVConfiguredArticleVariant variant =
            form(u"key='k' key_name='kn' value='v' value_name='vn' editor_name='en' name='n' preview='p' "
                 "color='#8c1c2b' preselected='1' not_accountable='yes'"_s);
    QCOMPARE(variant.key(), u"k"_s);
    QCOMPARE(variant.keyName(), u"kn"_s);
    QCOMPARE(variant.value(), u"v"_s);
    QCOMPARE(variant.visibleName(), u"vn"_s);
    QCOMPARE(variant.editorName(), u"en"_s);
    QCOMPARE(variant.preview(), u"p"_s);
    QCOMPARE(variant.color(), QColor(0x8c, 0x1c, 0x2b));
    QVERIFY(variant.isDefault());
    QVERIFY(variant.isNotAccountable());
}

void tst_RVConfiguredArticleVariant::fromXmlWithoutAttributes()
{
    for (const RVConfiguredArticleVariant &variant : { form(u""_s), RVConfiguredArticleVariant(QDomElement()) }) {
        QVERIFY(!variant.isValid());
        QVERIFY(!variant.isDefault());
        QVERIFY(!variant.isNotAccountable());
        QVERIFY(!variant.color().isValid());
        QCOMPARE(variant.key(), u""_s);
        QCOMPARE(variant.preview(), u""_s);
    }
}

void tst_RVConfiguredArticleVariant::readsFlags_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("flag");
    QTest::newRow("true") << u"true"_s << true;
    QTest::newRow("On") << u"On"_s << true;
    QTest::newRow("false") << u"false"_s << false;
    QTest::newRow("zero") << u"0"_s << false;
    QTest::newRow("empty") << u""_s << false;
    QTest::newRow("no boolean") << u"maybe"_s << false;
}

void tst_RVConfiguredArticleVariant::readsFlags()
{
    QFETCH(QString, text);
    QTEST(form(u"preselected='%1'"_s.arg(text)).isDefault(), "flag");
    QTEST(form(u"not_accountable='%1'"_s.arg(text)).isNotAccountable(), "flag");
    QVERIFY(!form(u"preselected='%1'"_s.arg(text)).isNotAccountable());
}

void tst_RVConfiguredArticleVariant::readsColors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::newRow("hexadecimal") << u"#0080ff"_s << QColor(0, 0x80, 0xff);
    QTest::newRow("English name") << u"gold"_s << QColor(0xff, 0xd7, 0x00);
    QTest::newRow("German name") << u"rot"_s << QColor();
    QTest::newRow("empty") << u""_s << QColor();
}

void tst_RVConfiguredArticleVariant::readsColors()
{
    QFETCH(QString, text);
    QFETCH(QColor, color);
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QCOMPARE(form(u"color='%1'"_s.arg(text)).color(), color);
}

void tst_RVConfiguredArticleVariant::visibleNames_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("name");
    QTest::newRow("valid") << u"key='k' value='v' value_name='Rot'"_s << u"Rot"_s;
    QTest::newRow("valid without a name") << u"key='k' value='v'"_s << u""_s;
    QTest::newRow("no key") << u"value='v' value_name='Rot'"_s << QString();
    QTest::newRow("no value") << u"key='k' value_name='Rot'"_s << QString();
}

void tst_RVConfiguredArticleVariant::visibleNames()
{
    QFETCH(QString, attributes);
    QFETCH(QString, name);
    QCOMPARE(form(attributes).visibleName(), name);
    QCOMPARE(form(attributes).visibleName().isNull(), name.isNull());
}

void tst_RVConfiguredArticleVariant::previews_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("preview");
    const auto row = [](const char *name, const QString &attributes, const QString &preview) {
        QTest::newRow(name) << attributes << preview;
    };
    row("silver spiral", u"key='spiral' value='silver'"_s, u"calendar_binding_spiral_metal"_s);
    row("black spiral", u"key='spiral' value='black'"_s, u"calendar_binding_spiral_black"_s);
    row("other spiral", u"key='spiral' value='white'"_s, u""_s);
    row("white pocket", u"key='pocketcolor' value='white'"_s, u"POCKET-photobook-photopaper-preview_white"_s);
    row("black pocket", u"key='pocketcolor' value='black'"_s, u"POCKET-photobook-photopaper-preview_black"_s);
    row("beige pocket", u"key='pocketcolor' value='beige'"_s, u"POCKET-photobook-preview_beige"_s);
    row("other pocket", u"key='pocketcolor' value='silver'"_s, u""_s);
    row("letter case of the key", u"key='Spiral' value='black'"_s, u""_s);
    row("letter case of the value", u"key='spiral' value='Black'"_s, u""_s);
    row("other key", u"key='alcolor' value='black'"_s, u""_s);
    row("given", u"key='spiral' value='black' preview='x'"_s, u"x"_s);
    row("given for another key", u"key='alcolor' value='black' preview='x'"_s, u"x"_s);
}

void tst_RVConfiguredArticleVariant::previews()
{
    QFETCH(QString, attributes);
    QTEST(form(attributes).preview(), "preview");
}

void tst_RVConfiguredArticleVariant::describes_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("text");
    const QString names = u"key='k' value='v' key_name='Farbe' value_name='Weinrot' "_s;
    QTest::newRow("no colour, one blank") << names << u"Farbe: Weinrot"_s;
    QTest::newRow("colour") << names + u"color='#8c1c2b'"_s
                            << u"Farbe: <span style=\"background-color:#8c1c2b\">&nbsp;&nbsp;&nbsp;</span> Weinrot"_s;
    QTest::newRow("no key name") << u"key='k' value='v' value_name='Weinrot' color='red'"_s << u""_s;
    QTest::newRow("no value name") << u"key='k' value='v' key_name='Farbe'"_s << u"Farbe:"_s;
    QTest::newRow("white space") << u"key='k' value='v' key_name='  Neue  Farbe ' value_name=' Wein  rot '"_s
                                 << u"Neue Farbe : Wein rot"_s;
    QTest::newRow("place holders in names") << u"key='k' value='v' key_name='%2 %3' value_name='%1'"_s << u"%2 %3: %1"_s;
}

void tst_RVConfiguredArticleVariant::describes()
{
    QFETCH(QString, attributes);
    QTEST(form(attributes).describe(), "text");
}

void tst_RVConfiguredArticleVariant::spotColors_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("color");
    QTest::addColumn<bool>("is");
    QTest::newRow("gold") << u"gold"_s << 2 << true;
    QTest::newRow("silver ink") << u"silver_ink"_s << 16 << true;
    QTest::newRow("other colour") << u"gold"_s << 4 << false;
    QTest::newRow("letter case") << u"Gold"_s << 2 << false;
    QTest::newRow("none and empty") << u""_s << 0 << true;
    QTest::newRow("none") << u"gold"_s << 0 << false;
    QTest::newRow("combination") << u"gloss, gold"_s << 3 << false;
}

void tst_RVConfiguredArticleVariant::spotColors()
{
    QFETCH(QString, value);
    QFETCH(int, color);
    QTEST(RVConfiguredArticleVariant(u"k"_s, value).isSpotColor(RVSpotColor(RVSpotColorEnum(color))), "is");
}

void tst_RVConfiguredArticleVariant::merges()
{
    const RVConfiguredArticleVariant source =
            form(u"key='k2' key_name='kn2' value='v2' value_name='vn2' editor_name='en2' preview='p2' color='#000001' "
                 "not_accountable='1'"_s);
    const RVConfiguredArticleVariant original =
            form(u"key='k' key_name='kn' value='v' value_name='vn' editor_name='en' preview='p' color='#000002' "
                 "preselected='1'"_s);
    RVConfiguredArticleVariant merged = original;
    merged.merge(source);
    QCOMPARE(merged.preview(), u"p2"_s);
    QCOMPARE(merged.color(), QColor(0, 0, 1));
    QCOMPARE(merged.key(), u"k"_s);
    QCOMPARE(merged.keyName(), u"kn"_s);
    QCOMPARE(merged.value(), u"v"_s);
    QCOMPARE(merged.visibleName(), u"vn"_s);
    QCOMPARE(merged.editorName(), u"en"_s);
    QVERIFY(merged.isDefault());
    QVERIFY(!merged.isNotAccountable());
    QCOMPARE(original.preview(), u"p"_s);
    QCOMPARE(original.color(), QColor(0, 0, 2));
    merged.merge(RVConfiguredArticleVariant());
    QVERIFY(merged.preview().isEmpty());
    QVERIFY(!merged.color().isValid());
}

void tst_RVConfiguredArticleVariant::mergesItself()
{
    RVConfiguredArticleVariant variant = form(u"key='k' value='v' preview='p' color='red'"_s);
    variant.merge(variant);
    QCOMPARE(variant.preview(), u"p"_s);
    QCOMPARE(variant.color(), QColor(Qt::red));
}

void tst_RVConfiguredArticleVariant::toArticleVariants_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("pair") << u"alcolor"_s << u"red"_s << u"alcolor:red"_s;
    QTest::newRow("composite") << u"a;b"_s << u"x;y"_s << u"a;b:x;y"_s;
    QTest::newRow("no key") << u""_s << u"red"_s << QString();
    QTest::newRow("no value") << u"alcolor"_s << u""_s << QString();
    QTest::newRow("place holders") << u"%2"_s << u"%1"_s << u"%2:%1"_s;
}

void tst_RVConfiguredArticleVariant::toArticleVariants()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, text);
    const RVConfiguredArticleVariant variant(key, value);
    QCOMPARE(variant.toString(), text);
    QCOMPARE(variant.toString().isNull(), text.isNull());
    QCOMPARE(variant.toArticleVariants().isValid(), !text.isNull());
    QCOMPARE(variant.toArticleVariants().value(key), text.isNull() ? QString() : value);
}

void tst_RVConfiguredArticleVariant::compares_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<bool>("equal");
    QTest::newRow("equal") << u"key='k' value='v'"_s << true;
    QTest::newRow("names, flags, colour, preview do not count")
            << u"key='k' value='v' key_name='x' value_name='x' editor_name='x' name='x' preview='x' color='red' "
               "preselected='1' not_accountable='1'"_s
            << true;
    QTest::newRow("key") << u"key='K' value='v'"_s << false;
    QTest::newRow("value") << u"key='k' value='V'"_s << false;
}

void tst_RVConfiguredArticleVariant::compares()
{
    QFETCH(QString, attributes);
    QFETCH(bool, equal);
    const RVConfiguredArticleVariant variant = form(u"key='k' value='v' key_name='kn'"_s);
    const RVConfiguredArticleVariant copy = variant;
    QCOMPARE(variant == form(attributes), equal);
    QCOMPARE(variant != form(attributes), !equal);
    QVERIFY(variant == copy);
}

void tst_RVConfiguredArticleVariant::orders_data()
{
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("less");
    QTest::addColumn<bool>("greater");
    QTest::newRow("later name, earlier key") << u"key='a' value='a' key_name='n'"_s << true << false;
    QTest::newRow("earlier name, later key") << u"key='z' value='z' key_name='l'"_s << false << true;
    QTest::newRow("same name") << u"key='z' value='z' key_name='m'"_s << false << false;
    QTest::newRow("letter case") << u"key='k' value='v' key_name='Z'"_s << false << true;
    QTest::newRow("no name") << u"key='k' value='v'"_s << false << true;
}

void tst_RVConfiguredArticleVariant::orders()
{
    QFETCH(QString, other);
    const RVConfiguredArticleVariant variant = form(u"key='k' value='v' key_name='m'"_s);
    const RVConfiguredArticleVariant copy = variant;
    QTEST(variant < form(other), "less");
    QTEST(form(other) < variant, "greater");
    QVERIFY(!(variant < copy));
}

void tst_RVConfiguredArticleVariant::debugOutput()
{
    QString text;
    QDebug(&text) << "option:" << RVConfiguredArticleVariant(u"alcolor"_s, u"red"_s) << "end";
    QCOMPARE(text, u"option: \"RVConfiguredArticleVariant: key: alcolor value: red \" end "_s);
    text.clear();
    QDebug(&text).noquote() << RVConfiguredArticleVariant(u"%2"_s, u"%1"_s);
    QCOMPARE(text, u"RVConfiguredArticleVariant: key: %2 value: %1  "_s);
}

void tst_RVConfiguredArticleVariant::implFields()
{
    const RVConfiguredArticleVariantImpl empty;
    QVERIFY(empty.preselected);
    QVERIFY(!empty.notAccountable);
    QVERIFY(!empty.color.isValid());
    QVERIFY(empty.key.isNull() && empty.keyName.isNull() && empty.value.isNull() && empty.visibleName.isNull());
    QVERIFY(empty.editorName.isNull() && empty.name.isNull() && empty.preview.isNull());
    QVERIFY(!empty.isValid());

    const RVConfiguredArticleVariantImpl impl(u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, QColor(Qt::red), false,
                                              true);
    QCOMPARE((QStringList { impl.key, impl.keyName, impl.value, impl.visibleName, impl.editorName, impl.name, impl.preview }),
             (QStringList { u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s }));
    QCOMPARE(impl.color, QColor(Qt::red));
    QVERIFY(!impl.preselected);
    QVERIFY(impl.notAccountable);
    QVERIFY(impl.isValid());
    QCOMPARE(impl.previewNameFallbacked(u"black"_s), u"7"_s);

    RVConfiguredArticleVariantImpl spiral;
    spiral.key = u"spiral"_s;
    spiral.preview = u"own"_s;
    QCOMPARE(spiral.previewNameFallbacked(u"silver"_s), u"calendar_binding_spiral_metal"_s);
    QCOMPARE(spiral.previewNameFallbacked(u"gold"_s), u"own"_s);
    QVERIFY((std::is_base_of_v<QSharedData, RVConfiguredArticleVariantImpl>));
}

QTEST_APPLESS_MAIN(tst_RVConfiguredArticleVariant)
#include "tst_RVConfiguredArticleVariant.moc"
