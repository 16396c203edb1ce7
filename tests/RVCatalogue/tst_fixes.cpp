#include "FindingTools.h"

#include <RVCatalogueAttribute.h>
#include <RVNearestText.h>

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

/// Fixes of findings: they mend what has one safe answer and nothing else.
class tst_fixes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneSafeAnswer_data();
    void oneSafeAnswer();
    void noSafeAnswer_data();
    void noSafeAnswer();
    void severalInOneList();
    void someOfOneList();
    void onlyItsOwnPiece();
    void typingMistakes_data();
    void typingMistakes();
    void ownPriceClass();
    void escaped();
};

namespace {

QByteArray with(const char *name, const QByteArray &value)
{
    return productWith(QByteArray(name) + "='" + value + '\'');
}

QByteArray article(const QByteArray &id)
{
    return articleWith("article_id='" + id + '\'');
}

/// The text with one letter left out, doubled, or swapped with the next one, at every place.
QStringList mistyped(const QString &text)
{
    QStringList result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        result += QString(text).remove(i, 1);
        result += QString(text).insert(i, text.at(i));
        if (i + 1 < text.size())
            result += text.first(i) + text.at(i + 1) + text.at(i) + text.sliced(i + 2);
    }
    return result;
}

/// The values with a keyword at most this number of letters away from a text.
QSet<qint64> valuesNear(const QList<RVCatalogueAttributeValue> &values, const QString &text, int distance)
{
    QSet<qint64> result;
    for (const RVCatalogueAttributeValue &value : values) {
        RVNearestText nearest(text, distance + 1);
        nearest.offer(value.keyword);
        for (const QString &alias : value.aliases)
            nearest.offer(alias);
        if (!nearest.text().isNull())
            result.insert(value.value);
    }
    return result;
}

bool isName(const QList<RVCatalogueAttributeValue> &values, const QString &text)
{
    return std::any_of(values.begin(), values.end(), [&text](const RVCatalogueAttributeValue &value) {
        return value.displayName.compare(text, Qt::CaseInsensitive) == 0;
    });
}

QByteArray priceOf(const QByteArray &code)
{
    return formsWith("<form key='a' value='b' price_class='" + code + "'/>\n");
}

}

