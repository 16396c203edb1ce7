#include "CatalogueBuffer.h"
#include "RandomCatalogue.h"
#include "WrittenFile.h"

#include <RVCatalogueReader.h>
#include <RVProductComparison.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RVCatalogueProduct read(const QByteArray &xml)
{
    CatalogueBuffer file(xml);
    return RVCatalogueReader(&file).next();
}

/// A change as people read it: "~ Cover: HARDCOVER -> SOFTCOVER".
QString textOf(const RVProductChange &change)
{
    switch (change.kind()) {
    case RVChangeKind::Added:
        return u"+ %1: %2"_s.arg(change.label(), change.newValue().text);
    case RVChangeKind::Removed:
        return u"- %1: %2"_s.arg(change.label(), change.oldValue().text);
    case RVChangeKind::Changed:
        return u"~ %1: %2 -> %3"_s.arg(change.label(), change.oldValue().text, change.newValue().text);
    case RVChangeKind::None:
        break;
    }
    return u"none"_s;
}

/// The same as programs read it: an array of subject, item, old value and new value.
QString jsonOf(const RVProductChange &change)
{
    const QJsonArray values { change.subject(), change.item(), change.oldValue().value, change.newValue().value };
    return QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
}

QByteArray book(const QByteArray &attributes, const QByteArray &content = QByteArray())
{
    return "<product type='DUN9' " + attributes + '>' + content + "</product>";
}

QByteArray spine(const QByteArray &pages, const QByteArray &attributes, const QByteArray &units = "mm")
{
    return book(pages, "<composition units='" + units + "'><spine " + attributes + "/></composition>");
}

QByteArray barcodes(const QByteArray &content)
{
    return book("", "<barcodes>" + content + "</barcodes>");
}

QByteArray forms(const QByteArray &content)
{
    return book("", "<forms>" + content + "</forms>");
}

/// The same text with one value replaced, which occurs once.
QByteArray replaced(QByteArray text, const QByteArray &from, const QByteArray &to)
{
    Q_ASSERT(text.count(from) == 1);
    return text.replace(from, to);
}

const QByteArray FORMS = "<form key='alcolor' key_name='Farbe' value='black' value_name='Schwarz' preselected='true' "
                         "color='#1a1a1a' price_class='LEZ1' editor_name='S' name='F' preview='p'/>"
                         "<form key='alcolor' key_name='Farbe' value='red' value_name='Rot'/>";

}

class tst_RVProductComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changes_data();
    void changes();
    void equal_data();
    void equal();
    void families();
    void onlyOneProduct();
    void noProduct();
    void places();
    void copies();
    void randomProductsEqualThemselves();
    void everyPageCount();
    void documentedSubjects();

private:
    void attributeRows();
    void pageRows();
    void spineRows();
    void barcodeRows();
    void optionRows();
    void defaultRows();
};

void tst_RVProductComparison::changes_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("json");
    attributeRows();
    pageRows();
    spineRows();
    barcodeRows();
    optionRows();
    defaultRows();
}

void tst_RVProductComparison::attributeRows()
{
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after, const QString &text,
                        const QString &json) {
        QTest::newRow(name) << book(before) << book(after) << QStringList { text } << QStringList { json };
    };
    row("name", "name='Buch'", "name='Buch '", u"~ Name: \"Buch\" -> \"Buch \""_s,
        u"[\"name\",{},\"Buch\",\"Buch \"]"_s);
    row("no name any more", "name='Buch'", "", u"- Name: \"Buch\""_s, u"[\"name\",{},\"Buch\",null]"_s);
    row("article", "article_id='1'", "article_id='2'", u"~ Article id: 1 -> 2"_s, u"[\"article_id\",{},1,2]"_s);
    row("article was no number", "article_id='x'", "article_id='2'", u"+ Article id: 2"_s,
        u"[\"article_id\",{},null,2]"_s);
    row("article class", "article_class='book'", "article_class='normal_calendar'",
        u"~ Article class: book -> normal_calendar"_s, u"[\"article_class\",{},[\"book\"],[\"normal_calendar\"]]"_s);
    row("cover", "cover_type='hardcover'", "cover_type='softcover'", u"~ Cover: HARDCOVER -> SOFTCOVER"_s,
        u"[\"cover_type\",{},[\"HARDCOVER\"],[\"SOFTCOVER\"]]"_s);
    row("a further cover", "cover_type='hardcover'", "cover_type='hardcover,softcover'",
        u"~ Cover: HARDCOVER -> HARDCOVER, SOFTCOVER"_s,
        u"[\"cover_type\",{},[\"HARDCOVER\"],[\"HARDCOVER\",\"SOFTCOVER\"]]"_s);
    row("binding given", "", "page_binding='glue'", u"+ Binding: glue"_s, u"[\"page_binding\",{},null,[\"glue\"]]"_s);
    row("paper", "paper_type='indigo'", "paper_type='fotopaper'", u"~ Paper: indigo -> fotopaper"_s,
        u"[\"paper_type\",{},[\"indigo\"],[\"fotopaper\"]]"_s);
    row("photo paper", "foto_paper_type='matt'", "foto_paper_type='glossy'", u"~ Photo paper: Matt -> Glänzend"_s,
        u"[\"foto_paper_type\",{},[\"2\"],[\"1\"]]"_s);
    row("orientation", "orientation='portrait'", "orientation='landscape'", u"~ Orientation: portrait -> landscape"_s,
        u"[\"orientation\",{},[\"portrait\"],[\"landscape\"]]"_s);
    row("size class", "space_magnitude='600cm2'", "", u"- Size class: 600cm2"_s,
        u"[\"space_magnitude\",{},[\"600cm2\"],null]"_s);
    row("shipping group", "shipping_group='2'", "shipping_group='0'", u"~ Shipping group: 2 -> 0"_s,
        u"[\"shipping_group\",{},2,0]"_s);
    row("price class", "price_class='A'", "price_class='a'", u"~ Price class: \"A\" -> \"a\""_s,
        u"[\"price_class\",{},\"A\",\"a\"]"_s);
    row("price class of pages", "", "page_price_class='B'", u"+ Price class of pages: \"B\""_s,
        u"[\"page_price_class\",{},null,\"B\"]"_s);
    row("photo box", "max_pages='30' page_step='1'", "max_pages='30' page_step='1' photo_box='yes'",
        u"~ Photo box: no -> yes"_s, u"[\"photo_box\",{},false,true]"_s);
    QTest::newRow("type") << QByteArray("<product type='A'/>") << QByteArray("<product type='B'/>")
                          << QStringList { u"~ Type: \"A\" -> \"B\""_s }
                          << QStringList { u"[\"type\",{},\"A\",\"B\"]"_s };
}

