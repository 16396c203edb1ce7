#include "FindingTools.h"
#include "ListDifference.h"
#include "SampleProduct.h"
#include "WrittenFile.h"

#include <RVCatalogueAttribute.h>
#include <RVCatalogueCheck.h>
#include <RVCatalogueReader.h>

#include <RVXMLParser.h>

#include <QBuffer>
#include <QDomDocument>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString describe(const RVCatalogueFinding &finding)
{
    return u"%1 %2 %3: %4"_s.arg(QString::number(finding.range().begin.line), rvSeverityName(finding.severity()),
                                 finding.rule().name(), finding.text());
}

struct Checked
{
    QList<RVCatalogueFinding> findings;
    qint64 products = 0;
    bool hasError = false;

    QStringList texts() const
    {
        QStringList result;
        for (const RVCatalogueFinding &finding : findings)
            result += describe(finding);
        return result;
    }
    QStringList rules() const
    {
        QStringList result;
        for (const RVCatalogueFinding &finding : findings)
            result += finding.rule().name();
        return result;
    }
};

Checked check(QByteArray file, const QStringList &disabledRules = {})
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&buffer);
    reader.setCheck(without(disabledRules));
    Checked result;
    for (const RVCatalogueProduct &product : reader) {
        result.findings += product.findings();
        ++result.products;
    }
    result.findings += reader.findings();
    result.hasError = reader.hasError();
    return result;
}

/// The text from one place to the other; only the name and the last letter of a start tag.
QString textAt(const QByteArray &file, const RVFileRange &range)
{
    const QString text = pieceOf(file, range);
    if (!text.startsWith(u'<'))
        return text;
    const auto nameEnd = std::find_if(text.begin(), text.end(), [](QChar letter) { return " />"_L1.contains(letter); });
    return text.first(nameEnd - text.begin()) + text.right(1);
}

QByteArray withSecondProduct(const QByteArray &product)
{
    return changed("<product type='FOT1' article_id='2' article_class='foto' foto_paper_type='matt'/>", product);
}

/// A product with these options, the first of them in line 2.
QByteArray withOptions(const QByteArray &options)
{
    return "<products><product type='A' article_id='1'><forms>\n" + options + "</forms></product></products>";
}

QByteArray utf16(const QByteArray &text)
{
    const QString decoded = QString::fromUtf8(text);
    return "\xff\xfe" + QByteArray(reinterpret_cast<const char *>(decoded.utf16()), decoded.size() * 2);
}

QByteArray escaped(const QString &text)
{
    return text.toHtmlEscaped().replace(u'\t', "&#9;"_L1).toUtf8();
}

/// The findings about one list of keywords.
QStringList keywordFindings(RVCatalogueAttribute attribute, const QString &list)
{
    const QByteArray name = QByteArray(attribute.name().data(), attribute.name().size());
    const Checked checked = check("<products><product type='A' article_id='1' " + name + "=\"" + escaped(list)
                                  + "\"/></products>");
    QStringList result;
    for (const RVCatalogueFinding &finding : checked.findings) {
        if (finding.rule().name().startsWith("keyword-"_L1))
            result += finding.text();
    }
    return result;
}

/// A mistake and its finding: the piece of the file, and the finding with its line.
struct Mistake
{
    const char *situation;
    QByteArray file;
    QString place;
    QString finding;
};

QList<Mistake> idMistakes()
{
    return {
        { "no product", QByteArray("<products>\n<offer/></products>"), u""_s,
          u"1 error products-missing: there is no product in this file"_s },
        { "type missing", changed("type='DUN9' ", ""), u"<product>"_s,
          u"2 error type-missing: the product has no type; write the code that projects have for it"_s },
        { "type empty", changed("type='DUN9' ", "type=' ' "), u"type=' '"_s,
          u"2 error type-missing: the product has no type; write the code that projects have for it"_s },
        { "type twice", changed("type='FOT1'", "type='DUN9'"), u"type='DUN9'"_s,
          u"17 error type-duplicate: the type \"DUN9\" is already that of the product in line 2; write another, or take out one"_s },
        { "type twice in one family", changed("type='FOT1'", "type='DUN9_30'"), u"type='DUN9_30'"_s,
          u"17 error type-duplicate: the type \"DUN9_30\", that is \"DUN9\", is already that of the product in line 2; write another, or take out one"_s },
        { "article id missing", changed(" article_id='1'", ""), u"<product>"_s,
          u"2 error article-id-missing: the product has no article id; write its number into article_id"_s },
        { "article id empty", changed("article_id='1'", "article_id=''"), u"article_id=''"_s,
          u"2 error article-id-missing: the product has no article id; write its number into article_id"_s },
        { "article id 0", changed("article_id='1'", "article_id='0'"), u"article_id='0'"_s,
          u"2 error article-id-invalid: the article id \"0\" is no whole number above 0; write 1 or more"_s },
        { "article id -1", changed("article_id='1'", "article_id='-1'"), u"article_id='-1'"_s,
          u"2 error article-id-invalid: the article id \"-1\" is no whole number above 0; write 1 or more"_s },
        { "article id 12a", changed("article_id='1'", "article_id='12a'"), u"article_id='12a'"_s,
          u"2 error article-id-invalid: the article id \"12a\" is no whole number above 0; write nothing but digits"_s },
        { "article id 1.5", changed("article_id='1'", "article_id='1.5'"), u"article_id='1.5'"_s,
          u"2 error article-id-invalid: the article id \"1.5\" is no whole number above 0; write nothing but digits"_s },
        { "article id 2147483648", changed("article_id='1'", "article_id='2147483648'"), u"article_id='2147483648'"_s,
          u"2 error article-id-invalid: the article id \"2147483648\" is too large; write at most 2147483647"_s },
        { "article id twice", changed("article_id='2'", "article_id='+1'"), u"article_id='+1'"_s,
          u"17 error article-id-duplicate: the article id 1 is already that of the product in line 2; write another, or take out one"_s },
        { "shipping group -1", changed("shipping_group='2'", "shipping_group='-1'"), u"shipping_group='-1'"_s,
          u"2 error shipping-group-invalid: the shipping group \"-1\" is none; leave out the attribute"_s },
        { "shipping group two", changed("shipping_group='2'", "shipping_group='two'"), u"shipping_group='two'"_s,
          u"2 error shipping-group-invalid: the shipping group \"two\" is none; write nothing but digits"_s },
        { "shipping group empty", changed("shipping_group='2'", "shipping_group=''"), u"shipping_group=''"_s,
          u"2 error shipping-group-invalid: the shipping group \"\" is none; write a number, or leave out the attribute"_s },
        { "blank type", changed("type='DUN9' ", "type='&#160;' "), u"type='&#160;'"_s,
          u"2 error type-missing: the product has no type; write the code that projects have for it"_s },
    };
}

QList<Mistake> keywordMistakes()
{
    return {
        { "unknown keyword", changed("cover_type='hardcover'", "cover_type='hardcovr'"), u"cover_type='hardcovr'"_s,
          u"2 error keyword-unknown: \"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?"_s },
        { "unknown keyword in capitals", changed("cover_type='hardcover'", "cover_type='HARDCOVRE'"),
          u"cover_type='HARDCOVRE'"_s,
          u"2 error keyword-unknown: \"HARDCOVRE\" is no keyword of cover_type; did you mean \"HARDCOVER\"?"_s },
        { "unknown keyword that is like none", changed("orientation='portrait'", "orientation='xyz'"),
          u"orientation='xyz'"_s,
          u"2 error keyword-unknown: \"xyz\" is no keyword of orientation; there are none, portrait, landscape, square, portrait_slim, landscape_slim and all"_s },
        { "unknown keyword in a list", changed("orientation='portrait'", "orientation='portrait, sqare'"),
          u"orientation='portrait, sqare'"_s,
          u"2 error keyword-unknown: \"sqare\" is no keyword of orientation; did you mean \"square\"?"_s },
        { "empty keyword", changed("paper_type='fotopaper'", "paper_type=''"), u"paper_type=''"_s,
          u"2 error keyword-unknown: there is an empty keyword in paper_type; write one, or leave out the attribute"_s },
        { "unknown binding", changed("page_binding='glue'", "page_binding='gluu'"), u"page_binding='gluu'"_s,
          u"2 error keyword-unknown: \"gluu\" is no keyword of page_binding; did you mean \"glue\"?"_s },
        { "unknown article class", changed("article_class='book'", "article_class='buch'"), u"article_class='buch'"_s,
          u"2 error keyword-unknown: \"buch\" is no keyword of article_class; \"rvcatalog keywords article_class\" lists them"_s },
        { "unknown size", changed("space_magnitude='600cm2'", "space_magnitude='600cm'"), u"space_magnitude='600cm'"_s,
          u"2 error keyword-unknown: \"600cm\" is no keyword of space_magnitude; did you mean \"600cm2\"?"_s },
        { "unknown photo paper", changed("foto_paper_type='matt'", "foto_paper_type='mat'"), u"foto_paper_type='mat'"_s,
          u"17 error keyword-unknown: \"mat\" is no keyword of foto_paper_type; did you mean \"matt\"?"_s },
        { "alias", changed("cover_type='hardcover'", "cover_type='hard'"), u"cover_type='hard'"_s,
          u"2 note keyword-legacy: \"hard\" is an alias in cover_type; the main keyword is \"hardcover\""_s },
        { "alias of the binding keeps the spine", changed("page_binding='glue'", "page_binding='Glued'"),
          u"page_binding='Glued'"_s,
          u"2 note keyword-legacy: \"Glued\" is an alias in page_binding; the main keyword is \"glue\""_s },
    };
}

