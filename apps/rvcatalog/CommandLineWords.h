#ifndef COMMANDLINEWORDS_H
#define COMMANDLINEWORDS_H

#include "HelpText.h"

#include <QString>
#include <QStringList>

/// The words of a command line behind the command. The last word is not complete; the class finds the option or
/// argument that it belongs to.
class CommandLineWords
{
public:
    CommandLineWords(const QStringList &words, const HelpText &help);

    /// True if the last word begins an option.
    bool isOption() const { return myIsOption; }
    /// The option whose value the last word is; empty if it is none.
    const HelpOption &option() const { return myOption; }
    /// The complete arguments in front of the last word, without options.
    const QStringList &arguments() const { return myArguments; }
    /// The name of the argument that the last word is, as in the usage, without brackets and dots; empty if the command
    /// takes no more.
    QString placeholder() const;
    /// The letters in front of the value: "--format=" if that stands in the same word.
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
