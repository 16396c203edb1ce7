#include "TestFolder.h"

#include <RVCatalogueCheck.h>
#include <RVCheckConfiguration.h>
#include <RVProductType.h>

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// "3:7", or an empty text without a position.
QString placeOf(const RVCheckConfiguration &configuration)
{
    const auto position = configuration.errorPosition();
    return position ? u"%1:%2"_s.arg(position->line).arg(position->column) : QString();
}

RVCatalogueRule rule(QAnyStringView name)
{
    return RVCatalogueRule::find(name);
}

}

class tst_RVCheckConfiguration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nullConfiguration();
    void everything_data();
    void everything();
    void fine_data();
    void fine();
    void faults_data();
    void faults();
    void brokenOneChangesNothing();
    void limits_data();
    void limits();
    void unreadable_data();
    void unreadable();
    void columnInJson_data();
    void columnInJson();
    void find_data();
    void find();
    void bothFiles();
    void neitherFileNorCatalogue();
    void currentFolder();
    void copies();

private:
    QString path(const QString &name) const { return myFolder->path(name); }
    void write(const QString &name, const QByteArray &content) const { QVERIFY(myFolder->write(name, content)); }

    std::unique_ptr<TestFolder> myFolder;
};

void tst_RVCheckConfiguration::init()
{
    myFolder = std::make_unique<TestFolder>();
}

void tst_RVCheckConfiguration::nullConfiguration()
{
    const RVCheckConfiguration configuration;
    QVERIFY(configuration.isNull());
    QVERIFY(!configuration.hasError());
    QCOMPARE(configuration.fileName(), QString());
    QCOMPARE(configuration.errorString(), QString());
    QVERIFY(!configuration.errorPosition());
    RVCatalogueCheck check;
    configuration.apply(&check);
    QVERIFY(check.isEnabled(rule(u"keyword-legacy")));
    QCOMPARE(check.priceClasses(), QStringList());
}

void tst_RVCheckConfiguration::everything_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("TOML") << u"rvcatalog.toml"_s << QByteArray(R"(# of the house
foreign = ["supplier", "Größe"] # für die Buchhaltung ~
price_classes = ["TAS2", "TAS1"]

[rules]
keyword-legacy = "off"
spine-missing = "note"
price-class-unknown = "error"
option-color-invalid = "warning"

[page_sizes]
DUN9 = { width = 210, height = 297.5 }
"VIR 29" = { width = 100, height = 100 }
)");
    QTest::newRow("JSON") << u"rvcatalog.json"_s << QByteArray(R"({
  "foreign": ["supplier", "Größe"],
  "price_classes": ["TAS2", "TAS1"],
  "rules": {
    "keyword-legacy": "off",
    "spine-missing": "note",
    "price-class-unknown": "error",
    "option-color-invalid": "warning"
  },
  "page_sizes": {
    "DUN9": { "width": 210, "height": 297.5 },
    "VIR 29": { "width": 100, "height": 100 }
  }
})");
    QTest::newRow("groups of price classes")
            << u"rvcatalog.toml"_s << QByteArray(R"(foreign = ["supplier", "Gr\u00f6\U000000dfe", 'a~C3%C3']
[price_classes]
cups = ["TAS2"]
more = ["TAS1", "TAS2"]
none = []
[rules]
keyword-legacy = "off"
spine-missing = "note"
price-class-unknown = "error"
option-color-invalid = "warning"
[page_sizes.DUN9]
width = 210
height = 297.5
[page_sizes."VIR 29"]
height = 100
width = 1e2
)");
}

