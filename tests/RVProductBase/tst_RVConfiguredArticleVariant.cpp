#include <RVProductBase/RVConfiguredArticleVariant.h>

#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVConfiguredArticleVariantImpl.h>
#include <RVProductBase/RVConfiguredArticleVariantList.h>

#include <QDebug>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

#include <future>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QDomElement element(const QString &attributes)
{
    static QDomDocument document;
    document.setContent(u"<form %1/>"_s.arg(attributes));
    return document.documentElement();
}

const QString COMPLETE = u"key='alcolor' key_name='Farbe' value='red' value_name='Rot' editor_name='Roter Einband' "
                         "name='red_cover' preview='red.png' color='#112233' preselected='true' "
                         "not_accountable='true'"_s;

}

class tst_RVConfiguredArticleVariant : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstPreviewFromManyThreads();
    void isSharedValue();
    void startsEmpty();
    void createsFromPair_data();
    void createsFromPair();
    void createsFromText_data();
    void createsFromText();
    void createsFromXml();
    void createsFromEmptyXml_data();
    void createsFromEmptyXml();
    void createsFromFields();
    void fieldsStayTheCallers();
    void readsOneAttribute_data();
    void readsOneAttribute();
    void readsFlags_data();
    void readsFlags();
    void readsColor_data();
    void readsColor();
    void visibleName_data();
    void visibleName();
    void preview_data();
    void preview();
    void describes_data();
    void describes();
    void spotColor_data();
    void spotColor();
    void writes_data();
    void writes();
    void merges();
    void mergesEmpty();
    void mergesItself();
    void mergingCopyLeavesSourceAlone();
    void isWholeAfterAMove_data();
    void isWholeAfterAMove();
    void compares_data();
    void compares();
    void orders_data();
    void orders();
    void debugOutput_data();
    void debugOutput();
    void debugSpacing();
};

void tst_RVConfiguredArticleVariant::firstPreviewFromManyThreads()
{
    const RVConfiguredArticleVariant shared(u"pocketcolor:beige"_s);
    std::vector<std::future<QString>> readers;
    for (int i = 0; i < 16; ++i)
        readers.push_back(std::async(std::launch::async, [copy = shared] { return copy.preview(); }));
    for (std::future<QString> &reader : readers)
        QCOMPARE(reader.get(), u"POCKET-photobook-preview_beige"_s);
}

void tst_RVConfiguredArticleVariant::isSharedValue()
{
    QVERIFY(!std::is_polymorphic_v<RVConfiguredArticleVariant>);
    QVERIFY(std::is_nothrow_move_constructible_v<RVConfiguredArticleVariant>);
    QCOMPARE(sizeof(RVConfiguredArticleVariant), sizeof(void *));
}

void tst_RVConfiguredArticleVariant::startsEmpty()
{
    const RVConfiguredArticleVariant empty;
    QVERIFY(!empty.isValid());
    QVERIFY(empty.isDefault());
    QVERIFY(!empty.isNotAccountable());
    QVERIFY(empty.key().isNull());
    QVERIFY(empty.keyName().isNull());
    QVERIFY(empty.value().isNull());
    QVERIFY(empty.visibleName().isNull());
    QVERIFY(empty.editorName().isNull());
    QVERIFY(empty.preview().isNull());
    QVERIFY(!empty.color().isValid());
    QVERIFY(empty.toString().isNull());
    QVERIFY(!empty.toArticleVariants().isValid());
    QCOMPARE(empty.describe(), u""_s);
}

void tst_RVConfiguredArticleVariant::createsFromPair_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("valid");
    QTest::newRow("both") << u"alcolor"_s << u"red"_s << true;
    QTest::newRow("composite") << u"a;b"_s << u"x;y"_s << true;
    QTest::newRow("separators are kept") << u"a:b|"_s << u"x,+"_s << true;
    QTest::newRow("empty key") << u""_s << u"red"_s << false;
    QTest::newRow("empty value") << u"alcolor"_s << u""_s << false;
    QTest::newRow("null") << QString() << QString() << false;
}