void tst_RVProductComparison::pageRows()
{
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after, const QStringList &texts,
                        const QStringList &json) {
        QTest::newRow(name) << book(before) << book(after) << texts << json;
    };
    row("more pages", "pages='26' max_pages='34' page_step='4'", "pages='26' max_pages='46' page_step='4'",
        { u"~ Highest page count: 34 -> 46"_s, u"+ Page counts: 38-46 by 4"_s },
        { u"[\"pages.highest\",{},34,46]"_s, u"[\"pages.counts\",{},null,{\"from\":38,\"step\":4,\"to\":46}]"_s });
    row("fewer at the lower end", "pages='26' max_pages='34' page_step='4'", "pages='30' max_pages='34' page_step='4'",
        { u"~ Lowest page count: 26 -> 30"_s, u"- Page counts: 26"_s },
        { u"[\"pages.lowest\",{},26,30]"_s, u"[\"pages.counts\",{},{\"from\":26,\"step\":0,\"to\":26},null]"_s });
    row("step of 1", "pages='1' max_pages='3' page_step='1'", "pages='1' max_pages='6' page_step='1'",
        { u"~ Highest page count: 3 -> 6"_s, u"+ Page counts: 4-6"_s },
        { u"[\"pages.highest\",{},3,6]"_s, u"[\"pages.counts\",{},null,{\"from\":4,\"step\":1,\"to\":6}]"_s });
    row("step of 2", "pages='2' max_pages='4' page_step='2'", "pages='2' max_pages='10' page_step='2'",
        { u"~ Highest page count: 4 -> 10"_s, u"+ Page counts: 6-10 by 2"_s },
        { u"[\"pages.highest\",{},4,10]"_s, u"[\"pages.counts\",{},null,{\"from\":6,\"step\":2,\"to\":10}]"_s });
    row("half the step", "pages='26' max_pages='38' page_step='4'", "pages='26' max_pages='38' page_step='2'",
        { u"~ Page step: 4 -> 2"_s, u"+ Page counts: 28-36 by 4"_s },
        { u"[\"pages.step\",{},4,2]"_s, u"[\"pages.counts\",{},null,{\"from\":28,\"step\":4,\"to\":36}]"_s });
    row("another step", "pages='2' max_pages='14' page_step='2'", "pages='2' max_pages='14' page_step='3'",
        { u"~ Page step: 2 -> 3"_s, u"- Page counts: 4, 6"_s, u"- Page counts: 10, 12"_s, u"+ Page counts: 5, 11"_s },
        { u"[\"pages.step\",{},2,3]"_s, u"[\"pages.counts\",{},{\"from\":4,\"step\":2,\"to\":6},null]"_s,
          u"[\"pages.counts\",{},{\"from\":10,\"step\":2,\"to\":12},null]"_s,
          u"[\"pages.counts\",{},null,{\"from\":5,\"step\":6,\"to\":11}]"_s });
    row("no count in common", "pages='1' max_pages='3' page_step='2'", "pages='2' max_pages='4' page_step='2'",
        { u"~ Lowest page count: 1 -> 2"_s, u"~ Highest page count: 3 -> 4"_s, u"- Page counts: 1, 3"_s,
          u"+ Page counts: 2, 4"_s },
        { u"[\"pages.lowest\",{},1,2]"_s, u"[\"pages.highest\",{},3,4]"_s,
          u"[\"pages.counts\",{},{\"from\":1,\"step\":2,\"to\":3},null]"_s,
          u"[\"pages.counts\",{},null,{\"from\":2,\"step\":2,\"to\":4}]"_s });
    row("step without a further count", "pages='3'", "pages='3' page_step='2'", { u"~ Page step: 0 -> 2"_s },
        { u"[\"pages.step\",{},0,2]"_s });
    row("billions of counts", "pages='0' max_pages='2147483647' page_step='1'",
        "pages='1' max_pages='2147483647' page_step='1'", { u"~ Lowest page count: 0 -> 1"_s, u"- Page counts: 0"_s },
        { u"[\"pages.lowest\",{},0,1]"_s, u"[\"pages.counts\",{},{\"from\":0,\"step\":0,\"to\":0},null]"_s });
}