void tst_RVCheckConfiguration::everything()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, text);
    write(name, text);
    const RVCheckConfiguration configuration = RVCheckConfiguration::read(path(name));
    QCOMPARE(configuration.errorString(), QString());
    QVERIFY(!configuration.hasError());
    QVERIFY(!configuration.isNull());
    QCOMPARE(configuration.fileName(), path(name));

    RVCatalogueCheck check;
    configuration.apply(&check);
    QVERIFY(!check.isEnabled(rule(u"keyword-legacy")));
    QVERIFY(check.isEnabled(rule(u"spine-missing")));
    QVERIFY(check.isEnabled(rule(u"type-missing")));
    QCOMPARE(check.severity(rule(u"spine-missing")), RVCatalogueSeverity::Note);
    QCOMPARE(check.severity(rule(u"price-class-unknown")), RVCatalogueSeverity::Error);
    QCOMPARE(check.severity(rule(u"option-color-invalid")), RVCatalogueSeverity::Warning);
    QCOMPARE(check.severity(rule(u"type-missing")), RVCatalogueSeverity::Error);
    QVERIFY(check.isForeign(u"supplier"_s));
    QVERIFY(check.isForeign(u"Größe"_s));
    QVERIFY(!check.isForeign(u"Supplier"_s));
    QCOMPARE(check.isForeign(u"a~C3%C3"_s), name == "rvcatalog.toml"_L1 && text.contains("a~C3%C3"));
    QCOMPARE(check.priceClasses(), (QStringList { u"TAS1"_s, u"TAS2"_s }));
    QCOMPARE(check.pageSize(u"DUN9"_s), QSizeF(210, 297.5));
    QCOMPARE(check.pageSize(u"DUN9_30"_s), QSizeF(210, 297.5)); // the family
    QCOMPARE(check.pageSize(u"VIR 29"_s), QSizeF(100, 100));
    QVERIFY(!check.pageSize(u"DUN5"_s).isValid());
}

void tst_RVCheckConfiguration::fine_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("empty TOML") << u"a.toml"_s << QByteArray();
    QTest::newRow("only comments") << u"a.toml"_s << QByteArray("# nothing yet\r\n\r\n");
    QTest::newRow("empty tables") << u"a.toml"_s
                                  << QByteArray("foreign = []\n[rules]\n[page_sizes]\n[price_classes]\n");
    QTest::newRow("TOML without a suffix") << u"settings"_s << QByteArray("rules.spine-missing = 'off'");
    QTest::newRow("TOML with a byte order mark") << u"a.toml"_s
                                                 << QByteArray("\xEF\xBB\xBF"
                                                               "foreign = [\n'a', # b\n]\n");
    QTest::newRow("letter that ends with the first byte beyond ASCII")
            << u"a.toml"_s << QByteArray("foreign = ['\xC3\x80']\n");
    QTest::newRow("largest page") << u"a.toml"_s << QByteArray("page_sizes.A = { width = 10000, height = 0.5 }\n");
    QTest::newRow("empty JSON object") << u"a.json"_s << QByteArray("{}");
    QTest::newRow("JSON in capitals") << u"A.JSON"_s << QByteArray(R"({"rules": {}, "foreign": []})");
    QTest::newRow("JSON with a byte order mark") << u"a.json"_s << QByteArray("\xEF\xBB\xBF{}");
}

void tst_RVCheckConfiguration::fine()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, text);
    write(name, text);
    const RVCheckConfiguration configuration = RVCheckConfiguration::read(path(name));
    QCOMPARE(configuration.errorString(), QString());
    QVERIFY(!configuration.hasError());
    QVERIFY(!configuration.isNull());
}

