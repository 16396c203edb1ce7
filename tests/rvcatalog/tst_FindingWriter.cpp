#include "ProgramRun.h"
#include "TestFolder.h"

#include <CheckOptions.h>
#include <FindingWriter.h>

#include <RVCatalogueFinding.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QXmlStreamReader>

#include <csignal>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString FORMATS[] = { u"text"_s, u"json"_s, u"sarif"_s, u"github"_s, u"junit"_s };

RVCatalogueFinding finding(QAnyStringView rule, const QString &text, const QString &type = u"A"_s)
{
    RVCatalogueFinding result(RVCatalogueRule::find(rule), { { 3, 12 }, { 3, 25 } }, text, 7);
    result.setProductType(type);
    return result;
}

/// A finding with all possible parts.
RVCatalogueFinding wholeFinding()
{
    RVCatalogueFinding result = finding(u"option-duplicate", u"50 % of \"x\", or: all"_s, u"A&B"_s);
    result.setRelatedPlaces({ { { { 2, 5 }, { 2, 9 } }, u"the first one"_s, QString() },
                              { { { 9, 1 }, { 10, 4 } }, u"one in another file"_s, u"b c.xml"_s } });
    result.setFix({ { { { 3, 12 }, { 3, 25 } }, QString() }, { { { 3, 30 }, { 3, 30 } }, u"&quot;y"_s } });
    return result;
}

/// The output of a writer for a run over one file.
class Report
{
public:
    explicit Report(const QString &format) : myFile(std::tmpfile(), &std::fclose)
    {
        options.format = format;
        options.color = u"auto"_s;
    }

    QByteArray of(const QString &fileName, const QList<RVCatalogueFinding> &findings, int exitCode = 1)
    {
        const Console console { stdin, myFile.get(), stderr };
        const std::unique_ptr<FindingWriter> writer = FindingWriter::create(options, console);
        writer->begin();
        for (const RVCatalogueFinding &each : findings) {
            summary.count(each);
            writer->finding(fileName, each);
        }
        for (const Problem &problem : problems)
            writer->unreadable(fileName, problem);
        writer->endFile(fileName);
        writer->end(summary, exitCode);
        QByteArray result(std::ftell(myFile.get()), '\0');
        std::rewind(myFile.get());
        result.resize(qsizetype(std::fread(result.data(), 1, std::size_t(result.size()), myFile.get())));
        return result;
    }

    CheckOptions options;
    CheckSummary summary;
    QList<Problem> problems;

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE *)> myFile;
};

QString firstLine(const QByteArray &text)
{
    return QString::fromUtf8(text.left(text.indexOf('\n')));
}

QJsonObject firstResult(const QByteArray &sarif)
{
    const QJsonObject run = QJsonDocument::fromJson(sarif).object().value("runs"_L1).toArray().at(0).toObject();
    return run.value("results"_L1).toArray().at(0).toObject();
}

QByteArray compact(const QJsonValue &value)
{
    return QJsonDocument(QJsonArray { value }).toJson(QJsonDocument::Compact).chopped(1).sliced(1);
}

}

class tst_FindingWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats();
    void text();
    void textWithExcerpts();
    void types_data();
    void types();
    void json();
    void sarif();
    void typeWithoutProduct();
    void firstProductWithoutType();
    void sarifOfTheFile();
    void github();
    void githubEscapes_data();
    void githubEscapes();
    void githubPlaces();
    void junit();
    void junitOfAGoodFile();
    void junitIllegalLetters_data();
    void junitIllegalLetters();
    void omitted();
    void interrupted();
    void sarifIsValid_data();
    void sarifIsValid();
    void sarifSchemaRefuses_data();
    void sarifSchemaRefuses();
    void junitIsValid_data();
    void junitIsValid();

private:
    /// The reasons why a document does not fit the schema; empty if it fits.
    QString sarifErrors(const QByteArray &document) const;

    TestFolder myFolder;
};

void tst_FindingWriter::formats()
{
    QCOMPARE(FindingWriter::formats(), QStringList(std::begin(FORMATS), std::end(FORMATS)));
}

