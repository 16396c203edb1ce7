#include "JunitWriter.h"

#include "FindingLine.h"

#include <QByteArray>
#include <QDateTime>
#include <QXmlStreamWriter>

#include <algorithm>
#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isXml(QChar letter)
{
    const char16_t unit = letter.unicode();
    return unit >= 0x20 ? unit < 0xfffe : unit == u'\t' || unit == u'\n' || unit == u'\r';
}

/// Letters that XML cannot have, also as a reference, are written as in "\u001b".
QString legal(const QString &text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            result += text[i++];
        if (isPair || (isXml(text[i]) && !text[i].isSurrogate()))
            result += text[i];
        else
            result += u"\\u%1"_s.arg(uint(text[i].unicode()), 4, 16, QLatin1Char('0'));
    }
    return result;
}

using Attributes = std::initializer_list<std::pair<QString, QString>>;

void writeStart(QXmlStreamWriter *xml, const QString &name, const Attributes &attributes)
{
    xml->writeStartElement(name);
    for (const auto &[attribute, value] : attributes)
        xml->writeAttribute(attribute, legal(value));
}

void writeCase(QXmlStreamWriter *xml, const JunitCase &testCase)
{
    writeStart(xml, u"testcase"_s,
               { { u"name"_s, testCase.name }, { u"classname"_s, testCase.group }, { u"time"_s, u"0"_s } });
    if (!testCase.element.isEmpty()) {
        writeStart(xml, testCase.element, { { u"message"_s, testCase.message }, { u"type"_s, testCase.group } });
        xml->writeCharacters(legal(testCase.text));
        xml->writeEndElement();
    }
    xml->writeEndElement();
}

qint64 count(const QList<JunitCase> &cases, const QString &element)
{
    return std::count_if(cases.begin(), cases.end(), [&](const JunitCase &each) { return each.element == element; });
}

}

void JunitWriter::begin()
{
    write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites>\n");
}

void JunitWriter::finding(const QString &fileName, const RVCatalogueFinding &finding)
{
    const QString lines = findingLines(fileName, finding);
    if (finding.severity() == RVCatalogueSeverity::Note)
        mySuite.notes += lines;
    else
        mySuite.cases += { finding.rule().name(), typedText(finding), u"failure"_s, finding.text(), lines };
}

void JunitWriter::unreadable(const QString &fileName, const Problem &problem)
{
    mySuite.cases += { u"unreadable"_s, fileName, u"error"_s, problem.text,
                       placeText(fileName, problem.position) + ": "_L1 + problem.text };
}

void JunitWriter::endFile(const QString &fileName)
{
    writeSuite(fileName);
}

void JunitWriter::end(const CheckSummary &summary, int)
{
    if (summary.signal != 0)
        mySuite.cases += { u"check"_s, u"interrupted"_s, u"error"_s, u"interrupted"_s, summary.text() };
    if (summary.omitted > 0)
        mySuite.notes += summary.text();
    if (summary.signal != 0 || summary.omitted > 0)
        writeSuite(u"rvcatalog"_s);
    write("</testsuites>\n");
}

void JunitWriter::writeSuite(const QString &name)
{
    const Suite suite = std::exchange(mySuite, {});
    const QList<JunitCase> passed = { { u"check"_s, name, QString(), QString(), QString() } };
    const QList<JunitCase> &cases = suite.cases.isEmpty() ? passed : suite.cases;
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(1);
    writeStart(&xml, u"testsuite"_s,
               { { u"name"_s, name },
                 { u"package"_s, u"rvcatalog"_s },
                 { u"id"_s, QString::number(mySuites++) },
                 { u"timestamp"_s, QDateTime::currentDateTimeUtc().toString(u"yyyy-MM-ddThh:mm:ss"_s) },
                 { u"hostname"_s, u"localhost"_s },
                 { u"tests"_s, QString::number(cases.size()) },
                 { u"failures"_s, QString::number(count(cases, u"failure"_s)) },
                 { u"errors"_s, QString::number(count(cases, u"error"_s)) },
                 { u"time"_s, u"0"_s } });
    xml.writeEmptyElement(u"properties"_s);
    for (const JunitCase &testCase : cases)
        writeCase(&xml, testCase);
    xml.writeTextElement(u"system-out"_s, legal(suite.notes.join(u'\n')));
    xml.writeTextElement(u"system-err"_s, QString());
    xml.writeEndElement();
    // Formatting may begin with an empty line.
    write(bytes.trimmed().append('\n').toStdString());
}
