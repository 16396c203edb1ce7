#include "CommandLineWords.h"

using namespace Qt::StringLiterals;

namespace {

QString placeholderOf(const QString &argument)
{
    QString result = argument;
    for (const QLatin1StringView sign : { "["_L1, "]"_L1, "..."_L1 })
        result.remove(sign);
    return result;
}

}

CommandLineWords::CommandLineWords(const QStringList &words, const HelpText &help) : myHelp(help)
{
    for (const QString &word : words.mid(0, words.size() - 1)) {
        const bool isValue = !myOption.names.isEmpty();
        myOption = HelpOption();
        if (isValue)
            continue;
        if (!myAreOptionsOver && word == "--"_L1)
            myAreOptionsOver = true;
        else if (myAreOptionsOver || !word.startsWith(u'-') || word == "-"_L1)
            myArguments += word;
        else if (!help.option(word).valueName.isEmpty())
            myOption = help.option(word);
    }
    readLast(words.isEmpty() ? QString() : words.constLast(), help);
}

void CommandLineWords::readLast(const QString &word, const HelpText &help)
{
    myValue = word;
    if (!myOption.names.isEmpty() || myAreOptionsOver || !word.startsWith(u'-'))
        return;
    myIsOption = !word.contains(u'=');
    if (myIsOption)
        return;
    const qsizetype sign = word.indexOf(u'=');
    myOption = help.option(word.left(sign));
    myPrefix = word.left(sign + 1);
    myValue = word.mid(sign + 1);
}

QString CommandLineWords::placeholder() const
{
    const QStringList &known = myHelp.arguments();
    if (known.isEmpty())
        return QString();
    if (myArguments.size() < known.size())
        return placeholderOf(known.at(myArguments.size()));
    return known.constLast().contains("..."_L1) ? placeholderOf(known.constLast()) : QString();
}