void tst_fixes::oneSafeAnswer_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("clean");

    const auto row = [](const char *situation, const QByteArray &file, const QByteArray &clean) {
        QTest::newRow(situation) << file << clean;
    };
    row("alias", with("cover_type", "hard"), with("cover_type", "hardcover"));
    row("alias in capitals", with("cover_type", "HARD"), with("cover_type", "HARDCOVER"));
    row("alias between blanks", with("cover_type", "leather , hard "), with("cover_type", "leather , hardcover "));
    row("one letter wrong", with("cover_type", "hardcovr"), with("cover_type", "hardcover"));
    row("letters swapped", with("orientation", "lnadscape"), with("orientation", "landscape"));
    row("one letter from an alias", with("article_class", "fotobok"), with("article_class", "book"));
    row("one letter from a long alias", with("orientation", "quadrtic"), with("orientation", "square"));
    row("blank in a keyword", with("cover_type", "hard cover"), with("cover_type", "hardcover"));
    row("blanks in a keyword", with("cover_type", "poster self  adhesive"), with("cover_type", "poster_self_adhesive"));
    row("dash in a keyword", with("cover_type", "wall-calendar"), with("cover_type", "calendar_simplex"));
    row("dashes in a keyword with ph", with("cover_type", "calender-advent-photo"),
        with("cover_type", "calender_advent_photo"));
    row("invisible letter in a keyword", with("page_binding", "spir\u200Bal"), with("page_binding", "spiral"));
    row("byte order mark in front of a keyword", with("cover_type", "\uFEFFhardcover"),
        with("cover_type", "hardcover"));
    row("letters of another script", with("cover_type", "s\u043Eftc\u043Ev\u0435r"), with("cover_type", "softcover"));
    row("semicolons", with("orientation", "portrait;square;landscape"),
        with("orientation", "portrait,square,landscape"));
    row("semicolons and blanks", with("orientation", "portrait; square"), with("orientation", "portrait, square"));
    row("blank for a comma", with("orientation", "portrait square"), with("orientation", "portrait,square"));
    row("bar and an alias", with("cover_type", "leather|soft"), with("cover_type", "leather,softcover"));
    row("display name", with("cover_type", "Leinen"), with("cover_type", "CROMOLINEN"));
    row("display name in small letters", with("cover_type", "leder"), with("cover_type", "leather"));
    row("display name of a number", with("foto_paper_type", "Glänzend"), with("foto_paper_type", "glossy"));
    row("decimal comma", widthWith("8,5"), widthWith("8.5"));
    row("decimal comma between blanks", widthWith(" 0,5 "), widthWith("0.5"));
    row("no-break space in a number", widthWith("\u00A08\u00A0.5"), widthWith("8.5"));
    row("whole number with decimals", with("pages", "26.0"), with("pages", "26"));
    row("whole number with an exponent", with("pages", "1e2"), with("pages", "100"));
    row("digits of another script", with("pages", "\u0662\u0666"), with("pages", "26"));
    row("article id with decimals", article("1001.0"), article("1001"));
    row("article id with an invisible letter", article("1001\u200B"), article("1001"));
    row("shipping group with decimals", with("shipping_group", "2.0"), with("shipping_group", "2"));
    row("boolean with a blank", with("photo_box", "TRUE "), with("photo_box", "TRUE"));
    row("boolean with letters swapped", with("photo_box", "flase"), with("photo_box", "false"));
    row("unit in capitals", unitsWith("MM"), unitsWith("mm"));
    row("unit with a blank", unitsWith(" cm"), unitsWith("cm"));
    row("unit as a word", unitsWith("Millimeter"), unitsWith("mm"));
    row("unit in German", unitsWith("Zoll"), unitsWith("inch"));
    row("unit of tenths", unitsWith("0.1 mm"), unitsWith("0.1mm"));
    row("one letter from a unit", unitsWith("pont"), unitsWith("point"));
    row("colour without its sign", colorWith("1a1a1A"), colorWith("#1a1a1A"));
    row("colour with a blank", colorWith("# 1a1a1a"), colorWith("#1a1a1a"));
    row("price class in small letters", priceOf("lez2"), priceOf("LEZ2"));
    row("price class with a blank", priceOf("LEZ2 "), priceOf("LEZ2"));
    row("price class with a blank inside", priceOf("LEZ 2"), priceOf("LEZ2"));
    row("price class in small letters with blanks inside", priceOf("l ez 2"), priceOf("LEZ2"));
    row("letters beyond 16 bits before it", with("name", "\U0001F4D5' cover_type='hard"),
        with("name", "\U0001F4D5' cover_type='hardcover"));
    row("value over two lines", productWith("name='a\nb'\ncover_type = \"hard\"\npages='26,0'"),
        productWith("name='a\nb'\ncover_type = \"hardcover\"\npages='26'"));
}

void tst_fixes::oneSafeAnswer()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, clean);
    const QList<RVCatalogueFinding> findings = findingsOf(file);
    QVERIFY(!findings.isEmpty());
    QCOMPARE(QString::fromUtf8(mended(file, findings)), QString::fromUtf8(clean));
    QCOMPARE(textsOf(findingsOf(clean)), QStringList());
}