void tst_FindingWriter::text()
{
    QCOMPARE(Report(u"text"_s).of(u"a.xml"_s, { wholeFinding(), finding(u"keyword-legacy", u"old"_s) }),
             QByteArray("a.xml:3:12: error: A&B: 50 % of \"x\", or: all [option-duplicate]\n"
                        "a.xml:2:5: note: the first one\n"
                        "b c.xml:9:1: note: one in another file\n"
                        "a.xml:3:12: note: A: old [keyword-legacy]\n"
                        "0 products in 0 files: 1 error, 0 warnings, 1 note\n"));
}

void tst_FindingWriter::textWithExcerpts()
{
    const auto write = [this](const QString &name, const QByteArray &content) {
        QFile file(myFolder.path(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    QVERIFY(write(u"a.xml"_s, "<p>\n  abc\n0123456789 abcdefghijklmn\n"));
    QVERIFY(write(u"b c.xml"_s, QByteArray("\n").repeated(8) + "xyz\nxyz\n"));
    const QString name = myFolder.path(u"a.xml"_s);
    RVCatalogueFinding whole = wholeFinding();
    QList<RVRelatedPlace> places = whole.relatedPlaces();
    places[1].fileName = myFolder.path(places[1].fileName);
    whole.setRelatedPlaces(places);
    Report report(u"text"_s);
    report.options.color = u"always"_s;
    QCOMPARE(report.of(name, { whole, finding(u"option-default-missing", u"none"_s) })
                     .replace(myFolder.path().toUtf8(), ""),
             QByteArray("\033[1m/a.xml:3:12:\033[0m \033[1;31merror:\033[0m A&B: 50 % of \"x\", or: all "
                        "[option-duplicate]\n"
                        "    3 | 0123456789 abcdefghijklmn\n"
                        "      |            \033[1;31m^~~~~~~~~~~~~\033[0m\n"
                        "\033[1m/a.xml:2:5:\033[0m \033[1;36mnote:\033[0m the first one\n"
                        "    2 |   abc\n"
                        "      |     \033[1;36m^\033[0m\n"
                        "\033[1m/b c.xml:9:1:\033[0m \033[1;36mnote:\033[0m one in another file\n"
                        "    9 | xyz\n"
                        "      | \033[1;36m^~~\033[0m\n"
                        "\033[1m/a.xml:3:12:\033[0m \033[1;35mwarning:\033[0m A: none [option-default-missing]\n"
                        "    3 | 0123456789 abcdefghijklmn\n"
                        "      |            \033[1;35m^~~~~~~~~~~~~\033[0m\n"
                        "0 products in 0 files: 1 error, 1 warning, 0 notes\n"));
}

// A type may be any text, but a finding is still one line.
void tst_FindingWriter::types_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("line");

    const auto newRow = [](const char *name, const QString &type, const QString &shown) {
        QTest::newRow(name) << type << u"a.xml:3:12: note: "_s + shown + u"old [keyword-legacy]"_s;
    };
    newRow("plain", u"DUN9_30"_s, u"DUN9_30: "_s);
    newRow("none", QString(), QString());
    newRow("blank", u" \t"_s, QString());
    newRow("blanks inside", u" a  b "_s, u"a b: "_s);
    newRow("line feed", u"a\nb"_s, u"a b: "_s);
    newRow("escape", u"a\033[2Jb"_s, u"a [2Jb: "_s);
    newRow("turns the direction", u"a\u202eb"_s, u"a b: "_s);
    newRow("longer than a line", QString(100, u'x'), QString(80, u'x') + u": "_s);
    newRow("cut between the halves of a letter", QString(79, u'x') + u"😀😀"_s, QString(79, u'x') + u": "_s);
}

void tst_FindingWriter::types()
{
    QFETCH(QString, type);
    const QByteArray text = Report(u"text"_s).of(u"a.xml"_s, { finding(u"keyword-legacy", u"old"_s, type) });
    QTEST(firstLine(text), "line");
}

void tst_FindingWriter::json()
{
    const QByteArray text = Report(u"json"_s).of(u"a.xml"_s, { wholeFinding() });
    const QJsonObject document = QJsonDocument::fromJson(text).object();
    QCOMPARE(compact(document.value("findings"_L1).toArray().at(0)),
             QByteArray(R"({"column":12,"end_column":25,"end_line":3,"file":"a.xml",)"
                        R"("fix":[{"column":12,"end_column":25,"end_line":3,"file":"a.xml","line":3,"text":""},)"
                        R"({"column":30,"end_column":30,"end_line":3,"file":"a.xml","line":3,"text":"&quot;y"}],)"
                        R"("line":3,"product":7,"product_type":"A&B",)"
                        R"("related":[{"column":5,"end_column":9,"end_line":2,"file":"a.xml","line":2,)"
                        R"("text":"the first one"},{"column":1,"end_column":4,"end_line":10,"file":"b c.xml",)"
                        R"("line":9,"text":"one in another file"}],"rule":"option-duplicate","severity":"error",)"
                        R"("text":"50 % of \"x\", or: all"})"));
}

/// A misspelt product has no number, but its type is known.
void tst_FindingWriter::typeWithoutProduct()
{
    RVCatalogueFinding stray(RVCatalogueRule::find(u"element-misspelt"), { { 3, 12 }, { 3, 25 } }, u"text"_s);
    stray.setProductType(u"A"_s);
    const QByteArray json = Report(u"json"_s).of(u"a.xml"_s, { stray });
    const QJsonObject object = QJsonDocument::fromJson(json).object().value("findings"_L1).toArray().at(0).toObject();
    QVERIFY(object.value("product"_L1).isNull());
    QCOMPARE(object.value("product_type"_L1), QJsonValue(u"A"_s));
    const QJsonObject result = firstResult(Report(u"sarif"_s).of(u"a.xml"_s, { stray }));
    QCOMPARE(compact(result.value("properties"_L1)), QByteArray(R"({"productType":"A"})"));
}

void tst_FindingWriter::firstProductWithoutType()
{
    const RVCatalogueFinding first(RVCatalogueRule::find(u"type-missing"), { { 3, 12 }, { 3, 25 } }, u"none"_s, 0);
    const QByteArray json = Report(u"json"_s).of(u"a.xml"_s, { first });
    const QJsonObject object = QJsonDocument::fromJson(json).object().value("findings"_L1).toArray().at(0).toObject();
    QCOMPARE(object.value("product"_L1), QJsonValue(0));
    QCOMPARE(object.value("product_type"_L1), QJsonValue(u""_s));
    const QJsonObject result = firstResult(Report(u"sarif"_s).of(u"a.xml"_s, { first }));
    QCOMPARE(compact(result.value("properties"_L1)), QByteArray(R"({"productType":""})"));
}

void tst_FindingWriter::sarif()
{
    const QJsonObject result = firstResult(Report(u"sarif"_s).of(u"a.xml"_s, { wholeFinding() }));
    QCOMPARE(compact(result.value("message"_L1)), QByteArray(R"({"text":"A&B: 50 % of \"x\", or: all"})"));
    QCOMPARE(
            compact(result.value("relatedLocations"_L1)),
            QByteArray(R"([{"message":{"text":"the first one"},"physicalLocation":{"artifactLocation":{"uri":"a.xml"},)"
                       R"("region":{"endColumn":9,"endLine":2,"startColumn":5,"startLine":2}}},)"
                       R"({"message":{"text":"one in another file"},"physicalLocation":{"artifactLocation":)"
                       R"({"uri":"b%20c.xml"},)"
                       R"("region":{"endColumn":4,"endLine":10,"startColumn":1,"startLine":9}}}])"));
    QCOMPARE(compact(result.value("fixes"_L1)),
             QByteArray(R"([{"artifactChanges":[{"artifactLocation":{"uri":"a.xml"},"replacements":[)"
                        R"({"deletedRegion":{"endColumn":25,"endLine":3,"startColumn":12,"startLine":3},)"
                        R"("insertedContent":{"text":""}},)"
                        R"({"deletedRegion":{"endColumn":30,"endLine":3,"startColumn":30,"startLine":3},)"
                        R"("insertedContent":{"text":"&quot;y"}}]}]}])"));
    // sha256 of "option-duplicate", "A&B" and the text, with zeros between
    QCOMPARE(compact(result.value("partialFingerprints"_L1)),
             QByteArray(
                     R"({"rvcatalogFinding/v1":"225391a70e4b78af06c1b1bcc3d6b3bbcc15097493d14377a763bfbc37f7c97e"})"));
    QCOMPARE(compact(result.value("properties"_L1)), QByteArray(R"({"productType":"A&B"})"));
}

void tst_FindingWriter::sarifOfTheFile()
{
    const RVCatalogueFinding about(RVCatalogueRule::find(u"products-missing"), {}, u"nothing"_s);
    const QJsonObject result = firstResult(Report(u"sarif"_s).of(u"a.xml"_s, { about }));
    QCOMPARE(result.keys(),
             (QStringList { u"level"_s, u"locations"_s, u"message"_s, u"partialFingerprints"_s, u"ruleId"_s,
                            u"ruleIndex"_s }));
}

void tst_FindingWriter::github()
{
    Report report(u"github"_s);
    report.problems = { { { 4, 5 }, u"too early"_s } };
    QCOMPARE(report.of(u"a.xml"_s,
                       { wholeFinding(), finding(u"option-default-missing", u"none"_s),
                         finding(u"keyword-legacy", u"old"_s) }),
             QByteArray(
                     "::error file=a.xml,line=3,col=12,endLine=3,endColumn=25,title=option-duplicate::A&B: 50 %25 of "
                     "\"x\", or: all%0Aa.xml:2:5: the first one%0Ab c.xml:9:1: one in another file\n"
                     "::warning file=a.xml,line=3,col=12,endLine=3,endColumn=25,title=option-default-missing::A: none\n"
                     "::notice file=a.xml,line=3,col=12,endLine=3,endColumn=25,title=keyword-legacy::A: old\n"
                     "::error file=a.xml,line=4,col=5,endLine=4,endColumn=5,title=unreadable::too early\n"
                     "0 products in 0 files: 1 error, 1 warning, 1 note\n"));
}

void tst_FindingWriter::githubEscapes_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("property");

    QTest::newRow("plain") << u"a b/ä.xml"_s << u"file=a b/ä.xml,"_s;
    QTest::newRow("colon") << u"a:b"_s << u"file=a%3Ab,"_s;
    QTest::newRow("comma") << u"a,b"_s << u"file=a%2Cb,"_s;
    QTest::newRow("per cent") << u"a%2Cb"_s << u"file=a%252Cb,"_s;
    QTest::newRow("ends of lines") << u"a\r\nb"_s << u"file=a%0D%0Ab,"_s;
}

void tst_FindingWriter::githubEscapes()
{
    QFETCH(QString, fileName);
    QFETCH(QString, property);
    const QString line = firstLine(Report(u"github"_s).of(fileName, { finding(u"keyword-legacy", u"old"_s) }));
    QVERIFY2(line.startsWith("::notice "_L1 + property + "line=3,"_L1), qPrintable(line));
}

void tst_FindingWriter::githubPlaces()
{
    const RVCatalogueFinding tag(RVCatalogueRule::find(u"type-missing"), { { 3, 12 }, { 5, 2 } }, u"none"_s, 1);
    QCOMPARE(firstLine(Report(u"github"_s).of(u"a.xml"_s, { tag })),
             u"::error file=a.xml,line=3,endLine=5,title=type-missing::none"_s);
}

void tst_FindingWriter::junit()
{
    Report report(u"junit"_s);
    report.problems = { { { 4, 5 }, u"too early"_s } };
    QByteArray xml = report.of(u"a.xml"_s, { wholeFinding(), finding(u"keyword-legacy", u"old"_s) });
    static const QRegularExpression timestamp(u" timestamp=\"[-0-9]+T[:0-9]+\""_s);
    QCOMPARE(QString::fromUtf8(xml).remove(timestamp), uR"(<?xml version="1.0" encoding="UTF-8"?>
<testsuites>
<testsuite name="a.xml" package="rvcatalog" id="0" hostname="localhost" tests="2" failures="1" errors="1" time="0">
 <properties/>
 <testcase name="A&amp;B: 50 % of &quot;x&quot;, or: all" classname="option-duplicate" time="0">
  <failure message="50 % of &quot;x&quot;, or: all" type="option-duplicate">a.xml:3:12: error: A&amp;B: 50 % of &quot;x&quot;, or: all [option-duplicate]
a.xml:2:5: note: the first one
b c.xml:9:1: note: one in another file</failure>
 </testcase>
 <testcase name="a.xml" classname="unreadable" time="0">
  <error message="too early" type="unreadable">a.xml:4:5: too early</error>
 </testcase>
 <system-out>a.xml:3:12: note: A: old [keyword-legacy]</system-out>
 <system-err></system-err>
</testsuite>
</testsuites>
)"_s);
}

void tst_FindingWriter::junitOfAGoodFile()
{
    const QString xml = QString::fromUtf8(Report(u"junit"_s).of(u"a.xml"_s, {}, 0));
    QVERIFY(xml.contains("\n <testcase name=\"a.xml\" classname=\"check\" time=\"0\"/>\n"_L1));
    QVERIFY(xml.contains(" tests=\"1\" failures=\"0\" errors=\"0\""_L1));
}

void tst_FindingWriter::junitIllegalLetters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");

    QTest::newRow("several") << u"a\u0001\u001b\ufffe\tb😀"_s + QChar(0xd800)
                             << u"a\\u0001\\u001b\\ufffe\tb😀\\ud800"_s;
    QTest::newRow("half a letter in front of others") << QChar(0xd800) + u"x😀"_s << u"\\ud800x😀"_s;
}