void tst_RVConfiguredArticleVariant::createsFromPair()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    const RVConfiguredArticleVariant created(key, value);
    QCOMPARE(created.key(), key);
    QCOMPARE(created.value(), value);
    QCOMPARE(created.key().isNull(), key.isNull());
    QCOMPARE(created.value().isNull(), value.isNull());
    QTEST(created.isValid(), "valid");
    QVERIFY(created.isDefault());
    QVERIFY(!created.isNotAccountable());
    QVERIFY(created.keyName().isNull());
    QVERIFY(created.editorName().isNull());
    QVERIFY(!created.color().isValid());
}

void tst_RVConfiguredArticleVariant::createsFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("valid");
    QTest::newRow("colon") << u"alcolor:red"_s << u"alcolor"_s << u"red"_s << true;
    QTest::newRow("blanks are kept") << u" a : x "_s << u" a "_s << u" x "_s << true;
    QTest::newRow("composite") << u"a;b:x;y"_s << u"a;b"_s << u"x;y"_s << true;
    QTest::newRow("only the colon separates") << u"a|b:x+y"_s << u"a|b"_s << u"x+y"_s << true;
    QTest::newRow("empty key") << u":x"_s << u""_s << u"x"_s << false;
    QTest::newRow("empty value") << u"a:"_s << u"a"_s << u""_s << false;
    QTest::newRow("colon alone") << u":"_s << u""_s << u""_s << false;
    QTest::newRow("bar") << u"a|x"_s << u""_s << u""_s << false;
    QTest::newRow("plus") << u"a+x"_s << u""_s << u""_s << false;
    QTest::newRow("two colons") << u"a:b:x"_s << u""_s << u""_s << false;
    QTest::newRow("adjacent colons") << u"a::x"_s << u""_s << u""_s << false;
    QTest::newRow("no colon") << u"alcolor"_s << u""_s << u""_s << false;
    QTest::newRow("half a surrogate pair") << u"a:x"_s + QChar(0xD83D) << u"a"_s << u"x"_s + QChar(0xD83D) << true;
    QTest::newRow("empty") << u""_s << u""_s << u""_s << false;
    QTest::newRow("null") << QString() << u""_s << u""_s << false;
}

void tst_RVConfiguredArticleVariant::createsFromText()
{
    QFETCH(QString, text);
    const RVConfiguredArticleVariant created(text);
    QTEST(created.key(), "key");
    QTEST(created.value(), "value");
    QTEST(created.isValid(), "valid");
    QVERIFY(created.isDefault());
    QVERIFY(!created.isNotAccountable());
    QVERIFY(created.keyName().isNull());
}

void tst_RVConfiguredArticleVariant::createsFromXml()
{
    const RVConfiguredArticleVariant read(element(COMPLETE));
    QVERIFY(read.isValid());
    QCOMPARE(read.key(), u"alcolor"_s);
    QCOMPARE(read.keyName(), u"Farbe"_s);
    QCOMPARE(read.value(), u"red"_s);
    QCOMPARE(read.visibleName(), u"Rot"_s);
    QCOMPARE(read.editorName(), u"Roter Einband"_s);
    QCOMPARE(read.preview(), u"red.png"_s);
    QCOMPARE(read.color(), QColor(0x11, 0x22, 0x33));
    QVERIFY(read.isDefault());
    QVERIFY(read.isNotAccountable());
}

void tst_RVConfiguredArticleVariant::createsFromEmptyXml_data()
{
    QTest::addColumn<QDomElement>("read");
    QTest::newRow("no attribute") << element(u""_s);
    QTest::newRow("null element") << QDomElement();
}

