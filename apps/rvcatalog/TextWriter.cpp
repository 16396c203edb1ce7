#include "TextWriter.h"

#include "Excerpt.h"
#include "FindingLine.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto BOLD = "1"_L1;

QLatin1StringView colorOf(QLatin1StringView severity)
{
    if (severity == "error"_L1)
        return "1;31"_L1;
    return severity == "warning"_L1 ? "1;35"_L1 : "1;36"_L1;
}

}

TextWriter::TextWriter(const Console &console, const Appearance &appearance)
    : FindingWriter(console),
      myAppearance(appearance)
{ }

void TextWriter::finding(const QString &fileName, const RVCatalogueFinding &finding)
{
    if (!myAppearance.hasColor && !myAppearance.hasExcerpts)
        return write((findingLines(fileName, finding) + u'\n').toStdString());
    const QLatin1StringView severity = rvSeverityName(finding.severity());
    writeLine(placeText(fileName, finding.range().begin), severity,
              u"%1 [%2]"_s.arg(typedText(finding), finding.rule().name()));
    writeExcerpt(&myFile, fileName, finding.range(), severity);
    const QList<RVRelatedPlace> places = finding.relatedPlaces();
    for (const RVRelatedPlace &place : places) {
        const QString placeFile = fileOf(place, fileName);
        writeLine(placeText(placeFile, place.range.begin), "note"_L1, place.text);
        writeExcerpt(&myRelatedFile, placeFile, place.range, "note"_L1);
    }
}

void TextWriter::end(const CheckSummary &summary, int)
{
    write((summary.text() + u'\n').toStdString());
}

void TextWriter::writeLine(const QString &place, QLatin1StringView severity, const QString &text)
{
    write((colored(BOLD, place + u':') + u' ' + colored(colorOf(severity), severity + u':') + u' ' + text + u'\n')
                  .toStdString());
}

void TextWriter::writeExcerpt(SourceFile *file, const QString &fileName, const RVFileRange &range,
                              QLatin1StringView severity)
{
    if (!myAppearance.hasExcerpts)
        return;
    if (!file->lines || fileName != file->name)
        *file = { fileName, std::make_unique<SourceLines>(fileName) };
    const QString line = file->lines->line(range.begin.line);
    if (line.isNull())
        return;
    const Excerpt excerpt = excerptOf(line, range);
    write((excerpt.text + u'\n' + excerpt.indent + colored(colorOf(severity), excerpt.marks) + u'\n').toStdString());
}

QString TextWriter::colored(QLatin1StringView color, const QString &text) const
{
    return myAppearance.hasColor ? u"\033[%1m%2\033[0m"_s.arg(color, text) : text;
}
