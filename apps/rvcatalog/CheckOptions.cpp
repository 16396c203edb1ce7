#include "CheckOptions.h"

#include "FindingWriter.h"
#include "RuleSearch.h"

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
    QLatin1StringView value; // empty where the option has none
} OPTIONS[] = {
    { "format"_L1, "Write text, json, or sarif (version 2.1.0)."_L1, "FORMAT"_L1 },
    { "rules"_L1, "List the rules, and why they matter."_L1, ""_L1 },
    { "disable"_L1, "Leave out a rule. May be given several times."_L1, "RULE"_L1 },
};
// clang-format on

/// The reason why one of the rules cannot be disabled; empty if all were disabled.
QString disable(RVCatalogueCheck *check, const QStringList &rules)
{
    for (const QString &name : rules) {
        const RVCatalogueRule rule = RVCatalogueRule::find(name);
        if (rule.isNull())
            return noRuleText(name);
        check->disable(rule);
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
    format = parser.isSet(u"format"_s) ? parser.value(u"format"_s) : u"text"_s;
    if (!FindingWriter::formats().contains(format))
        return u"there is no format \"%1\"; there are: %2"_s.arg(format, FindingWriter::formats().join(", "_L1));
    const QString unknownRule = disable(&check, parser.values(u"disable"_s));
    if (!unknownRule.isEmpty())
        return unknownRule;
    return fileNames.isEmpty() ? u"expected at least 1 argument, got 0"_s : QString();
}