void tst_RVCheckConfiguration::faults_data()
{
    QTest::addColumn<QByteArray>("toml");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");

    QTest::newRow("misspelt entry") << QByteArray("foreign = []\n[rule]\n") << u"2:2"_s
                                    << QByteArray(R"({"foreign": [], "rule": {}})")
                                    << u"there is no entry \"rule\"; did you mean \"rules\"?"_s;
    QTest::newRow("entry in another letter case")
            << QByteArray("Foreign = []") << u"1:1"_s << QByteArray(R"({"Foreign": []})")
            << u"there is no entry \"Foreign\"; did you mean \"foreign\"?"_s;
    QTest::newRow("entry with three letters missing")
            << QByteArray("pag_szs = 1") << u"1:1"_s << QByteArray(R"({"pag_szs": 1})")
            << u"there is no entry \"pag_szs\"; did you mean \"page_sizes\"?"_s;
    QTest::newRow("short entry with two wrong letters")
            << QByteArray("ralex = 1") << u"1:1"_s << QByteArray(R"({"ralex": 1})")
            << u"there is no entry \"ralex\"; did you mean \"rules\"?"_s;
    const QString entries = u"there are: rules, foreign, price_classes, page_sizes"_s;
    QTest::newRow("entry of four letters, two of which are wrong")
            << QByteArray("ruxs = 1") << u"1:1"_s << QByteArray(R"({"ruxs": 1})")
            << u"there is no entry \"ruxs\"; "_s + entries;
    QTest::newRow("short entry with three wrong letters")
            << QByteArray("forexx = 1") << u"1:1"_s << QByteArray(R"({"forexx": 1})")
            << u"there is no entry \"forexx\"; "_s + entries;
    QTest::newRow("entry with four wrong letters")
            << QByteArray("xxxx_sizes = 1") << u"1:1"_s << QByteArray(R"({"xxxx_sizes": 1})")
            << u"there is no entry \"xxxx_sizes\"; "_s + entries;
    QTest::newRow("unknown entry") << QByteArray("\n  colours = 1") << u"2:3"_s << QByteArray(R"({"colours": 1})")
                                   << u"there is no entry \"colours\"; there are: rules, foreign, price_classes, "
                                      "page_sizes"_s;
    QTest::newRow("misspelt rule") << QByteArray("[rules]\nspine-missing = 'off'\nkeyword-legcy = 'off'\n") << u"3:1"_s
                                   << QByteArray(R"({"rules": {"keyword-legcy": "off"}})")
                                   << u"there is no rule \"keyword-legcy\"; did you mean \"keyword-legacy\"?"_s;
    QTest::newRow("unknown rule") << QByteArray("[rules]\nall = 'off'\n") << u"2:1"_s
                                  << QByteArray(R"({"rules": {"all": "off"}})") << u"there is no rule \"all\""_s;
    QTest::newRow("unknown severity") << QByteArray("[rules]\nspine-missing = 'warn'\n") << u"2:17"_s
                                      << QByteArray(R"({"rules": {"spine-missing": "warn"}})")
                                      << u"\"warn\" is no severity; there are: off, note, warning, error"_s;
    QTest::newRow("severity in another letter case")
            << QByteArray("rules.spine-missing = 'Off'\n") << u"1:23"_s
            << QByteArray(R"({"rules": {"spine-missing": "Off"}})")
            << u"\"Off\" is no severity; there are: off, note, warning, error"_s;
    QTest::newRow("rules as a list") << QByteArray("rules = ['spine-missing']") << u"1:9"_s
                                     << QByteArray(R"({"rules": ["spine-missing"]})")
                                     << u"rules must be a table, but is a list"_s;
    QTest::newRow("boolean for a severity") << QByteArray("[rules]\nspine-missing = false") << u"2:17"_s
                                            << QByteArray(R"({"rules": {"spine-missing": false}})")
                                            << u"rules.spine-missing must be a text, but is a boolean"_s;
    QTest::newRow("foreign as a text") << QByteArray("foreign = 'supplier'") << u"1:11"_s
                                       << QByteArray(R"({"foreign": "supplier"})")
                                       << u"foreign must be a list of texts, but is a text"_s;
    QTest::newRow("number among names") << QByteArray("foreign = [ 'supplier', 7 ]") << u"1:25"_s
                                        << QByteArray(R"({"foreign": ["supplier", 7]})")
                                        << u"foreign.1 must be a text, but is a number"_s;
    QTest::newRow("empty name") << QByteArray("foreign = ['']") << u"1:12"_s << QByteArray(R"({"foreign": [""]})")
                                << u"foreign has an empty text"_s;
    QTest::newRow("price classes as a number")
            << QByteArray("price_classes = 61") << u"1:17"_s << QByteArray(R"({"price_classes": 61})")
            << u"price_classes must be a list of texts, but is a number"_s;
    QTest::newRow("group of price classes as a text") << QByteArray("[price_classes]\ncups = 'TAS1'") << u"2:8"_s
                                                      << QByteArray(R"({"price_classes": {"cups": "TAS1"}})")
                                                      << u"price_classes.cups must be a list of texts, but is a text"_s;
    QTest::newRow("blank price class") << QByteArray("[price_classes]\ncups = ['TAS1', ' ']") << u"2:17"_s
                                       << QByteArray(R"({"price_classes": {"cups": ["TAS1", " "]}})")
                                       << u"price_classes.cups has an empty text"_s;
    QTest::newRow("page size as a list") << QByteArray("[page_sizes]\nDUN9 = [210, 297]") << u"2:8"_s
                                         << QByteArray(R"({"page_sizes": {"DUN9": [210, 297]}})")
                                         << u"page_sizes.DUN9 must be a table, but is a list"_s;
    QTest::newRow("misspelt width") << QByteArray("[page_sizes]\nDUN9 = { widht = 210, width = 1, height = 297 }")
                                    << u"2:10"_s
                                    << QByteArray(R"({"page_sizes": {"DUN9": {"widht": 2, "width": 1, "height": 2}}})")
                                    << u"there is no entry \"page_sizes.DUN9.widht\"; did you mean \"width\"?"_s;
    QTest::newRow("page size without height")
            << QByteArray("[page_sizes]\nDUN9 = { width = 210 }") << u"2:1"_s
            << QByteArray(R"({"page_sizes": {"DUN9": {"width": 210}}})") << u"page_sizes.DUN9.height is missing"_s;
    QTest::newRow("page size without width and height")
            << QByteArray("[page_sizes]\nDUN9 = {}") << u"2:1"_s << QByteArray(R"({"page_sizes": {"DUN9": {}}})")
            << u"page_sizes.DUN9.width is missing"_s;
    QTest::newRow("width as a table") << QByteArray("[page_sizes]\nDUN9 = { width = { mm = 210 }, height = 297 }")
                                      << u"2:18"_s
                                      << QByteArray(
                                                 R"({"page_sizes": {"DUN9": {"width": {"mm": 210}, "height": 297}}})")
                                      << u"page_sizes.DUN9.width must be a number, but is a table"_s;
    QTest::newRow("width as a text") << QByteArray("[page_sizes]\nDUN9 = { width = '210', height = 297 }") << u"2:18"_s
                                     << QByteArray(R"({"page_sizes": {"DUN9": {"width": "210", "height": 297}}})")
                                     << u"page_sizes.DUN9.width must be a number, but is a text"_s;
    QTest::newRow("no width") << QByteArray("[page_sizes]\nDUN9 = { width = 0, height = 297 }") << u"2:18"_s
                              << QByteArray(R"({"page_sizes": {"DUN9": {"width": 0, "height": 297}}})")
                              << u"page_sizes.DUN9.width must be above 0 and at most 10000 mm"_s;
    QTest::newRow("width that is no number")
            << QByteArray("[page_sizes]\nDUN9 = { width = nan, height = 297 }") << u"2:18"_s
            << QByteArray(R"({"page_sizes": {"DUN9": {"width": -210, "height": 297}}})")
            << u"page_sizes.DUN9.width must be above 0 and at most 10000 mm"_s;
    QTest::newRow("height too large") << QByteArray("[page_sizes]\nDUN9 = { width = 210, height = 10000.1 }")
                                      << u"2:32"_s
                                      << QByteArray(R"({"page_sizes": {"DUN9": {"width": 1, "height": 1e300}}})")
                                      << u"page_sizes.DUN9.height must be above 0 and at most 10000 mm"_s;
    QTest::newRow("one family twice")
            << QByteArray("[page_sizes]\nDUN9 = { width = 1, height = 2 }\nDUN9_30 = { width = 1, height = 2 }")
            << u"3:1"_s
            << QByteArray(
                       R"({"page_sizes": {"DUN9": {"width": 1, "height": 2}, "DUN9_30": {"width": 1, "height": 2}}})")
            << u"the product type \"DUN9_30\", that is \"DUN9\", already has a page size"_s;
    QTest::newRow("page size of no type")
            << QByteArray("[page_sizes]\n'' = { width = 1, height = 2 }") << u"2:1"_s
            << QByteArray(R"({"page_sizes": {"": {"width": 1, "height": 2}}})") << u"a product type is missing"_s;
    QTest::newRow("behind a letter of two code units")
            << QByteArray("foreign = ['\xF0\x9F\x93\x96', 7]") << u"1:18"_s << QByteArray(R"({"foreign": ["a", 7]})")
            << u"foreign.1 must be a text, but is a number"_s;
    QTest::newRow("behind a byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                            "foreign = 7")
                                              << u"1:11"_s << QByteArray("\xEF\xBB\xBF{\"foreign\": 7}")
                                              << u"foreign must be a list of texts, but is a number"_s;
    QTest::newRow("date") << QByteArray("[page_sizes]\nDUN9 = 2026-01-01") << u"2:8"_s
                          << QByteArray(R"({"page_sizes": {"DUN9": null}})")
                          << u"page_sizes.DUN9 must be a table, but is something else"_s;
    QTest::newRow("first of several faults")
            << QByteArray("foreign = 1\nbackground = 2\nprice_classes = 3") << u"1:11"_s
            << QByteArray(R"({"foreign": 1, "rules": {}, "price_classes": 3})")
            << u"foreign must be a list of texts, but is a number"_s;
    QTest::newRow("tables in tables") << QByteArray("rules.a.b.c.d.e.f = 1") << u"1:7"_s
                                      << QByteArray(R"({"rules": {"a": {"b": {"c": {"d": {"e": 1}}}}}})")
                                      << u"there is no rule \"a\""_s;
}

void tst_RVCheckConfiguration::faults()
{
    QFETCH(QByteArray, toml);
    QFETCH(QByteArray, json);
    QFETCH(QString, place);
    write(u"rvcatalog.toml"_s, toml);
    const RVCheckConfiguration ofToml = RVCheckConfiguration::read(path(u"rvcatalog.toml"_s));
    QTEST(ofToml.errorString(), "error");
    QCOMPARE(placeOf(ofToml), place);
    QVERIFY(ofToml.hasError());
    QVERIFY(!ofToml.isNull());

    write(u"rvcatalog.json"_s, json);
    const RVCheckConfiguration ofJson = RVCheckConfiguration::read(path(u"rvcatalog.json"_s));
    QTEST(ofJson.errorString(), "error");
    QCOMPARE(placeOf(ofJson), QString()); // JSON gives no place
    QVERIFY(ofJson.hasError());
}

void tst_RVCheckConfiguration::brokenOneChangesNothing()
{
    write(u"a.toml"_s, "price_classes = ['TAS1']\n[rules]\nkeyword-legacy = 'off'\nno-rule = 'off'\n");
    const RVCheckConfiguration configuration = RVCheckConfiguration::read(path(u"a.toml"_s));
    QVERIFY(configuration.hasError());
    RVCatalogueCheck check;
    configuration.apply(&check);
    QVERIFY(check.isEnabled(rule(u"keyword-legacy")));
    QCOMPARE(check.priceClasses(), QStringList());
}

void tst_RVCheckConfiguration::limits_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("place");

    const QByteArray comment(1024 * 1024 - 1, '#');
    QTest::newRow("1 MiB") << u"a.toml"_s << comment + '\n' << QString() << QString();
    QTest::newRow("more than 1 MiB") << u"a.toml"_s << comment + "\n\n"
                                     << u"the file is larger than 1 MiB"_s << QString();
    const QByteArray names = QByteArray("a.").repeated(500000);
    QTest::newRow("half a million nested tables, by a key") << u"a.toml"_s << "\n" + names + "a = 1\n"
                                                            << u"this line has more than 256 dots"_s << u"2:1"_s;
    QTest::newRow("half a million nested tables, by a heading") << u"a.toml"_s << "[" + names + "a]\n"
                                                                << u"this line has more than 256 dots"_s << u"1:1"_s;
    QTest::newRow("as many dots as allowed")
            << u"a.toml"_s << QByteArray("a.").repeated(256) + "a = 1"
            << u"there is no entry \"a\"; there are: rules, foreign, price_classes, page_sizes"_s << u"1:1"_s;
}