QList<Mistake> valueMistakes()
{
    return {
        { "pages are no number", changed("pages='26'", "pages='many'"), u"pages='many'"_s,
          u"2 error number-invalid: pages is \"many\", which is no whole number; write nothing but digits"_s },
        { "pages are no whole number", changed("pages='26'", "pages='26.5'"), u"pages='26.5'"_s,
          u"2 error number-invalid: pages is \"26.5\", which is no whole number; write nothing but digits"_s },
        { "photo box is no boolean", changed("pages='26'", "pages='26' photo_box='ja'"), u"photo_box='ja'"_s,
          u"2 error boolean-invalid: photo_box is \"ja\", which is neither true nor false; there are true, false, yes, no, on, off, 1 and 0"_s },
        { "unknown unit of the spine", changed("units='cm'", "units='CM'"), u"units='CM'"_s,
          u"7 error unit-unknown: there is no unit \"CM\"; write \"cm\""_s },
        { "width is no number", changed("base_width='0.8'", "base_width='0,8'"), u"base_width='0,8'"_s,
          u"8 error number-invalid: base_width is \"0,8\", which is no number; decimals have a point: write 0.8"_s },
        { "width is infinite", changed("base_width='0.8'", "base_width='inf'"), u"base_width='inf'"_s,
          u"8 error number-invalid: base_width is \"inf\", which is no number; write digits, and a point before decimals"_s },
        { "width is too large", changed("base_width='0.8'", "base_width='1e308'"), u"<spine>"_s,
          u"8 error number-invalid: the widths of the spine are too large for a number; write smaller ones"_s },
        { "width becomes too large", changed("block_width='0.1'", "block_width='1e306'"), u"<spine>"_s,
          u"8 error number-invalid: the widths of the spine are too large for a number; write smaller ones"_s },
        { "packages are no number", changed("packages_per_block='2'", "packages_per_block='2x'"),
          u"packages_per_block='2x'"_s,
          u"8 error number-invalid: packages_per_block is \"2x\", which is no whole number; write nothing but digits"_s },
        { "preselected is no boolean", changed("preselected='true'", "preselected='x'"), u"preselected='x'"_s,
          u"11 error boolean-invalid: preselected is \"x\", which is neither true nor false; there are true, false, yes, no, on, off, 1 and 0"_s },
        { "not_accountable is no boolean", changed("not_accountable='true'", "not_accountable=''"),
          u"not_accountable=''"_s,
          u"13 error boolean-invalid: not_accountable is \"\", which is neither true nor false; there are true, false, yes, no, on, off, 1 and 0"_s },
        { "lengths in an unknown unit",
          changed("<barcodes units='mm'>", "<barcodes units='0.1 mm'>").replace("290.5", "2905"), u"units='0.1 mm'"_s,
          u"3 error unit-unknown: there is no unit \"0.1 mm\"; write \"0.1mm\""_s },
        { "barcode position is no number", changed("position_x='62'", "position_x='12mm'"), u"position_x='12mm'"_s,
          u"5 error number-invalid: position_x is \"12mm\", which is no number; the unit belongs to \"units\": write 12"_s },
        { "barcode page is no number", changed("pageNr='2'/>", "pageNr='x'/>"), u"pageNr='x'"_s,
          u"4 error number-invalid: pageNr is \"x\", which is no whole number; write nothing but digits"_s },
        { "unknown unit of barcodes", changed("<barcodes units='mm'>", "<barcodes units='metre'>"), u"units='metre'"_s,
          u"3 error unit-unknown: there is no unit \"metre\"; there are mm, cm, inch, in, pt, point and 0.1mm"_s },
        { "width is too large beside an unreadable number",
          changed("packages_per_block='2' base_width='0.8'", "packages_per_block='two' base_width='1e308'"),
          u"packages_per_block='two'"_s,
          u"8 error number-invalid: packages_per_block is \"two\", which is no whole number; write nothing but digits"_s },
        { "unit with a blank", changed("<barcodes units='mm'>", "<barcodes units='mm '>"), u"units='mm '"_s,
          u"3 error unit-unknown: there is no unit \"mm \"; write \"mm\""_s },
    };
}

QList<Mistake> pageCountMistakes()
{
    return {
        { "page counts reversed", changed("max_pages='154'", "max_pages='18'"), u"max_pages='18'"_s,
          u"2 error page-counts-reversed: the lowest page count 26 is above the highest, 18; raise max_pages, or lower pages"_s },
        { "no pages", changed("foto_paper_type='matt'", "pages='0'"), u"pages='0'"_s,
          u"17 error page-counts-invalid: the lowest page count is 0; write 1 or more"_s },
        { "no step", changed(" page_step='4'", ""), u"<product>"_s,
          u"2 error page-counts-invalid: there is no step (page_step) that leads from 26 to 154 pages; write how many pages one package has"_s },
        { "negative step", changed("page_step='4'", "page_step='-4'"), u"page_step='-4'"_s,
          u"2 error page-counts-invalid: steps of -4 pages are below 0; write how many pages one package has"_s },
        { "negative step of a fixed count", changed("foto_paper_type='matt'", "page_step='-4'"), u"page_step='-4'"_s,
          u"17 error page-counts-invalid: steps of -4 pages are below 0; write how many pages one package has"_s },
        { "negative pages", changed("foto_paper_type='matt'", "pages='-4'"), u"pages='-4'"_s,
          u"17 error page-counts-invalid: the lowest page count is -4; write 1 or more"_s },
        { "no pieces", changed("pieces='1'", "pieces='0'"), u"pieces='0'"_s,
          u"2 error page-counts-invalid: there are 0 pieces; write 1 or more"_s },
        { "step misses the highest count", changed("page_step='4'", "page_step='6'"), u"page_step='6'"_s,
          u"2 warning page-step-misses-highest: steps of 6 from 26 pages never meet 154; the nearest counts are 152 and 158"_s },
        { "step of nothing", changed("page_step='4'", "page_step='0'"), u"page_step='0'"_s,
          u"2 error page-counts-invalid: there is no step (page_step) that leads from 26 to 154 pages; write how many pages one package has"_s },
        { "step of a fixed page count", withSecondProduct("<product type='A' article_id='2' pages='4' page_step='2'/>"),
          u"<product>"_s,
          u"17 warning max-pages-missing: there is a step (page_step), but no highest page count (max_pages), so 4 "
          "pages are the only count; write the highest one"_s },
        { "too many page counts", changed("max_pages='154'", "max_pages='15400'"), u"max_pages='15400'"_s,
          u"2 warning page-counts-excessive: there are 3844 page counts from 26 to 15400; lower max_pages, or raise page_step"_s },
    };
}

QList<Mistake> spineMistakes()
{
    return {
        { "no composition",
          changed("<composition units='cm'>\n<spine packages_per_block='2' base_width='0.8' block_width='0.1' "
                  "additional_width='0.05'/>\n</composition>\n",
                  ""),
          u"<product>"_s,
          u"2 error spine-missing: the product is bound (glue), but has no spine in a composition; add one with its widths"_s },
        { "no spine",
          changed("<spine packages_per_block='2' base_width='0.8' block_width='0.1' additional_width='0.05'/>\n", ""),
          u"<composition>"_s,
          u"7 error spine-missing: the product is bound (glue), but has no spine in a composition; add one with its widths"_s },
        { "spine without width",
          changed(" packages_per_block='2' base_width='0.8' block_width='0.1' additional_width='0.05'", ""),
          u"<spine>"_s,
          u"8 error spine-missing: the product is bound, but its spine has no width; write a base_width"_s },
        { "negative base width", changed("base_width='0.8'", "base_width='-0.8'"), u"base_width='-0.8'"_s,
          u"8 error spine-negative: base_width is below 0; write 0 or more"_s },
        { "negative additional width", changed("additional_width='0.05'", "additional_width='-0.05'"),
          u"additional_width='-0.05'"_s, u"8 error spine-negative: additional_width is below 0; write 0 or more"_s },
        { "shrinks a little", changed("block_width='0.1'", "block_width='-0.001'"), u"block_width='-0.001'"_s,
          u"8 error spine-negative: block_width is below 0; write 0 or more"_s },
        { "packages below 0", changed("packages_per_block='2'", "packages_per_block='-100'"),
          u"packages_per_block='-100'"_s, u"8 error spine-negative: packages_per_block is below 0; write 0 or more"_s },
        { "shrinks too far", changed("block_width='0.1'", "block_width='-0.05'"), u"block_width='-0.05'"_s,
          u"8 warning spine-font-too-small: the spine shrinks, so that at 154 pages it is too narrow for the smallest font; write a block_width of 0 or more"_s },
        { "grows backwards", changed("packages_per_block='2'", "packages_per_block='-1'"), u"packages_per_block='-1'"_s,
          u"8 warning spine-font-too-small: the spine shrinks, so that at 154 pages it is too narrow for the smallest font; write a packages_per_block of 0 or more"_s },
        { "too narrow from the start",
          changed("base_width='0.8' block_width='0.1'", "base_width='0.01' block_width='-0.05'"),
          u"block_width='-0.05'"_s, u"8 error spine-negative: block_width is below 0; write 0 or more"_s },
        { "both widths below 0", changed("base_width='0.8' block_width='0.1'", "block_width='-0.1' base_width='-0.8'"),
          u"base_width='-0.8'"_s, u"8 error spine-negative: base_width, block_width are below 0; write 0 or more"_s },
        { "no base width", changed(" base_width='0.8'", ""), u"<spine>"_s,
          u"8 warning spine-base-missing: the spine has other widths, but no base_width; write one, or 0 for none"_s },
        { "no packages", changed("packages_per_block='2' ", ""), u"<spine>"_s,
          u"8 warning spine-packages-missing: the spine has a block_width, but no packages_per_block, so it never "
          "grows; write how many packages make a block"_s },
        { "spine of another unit", changed("base_width='0.8'", "base_width='8'"), u"base_width='8'"_s,
          u"8 warning spine-too-wide: the spine is 97.0 mm wide at 154 pages, but bookbinders take at most 80 mm; check the widths and their unit"_s },
    };
}

