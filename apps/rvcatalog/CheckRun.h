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

/// Checks files one after the other. An interruption ends it as if what follows were not there.
class CheckRun
{
    Q_DISABLE_COPY_MOVE(CheckRun)

public:
    /// All of them outlive the run.
    CheckRun(FindingWriter *writer, const CheckOptions &options, const Configurations &configurations,
             BaselineFilter *baseline, const Console &console);

    /// Checks them until something ends the run.
    void check(const QStringList &fileNames);
    /// Writes what comes last, and returns the exit code of the program.
    int end();

private:
    /// False where going on has no use: somebody interrupts, or nobody takes what is written.
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