void tst_RVCheckConfiguration::limits()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, text);
    write(name, text);
    const RVCheckConfiguration configuration = RVCheckConfiguration::read(path(name));
    QTEST(configuration.errorString(), "error");
    QTEST(placeOf(configuration), "place");
}

void tst_RVCheckConfiguration::unreadable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("line");

    const QString noToml = u"this is no TOML: "_s;
    QTest::newRow("key without value") << u"a.toml"_s << QByteArray("foreign = []\nrules\n") << noToml << 2;
    QTest::newRow("key twice") << u"a.toml"_s << QByteArray("foreign = []\nforeign = []\n") << noToml << 2;
    QTest::newRow("TOML that is no UTF-8")
            << u"a.toml"_s << QByteArray("\nforeign = ['\xE4']\n") << u"this line is not written in UTF-8"_s << 2;
    QTest::newRow("letter outside of a text")
            << u"a.toml"_s << QByteArray("\n\xC3\x9F = 1\n")
            << u"this is no TOML: a letter that may stand only in a text stands elsewhere"_s << 2;
    QTest::newRow("a hundred nested lists")
            << u"a.toml"_s << "foreign = " + QByteArray(100, '[') + QByteArray(100, ']') << noToml << 1;
    QTest::newRow("letter in place of an hour")
            << u"a.toml"_s << QByteArray("\nforeign = 2026-01-01Tx\n") << noToml << 2;
    QTest::newRow("zero byte in a text") << u"a.toml"_s << QByteArray("\nforeign = ['a\0b']\n", 19) << noToml << 2;
    const QString noJson = u"this is no JSON: "_s;
    QTest::newRow("JSON with a comma too many") << u"a.json"_s << QByteArray("{\n  \"foreign\": [],\n}") << noJson << 3;
    QTest::newRow("JSON that ends too early") << u"a.json"_s << QByteArray("{") << noJson << 1;
    QTest::newRow("JSON that is no UTF-8") << u"a.json"_s << QByteArray("{\"foreign\": [\"\xE4\"]}") << noJson << 1;
    QTest::newRow("empty JSON") << u"a.json"_s << QByteArray() << noJson << 1;
    QTest::newRow("JSON list") << u"a.json"_s << QByteArray("[]") << u"this is no JSON object"_s << 1;
}

