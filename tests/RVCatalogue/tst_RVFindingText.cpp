#include "FindingTools.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Texts of findings: each names the fault and says what to do about it.
class tst_RVFindingText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywords_data();
    void keywords();
    void foreignLetters_data();
    void foreignLetters();
    void numbers_data();
    void numbers();
    void lengths_data();
    void lengths();
    void booleans_data();
    void booleans();
    void units_data();
    void units();
    void ids_data();
    void ids();
    void pageCounts_data();
    void pageCounts();
    void colors_data();
    void colors();
    void priceClasses_data();
    void priceClasses();
    void ownPriceClasses_data();
    void ownPriceClasses();
    void places_data();
    void places();
};

namespace {

/// The attribute "name='" + value + "'", with escaped letters where XML needs them.
QByteArray attribute(const QString &name, const QString &value)
{
    return (name + u"=\""_s + value.toHtmlEscaped() + u'"').toUtf8();
}

/// The texts about a product with this attribute, one on each line.
QString textOf(const QString &name, const QString &value)
{
    QStringList result;
    for (const RVCatalogueFinding &finding : findingsOf(productWith(attribute(name, value))))
        result += finding.text();
    return result.join(u'\n');
}

QString textOf(const QByteArray &file)
{
    QStringList result;
    for (const RVCatalogueFinding &finding : findingsOf(file))
        result += finding.text();
    return result.join(u'\n');
}

void addColumns(const char *first)
{
    QTest::addColumn<QString>(first);
    QTest::addColumn<QString>("text");
}

}

void tst_RVFindingText::keywords_data()
{
    QTest::addColumn<QString>("attribute");
    addColumns("list");

    QTest::newRow("known") << u"cover_type"_s << u"HARDCOVER, softcover"_s << QString();
    QTest::newRow("keyword with a blank") << u"paper_type"_s << u"Unbekanntes Papier"_s << QString();
    QTest::newRow("one letter wrong") << u"cover_type"_s << u"cromolinnen"_s
                                      << u"\"cromolinnen\" is no keyword of cover_type; did you mean \"cromolinen\"?"_s;
    QTest::newRow("sign that separates other lists, in a keyword")
            << u"cover_type"_s << u"hardc/over"_s
            << u"\"hardc/over\" is no keyword of cover_type; did you mean \"hardcover\"?"_s;
    QTest::newRow("letters missing on both sides of a blank")
            << u"cover_type"_s << u"hard covr"_s
            << u"\"hard covr\" is no keyword of cover_type; did you mean \"hardcover\"?"_s;
    QTest::newRow("near two keywords")
            << u"space_magnitude"_s << u"60cm2"_s
            << u"\"60cm2\" is no keyword of space_magnitude; did you mean \"50cm2\" or \"600cm2\"?"_s;
    QTest::newRow("near an alias")
            << u"space_magnitude"_s << u"A33"_s
            << u"\"A33\" is no keyword of space_magnitude; did you mean \"a3\", that is \"1200cm2\"?"_s;
    QTest::newRow("similar to none of a few keywords")
            << u"page_binding"_s << u"xyz"_s
            << u"\"xyz\" is no keyword of page_binding; there are unknown, glue, layflat, stapled and spiral"_s;
    QTest::newRow("similar to none of the numbers with aliases")
            << u"foto_paper_type"_s << u"shiny"_s
            << u"\"shiny\" is no keyword of foto_paper_type; there are 0, glossy and matt"_s;
    QTest::newRow("similar to none of nine keywords")
            << u"paper_type"_s << u"qqqq"_s
            << u"\"qqqq\" is no keyword of paper_type; \"rvcatalog keywords paper_type\" lists them"_s;
    QTest::newRow("similar to none of many keywords")
            << u"cover_type"_s << u"xyz"_s
            << u"\"xyz\" is no keyword of cover_type; \"rvcatalog keywords cover_type\" lists them"_s;
    QTest::newRow("display name")
            << u"cover_type"_s << u"Leinen"_s
            << u"\"Leinen\" is no keyword of cover_type; the keyword of that name is \"CROMOLINEN\""_s;
    QTest::newRow("display name in small letters")
            << u"cover_type"_s << u"leinen"_s
            << u"\"leinen\" is no keyword of cover_type; the keyword of that name is \"cromolinen\""_s;
    QTest::newRow("display name of words")
            << u"page_binding"_s << u"Klassische Buchbindung"_s
            << u"\"Klassische Buchbindung\" is no keyword of page_binding; the keyword of that name is \"glue\""_s;
    QTest::newRow("display name in capitals")
            << u"article_class"_s << u"GRUßKARTEN"_s
            << u"\"GRUßKARTEN\" is no keyword of article_class; the keyword of that name is \"card\""_s;
    QTest::newRow("display name that is the begin of a word")
            << u"orientation"_s << u"hochkant"_s
            << u"\"hochkant\" is no keyword of orientation; the keyword of that name is \"portrait\""_s;
    QTest::newRow("display name of a number")
            << u"foto_paper_type"_s << u"Glänzend"_s
            << u"\"Glänzend\" is no keyword of foto_paper_type; the keyword of that name is \"glossy\""_s;
    QTest::newRow("display name of three values")
            << u"article_class"_s << u"RAVO KALENDER"_s
            << u"\"RAVO KALENDER\" is no keyword of article_class; the keyword of "
               "that name is \"normal_calendar\", \"agenda\" or \"calendar\""_s;
    QTest::newRow("display name of many values")
            << u"article_class"_s << u"Fotogeschenke"_s
            << u"\"Fotogeschenke\" is no keyword of article_class; \"rvcatalog keywords article_class\" lists them"_s;
    QTest::newRow("display name with a sign")
            << u"article_class"_s << u"Poster & Wandbilder"_s
            << u"\"Poster & Wandbilder\" is no keyword of article_class; the keyword of that name is \"deko\" or \"canvas\""_s;
    QTest::newRow("semicolon") << u"cover_type"_s << u"hardcover;softcover"_s
                               << u"\"hardcover;softcover\" is no keyword of cover_type; keywords are separated by "
                                  "commas: \"hardcover,softcover\""_s;
    QTest::newRow("semicolon and blank") << u"cover_type"_s << u"hardcover; softcover"_s
                                         << u"\"hardcover; softcover\" is no keyword of cover_type; keywords are "
                                            "separated by commas: \"hardcover, softcover\""_s;
    QTest::newRow("blank") << u"cover_type"_s << u"hardcover softcover"_s
                           << u"\"hardcover softcover\" is no keyword of cover_type; keywords are separated by commas: "
                              "\"hardcover,softcover\""_s;
    QTest::newRow("bar, with an alias")
            << u"cover_type"_s << u"HARDCOVER|soft"_s
            << u"\"HARDCOVER|soft\" is no keyword of cover_type; keywords are separated by commas: \"HARDCOVER,softcover\""_s;
    QTest::newRow("slash behind a comma")
            << u"orientation"_s << u"portrait,square/landscape"_s
            << u"\"square/landscape\" is no keyword of orientation; keywords are separated "
               "by commas: \"square,landscape\""_s;
    QTest::newRow("semicolon beside an unknown keyword")
            << u"cover_type"_s << u"hardcover;xyz"_s
            << u"\"hardcover;xyz\" is no keyword of cover_type; keywords are separated by commas"_s;
    QTest::newRow("semicolon between unknown keywords")
            << u"cover_type"_s << u"xyzxyz;zyxzyx"_s
            << u"\"xyzxyz;zyxzyx\" is no keyword of cover_type; keywords are separated by commas"_s;
    QTest::newRow("blank for another dash")
            << u"paper_type"_s << u"indigo glossy"_s
            << u"\"indigo glossy\" is no keyword of paper_type; did you mean \"indigo-glossy\"?"_s;
    QTest::newRow("blanks in a keyword")
            << u"cover_type"_s << u"poster  self  adhesive"_s
            << u"\"poster  self  adhesive\" is no keyword of cover_type; did you mean \"poster_self_adhesive\"?"_s;
    QTest::newRow("nothing") << u"paper_type"_s << QString()
                             << u"there is an empty keyword in paper_type; write one, or leave out the attribute"_s;
    QTest::newRow("comma at the end") << u"paper_type"_s << u"indigo,"_s
                                      << u"there is an empty keyword in paper_type; write one, or take out the comma"_s;
    QTest::newRow("several faults") << u"cover_type"_s << u"hardcver,,hard"_s
                                    << u"\"hardcver\" is no keyword of cover_type; did you mean \"hardcover\"?\n"
                                       "there is an empty keyword in cover_type; write one, or take out the comma\n"
                                       "\"hard\" is an alias in cover_type; the main keyword is \"hardcover\""_s;
}

