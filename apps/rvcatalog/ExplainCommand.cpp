#include "RuleSearch.h"
#include "SubCommands.h"

#include <RVCatalogueRule.h>

#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Rules = QList<RVCatalogueRule>;

/// Lists every rule on one line: name, severity and the reason why it matters.
QString listOf(const Rules &rules)
{
    qsizetype width = 0;
    for (const RVCatalogueRule rule : rules)
        width = qMax(width, rule.name().size());
    QString result;
    for (const RVCatalogueRule rule : rules)
        result += rule.name().toString().leftJustified(width + 2)
                + rvSeverityName(rule.severity()).toString().leftJustified(9) + rule.reason() + u'\n';
    return result;
}

QString plainText(const Rules &rules)
{
    if (rules.isEmpty())
        return listOf(RVCatalogueRule::all());
    QStringList result;
    for (const RVCatalogueRule rule : rules)
        result += u"%1 (%2)\n\n%3\n"_s.arg(rule.name(), rvSeverityName(rule.severity()), rule.explanation());
    return result.join(u'\n');
}

QString sections(const Rules &rules)
{
    QStringList result;
    for (const RVCatalogueRule rule : rules)
        result += u"## %1\n\nSeverity: %2\n\n%3\n"_s.arg(rule.name(), rvSeverityName(rule.severity()),
                                                         rule.explanationAsMarkdown());
    return result.join(u'\n');
}

/// All rules as a page of their own.
QString markdownPage()
{
    return u"# The rules of rvcatalog check\n\n"
           "`rvcatalog explain RULE` shows the same. `rvcatalog explain --format markdown` writes this page.\n\n"_s
            + sections(RVCatalogueRule::all());
}

QString markdown(const Rules &rules)
{
    return rules.isEmpty() ? markdownPage() : sections(rules);
}

/// The rules of these names, or the reason why one cannot be found.
QString find(const QStringList &names, Rules *rules)
{
    for (const QString &name : names) {
        *rules += RVCatalogueRule::find(name);
        if (rules->constLast().isNull())
            return noRuleText(name);
    }
    return QString();
}

}

int explainCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Explains rules of the check: why each rule matters, a catalogue that breaks it,\n"
            "the same catalogue mended, and how to silence the rule. Without a rule, lists all\n"
            "rules."_s);
    parser.addOption({ u"format"_s, u"Write text or markdown."_s, u"text|markdown"_s, u"text"_s });
    parser.addPositionalArgument(u"RULE"_s, u"The name of a rule, such as keyword-unknown."_s, u"[RULE...]"_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 0, ANY_NUMBER, console, &exitCode))
        return exitCode;
    const bool isMarkdown = parser.value(u"format"_s) == "markdown"_L1;
    Rules rules;
    const QString refusal = find(parser.positionalArguments(), &rules);
    if (!refusal.isEmpty())
        return refuseArguments(arguments.constFirst(), refusal, console);
    QTextStream(console.output) << (isMarkdown ? markdown(rules) : plainText(rules));
    return EXIT_FINE;
}