void tst_RVCheckConfiguration::unreadable()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, text);
    QFETCH(QString, error);
    write(name, text);
    const RVCheckConfiguration configuration = RVCheckConfiguration::read(path(name));
    QVERIFY2(configuration.errorString().startsWith(error), qPrintable(configuration.errorString()));
    QVERIFY(!configuration.errorString().contains(u'\n'));
    // The column depends on the version of the parser.
    QVERIFY(configuration.errorPosition());
    QFETCH(int, line);
    QCOMPARE(configuration.errorPosition()->line, line);
}

void tst_RVCheckConfiguration::columnInJson_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("place"); // of a text in front of which this stands

    QTest::newRow("first line") << QByteArray("{ ") << u"1:3"_s;
    QTest::newRow("later line") << QByteArray("{\n\n   ") << u"3:4"_s;
    QTest::newRow("letters beyond ASCII") << QByteArray("{\n\"ä\U0001F4D5\": 1, ") << u"2:11"_s;
    QTest::newRow("behind a byte order mark") << QByteArray("\xEF\xBB\xBF{ ") << u"1:3"_s;
}

// The parser's place may differ by some letters in other versions, so it is compared with that in a file of one line.
void tst_RVCheckConfiguration::columnInJson()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, place);
    const auto faultBehind = [this](const QByteArray &begin) {
        write(u"a.json"_s, begin + "x");
        return RVCheckConfiguration::read(path(u"a.json"_s)).errorPosition().value_or(RVFilePosition());
    };
    const RVFilePosition position = faultBehind(before);
    const qint64 shift = qint64(faultBehind("{").column) - 2;
    QCOMPARE(u"%1:%2"_s.arg(position.line).arg(position.column - shift), place);
}

