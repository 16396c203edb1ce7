#include "FindingLine.h"

#include "PrintableText.h"

using namespace Qt::StringLiterals;

namespace {

/// A text of a file may be long, and may have letters that break a line.
QString onOneLine(const QString &text)
{
    constexpr qsizetype longest = 80;
    QString result = text.simplified().left(longest);
    if (!result.isEmpty() && result.back().isHighSurrogate())
        result.chop(1);
    return printableText(result);
}

}

QString placeText(const QString &fileName, const RVFilePosition &position)
{
    return u"%1:%2:%3"_s.arg(fileName, QString::number(position.line), QString::number(position.column));
}

QString typedText(const RVCatalogueFinding &finding)
{
    const QString type = onOneLine(finding.productType());
    return type.isEmpty() ? finding.text() : type + ": "_L1 + finding.text();
}

QString fileOf(const RVRelatedPlace &place, const QString &fileName)
{
    return place.fileName.isEmpty() ? fileName : place.fileName;
}

QString findingLines(const QString &fileName, const RVCatalogueFinding &finding)
{
    QString result = u"%1: %2: %3 [%4]"_s.arg(placeText(fileName, finding.range().begin),
                                              rvSeverityName(finding.severity()), typedText(finding),
                                              finding.rule().name());
    const QList<RVRelatedPlace> places = finding.relatedPlaces();
    for (const RVRelatedPlace &place : places)
        result += u"\n%1: note: %2"_s.arg(placeText(fileOf(place, fileName), place.range.begin), place.text);
    return result;
}
