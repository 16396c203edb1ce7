#include "CheckedCatalogue.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A product with these options, one on each line, the first of them in line 2.
QByteArray options(const QByteArrayList &forms)
{
    QByteArray result = "<p><product type='A' article_id='1'><forms>\n";
    for (const QByteArray &form : forms)
        result += "<form " + form + "/>\n";
    return result + "</forms></product></p>";
}

}

class tst_RVOptionSpellingCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void letters_data();
    void letters();
    void letterCase_data();
    void letterCase();
    void keyNames_data();
    void keyNames();
    void otherPlaces();
    void texts();
    void fixes_data();
    void fixes();
    void manyOptions();
};

void tst_RVOptionSpellingCheck::letters_data()
{
    QTest::addColumn<QByteArrayList>("forms");
    QTest::addColumn<QStringList>("findings");

    const auto separator = [](const QString &place) { return QStringList { place + ": option-separator"_L1 }; };
    const auto blank = [](const QString &place) { return QStringList { place + ": option-blank"_L1 }; };
    const auto row = [](const char *situation, const QByteArray &form, const QStringList &findings) {
        QTest::newRow(situation) << QByteArrayList { form } << findings;
    };
    row("semicolon", "key='a;b' value='c;d'", {});
    row("other signs", "key='a-b_c.d' value='e/f+g#1'", {});
    row("umlauts", "key='größe' value='weiß'", {});
    row("comma in the key", "key='a,b' value='c'", separator(u"key='a,b'"_s));
    row("colon in the key", "key='a:b' value='c'", separator(u"key='a:b'"_s));
    row("comma in the value", "key='a' value='b,c'", separator(u"value='b,c'"_s));
    row("colon in the value", "key='a' value='16:9'", separator(u"value='16:9'"_s));
    row("comma and blank", "key='a' value='b, c'", separator(u"value='b, c'"_s));
    row("comma in key and value", "key='a,b' value='c,d'", separator(u"key='a,b'"_s) + separator(u"value='c,d'"_s));
    row("comma for a semicolon in one of them", "key='a,b' value='c;d'",
        { u"value='c;d': option-composite-mismatch"_s });
    row("blank in the key", "key='a b' value='c'", blank(u"key='a b'"_s));
    row("blank in front of the value", "key='a' value=' b'", blank(u"value=' b'"_s));
    row("blank behind the key", "key='a ' value='b'", blank(u"key='a '"_s));
    row("blank behind a semicolon", "key='a; b' value='c;d'", blank(u"key='a; b'"_s));
    row("line end", "key='a&#10;b' value='c'", blank(u"key='a&#10;b'"_s));
    row("blank that does not break lines", "key='a&#160;b' value='c'", blank(u"key='a&#160;b'"_s));
    row("letter without any width",
        "key='a' value='b\xe2\x80\x8b"
        "c'",
        blank(u"value='b\u200bc'"_s));
    row("byte order mark", "key='a' value='\uFEFFb'", blank(u"value='\uFEFFb'"_s));
    row("soft hyphen", "key='a&#173;b' value='c'", blank(u"key='a&#173;b'"_s));
    row("letters of another script", "key='a' value='\xd0\xb4\xd0\xb0'", {});
    row("nothing but a blank", "key='a' value=' '", blank(u"value=' '"_s));
    row("blank without a value", "key=' a'", { u"key=' a': option-blank"_s, u"<form>: option-incomplete"_s });
    row("other attributes", "key='a' value='b' key_name='c, d' value_name='e: f' name=' g ' editor_name='h, i'", {});
    QTest::newRow("duplicate option with a blank")
            << QByteArrayList { "key='a' value='b c' preselected='1'", "key='a' value='b c'" }
            << QStringList { u"value='b c': option-blank"_s, u"value='b c': option-duplicate"_s };
    QTest::newRow("blank behind a duplicate option")
            << QByteArrayList { "key='a' value='b' preselected='1'", "key='a' value='b'", "key='a' value='c d'" }
            << QStringList { u"value='b': option-duplicate"_s, u"value='c d': option-blank"_s };
    QTest::newRow("blank between keys that makes other keys")
            << QByteArrayList { "key='a; b' value='c;d' preselected='1'", "key='a;b' value='e;f'" }
            << QStringList { u"key='a; b': option-blank"_s };
    QTest::newRow("invisible letter that makes another key")
            << QByteArrayList { "key='\u200Ba' value='b' preselected='1'", "key='a' value='c'" }
            << QStringList { u"key='\u200Ba': option-blank"_s };
    QTest::newRow("letter case beside a blank")
            << QByteArrayList { "key='a' value='XL' preselected='1'", "key='a' value='x l'", "key='a' value='xl'" }
            << QStringList { u"value='x l': option-blank"_s, u"value='xl': option-letter-case"_s };
    QTest::newRow("blank that makes another key")
            << QByteArrayList { "key='a' value='b' preselected='1'", "key='a ' value='c'", "key='a ' value='d'" }
            << QStringList { u"key='a ': option-blank"_s, u"key='a ': option-blank"_s };
}

