#include "Commands.h"

#include <QGuiApplication>
#include <QHashSeed>
#include <QLocale>
#include <QLoggingCategory>
#include <QTranslator>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// The language is read before the locale is changed, and works even if the system has no such locale.
QLocale userLocale()
{
    for (const char *variable : { "LC_ALL", "LC_MESSAGES", "LANG" }) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return QLocale(name);
    }
    return QLocale::c();
}

// Without a standard input, the first opened file would take its place. So this opens a file that cannot be read.
void keepInputApart()
{
    struct stat status = {};
    if (::fstat(STDIN_FILENO, &status) == 0)
        return;
    [[maybe_unused]] auto *const apart = std::freopen("/dev/null", "w", stdin);
}

// Display names are in the user's language if there is a translation, otherwise in German, the language of the
// catalogue.
void loadTranslation(QTranslator *translator, const QLocale &locale)
{
    const QString folder = u":/translations"_s;
    if (translator->load(locale, u"rvproductbase"_s, u"_"_s, folder) || translator->load(u"rvproductbase_de"_s, folder))
        QCoreApplication::installTranslator(translator);
}

// Plots are in the language of the user where there is a translation, else in English, and so are their numbers. What
// goes to the terminal stays as it is, for the programs that read it.
void loadPlotTexts(QTranslator *translator, const QLocale &locale)
{
    const bool isTranslated = translator->load(locale, u"rvplot"_s, u"_"_s, u":/translations"_s)
            && QCoreApplication::installTranslator(translator);
    QLocale::setDefault(isTranslated || locale.language() == QLocale::English ? locale : QLocale::c());
}

}

int main(int argc, char *argv[])
{
    keepInputApart();
    const QLocale locale = userLocale();
    // Files and texts are UTF-8, and messages of the system are in English like all others, in every locale of the
    // terminal.
    qputenv("LC_ALL", "C.UTF-8");
    // Options are written in the order of a hash; with a fixed seed every run writes the same.
    QHashSeed::setDeterministicGlobalSeed();
    // Fonts are measured, and plots are drawn to files, but nothing is shown, so no display is needed.
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    // Qt warns of a missing run-time directory without a desktop session, but the program does not use it.
    QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, false);
    QGuiApplication application(argc, argv);
    QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, true);
    QTranslator translator;
    loadTranslation(&translator, locale);
    QTranslator plotTranslator;
    loadPlotTexts(&plotTranslator, locale);
    return runCommand(QGuiApplication::arguments().mid(1));
}