void tst_FindingWriter::junitIllegalLetters()
{
    QFETCH(QString, name);
    QXmlStreamReader xml(Report(u"junit"_s).of(name, {}, 0));
    QVERIFY(xml.readNextStartElement() && xml.readNextStartElement());
    QTEST(xml.attributes().value("name"_L1).toString(), "shown");
    while (!xml.atEnd())
        xml.readNext();
    QCOMPARE(xml.errorString(), QString());
}

void tst_FindingWriter::omitted()
{
    const QString text = u"0 products in 0 files: 0 errors, 0 warnings, 1 note, 1 of them not shown"_s;
    for (const QString &format : FORMATS) {
        Report report(format);
        report.summary.omitted = 1;
        const QString document = QString::fromUtf8(report.of(u"a.xml"_s, { finding(u"keyword-legacy", u"old"_s) }));
        QVERIFY2(document.contains(format == "json"_L1 ? u"\"omitted\":1,"_s : text), qPrintable(document));
        QVERIFY2(!document.contains("<error"_L1), qPrintable(document));
        if (format == "sarif"_L1)
            QVERIFY2(document.contains("{\"level\":\"note\",\"message\":{\"text\":\""_L1 + text), qPrintable(document));
    }
}

void tst_FindingWriter::interrupted()
{
    for (const QString &format : FORMATS) {
        Report report(format);
        report.summary.signal = SIGINT;
        const QString document = QString::fromUtf8(report.of(u"a.xml"_s, {}, 130));
        QVERIFY2(document.contains(format == "json"_L1 ? u"\"interrupted\":true"_s : u"0 notes, interrupted"_s),
                 qPrintable(document));
        if (format == "junit"_L1) {
            QCOMPARE(document.count("0 notes, interrupted"_L1), 1);
            QVERIFY2(document.contains(" id=\"1\""_L1), qPrintable(document));
        }
    }
    Report report(u"sarif"_s);
    report.summary.signal = SIGINT;
    QVERIFY(report.of(u"a.xml"_s, {}, 130).contains("\"executionSuccessful\":false,\"exitCode\":130,"));
}

