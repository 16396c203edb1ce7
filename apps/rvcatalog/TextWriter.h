#ifndef TEXTWRITER_H
#define TEXTWRITER_H

#include "Appearance.h"
#include "FindingWriter.h"
#include "SourceLines.h"

#include <memory>

/// Writes a line for each finding, as compilers do, and a summary.
class TextWriter : public FindingWriter
{
public:
    TextWriter(const Console &console, const Appearance &appearance);

    void finding(const QString &fileName, const RVCatalogueFinding &finding) override;
    void end(const CheckSummary &summary, int exitCode) override;

private:
    struct SourceFile
    {
        QString name;
        std::unique_ptr<SourceLines> lines;
    };

    void writeLine(const QString &place, QLatin1StringView severity, const QString &text);
    void writeExcerpt(SourceFile *file, const QString &fileName, const RVFileRange &range, QLatin1StringView severity);
    QString colored(QLatin1StringView color, const QString &text) const;

    Appearance myAppearance;
    SourceFile myFile; // of the findings, which are in the order of the lines
    SourceFile myRelatedFile; // of related places, which are not in order
};

#endif
