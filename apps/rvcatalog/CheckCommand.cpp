#include "Commands.h"
#include "FindingWriter.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>

#include <unistd.h>

#include <cstdio>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// How far the reading of a file has come, on the standard error output where that is a terminal, and not before the
/// user has waited a second.
class ProgressBar
{
    Q_DISABLE_COPY_MOVE(ProgressBar)

public:
    ProgressBar() : myHasTerminal(::isatty(STDERR_FILENO) == 1) { mySinceStart.start(); }
    ~ProgressBar() { hide(); }

    /// @p total is 0 where nobody knows how much there is.
    void show(const QString &fileName, qint64 done, qint64 total)
    {
        constexpr qint64 patience = 1000;
        constexpr qint64 interval = 100;
        constexpr int width = 30;
        if (!myHasTerminal || mySinceStart.elapsed() < patience || (myIsShown && mySinceShown.elapsed() < interval))
            return;
        QString text = u"%1 MB"_s.arg(done / 1000000);
        if (total > 0) {
            const int filled = int(qMin(done, total) * width / total);
            text = u"[%1%2] %3 %"_s.arg(QString(filled, u'#'), QString(width - filled, u'.'),
                                        QString::number(qMin(done, total) * 100 / total));
        }
        QTextStream(stderr) << "\r\033[K" << text << ' ' << fileName;
        myIsShown = true;
        mySinceShown.start();
    }

    /// Makes room for something else on the terminal.
    void hide()
    {
        if (myIsShown)
            QTextStream(stderr) << "\r\033[K";
        myIsShown = false;
    }

private:
    QElapsedTimer mySinceStart;
    QElapsedTimer mySinceShown;
    bool myHasTerminal;
    bool myIsShown = false;
};

/// Checks files one after the other.
class CheckRun
{
public:
    CheckRun(FindingWriter *writer, const QSet<QString> &disabledRules) : myWriter(writer), myChecker(disabledRules) { }

    void check(const QString &fileName)
    {
        ++mySummary.files;
        QFile file(fileName);
        const bool isOpen = fileName == "-"_L1 ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
        if (!isOpen)
            return reportUnreadable(fileName, FilePosition(), u"cannot open the file: "_s + file.errorString());
        const qint64 size = file.isSequential() ? 0 : file.size();
        myChecker.setProgress([&](qint64 bytesRead) {
            myProgressBar.show(fileName, bytesRead, size);
            return true;
        });
        const CatalogueCheckResult result = myChecker.check(&file, [&](const CatalogueFinding &finding) {
            myProgressBar.hide();
            count(finding.severity);
            myWriter->finding(fileName, finding);
        });
        mySummary.products += result.products;
        if (!result.error.isEmpty())
            reportUnreadable(fileName, result.errorPosition, result.error);
    }

    int exitCode() const
    {
        if (mySummary.unreadable > 0)
            return EXIT_UNREADABLE;
        return mySummary.errors > 0 || mySummary.warnings > 0 ? EXIT_PROBLEMS : EXIT_FINE;
    }

    int end()
    {
        myProgressBar.hide();
        myWriter->end(mySummary, exitCode());
        std::fflush(stdout);
        return exitCode();
    }

private:
    void reportUnreadable(const QString &fileName, const FilePosition &position, const QString &text)
    {
        ++mySummary.unreadable;
        myProgressBar.hide();
        std::fflush(stdout);
        report(fileName, position, u"error: "_s + text);
        myWriter->unreadable(fileName, position, text);
    }

    void count(FindingSeverity severity)
    {
        switch (severity) {
        case FindingSeverity::Note:
            ++mySummary.notes;
            break;
        case FindingSeverity::Warning:
            ++mySummary.warnings;
            break;
        case FindingSeverity::Error:
            ++mySummary.errors;
            break;
        }
    }

    FindingWriter *myWriter;
    CatalogueChecker myChecker;
    CheckSummary mySummary;
    ProgressBar myProgressBar;
};

void writeRules()
{
    QTextStream out(stdout);
    for (const CatalogueRule &rule : catalogueRules())
        out << rule.name << " (" << severityName(rule.severity) << ")\n    " << rule.reason << '\n';
}

int refuse(const QString &text)
{
    QTextStream(stderr) << "rvcatalog: " << text << "\nTry \"rvcatalog check --help\".\n";
    return EXIT_UNREADABLE;
}

}

int checkCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Finds what would go wrong with catalogues in the ordering application: one finding a line, in the order\n"
            "of the file, and a summary last. Ends with 1 when there are errors or warnings."_s);
    const QCommandLineOption format(u"format"_s, u"Write text, json, or sarif (version 2.1.0)."_s, u"FORMAT"_s,
                                    u"text"_s);
    const QCommandLineOption rules(u"rules"_s, u"List the rules, and why they matter."_s);
    const QCommandLineOption disable(u"disable"_s, u"Leave out a rule. May be given several times."_s, u"RULE"_s);
    parser.addOptions({ format, rules, disable });
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML; \"-\" is the standard input."_s,
                                 u"CATALOGUE.xml..."_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 0, std::numeric_limits<int>::max(), &exitCode))
        return exitCode;
    if (parser.isSet(rules)) {
        writeRules();
        return EXIT_FINE;
    }
    const std::unique_ptr<FindingWriter> writer = FindingWriter::create(parser.value(format));
    if (!writer)
        return refuse(u"there is no format \"%1\"; there are: text, json, sarif"_s.arg(parser.value(format)));
    const QStringList disabled = parser.values(disable);
    for (const QString &rule : disabled) {
        if (indexOfRule(rule) < 0)
            return refuse(u"there is no rule \"%1\"; \"rvcatalog check --rules\" lists them"_s.arg(rule));
    }
    if (parser.positionalArguments().isEmpty())
        return refuse(u"expected at least 1 argument, got 0"_s);

    CheckRun run(writer.get(), QSet<QString>(disabled.begin(), disabled.end()));
    writer->begin();
    for (const QString &fileName : parser.positionalArguments())
        run.check(fileName);
    return run.end();
}