namespace {

/// Runs that together have all possible parts of a document.
void addRuns()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QList<RVCatalogueFinding>>("findings");
    QTest::addColumn<bool>("isUnreadable");
    QTest::addColumn<int>("signal");

    const QList<RVCatalogueFinding> none;
    const RVCatalogueFinding about(RVCatalogueRule::find(u"products-missing"), {}, u"nothing"_s);
    QTest::newRow("nothing") << u"a.xml"_s << none << false << 0;
    QTest::newRow("everything") << u"a.xml"_s << QList { wholeFinding(), wholeFinding() } << true << SIGTERM;
    QTest::newRow("about the file") << u"a.xml"_s << QList { about } << false << 0;
    QTest::newRow("special characters in names")
            << u"ä &<\"'%\033\n.xml"_s << QList { finding(u"keyword-legacy", u"<&]]>"_s, u"\033\u202e\""_s) } << false
            << 0;
    QTest::newRow("special characters in a text")
            << u"a.xml"_s << QList { finding(u"type-missing", u"<&]]> \" ' \\"_s, u"\033\u202e\""_s) } << false << 0;
}

QByteArray documentOfRow(const QString &format)
{
    QFETCH(QString, fileName);
    QFETCH(QList<RVCatalogueFinding>, findings);
    QFETCH(bool, isUnreadable);
    QFETCH(int, signal);
    Report report(format);
    report.summary.signal = signal;
    if (isUnreadable)
        report.problems = { { { 4, 5 }, u"too early"_s } };
    return report.of(fileName, findings);
}

}

