#include "CheckOptions.h"

#include "FindingWriter.h"
#include "RuleSearch.h"

#include <RVCatalogueReader.h>
#include <RVCatalogueRule.h>

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

/// The options, in the order of the help text.
// clang-format off
constexpr struct
{
    QLatin1StringView name;
    QLatin1StringView description;
    QLatin1StringView value; // empty if the option has none
} OPTIONS[] = {
    { "format"_L1, "Write text, json, sarif (version 2.1.0), github or junit."_L1, "text|json|sarif|github|junit"_L1 },
    { "select"_L1, "Check only these rules. Commas separate them."_L1, "RULES"_L1 },
    { "disable"_L1, "Leave out these rules. Commas separate them."_L1, "RULES"_L1 },
    { "max-findings"_L1, "Write at most this number of findings; the summary counts all."_L1, "NUMBER"_L1 },
    { "summary"_L1, "Write the number of findings of each rule instead of the findings."_L1, ""_L1 },
    { "quiet"_L1, "Write no findings; the exit code is the result."_L1, ""_L1 },
    { "color"_L1, "Colours and lines of the file: auto (on a terminal), always or never."_L1, "auto|always|never"_L1 },
    { "jobs"_L1, "Set the number of threads; by default one for each core, at most 8."_L1, "NUMBER"_L1 },
    { "fix"_L1, "Mend findings that have one safe answer, and report the others."_L1, ""_L1 },
    { "diff"_L1, "Write the changes of --fix as a unified diff; end with 1 if there are any."_L1, ""_L1 },
    { "rules"_L1, "List the rules and the reasons for them."_L1, ""_L1 },
    { "config"_L1, "Read this configuration instead of the one beside a catalogue."_L1, "FILE"_L1 },
    { "no-config"_L1, "Read no configuration."_L1, ""_L1 },
    { "baseline"_L1, "Leave out the findings in this file."_L1, "FILE"_L1 },
    { "write-baseline"_L1, "Write all findings to this file, for --baseline."_L1, "FILE"_L1 },
};
// clang-format on

/// Reads a number from 1, if there is one. Returns the reason if it is no such number.
template<typename Number>
QString readNumber(const QCommandLineParser &parser, const QString &option, Number *number)
{
    if (!parser.isSet(option))
        return QString();
    const qint64 value = parser.value(option).toLongLong(); // 0 for a text that is no number
    if (value < 1 || value > std::numeric_limits<Number>::max())
        return u"--%1 takes a whole number from 1, not \"%2\""_s.arg(option, parser.value(option));
    *number = Number(value);
    return QString();
}

/// Reads the rules of an option. Returns the reason if one of them is unknown, or if there is none.
QString findRules(const QCommandLineParser &parser, const QString &option, QList<RVCatalogueRule> *rules)
{
    const QStringList values = parser.values(option);
    const QStringList names = values.join(u',').split(u',', Qt::SkipEmptyParts);
    if (names.isEmpty() && !values.isEmpty())
        return u"--%1 names no rule"_s.arg(option);
    for (const QString &name : names) {
        *rules += RVCatalogueRule::find(name.trimmed());
        if (rules->constLast().isNull())
            return noRuleText(name.trimmed());
    }
    return QString();
}

}

void CheckOptions::addTo(QCommandLineParser *parser)
{
    for (const auto &option : OPTIONS)
        parser->addOption(QCommandLineOption(option.name, option.description, option.value));
}

QString CheckOptions::read(const QCommandLineParser &parser)
{
    fileNames = parser.positionalArguments();
    listsRules = parser.isSet(u"rules"_s);
    if (listsRules)
        return QString();
    showsFixes = parser.isSet(u"diff"_s);
    fixes = parser.isSet(u"fix"_s);
    for (const auto &readPart :
         { &CheckOptions::readLooks, &CheckOptions::readNumbers, &CheckOptions::readRules, &CheckOptions::readFiles }) {
        const QString refusal = (this->*readPart)(parser);
        if (!refusal.isEmpty())
            return refusal;
    }
    return fileNames.isEmpty() ? u"expected at least 1 argument, got 0"_s : QString();
}

void CheckOptions::limitThreads(RVCatalogueReader *reader) const
{
    if (threads > 0)
        reader->setThreadCount(threads);
}

QString CheckOptions::readLooks(const QCommandLineParser &parser)
{
    format = parser.isSet(u"format"_s) ? parser.value(u"format"_s) : u"text"_s;
    color = parser.isSet(u"color"_s) ? parser.value(u"color"_s) : u"auto"_s;
    isQuiet = parser.isSet(u"quiet"_s);
    isSummary = parser.isSet(u"summary"_s);
    if (isSummary && format != "text"_L1)
        return u"--summary is for the format text; other formats have their own"_s;
    if (showsFixes && format != "text"_L1)
        return u"--diff writes a unified diff, and no %1"_s.arg(format);
    return QString();
}

QString CheckOptions::readNumbers(const QCommandLineParser &parser)
{
    const QString refusal = readNumber(parser, u"jobs"_s, &threads);
    return refusal.isEmpty() ? readNumber(parser, u"max-findings"_s, &mostFindings) : refusal;
}

// Rules are left out last, so that no other option enables them again.
QString CheckOptions::readRules(const QCommandLineParser &parser)
{
    QList<RVCatalogueRule> selected;
    QList<RVCatalogueRule> disabled;
    QString refusal = findRules(parser, u"select"_s, &selected);
    if (refusal.isEmpty())
        refusal = findRules(parser, u"disable"_s, &disabled);
    const QList<RVCatalogueRule> all = RVCatalogueRule::all();
    for (const RVCatalogueRule rule : all) {
        if (disabled.contains(rule) || (parser.isSet(u"select"_s) && !selected.contains(rule)))
            check.disable(rule);
    }
    return refusal;
}

QString CheckOptions::readFiles(const QCommandLineParser &parser)
{
    configuration = { parser.value(u"config"_s), parser.isSet(u"no-config"_s) };
    baseline = { parser.value(u"baseline"_s), parser.value(u"write-baseline"_s), isQuiet };
    if (parser.isSet(u"config"_s) && configuration.isNone)
        return u"--config and --no-config contradict each other"_s;
    if (parser.isSet(u"baseline"_s) && parser.isSet(u"write-baseline"_s))
        return u"--baseline and --write-baseline contradict each other"_s;
    if (showsFixes && parser.isSet(u"write-baseline"_s))
        return u"--diff and --write-baseline contradict each other"_s;
    for (const QString &name : { u"config"_s, u"baseline"_s, u"write-baseline"_s }) {
        if (parser.isSet(name) && parser.value(name).isEmpty())
            return u"--%1 needs the name of a file"_s.arg(name);
    }
    return readStreams();
}

// Each of the standard streams has room for one file.
QString CheckOptions::readStreams() const
{
    const auto stream = u"-"_s;
    if ((fileNames + QStringList { configuration.fileName, baseline.fileName }).count(stream) > 1)
        return u"only one file can be the standard input"_s;
    if (fixes && fileNames.contains(stream) && baseline.writtenFileName == stream)
        return u"only one file can be the standard output"_s;
    return QString();
}