void tst_RVConfiguredArticleVariant::createsFromEmptyXml()
{
    QFETCH(QDomElement, read);
    const RVConfiguredArticleVariant created(read);
    QVERIFY(!created.isValid());
    QVERIFY(!created.isDefault());
    QVERIFY(!created.isNotAccountable());
    QVERIFY(!created.color().isValid());
    QVERIFY(created.visibleName().isNull());
    for (const QString &text :
         { created.key(), created.keyName(), created.value(), created.editorName(), created.preview() }) {
        QVERIFY(text.isEmpty());
        QVERIFY(!text.isNull());
    }
}

void tst_RVConfiguredArticleVariant::createsFromFields()
{
    const RVConfiguredArticleVariantImpl fields(u"alcolor"_s, u"Farbe"_s, u"red"_s, u"Rot"_s, u"Roter Einband"_s,
                                                u"red_cover"_s, u"red.png"_s, QColor(0x11, 0x22, 0x33), false, true);
    const RVConfiguredArticleVariant created(fields);
    QVERIFY(created.isValid());
    QCOMPARE(created.key(), u"alcolor"_s);
    QCOMPARE(created.keyName(), u"Farbe"_s);
    QCOMPARE(created.value(), u"red"_s);
    QCOMPARE(created.visibleName(), u"Rot"_s);
    QCOMPARE(created.editorName(), u"Roter Einband"_s);
    QCOMPARE(created.preview(), u"red.png"_s);
    QCOMPARE(created.color(), QColor(0x11, 0x22, 0x33));
    QVERIFY(!created.isDefault());
    QVERIFY(created.isNotAccountable());
}

void tst_RVConfiguredArticleVariant::fieldsStayTheCallers()
{
    RVConfiguredArticleVariantImpl fields;
    fields.key = u"alcolor"_s;
    fields.value = u"red"_s;
    fields.preview = u"red.png"_s;
    {
        RVConfiguredArticleVariant created(fields);
        created.merge(element(u"preview='p'"_s));
        fields.value = u"black"_s;
        QCOMPARE(created.toString(), u"alcolor:red"_s);
        QCOMPARE(created.preview(), u"p"_s);
    }
    QCOMPARE(fields.value, u"black"_s);
    QCOMPARE(fields.preview, u"red.png"_s);
    QVERIFY((!std::is_convertible_v<RVConfiguredArticleVariantImpl, RVConfiguredArticleVariant>));
}

void tst_RVConfiguredArticleVariant::readsOneAttribute_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("key") << u"key"_s << QStringList { u"text"_s, u""_s, u""_s, u""_s, u""_s };
    QTest::newRow("key name") << u"key_name"_s << QStringList { u""_s, u"text"_s, u""_s, u""_s, u""_s };
    QTest::newRow("value") << u"value"_s << QStringList { u""_s, u""_s, u"text"_s, u""_s, u""_s };
    QTest::newRow("value name shows in valid options only")
            << u"value_name"_s << QStringList { u""_s, u""_s, u""_s, u""_s, u""_s };
    QTest::newRow("editor name") << u"editor_name"_s << QStringList { u""_s, u""_s, u""_s, u"text"_s, u""_s };
    QTest::newRow("name") << u"name"_s << QStringList { u""_s, u""_s, u""_s, u""_s, u""_s };
    QTest::newRow("preview") << u"preview"_s << QStringList { u""_s, u""_s, u""_s, u""_s, u"text"_s };
    QTest::newRow("letter case of the attribute") << u"Key"_s << QStringList { u""_s, u""_s, u""_s, u""_s, u""_s };
}

void tst_RVConfiguredArticleVariant::readsOneAttribute()
{
    QFETCH(QString, attribute);
    const RVConfiguredArticleVariant read(element(attribute + u"='text'"_s));
    QTEST((QStringList { read.key(), read.keyName(), read.value(), read.editorName(), read.preview() }), "expected");
    QVERIFY(read.visibleName().isNull());
}

