#include "HelpText.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QStringList usageArguments(const QString &usage)
{
    return usage.section("[options]"_L1, 1).split(u' ', Qt::SkipEmptyParts);
}

}

QStringList HelpOption::values() const
{
    return valueName.contains(u'|') ? valueName.split(u'|') : QStringList();
}

HelpText::HelpText(const QString &text)
{
    static const QRegularExpression optionLine(
            u"^  (?<names>--?[a-z][-a-z]*(, --?[a-z][-a-z]*)*)( <(?<value>[^>]+)>)? +(?<text>.*)$"_s);
    bool isAmongOptions = false;
    for (const QString &line : text.split(u'\n')) {
        if (line.startsWith("Usage: "_L1))
            myArguments = usageArguments(line);
        if (!line.startsWith(u' '))
            isAmongOptions = line == "Options:"_L1;
        if (!isAmongOptions || !line.startsWith(u' '))
            continue;
        const QRegularExpressionMatch match = optionLine.match(line);
        if (match.hasMatch())
            myOptions += { match.captured(u"names"_s).split(", "_L1), match.captured(u"value"_s),
                           match.captured(u"text"_s) };
        else if (!myOptions.isEmpty())
            myOptions.last().description += u' ' + line.trimmed();
    }
}

HelpOption HelpText::option(const QString &name) const
{
    for (const HelpOption &option : myOptions) {
        if (option.names.contains(name))
            return option;
    }
    return HelpOption();
}

QStringList HelpText::optionNames() const
{
    QStringList result;
    for (const HelpOption &option : myOptions) {
        for (const QString &name : option.names) {
            if (name.startsWith("--"_L1))
                result += name;
        }
    }
    return result;
}
