#ifndef CHECKRUN_H
#define CHECKRUN_H

#include "FindingWriter.h"
#include "ProgressBar.h"

#include <RVCatalogueFinding.h>

#include <QList>
#include <QString>

class CatalogueFile;
struct CheckOptions;

/// Checks files one after the other.
class CheckRun
{
    Q_DISABLE_COPY_MOVE(CheckRun)

public:
    /// All of them outlive the run.
    CheckRun(FindingWriter *writer, const CheckOptions &options, const Console &console);

    void check(const QString &fileName);
    /// Writes what comes last, and returns the exit code of the program.
    int end();

private:
    int exitCode() const;
    void write(const QString &fileName, const QList<RVCatalogueFinding> &findings);
    void reportUnreadable(const CatalogueFile &file, const QString &fileName, const Problem &problem);

    FindingWriter *myWriter;
    const CheckOptions &myOptions;
    const Console &myConsole;
    CheckSummary mySummary;
    ProgressBar myProgressBar;
};

#endif