QString tst_FindingWriter::sarifErrors(const QByteArray &document) const
{
    const QString file = myFolder.path(u"a.sarif"_s);
    if (!writeFile(file, document))
        return u"the document cannot be written"_s;
    const ProgramRun run = runProgram(
            QString(), QStringLiteral(PYTHON),
            { u"-W"_s, u"ignore"_s, u"-m"_s, u"jsonschema"_s, u"-i"_s, file, QStringLiteral(SARIF_SCHEMA) });
    return run.exitCode == 0 ? QString() : u"not valid: "_s + run.messages;
}

void tst_FindingWriter::sarifIsValid_data()
{
    addRuns();
}

void tst_FindingWriter::sarifIsValid()
{
    QCOMPARE(sarifErrors(documentOfRow(u"sarif"_s)), QString());
}

void tst_FindingWriter::sarifSchemaRefuses_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *name, const char *from, const char *to, const QString &reason) {
        QTest::newRow(name) << QByteArray(from) << QByteArray(to) << reason;
    };
    row("column 0", R"("startColumn":5)", R"("startColumn":0)", u"0 is less than the minimum of 1"_s);
    row("line as a text", R"("startLine":2)", R"("startLine":"2")", u"'2' is not of type 'integer'"_s);
    row("unknown key", R"("endColumn":9)", R"("lastColumn":9)", u"('lastColumn' was unexpected)"_s);
    row("unknown level", R"("level":"error")", R"("level":"fatal")", u"'fatal' is not one of"_s);
    row("message without text", R"({"text":"the first one"})", "{}", u"'text' is a required property"_s);
    row("fix without a region", R"("deletedRegion":)", R"("region":)", u"'deletedRegion' is a required property"_s);
    row("blank in a URI", "b%20c.xml", "b c.xml", u"'b c.xml' does not match"_s);
    row("another version", R"("version":"2.1.0")", R"("version":"2.0.0")", u"'2.0.0' is not one of"_s);
}

void tst_FindingWriter::sarifSchemaRefuses()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, reason);
    QByteArray document = Report(u"sarif"_s).of(u"a.xml"_s, { wholeFinding() });
    QVERIFY(document.contains(from));
    const QString errors = sarifErrors(document.replace(from, to));
    QVERIFY2(errors.contains(reason), qPrintable(errors));
}

void tst_FindingWriter::junitIsValid_data()
{
    addRuns();
}

void tst_FindingWriter::junitIsValid()
{
    const ProgramRun run = runProgram(QString(), QStringLiteral(XMLLINT),
                                      { u"--noout"_s, u"--schema"_s, QStringLiteral(JUNIT_SCHEMA), u"-"_s },
                                      documentOfRow(u"junit"_s));
    QVERIFY2(run.exitCode == 0, qPrintable(run.messages));
}

QTEST_GUILESS_MAIN(tst_FindingWriter)
#include "tst_FindingWriter.moc"