void tst_RVOptionSpellingCheck::letters()
{
    QFETCH(QByteArrayList, forms);
    QFETCH(QStringList, findings);
    QStringList found = CheckedCatalogue(options(forms)).rules();
    found.sort();
    findings.sort();
    QCOMPARE(found, findings);
}

void tst_RVOptionSpellingCheck::letterCase_data()
{
    QTest::addColumn<QByteArrayList>("forms");
    QTest::addColumn<QStringList>("findings");

    const auto found = [](const QString &place) { return place + ": option-letter-case"_L1; };
    QTest::newRow("value") << QByteArrayList { "key='a' value='red' preselected='1'", "key='a' value='Red'" }
                           << QStringList { found(u"value='Red'"_s) };
    QTest::newRow("three spellings of a value")
            << QByteArrayList { "key='a' value='red' preselected='1'", "key='a' value='Red'", "key='a' value='RED'" }
            << QStringList { found(u"value='Red'"_s), found(u"value='RED'"_s) };
    QTest::newRow("letter that equals an ASCII one")
            << QByteArrayList { "key='a' value='k' preselected='1'", "key='a' value='\xe2\x84\xaa'" }
            << QStringList { found(u"value='\u212A'"_s) };
    QTest::newRow("umlauts of a value") << QByteArrayList { "key='a' value='öl' preselected='1'", "key='a' value='Öl'" }
                                        << QStringList { found(u"value='Öl'"_s) };
    QTest::newRow("values of two keys") << QByteArrayList { "key='a' value='red' preselected='1'",
                                                            "key='b' value='Red' preselected='1'" }
                                        << QStringList();
    QTest::newRow("key, the later of two")
            << QByteArrayList { "key='color' value='red' preselected='1'", "key='Color' value='black'" }
            << QStringList { found(u"key='Color'"_s) };
    QTest::newRow("key, the rarer one") << QByteArrayList {
        "key='Color' value='blue'", "key='color' value='red' preselected='1'", "key='color' value='black'"
    } << QStringList { found(u"key='Color'"_s) };
    QTest::newRow("key of several options")
            << QByteArrayList { "key='color' value='blue' preselected='1'", "key='color' value='red'",
                                "key='color' value='green'", "key='COLOR' value='black'", "key='COLOR' value='white'" }
            << QStringList { found(u"key='COLOR'"_s), found(u"key='COLOR'"_s) };
    QTest::newRow("other keys between") << QByteArrayList {
        "key='b' value='x' preselected='1'", "key='B1' value='x' preselected='1'", "key='B' value='x' preselected='1'"
    } << QStringList { found(u"key='B'"_s) };
    QTest::newRow("letter case and blank")
            << QByteArrayList { "key='a' value='red' preselected='1'", "key='a' value='Red '" }
            << QStringList { u"value='Red ': option-blank"_s };
}

void tst_RVOptionSpellingCheck::letterCase()
{
    QFETCH(QByteArrayList, forms);
    QTEST(CheckedCatalogue(options(forms)).rules(), "findings");
}

void tst_RVOptionSpellingCheck::keyNames_data()
{
    QTest::addColumn<QByteArrayList>("forms");
    QTest::addColumn<QStringList>("findings");

    const auto found = [](const QString &place) { return place + ": option-key-names"_L1; };
    QTest::newRow("one name") << QByteArrayList { "key='a' value='1' key_name='A' preselected='1'",
                                                  "key='a' value='2' key_name='A'" }
                              << QStringList();
    QTest::newRow("the later of two") << QByteArrayList { "key='a' value='1' key_name='A' preselected='1'",
                                                          "key='a' value='2' key_name='B'" }
                                      << QStringList { found(u"key_name='B'"_s) };
    QTest::newRow("the rarer one") << QByteArrayList { "key='a' value='1' key_name='B' preselected='1'",
                                                       "key='a' value='2' key_name='A'",
                                                       "key='a' value='3' key_name='A'" }
                                   << QStringList { found(u"key_name='B'"_s) };
    QTest::newRow("letter case counts") << QByteArrayList { "key='a' value='1' key_name='Farbe' preselected='1'",
                                                            "key='a' value='2' key_name='farbe'" }
                                        << QStringList { found(u"key_name='farbe'"_s) };
    QTest::newRow("no name beside one") << QByteArrayList {
        "key='a' value='1' preselected='1'", "key='a' value='2' key_name='B'", "key='a' value='3' key_name=''"
    } << QStringList();
    QTest::newRow("one name of two keys") << QByteArrayList { "key='a' value='1' key_name='A' preselected='1'",
                                                              "key='b' value='2' key_name='A' preselected='1'" }
                                          << QStringList();
}