void tst_RVFindingText::keywords()
{
    QFETCH(QString, attribute);
    QFETCH(QString, list);
    QTEST(textOf(attribute, list), "text");
}

void tst_RVFindingText::foreignLetters_data()
{
    QTest::addColumn<QString>("attribute");
    addColumns("value");

    QTest::newRow("Latin beyond ASCII") << u"page_binding"_s << u"glüe"_s
                                        << u"\"glüe\" is no keyword of page_binding; did you mean \"glue\"?"_s;
    QTest::newRow("Cyrillic")
            << u"page_binding"_s << u"glu\u0435"_s
            << u"\"glu\u0435\" is no keyword of page_binding; it has U+0435, which looks like \"e\"; did you mean \"glue\"?"_s;
    QTest::newRow("Greek")
            << u"page_binding"_s << u"sp\u03B9ral"_s
            << u"\"sp\u03B9ral\" is no keyword of page_binding; it has U+03B9, which looks like \"i\"; did you mean \"spiral\"?"_s;
    QTest::newRow("like no Latin letter")
            << u"page_binding"_s << u"\u0416\u0416"_s
            << u"\"\u0416\u0416\" is no keyword of page_binding; it has U+0416, which is no Latin letter; there are "
               "unknown, glue, layflat, stapled and spiral"_s;
    QTest::newRow("beyond 16 bits")
            << u"page_binding"_s << u"glu\U0001D41E"_s
            << u"\"glu\U0001D41E\" is no keyword of page_binding; it has U+1D41E, which looks like \"e\"; did you mean \"glue\"?"_s;
    QTest::newRow("zero width space")
            << u"page_binding"_s << u"gl\u200Bue"_s
            << u"\"gl ue\" is no keyword of page_binding; it has U+200B, which is invisible; did you mean \"glue\"?"_s;
    QTest::newRow("byte order mark")
            << u"page_binding"_s << u"\uFEFFglue"_s
            << u"\" glue\" is no keyword of page_binding; it has U+FEFF, which is invisible; did you mean \"glue\"?"_s;
    QTest::newRow("byte order mark in front of a number")
            << u"pages"_s << u"\uFEFF26"_s
            << u"pages is \" 26\", which is no whole number; it has U+FEFF, which is invisible; write 26"_s;
    QTest::newRow("soft hyphen")
            << u"page_binding"_s << u"lay\u00ADflat"_s
            << u"\"lay flat\" is no keyword of page_binding; it has U+00AD, which is invisible; did you mean \"layflat\"?"_s;
    QTest::newRow("no-break space")
            << u"page_binding"_s << u"lay\u00A0flat"_s
            << u"\"lay\u00A0flat\" is no keyword of page_binding; it has U+00A0, which is no plain blank; did you mean \"layflat\"?"_s;
    QTest::newRow("no-break space around a keyword, which is read")
            << u"page_binding"_s << u"\u00A0spiral"_s << QString();
    QTest::newRow("visible sign beyond ASCII")
            << u"page_binding"_s << u"glue\u20AC"_s
            << u"\"glue\u20AC\" is no keyword of page_binding; did you mean \"glue\"?"_s;
    for (const char16_t letter : { u'\u034F', u'\uFE00', u'\uFE0F' }) {
        const QString name = u"U+"_s + QString::number(letter, 16).toUpper().rightJustified(4, u'0');
        QTest::addRow("mark without a width, %s", qPrintable(name))
                << u"page_binding"_s << u"glue"_s + letter
                << u"\"glue%1\" is no keyword of page_binding; it has %2, which is invisible; did you mean \"glue\"?"_s
                           .arg(QChar(letter), name);
    }
    QTest::newRow("last sign of ASCII") << u"page_binding"_s << u"glue~"_s
                                        << u"\"glue~\" is no keyword of page_binding; did you mean \"glue\"?"_s;
    QTest::newRow("wide form of the last sign of ASCII")
            << u"page_binding"_s << u"glue\uFF5E"_s
            << u"\"glue\uFF5E\" is no keyword of page_binding; it has U+FF5E, which looks like \"~\"; did you mean \"glue\"?"_s;
    QTest::newRow("only invisible letters")
            << u"page_binding"_s << u"\u200B\u200D"_s
            << u"\"  \" is no keyword of page_binding; it has U+200B, which is invisible; there are unknown, glue, "
               "layflat, stapled and spiral"_s;
    QTest::newRow("dash")
            << u"cover_type"_s << u"wire\u2013o"_s
            << u"\"wire\u2013o\" is no keyword of cover_type; it has U+2013, which looks like \"-\"; did you mean \"wire-o\"?"_s;
    QTest::newRow("superscript")
            << u"space_magnitude"_s << u"600cm²"_s
            << u"\"600cm²\" is no keyword of space_magnitude; it has U+00B2, which looks like \"2\"; did you mean \"600cm2\"?"_s;
    QTest::newRow("number of another script") << u"pages"_s << u"\u0663"_s
                                              << u"pages is \"\u0663\", which is no whole number; it has U+0663, which "
                                                 "looks like \"3\"; write 3"_s;
    QTest::newRow("zero of another script") << u"pages"_s << u"1\u0660"_s
                                            << u"pages is \"1\u0660\", which is no whole number; it has U+0660, which "
                                               "looks like \"0\"; write 10"_s;
    QTest::newRow("minus sign")
            << u"pieces"_s << u"\u22121"_s
            << u"pieces is \"\u22121\", which is no whole number; it has U+2212, which looks like \"-\"; write -1"_s;
    QTest::newRow("invisible letter behind a number")
            << u"pages"_s << u"26\u200B"_s
            << u"pages is \"26 \", which is no whole number; it has U+200B, which is invisible; write 26"_s;
    QTest::newRow("letter in a number")
            << u"pages"_s << u"2\u0431"_s
            << u"pages is \"2\u0431\", which is no whole number; it has U+0431, which is no Latin letter; write nothing but digits"_s;
    QTest::newRow("invisible letter behind a boolean") << u"photo_box"_s << u"yes\u200B"_s
                                                       << u"photo_box is \"yes \", which is neither true nor false; it "
                                                          "has U+200B, which is invisible; did you mean \"yes\"?"_s;
    QTest::newRow("price class")
            << u"page_price_class"_s << u"L\u0415Z2"_s
            << u"the price class \"L\u0415Z2\" belongs to no known group; it has U+0415, which looks like \"E\"; did you mean \"LEZ2\"?"_s;
}