QList<Mistake> optionMistakes()
{
    return {
        { "option without key", changed("key='alcolor' value='red'", "value='red'"), u"<form>"_s,
          u"12 error option-incomplete: the option has no key; write one, or take out the form"_s },
        { "default option without key", changed("key='alcolor' value='black'", "key='' value='black'"), u"key=''"_s,
          u"11 error option-incomplete: the option has no key; write one, or take out the form"_s },
        { "option without value", changed("value='red'", "value=''"), u"value=''"_s,
          u"12 error option-incomplete: the option has no value; write one, or take out the form"_s },
        { "default option without value", changed(" value='black'", ""), u"<form>"_s,
          u"11 error option-incomplete: the option has no value; write one, or take out the form"_s },
        { "option with nothing", changed("<forms>\n", "<forms><form/>\n"), u"<form>"_s,
          u"10 error option-incomplete: the option has no key and no value; write both, or take out the form"_s },
        { "option twice", changed("value='red'", "value='black'"), u"value='black'"_s,
          u"12 error option-duplicate: the option \"black\" of \"alcolor\" is already there in line 11; take out one"_s },
        { "default option twice", changed("value='red'", "value='black' preselected='true'"), u"value='black'"_s,
          u"12 error option-duplicate: the option \"black\" of \"alcolor\" is already there in line 11; take out one"_s },
        { "two defaults", changed("value='red'", "value='red' preselected='true'"), u"preselected='true'"_s,
          u"12 error option-default-twice: \"red\" is preselected for \"alcolor\", but \"black\" in line 11 is so already; preselect one"_s },
        { "three defaults",
          changed("value='red' color='red' price_class='LEZ2'/>",
                  "value='red' preselected='true'/>\n<form key='alcolor' value='blue' preselected='true'/>"),
          u"preselected='true'"_s,
          u"12 error option-default-twice: \"red\" is preselected for \"alcolor\", but \"black\" in line 11 is so already; preselect one"_s },
        { "no default of one key", changed(" preselected='true'", ""), u"<form>"_s,
          u"11 warning option-default-missing: no option of \"alcolor\" is preselected, so an order comes without any; preselect one"_s },
        { "no default of the only key",
          withSecondProduct("<product type='A' article_id='2'><forms>\n<form key='a' value='b'/>\n<form key='a' "
                            "value='c'/></forms></product>"),
          u"<form>"_s,
          u"18 warning option-default-missing: no option of \"a\" is preselected, so the first is taken; preselect one"_s },
        { "default with a mistake in its keys", changed("key='a;b' value='x;y'", "key='ab' value='x;y'"),
          u"value='x;y'"_s,
          u"13 error option-composite-mismatch: the keys \"ab\" and the values \"x;y\" are not equally many; write one value for each key"_s },
        { "option with a mistake in its keys", changed("key='a;b' value='v;w'", "key='ab' value='v;w'"),
          u"value='v;w'"_s,
          u"14 error option-composite-mismatch: the keys \"ab\" and the values \"v;w\" are not equally many; write one value for each key"_s },
        { "default with a mistake in its values", changed("value='x;y'", "value='xy'"), u"value='xy'"_s,
          u"13 error option-composite-mismatch: the keys \"a;b\" and the values \"xy\" are not equally many; write one value for each key"_s },
        { "option without value beside a single one",
          withSecondProduct("<product type='A' article_id='2'><forms>\n<form key='a' value='b'/>\n<form key='a'/>"
                            "</forms></product>"),
          u"<form>"_s, u"19 error option-incomplete: the option has no value; write one, or take out the form"_s },
        { "options of another key without value", changed("<forms>\n", "<forms>\n<form key='c'/>\n"), u"<form>"_s,
          u"11 error option-incomplete: the option has no value; write one, or take out the form"_s },
        { "unreadable colour", changed("color='red'", "color='weinrot'"), u"color='weinrot'"_s,
          u"12 warning option-color-invalid: \"weinrot\" is no colour; write an English name, or \"#\" and 6 hexadecimal digits"_s },
        { "colour with too few digits", changed("color='#1a1a1a'", "color='#1a1a1'"), u"color='#1a1a1'"_s,
          u"11 warning option-color-invalid: \"#1a1a1\" is no colour; it has 5 instead of 6 digits"_s },
        { "more keys than values", changed("value='v;w'", "value='v'"), u"value='v'"_s,
          u"14 error option-composite-mismatch: the keys \"a;b\" and the values \"v\" are not equally many; write one value for each key"_s },
        { "more values than keys", changed("value='red'", "value='red;blue'"), u"value='red;blue'"_s,
          u"12 error option-composite-mismatch: the keys \"alcolor\" and the values \"red;blue\" are not equally many; write one value for each key"_s },
        { "option with an empty value", changed("<forms>\n", "<forms><form key='' value=''/>\n"), u"key=''"_s,
          u"10 error option-incomplete: the option has no key and no value; write both, or take out the form"_s },
        { "comma in a value", changed("value='red'", "value='red,blue'"), u"value='red,blue'"_s,
          u"12 warning option-separator: the value \"red,blue\" has a separator of orders in it; only semicolons join "
          "several"_s },
        { "blank behind a key", changed("key='alcolor' value='red'", "key='alcolor ' value='red'"), u"key='alcolor '"_s,
          u"12 warning option-blank: the key \"alcolor \" has a blank around it; take it out"_s },
        { "letter case of a key", changed("key='alcolor' value='red'", "key='Alcolor' value='red'"), u"key='Alcolor'"_s,
          u"12 warning option-letter-case: the key \"Alcolor\" differs from \"alcolor\" in line 11 in letter case "
          "only; choose one spelling"_s },
        { "two names of a key",
          changed("value='black'", "value='black' key_name='A'").replace("value='red'", "value='red' key_name='B'"),
          u"key_name='B'"_s,
          u"12 warning option-key-names: the key \"alcolor\" is named \"B\" here, but \"A\" in line 11; choose one name"_s },
    };
}

QList<Mistake> barcodeMistakes()
{
    return {
        { "barcode without width", changed("width='38' height='10' pageNr='2'/>", "width='0' height='10' pageNr='2'/>"),
          u"width='0'"_s, u"4 error barcode-invalid: the barcode has no width or no height; write both above 0"_s },
        { "barcode with negative height", changed("height='10' pageNr='2'/>", "height='-10' pageNr='2'/>"),
          u"height='-10'"_s, u"4 error barcode-invalid: the barcode has no width or no height; write both above 0"_s },
        { "barcode without image", changed("image='a.png'", "image=''"), u"image=''"_s,
          u"5 error barcode-invalid: the barcode has no image; name a file, or leave out the attribute"_s },
        { "barcode behind the last page", changed("pageNr='2'/>", "pageNr='155'/>"), u"pageNr='155'"_s,
          u"4 error barcode-page-impossible: there is no page 155; the product has at most 154, so write that or less"_s },
        { "barcode on a negative page", changed("pageNr='2'/>", "pageNr='-1'/>"), u"pageNr='-1'"_s,
          u"4 error barcode-page-impossible: there is no page -1; write 0 or more"_s },
        { "barcode left of the page", changed("position_x='12'", "position_x='-0.1'"), u"position_x='-0.1'"_s,
          u"4 error barcode-outside-page: the barcode begins left of the page; write a position_x of 0 or more"_s },
        { "barcode above the page", changed("position_x='12' position_y='290.5'", "position_x='12' position_y='9'"),
          u"position_y='9'"_s,
          u"4 error barcode-outside-page: the barcode begins above the page; write a position_y of at least its height"_s },
        { "barcode right of the page", changed("position_x='62'", "position_x='600'"), u"position_x='600'"_s,
          u"5 error barcode-outside-page: the barcode ends 638 mm from the left and 290.5 mm from the top, where there is no page; move it, or make it smaller"_s },
        { "barcode below the page", changed("position_x='62' position_y='290.5'", "position_x='62' position_y='2905'"),
          u"position_y='2905'"_s,
          u"5 error barcode-outside-page: the barcode ends 100 mm from the left and 2905 mm from the top, where there is no page; move it, or make it smaller"_s },
        { "barcode right of an upright page",
          changed("position_x='62' position_y='290.5'", "position_x='250' position_y='100'"), u"position_x='250'"_s,
          u"5 error barcode-outside-page: the barcode ends 288 mm from the left and 100 mm from the top, where there is no page; move it, or make it smaller"_s },
        { "barcode below a wide page",
          changed("orientation='portrait'", "orientation='landscape'")
                  .replace("position_x='12' position_y='290.5'", "position_y='200'")
                  .replace("position_y='290.5'", "position_y='277'"),
          u"position_y='277'"_s,
          u"5 error barcode-outside-page: the barcode ends 100 mm from the left and 277 mm from the top, where there is no page; move it, or make it smaller"_s },
        { "barcode outside of a square page",
          changed("orientation='portrait'", "orientation='square'")
                  .replace("position_y='290.5'", "position_y='200'")
                  .replace("position_x='62'", "position_x='270'"),
          u"position_x='270'"_s,
          u"5 error barcode-outside-page: the barcode ends 308 mm from the left and 200 mm from the top, where there is no page; move it, or make it smaller"_s },
        { "barcode on a page that would be a ribbon",
          changed("orientation='portrait' ", "")
                  .replace("position_x='62' position_y='290.5'", "position_x='900' position_y='20'"),
          u"position_x='900'"_s,
          u"5 error barcode-outside-page: the barcode ends 938 mm from the left and 20 mm from the top, where there is no page; move it, or make it smaller"_s },
        { "barcode far from a page of any size",
          changed("space_magnitude='600cm2' ", "").replace("position_x='62'", "position_x='9999'"),
          u"position_x='9999'"_s,
          u"5 error barcode-outside-page: the barcode ends 10037 mm from the left and 290.5 mm from the top, where there is no page; move it, or make it smaller"_s },
        { "barcode half outside over another", changed("position_x='62'", "position_x='-2'"), u"position_x='-2'"_s,
          u"5 error barcode-outside-page: the barcode begins left of the page; write a position_x of 0 or more"_s },
        { "barcodes overlap", changed("position_x='62'", "position_x='49.9'"), u"<barcode>"_s,
          u"5 error barcode-overlap: the barcode overlaps the one in line 4; move one of them"_s },
        { "barcode without a width", changed("width='38' height='10' pageNr='2'/>", "height='10' pageNr='2'/>"),
          u"<barcode>"_s,
          u"4 warning barcode-size-missing: the barcode has no width, so it takes 1 unit; write how large it is"_s },
        { "barcode on no page", changed(" pageNr='2'/>", "/>"), u"<barcode>"_s,
          u"4 warning barcode-page-missing: the barcode has no page number (pageNr), so it stands on page 0; write the page that it is on"_s },
        { "barcode below an upright page",
          changed("position_x='62' position_y='290.5'", "position_x='62' position_y='500'"), u"position_y='500'"_s,
          u"5 warning barcode-off-usual-page: the barcode ends 100 mm from the left and 500 mm from the top, but no "
          u"page "
          "of this size class and orientation is so large; move it, or make it smaller"_s },
    };
}

