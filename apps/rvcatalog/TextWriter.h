#ifndef TEXTWRITER_H
#define TEXTWRITER_H

#include "Appearance.h"
#include "FindingWriter.h"
#include "SourceLines.h"

#include <memory>

/// One finding a line, as compilers write them, and a summary.
class TextWriter : public FindingWriter
{
public:
    TextWriter(const Console &console, const Appearance &appearance);

    void finding(const QString &fileName, const RVCatalogueFinding &finding) override;
    void end(const CheckSummary &summary, int exitCode) override;

private:
    void writeLine(const QString &place, QLatin1StringView severity, const QString &text);
    void writeExcerpt(const QString &fileName, const RVFileRange &range, QLatin1StringView severity);
    QString colored(QLatin1StringView color, const QString &text) const;

    Appearance myAppearance;
    QString myFileName; // of the lines
    std::unique_ptr<SourceLines> myLines;
};

#endif
