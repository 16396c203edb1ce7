#include "CatalogueFile.h"
#include "FindingWriter.h"
#include "SubCommands.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QTextStream>

#include <unistd.h>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

bool isTerminal(std::FILE *file)
{
    return ::isatty(::fileno(file)) == 1;
}

/// Shows how far the reading of a file has come, among the messages where they go to a terminal, and not before the
/// user has waited a second.
class ProgressBar
{
    Q_DISABLE_COPY_MOVE(ProgressBar)

public:
    explicit ProgressBar(std::FILE *terminal) : myTerminal(terminal), myHasTerminal(isTerminal(terminal))
    {
        mySinceStart.start();
    }
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
        QTextStream(myTerminal) << "\r\033[K" << text << ' ' << fileName;
        myIsShown = true;
        mySinceShown.start();
    }

    /// Makes room for something else on the terminal.
    void hide()
    {
        if (myIsShown)
            QTextStream(myTerminal) << "\r\033[K";
        myIsShown = false;
    }

private:
    std::FILE *myTerminal = nullptr;
    QElapsedTimer mySinceStart;
    QElapsedTimer mySinceShown;
    bool myHasTerminal = false;
    bool myIsShown = false;
};

/// The findings in some consecutive products.
struct CheckedProducts
{
    qint64 count = 0;
    QList<RVCatalogueFinding> findings;
};

CheckedProducts findingsOf(const QList<RVCatalogueProduct> &products)
{
    CheckedProducts result { products.size(), {} };
    for (const RVCatalogueProduct &product : products)
        result.findings += product.findings();
    return result;
}

/// Checks files one after the other.
class CheckRun
{
public:
    CheckRun(FindingWriter *writer, const RVCatalogueCheck &check, const Console &console)
        : myWriter(writer),
          myCheck(check),
          myConsole(console),
          myProgressBar(console.messages)
    { }

    void check(const QString &fileName)
    {
        ++mySummary.files;
        CatalogueFile file(fileName, myConsole);
        RVCatalogueReader &reader = file.reader();
        reader.setCheck(myCheck);
        const qint64 size = reader.size();
        reader.map(findingsOf, [&](const CheckedProducts &checked) {
            mySummary.products += checked.count;
            write(fileName, checked.findings);
            myProgressBar.show(fileName, reader.bytesRead(), size);
            return true;
        });
        write(fileName, reader.findings());
        if (reader.hasError())
            reportUnreadable(file, fileName, { reader.errorPosition(), reader.errorString() });
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
        return exitCode();
    }

private:
    void write(const QString &fileName, const QList<RVCatalogueFinding> &findings)
    {
        if (!findings.isEmpty())
            myProgressBar.hide();
        for (const RVCatalogueFinding &finding : findings) {
            count(finding.severity());
            myWriter->finding(fileName, finding);
        }
    }

    void reportUnreadable(const CatalogueFile &file, const QString &fileName, const Problem &problem)
    {
        ++mySummary.unreadable;
        myProgressBar.hide();
        std::fflush(myConsole.output);
        file.report({ problem.position, u"error: "_s + problem.text });
        myWriter->unreadable(fileName, problem);
    }

    void count(RVCatalogueSeverity severity)
    {
        switch (severity) {
        case RVCatalogueSeverity::Note:
            ++mySummary.notes;
            break;
        case RVCatalogueSeverity::Warning:
            ++mySummary.warnings;
            break;
        case RVCatalogueSeverity::Error:
            ++mySummary.errors;
            break;
        }
    }

    FindingWriter *myWriter;
    RVCatalogueCheck myCheck;
    const Console &myConsole;
    CheckSummary mySummary;
    ProgressBar myProgressBar;
};

int writeRules(const Console &console)
{
    QTextStream out(console.output);
    for (const RVCatalogueRule &rule : RVCatalogueRule::all())
        out << rule.name() << " (" << rvSeverityName(rule.severity()) << ")\n    " << rule.reason() << '\n';
    return EXIT_FINE;
}

/// The reason why one of the rules cannot be disabled; empty if all were disabled.
QString disable(RVCatalogueCheck *check, const QStringList &rules)
{
    for (const QString &name : rules) {
        const RVCatalogueRule rule = RVCatalogueRule::find(name);
        if (rule.isNull())
            return u"there is no rule \"%1\"; \"rvcatalog check --rules\" lists them"_s.arg(name);
        check->disable(rule);
    }
    return QString();
}

/// Checks files as the options of the command say, or refuses the options.
int checkFiles(const QStringList &fileNames, const QString &format, const QStringList &disabledRules,
               const QString &command, const Console &console)
{
    const std::unique_ptr<FindingWriter> writer = FindingWriter::create(format, console);
    if (!writer)
        return refuseArguments(command, u"there is no format \"%1\"; there are: text, json, sarif"_s.arg(format),
                               console);
    RVCatalogueCheck check;
    const QString unknownRule = disable(&check, disabledRules);
    if (!unknownRule.isEmpty())
        return refuseArguments(command, unknownRule, console);
    if (fileNames.isEmpty())
        return refuseArguments(command, u"expected at least 1 argument, got 0"_s, console);
    CheckRun run(writer.get(), check, console);
    writer->begin();
    for (const QString &fileName : fileNames)
        run.check(fileName);
    return run.end();
}

}

int checkCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Finds what would go wrong with catalogues in the ordering application: one finding a line, in the order\n"
            "of the file, and a summary last. Ends with 1 when there are errors or warnings."_s);
    const QCommandLineOption format(u"format"_s, u"How to write it; sarif is version 2.1.0."_s, u"text|json|sarif"_s,
                                    u"text"_s);
    const QCommandLineOption rules(u"rules"_s, u"List the rules, and why they matter."_s);
    const QCommandLineOption disableOption(u"disable"_s, u"Leave out a rule. May be given several times."_s, u"RULE"_s);
    parser.addOptions({ format, rules, disableOption });
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML; \"-\" is the standard input."_s,
                                 u"CATALOGUE.xml..."_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 0, ANY_NUMBER, console, &exitCode))
        return exitCode;
    if (parser.isSet(rules))
        return writeRules(console);
    return checkFiles(parser.positionalArguments(), parser.value(format), parser.values(disableOption),
                      arguments.constFirst(), console);
}
