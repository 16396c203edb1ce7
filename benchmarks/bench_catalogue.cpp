// One catalogue of 20,000 products, read by whole processes: "rvcatalog" and programs that use the library, compared
// with xmllint, with QDomDocument and with bare passes of parsers.
#include "Catalogue.h"
#include "Comparison.h"
#include "Process.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int PRODUCTS = 20000;
constexpr int FORMS = 6;

/// The output of a program, product by product.
class Output
{
public:
    Output(const Command &command, const QString &fileName) : myFile(fileName)
    {
        runProcess(command, fileName);
        if (!myFile.open(QIODevice::ReadOnly))
            fail("cannot read what " + command.front() + " wrote");
    }

    /// The next product, empty at the end; the text around the products is skipped.
    QJsonObject next()
    {
        while (!myFile.atEnd()) {
            QByteArray line = myFile.readLine().trimmed();
            if (line.endsWith(','))
                line.chop(1);
            if (line.startsWith('{'))
                return QJsonDocument::fromJson(line).object();
        }
        return {};
    }

private:
    QFile myFile;
};

/// Two programs that print the same have read the same values.
void requireSameOutput(const QTemporaryDir &folder, const QList<Command> &commands)
{
    QByteArray expected;
    for (const Command &command : commands) {
        QFile file(folder.filePath(u"output"_s));
        runProcess(command, file.fileName());
        file.open(QIODevice::ReadOnly);
        const QByteArray output = file.readAll();
        if (output.isEmpty() || (!expected.isEmpty() && output != expected))
            fail(command.front() + " printed \"" + output.toStdString() + "\" instead of \"" + expected.toStdString()
                 + '"');
        expected = output;
    }
}

/// True when our output, which has more values, contains all values of the other program. Lengths may differ by
/// rounding.
// NOLINTNEXTLINE(misc-no-recursion): as deep as the JSON of a product
bool contains(const QJsonValue &ours, const QJsonValue &theirs)
{
    if (theirs.isDouble())
        return std::abs(ours.toDouble(-1) - theirs.toDouble()) < 1e-9;
    if (theirs.isArray() && ours.toArray().size() != theirs.toArray().size())
        return false;
    if (!theirs.isArray() && !theirs.isObject())
        return ours == theirs;
    for (qsizetype i = 0; i < theirs.toArray().size(); ++i) {
        if (!contains(ours[i], theirs[i]))
            return false;
    }
    const QStringList keys = theirs.toObject().keys();
    // NOLINTNEXTLINE(misc-no-recursion): as above
    return std::all_of(keys.begin(), keys.end(), [&](const QString &key) { return contains(ours[key], theirs[key]); });
}

void requireSameProducts(Output &ours, Output &theirs)
{
    int count = 0;
    for (QJsonObject product = ours.next(); !product.isEmpty(); product = ours.next()) {
        const QJsonObject same = theirs.next();
        if (same.isEmpty() || !contains(product, same))
            fail("the programs differ in product " + std::to_string(count));
        ++count;
    }
    if (count != PRODUCTS || !theirs.next().isEmpty())
        fail("the programs did not find all products");
}

void add(const char *name, const Command &command)
{
    benchmark::RegisterBenchmark(name,
                                 [command](benchmark::State &state) {
                                     ProcessUsage usage;
                                     for (auto _ : state) {
                                         usage = runProcess(command);
                                         state.SetIterationTime(usage.seconds);
                                     }
                                     state.counters["processor_milliseconds"] = usage.processorSeconds * 1000;
                                     state.counters["peak_megabytes"] = usage.peakMegabytes;
                                 })
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
}

/// The distance between products with a wider spine; 0 for none.
std::string writeCatalogue(const QString &name, int changed = 0)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        fail("cannot write the catalogue");
    file.write(CATALOGUE_HEAD);
    for (int number = 0; number < PRODUCTS; ++number) {
        QByteArray product = productXml(number, FORMS);
        if (changed > 0 && number % changed == 0)
            product.replace("base_width=\"", "base_width=\"1");
        file.write(product);
    }
    file.write(CATALOGUE_FOOT);
    return file.fileName().toStdString();
}

void addShow(const QTemporaryDir &folder, const std::string &file)
{
    const Command ours { RVCATALOG, "show", "--json", file };
    Output oursOutput(ours, folder.filePath(u"ours.json"_s));
    Output theirsOutput({ CATALOGUE_DOM, file, "--json" }, folder.filePath(u"dom.json"_s));
    requireSameProducts(oursOutput, theirsOutput);
    add("catalogue/ours", ours);
    add("catalogue/dom", { CATALOGUE_DOM, file });
    add("catalogue/xmllint", { XMLLINT, "--stream", "--noout", file });
}

/// Neither program finds anything.
void addCheck(const std::string &file)
{
    add("check/ours", { RVCATALOG, "check", file });
    add("check/xmllint", { XMLLINT, "--stream", "--noout", "--schema", SCHEMA, file });
}

void addTyped(const QTemporaryDir &folder, const std::string &file)
{
    const Command ours { CATALOGUE_TYPED, file };
    const Command readers { CATALOGUE_READERS, file };
    requireSameOutput(folder, { ours, readers });
    add("typed/ours", ours);
    add("typed/readers", readers);
}

/// Programs that compare end with 1 if they find a difference.
Command comparing(const std::string &script, const std::vector<std::string> &files)
{
    Command command { "/bin/sh", "-c", "{ " + script + "; } || test $? = 1", "sh" };
    command.insert(command.end(), files.begin(), files.end());
    return command;
}

void addDiff(const QTemporaryDir &folder, const std::string &before)
{
    constexpr int changed = 100;
    const std::string after = writeCatalogue(folder.filePath(u"changed.xml"_s), changed);
    const Command ours = comparing(RVCATALOG " diff \"$1\" \"$2\"", { before, after });
    QFile output(folder.filePath(u"diff"_s));
    runProcess(ours, output.fileName());
    output.open(QIODevice::ReadOnly);
    if (!output.readAll().endsWith("\n0 added, 0 removed, 200 changed, 19800 equal\n"))
        fail("rvcatalog diff did not find what differs");
    add("diff/ours", ours);
    add("diff/xmllint",
        comparing(XMLLINT " --c14n \"$1\" >\"$3\" && " XMLLINT " --c14n \"$2\" >\"$4\" && diff \"$3\" \"$4\"",
                  { before, after, before + ".c14n", after + ".c14n" }));
}

void addParsers(const QTemporaryDir &folder, const std::string &file)
{
    const Command qt { CATALOGUE_PARSE, "qt", file };
    const Command libxml2 { CATALOGUE_PARSE, "libxml2", file };
    const Command expat { CATALOGUE_PARSE, "expat", file };
    requireSameOutput(folder, { qt, libxml2, expat });
    add("parse/qt", qt);
    add("parse/libxml2", libxml2);
    add("parse/expat", expat);
}

}

void addBenchmarks()
{
    static const QTemporaryDir folder;
    const std::string file = writeCatalogue(folder.filePath(u"products.xml"_s));
    addShow(folder, file);
    addCheck(file);
    addDiff(folder, file);
    addTyped(folder, file);
    addParsers(folder, file);
}
