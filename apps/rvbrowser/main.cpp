#include "BrowserOptions.h"
#include "ComparisonActions.h"
#include "Language.h"
#include "MainWindow.h"
#include "PaletteColors.h"
#include "Screenshot.h"

#include <QApplication>
#include <QHashSeed>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr int EXIT_USAGE = 2;

QStringList arguments(int argc, char *argv[])
{
    QStringList result;
    std::transform(argv, argv + argc, std::back_inserter(result),
                   [](const char *argument) { return QString::fromLocal8Bit(argument); });
    return result;
}

int runWindow(const BrowserOptions &options)
{
    // A picture does not depend on the settings of a user.
    MainWindow window(options.isScreenshot() ? QString() : Settings::usualFileName());
    if (options.size())
        window.resize(*options.size());
    if (options.isComparison())
        window.comparison()->session()->compareWith(options.compared());
    if (options.isScreenshot()) {
        new Screenshot(&window, options.screenshot(), RVProductType(options.product()));
    } else if (!options.product().isEmpty()) {
        window.beginWith(RVProductType(options.product()));
    }
    window.show();
    if (!options.catalogue().isEmpty())
        window.session()->open(options.catalogue());
    return QApplication::exec();
}

}

int main(int argc, char *argv[])
{
    // Options come out in the order of a hash; with a fixed seed every run writes the same.
    QHashSeed::setDeterministicGlobalSeed();
    if (BrowserOptions(arguments(argc, argv)).isWithoutDisplay()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // Qt warns of a missing run-time directory and of windows that cannot be resized; neither matters here.
        QLoggingCategory::defaultCategory()->setEnabled(QtWarningMsg, false);
    }
    const QApplication application(argc, argv);
    // Qt has taken its own options out of them, such as -style.
    const BrowserOptions options(QApplication::arguments());
    QApplication::setApplicationName(u"rvbrowser"_s);
    QApplication::setApplicationVersion(QStringLiteral(RVBROWSER_VERSION));
    QApplication::setDesktopFileName(u"rvbrowser"_s);
    QApplication::setWindowIcon(QIcon(u":/rvbrowser.svg"_s));
    if (!options.error().isEmpty()) {
        QTextStream(stderr) << "rvbrowser: " << options.error() << "\nTry \"rvbrowser --help\".\n";
        return EXIT_USAGE;
    }
    if (options.isHelp() || options.isVersion()) {
        QTextStream(stdout) << (options.isHelp() ? options.helpText()
                                                 : u"rvbrowser %1\n"_s.arg(QApplication::applicationVersion()));
        return 0;
    }
    Language language;
    language.speak(options.language().isEmpty() ? QLocale() : QLocale(options.language()));
    if (!options.palette().isEmpty())
        QApplication::setPalette(options.palette() == "dark"_L1 ? PaletteColors::dark() : PaletteColors::light());
    return runWindow(options);
}
