#include "Commands.h"

#include "SubCommands.h"

#include <QCommandLineParser>
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
    { "check"_L1, checkCommand, "find what would go wrong with catalogues"_L1 },
    { "explain"_L1, explainCommand, "explain the rules that catalogues are checked by"_L1 },
    { "diff"_L1, diffCommand, "tell what differs between two catalogues"_L1 },
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
            + "\n\"rvcatalog COMMAND --help\" explains a command; \"rvcatalog --version\" prints the version.\n"
              "Exit codes: 0 fine, 1 problems found, 2 cannot read or write.\n"_L1;
}

/// The exit code of the command, or that of an unreadable file if its output could not be written, for example because
/// the disk is full. Otherwise a user could take half a list for the whole.
int withOutput(int exitCode, const Console &console)
{
    if (std::fflush(console.output) == 0 && std::ferror(console.output) == 0)
        return exitCode;
    QTextStream(console.messages) << "rvcatalog: cannot write to the standard output\n";
    return EXIT_UNREADABLE;
}

QString expectedArguments(int least, int most)
{
    const QString bound = least == most ? QString() : most == ANY_NUMBER ? u"at least "_s : u"at most "_s;
    const int number = most == ANY_NUMBER ? least : most;
    return u"expected %1%2 %3"_s.arg(bound).arg(number).arg(number == 1 ? "argument"_L1 : "arguments"_L1);
}

}

int runCommand(const QStringList &arguments, const Console &console)
{
    const QString name = arguments.value(0);
    for (const auto &command : COMMANDS) {
        if (name == command.name)
            return withOutput(command.run(QStringList { "rvcatalog "_L1 + name } + arguments.mid(1), console), console);
    }
    if (name == "--help"_L1 || name == "-h"_L1 || name == "help"_L1) {
        QTextStream(console.output) << usage();
        return EXIT_FINE;
    }
    if (name == "--version"_L1) {
        QTextStream(console.output) << "rvcatalog " RVCATALOG_VERSION "\n";
        return EXIT_FINE;
    }
    if (!name.isEmpty())
        QTextStream(console.messages) << "rvcatalog: there is no command \"" << name << "\"\n";
    QTextStream(console.messages) << usage();
    return EXIT_UNREADABLE;
}

bool parseArguments(QCommandLineParser &parser, const QStringList &arguments, int least, int most,
                    const Console &console, int *exitCode)
{
    const QCommandLineOption help({ u"h"_s, u"help"_s }, u"Displays this help."_s);
    parser.addOption(help);
    const QString &command = arguments.constFirst();
    if (!parser.parse(arguments)) {
        *exitCode = refuseArguments(command, parser.errorText(), console);
        return false;
    }
    if (parser.isSet(help)) {
        // The parser names the program as it was started, and knows of no sub-command.
        QTextStream(console.output) << parser.helpText().replace(QCoreApplication::arguments().constFirst(), command);
        *exitCode = EXIT_FINE;
        return false;
    }
    const qsizetype given = parser.positionalArguments().size();
    if (given >= least && given <= most)
        return true;
    *exitCode = refuseArguments(command, expectedArguments(least, most) + u", got %1"_s.arg(given), console);
    return false;
}

int refuseArguments(const QString &command, const QString &text, const Console &console)
{
    QTextStream(console.messages) << "rvcatalog: " << text << "\nTry \"" << command << " --help\".\n";
    return EXIT_UNREADABLE;
}
