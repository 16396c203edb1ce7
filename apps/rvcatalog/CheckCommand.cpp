#include "BaselineFilter.h"
#include "CheckOptions.h"
#include "CheckRun.h"
#include "Configurations.h"
#include "DistinctFiles.h"
#include "FindingWriter.h"
#include "FixRun.h"
#include "SubCommands.h"

#include <RVCatalogueRule.h>

#include <QCommandLineParser>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

int writeRules(const Console &console)
{
    QTextStream out(console.output);
    for (const RVCatalogueRule &rule : RVCatalogueRule::all())
        out << rule.name() << " (" << rvSeverityName(rule.severity()) << ")\n    " << rule.reason() << '\n';
    return EXIT_FINE;
}

int checkFiles(CheckOptions options, Console console)
{
    options.fileNames = distinctFiles(options.fileNames, console);
    Configurations configurations(options.configuration, options.check);
    BaselineFilter baseline(options.baseline);
    if (!configurations.read(options.fileNames, console) || !baseline.begin(console))
        return EXIT_UNREADABLE;
    if (options.baseline.writtenFileName == "-"_L1)
        console.output = console.messages;
    FixRun fixes(options, configurations, &console);
    if (options.showsFixes)
        return fixes.diff();
    const int mended = options.fixes ? fixes.mend() : EXIT_FINE;
    const std::unique_ptr<FindingWriter> writer = FindingWriter::create(options, console);
    CheckRun run(writer.get(), options, configurations, &baseline, console);
    run.check(options.fileNames);
    return qMax(mended, baseline.end(run.end(), console));
}

}

int checkCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Finds the faults that catalogues would cause in the ordering application. Writes a\n"
            "line for each finding, in the order of the file, and a summary at the end. Ends\n"
            "with 1 if there are errors or warnings, with 2 if a file cannot be read, and\n"
            "with 130 or 143 if SIGINT or SIGTERM ended it."_s);
    CheckOptions::addTo(&parser);
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML; \"-\" is the standard input."_s,
                                 u"CATALOGUE.xml..."_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 0, ANY_NUMBER, console, &exitCode))
        return exitCode;
    CheckOptions options;
    const QString refusal = options.read(parser);
    if (!refusal.isEmpty())
        return refuseArguments(arguments.constFirst(), refusal, console);
    return options.listsRules ? writeRules(console) : checkFiles(options, console);
}
