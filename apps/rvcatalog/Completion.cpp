#include "Completion.h"

#include "CommandLineWords.h"
#include "Commands.h"
#include "ProductCondition.h"

#include <RVCatalogueAttribute.h>
#include <RVCatalogueReader.h>
#include <RVCatalogueRule.h>

#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Candidates = QList<CompletionCandidate>;

/// The text that a command writes about itself.
QString helpOf(const QString &command)
{
    char *text = nullptr;
    std::size_t size = 0;
    std::FILE *output = ::open_memstream(&text, &size);
    if (!output)
        return QString();
    runCommand({ command, u"--help"_s }, { stdin, output, output });
    std::fclose(output);
    const std::unique_ptr<char, void (*)(void *)> owner(text, &std::free);
    return QString::fromUtf8(text, qsizetype(size));
}

Candidates plain(const QStringList &words)
{
    Candidates result;
    for (const QString &word : words)
        result += { word, QString() };
    return result;
}

Candidates commands()
{
    Candidates result;
    for (const QString &name : commandNames())
        result += { name, commandSummary(name) };
    return result;
}

Candidates options(const HelpText &help)
{
    Candidates result;
    for (const HelpOption &option : help.options())
        result += { option.names.constLast(), option.description };
    return result;
}

/// The pieces of a list that @p text has begun, with their commas; the last one is not complete.
QString completePieces(const QString &text)
{
    return text.left(text.lastIndexOf(u',') + 1);
}

/// The rules, behind @p pieces of a list.
Candidates rules(const QString &pieces = QString())
{
    Candidates result;
    for (const RVCatalogueRule &rule : RVCatalogueRule::all())
        result += { pieces + rule.name(), rule.reason() };
    return result;
}

Candidates attributes()
{
    Candidates result;
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::all())
        result += { attribute.name(), attribute.label() };
    return result;
}

/// The keywords of an attribute, as the last piece of a list that @p text has begun.
Candidates keywords(const RVCatalogueAttribute &attribute, const QString &text)
{
    Candidates result;
    const QString pieces = completePieces(text);
    for (const RVCatalogueAttributeValue &value : attribute.values()) {
        if (!value.keyword.isEmpty())
            result += { pieces + value.keyword, value.displayName };
    }
    return result;
}

/// The products of the catalogue on a command line; none for an unreadable one and for the standard input.
Candidates types(const QString &catalogueName)
{
    Candidates result;
    RVCatalogueReader reader(catalogueName);
    for (const RVCatalogueProduct &product : reader) {
        if (product.type().isValid())
            result += { product.type().toString(), product.name() };
    }
    return result;
}

/// A condition on products, first its attribute and then its value.
Candidates conditions(const QString &text)
{
    Candidates result;
    if (!text.contains(u'=')) {
        for (const QString &name : ProductCondition::attributeNames())
            result += { name + u'=', QString() };
        return result;
    }
    const qsizetype sign = text.indexOf(u'=');
    QString name = text.left(sign);
    if (name.endsWith(u'!'))
        name.chop(1);
    const QList<CompletionCandidate> candidates = keywords(RVCatalogueAttribute::find(name), text.mid(sign + 1));
    for (const CompletionCandidate &candidate : candidates)
        result += { text.left(sign + 1) + candidate.word, candidate.description };
    return result;
}

/// The words that may stand where the help has this placeholder.
Completion wordsFor(const QString &placeholder, const CommandLineWords &line)
{
    const QString first = line.arguments().value(0);
    if (placeholder.contains(u'|'))
        return { plain(placeholder.split(u'|')), false };
    if (placeholder == "ATTRIBUTE"_L1)
        return { attributes(), false };
    if (placeholder == "CONDITION"_L1)
        return { conditions(line.value()), false };
    if (placeholder == "RULE"_L1)
        return { rules(), false };
    if (placeholder == "RULES"_L1)
        return { rules(completePieces(line.value())), false };
    if (placeholder == "TEXT"_L1)
        return { keywords(RVCatalogueAttribute::find(first), line.value()), false };
    if (placeholder == "TYPE"_L1)
        return { types(first), false };
    return { {}, placeholder == "FILE"_L1 || placeholder.endsWith(".xml"_L1) };
}

Completion completeCommandLine(const CommandLineWords &line, const HelpText &help)
{
    if (line.isOption())
        return { options(help), false };
    if (!line.option().names.isEmpty())
        return wordsFor(line.option().valueName, line);
    return wordsFor(line.placeholder(), line);
}

Completion completeProgram(const QString &word)
{
    if (word.startsWith(u'-'))
        return { plain({ u"--help"_s, u"--version"_s }), false };
    Candidates result = commands();
    result += { u"help"_s, u"explain a command"_s };
    return { result, false };
}

/// Keeps the candidates that continue the written letters, ignoring letter case, and adds the text in front.
Completion fitting(const Completion &completion, const QString &prefix, const QString &value)
{
    Completion result { {}, completion.areFilesMeant };
    for (const CompletionCandidate &candidate : completion.candidates) {
        if (candidate.word.startsWith(value, Qt::CaseInsensitive))
            result.candidates += { prefix + candidate.word, candidate.description };
    }
    return result;
}

}

Completion complete(const QStringList &words)
{
    const QString first = words.value(0);
    if (words.size() < 2)
        return fitting(completeProgram(first), QString(), first);
    if (first == "help"_L1)
        return fitting({ words.size() == 2 ? commands() : Candidates(), false }, QString(), words.constLast());
    if (!commandNames().contains(first))
        return Completion();
    const HelpText help(helpOf(first));
    const CommandLineWords line(words.mid(1), help);
    return fitting(completeCommandLine(line, help), line.prefix(), line.value());
}
