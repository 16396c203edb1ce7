#ifndef CHECKRUN_H
#define CHECKRUN_H

#include "CheckSummary.h"
#include "Interruption.h"
#include "ProgressBar.h"

#include <RVCatalogueFileSet.h>
#include <RVCatalogueFinding.h>

#include <QList>
#include <QString>
#include <QStringList>

class BaselineFilter;
class CatalogueFile;
class Configurations;
class FindingWriter;
struct CheckOptions;
struct Console;
struct Problem;

/// Checks files one after the other. An interruption ends the run as if the rest did not exist.
class CheckRun
{
    Q_DISABLE_COPY_MOVE(CheckRun)

public:
    /// All of them outlive the run.
    CheckRun(FindingWriter *writer, const CheckOptions &options, const Configurations &configurations,
             BaselineFilter *baseline, const Console &console);

    /// Checks the files until an interruption or the end of the output.
    void check(const QStringList &fileNames);
    /// Writes the end of the output, and returns the exit code of the program.
    int end();

private:
    /// False if the run must stop: a signal came, or the output has no reader.
    bool goesOn() const;
    int exitCode() const;
    void read(CatalogueFile *file, const QString &fileName);
    void write(const QString &fileName, const QList<RVCatalogueFinding> &findings);
    void reportUnreadable(const CatalogueFile &file, const QString &fileName, const Problem &problem);

    const Interruption myInterruption;
    FindingWriter *myWriter;
    const CheckOptions &myOptions;
    const Configurations &myConfigurations;
    BaselineFilter *myBaseline;
    const Console &myConsole;
    RVCatalogueFileSet myFiles;
    CheckSummary mySummary;
    qint64 myWritten = 0;
    ProgressBar myProgressBar;
};

#endif