void tst_RVFindingText::foreignLetters()
{
    QFETCH(QString, attribute);
    QFETCH(QString, value);
    QTEST(textOf(attribute, value), "text");
}

void tst_RVFindingText::numbers_data()
{
    addColumns("pages");

    QTest::newRow("whole") << u" +26 "_s << QString();
    QTest::newRow("nothing")
            << QString() << u"pages is \"\", which is no whole number; write a number, or leave out the attribute"_s;
    QTest::newRow("word") << u"many"_s << u"pages is \"many\", which is no whole number; write nothing but digits"_s;
    QTest::newRow("number and unit") << u"26 mm"_s
                                     << u"pages is \"26 mm\", which is no whole number; write nothing but digits"_s;
    QTest::newRow("number and word") << u"26 pages"_s
                                     << u"pages is \"26 pages\", which is no whole number; write nothing but digits"_s;
    QTest::newRow("decimals") << u"26.5"_s
                              << u"pages is \"26.5\", which is no whole number; write nothing but digits"_s;
    QTest::newRow("decimals behind a comma")
            << u"26,5"_s << u"pages is \"26,5\", which is no whole number; write nothing but digits"_s;
    QTest::newRow("decimals that are 0") << u"26.0"_s << u"pages is \"26.0\", which is no whole number; write 26"_s;
    QTest::newRow("exponent") << u"1.5e1"_s << u"pages is \"1.5e1\", which is no whole number; write 15"_s;
    QTest::newRow("hexadecimal") << u"0x10"_s
                                 << u"pages is \"0x10\", which is no whole number; write nothing but digits"_s;
    QTest::newRow("point between thousands")
            << u"1.000"_s << u"pages is \"1.000\", which is no whole number; thousands are not separated: write 1000"_s;
    QTest::newRow("commas between thousands")
            << u"1,000,000"_s
            << u"pages is \"1,000,000\", which is no whole number; thousands are not separated: write 1000000"_s;
    QTest::newRow("blank between thousands")
            << u"1 000"_s << u"pages is \"1 000\", which is no whole number; thousands are not separated: write 1000"_s;
    QTest::newRow("blank between digits")
            << u"2 6"_s << u"pages is \"2 6\", which is no whole number; write nothing but digits"_s;
    QTest::newRow("blank behind the sign") << u"+ 26"_s << u"pages is \"+ 26\", which is no whole number; write +26"_s;
    QTest::newRow("largest") << u"2147483647"_s << QString();
    QTest::newRow("largest with decimals")
            << u"2147483647.0"_s << u"pages is \"2147483647.0\", which is no whole number; write 2147483647"_s;
    QTest::newRow("smallest with decimals")
            << u"-2147483648.0"_s << u"pages is \"-2147483648.0\", which is no whole number; write -2147483648"_s;
    QTest::newRow("too large") << u"2147483648"_s
                               << u"pages is \"2147483648\", which is too large; write at most 2147483647"_s;
    QTest::newRow("smaller than every positive number")
            << u"1e-400"_s << u"pages is \"1e-400\", which is no whole number; write nothing but digits"_s;
    QTest::newRow("larger than every negative number")
            << u"-1e-400"_s << u"pages is \"-1e-400\", which is no whole number; write nothing but digits"_s;
    QTest::newRow("far too large")
            << u"99999999999999999999"_s
            << u"pages is \"99999999999999999999\", which is too large; write at most 2147483647"_s;
    QTest::newRow("too large with an exponent")
            << u"1e10"_s << u"pages is \"1e10\", which is too large; write at most 2147483647"_s;
    QTest::newRow("too small") << u"-2147483649"_s
                               << u"pages is \"-2147483649\", which is too small; write at least -2147483648"_s;
}

