#ifndef FIXRUN_H
#define FIXRUN_H

#include "Console.h"
#include "ProgressBar.h"

#include <QString>
#include <QTemporaryFile>

#include <memory>
#include <optional>

class Configurations;
class RVCatalogueReader;
class RVFileEditor;
struct CheckOptions;

/// Mends files before they are checked, or shows the changes.
class FixRun
{
    Q_DISABLE_COPY_MOVE(FixRun)

public:
    /// All of them outlive the run.
    FixRun(const CheckOptions &options, const Configurations &configurations, Console *console);
    ~FixRun();

    /// Mends the files, and reports the number of mended findings. It does not report unreadable files, because the
    /// check afterwards does. The mended input goes to the output. From then on the console reads it from a copy, and
    /// further output goes to the messages. Returns the exit code, unless the check has a worse one.
    int mend();
    /// Writes the changes as a unified diff, and returns the exit code of the program.
    int diff();

private:
    struct CloseFile
    {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    struct Mending;

    bool mendFile(const QString &fileName);
    bool mendInput();
    bool mendCopy();
    bool readCopy();
    bool writeMended(Mending *mending);
    bool diffFile(const QString &fileName, bool *isChanged);
    bool writeDiff(const QString &fileName, const QString &path, RVFileEditor *editor);
    std::optional<Problem> collect(RVCatalogueReader *reader, const QString &fileName, Mending *mending);
    bool copyInput();
    bool fail(const QString &fileName, const Problem &problem);
    void tellMended(const QString &fileName, const Mending &mending);

    const CheckOptions &myOptions;
    const Configurations &myConfigurations;
    Console *myConsole;
    ProgressBar myProgressBar;
    std::unique_ptr<QTemporaryFile> myInputCopy; // null until it is needed
    std::unique_ptr<std::FILE, CloseFile> myInput; // the same, as the console reads it
};

#endif