void tst_RVProductComparison::spineRows()
{
    const QByteArray pages = "pages='26' max_pages='38' page_step='4'";
    const QByteArray usual = "packages_per_block='2' base_width='8' block_width='1' additional_width='0.5'";
    const auto row = [&](const char *name, const QByteArray &after, const QStringList &texts, const QStringList &json) {
        QTest::newRow(name) << spine(pages, usual) << after << texts << json;
    };
    row("base width", spine(pages, replaced(usual, "'8'", "'8.25'")),
        { u"~ Spine, base width: 8 mm -> 8.25 mm"_s, u"~ Spine width at 26, 30 pages: 9 mm -> 9.25 mm"_s,
          u"~ Spine width at 34, 38 pages: 10 mm -> 10.25 mm"_s },
        { u"[\"spine.base_width\",{},8,8.25]"_s, u"[\"spine.width\",{\"from\":26,\"step\":4,\"to\":30},9,9.25]"_s,
          u"[\"spine.width\",{\"from\":34,\"step\":4,\"to\":38},10,10.25]"_s });
    row("block width", spine(pages, replaced(usual, "'1'", "'2'")),
        { u"~ Spine, block width: 1 mm -> 2 mm"_s, u"~ Spine width at 34, 38 pages: 10 mm -> 11 mm"_s },
        { u"[\"spine.block_width\",{},1,2]"_s, u"[\"spine.width\",{\"from\":34,\"step\":4,\"to\":38},10,11]"_s });
    row("packages per block", spine(pages, replaced(usual, "'2'", "'3'")),
        { u"~ Spine, packages per block: 2 -> 3"_s, u"~ Spine width at 34 pages: 10 mm -> 9 mm"_s },
        { u"[\"spine.packages_per_block\",{},2,3]"_s, u"[\"spine.width\",{\"from\":34,\"step\":0,\"to\":34},10,9]"_s });
    QTest::newRow("packages per block that were not there")
            << spine("pages='3'", "base_width='8'") << spine("pages='3'", "base_width='8' packages_per_block='1'")
            << QStringList { u"~ Spine, packages per block: 0 -> 1"_s }
            << QStringList { u"[\"spine.packages_per_block\",{},0,1]"_s };
    QTest::newRow("more than six digits")
            << spine("pages='3'", "base_width='8'") << spine("pages='3'", "base_width='8.1234567'")
            << QStringList { u"~ Spine, base width: 8 mm -> 8.12346 mm"_s,
                             u"~ Spine width at 3 pages: 8 mm -> 8.12346 mm"_s }
            << QStringList { u"[\"spine.base_width\",{},8,8.1234567]"_s,
                             u"[\"spine.width\",{\"from\":3,\"step\":0,\"to\":3},8,8.1234567]"_s };
    QTest::newRow("digits that rounding adds")
            << spine("pages='3'", "base_width='9.95'") << spine("pages='3'", "base_width='9.9500001'")
            << QStringList { u"~ Spine, base width: 9.95 mm -> 9.9500001 mm"_s,
                             u"~ Spine width at 3 pages: 9.95 mm -> 9.9500001 mm"_s }
            << QStringList { u"[\"spine.base_width\",{},9.95,9.9500001]"_s,
                             u"[\"spine.width\",{\"from\":3,\"step\":0,\"to\":3},9.95,9.9500001]"_s };
    const QByteArray many = "pages='1' max_pages='20000' page_step='1'";
    QTest::newRow("at ten thousand counts")
            << spine(many, "base_width='8'") << spine(many, "base_width='9'")
            << QStringList { u"~ Spine, base width: 8 mm -> 9 mm"_s, u"~ Spine width at 1-10000 pages: 8 mm -> 9 mm"_s }
            << QStringList { u"[\"spine.base_width\",{},8,9]"_s,
                             u"[\"spine.width\",{\"from\":1,\"step\":1,\"to\":10000},8,9]"_s };
    row("sides instead of base", spine(pages, replaced(replaced(usual, "'8'", "'9'"), "'0.5'", "'0'")),
        { u"~ Spine, base width: 8 mm -> 9 mm"_s, u"~ Spine, additional width: 0.5 mm -> 0 mm"_s },
        { u"[\"spine.base_width\",{},8,9]"_s, u"[\"spine.additional_width\",{},0.5,0]"_s });
    row("unit", spine(pages, usual, "cm").replace("packages_per_block='2'", "packages_per_block='0'"),
        { u"~ Spine, base width: 8 mm -> 80 mm"_s, u"~ Spine, block width: 1 mm -> 10 mm"_s,
          u"~ Spine, additional width: 0.5 mm -> 5 mm"_s, u"~ Spine, packages per block: 2 -> 0"_s,
          u"~ Spine width at 26, 30 pages: 9 mm -> 90 mm"_s, u"~ Spine width at 34, 38 pages: 10 mm -> 90 mm"_s },
        { u"[\"spine.base_width\",{},8,80]"_s, u"[\"spine.block_width\",{},1,10]"_s,
          u"[\"spine.additional_width\",{},0.5,5]"_s, u"[\"spine.packages_per_block\",{},2,0]"_s,
          u"[\"spine.width\",{\"from\":26,\"step\":4,\"to\":30},9,90]"_s,
          u"[\"spine.width\",{\"from\":34,\"step\":4,\"to\":38},10,90]"_s });
    row("a small difference", spine(pages, replaced(usual, "'1'", "'1.0000001'")),
        { u"~ Spine, block width: 1 mm -> 1.0000001 mm"_s, u"~ Spine width at 34, 38 pages: 10 mm -> 10.0000001 mm"_s },
        { u"[\"spine.block_width\",{},1,1.0000001]"_s,
          u"[\"spine.width\",{\"from\":34,\"step\":4,\"to\":38},10,10.0000001]"_s });
    row("an infinite width", spine(pages, replaced(usual, "'8'", "'1e308'")),
        { u"~ Spine, base width: 8 mm -> inf mm"_s, u"~ Spine width at 26, 30 pages: 9 mm -> inf mm"_s,
          u"~ Spine width at 34, 38 pages: 10 mm -> inf mm"_s },
        { u"[\"spine.base_width\",{},8,\"inf\"]"_s, u"[\"spine.width\",{\"from\":26,\"step\":4,\"to\":30},9,\"inf\"]"_s,
          u"[\"spine.width\",{\"from\":34,\"step\":4,\"to\":38},10,\"inf\"]"_s });
    row("at the counts of both", spine("pages='30' max_pages='38' page_step='4'", usual),
        { u"~ Lowest page count: 26 -> 30"_s, u"- Page counts: 26"_s, u"~ Spine width at 34 pages: 10 mm -> 9 mm"_s },
        { u"[\"pages.lowest\",{},26,30]"_s, u"[\"pages.counts\",{},{\"from\":26,\"step\":0,\"to\":26},null]"_s,
          u"[\"spine.width\",{\"from\":34,\"step\":0,\"to\":34},10,9]"_s });
}

