#include "CatalogueFile.h"
#include "ComparedProduct.h"
#include "DiffWriter.h"
#include "SubCommands.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <unistd.h>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The arguments that git gives to a diff driver: path, old file, its hash and mode, new file, its hash and mode. If
/// the file was renamed, the new path and the headers of git follow. A file that could not be merged has only its path.
constexpr int GIT_ARGUMENTS = 7;
constexpr int MOST_GIT_ARGUMENTS = 9;

/// One of the two catalogues, and its name for people.
struct Side
{
    QString fileName;
    QString shownName;

    /// Null for a file that does not exist for git.
    std::unique_ptr<CatalogueFile> open(const Console &console) const
    {
        return fileName.isEmpty() ? nullptr : std::make_unique<CatalogueFile>(fileName, console);
    }
};

/// The place and the text of the error of a catalogue; nothing without one.
std::optional<Problem> errorOf(const std::unique_ptr<CatalogueFile> &file)
{
    if (!file || !file->reader().hasError())
        return std::nullopt;
    return Problem { file->reader().errorPosition(), file->reader().errorString() };
}

/// Compares two catalogues. Nothing is written before both were read.
class DiffRun
{
public:
    DiffRun(DiffWriter *writer, const Console &console) : myWriter(writer), myConsole(console) { }

    /// False, with a message at @p messages, if one cannot be read.
    bool compare(const Side &before, const Side &after, const Console &messages)
    {
        const std::unique_ptr<CatalogueFile> oldFile = before.open(myConsole);
        const std::unique_ptr<CatalogueFile> newFile = after.open(myConsole);
        RVCatalogueComparison comparison(oldFile ? &oldFile->reader() : nullptr,
                                         newFile ? &newFile->reader() : nullptr);
        if (const auto error = errorOf(oldFile))
            messages.report(before.shownName, *error);
        else if (const auto newError = errorOf(newFile))
            messages.report(after.shownName, *newError);
        if (comparison.hasError())
            return false;
        myWriter->begin(before.shownName, after.shownName);
        for (RVProductComparison product = comparison.next(); !product.isNull(); product = comparison.next()) {
            myWriter->product(product);
            myIsDifferent = true;
        }
        myWriter->end(comparison.counts());
        return true;
    }

    bool isDifferent() const { return myIsDifferent; }

private:
    DiffWriter *myWriter;
    const Console &myConsole;
    bool myIsDifferent = false;
};

/// True if colours are wanted and visible. Git shows the output of its drivers with a program that understands colours.
bool hasColor(const QString &when, bool isGit, const Console &console)
{
    if (when != "auto"_L1)
        return when == "always"_L1;
    if (!qEnvironmentVariableIsEmpty("NO_COLOR") || qgetenv("TERM") == "dumb")
        return false;
    return ::isatty(::fileno(console.output)) == 1 || (isGit && qgetenv("GIT_PAGER_IN_USE") == "true");
}

int compareFiles(const QStringList &names, DiffWriter *writer, const Console &console)
{
    DiffRun run(writer, console);
    if (!run.compare({ names.at(0), names.at(0) }, { names.at(1), names.at(1) }, console))
        return EXIT_UNREADABLE;
    return run.isDifferent() ? EXIT_PROBLEMS : EXIT_FINE;
}

Side gitSide(const QString &fileName, const QString &shownName)
{
    constexpr auto nothing = "/dev/null"_L1;
    return fileName == nothing ? Side { QString(), nothing } : Side { fileName, shownName };
}

/// Git treats every exit code other than that for "equal" as a crash and ends the whole "git diff", unless it is
/// configured otherwise. So the error of a catalogue is written in place of its differences.
int compareForGit(const QStringList &arguments, DiffWriter *writer, bool hasExitCode, const Console &console)
{
    const QString &path = arguments.constFirst();
    if (arguments.size() == 1) {
        QTextStream(console.output) << "* Unmerged path " << path << '\n';
        return EXIT_FINE;
    }
    const QString newPath = arguments.value(GIT_ARGUMENTS, path);
    QTextStream(console.output) << "diff --rvcatalog a/" << path << " b/" << newPath << '\n';
    const Console messages { console.input, console.output, console.output };
    DiffRun run(writer, console);
    const bool isRead = run.compare(gitSide(arguments.at(1), "a/"_L1 + path),
                                    gitSide(arguments.at(4), "b/"_L1 + newPath), messages);
    return hasExitCode && (!isRead || run.isDifferent()) ? EXIT_PROBLEMS : EXIT_FINE;
}

/// The reason why the arguments cannot be understood; empty if they can.
QString refusal(const QString &format, bool isGit, const QStringList &names)
{
    if (isGit && format == "json"_L1)
        return u"--git writes several comparisons, which are no JSON"_s;
    const bool isCountOfGit = names.size() == 1
            || (names.size() >= GIT_ARGUMENTS && names.size() <= MOST_GIT_ARGUMENTS);
    if (isGit ? !isCountOfGit : names.size() != 2)
        return u"expected %1 arguments, got %2"_s.arg(isGit ? GIT_ARGUMENTS : 2).arg(names.size());
    return QString();
}

QString diffDescription()
{
    return u"Lists the differences between two catalogues: the products that were added or removed, and the changes "
           u"in\n"
           "the others. Compares the values that the ordering application reads, not their spelling.\n"
           "Ends with 0 if they are equal, with 1 if they differ, and with 2 if one of them cannot be read."_s;
}

QCommandLineOption gitOption()
{
    return { u"git"_s,
             u"Take the arguments that git gives to a diff driver: PATH OLD-FILE OLD-HEX OLD-MODE "
             "NEW-FILE NEW-HEX NEW-MODE. End with 0 even if the catalogues differ."_s };
}

}

int diffCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(diffDescription());
    const QCommandLineOption formatOption(u"format"_s, u"Write text, json, or markdown."_s, u"text|json|markdown"_s,
                                          u"text"_s);
    const QCommandLineOption colorOption(u"color"_s, u"Colour the text: auto (on a terminal), always, or never."_s,
                                         u"auto|always|never"_s, u"auto"_s);
    const QCommandLineOption git = gitOption();
    const QCommandLineOption exitCodeOption(
            u"exit-code"_s, u"With --git, end with 1 if they differ, for diff.<driver>.trustExitCode."_s);
    parser.addOptions({ formatOption, colorOption, git, exitCodeOption });
    parser.addPositionalArgument(u"OLD"_s, u"The products XML before; \"-\" is the standard input."_s, u"OLD.xml"_s);
    parser.addPositionalArgument(u"NEW"_s, u"The products XML afterwards; \"-\" is the standard input."_s,
                                 u"NEW.xml"_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 0, ANY_NUMBER, console, &exitCode))
        return exitCode;

    const QString format = parser.value(formatOption);
    const QString when = parser.value(colorOption);
    const bool isGit = parser.isSet(git);
    const QString problem = refusal(format, isGit, parser.positionalArguments());
    if (!problem.isEmpty())
        return refuseArguments(arguments.constFirst(), problem, console);
    const auto write = [&console](const QString &text) { console.write(text.toStdString()); };
    const auto writer = DiffWriter::create(format, hasColor(when, isGit, console), write);
    if (isGit)
        return compareForGit(parser.positionalArguments(), writer.get(), parser.isSet(exitCodeOption), console);
    return compareFiles(parser.positionalArguments(), writer.get(), console);
}