void tst_RVFindingText::numbers()
{
    QFETCH(QString, pages);
    QTEST(textOf(u"pages"_s, pages), "text");
}

void tst_RVFindingText::lengths_data()
{
    addColumns("width");

    const auto no = [](const char *width, const char *advice) {
        return u"base_width is \"%1\", which is no number; %2"_s.arg(QString::fromUtf8(width),
                                                                     QString::fromUtf8(advice));
    };
    QTest::newRow("plain") << u"8.5"_s << QString();
    QTest::newRow("exponent") << u"8.5e-1"_s << QString();
    QTest::newRow("decimal comma") << u"8,5"_s << no("8,5", "decimals have a point: write 8.5");
    QTest::newRow("three decimals of zero") << u"0,125"_s << no("0,125", "decimals have a point: write 0.125");
    QTest::newRow("comma without digits before it") << u",5"_s << no(",5", "decimals have a point: write 0.5");
    QTest::newRow("three digits behind a comma")
            << u"8,125"_s << no("8,125", "write 8.125, or 8125 where the comma separates thousands");
    QTest::newRow("points between thousands")
            << u"1.000.000"_s << no("1.000.000", "thousands are not separated: write 1000000");
    QTest::newRow("thousands and decimal comma")
            << u"1.234,5"_s << no("1.234,5", "thousands are not separated: write 1234.5");
    QTest::newRow("thousands and decimal point")
            << u"1,234.5"_s << no("1,234.5", "thousands are not separated: write 1234.5");
    QTest::newRow("unit") << u"8 mm"_s << no("8 mm", "the unit belongs to \"units\": write 8");
    QTest::newRow("unit without a blank, decimal comma")
            << u"8,5cm"_s << no("8,5cm", "the unit belongs to \"units\": write 8.5");
    QTest::newRow("unit in German") << u"8 Zoll"_s << no("8 Zoll", "the unit belongs to \"units\": write 8");
    QTest::newRow("number and letter") << u"8 x"_s << no("8 x", "write digits, and a point before decimals");
    QTest::newRow("infinite") << u"inf"_s << no("inf", "write digits, and a point before decimals");
    QTest::newRow("digit of another script and three decimals")
            << u"\uff11.000"_s << no("\uff11.000", "it has U+FF11, which looks like \"1\"; write 1.000");
    QTest::newRow("comma at the end") << u"8,"_s << no("8,", "decimals have a point: write 8");
    QTest::newRow("letter that is partly of ASCII")
            << u"8\u33a7"_s << no("8\u33a7", "write digits, and a point before decimals");
    QTest::newRow("two commas") << u"8,5,1"_s << no("8,5,1", "write digits, and a point before decimals");
    QTest::newRow("blank before the point") << u"8 .5"_s << no("8 .5", "write 8.5");
    QTest::newRow("too large") << u"1e400"_s
                               << u"base_width is \"1e400\", which is too large; write a smaller number"_s;
    QTest::newRow("too small") << u"-1e400"_s
                               << u"base_width is \"-1e400\", which is too small; write a larger number"_s;
    QTest::newRow("smaller than every positive number") << u"1e-400"_s << no("1e-400", "write 0");
}