void tst_RVConfiguredArticleVariant::readsFlags_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<bool>("preselected");
    QTest::addColumn<bool>("notAccountable");
    QTest::newRow("none") << u"key='alcolor' value='red'"_s << false << false;
    QTest::newRow("preselected") << u"preselected='true'"_s << true << false;
    QTest::newRow("not accountable") << u"not_accountable='true'"_s << false << true;
    QTest::newRow("both") << u"preselected='1' not_accountable='1'"_s << true << true;
    QTest::newRow("letter case") << u"preselected='On' not_accountable='YES'"_s << true << true;
    QTest::newRow("both off") << u"preselected='false' not_accountable='0'"_s << false << false;
    QTest::newRow("empty") << u"preselected='' not_accountable=''"_s << false << false;
    QTest::newRow("no booleans") << u"preselected='x' not_accountable='2'"_s << false << false;
}

void tst_RVConfiguredArticleVariant::readsFlags()
{
    QFETCH(QString, attributes);
    const RVConfiguredArticleVariant read(element(attributes));
    QTEST(read.isDefault(), "preselected");
    QTEST(read.isNotAccountable(), "notAccountable");
}

void tst_RVConfiguredArticleVariant::readsColor_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("rgb") << u"color='#112233'"_s << QColor(0x11, 0x22, 0x33);
    QTest::newRow("argb") << u"color='#80112233'"_s << QColor(0x11, 0x22, 0x33, 0x80);
    QTest::newRow("named") << u"color='red'"_s << QColor(0xff, 0, 0);
    QTest::newRow("German name") << u"color='rot'"_s << QColor();
    QTest::newRow("transparent") << u"color='transparent'"_s << QColor(0, 0, 0, 0);
    QTest::newRow("unparsable") << u"color='no colour'"_s << QColor();
    QTest::newRow("empty") << u"color=''"_s << QColor();
    QTest::newRow("absent") << u""_s << QColor();
}

void tst_RVConfiguredArticleVariant::readsColor()
{
    QFETCH(QString, attributes);
    QFETCH(QColor, expected);
    QTest::failOnWarning(QRegularExpression(u"."_s));
    const RVConfiguredArticleVariant read(element(attributes));
    QCOMPARE(read.color(), expected);
    QCOMPARE(read.color().isValid(), expected.isValid());
}

void tst_RVConfiguredArticleVariant::visibleName_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("valid") << u"key='alcolor' value='red' value_name='Rot'"_s << u"Rot"_s;
    QTest::newRow("valid without name") << u"key='alcolor' value='red'"_s << u""_s;
    QTest::newRow("no key") << u"value='red' value_name='Rot'"_s << QString();
    QTest::newRow("no value") << u"key='alcolor' value_name='Rot'"_s << QString();
}

void tst_RVConfiguredArticleVariant::visibleName()
{
    QFETCH(QString, attributes);
    QFETCH(QString, expected);
    const RVConfiguredArticleVariant read(element(attributes));
    QCOMPARE(read.visibleName(), expected);
    QCOMPARE(read.visibleName().isNull(), expected.isNull());
}

void tst_RVConfiguredArticleVariant::preview_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("given") << u"key='spiral' value='black' preview='x'"_s << u"x"_s;
    QTest::newRow("given for another key") << u"key='alcolor' value='red' preview='x'"_s << u"x"_s;
    QTest::newRow("black spiral") << u"key='spiral' value='black'"_s << u"calendar_binding_spiral_black"_s;
    QTest::newRow("silver spiral") << u"key='spiral' value='silver' preview=''"_s << u"calendar_binding_spiral_metal"_s;
    QTest::newRow("beige pocket") << u"key='pocketcolor' value='beige'"_s << u"POCKET-photobook-preview_beige"_s;
    QTest::newRow("white pocket") << u"key='pocketcolor' value='white'"_s
                                  << u"POCKET-photobook-photopaper-preview_white"_s;
    QTest::newRow("black pocket") << u"key='pocketcolor' value='black'"_s
                                  << u"POCKET-photobook-photopaper-preview_black"_s;
    QTest::newRow("red pocket") << u"key='pocketcolor' value='red'"_s << u""_s;
    QTest::newRow("white spiral") << u"key='spiral' value='white'"_s << u""_s;
    QTest::newRow("other key") << u"key='alcolor' value='black'"_s << u""_s;
    QTest::newRow("letter case of the key") << u"key='SPIRAL' value='black'"_s << u""_s;
    QTest::newRow("names do not count") << u"key_name='spiral' value_name='black' name='black'"_s << u""_s;
}

