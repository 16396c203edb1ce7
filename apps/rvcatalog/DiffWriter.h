#ifndef DIFFWRITER_H
#define DIFFWRITER_H

#include "Console.h"

#include <RVCatalogueComparison.h>

#include <QString>

#include <memory>

/// Writes the differences between two catalogues to the output of a console, in one of several formats.
class DiffWriter
{
    Q_DISABLE_COPY_MOVE(DiffWriter)

public:
    /// "text", "json" or "markdown"; null for any other format. Only texts have colours.
    static std::unique_ptr<DiffWriter> create(const QString &format, bool hasColor, const Console &console);
    virtual ~DiffWriter();

    /// The names of the two catalogues, as the user gave them.
    virtual void begin(const QString &, const QString &) { }
    /// A product that differs.
    virtual void product(const RVProductComparison &product) = 0;
    virtual void end(const RVComparisonCounts &counts) = 0;

protected:
    explicit DiffWriter(const Console &console) : myConsole(console) { }

    void write(const QString &text) const { myConsole.write(text.toStdString()); }

private:
    const Console &myConsole;
};

#endif