void tst_RVCheckConfiguration::find_data()
{
    QTest::addColumn<QString>("file"); // below the folder of the test
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("isFound");
    QTest::addColumn<QString>("error");

    const QString file = u"file"_s;
    const QString none;
    QTest::newRow("TOML beside the catalogue") << u"a/b/rvcatalog.toml"_s << file << true << none;
    QTest::newRow("JSON beside the catalogue") << u"a/b/rvcatalog.json"_s << file << true << u"this is no JSON"_s;
    QTest::newRow("in the folder above") << u"a/rvcatalog.toml"_s << file << true << none;
    QTest::newRow("two folders above") << u"rvcatalog.toml"_s << file << true << none;
    QTest::newRow("in a folder below") << u"a/b/c/rvcatalog.toml"_s << file << false << none;
    QTest::newRow("in a folder beside") << u"d/rvcatalog.toml"_s << file << false << none;
    QTest::newRow("file with another name") << u"a/b/catalog.toml"_s << file << false << none;
    QTest::newRow("folder of that name") << u"a/rvcatalog.toml"_s << u"folder"_s << true << u"it is no regular file"_s;
    QTest::newRow("link that points nowhere")
            << u"a/rvcatalog.toml"_s << u"link"_s << true << u"cannot open the file: No such file or directory"_s;
}