void tst_RVConfiguredArticleVariant::preview()
{
    QFETCH(QString, attributes);
    QTEST(RVConfiguredArticleVariant(element(attributes)).preview(), "expected");
}

void tst_RVConfiguredArticleVariant::describes_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no colour") << u"key='a' value='x' key_name='Farbe' value_name='Rot'"_s << u"Farbe: Rot"_s;
    QTest::newRow("colour") << u"key='a' value='x' key_name='Farbe' value_name='Rot' color='#ff0000'"_s
                            << u"Farbe: <span style=\"background-color:#ff0000\">&nbsp;&nbsp;&nbsp;</span> Rot"_s;
    QTest::newRow("unparsable colour") << u"key='a' value='x' key_name='Farbe' value_name='Rot' color='no colour'"_s
                                       << u"Farbe: Rot"_s;
    QTest::newRow("white space") << u"key='a' value='x' key_name='  Farbe   des Einbands ' value_name=' Rot  matt  '"_s
                                 << u"Farbe des Einbands : Rot matt"_s;
    QTest::newRow("no value name") << u"key='a' value='x' key_name='Farbe'"_s << u"Farbe:"_s;
    QTest::newRow("no value name, but a colour")
            << u"key='a' value='x' key_name='Farbe' color='#ff0000'"_s
            << u"Farbe: <span style=\"background-color:#ff0000\">&nbsp;&nbsp;&nbsp;</span>"_s;
    QTest::newRow("no key name") << u"key='a' value='x' value_name='Rot' color='#ff0000'"_s << u""_s;
    QTest::newRow("invalid option") << u"key_name='Farbe' value_name='Rot'"_s << u"Farbe: Rot"_s;
    QTest::newRow("place markers are kept") << u"key='a' value='x' key_name='%3' value_name='%1'"_s << u"%3: %1"_s;
}

void tst_RVConfiguredArticleVariant::describes()
{
    QFETCH(QString, attributes);
    QTEST(RVConfiguredArticleVariant(element(attributes)).describe(), "expected");
}

void tst_RVConfiguredArticleVariant::spotColor_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("spotColor");
    QTest::addColumn<bool>("expected");
    QTest::newRow("gloss") << u"gloss"_s << 1 << true;
    QTest::newRow("gold") << u"gold"_s << 2 << true;
    QTest::newRow("silver") << u"silver"_s << 4 << true;
    QTest::newRow("rose gold") << u"rosegold"_s << 8 << true;
    QTest::newRow("silver ink") << u"silver_ink"_s << 16 << true;
    QTest::newRow("other colour") << u"gold"_s << 4 << false;
    QTest::newRow("other letter case") << u"Gold"_s << 2 << false;
    QTest::newRow("part of the keyword") << u"silver"_s << 16 << false;
    QTest::newRow("several colours have no keyword") << u"gloss, gold"_s << 3 << false;
    QTest::newRow("no colour") << u"gold"_s << 0 << false;
    QTest::newRow("no colour, no value") << u""_s << 0 << true;
    QTest::newRow("no value") << u""_s << 2 << false;
}

void tst_RVConfiguredArticleVariant::spotColor()
{
    QFETCH(QString, value);
    QFETCH(int, spotColor);
    const RVSpotColor color = RVSpotColorEnum(spotColor);
    QTEST(RVConfiguredArticleVariant(u"a"_s, value).isSpotColor(color), "expected");
    QTEST(RVConfiguredArticleVariant(u""_s, value).isSpotColor(color), "expected");
}