void tst_RVProductComparison::barcodeRows()
{
    const QByteArray two = "<barcode position_x='12' position_y='290.5' width='38' height='10' pageNr='2'/>"
                           "<barcode position_x='62' position_y='290.5' width='38' height='10' pageNr='2'/>";
    const QByteArray second = u"<barcode position_x='62' position_y='290.5' width='38' height='10' pageNr='2'/>"_s
                                      .toUtf8();
    const auto row = [&](const char *name, const QByteArray &after, const QStringList &texts, const QStringList &json) {
        QTest::newRow(name) << barcodes(two) << barcodes(after) << texts << json;
    };
    const QString one = u"{\"number\":1,\"page\":2}"_s;
    row("left edge", replaced(two, "'12'", "'13'"), { u"~ Barcode 1 on page 2, left edge: 12 mm -> 13 mm"_s },
        { u"[\"barcode.position_x\",%1,12,13]"_s.arg(one) });
    row("height", QByteArray(two).replace("height='10'", "height='12'"),
        { u"~ Barcode 1 on page 2, height: 10 mm -> 12 mm"_s, u"~ Barcode 2 on page 2, height: 10 mm -> 12 mm"_s },
        { u"[\"barcode.height\",%1,10,12]"_s.arg(one), u"[\"barcode.height\",{\"number\":2,\"page\":2},10,12]"_s });
    row("lower edge, width and image",
        replaced(two, "'12' position_y='290.5' width='38'", "'12' position_y='280' width='40' image='a.png'"),
        { u"~ Barcode 1 on page 2, lower edge: 290.5 mm -> 280 mm"_s, u"~ Barcode 1 on page 2, width: 38 mm -> 40 mm"_s,
          u"~ Barcode 1 on page 2, image: \"dummy-barcode.png\" -> \"a.png\""_s },
        { u"[\"barcode.position_y\",%1,290.5,280]"_s.arg(one), u"[\"barcode.width\",%1,38,40]"_s.arg(one),
          u"[\"barcode.image\",%1,\"dummy-barcode.png\",\"a.png\"]"_s.arg(one) });
    row("page", replaced(two, second, QByteArray(second).replace("pageNr='2'", "pageNr='3'")),
        { u"~ Barcode 1 on page 3, page: 2 -> 3"_s }, { u"[\"barcode.page\",{\"number\":1,\"page\":3},2,3]"_s });
    row("removed", replaced(two, second, ""),
        { u"- Barcode 2 on page 2: 38 x 10 mm at 62, 290.5, \"dummy-barcode.png\""_s },
        { u"[\"barcode\",{\"number\":2,\"page\":2},{\"height\":10,\"image\":\"dummy-barcode.png\",\"page\":2,"
          "\"position_x\":62,\"position_y\":290.5,\"width\":38},null]"_s });
    row("one more in front", "<barcode/>" + two,
        { u"+ Barcode 1 on page 0: 1 x 1 mm at 1, 1, \"dummy-barcode.png\""_s },
        { u"[\"barcode\",{\"number\":1,\"page\":0},null,{\"height\":1,\"image\":\"dummy-barcode.png\",\"page\":0,"
          "\"position_x\":1,\"position_y\":1,\"width\":1}]"_s });
}