void tst_RVCheckConfiguration::find()
{
    QFETCH(QString, file);
    QFETCH(QString, kind);
    QFETCH(bool, isFound);
    QFETCH(QString, error);
    for (const QString &folder : { u"a/b/c"_s, u"d"_s })
        QVERIFY(QDir(path(QString())).mkpath(folder));
    if (kind == "folder"_L1)
        QVERIFY(QDir().mkpath(path(file)));
    else if (kind == "link"_L1)
        QVERIFY(QFile::link(path(u"nowhere"_s), path(file)));
    else
        write(file, "[rules]\nkeyword-legacy = 'off'\n");

    const QString catalogue = path(u"a/b/products.xml"_s);
    const QStringList expected = isFound ? QStringList(path(file)) : QStringList();
    QCOMPARE(RVCheckConfiguration::files(catalogue), expected);
    const RVCheckConfiguration configuration = RVCheckConfiguration::find(catalogue);
    QCOMPARE(configuration.isNull(), !isFound);
    QCOMPARE(configuration.fileName(), expected.value(0));
    QVERIFY2(configuration.errorString().startsWith(error), qPrintable(configuration.errorString()));
    QCOMPARE(configuration.hasError(), !error.isEmpty());
    RVCatalogueCheck check;
    configuration.apply(&check);
    QCOMPARE(check.isEnabled(rule(u"keyword-legacy")), !isFound || !error.isEmpty());
}

// The nearest file is the only one that counts.
void tst_RVCheckConfiguration::bothFiles()
{
    QVERIFY(QDir(path(QString())).mkpath(u"a"_s));
    write(u"rvcatalog.toml"_s, "[rules]\nkeyword-legacy = 'off'\n");
    write(u"a/rvcatalog.json"_s, "{}");
    const QString catalogue = path(u"a/products.xml"_s);
    QCOMPARE(RVCheckConfiguration::find(catalogue).fileName(), path(u"a/rvcatalog.json"_s));
    QVERIFY(!RVCheckConfiguration::find(catalogue).hasError());

    write(u"a/rvcatalog.toml"_s, QByteArray());
    const RVCheckConfiguration configuration = RVCheckConfiguration::find(catalogue);
    QCOMPARE(RVCheckConfiguration::files(catalogue),
             (QStringList { path(u"a/rvcatalog.toml"_s), path(u"a/rvcatalog.json"_s) }));
    QCOMPARE(configuration.fileName(), path(u"a/rvcatalog.toml"_s));
    QCOMPARE(configuration.errorString(), u"rvcatalog.json lies in the same folder, and only one of them can count"_s);
    QVERIFY(!configuration.errorPosition());
}

void tst_RVCheckConfiguration::neitherFileNorCatalogue()
{
    const RVCheckConfiguration configuration = RVCheckConfiguration::read(path(u"rvcatalog.toml"_s));
    QVERIFY(!configuration.isNull());
    QCOMPARE(configuration.errorString(), u"cannot open the file: No such file or directory"_s);
    QVERIFY(!configuration.errorPosition());
    QVERIFY(RVCheckConfiguration::find(path(u"no/such/folder/products.xml"_s)).isNull());
    QVERIFY(RVCheckConfiguration::find(u"/"_s).isNull());
}

void tst_RVCheckConfiguration::currentFolder()
{
    QVERIFY(QDir(path(QString())).mkpath(u"a"_s));
    write(u"rvcatalog.toml"_s, QByteArray());
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(path(u"a"_s)));
    const QStringList found = RVCheckConfiguration::files(u"-"_s) + RVCheckConfiguration::files(u"../a/b.xml"_s);
    QVERIFY(QDir::setCurrent(before));
    const QString expected = QFileInfo(path(u"rvcatalog.toml"_s)).canonicalFilePath();
    QCOMPARE(found, (QStringList { expected, expected }));
}

void tst_RVCheckConfiguration::copies()
{
    write(u"a.toml"_s, "[rules]\nno-rule = 'off'\n");
    RVCheckConfiguration configuration = RVCheckConfiguration::read(path(u"a.toml"_s));
    const RVCheckConfiguration copy = configuration;
    RVCheckConfiguration assigned;
    assigned = copy;
    configuration = RVCheckConfiguration();
    QVERIFY(configuration.isNull());
    QCOMPARE(copy.errorString(), u"there is no rule \"no-rule\""_s);
    QCOMPARE(assigned.fileName(), path(u"a.toml"_s));
    const RVCheckConfiguration moved = std::move(assigned);
    QVERIFY(moved.hasError());
}

QTEST_GUILESS_MAIN(tst_RVCheckConfiguration)
#include "tst_RVCheckConfiguration.moc"