void tst_RVConfiguredArticleVariant::writes_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("keys");
    QTest::newRow("both") << u"alcolor"_s << u"red"_s << u"alcolor:red"_s << QStringList(u"alcolor"_s);
    QTest::newRow("composite") << u"a;b"_s << u"x;y"_s << u"a;b:x;y"_s << QStringList(u"a;b"_s);
    QTest::newRow("place markers are kept") << u"%2"_s << u"%1"_s << u"%2:%1"_s << QStringList(u"%2"_s);
    QTest::newRow("empty key") << u""_s << u"red"_s << QString() << QStringList();
    QTest::newRow("empty value") << u"alcolor"_s << u""_s << QString() << QStringList();
    QTest::newRow("both empty") << u""_s << u""_s << QString() << QStringList();
}

void tst_RVConfiguredArticleVariant::writes()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, text);
    QFETCH(QStringList, keys);
    const RVConfiguredArticleVariant written(key, value);
    QCOMPARE(written.toString(), text);
    QCOMPARE(written.toString().isNull(), text.isNull());
    QCOMPARE(written.toArticleVariants().keys(), keys);
    QCOMPARE(written.toArticleVariants().values(), keys.isEmpty() ? QStringList() : QStringList(value));
}

void tst_RVConfiguredArticleVariant::merges()
{
    RVConfiguredArticleVariant changed(element(COMPLETE));
    const RVConfiguredArticleVariant other(
            element(u"key='k' key_name='kn' value='v' value_name='vn' editor_name='en' preview='p' color='#445566'"_s));
    changed.merge(other);
    QCOMPARE(changed.preview(), u"p"_s);
    QCOMPARE(changed.color(), QColor(0x44, 0x55, 0x66));
    QCOMPARE(changed.key(), u"alcolor"_s);
    QCOMPARE(changed.keyName(), u"Farbe"_s);
    QCOMPARE(changed.value(), u"red"_s);
    QCOMPARE(changed.visibleName(), u"Rot"_s);
    QCOMPARE(changed.editorName(), u"Roter Einband"_s);
    QVERIFY(changed.isDefault());
    QVERIFY(changed.isNotAccountable());
    QCOMPARE(other.key(), u"k"_s);
    QCOMPARE(other.preview(), u"p"_s);
    QCOMPARE(other.color(), QColor(0x44, 0x55, 0x66));
}

void tst_RVConfiguredArticleVariant::mergesEmpty()
{
    RVConfiguredArticleVariant changed(element(u"key='spiral' value='black' preview='x' color='#112233'"_s));
    changed.merge(RVConfiguredArticleVariant());
    QCOMPARE(changed.preview(), u"calendar_binding_spiral_black"_s);
    QVERIFY(!changed.color().isValid());
    RVConfiguredArticleVariant taking(u"alcolor:red"_s);
    taking.merge(RVConfiguredArticleVariant(u"spiral:black"_s));
    QCOMPARE(taking.preview(), u""_s);
}

void tst_RVConfiguredArticleVariant::mergesItself()
{
    RVConfiguredArticleVariant changed(element(COMPLETE));
    changed.merge(changed);
    QCOMPARE(changed.preview(), u"red.png"_s);
    QCOMPARE(changed.color(), QColor(0x11, 0x22, 0x33));
    const RVConfiguredArticleVariant copy = changed;
    changed.merge(copy);
    QCOMPARE(changed.preview(), u"red.png"_s);
    QCOMPARE(changed.color(), QColor(0x11, 0x22, 0x33));
}

