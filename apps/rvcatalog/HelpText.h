#ifndef HELPTEXT_H
#define HELPTEXT_H

#include <QList>
#include <QString>
#include <QStringList>

/// An option, as the help of a command explains it.
struct HelpOption
{
    QStringList names; ///< with their dashes: { "-h", "--help" }
    QString valueName; ///< empty if it takes no value
    QString description;

    /// The possible values, if the name of the value lists them: "text|json".
    QStringList values() const;
};

/**
 * The options and arguments of a command, parsed from the help of QCommandLineParser, which makes them available in no
 * other form. So only the command itself describes its options.
 */
class HelpText
{
public:
    HelpText() = default; ///< The help of a command without options and arguments.
    explicit HelpText(const QString &text);

    const QList<HelpOption> &options() const { return myOptions; }
    /// The option with that name, dashes included; one without names if there is none.
    HelpOption option(const QString &name) const;
    QStringList optionNames() const; ///< The long names, with their dashes.
    /// The arguments as in the usage: { "CATALOGUE.xml", "[TYPE...]" }.
    const QStringList &arguments() const { return myArguments; }

private:
    QList<HelpOption> myOptions;
    QStringList myArguments;
};

#endif