QList<Mistake> priceClassMistakes()
{
    return {
        { "price class of an option", changed("price_class='LEZ2'", "price_class='LEZ7'"), u"price_class='LEZ7'"_s,
          u"12 warning price-class-unknown: the price class \"LEZ7\" belongs to no known group; did you mean \"LEZ1\", \"LEZ2\" or \"LEZ3\"?"_s },
        { "price class in small letters", changed("price_class='LEZ2'", "price_class='lez2'"), u"price_class='lez2'"_s,
          u"12 warning price-class-unknown: the price class \"lez2\" belongs to no known group; did you mean \"LEZ2\"?"_s },
        { "price class of pages", changed("page_price_class='RODA6x9'", "page_price_class='RODA'"),
          u"page_price_class='RODA'"_s,
          u"2 warning price-class-unknown: the price class \"RODA\" belongs to no known group; did you mean \"RODA6x9\"?"_s },
    };
}

QList<Mistake> nameMistakes()
{
    return {
        { "barcodes twice", changed("</forms>", "</forms>\n<barcodes><barcode width='-1'/></barcodes>"),
          u"<barcodes>"_s,
          u"16 error element-ignored: only the first barcodes is read, the one in line 3; make them one"_s },
        { "composition twice", changed("</forms>", "</forms>\n<composition><spine base_width='x'/></composition>"),
          u"<composition>"_s,
          u"16 error element-ignored: only the first composition is read, the one in line 7; make them one"_s },
        { "forms twice", changed("</forms>", "</forms>\n<forms><form/></forms>"), u"<forms>"_s,
          u"16 error element-ignored: only the first forms is read, the one in line 10; make them one"_s },
        { "two spines", changed("</composition>", "<spine/></composition>"), u"<spine>"_s,
          u"9 error element-ignored: only the first spine is read, the one in line 8; make them one"_s },
        { "product in a product", changed("<forms>", "<product/><forms>"), u"<product>"_s,
          u"10 error element-ignored: a product inside a product is not read; put it behind the outer one"_s },
        { "misspelt product", changed("<products>", "<products><prodcut type='B'/>"), u"<prodcut>"_s,
          u"1 warning element-misspelt: the element \"prodcut\" is not read; did you mean \"product\"?"_s },
        { "parts outside of products", changed("<products>", "<products><forms><form/></forms>"), u"<forms>"_s,
          u"1 warning element-misplaced: the element \"forms\" is not read outside of a product; move it into one"_s },
        { "prefix", changed("<form key='alcolor' value='red'", "<x:form xmlns:x='y' key='alcolor' value='red'"),
          u"<x:form>"_s,
          u"12 warning element-prefixed: the element \"x:form\" is not read because of its prefix; without it, it is "
          "\"form\""_s },
        { "misspelt attribute", changed("max_pages=", "maxpage="), u"maxpage='154'"_s,
          u"2 warning attribute-misspelt: the attribute \"maxpage\" is not read; did you mean \"max_pages\"?"_s },
        { "misplaced attribute", changed("<spine ", "<spine units='mm' "), u"units='mm'"_s,
          u"8 warning attribute-misplaced: the attribute \"units\" is not read in spine; it belongs to composition"_s },
    };
}

QList<Mistake> commentMistakes()
{
    return {
        { "comment of no use", changed("<forms>\n", "<!-- rvcatalog: ignore option-incomplete --><forms>\n"),
          u"<!-->"_s, u"10 warning suppression-unused: this comment silences no finding of option-incomplete"_s },
        { "comment with an unknown rule", changed("<forms>\n", "<!-- rvcatalog: ignore option-incomplet --><forms>\n"),
          u"<!-->"_s,
          u"10 warning suppression-unknown: there is no rule \"option-incomplet\"; did you mean "
          "\"option-incomplete\"?"_s },
    };
}

QList<Mistake> mistakes()
{
    return idMistakes() + keywordMistakes() + valueMistakes() + pageCountMistakes() + spineMistakes() + optionMistakes()
            + barcodeMistakes() + priceClassMistakes() + nameMistakes() + commentMistakes();
}

}

class tst_RVCatalogueCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clean_data();
    void clean();
    void broken_data();
    void broken();
    void everyRuleHasAMistake();
    void examples_data();
    void examples();
    void mendedExamples_data();
    void mendedExamples();
    void documentation();
    void options_data();
    void options();
    void severalInOneProduct();
    void shrinkingSpines_data();
    void shrinkingSpines();
    void withoutAReader();
    void disabledRules();
    void severities();
    void productsOfFindings();
    void ofThePrintHouse();
    void copies();
    void nullProduct();
    void sampleIsClean();
    void encodings_data();
    void encodings();
    void findingsBeforeAnError();
    void findingsInOrder();
    void longTexts();
    void manyProducts();
    void duplicatesFarApart();
    void duplicatesFarToTheRight();
    void missingIdsAreNoDuplicates();
    void everyKeyword();
    void unknownAsDecoded();
    void guesses_data();
    void guesses();
    void numbersAsTheLibraryReadsThem();
};