void tst_RVConfiguredArticleVariant::mergingCopyLeavesSourceAlone()
{
    const RVConfiguredArticleVariant source(element(COMPLETE));
    RVConfiguredArticleVariant copy = source;
    copy.merge(RVConfiguredArticleVariant(element(u"preview='p' color='#445566'"_s)));
    QCOMPARE(copy.preview(), u"p"_s);
    QCOMPARE(copy.editorName(), u"Roter Einband"_s);
    QCOMPARE(source.preview(), u"red.png"_s);
    QCOMPARE(source.color(), QColor(0x11, 0x22, 0x33));
    RVConfiguredArticleVariant assigned;
    assigned = source;
    QCOMPARE(assigned.preview(), u"red.png"_s);
    const RVConfiguredArticleVariant moved = std::move(assigned);
    QCOMPARE(moved.preview(), u"red.png"_s);
}

void tst_RVConfiguredArticleVariant::isWholeAfterAMove_data()
{
    QTest::addColumn<bool>("assigned");
    QTest::newRow("to a new object") << false;
    QTest::newRow("to an existing object") << true;
}

void tst_RVConfiguredArticleVariant::isWholeAfterAMove()
{
    QFETCH(bool, assigned);
    RVConfiguredArticleVariantList list { RVConfiguredArticleVariant(element(COMPLETE)) };
    RVConfiguredArticleVariant target;
    if (assigned)
        target = std::move(list.first());
    else
        const RVConfiguredArticleVariant created = std::move(list.first());
    const RVConfiguredArticleVariant &moved = list.constFirst();
    QCOMPARE(moved.isValid(), !moved.key().isEmpty() && !moved.value().isEmpty());
    QCOMPARE(moved.toString().isNull(), !moved.isValid());
    QCOMPARE(moved.visibleName().isNull(), !moved.isValid());
    QCOMPARE(moved.toArticleVariants().isValid(), moved.isValid());
    QCOMPARE(moved.describe().isEmpty(), moved.keyName().isEmpty());
    QCOMPARE(moved.color().isValid(), !moved.preview().isEmpty());
    QCOMPARE(moved.isNotAccountable(), moved.isValid());
    QVERIFY(moved.isDefault());
    QVERIFY(!moved.isSpotColor(RVSpotColor(SPOT_COLOR_GOLD)));
    QCOMPARE(moved, RVConfiguredArticleVariant(moved.key(), moved.value()));
    QVERIFY(!(moved < moved));
    QString text;
    QDebug(&text) << list;
    QVERIFY(text.contains(u"1: \"RVConfiguredArticleVariant: key: "_s));
    QCOMPARE(list.contains(RVConfiguredArticleVariant(element(COMPLETE))), moved.isValid());
    QCOMPARE(list.keys(), QStringList(moved.key()));
    list.first().merge(RVConfiguredArticleVariant(element(u"preview='p'"_s)));
    QCOMPARE(moved.preview(), u"p"_s);
    list.first() = RVConfiguredArticleVariant(u"alcolor:red"_s);
    QCOMPARE(moved.toString(), u"alcolor:red"_s);
}

void tst_RVConfiguredArticleVariant::compares_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("equal");
    QTest::newRow("same") << u"key='a' value='x'"_s << u"key='a' value='x'"_s << true;
    QTest::newRow("all other fields differ")
            << u"key='a' value='x' key_name='1' value_name='1' editor_name='1' name='1' preview='1' color='red' "
               "preselected='1' not_accountable='1'"_s
            << u"key='a' value='x' key_name='2' value_name='2' editor_name='2' name='2' preview='2' color='blue'"_s
            << true;
    QTest::newRow("other key") << u"key='a' value='x'"_s << u"key='b' value='x'"_s << false;
    QTest::newRow("other value") << u"key='a' value='x'"_s << u"key='a' value='y'"_s << false;
    QTest::newRow("letter case of the key") << u"key='a' value='x'"_s << u"key='A' value='x'"_s << false;
    QTest::newRow("letter case of the value") << u"key='a' value='x'"_s << u"key='a' value='X'"_s << false;
    QTest::newRow("key and value swapped") << u"key='a' value='x'"_s << u"key='x' value='a'"_s << false;
    QTest::newRow("both empty") << u"key_name='1'"_s << u"key_name='2'"_s << true;
    QTest::newRow("invalid, other value") << u"value='x'"_s << u"value='y'"_s << false;
}

