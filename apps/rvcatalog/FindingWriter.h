#ifndef FINDINGWRITER_H
#define FINDINGWRITER_H

#include "CheckSummary.h"
#include "Console.h"

#include <RVCatalogueFinding.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <string_view>

struct CheckOptions;

/// A file that could not be read to its end, and the reason.
struct UnreadableFile
{
    QString fileName;
    Problem problem;
};

/// Writes findings to the output of a console, in one of several formats, as soon as they come.
class FindingWriter
{
    Q_DISABLE_COPY_MOVE(FindingWriter)

public:
    /// The names of the formats.
    static QStringList formats();
    /// The writer for the options.
    static std::unique_ptr<FindingWriter> create(const CheckOptions &options, const Console &console);
    virtual ~FindingWriter();

    virtual void begin() { }
    virtual void finding(const QString &fileName, const RVCatalogueFinding &finding) = 0;
    /// Reports a file that could not be read to its end.
    virtual void unreadable(const QString &, const Problem &) { }
    virtual void endFile(const QString &) { }
    /// @p exitCode is that of the program.
    virtual void end(const CheckSummary &summary, int exitCode) = 0;

protected:
    explicit FindingWriter(const Console &console) : myConsole(console) { }

    void write(std::string_view text) const { myConsole.write(text); }

private:
    const Console &myConsole;
};

#endif