void tst_RVProductComparison::optionRows()
{
    const auto row = [&](const char *name, const QByteArray &after, const QString &text, const QString &json) {
        QTest::newRow(name) << forms(FORMS) << forms(after) << QStringList { text } << QStringList { json };
    };
    const QString black = u"{\"key\":\"alcolor\",\"value\":\"black\"}"_s;
    row("added", FORMS + "<form key='alcolor' value='blue' color='blue' price_class='LEZ3'/>",
        u"+ Option alcolor:blue: \"LEZ3\", #0000ff"_s,
        u"[\"option\",{\"key\":\"alcolor\",\"value\":\"blue\"},null,{\"accountable\":true,\"color\":\"#0000ff\","
        "\"editor_name\":\"\",\"key\":\"alcolor\",\"key_name\":\"\",\"name\":\"\",\"preselected\":false,"
        "\"preview\":\"\",\"price_class\":\"LEZ3\",\"value\":\"blue\",\"value_name\":\"\"}]"_s);
    row("removed", replaced(FORMS, "<form key='alcolor' key_name='Farbe' value='red' value_name='Rot'/>", ""),
        u"- Option alcolor:red: \"Farbe\", \"Rot\""_s,
        u"[\"option\",{\"key\":\"alcolor\",\"value\":\"red\"},{\"accountable\":true,\"color\":null,"
        "\"editor_name\":\"\",\"key\":\"alcolor\",\"key_name\":\"Farbe\",\"name\":\"\",\"preselected\":false,"
        "\"preview\":\"\",\"price_class\":null,\"value\":\"red\",\"value_name\":\"Rot\"},null]"_s);
    row("twice", FORMS + "<form key='alcolor' value='red'/>", u"+ Option alcolor:red (number 2): \"alcolor:red\""_s,
        u"[\"option\",{\"key\":\"alcolor\",\"number\":2,\"value\":\"red\"},null,{\"accountable\":true,\"color\":null,"
        "\"editor_name\":\"\",\"key\":\"alcolor\",\"key_name\":\"\",\"name\":\"\",\"preselected\":false,"
        "\"preview\":\"\",\"price_class\":null,\"value\":\"red\",\"value_name\":\"\"}]"_s);
    row("name of the key", replaced(FORMS, "'Farbe' value='black'", "'Color' value='black'"),
        u"~ Option alcolor:black, name of the key: \"Farbe\" -> \"Color\""_s,
        u"[\"option.key_name\",%1,\"Farbe\",\"Color\"]"_s.arg(black));
    row("name of the value", replaced(FORMS, "'Schwarz'", "'Tief'"),
        u"~ Option alcolor:black, name of the value: \"Schwarz\" -> \"Tief\""_s,
        u"[\"option.value_name\",%1,\"Schwarz\",\"Tief\"]"_s.arg(black));
    row("name in the editor", replaced(FORMS, "'S'", "''"), u"- Option alcolor:black, name in the editor: \"S\""_s,
        u"[\"option.editor_name\",%1,\"S\",null]"_s.arg(black));
    row("name of the form", replaced(FORMS, "'F'", "'G'"),
        u"~ Option alcolor:black, name of the form: \"F\" -> \"G\""_s,
        u"[\"option.name\",%1,\"F\",\"G\"]"_s.arg(black));
    row("preview", replaced(FORMS, "'p'", "'q'"), u"~ Option alcolor:black, preview: \"p\" -> \"q\""_s,
        u"[\"option.preview\",%1,\"p\",\"q\"]"_s.arg(black));
    row("colour", replaced(FORMS, "'#1a1a1a'", "'#1a1a1b'"), u"~ Option alcolor:black, colour: #1a1a1a -> #1a1a1b"_s,
        u"[\"option.color\",%1,\"#1a1a1a\",\"#1a1a1b\"]"_s.arg(black));
    row("no colour", replaced(FORMS, "'#1a1a1a'", "'dark'"), u"- Option alcolor:black, colour: #1a1a1a"_s,
        u"[\"option.color\",%1,\"#1a1a1a\",null]"_s.arg(black));
    row("price class", replaced(FORMS, "'LEZ1'", "'LEZ2'"),
        u"~ Option alcolor:black, price class: \"LEZ1\" -> \"LEZ2\""_s,
        u"[\"option.price_class\",%1,\"LEZ1\",\"LEZ2\"]"_s.arg(black));
    row("not accountable", replaced(FORMS, "name='F'", "name='F' not_accountable='1'"),
        u"~ Option alcolor:black, accountable: yes -> no"_s, u"[\"option.accountable\",%1,true,false]"_s.arg(black));
}