void tst_RVCatalogueCheck::clean_data()
{
    QTest::addColumn<QByteArray>("file");

    QTest::newRow("unchanged catalogue") << QByteArray(CLEAN_CATALOGUE);
    QTest::newRow("only required attributes") << withSecondProduct("<product type='A' article_id='2'/>");
    QTest::newRow("fixed page count of several pieces")
            << withSecondProduct("<product type='A' article_id='2' pages='4' pieces='10'/>");
    QTest::newRow("step of a fixed page count")
            << withSecondProduct("<product type='A' article_id='2' pages='4' max_pages='4' page_step='2'/>");
    QTest::newRow("photo box") << withSecondProduct("<product type='A' article_id='2' pages='10' photo_box='TRUE'/>");
    QTest::newRow("photo box in tens") << withSecondProduct(
            "<product type='A' article_id='2' pages='10' max_pages='60' page_step='10' photo_box='1'/>");
    QTest::newRow("letter case and blanks of keywords")
            << changed("cover_type='hardcover'", "cover_type=' HardCover '");
    QTest::newRow("keyword list") << changed("orientation='portrait'", "orientation='portrait, square'");
    QTest::newRow("keyword of a combination") << changed("orientation='portrait'", "orientation='all'");
    QTest::newRow("code of a photo paper") << changed("foto_paper_type='matt'", "foto_paper_type='2'");
    QTest::newRow("stapled book without spine")
            << withSecondProduct("<product type='A' article_id='2' article_class='book' page_binding='stapled'/>");
    QTest::newRow("calendar without spine") << withSecondProduct(
            "<product type='A' article_id='2' article_class='calendar' page_binding='spiral' pages='13'/>");
    QTest::newRow("spine that does not grow")
            << changed("packages_per_block='2' base_width='0.8' block_width='0.1'", "base_width='0.8'");
    QTest::newRow("thin spine") << changed("base_width='0.8' block_width='0.1'", "base_width='0.01'");
    for (const char *unit : { "mm", "cm", "inch", "in", "pt", "point", "0.1mm" })
        QTest::addRow("unit %s", unit) << changed("units='cm'", QByteArray("units='") + unit + '\'');
    QTest::newRow("no unit") << changed(" units='cm'", "");
    QTest::newRow("one option without a default")
            << withSecondProduct("<product type='A' article_id='2'><forms><form key='a' value='b'/></forms></product>");
    QTest::newRow("options of two keys with the same value")
            << changed("value='red'", "value='red' name='a'/>\n<form key='c' value='red' preselected='on'");
    QTest::newRow("colour without text") << changed("color='red'", "color=''");
    QTest::newRow("colour with transparency") << changed("color='red'", "color='#80ff0000'");
    QTest::newRow("free price class") << changed("price_class='LEZ2'", "price_class='0815'");
    QTest::newRow("empty price class") << changed("price_class='LEZ2'", "price_class=''");
    QTest::newRow("shipping group 0") << changed("shipping_group='2'", "shipping_group='0'");
    QTest::newRow("plus and blanks around numbers") << changed("pages='26'", "pages=' +26 '");
    QTest::newRow("numbers with an exponent") << changed("position_y='290.5' width='38' height='10' pageNr='2'/>",
                                                         "position_y='2.905e2' width='38' height='1e1' pageNr='2'/>");
    QTest::newRow("barcodes side by side") << changed("position_x='62'", "position_x='50'");
    QTest::newRow("barcodes of one place on two pages")
            << changed("position_x='62' position_y='290.5' width='38' height='10' pageNr='2'",
                       "position_x='12' position_y='290.5' "
                       "width='38' height='10' pageNr='3'");
    QTest::newRow("barcode at the edge") << changed("position_x='12' position_y='290.5'",
                                                    "position_x='0' position_y='10'");
    QTest::newRow("barcode on the last page") << changed("pageNr='2'/>", "pageNr='154'/>");
    QTest::newRow("barcode on page 0") << changed("pageNr='2'/>", "pageNr='0'/>");
    QTest::newRow("barcode far away on a page of any size")
            << changed("space_magnitude='600cm2' ", "").replace("position_x='62'", "position_x='900'");
    QTest::newRow("barcode far away on the largest page")
            << changed("space_magnitude='600cm2' ", "space_magnitude='2400cm2' ")
                       .replace("position_x='62'", "position_x='900'");
    QTest::newRow("foreign elements and attributes") << changed(
            "<forms>", "text<description foo='bar'>a &amp; b</description><x:y xmlns:x='z'/><forms foo='bar'>");
    QTest::newRow("barcode at the corner of a page of its usual area") << withSecondProduct(
            "<product type='A' article_id='2' space_magnitude='220cm2' orientation='square'><barcodes>"
            "<barcode position_x='112' position_y='150' width='38' height='10' pageNr='1'/></barcodes></product>");
    QTest::newRow("barcode at the corner of a wide page") << withSecondProduct(
            "<product type='A' article_id='2' space_magnitude='600cm2' orientation='landscape'><barcodes>"
            "<barcode position_x='259' position_y='210' width='38' height='10' pageNr='1'/></barcodes></product>");
    QTest::newRow("barcode at the corner of a panorama") << withSecondProduct(
            "<product type='A' article_id='2' space_magnitude='1200cm2' orientation='landscape_slim'><barcodes>"
            "<barcode position_x='862' position_y='130' width='38' height='10' pageNr='1'/></barcodes></product>");
    QTest::newRow("shipping group below 0") << changed("shipping_group='2'", "shipping_group='-2'");
    QTest::newRow("parts outside of products") << changed("<products>", "<products><x><forms/><forms/><spine/></x>");
    QTest::newRow("parts in a foreign element")
            << changed("<forms>", "<x><forms/><product/></x><x><forms/></x><forms>");
    QTest::newRow("family around products")
            << changed("<products>", "<products><family name='x'>").replace("</products>", "</family></products>");
    QTest::newRow("root with another name") << changed("<products>", "<p>").replace("</products>", "</p>");
    QTest::newRow("document type") << "<?xml version='1.0'?><!DOCTYPE products>" + QByteArray(CLEAN_CATALOGUE);
}

void tst_RVCatalogueCheck::clean()
{
    QFETCH(QByteArray, file);
    QVERIFY(!file.isEmpty());
    const Checked checked = check(file);
    QCOMPARE(checked.texts(), QStringList());
    QVERIFY(!checked.hasError);
    QCOMPARE(checked.products, qint64(2));
}

void tst_RVCatalogueCheck::broken_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("finding");

    for (const Mistake &mistake : mistakes())
        QTest::newRow(mistake.situation) << mistake.file << mistake.place << mistake.finding;
}

void tst_RVCatalogueCheck::broken()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, finding);
    QVERIFY(!file.isEmpty());
    const Checked checked = check(file);
    QCOMPARE(checked.texts(), QStringList { finding });
    QTEST(textAt(file, checked.findings.first().range()), "place");
    QVERIFY(!checked.hasError);
    const int line = finding.section(u' ', 0, 0).toInt();
    QCOMPARE(checked.findings.first().product(), qint64(line == 1 ? -1 : line < 17 ? 0 : 1));
}

void tst_RVCatalogueCheck::everyRuleHasAMistake()
{
    QStringList broken;
    for (const Mistake &mistake : mistakes())
        broken += mistake.finding.section(u' ', 2, 2).chopped(1);
    broken.removeDuplicates();
    broken.sort();
    QStringList rules;
    for (const RVCatalogueRule rule : RVCatalogueRule::all())
        rules += rule.name();
    rules.sort();
    QCOMPARE(listDifference(u"mistakes() in tst_RVCatalogueCheck.cpp"_s, broken, rules), QString());
}

void tst_RVCatalogueCheck::examples_data()
{
    QTest::addColumn<QString>("rule");

    for (const RVCatalogueRule rule : RVCatalogueRule::all())
        QTest::newRow(rule.name().data()) << rule.name().toString();
}

void tst_RVCatalogueCheck::examples()
{
    QFETCH(QString, rule);
    const QByteArray example = RVCatalogueRule::find(rule).example();
    const Checked checked = check(example);
    QVERIFY(!checked.hasError);
    QCOMPARE(checked.rules(), QStringList { rule });
    QVERIFY(example.startsWith("<products>\n"));
    QVERIFY(example.endsWith("\n</products>\n"));
}

void tst_RVCatalogueCheck::mendedExamples_data()
{
    examples_data();
}

// Only one piece of the example differs.
void tst_RVCatalogueCheck::mendedExamples()
{
    QFETCH(QString, rule);
    constexpr qsizetype mostLines = 5;
    const QByteArray mended = RVCatalogueRule::find(rule).mendedExample();
    const Checked checked = check(mended);
    QVERIFY(!checked.hasError);
    QCOMPARE(checked.rules(), QStringList());

    QList<QByteArray> before = RVCatalogueRule::find(rule).example().split('\n');
    QList<QByteArray> after = mended.split('\n');
    while (!before.isEmpty() && !after.isEmpty() && before.first() == after.first()) {
        before.removeFirst();
        after.removeFirst();
    }
    while (!before.isEmpty() && !after.isEmpty() && before.last() == after.last()) {
        before.removeLast();
        after.removeLast();
    }
    QVERIFY(!before.isEmpty() || !after.isEmpty());
    QVERIFY2(qMax(before.size(), after.size()) <= mostLines, mended.constData());
}

// The table of the page has the rules in its order, with the severity of all that are no errors.
void tst_RVCatalogueCheck::documentation()
{
    static const QRegularExpression row(u"^\\| `([a-z]+(?:-[a-z]+)+)` \\| (?:an? (warning|note): )?"_s,
                                        QRegularExpression::MultilineOption);
    const QString text = QString::fromUtf8(readFile(QStringLiteral(DOCS "/catalogue-format.md")));
    QStringList documented;
    for (const QRegularExpressionMatch &match : row.globalMatch(text))
        documented += match.captured(1) + u' ' + (match.hasCaptured(2) ? match.captured(2) : u"error"_s);
    QStringList rules;
    for (const RVCatalogueRule rule : RVCatalogueRule::all())
        rules += rule.name() + u' ' + rvSeverityName(rule.severity());
    QCOMPARE(listDifference(u"docs/catalogue-format.md"_s, documented, rules), QString());
}