void tst_RVFindingText::lengths()
{
    QFETCH(QString, width);
    QTEST(textOf(widthWith(width.toUtf8())), "text");
}

void tst_RVFindingText::booleans_data()
{
    addColumns("boolean");

    const QString all = u"there are true, false, yes, no, on, off, 1 and 0"_s;
    const auto no = [](const QString &boolean, const QString &advice) {
        return u"photo_box is \"%1\", which is neither true nor false; %2"_s.arg(boolean, advice);
    };
    QTest::newRow("capitals") << u"TRUE"_s << QString();
    QTest::newRow("letters swapped") << u"ture"_s << no(u"ture"_s, u"did you mean \"true\"?"_s);
    QTest::newRow("letter missing") << u"fals"_s << no(u"fals"_s, u"did you mean \"false\"?"_s);
    QTest::newRow("blank") << u" Yes"_s << no(u" Yes"_s, u"did you mean \"Yes\"?"_s);
    QTest::newRow("two letters wrong") << u"treu"_s << no(u"treu"_s, u"did you mean \"true\"?"_s);
    QTest::newRow("two letters too many") << u"ffaalse"_s << no(u"ffaalse"_s, all);
    const QString longest(80, u'x');
    QTest::newRow("longest text") << longest << no(longest, all);
    QTest::newRow("longer text") << QString(longest + u'x') << no(longest + u'…', all);
    QTest::newRow("letter of two code units at the end of the longest text")
            << QString(longest.chopped(1) + u"\U0001F4D5"_s) << no(longest.chopped(1) + u'…', all);
    QTest::newRow("near true and false") << u"o"_s << no(u"o"_s, all);
    QTest::newRow("other language") << u"ja"_s << no(u"ja"_s, all);
    QTest::newRow("other number") << u"2"_s << no(u"2"_s, all);
    QTest::newRow("nothing") << QString() << no(QString(), all);
}

void tst_RVFindingText::booleans()
{
    QFETCH(QString, boolean);
    QTEST(textOf(u"photo_box"_s, boolean), "text");
}

void tst_RVFindingText::units_data()
{
    addColumns("unit");

    const QString all = u"there are mm, cm, inch, in, pt, point and 0.1mm"_s;
    const auto no = [](const QString &unit, const QString &advice) {
        return u"there is no unit \"%1\"; %2"_s.arg(unit, advice);
    };
    QTest::newRow("known") << u"0.1mm"_s << QString();
    QTest::newRow("capitals") << u"MM"_s << no(u"MM"_s, u"write \"mm\""_s);
    QTest::newRow("two letters missing") << u"milimetr"_s << no(u"milimetr"_s, all);
    QTest::newRow("blank") << u"cm "_s << no(u"cm "_s, u"write \"cm\""_s);
    QTest::newRow("word") << u"Millimeter"_s << no(u"Millimeter"_s, u"write \"mm\""_s);
    QTest::newRow("German") << u"Zoll"_s << no(u"Zoll"_s, u"write \"inch\""_s);
    QTest::newRow("several") << u"inches"_s << no(u"inches"_s, u"write \"inch\""_s);
    QTest::newRow("points") << u"Points"_s << no(u"Points"_s, u"write \"point\""_s);
    QTest::newRow("one letter wrong") << u"milimeter"_s << no(u"milimeter"_s, u"write \"mm\""_s);
    QTest::newRow("tenths with a blank") << u"0,1 mm"_s << no(u"0,1 mm"_s, u"write \"0.1mm\""_s);
    QTest::newRow("near two units") << u"cmm"_s << no(u"cmm"_s, all);
    QTest::newRow("other tenths") << u"0.2mm"_s << no(u"0.2mm"_s, all);
    QTest::newRow("tenths of another unit") << u"0.1cm"_s << no(u"0.1cm"_s, all);
    QTest::newRow("metre") << u"metre"_s << no(u"metre"_s, all);
    QTest::newRow("m") << u"m"_s << no(u"m"_s, all);
    QTest::newRow("nothing") << QString() << no(QString(), all);
}

void tst_RVFindingText::units()
{
    QFETCH(QString, unit);
    QTEST(textOf(unitsWith(unit.toUtf8())), "text");
}

