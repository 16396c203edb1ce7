#include "HelpText.h"
#include "SubCommands.h"
#include "Suggestion.h"
#include "WrappedText.h"

#include <QCommandLineParser>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString expectedArguments(int least, int most)
{
    const QString bound = least == most ? QString() : most == ANY_NUMBER ? u"at least "_s : u"at most "_s;
    const int number = most == ANY_NUMBER ? least : most;
    return u"expected %1%2 %3"_s.arg(bound).arg(number).arg(number == 1 ? "argument"_L1 : "arguments"_L1);
}

/// The reason why the parser cannot understand the options.
QString parserProblem(const QCommandLineParser &parser)
{
    const QString text = parser.errorText();
    QStringList names;
    for (const QString &name : HelpText(parser.helpText()).optionNames())
        names += name.mid(2);
    const QString suggestion = didYouMean(parser.unknownOptionNames().value(0), names, u"--"_s);
    return suggestion.isEmpty() ? text : text.chopped(text.endsWith(u'.') ? 1 : 0) + suggestion;
}

/// The message that a value of an option is not in the list of its help; empty if there is none.
QString valueProblem(const QCommandLineParser &parser, const HelpText &help)
{
    for (const HelpOption &option : help.options()) {
        const QStringList known = option.values();
        if (known.isEmpty())
            continue;
        const QString name = option.names.constLast().mid(2);
        for (const QString &value : parser.values(name)) {
            if (!known.contains(value))
                return u"there is no %1 \"%2\"; there are: %3"_s.arg(name, value, known.join(", "_L1))
                        + didYouMean(value, known);
        }
    }
    return QString();
}

/// The message that the arguments do not fit the command; empty if they do. Only a text may be empty: an empty name of
/// a file usually comes from a variable of a script that is not set.
QString argumentProblem(const QStringList &arguments, const HelpText &help, int least, int most)
{
    if (arguments.size() < least || arguments.size() > most)
        return expectedArguments(least, most) + u", got %1"_s.arg(arguments.size());
    const qsizetype empty = arguments.indexOf(QString());
    if (empty >= 0 && help.arguments().value(empty) != "TEXT"_L1)
        return u"argument %1 is empty"_s.arg(empty + 1);
    if (arguments.count(u"-"_s) > 1)
        return u"only one file can be the standard input"_s;
    return QString();
}

/// Adds the options of every command: the help, and the short form of a format.
void addCommonOptions(QCommandLineParser *parser)
{
    const HelpText help(parser->helpText());
    const bool hasShortForm = !help.option(u"--json"_s).names.isEmpty();
    if (!hasShortForm && help.option(u"--format"_s).values().contains("json"_L1))
        parser->addOption(QCommandLineOption(u"json"_s, u"The same as --format=json."_s));
    parser->addOption(QCommandLineOption({ u"h"_s, u"help"_s }, u"Displays this help."_s));
    parser->setApplicationDescription(filledParagraphs(parser->applicationDescription()));
}

/// Parses the arguments, with the short form of a format as the format. An explicit format takes precedence.
bool parse(QCommandLineParser *parser, const QStringList &arguments, const HelpText &help)
{
    if (!parser->parse(arguments))
        return false;
    const bool hasFormats = help.option(u"--format"_s).values().contains("json"_L1);
    if (!hasFormats || !parser->isSet(u"json"_s))
        return true;
    return parser->parse(QStringList { arguments.constFirst(), u"--format=json"_s } + arguments.mid(1));
}

}

QCommandLineOption formatOption(const QStringList &formats)
{
    return QCommandLineOption(u"format"_s, u"Write text, which is the default, or json."_s, formats.join(u'|'),
                              formats.constFirst());
}

bool parseArguments(QCommandLineParser &parser, const QStringList &arguments, int least, int most,
                    const Console &console, int *exitCode)
{
    addCommonOptions(&parser);
    const HelpText help(parser.helpText());
    const QString &command = arguments.constFirst();
    if (!parse(&parser, arguments, help)) {
        *exitCode = refuseArguments(command, parserProblem(parser), console);
        return false;
    }
    if (parser.isSet(u"help"_s)) {
        // The parser uses the name by which the program was started, and does not know sub-commands.
        QTextStream(console.output) << parser.helpText().replace(QCoreApplication::arguments().constFirst(), command);
        *exitCode = EXIT_FINE;
        return false;
    }
    QString problem = valueProblem(parser, help);
    if (problem.isEmpty())
        problem = argumentProblem(parser.positionalArguments(), help, least, most);
    if (problem.isEmpty())
        return true;
    *exitCode = refuseArguments(command, problem, console);
    return false;
}

int refuseArguments(const QString &command, const QString &text, const Console &console)
{
    QTextStream(console.messages) << "rvcatalog: " << text << "\nTry \"" << command << " --help\".\n";
    return EXIT_UNREADABLE;
}
