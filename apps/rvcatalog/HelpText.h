#ifndef HELPTEXT_H
#define HELPTEXT_H

#include <QList>
#include <QString>
#include <QStringList>

/// An option, as the help of a command explains it.
struct HelpOption
{
    QStringList names; ///< with their dashes: { "-h", "--help" }
    QString valueName; ///< empty where it takes no value
    QString description;

    /// The values that there are, where the name of the value lists them: "text|json".
    QStringList values() const;
};

/**
 * The options and arguments that a command takes, read out of the help that QCommandLineParser makes of them, since it
 * tells them in no other way. So there is one place where an option is described, which is the command itself.
 */
class HelpText
{
public:
    HelpText() = default; ///< Of a command that takes nothing.
    explicit HelpText(const QString &text);

    const QList<HelpOption> &options() const { return myOptions; }
    /// The option of that name, dashes included; one without names where there is none.
    HelpOption option(const QString &name) const;
    QStringList optionNames() const; ///< Those of more than a letter, with their dashes.
    /// As the usage writes them: { "CATALOGUE.xml", "[TYPE...]" }.
    const QStringList &arguments() const { return myArguments; }

private:
    QList<HelpOption> myOptions;
    QStringList myArguments;
};

#endif
