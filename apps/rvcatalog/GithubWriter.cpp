#include "GithubWriter.h"

#include "FindingLine.h"

using namespace Qt::StringLiterals;

namespace {

QLatin1StringView commandFor(RVCatalogueSeverity severity)
{
    return severity == RVCatalogueSeverity::Note ? "notice"_L1 : rvSeverityName(severity);
}

QString message(QString text)
{
    return text.replace(u'%', "%25"_L1).replace(u'\r', "%0D"_L1).replace(u'\n', "%0A"_L1);
}

/// Properties are separated by commas, and end with a colon.
QString property(const QString &text)
{
    return message(text).replace(u':', "%3A"_L1).replace(u',', "%2C"_L1);
}

QString number(QLatin1StringView name, qint64 value)
{
    return u",%1=%2"_s.arg(name).arg(value);
}

/// GitHub accepts columns only if the range is on one line.
QString place(const QString &fileName, const RVFileRange &range)
{
    QString result = "file="_L1 + property(fileName) + number("line"_L1, range.begin.line);
    if (range.begin.line != range.end.line)
        return result + number("endLine"_L1, range.end.line);
    return result + number("col"_L1, range.begin.column) + number("endLine"_L1, range.end.line)
            + number("endColumn"_L1, range.end.column);
}

}

void GithubWriter::finding(const QString &fileName, const RVCatalogueFinding &finding)
{
    QString text = typedText(finding);
    const QList<RVRelatedPlace> places = finding.relatedPlaces();
    for (const RVRelatedPlace &related : places)
        text += u"\n%1: %2"_s.arg(placeText(fileOf(related, fileName), related.range.begin), related.text);
    write(u"::%1 %2,title=%3::%4\n"_s
                  .arg(commandFor(finding.severity()), place(fileName, finding.range()),
                       property(finding.rule().name()), message(text))
                  .toStdString());
}

void GithubWriter::unreadable(const QString &fileName, const Problem &problem)
{
    write(u"::error %1,title=unreadable::%2\n"_s
                  .arg(place(fileName, { problem.position, problem.position }), message(problem.text))
                  .toStdString());
}

// Log lines that are no commands are for people.
void GithubWriter::end(const CheckSummary &summary, int)
{
    write((summary.text() + u'\n').toStdString());
}