void tst_fixes::noSafeAnswer_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("rule");

    const auto row = [](const char *situation, const QByteArray &file, const char *rule) {
        QTest::newRow(situation) << file << QString::fromLatin1(rule);
    };
    row("like no keyword", with("cover_type", "xyz"), "keyword-unknown");
    row("two letters wrong", with("cover_type", "hrdcovr"), "keyword-unknown");
    row("one letter from two keywords", with("space_magnitude", "60cm2"), "keyword-unknown");
    row("two letters from an alias", with("article_class", "ftobok"), "keyword-unknown");
    row("empty keyword", with("cover_type", "hardcover,"), "keyword-unknown");
    row("no keyword", with("cover_type", ""), "keyword-unknown");
    row("one keyword or two", with("paper_type", "indigo glossy"), "keyword-unknown");
    row("one keyword or two, by its sound", with("article_class", "photo book"), "keyword-unknown");
    row("semicolon beside no keyword", with("cover_type", "hardcover;xyz"), "keyword-unknown");
    row("display name of several values", with("article_class", "RAVO KALENDER"), "keyword-unknown");
    row("other script and a letter too many", with("page_binding", "glu\u0435x"), "keyword-unknown");
    row("digit of a number", with("foto_paper_type", "7"), "keyword-unknown");
    row("reference in the list", with("cover_type", "h&#97;rd"), "keyword-legacy");
    row("reference elsewhere in the list", with("cover_type", "hard,&#115;oftcover"), "keyword-legacy");
    row("line end in the list", with("cover_type", "leather,\nhard"), "keyword-legacy");
    row("comma of thousands or decimals", widthWith("8,125"), "number-invalid");
    row("thousands", with("pages", "1.000"), "number-invalid");
    row("thousands and decimals", widthWith("1.234,5"), "number-invalid");
    row("unit behind a number", widthWith("8 mm"), "number-invalid");
    row("word", with("pages", "many"), "number-invalid");
    row("decimals of a whole number", with("pages", "26.5"), "number-invalid");
    row("blank between digits", with("pages", "2 6"), "number-invalid");
    row("too large", with("pages", "99999999999"), "number-invalid");
    row("no number", with("pages", ""), "number-invalid");
    row("reference in a number", widthWith("8&#44;5"), "number-invalid");
    row("article id with a dash", article("10-01"), "article-id-invalid");
    row("article id that is 0", article("0.0"), "article-id-invalid");
    row("negative article id", article("-1.0"), "article-id-invalid");
    row("no shipping group", with("shipping_group", "-1.0"), "shipping-group-invalid");
    row("boolean of another language", with("photo_box", "ja"), "boolean-invalid");
    row("near both booleans", with("photo_box", "of"), "boolean-invalid");
    row("unknown unit", unitsWith("metre"), "unit-unknown");
    row("near two units", unitsWith("cmm"), "unit-unknown");
    row("other part of a unit", unitsWith("0.2mm"), "unit-unknown");
    row("reference in a unit", unitsWith("M&#77;"), "unit-unknown");
    row("too few digits of a colour", colorWith("#1a1a1"), "option-color-invalid");
    row("five digits of a colour", colorWith("1a1a1"), "option-color-invalid");
    // The transparency may stand before or behind the colour.
    row("transparency without the sign of a colour", colorWith("1a1a1a80"), "option-color-invalid");
    row("nearly a colour", colorWith("redd"), "option-color-invalid");
    row("nearly a price class", priceOf("LEZ7"), "price-class-unknown");
    row("nearly a price class with a blank inside", priceOf("LEZ 7"), "price-class-unknown");
    row("begin of a price class", priceOf("RODA"), "price-class-unknown");
    row("page counts", productWith("pages='26' max_pages='154' page_step='6'"), "page-step-misses-highest");
    row("option twice", formsWith("<form key='a' value='b'/><form key='a' value='b'/>\n"), "option-duplicate");
    row("attribute of a document type",
        "<!DOCTYPE p [<!ATTLIST product cover_type CDATA 'hard'>]>\n<p><product type='A' article_id='1'/></p>\n",
        "keyword-legacy");
}

void tst_fixes::noSafeAnswer()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, rule);
    const QList<RVCatalogueFinding> findings = findingsOf(file);
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.first().rule().name(), rule);
    QCOMPARE(findings.first().fix(), QList<RVFileEdit>());
}

// All fixes are made at once, because each changes its own piece.
void tst_fixes::severalInOneList()
{
    const QByteArray file = with("cover_type", "hardcovr,  soft,Leder;Leinen, leather;agenda ,Leder");
    const QList<RVCatalogueFinding> findings = findingsOf(file);
    QCOMPARE(findings.size(), 5);
    QCOMPARE(mended(file, findings), with("cover_type", "hardcover,  softcover,Leder;Leinen, leather,agenda ,LEATHER"));
}

