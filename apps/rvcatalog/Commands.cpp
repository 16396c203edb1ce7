#include "Commands.h"

#include "SubCommands.h"
#include "Suggestion.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

constexpr struct
{
    QLatin1StringView name;
    int (*run)(const QStringList &arguments, const Console &console);
    QLatin1StringView summary;
} COMMANDS[] = {
    { "show"_L1, showCommand, "list the products of a catalogue"_L1 },
    { "order"_L1, orderCommand, "check a project against the catalogue and write its order line"_L1 },
    { "check"_L1, checkCommand, "find the faults of catalogues"_L1 },
    { "explain"_L1, explainCommand, "explain the rules of the check"_L1 },
    { "diff"_L1, diffCommand, "list the differences between two catalogues"_L1 },
    { "keywords"_L1, keywordsCommand, "list the keywords of the attributes"_L1 },
    { "decode"_L1, decodeCommand, "read a list of keywords"_L1 },
    { "spine"_L1, spineCommand, "list the spine of a product at every page count, and draw it"_L1 },
};

QString usage()
{
    QString text = u"usage: rvcatalog COMMAND [ARGUMENT...]\n\n"_s;
    for (const auto &command : COMMANDS)
        text += "  "_L1 + command.name.toString().leftJustified(10) + command.summary + u'\n';
    return text
            + "\n\"rvcatalog help COMMAND\" explains a command; \"rvcatalog --version\" prints the\n"
              "version. The file \"-\" is the standard input.\n"
              "Exit codes: 0 fine or equal; 1 problems or differences; 2 a file or the command\n"
              "line cannot be read, or the output cannot be written; 130 and 143 interrupted.\n"_L1;
}

/// The exit code of the command, or that of an unreadable file if its output could not be written, for example because
/// the disk is full. Otherwise a user could take half a list for the whole.
int withOutput(int exitCode, const Console &console)
{
    if (console.flush())
        return exitCode;
    QTextStream(console.messages) << "rvcatalog: cannot write to the standard output\n";
    return EXIT_UNREADABLE;
}

/// The message that there is no such command, with the one that was probably meant.
QString refusal(const QString &name)
{
    if (!name.startsWith(u'-'))
        return u"there is no command \"%1\"%2"_s.arg(name, didYouMean(name, commandNames()));
    QString word = name;
    while (word.startsWith(u'-'))
        word.remove(0, 1);
    const QString suggestion = didYouMean(word, { u"help"_s, u"version"_s }, u"--"_s);
    return u"there is no option \"%1\" in front of a command%2"_s.arg(name, suggestion);
}

/// Runs the command with that name; the exit code of wrong usage, with a message, if there is none.
int runNamed(const QString &name, const QStringList &arguments, const Console &console)
{
    for (const auto &command : COMMANDS) {
        if (name == command.name)
            return withOutput(command.run(QStringList { "rvcatalog "_L1 + name } + arguments, console), console);
    }
    QTextStream out(console.messages);
    if (!name.isEmpty())
        out << "rvcatalog: " << refusal(name) << '\n';
    out << usage();
    return EXIT_UNREADABLE;
}

/// The help of the program, or of the named command.
int help(const QStringList &names, const Console &console)
{
    if (!names.isEmpty())
        return runNamed(names.constFirst(), { u"--help"_s }, console);
    QTextStream(console.output) << usage();
    return withOutput(EXIT_FINE, console);
}

}

QStringList commandNames()
{
    QStringList result;
    for (const auto &command : COMMANDS)
        result += command.name;
    return result;
}

QString commandSummary(const QString &name)
{
    for (const auto &command : COMMANDS) {
        if (name == command.name)
            return command.summary;
    }
    return QString();
}

int runCommand(const QStringList &arguments, const Console &console)
{
    const QString name = arguments.value(0);
    if (name == "--help"_L1 || name == "-h"_L1 || name == "help"_L1)
        return help(arguments.mid(1), console);
    if (name == "complete"_L1)
        return withOutput(completeCommand(arguments.mid(1), console), console);
    if (name == "--version"_L1) {
        QTextStream(console.output) << "rvcatalog " RVCATALOG_VERSION "\n";
        return withOutput(EXIT_FINE, console);
    }
    return runNamed(name, arguments.mid(1), console);
}