void tst_RVFindingText::ids_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("text");

    const auto article = [](const char *id) { return articleWith(QByteArray("article_id='") + id + '\''); };
    const auto group = [](const char *id) { return productWith(QByteArray("shipping_group='") + id + '\''); };
    QTest::newRow("article id") << article("1001") << QString();
    QTest::newRow("article id with a dash")
            << article("10-01") << u"the article id \"10-01\" is no whole number above 0; write nothing but digits"_s;
    QTest::newRow("article id 0") << article("0")
                                  << u"the article id \"0\" is no whole number above 0; write 1 or more"_s;
    QTest::newRow("article id below 0") << article("-5")
                                        << u"the article id \"-5\" is no whole number above 0; write 1 or more"_s;
    QTest::newRow("article id far below 0")
            << article("-99999999999")
            << u"the article id \"-99999999999\" is no whole number above 0; write 1 or more"_s;
    QTest::newRow("article id 0.0") << article("0.0")
                                    << u"the article id \"0.0\" is no whole number above 0; write 1 or more"_s;
    QTest::newRow("article id 1.0") << article("1.0")
                                    << u"the article id \"1.0\" is no whole number above 0; write 1"_s;
    QTest::newRow("article id too large")
            << article("99999999999") << u"the article id \"99999999999\" is too large; write at most 2147483647"_s;
    QTest::newRow("article id with a blank")
            << article("10 01") << u"the article id \"10 01\" is no whole number above 0; write nothing but digits"_s;
    QTest::newRow("article id with decimals")
            << article("1001.0") << u"the article id \"1001.0\" is no whole number above 0; write 1001"_s;
    QTest::newRow("no article id") << article(" ")
                                   << u"the product has no article id; write its number into article_id"_s;
    QTest::newRow("shipping group") << group("0") << QString();
    QTest::newRow("shipping group -1") << group("-1")
                                       << u"the shipping group \"-1\" is none; leave out the attribute"_s;
    QTest::newRow("shipping group -1.0") << group("-1.0")
                                         << u"the shipping group \"-1.0\" is none; leave out the attribute"_s;
    QTest::newRow("shipping group as a word")
            << group("two") << u"the shipping group \"two\" is none; write nothing but digits"_s;
    QTest::newRow("shipping group with decimals") << group("2.0") << u"the shipping group \"2.0\" is none; write 2"_s;
    QTest::newRow("shipping group too large")
            << group("99999999999") << u"the shipping group \"99999999999\" is too large; write at most 2147483647"_s;
    QTest::newRow("empty shipping group")
            << group("") << u"the shipping group \"\" is none; write a number, or leave out the attribute"_s;
}

void tst_RVFindingText::ids()
{
    QFETCH(QByteArray, file);
    QTEST(textOf(file), "text");
}

void tst_RVFindingText::pageCounts_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QString>("text");

    QTest::newRow("meets the highest") << QByteArray("pages='26' max_pages='154' page_step='4'") << QString();
    QTest::newRow("misses the highest")
            << QByteArray("pages='26' max_pages='154' page_step='6'")
            << u"steps of 6 from 26 pages never meet 154; the nearest counts are 152 and 158"_s;
    QTest::newRow("step larger than the difference")
            << QByteArray("pages='26' max_pages='30' page_step='6'")
            << u"steps of 6 from 26 pages never meet 30; the nearest counts are 26 and 32"_s;
    QTest::newRow("misses the highest of several pieces")
            << QByteArray("pages='2' max_pages='5' page_step='4' pieces='3'")
            << u"steps of 4 from 6 pages never meet 15; the nearest counts are 14 and 18"_s;
    QTest::newRow("misses the largest number")
            << QByteArray("pages='1' max_pages='2147483646' page_step='2147483646'")
            << u"steps of 2147483646 from 1 pages never meet 2147483646; the nearest counts are 1 and 2147483647"_s;
    QTest::newRow("no number above")
            << QByteArray("pages='2' max_pages='2147483647' page_step='2147483646'")
            << u"steps of 2147483646 from 2 pages never meet 2147483647; the nearest count is 2"_s;
    QTest::newRow("reversed")
            << QByteArray("pages='154' max_pages='26' page_step='4'")
            << u"the lowest page count 154 is above the highest, 26; raise max_pages, or lower pages"_s;
    QTest::newRow("no step") << QByteArray("pages='26' max_pages='154'")
                             << u"there is no step (page_step) that leads from 26 to 154 pages; write how many pages "
                                "one package has"_s;
    QTest::newRow("negative step") << QByteArray("pages='26' max_pages='154' page_step='-4'")
                                   << u"steps of -4 pages are below 0; write how many pages one package has"_s;
    QTest::newRow("no pages") << QByteArray("pages='0'") << u"the lowest page count is 0; write 1 or more"_s;
    QTest::newRow("negative pages") << QByteArray("pages='-4' max_pages='4' page_step='4'")
                                    << u"the lowest page count is -4; write 1 or more"_s;
    QTest::newRow("no pieces") << QByteArray("pages='26' pieces='-1'") << u"there are -1 pieces; write 1 or more"_s;
}

void tst_RVFindingText::pageCounts()
{
    QFETCH(QByteArray, attributes);
    QTEST(textOf(productWith(attributes)), "text");
}