void tst_RVCatalogueCheck::options_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QStringList>("findings");

    QTest::newRow("option three times, others between")
            << QByteArray("<form key='b' value='x' preselected='1'/>\n"
                          "<form key='a' value='y' preselected='1'/>\n"
                          "<form key='b' value='x'/>\n"
                          "<form key='b' value='w'/>\n"
                          "<form key='b' value='x'/>\n")
            << QStringList {
                   u"4 error option-duplicate: the option \"x\" of \"b\" is already there in line 2; take out one"_s,
                   u"6 error option-duplicate: the option \"x\" of \"b\" is already there in line 2; take out one"_s
               };
    QTest::newRow("incomplete option in front of others")
            << QByteArray("<form key='a'/>\n<form key='a' value='b'/>\n<form key='a' value='c'/>\n")
            << QStringList {
                   u"2 error option-incomplete: the option has no value; write one, or take out the form"_s,
                   u"3 warning option-default-missing: no option of \"a\" is preselected, so the first is taken; "
                   "preselect one"_s
               };
    QTest::newRow("default repeats an option, and another default follows")
            << QByteArray("<form key='a' value='x'/>\n"
                          "<form key='a' value='x' preselected='1'/>\n"
                          "<form key='a' value='b' preselected='1'/>\n")
            << QStringList {
                   u"3 error option-duplicate: the option \"x\" of \"a\" is already there in line 2; take out one"_s,
                   u"4 error option-default-twice: \"b\" is preselected for \"a\", but \"x\" in line 3 is so already; preselect one"_s
               };
    QTest::newRow("three defaults, not by the alphabet")
            << QByteArray("<form key='a' value='z' preselected='1'/>\n"
                          "<form key='a' value='x' preselected='1'/>\n"
                          "<form key='a' value='y' preselected='1'/>\n")
            << QStringList {
                   u"3 error option-default-twice: \"x\" is preselected for \"a\", but \"z\" in line 2 is so already; preselect one"_s
               };
    QTest::newRow("two defaults of each of two keys")
            << QByteArray("<form key='b' value='2' preselected='1'/>\n"
                          "<form key='a' value='2' preselected='1'/>\n"
                          "<form key='b' value='1' preselected='1'/>\n"
                          "<form key='a' value='1' preselected='1'/>\n")
            << QStringList {
                   u"4 error option-default-twice: \"1\" is preselected for \"b\", but \"2\" in line 2 is so already; preselect one"_s,
                   u"5 error option-default-twice: \"1\" is preselected for \"a\", but \"2\" in line 3 is so already; preselect one"_s
               };
    QTest::newRow("two keys without a default")
            << QByteArray("<form key='b' value='2'/>\n"
                          "<form key='a' value='2'/>\n"
                          "<form key='a' value='1'/>\n"
                          "<form key='b' value='1'/>\n")
            << QStringList {
                   u"2 warning option-default-missing: no option of \"b\" is preselected, so the first is taken; preselect one"_s,
                   u"3 warning option-default-missing: no option of \"a\" is preselected, so the first is taken; preselect one"_s
               };
    QTest::newRow("composite options that do not match, the default of another key in front")
            << QByteArray("<form key='ab' value='x;y' preselected='1'/>\n"
                          "<form key='c;d' value='z' preselected='1'/>\n"
                          "<form key='g' value='1'/>\n")
            << QStringList {
                   u"2 error option-composite-mismatch: the keys \"ab\" and the values \"x;y\" are not equally many; write one value for each key"_s,
                   u"3 error option-composite-mismatch: the keys \"c;d\" and the values \"z\" are not equally many; write one value for each key"_s
               };
    QTest::newRow("unknown what is preselected")
            << QByteArray("<form key='a' value='1' preselected='maybe'/>\n"
                          "<form key='b' value='1' preselected='1'/>\n")
            << QStringList {
                   u"2 error boolean-invalid: preselected is \"maybe\", which is neither true nor false; there are true, false, yes, no, on, off, 1 and 0"_s
               };
    QTest::newRow("unknown what is preselected beside a default")
            << QByteArray("<form key='a' value='1' preselected='maybe'/>\n"
                          "<form key='a' value='2' preselected='1'/>\n")
            << QStringList {
                   u"2 error boolean-invalid: preselected is \"maybe\", which is neither true nor false; there are true, false, yes, no, on, off, 1 and 0"_s
               };
    QTest::newRow("different keys and values with the same letters")
            << QByteArray("<form key='a' value='bc' preselected='1'/>\n"
                          "<form key='ab' value='c' preselected='1'/>\n")
            << QStringList();
    QTest::newRow("one hundred duplicates in one product")
            << QByteArray("<form key='a' value='b' preselected='1'/>").repeated(100) + "\n<form key='a' value='b'/>"
            << QStringList(
                       99,
                       u"2 error option-duplicate: the option \"b\" of \"a\" is already there in line 2; take out one"_s)
                    + QStringList {
                          u"3 error option-duplicate: the option \"b\" of \"a\" is already there in line 2; take out one"_s
                      };
}

void tst_RVCatalogueCheck::options()
{
    QFETCH(QByteArray, options);
    QTEST(check(withOptions(options)).texts(), "findings");
}

// One mistake is one finding, and two are two, in the order of their places.
void tst_RVCatalogueCheck::severalInOneProduct()
{
    const QString missing =
            u"13 warning option-default-missing: no option of \"a;b\" is preselected, so an order comes "
            "without any; preselect one"_s;
    const Checked incomplete = check(changed(" preselected='yes'", "").replace("value='black'", "value=''"));
    QCOMPARE(incomplete.texts(),
             QStringList({ u"11 error option-incomplete: the option has no value; write one, or take out the form"_s,
                           missing }));
    const Checked mismatch = check(changed("value='v;w'", "value='vw'").replace(" preselected='true'", ""));
    QCOMPARE(mismatch.texts(),
             QStringList({ u"11 warning option-default-missing: no option of \"alcolor\" is preselected, so an order "
                           "comes without any; preselect one"_s,
                           u"14 error option-composite-mismatch: the keys \"a;b\" and the values \"vw\" are not "
                           "equally many; write one value for each key"_s }));
    const Checked line = check(
            "<products><product page_step='x' article_id='0' cover_type='hard, foo' type=''/></products>");
    QCOMPARE(
            line.texts(),
            QStringList(
                    { u"1 error number-invalid: page_step is \"x\", which is no whole number; write nothing but digits"_s,
                      u"1 error article-id-invalid: the article id \"0\" is no whole number above 0; write 1 or more"_s,
                      u"1 note keyword-legacy: \"hard\" is an alias in cover_type; the main keyword is \"hardcover\""_s,
                      u"1 error keyword-unknown: \"foo\" is no keyword of cover_type; \"rvcatalog keywords cover_type\" lists them"_s,
                      u"1 error type-missing: the product has no type; write the code that projects have for it"_s }));
}

void tst_RVCatalogueCheck::shrinkingSpines_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    const QString negative = u"8 error spine-negative: block_width is below 0; write 0 or more"_s;
    QTest::newRow("in an unknown unit")
            << changed("units='cm'", "units='MM'")
                       .replace("base_width='0.8' block_width='0.1'", "base_width='8' block_width='-0.5'")
            << QStringList { u"7 error unit-unknown: there is no unit \"MM\"; write \"mm\""_s, negative };
    QTest::newRow("with an unreadable width")
            << changed("block_width='0.1' additional_width='0.05'", "block_width='-0.05' additional_width='x'")
            << QStringList {
                   negative,
                   u"8 error number-invalid: additional_width is \"x\", which is no number; write digits, and a point before decimals"_s
               };
    QTest::newRow("with another negative width")
            << changed("block_width='0.1' additional_width='0.05'", "block_width='-0.05' additional_width='-0.05'")
            << QStringList { u"8 error spine-negative: block_width, additional_width are below 0; write 0 or more"_s };
    QTest::newRow("with unreadable page counts")
            << changed("block_width='0.1'", "block_width='-0.05'").replace(" pages='26'", " pages='many'")
            << QStringList {
                   u"2 error number-invalid: pages is \"many\", which is no whole number; write nothing but digits"_s,
                   negative
               };
}

// The font is measured only if there is no other fault.
void tst_RVCatalogueCheck::shrinkingSpines()
{
    QFETCH(QByteArray, file);
    QVERIFY(!file.isEmpty());
    QTEST(check(file).texts(), "findings");
}

void tst_RVCatalogueCheck::disabledRules()
{
    const QByteArray file = changed("cover_type='hardcover'", "cover_type='hard, foo'");
    QCOMPARE(check(file).findings.size(), 2);
    QCOMPARE(
            check(file, { u"keyword-legacy"_s }).texts(),
            QStringList {
                    u"2 error keyword-unknown: \"foo\" is no keyword of cover_type; \"rvcatalog keywords cover_type\" lists them"_s });
    QCOMPARE(check(file, { u"keyword-legacy"_s, u"keyword-unknown"_s }).texts(), QStringList());
    QCOMPARE(check("<p/>", { u"products-missing"_s }).texts(), QStringList());
    QCOMPARE(check(changed("type='FOT1' article_id='2'", "type='DUN9' article_id='1'"),
                   { u"type-duplicate"_s, u"article-id-duplicate"_s })
                     .texts(),
             QStringList());
    QCOMPARE(check(file, { u"no-such-rule"_s }).findings.size(), 2);
}

void tst_RVCatalogueCheck::severities()
{
    const RVCatalogueRule rule = RVCatalogueRule::find(u"keyword-unknown");
    const RVCatalogueProduct product = firstProduct("<product type='A' article_id='1' cover_type='nothing'/>");
    RVCatalogueCheck check;
    QCOMPARE(check.severity(rule), RVCatalogueSeverity::Error);
    check.disable(rule);
    QVERIFY(check.findings(product).isEmpty());
    check.setSeverity(rule, RVCatalogueSeverity::Note);
    QVERIFY(check.isEnabled(rule));
    QCOMPARE(check.severity(rule), RVCatalogueSeverity::Note);
    QCOMPARE(check.findings(product).value(0).severity(), RVCatalogueSeverity::Note);
    QCOMPARE(check.severity(RVCatalogueRule::find(u"type-missing")), RVCatalogueSeverity::Error);
    check.setSeverity(RVCatalogueRule(), RVCatalogueSeverity::Error);
    QCOMPARE(check.severity(RVCatalogueRule()), RVCatalogueSeverity::Note);

    check.setSeverity(RVCatalogueRule::find(u"products-missing"), RVCatalogueSeverity::Warning);
    CatalogueBuffer file("<p/>");
    RVCatalogueReader reader(&file);
    reader.setCheck(check);
    QCOMPARE(reader.begin(), reader.end());
    QCOMPARE(describe(reader.findings().value(0)), u"1 warning products-missing: there is no product in this file"_s);
}