void tst_RVProductComparison::defaultRows()
{
    const auto row = [&](const char *name, const QByteArray &before, const QByteArray &after, const QStringList &texts,
                         const QStringList &json) {
        QTest::newRow(name) << forms(before) << forms(after) << texts << json;
    };
    const QByteArray red = "<form key='a' value='red' preselected='false'/>";
    const QByteArray blue = "<form key='a' value='blue' preselected='false'/>";
    const auto preselected = [](QByteArray form) { return form.replace("false", "true"); };
    const QString json = u"[\"option.default\",{\"key\":\"a\"},\"red\",\"blue\"]"_s;
    row("default", preselected(red) + blue, red + preselected(blue), { u"~ Default of a: \"red\" -> \"blue\""_s },
        { json });
    row("default by the order", red + blue, blue + red, { u"~ Default of a: \"red\" -> \"blue\""_s }, { json });
    row("no default any more", preselected(red) + "<form key='b' value='x' preselected='true'/>",
        red + "<form key='b' value='x' preselected='true'/>", { u"- Default of a: \"red\""_s },
        { u"[\"option.default\",{\"key\":\"a\"},\"red\",null]"_s });
    row("two defaults, the last of which counts", preselected(red) + preselected(blue), red + preselected(blue),
        { u"~ Option a:red, preselected: yes -> no"_s },
        { u"[\"option.preselected\",{\"key\":\"a\",\"value\":\"red\"},true,false]"_s });
}

void tst_RVProductComparison::changes()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const RVProductComparison comparison(read(before), read(after));
    QStringList texts;
    QStringList json;
    for (const RVProductChange &change : comparison.changes()) {
        texts += textOf(change);
        json += jsonOf(change);
    }
    QTEST(texts, "texts");
    QTEST(json, "json");
    QCOMPARE(comparison.kind(), RVChangeKind::Changed);
    QCOMPARE(RVProductComparison(read(after), read(before)).changes().size(), texts.size());
}

void tst_RVProductComparison::equal_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after) {
        QTest::newRow(name) << before << after;
    };
    row("photo book of the same family", "<product type='DUN9_30'/>", "<product type='DUN9_40'/>");
    row("order of attributes", book("name='A' pages='3'"), book("pages='3' name='A'"));
    row("white space, quotes and comments", book("name='A'", "<!-- x --><forms><form key='a' value='b'/></forms>"),
        "<product\n  type = \"DUN9\"\tname=\"A\">\n<forms>text<form key='a' value='b'></form>\n</forms></product>");
    row("references", book("name='&lt;A&#32;B'"), book("name='&#60;A B'"));
    row("foreign attributes and elements", book("", "<forms/>"), book("color='red'", "<forms margin='1'/><x y='1'/>"));
    row("alias of a keyword", book("cover_type='hard'"), book("cover_type='HardCover'"));
    row("order of keywords", book("cover_type='hardcover,softcover'"), book("cover_type=' softcover ,hardcover'"));
    row("unknown keyword and another one", book("cover_type='soft cover'"), book("cover_type='hard cover'"));
    row("numbers", book("article_id='8' pages='10'"), book("article_id=' 8 ' pages='+10'"));
    row("default number given", book(""), book("pages='1' pieces='1' page_step='0' shipping_group='-1'"));
    row("default of the article class", book("article_class='foto'"),
        book("article_class='foto' shipping_group='" + QByteArray::number(RVArticleClass(u"foto"_s).shippingGroup())
             + '\''));
    row("pieces", book("pages='10' pieces='2'"), book("pages='20' pieces='1'"));
    row("boolean", book("photo_box='true'"), book("photo_box='YES'"));
    row("lengths", spine("pages='3'", "base_width='8' block_width='0.5'"),
        spine("pages='3'", "base_width='8.0' block_width='.5'"));
    row("units", spine("pages='3'", "base_width='8'", "mm"), spine("pages='3'", "base_width='0.8'", "cm"));
    row("infinite width", spine("pages='3'", "base_width='inf'"), spine("pages='3'", "base_width='1e999'"));
    row("a second spine", book("", "<composition><spine base_width='1'/></composition>"),
        book("", "<composition><spine base_width='1'/><spine base_width='2'/></composition><composition/>"));
    row("order of barcodes", barcodes("<barcode pageNr='1'/><barcode pageNr='2'/>"),
        barcodes("<barcode pageNr='2'/><barcode pageNr='1'/>"));
    row("order of barcodes on one page", barcodes("<barcode position_x='1'/><barcode position_x='9'/>"),
        barcodes("<barcode position_x='9'/><barcode position_x='1'/>"));
    row("barcode without extent", barcodes(""), barcodes("<barcode width='0'/>"));
    row("default image", barcodes("<barcode/>"), barcodes("<barcode image='dummy-barcode.png'/>"));
    row("order of options", forms("<form key='a' value='1' preselected='1'/><form key='b' value='2' preselected='1'/>"),
        forms("<form key='b' value='2' preselected='1'/><form key='a' value='1' preselected='1'/>"));
    row("incomplete option", forms(""), forms("<form key='a'/><form value='b'/>"));
    row("colours", forms("<form key='a' value='b' color='#ff0000'/>"), forms("<form key='a' value='b' color='Red'/>"));
    row("no colour", forms("<form key='a' value='b' color='nothing'/>"), forms("<form key='a' value='b'/>"));
    row("stock preview", forms("<form key='spiral' value='black'/>"),
        forms("<form key='spiral' value='black' preview='"
              + read(forms("<form key='spiral' value='black'/>")).options().constFirst().preview().toUtf8() + "'/>"));
    row("empty price class", book("price_class=''"), book(""));
}