void tst_RVFindingText::colors_data()
{
    addColumns("color");

    const auto no = [](const QString &color, const QString &advice) {
        return u"\"%1\" is no colour; %2"_s.arg(color, advice);
    };
    const QString advice = u"write an English name, or \"#\" and 6 hexadecimal digits"_s;
    QTest::newRow("name") << u"DarkRed"_s << QString();
    QTest::newRow("four letters wrong") << u"hellgruen"_s << no(u"hellgruen"_s, advice);
    QTest::newRow("digits") << u"#1A1a1a"_s << QString();
    QTest::newRow("digits without a sign") << u"1a1a1a"_s << no(u"1a1a1a"_s, u"write \"#1a1a1a\""_s);
    QTest::newRow("digits behind 0x") << u"0xFF1a1a1a"_s << no(u"0xFF1a1a1a"_s, u"write \"#FF1a1a1a\""_s);
    QTest::newRow("blank behind the sign") << u"# 1a1a1a"_s << no(u"# 1a1a1a"_s, u"write \"#1a1a1a\""_s);
    QTest::newRow("too few digits") << u"#1a1a1"_s << no(u"#1a1a1"_s, u"it has 5 instead of 6 digits"_s);
    QTest::newRow("no digits") << u"#"_s << no(u"#"_s, u"it has 0 instead of 6 digits"_s);
    QTest::newRow("no hexadecimal digit") << u"#1a1aO0"_s << no(u"#1a1aO0"_s, u"\"O\" is no hexadecimal digit"_s);
    QTest::newRow("five digits without a sign") << u"1a1a1"_s << no(u"1a1a1"_s, advice);
    QTest::newRow("one letter wrong") << u"lightgrren"_s << no(u"lightgrren"_s, u"did you mean \"lightgreen\"?"_s);
    QTest::newRow("near two names") << u"darkgr#y"_s
                                    << no(u"darkgr#y"_s, u"did you mean \"darkgray\" or \"darkgrey\"?"_s);
    QTest::newRow("other language") << u"weinrot"_s << no(u"weinrot"_s, advice);
    QTest::newRow("letter of another script")
            << u"r\u0435d"_s << no(u"r\u0435d"_s, u"it has U+0435, which looks like \"e\"; write \"red\""_s);
}

void tst_RVFindingText::colors()
{
    QFETCH(QString, color);
    QTEST(textOf(colorWith(color.toUtf8())), "text");
}

void tst_RVFindingText::priceClasses_data()
{
    addColumns("code");

    const auto no = [](const QString &code, const QString &advice) {
        return u"the price class \"%1\" belongs to no known group; %2"_s.arg(code, advice);
    };
    QTest::newRow("known") << u"LEZ2"_s << QString();
    QTest::newRow("not billed") << u"0x"_s << QString();
    QTest::newRow("small letters") << u"lez2"_s << no(u"lez2"_s, u"did you mean \"LEZ2\"?"_s);
    QTest::newRow("blank") << u" LEZ2"_s << no(u" LEZ2"_s, u"did you mean \"LEZ2\"?"_s);
    QTest::newRow("near several") << u"LEZ7"_s << no(u"LEZ7"_s, u"did you mean \"LEZ1\", \"LEZ2\" or \"LEZ3\"?"_s);
    QTest::newRow("beginning of a price class") << u"RODA"_s << no(u"RODA"_s, u"did you mean \"RODA6x9\"?"_s);
    QTest::newRow("three letters of a price class") << u"ROD"_s << no(u"ROD"_s, u"did you mean \"RODA6x9\"?"_s);
    QTest::newRow("two letters of a price class")
            << u"RO"_s << no(u"RO"_s, u"write one of a group, or one that begins with 0 if nothing is billed"_s);
    QTest::newRow("similar to no price class")
            << u"(xxx)"_s << no(u"(xxx)"_s, u"write one of a group, or one that begins with 0 if nothing is billed"_s);
}

void tst_RVFindingText::priceClasses()
{
    QFETCH(QString, code);
    QTEST(textOf(u"page_price_class"_s, code), "text");
}

void tst_RVFindingText::ownPriceClasses_data()
{
    addColumns("code");

    const auto no = [](const QString &code, const QString &advice) {
        return u"the price class \"%1\" belongs to no known group; did you mean %2?"_s.arg(code, advice);
    };
    QTest::newRow("configured") << u"FOIL1"_s << QString();
    QTest::newRow("configured, with a letter beyond ASCII") << u"PRÄGUNG"_s << QString();
    QTest::newRow("configured, with a letter beyond 16 bits") << u"\U0001F4D5BOOK"_s << QString();
    QTest::newRow("configured, sorted before that letter") << u"\uFB01LM"_s << QString();
    QTest::newRow("built in") << u"LEZ2"_s << QString();
    QTest::newRow("near a configured one") << u"FOIL"_s << no(u"FOIL"_s, u"\"FOIL1\""_s);
    QTest::newRow("configured, in small letters") << u"prägung"_s << no(u"prägung"_s, u"\"PRÄGUNG\""_s);
    QTest::newRow("configured with a blank and without it") << u"wren lot"_s << no(u"wren lot"_s, u"\"WREN LOT\""_s);
    QTest::newRow("blank for another sign") << u"QUUX BAR"_s << no(u"QUUX BAR"_s, u"\"QUUX_BAR\""_s);
    QTest::newRow("configured and built in") << u"lez1"_s << no(u"lez1"_s, u"\"LEZ1\""_s);
}

