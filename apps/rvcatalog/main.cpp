#include "Commands.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QHashSeed>
#include <QLocale>
#include <QLoggingCategory>
#include <QTextStream>
#include <QTranslator>

#include <langinfo.h>

#include <clocale>
#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr struct
{
    QLatin1StringView name;
    int (*run)(const QStringList &arguments);
    QLatin1StringView summary;
} COMMANDS[] = {
    { "show"_L1, showCommand, "list the products of a catalogue"_L1 },
    { "order"_L1, orderCommand, "check a project against the catalogue and write its order line"_L1 },
    { "check"_L1, checkCommand, "find what would go wrong with catalogues"_L1 },
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

// Asked for before the locale is changed, and also understood where the system has no such locale.
QLocale userLocale()
{
    for (const char *variable : { "LC_ALL", "LC_MESSAGES", "LANG" }) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return QLocale(name);
    }
    return QLocale::c();
}

// The program's files and texts are UTF-8 whatever the terminal's locale.
void useUtf8()
{
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0)
        qputenv("LC_ALL", "C.UTF-8");
}

// Display names are in the user's language where there is a translation, else in German, the language of the catalogue.
void loadTranslation(QTranslator *translator, const QLocale &locale)
{
    const QString folder = u":/translations"_s;
    if (translator->load(locale, u"rvproductbase"_s, u"_"_s, folder) || translator->load(u"rvproductbase_de"_s, folder))
        QCoreApplication::installTranslator(translator);
}

/// What a command returned, unless its output has not arrived, say because a disk is full: half a list looks whole.
int withOutput(int exitCode)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return exitCode;
    QTextStream(stderr) << "rvcatalog: cannot write to the standard output\n";
    return EXIT_UNREADABLE;
}

}

void report(const QString &fileName, const FilePosition &position, const QString &text)
{
    QTextStream(stderr) << fileName << ':' << position.line << ':' << position.column << ": " << text << '\n';
}

bool parseArguments(QCommandLineParser &parser, const QStringList &arguments, int least, int most, int *exitCode)
{
    const QCommandLineOption help({ u"h"_s, u"help"_s }, u"Displays this help."_s);
    parser.addOption(help);
    if (!parser.parse(arguments)) {
        QTextStream(stderr) << "rvcatalog: " << parser.errorText() << '\n';
    } else if (parser.isSet(help)) {
        // The parser names the program as it was started, and knows of no sub-command.
        QTextStream(stdout) << parser.helpText().replace(QCoreApplication::arguments().constFirst(),
                                                         arguments.constFirst());
        *exitCode = EXIT_FINE;
        return false;
    } else if (parser.positionalArguments().size() >= least && parser.positionalArguments().size() <= most) {
        return true;
    } else {
        QTextStream(stderr) << "rvcatalog: expected " << (least < most ? "at most " : "") << most
                            << (most == 1 ? " argument" : " arguments") << ", got "
                            << parser.positionalArguments().size() << '\n';
    }
    QTextStream(stderr) << "Try \"" << arguments.first() << " --help\".\n";
    *exitCode = EXIT_UNREADABLE;
    return false;
}

int main(int argc, char *argv[])
{
    const QLocale locale = userLocale();
    useUtf8();
    // Options come out in the order of a hash; with a fixed seed every run writes the same.
    QHashSeed::setDeterministicGlobalSeed();
    // Fonts are measured, and plots are drawn to files, but nothing is shown, so no display is needed.
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    // Without a desktop session Qt warns of a missing run-time directory, which nothing here uses.
    QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, false);
    QGuiApplication application(argc, argv);
    QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, true);
    QGuiApplication::setApplicationName(u"rvcatalog"_s);
    QTranslator translator;
    loadTranslation(&translator, locale);

    QStringList arguments = QGuiApplication::arguments().mid(1);
    const QString name = arguments.isEmpty() ? QString() : arguments.takeFirst();
    for (const auto &command : COMMANDS) {
        if (name == command.name)
            return withOutput(command.run(QStringList { "rvcatalog "_L1 + name } + arguments));
    }
    if (name == "--help"_L1 || name == "-h"_L1 || name == "help"_L1) {
        QTextStream(stdout) << usage();
        return EXIT_FINE;
    }
    if (name == "--version"_L1) {
        QTextStream(stdout) << "rvcatalog " RVCATALOG_VERSION "\n";
        return EXIT_FINE;
    }
    if (!name.isEmpty())
        QTextStream(stderr) << "rvcatalog: there is no command \"" << name << "\"\n";
    QTextStream(stderr) << usage();
    return EXIT_UNREADABLE;
}