void tst_RVProductComparison::equal()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const RVProductComparison comparison(read(before), read(after));
    for (const RVProductChange &change : comparison.changes())
        QCOMPARE(textOf(change), QString());
    QCOMPARE(comparison.kind(), RVChangeKind::None);
    QVERIFY(!comparison.isNull());
    QVERIFY(!comparison.isRenamed());
}

void tst_RVProductComparison::families()
{
    const RVProductComparison comparison(read("<a name='Fotobücher'><b name='A4'><product/></b></a>"),
                                         read("<a name='Fotobücher'><product/></a>"));
    QCOMPARE(comparison.changes().size(), 1);
    QCOMPARE(textOf(comparison.changes().constFirst()), u"~ Families: \"Fotobücher\" > \"A4\" -> \"Fotobücher\""_s);
    QCOMPARE(jsonOf(comparison.changes().constFirst()),
             u"[\"families\",{},[\"Fotobücher\",\"A4\"],[\"Fotobücher\"]]"_s);
}

void tst_RVProductComparison::onlyOneProduct()
{
    const RVCatalogueProduct product = read("<product type='A' name='B'/>");
    const RVProductComparison added(RVCatalogueProduct(), product);
    QCOMPARE(added.kind(), RVChangeKind::Added);
    QCOMPARE(added.product().name(), u"B"_s);
    QVERIFY(added.oldProduct().isNull() && added.changes().isEmpty() && !added.isRenamed());
    const RVProductComparison removed(product, RVCatalogueProduct());
    QCOMPARE(removed.kind(), RVChangeKind::Removed);
    QCOMPARE(removed.product().name(), u"B"_s);
    QVERIFY(removed.newProduct().isNull() && removed.changes().isEmpty() && !removed.isRenamed());
}

void tst_RVProductComparison::noProduct()
{
    const RVProductComparison comparison;
    QVERIFY(comparison.isNull());
    QCOMPARE(comparison.kind(), RVChangeKind::None);
    QVERIFY(comparison.product().isNull());
    const RVProductChange change;
    QVERIFY(change.isNull());
    QCOMPARE(change.kind(), RVChangeKind::None);
    QCOMPARE(change.label(), QString());
    QCOMPARE(change.subject(), ""_L1);
    QVERIFY(change.oldValue().value.isNull() && change.newValue().text.isEmpty() && change.item().isEmpty());
}

void tst_RVProductComparison::places()
{
    const RVProductComparison comparison(read("<p>\n<product type='A'/></p>"), read("<p>\n\n <product type='A'/></p>"));
    QCOMPARE(comparison.oldPosition(), RVFilePosition({ 2, 1 }));
    QCOMPARE(comparison.newPosition(), RVFilePosition({ 3, 2 }));
}

void tst_RVProductComparison::copies()
{
    const RVProductChange change("name"_L1, u"Name"_s, { u"a"_s, u"A"_s }, { u"b"_s, u"B"_s });
    RVProductChange copy = change;
    const RVProductChange moved = std::move(copy);
    QCOMPARE(moved.label(), u"Name"_s);
    copy = moved;
    QCOMPARE(copy.newValue().value, QJsonValue(u"B"_s));
    QCOMPARE(rvChangeKindName(copy.kind()), "changed"_L1);
    QCOMPARE(rvChangeKindName(RVChangeKind::None), "equal"_L1);
    QCOMPARE(rvChangeKindName(RVChangeKind::Added), "added"_L1);
    QCOMPARE(rvChangeKindName(RVChangeKind::Removed), "removed"_L1);
}

void tst_RVProductComparison::randomProductsEqualThemselves()
{
    RandomCatalogue random(4711);
    for (int i = 0; i < 3000; ++i) {
        const RVCatalogueProduct product = read(random.product().toUtf8());
        QVERIFY(!product.isNull());
        const RVProductComparison comparison(product, read(product.toXml()));
        for (const RVProductChange &change : comparison.changes())
            QCOMPARE(textOf(change), QString::fromUtf8(product.toXml()));
    }
}