void tst_fixes::someOfOneList()
{
    const QByteArray file = with("cover_type", "hard,soft,tacked");
    QList<RVCatalogueFinding> findings = findingsOf(file);
    QCOMPARE(findings.size(), 3);
    findings.removeAt(1);
    const QByteArray changed = mended(file, findings);
    QCOMPARE(changed, with("cover_type", "hardcover,soft,booklet"));
    QCOMPARE(textsOf(findingsOf(changed)),
             QStringList {
                     u"note keyword-legacy: \"soft\" is an alias in cover_type; the main keyword is \"softcover\""_s });
}

void tst_fixes::onlyItsOwnPiece()
{
    const QByteArray file = with("cover_type", " leather, hard ");
    const QList<RVCatalogueFinding> findings = findingsOf(file);
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.first().fix().size(), 1);
    QCOMPARE(pieceOf(file, findings.first().range()), u"cover_type=' leather, hard '"_s);
    QCOMPARE(pieceOf(file, findings.first().fix().first().range), u"hard"_s);
    QCOMPARE(findings.first().fix().first().text, u"hardcover"_s);
}

void tst_fixes::typingMistakes_data()
{
    QTest::addColumn<QString>("attribute");

    for (const RVCatalogueAttribute attribute : RVCatalogueAttribute::ofProducts())
        QTest::newRow(attribute.name().data()) << attribute.name().toString();
}

// A mistyped keyword of three letters or more is mended exactly if it can be no other one.
void tst_fixes::typingMistakes()
{
    QFETCH(QString, attribute);
    const QList<RVCatalogueAttributeValue> values = RVCatalogueAttribute::find(attribute).values();
    RVCatalogueCheck check;
    check.disable(RVCatalogueRule::find(u"spine-missing"));
    int count = 0;
    for (const RVCatalogueAttributeValue &value : values) {
        // An alias of a number is a valid keyword and can be mistyped.
        const QString keyword = (value.keyword.size() > 1 ? value.keyword : value.aliases.value(0)).toLower();
        for (const QString &text : mistyped(keyword)) {
            if (text.size() < 3 || text.contains(u' ') || isName(values, text)
                || !valuesNear(values, text, 0).isEmpty())
                continue;
            const QByteArray file = with(attribute.toLatin1().constData(), text.toLatin1());
            const QList<RVCatalogueFinding> findings = findingsOf(file, check);
            QCOMPARE(findings.size(), 1);
            const bool isCertain = valuesNear(values, text, 1).size() == 1;
            QVERIFY2(findings.first().fix().isEmpty() != isCertain, qPrintable(text));
            const QByteArray expected = with(attribute.toLatin1().constData(), keyword.toLatin1());
            QCOMPARE(mended(file, findings), isCertain ? expected : file);
            ++count;
        }
    }
    QVERIFY(count > 0);
}

void tst_fixes::ownPriceClass()
{
    RVCatalogueCheck check;
    check.addPriceClasses({ u"FOIL"_s, u"lez2"_s });
    const QByteArray file = priceOf("foil");
    QCOMPARE(mended(file, findingsOf(file, check)), priceOf("FOIL"));
    QCOMPARE(findingsOf(priceOf("lez2"), check).size(), 0);
    const QList<RVCatalogueFinding> ambiguous = findingsOf(priceOf("Lez2"), check);
    QCOMPARE(ambiguous.size(), 1);
    QCOMPARE(ambiguous.first().fix(), QList<RVFileEdit>());
}

// A full-width ampersand looks like the one that begins a reference in XML.
void tst_fixes::escaped()
{
    RVCatalogueCheck check;
    check.addPriceClasses({ u"R&D"_s });
    const QByteArray file = priceOf("R\uFF06D");
    const QByteArray changed = mended(file, findingsOf(file, check));
    QCOMPARE(changed, priceOf("R&amp;D"));
    QCOMPARE(findingsOf(changed, check).size(), 0);
}

QTEST_GUILESS_MAIN(tst_fixes)
#include "tst_fixes.moc"