void tst_RVOptionSpellingCheck::keyNames()
{
    QFETCH(QByteArrayList, forms);
    QTEST(CheckedCatalogue(options(forms)).rules(), "findings");
}

void tst_RVOptionSpellingCheck::otherPlaces()
{
    const CheckedCatalogue catalogue(
            options({ "key='a' value='x' key_name='A' preselected='1'", "key='a' value='X' key_name='B'" }));
    QStringList places;
    for (const RVCatalogueFinding &finding : catalogue.findings()) {
        for (const RVRelatedPlace &place : finding.relatedPlaces())
            places += catalogue.textAt(place.range) + ": "_L1 + place.text;
    }
    QCOMPARE(places, (QStringList { u"value='x': the other spelling"_s, u"key_name='A': the other name"_s }));
}

void tst_RVOptionSpellingCheck::texts()
{
    const CheckedCatalogue catalogue(
            options({ "key='a' value='x' key_name='A' preselected='1'", "key='a' value='X' key_name='B'",
                      "key='a,b' value=' y '", "key='c d' value='z' preselected='1'" }));
    const QStringList texts = catalogue.texts();
    QCOMPARE(texts.filter(u"selected"_s).size(), 1);
    QCOMPARE(texts.first(2),
             (QStringList { u"the value \"X\" differs from \"x\" in line 2 in letter case only; choose one spelling"_s,
                            u"the key \"a\" is named \"B\" here, but \"A\" in line 2; choose one name"_s }));
    QCOMPARE(texts.last(2),
             (QStringList { u"the value \" y \" has a blank around it; take it out"_s,
                            u"the key \"c d\" has a blank in it; take it out"_s }));
    const CheckedCatalogue unseen(options({ "key='a\xc2\xa0"
                                            "b' value='x\xe2\x80\x8b'" }));
    QCOMPARE(unseen.texts(),
             (QStringList {
                     u"the key \"a\u00a0b\" has a blank in it; it has U+00A0, which is no plain blank; take it out"_s,
                     u"the value \"x \" is not what it looks like; it has U+200B, which is invisible; take it "
                     "out"_s }));
    const CheckedCatalogue foreign(options({ "key='a' value='a \u0431'" }));
    QCOMPARE(foreign.texts(), QStringList { u"the value \"a \u0431\" has a blank in it; take it out"_s });
}

void tst_RVOptionSpellingCheck::fixes_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QByteArray>("mended");

    QTest::newRow("in front") << QByteArray("key=' a' value='b'") << QByteArray("key='a' value='b'");
    QTest::newRow("behind") << QByteArray("key='a' value='b  '") << QByteArray("key='a' value='b'");
    QTest::newRow("around") << QByteArray("key='a' value=\" \xc2\xa0größe&amp;  \"")
                            << QByteArray("key='a' value=\" \xc2\xa0größe&amp;  \"");
    QTest::newRow("around umlauts") << QByteArray("key='a' value=\" \xc2\xa0größe  \"")
                                    << QByteArray("key='a' value=\"größe\"");
    QTest::newRow("tabulator, which XML reads as a blank")
            << QByteArray("key='a' value='b\t'") << QByteArray("key='a' value='b\t'");
    QTest::newRow("inside") << QByteArray("key='a' value=' b c '") << QByteArray("key='a' value=' b c '");
    QTest::newRow("letter without any width") << QByteArray("key='a' value='b\xe2\x80\x8b"
                                                            "c '")
                                              << QByteArray("key='a' value='bc'");
    QTest::newRow("blank alone") << QByteArray("key='a' value=' '") << QByteArray("key='a' value=' '");
    QTest::newRow("comma") << QByteArray("key='a' value='b, c'") << QByteArray("key='a' value='b, c'");
}

// A surrounding blank is removed if the file has the letters that XML reads.
void tst_RVOptionSpellingCheck::fixes()
{
    QFETCH(QByteArray, form);
    QFETCH(QByteArray, mended);
    QCOMPARE(CheckedCatalogue(options({ form })).mended(), QString::fromUtf8(options({ mended })));
}

// The most options that a product may have are checked fast.
void tst_RVOptionSpellingCheck::manyOptions()
{
    QByteArrayList forms;
    for (int i = 0; i < 15000; ++i)
        forms += "key='a" + QByteArray::number(i) + "' value='b' preselected='1'";
    QCOMPARE(CheckedCatalogue(options(forms)).rules(), QStringList());
    QByteArrayList values;
    for (int i = 0; i < 15000; ++i)
        values += "key='a' value='b" + QByteArray::number(i) + (i == 7 ? "' preselected='1'" : "'");
    QCOMPARE(CheckedCatalogue(options(values)).rules(), QStringList());
}

QTEST_MAIN(tst_RVOptionSpellingCheck)
#include "tst_RVOptionSpellingCheck.moc"
