#ifndef COMMANDLINEWORDS_H
#define COMMANDLINEWORDS_H

#include "HelpText.h"

#include <QString>
#include <QStringList>

/// The words of a command line behind the command, of which the last one is not complete: what has been given so far,
/// and which option or argument the last word belongs to.
class CommandLineWords
{
public:
    CommandLineWords(const QStringList &words, const HelpText &help);

    /// True where the last word begins an option.
    bool isOption() const { return myIsOption; }
    /// The option whose value the last word is; empty where it is none.
    const HelpOption &option() const { return myOption; }
    /// The complete arguments in front of the last word, without options.
    const QStringList &arguments() const { return myArguments; }
    /// The argument that the last word is, as the usage names it, without brackets and dots; empty where no more are
    /// taken.
    QString placeholder() const;
    /// The letters in front of the value: "--format=" where that stands in the same word.
    const QString &prefix() const { return myPrefix; }
    const QString &value() const { return myValue; } ///< The letters of the value, or of the option.

private:
    void readLast(const QString &word, const HelpText &help);

    HelpText myHelp;
    QStringList myArguments;
    HelpOption myOption;
    QString myPrefix;
    QString myValue;
    bool myIsOption = false;
    bool myAreOptionsOver = false;
};

#endif