void tst_RVCatalogueCheck::productsOfFindings()
{
    const RVCatalogueCheck check;
    const RVCatalogueProduct product = firstProduct("<product type='DUN9_30' pages='x'/>");
    QCOMPARE(check.findings(product).size(), 2);
    for (const RVCatalogueFinding &finding : check.findings(product))
        QCOMPARE(finding.productType(), u"DUN9_30"_s);
    QCOMPARE(check.findings(firstProduct("<product article_id='1'/>")).value(0).productType(), QString());
}

void tst_RVCatalogueCheck::ofThePrintHouse()
{
    RVCatalogueCheck check;
    const RVCatalogueCheck before = check;
    check.addForeignNames({ u"max_page"_s, u"from"_s });
    check.addForeignNames({ u"sku"_s });
    check.addPriceClasses({ u"B"_s, u"A"_s });
    check.addPriceClasses({ u"C"_s, u"A"_s });
    check.setPageSize(RVProductType(u"DUN9"_s), QSizeF(210, 297));
    QVERIFY(check.isForeign(u"max_page"_s));
    QVERIFY(check.isForeign(u"sku"_s));
    QVERIFY(!check.isForeign(u"From"_s));
    QCOMPARE(check.priceClasses(), (QStringList { u"A"_s, u"B"_s, u"C"_s }));
    QCOMPARE(check.pageSize(RVProductType(u"DUN9_30"_s)), QSizeF(210, 297));
    QVERIFY(!check.pageSize(RVProductType(u"DUN5"_s)).isValid());
    QVERIFY(!before.isForeign(u"sku"_s));
    QVERIFY(before.priceClasses().isEmpty());
    QVERIFY(!before.pageSize(RVProductType(u"DUN9"_s)).isValid());
}

void tst_RVCatalogueCheck::copies()
{
    const RVCatalogueRule rule = RVCatalogueRule::find(u"spine-missing");
    RVCatalogueCheck check;
    QVERIFY(check.isEnabled(rule));
    QVERIFY(!check.isEnabled(RVCatalogueRule()));
    RVCatalogueCheck copy = check;
    copy.disable(rule);
    QVERIFY(!copy.isEnabled(rule));
    QVERIFY(check.isEnabled(rule));
    check = std::move(copy);
    QVERIFY(!check.isEnabled(rule));
    copy = check;
    copy.disable(RVCatalogueRule());
    QVERIFY(!copy.isEnabled(rule));
    QVERIFY(copy.isEnabled(RVCatalogueRule::find(u"spine-negative")));
}

// The check sorts its findings in the order of the file.
void tst_RVCatalogueCheck::withoutAReader()
{
    QByteArray file = "<p><product page_step='x' article_id='0' cover_type='foo' type=''/></p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    const RVCatalogueProduct product = RVCatalogueReader(&buffer).next();
    QVERIFY(product.findings().isEmpty());
    Checked checked;
    checked.findings = RVCatalogueCheck().findings(product);
    QCOMPARE(checked.rules(),
             QStringList({ u"number-invalid"_s, u"article-id-invalid"_s, u"keyword-unknown"_s, u"type-missing"_s }));
}

void tst_RVCatalogueCheck::nullProduct()
{
    QVERIFY(RVCatalogueCheck().findings(RVCatalogueProduct()).isEmpty());
}

void tst_RVCatalogueCheck::sampleIsClean()
{
    const Checked checked = check(readFile(QStringLiteral(SAMPLES "/products.xml")));
    QCOMPARE(checked.texts(), QStringList());
    QVERIFY(!checked.hasError);
    QCOMPARE(checked.products, qint64(49));
}

void tst_RVCatalogueCheck::encodings_data()
{
    QTest::addColumn<QByteArray>("file");

    const QByteArray text =
            "<products>\n<product type='Ä' article_id='1'/>\n<p>ü<product type='Ä' article_id='2'/></p>\n"
            "</products>\n";
    const QByteArray latin1 = QString::fromUtf8(text).toLatin1();
    QTest::newRow("UTF-8") << text;
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + text;
    QTest::newRow("UTF-16") << utf16(text);
    QTest::newRow("Latin-1") << "<?xml version='1.0' encoding='ISO-8859-1'?>" + latin1;
    QTest::newRow("CRLF") << QByteArray(text).replace("\n", "\r\n");
    QTest::newRow("CR") << QByteArray(text).replace("\n", "\r");
}

void tst_RVCatalogueCheck::encodings()
{
    QFETCH(QByteArray, file);
    const Checked checked = check(file);
    QCOMPARE(
            checked.texts(),
            QStringList {
                    u"3 error type-duplicate: the type \"Ä\" is already that of the product in line 2; write another, or take out one"_s });
    const RVFileRange range = checked.findings.first().range();
    QCOMPARE(range.begin.column, qint64(14));
    QCOMPARE(range.end.line, qint64(3));
    QCOMPARE(range.end.column, qint64(22));
    QVERIFY(!checked.hasError);
}

void tst_RVCatalogueCheck::findingsBeforeAnError()
{
    const Checked checked = check("<p>\n<product type='A'/>\n<product type='A' article_id='1'/></q>");
    QVERIFY(checked.hasError);
    QCOMPARE(
            checked.texts(),
            QStringList(
                    { u"2 error article-id-missing: the product has no article id; write its number into article_id"_s,
                      u"3 error type-duplicate: the type \"A\" is already that of the product in line 2; write another, or take out one"_s }));
    QCOMPARE(check("<p>").texts(), QStringList());
}

// The order is that of the file, also for findings about other products.
void tst_RVCatalogueCheck::findingsInOrder()
{
    const Checked checked = check("<p>\n<product type='A' article_id='1'/>\n"
                                  "<product pages='x' article_id='2' orientation='y' type='A'/></p>");
    QStringList rules;
    for (const RVCatalogueFinding &finding : checked.findings)
        rules += finding.rule().name();
    QCOMPARE(rules, (QStringList { u"number-invalid"_s, u"keyword-unknown"_s, u"type-duplicate"_s }));
}

// A finding is one line of moderate length for every content of the catalogue.
void tst_RVCatalogueCheck::longTexts()
{
    const QByteArray file = changed("cover_type='hardcover'", "cover_type='a&#10;" + QByteArray(60000, 'x') + '\'');
    QCOMPARE(
            check(file).texts(),
            QStringList {
                    u"2 error keyword-unknown: \"a %1…\" is no keyword of cover_type; \"rvcatalog keywords cover_type\" lists them"_s
                            .arg(QString(78, u'x')) });
    const QByteArray many = changed("cover_type='hardcover'", "cover_type='" + QByteArray("x,").repeated(30000) + '\'');
    QCOMPARE(check(many).findings.size(), 100);
}

void tst_RVCatalogueCheck::manyProducts()
{
    constexpr int count = 30000;
    QByteArray file = "<products>\n";
    QStringList expected;
    for (int i = 1; i <= count; ++i) {
        const QByteArray number = QByteArray::number(i);
        file += "<product type='T" + number + "' article_id='" + number + (i % 7 ? "'/>\n" : "' pages='x'/>\n");
        if (i % 7 == 0)
            expected += u"%1 error number-invalid: pages is \"x\", which is no whole number; write nothing but digits"_s
                                .arg(i + 1);
    }
    file += "</products>";
    const Checked checked = check(file);
    QCOMPARE(checked.texts(), expected);
    QCOMPARE(checked.products, qint64(count));
    for (qsizetype i = 0; i < checked.findings.size(); ++i)
        QCOMPARE(checked.findings.at(i).product(), qint64((i + 1) * 7 - 1));
}

void tst_RVCatalogueCheck::duplicatesFarApart()
{
    QByteArray file = "<products>\n<product type='T' article_id='1000000'/>\n";
    for (int i = 1; i <= 20000; ++i)
        file += "<product type='T" + QByteArray::number(i) + "' article_id='" + QByteArray::number(i) + "'/>\n";
    file += "<product type='T' article_id='1000000'/>\n<product type='t' article_id='1000001'/>\n</products>";
    QCOMPARE(
            check(file).texts(),
            (QStringList {
                    u"20003 error type-duplicate: the type \"T\" is already that of the product in line 2; write another, or take out one"_s,
                    u"20003 error article-id-duplicate: the article id 1000000 is already that of the product in line 2; write another, or take out one"_s }));
}

// A catalogue may be one long line.
void tst_RVCatalogueCheck::duplicatesFarToTheRight()
{
    const QByteArray indent = "<products><a/>" + QByteArray(700000, ' ') + "<b/>" + QByteArray(700000, ' ');
    const QByteArray product = "<product type='A'/>";
    const QList<RVCatalogueFinding> findings = check(indent + product + product + "</products>").findings;
    QVERIFY(!findings.isEmpty());
    const QList<RVRelatedPlace> places = findings.constLast().relatedPlaces();
    QCOMPARE(places.size(), 1);
    const RVFilePosition begin { 1, indent.size() + QByteArray("<product ").size() + 1 };
    QCOMPARE(places.constFirst().range.begin, begin);
}