namespace {

RVCatalogueProduct productWithSpine(QRandomGenerator *random)
{
    const int pages = random->bounded(40);
    const QByteArray attributes = "pages='" + QByteArray::number(pages) + "' max_pages='"
            + QByteArray::number(pages + random->bounded(60)) + "' page_step='"
            + QByteArray::number(random->bounded(1, 9)) + '\'';
    return read(spine(attributes,
                      "packages_per_block='" + QByteArray::number(random->bounded(3)) + "' base_width='"
                              + QByteArray::number(random->bounded(1, 3)) + "' block_width='0.5'"));
}

QSet<int> countsOf(const RVCatalogueProduct &product)
{
    const RVPageCounts counts = product.pageCounts().pageCounts();
    return QSet<int>(counts.begin(), counts.end());
}

/// The subjects in the table of the documentation.
QSet<QString> documented()
{
    const QString page = QString::fromUtf8(readFile(QStringLiteral(DOCS "/comparing.md")));
    QSet<QString> subjects;
    const QStringList rows = page.section(u"| subject |"_s, 1).section(u"\n\n"_s, 0, 0).split(u'\n').mid(2);
    for (const QString &row : rows) {
        for (const QString &subject : row.section(u'|', 1, 1).split(u','))
            subjects += subject.trimmed().remove(u'`');
    }
    return subjects;
}

}

// The ranges of page counts together equal the sets of single counts.
void tst_RVProductComparison::everyPageCount()
{
    QRandomGenerator random(31);
    for (int i = 0; i < 500; ++i) {
        const RVCatalogueProduct before = productWithSpine(&random);
        const RVCatalogueProduct after = productWithSpine(&random);
        QSet<int> removed = countsOf(before) - countsOf(after);
        QSet<int> added = countsOf(after) - countsOf(before);
        QSet<int> otherWidths;
        for (const int pages : countsOf(before) & countsOf(after)) {
            if (before.spine().spineWidth(unsigned(pages)) != after.spine().spineWidth(unsigned(pages)))
                otherWidths += pages;
        }
        for (const RVProductChange &change : RVProductComparison(before, after).changes()) {
            const bool isWidth = change.subject() == "spine.width"_L1;
            if (!isWidth && change.subject() != "pages.counts"_L1)
                continue;
            const bool isAdded = change.kind() == RVChangeKind::Added;
            const QJsonValue value = isAdded ? change.newValue().value : change.oldValue().value;
            const QJsonObject range = isWidth ? change.item() : value.toObject();
            QSet<int> &expected = isWidth ? otherWidths : isAdded ? added : removed;
            const int step = qMax(1, range.value("step"_L1).toInt());
            for (int pages = range.value("from"_L1).toInt(); pages <= range.value("to"_L1).toInt(); pages += step)
                QVERIFY(expected.remove(pages));
        }
        QCOMPARE(removed + added + otherWidths, QSet<int>());
    }
}

// The table has every subject and no other.
void tst_RVProductComparison::documentedSubjects()
{
    const QByteArray before =
            "<f name='A'><product type='A' name='A' article_id='1' shipping_group='1' price_class='A' "
            "page_price_class='A' pages='1' max_pages='3' page_step='1'><composition>"
            "<spine base_width='1' block_width='1' additional_width='1' packages_per_block='1'/>"
            "</composition><barcodes><barcode pageNr='1'/></barcodes><forms>"
            "<form key='a' value='1'/><form key='b' value='1' preselected='1'/>"
            "<form key='b' value='2' preselected='1'/></forms></product></f>";
    const QByteArray after = "<product type='B' name='B' article_id='2' shipping_group='2' price_class='B' "
                             "page_price_class='B' photo_box='1' pages='2' max_pages='6' page_step='2' "
                             "article_class='book' cover_type='gift' page_binding='glue' paper_type='indigo' "
                             "foto_paper_type='matt' orientation='portrait' space_magnitude='600cm2'><composition>"
                             "<spine base_width='2' block_width='2' additional_width='2' packages_per_block='2'/>"
                             "</composition><barcodes><barcode pageNr='2' position_x='2' position_y='3' width='2' "
                             "height='2' image='b'/><barcode/></barcodes><forms>"
                             "<form key='a' value='1' key_name='b' value_name='b' editor_name='b' name='b' preview='b' "
                             "color='red' price_class='b' not_accountable='1' preselected='1'/>"
                             "<form key='b' value='1'/><form key='b' value='2' preselected='1'/>"
                             "<form key='c' value='2' preselected='1'/></forms></product>";
    QSet<QString> told;
    for (const RVProductChange &change : RVProductComparison(read(before), read(after)).changes())
        told += change.subject();
    QCOMPARE(told - documented(), QSet<QString>());
    QCOMPARE(documented() - told, QSet<QString>());
}

QTEST_GUILESS_MAIN(tst_RVProductComparison)
#include "tst_RVProductComparison.moc"