void tst_RVConfiguredArticleVariant::compares()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(bool, equal);
    const RVConfiguredArticleVariant a(element(first));
    const RVConfiguredArticleVariant b(element(second));
    QCOMPARE(a == b, equal);
    QCOMPARE(b == a, equal);
    QCOMPARE(a != b, !equal);
    QCOMPARE(b != a, !equal);
    const RVConfiguredArticleVariant copy = a;
    QCOMPARE(copy == a, true);
    QCOMPARE(copy != a, false);
}

void tst_RVConfiguredArticleVariant::orders_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("order");
    QTest::newRow("key name") << u"key_name='a'"_s << u"key_name='b'"_s << -1;
    QTest::newRow("key and value do not count") << u"key='b' value='b' value_name='b' key_name='a'"_s
                                                << u"key='a' value='a' value_name='a' key_name='b'"_s << -1;
    QTest::newRow("same key name, all other fields differ")
            << u"key='a' value='a' key_name='n'"_s << u"key='b' value='b' key_name='n'"_s << 0;
    QTest::newRow("letter case") << u"key_name='B'"_s << u"key_name='a'"_s << -1;
    QTest::newRow("umlaut behind z") << u"key_name='z'"_s << u"key_name='\u00C4'"_s << -1;
    QTest::newRow("surrogate before later unit") << u"key_name='\U0001F4F7'"_s << u"key_name='\uFB01'"_s << -1;
    QTest::newRow("shorter first") << u"key_name='a'"_s << u"key_name='ab'"_s << -1;
    QTest::newRow("none first") << u""_s << u"key_name='a'"_s << -1;
    QTest::newRow("no names") << u"key='a'"_s << u"key='b'"_s << 0;
}

void tst_RVConfiguredArticleVariant::orders()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(int, order);
    const RVConfiguredArticleVariant a(element(first));
    const RVConfiguredArticleVariant b(element(second));
    QCOMPARE(a < b, order < 0);
    QCOMPARE(b < a, false);
    const RVConfiguredArticleVariant copy = a;
    QCOMPARE(copy < a, false);
}

void tst_RVConfiguredArticleVariant::debugOutput_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("valid") << u"alcolor"_s << u"red"_s
                           << u"\"RVConfiguredArticleVariant: key: alcolor value: red \" "_s;
    QTest::newRow("empty value") << u"alcolor"_s << u""_s
                                 << u"\"RVConfiguredArticleVariant: key: alcolor value:  \" "_s;
    QTest::newRow("empty") << u""_s << u""_s << u"\"RVConfiguredArticleVariant: key:  value:  \" "_s;
    QTest::newRow("place markers are kept")
            << u"%2"_s << u"%1"_s << u"\"RVConfiguredArticleVariant: key: %2 value: %1 \" "_s;
}

void tst_RVConfiguredArticleVariant::debugOutput()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QString text;
    QDebug(&text) << RVConfiguredArticleVariant(key, value);
    QTEST(text, "expected");
}

void tst_RVConfiguredArticleVariant::debugSpacing()
{
    QString text;
    QDebug(&text) << "option:" << RVConfiguredArticleVariant(u"a:x"_s) << "end";
    QCOMPARE(text, u"option: \"RVConfiguredArticleVariant: key: a value: x \" end "_s);
    text.clear();
    QDebug(&text).noquote().nospace() << 1 << RVConfiguredArticleVariant(u"a:x"_s) << 2 << 3;
    QCOMPARE(text, u"1RVConfiguredArticleVariant: key: a value: x  2 3 "_s);
}

QTEST_GUILESS_MAIN(tst_RVConfiguredArticleVariant)
#include "tst_RVConfiguredArticleVariant.moc"