void tst_RVFindingText::ownPriceClasses()
{
    QFETCH(QString, code);
    RVCatalogueCheck check;
    check.addPriceClasses({ u"\U0001F4D5BOOK"_s, u"\uFB01LM"_s, u"FOIL1"_s, u"PRÄGUNG"_s, u"LEZ1"_s, u"WREN LOT"_s,
                            u"WRENLOT"_s, u"QUUX_BAR"_s, u"QUUXBA"_s });
    QStringList texts;
    for (const RVCatalogueFinding &finding : findingsOf(productWith(attribute(u"page_price_class"_s, code)), check))
        texts += finding.text();
    QTEST(texts.join(u'\n'), "text");
}

void tst_RVFindingText::places_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("places");

    QTest::newRow("one place only") << productWith("pages='x'") << QStringList { u"number-invalid"_s };
    QTest::newRow("option twice") << formsWith(
            "<form key='a' value='b' preselected='1'/>\n<form key='a' value='b' name='c'/>\n")
                                  << QStringList { u"option-duplicate"_s, u"value='b' in line 4: the first of them"_s };
    QTest::newRow("two defaults") << formsWith(
            "<form key='a' value='b' preselected='1'/>\n<form key='a' value='c' preselected='yes'/>\n")
                                  << QStringList { u"option-default-twice"_s,
                                                   u"preselected='1' in line 4: the first default"_s };
    QTest::newRow("keys and values") << formsWith("<form key='a;b' value='c'/>\n")
                                     << QStringList { u"option-composite-mismatch"_s,
                                                      u"key='a;b' in line 4: the keys"_s };
    QTest::newRow("second part") << productWith("", "<forms/>\n<forms/>\n")
                                 << QStringList { u"element-ignored"_s, u"<forms/> in line 3: the first of them"_s };
    QTest::newRow("product in a product")
            << productWith("", "<product/>\n")
            << QStringList { u"element-ignored"_s,
                             u"<product type='A' article_id='1' > in line 2: the outer product"_s };
    QTest::newRow("bound without a spine")
            << productWith("page_binding='glue'")
            << QStringList { u"spine-missing"_s, u"page_binding='glue' in line 2: the binding"_s };
    QTest::newRow("bound with an empty spine")
            << productWith("page_binding='glue'", "<composition><spine/></composition>\n")
            << QStringList { u"spine-missing"_s, u"page_binding='glue' in line 2: the binding"_s };
    QTest::newRow("barcodes overlap")
            << productWith("",
                           "<barcodes>\n<barcode position_y='50' width='9' height='9' pageNr='1'/>\n"
                           "<barcode position_y='50' width='9' height='8' pageNr='1'/>\n"
                           "</barcodes>\n")
            << QStringList {
                   u"barcode-overlap"_s,
                   u"<barcode position_y='50' width='9' height='9' pageNr='1'/> in line 4: the other barcode"_s
               };
    QTest::newRow("page of a barcode") << productWith(
            "pages='2' max_pages='4' page_step='2'",
            "<barcodes>\n<barcode position_y='50' width='9' height='9' pageNr='5'/>\n</barcodes>\n")
                                       << QStringList { u"barcode-page-impossible"_s,
                                                        u"max_pages='4' in line 2: the highest page count"_s };
    QTest::newRow("page of a barcode, fixed count")
            << productWith("pages='2'",
                           "<barcodes>\n<barcode position_y='50' width='9' height='9' pageNr='5'/>\n</barcodes>\n")
            << QStringList { u"barcode-page-impossible"_s, u"pages='2' in line 2: the highest page count"_s };
    QTest::newRow("page counts reversed")
            << productWith("pages='8' max_pages='4' page_step='2'")
            << QStringList { u"page-counts-reversed"_s, u"pages='8' in line 2: the lowest page count"_s };
    QTest::newRow("step misses the highest")
            << productWith("pages='2' max_pages='5' page_step='2'")
            << QStringList { u"page-step-misses-highest"_s, u"max_pages='5' in line 2: the highest page count"_s };
    QTest::newRow("no spine") << productWith("page_binding='glue'")
                              << QStringList { u"spine-missing"_s, u"page_binding='glue' in line 2: the binding"_s };
    QTest::newRow("spine that shrinks") << productWith(
            "pages='26' max_pages='154' page_step='4'",
            "<composition>\n<spine packages_per_block='2' base_width='8' block_width='-0.5'/>\n"
            "</composition>\n")
                                        << QStringList { u"spine-font-too-small"_s,
                                                         u"max_pages='154' in line 2: the highest page count"_s };
    QTest::newRow("two negative widths") << productWith(
            "", "<composition>\n<spine base_width='-1' block_width='-2'/>\n</composition>\n")
                                         << QStringList { u"spine-negative"_s,
                                                          u"block_width='-2' in line 4: below 0"_s };
}

// The rule of the only finding, and its texts about other places.
void tst_RVFindingText::places()
{
    QFETCH(QByteArray, file);
    const QList<RVCatalogueFinding> findings = findingsOf(file);
    QCOMPARE(findings.size(), 1);
    QStringList found = { findings.first().rule().name() };
    for (const RVRelatedPlace &place : findings.first().relatedPlaces()) {
        QCOMPARE(place.fileName, QString());
        found += u"%1 in line %2: %3"_s.arg(pieceOf(file, place.range), QString::number(place.range.begin.line),
                                            place.text);
    }
    QTEST(found, "places");
}

QTEST_MAIN(tst_RVFindingText)
#include "tst_RVFindingText.moc"