// Two products without type and article id are no duplicates.
void tst_RVCatalogueCheck::missingIdsAreNoDuplicates()
{
    const QByteArray product = "<product type=' ' article_id='0'/>\n";
    QCOMPARE(
            check("<products>\n" + product + product + "</products>").texts(),
            QStringList(
                    { u"2 error type-missing: the product has no type; write the code that projects have for it"_s,
                      u"2 error article-id-invalid: the article id \"0\" is no whole number above 0; write 1 or more"_s,
                      u"3 error type-missing: the product has no type; write the code that projects have for it"_s,
                      u"3 error article-id-invalid: the article id \"0\" is no whole number above 0; write 1 or more"_s }));
}

void tst_RVCatalogueCheck::everyKeyword()
{
    for (const RVCatalogueAttribute attribute : RVCatalogueAttribute::ofProducts()) {
        for (const RVCatalogueAttributeValue &value : attribute.values()) {
            QVERIFY2(keywordFindings(attribute, value.keyword).isEmpty(), qPrintable(value.keyword));
            const QString spelled = u' ' + value.keyword.toUpper() + u'\t';
            QVERIFY2(keywordFindings(attribute, spelled).isEmpty(), qPrintable(value.keyword));
            const bool isNumber = QString::number(value.keyword.toInt()) == value.keyword;
            for (const QString &alias : value.aliases) {
                const QString text = u"\"%1\" is an alias in %2; the main keyword is \"%3\""_s;
                QCOMPARE(keywordFindings(attribute, alias),
                         isNumber ? QStringList()
                                  : QStringList { text.arg(alias, attribute.name(), value.keyword.toLower()) });
            }
        }
    }
}

// The pieces that the check calls unknown are those that the attribute does not decode.
void tst_RVCatalogueCheck::unknownAsDecoded()
{
    QRandomGenerator random(20261121);
    for (const RVCatalogueAttribute attribute : RVCatalogueAttribute::ofProducts()) {
        QStringList pieces = { u""_s, u" "_s, u"nonsense"_s, u"\u0130"_s, u"İndigo"_s, u"\u00a0glue"_s, u"\u00a0a4"_s };
        for (const RVCatalogueAttributeValue &value : attribute.values())
            pieces += value.aliases + QStringList { value.keyword, value.keyword + u'x', value.keyword.mid(1) };
        for (int i = 0; i < 300; ++i) {
            QStringList list;
            for (int count = random.bounded(1, 5); count > 0; --count)
                list += pieces.at(random.bounded(int(pieces.size())));
            const QString text = list.join(u',');
            QStringList unknown;
            for (const QString &finding : keywordFindings(attribute, text)) {
                if (finding.startsWith("there is an empty"_L1))
                    unknown += QString();
                else if (finding.contains("\" is no keyword of "_L1))
                    unknown += finding.section(u'"', 1, 1);
            }
            QCOMPARE(unknown, attribute.decode(text).unknownPieces);
        }
    }
}

void tst_RVCatalogueCheck::guesses_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("piece");
    QTest::addColumn<QString>("finding");

    QTest::newRow("letter missing") << u"cover_type"_s << u"softcver"_s
                                    << u"\"softcver\" is no keyword of cover_type; did you mean \"softcover\"?"_s;
    QTest::newRow("letters swapped") << u"orientation"_s << u"lanscdape"_s
                                     << u"\"lanscdape\" is no keyword of orientation; did you mean \"landscape\"?"_s;
    QTest::newRow("written in capitals") << u"cover_type"_s << u"SOFTCVER"_s
                                         << u"\"SOFTCVER\" is no keyword of cover_type; did you mean \"SOFTCOVER\"?"_s;
    QTest::newRow("two letters missing, one of them the first")
            << u"cover_type"_s << u"ordcover"_s
            << u"\"ordcover\" is no keyword of cover_type; did you mean \"hardcover\"?"_s;
    QTest::newRow("two letters from several keywords")
            << u"space_magnitude"_s << u"790cm2"_s
            << u"\"790cm2\" is no keyword of space_magnitude; did you mean \"150cm2\"?"_s;
    QTest::newRow("near an alias")
            << u"article_class"_s << u"fotobok"_s
            << u"\"fotobok\" is no keyword of article_class; did you mean \"fotobook\", that is \"book\"?"_s;
    QTest::newRow("near a foreign alias")
            << u"article_class"_s << u"postr"_s
            << u"\"postr\" is no keyword of article_class; did you mean \"poster\", that is \"deko\"?"_s;
    QTest::newRow("near a size")
            << u"space_magnitude"_s << u"A33"_s
            << u"\"A33\" is no keyword of space_magnitude; did you mean \"a3\", that is \"1200cm2\"?"_s;
    QTest::newRow("other separator")
            << u"paper_type"_s << u"indigo_glossy"_s
            << u"\"indigo_glossy\" is no keyword of paper_type; did you mean \"indigo-glossy\"?"_s;
    QTest::newRow("same sound")
            << u"article_class"_s << u"photo book"_s
            << u"\"photo book\" is no keyword of article_class; did you mean \"fotobook\", that is \"book\"?"_s;
    QTest::newRow("several letters wrong behind the first")
            << u"cover_type"_s << u"acrylic_glass"_s
            << u"\"acrylic_glass\" is no keyword of cover_type; did you mean \"acryl_glas\"?"_s;
    QTest::newRow("several letters wrong, the first too")
            << u"cover_type"_s << u"calendar"_s
            << u"\"calendar\" is no keyword of cover_type; \"rvcatalog keywords cover_type\" lists them"_s;
    QTest::newRow("similar to no keyword")
            << u"cover_type"_s << u"zzzzzzzz"_s
            << u"\"zzzzzzzz\" is no keyword of cover_type; \"rvcatalog keywords cover_type\" lists them"_s;
    QTest::newRow("empty") << u"cover_type"_s << QString()
                           << u"there is an empty keyword in cover_type; write one, or leave out the attribute"_s;
    QTest::newRow("keyword too long for a suggestion")
            << u"cover_type"_s << QString(50, u'h')
            << u"\"hhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhhh\" is no keyword of cover_type; \"rvcatalog keywords cover_type\" lists them"_s;
}

void tst_RVCatalogueCheck::guesses()
{
    QFETCH(QString, attribute);
    QFETCH(QString, piece);
    QFETCH(QString, finding);
    QCOMPARE(keywordFindings(RVCatalogueAttribute::find(attribute), piece), QStringList { finding });
}

namespace {

/// Texts that look like numbers and boolean values, and others.
QStringList numberTexts()
{
    QStringList texts = { u"true"_s,       u"TRUE"_s,  u"false"_s, u"False"_s, u"yes"_s,    u"no"_s,
                          u"on"_s,         u"oFF"_s,   u"maybe"_s, u""_s,      u" true"_s,  u"1"_s,
                          u"0"_s,          u"-1"_s,    u"+7"_s,    u" 8 "_s,   u"1e3"_s,    u"2147483647"_s,
                          u"2147483648"_s, u"0x10"_s,  u"1,000"_s, u"٣"_s,     u"nan"_s,    u"inf"_s,
                          u"-inf"_s,       u"1e400"_s, u".5"_s,    u"5."_s,    u"\u00a05"_s };
    QRandomGenerator random(20261121);
    for (int i = 0; i < 5000; ++i) {
        static const QString letters = u"0123456789+-.,eE xtrufalsn\t"_s;
        QString text;
        for (int length = random.bounded(7); length > 0; --length)
            text += letters.at(random.bounded(int(letters.size())));
        texts += text;
    }
    return texts;
}

/// A catalogue in which the product of each number has the text with that number.
QByteArray catalogueWith(const QStringList &texts)
{
    QByteArray file = "<p>";
    for (const QString &text : texts) {
        const QByteArray value = "='" + escaped(text) + '\'';
        file += "<product pages" + value + "><barcodes><barcode position_x" + value
                + "/></barcodes><forms><form key='a' value='b' not_accountable" + value + "/></forms></product>";
    }
    return file + "</p>";
}

}

// A value is unreadable exactly when the library's reader uses its default.
void tst_RVCatalogueCheck::numbersAsTheLibraryReadsThem()
{
    const QStringList texts = numberTexts();
    QStringList found;
    for (const RVCatalogueFinding &finding : check(catalogueWith(texts)).findings) {
        if (finding.text().contains("\", which is "_L1))
            found += QString::number(finding.product()) + u' ' + finding.text().section(u' ', 0, 0);
    }
    QStringList expected;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        QDomDocument document;
        QDomElement copy = document.createElement(u"p"_s);
        copy.setAttribute(u"a"_s, texts.at(i));
        const QString name = u"a"_s;
        const QString number = QString::number(i);
        if (RVXMLParser::intAttribute(copy, name, 1) != RVXMLParser::intAttribute(copy, name, 2))
            expected += number + " pages"_L1;
        if (RVXMLParser::doubleAttribute(copy, name, 1) != RVXMLParser::doubleAttribute(copy, name, 2))
            expected += number + " position_x"_L1;
        if (RVXMLParser::boolAttribute(copy, name, false) != RVXMLParser::boolAttribute(copy, name, true))
            expected += number + " not_accountable"_L1;
    }
    QCOMPARE(found, expected);
}

QTEST_MAIN(tst_RVCatalogueCheck)
#include "tst_RVCatalogueCheck.moc"
