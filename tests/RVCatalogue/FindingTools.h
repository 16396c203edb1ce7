#ifndef FINDINGTOOLS_H
#define FINDINGTOOLS_H

#include "CatalogueBuffer.h"

#include <RVCatalogueCheck.h>
#include <RVCatalogueReader.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>

inline RVCatalogueCheck without(const QStringList &rules)
{
    RVCatalogueCheck check;
    for (const QString &rule : rules)
        check.disable(RVCatalogueRule::find(rule));
    return check;
}

/// The findings about a catalogue, without those about the file as a whole.
inline QList<RVCatalogueFinding> findingsOf(const QByteArray &file, const RVCatalogueCheck &check = RVCatalogueCheck())
{
    CatalogueBuffer buffer(file);
    RVCatalogueReader reader(&buffer);
    reader.setCheck(check);
    QList<RVCatalogueFinding> result;
    for (const RVCatalogueProduct &product : reader)
        result += product.findings();
    return result;
}

/// The findings, each as "error keyword-unknown: ...".
inline QStringList textsOf(const QList<RVCatalogueFinding> &findings)
{
    QStringList result;
    for (const RVCatalogueFinding &finding : findings)
        result += rvSeverityName(finding.severity()) + u' ' + finding.rule().name() + QStringLiteral(": ")
                + finding.text();
    return result;
}

/// "line:column-line:column"
inline QString describe(const RVFileRange &range)
{
    return QStringLiteral("%1:%2-%3:%4")
            .arg(range.begin.line)
            .arg(range.begin.column)
            .arg(range.end.line)
            .arg(range.end.column);
}

/// The offset of a place in a text whose lines end with a line feed.
inline qsizetype offsetOf(const QString &text, const RVFilePosition &position)
{
    qsizetype result = 0;
    for (qint64 line = 1; line < qint64(position.line); ++line)
        result = text.indexOf(u'\n', result) + 1;
    return result + qsizetype(position.column) - 1;
}

/// The piece of a file in UTF-8.
inline QString pieceOf(const QByteArray &file, const RVFileRange &range)
{
    const QString text = QString::fromUtf8(file);
    const qsizetype begin = offsetOf(text, range.begin);
    return text.sliced(begin, offsetOf(text, range.end) - begin);
}

/// The file with all fixes of the findings in it.
inline QByteArray mended(const QByteArray &file, const QList<RVCatalogueFinding> &findings)
{
    QList<RVFileEdit> edits;
    for (const RVCatalogueFinding &finding : findings)
        edits += finding.fix();
    std::sort(edits.begin(), edits.end(),
              [](const RVFileEdit &a, const RVFileEdit &b) { return b.range.begin < a.range.begin; });
    QString text = QString::fromUtf8(file);
    for (const RVFileEdit &edit : edits) {
        const qsizetype begin = offsetOf(text, edit.range.begin);
        text.replace(begin, offsetOf(text, edit.range.end) - begin, edit.text);
    }
    return text.toUtf8();
}

/// A catalogue of one product with these attributes and this content.
inline QByteArray productWith(const QByteArray &attributes, const QByteArray &content = QByteArray())
{
    return "<products>\n<product type='A' article_id='1' " + attributes + ">\n" + content + "</product>\n</products>\n";
}

/// The same with its own article id.
inline QByteArray articleWith(const QByteArray &attributes)
{
    return "<products>\n<product type='A' " + attributes + "/>\n</products>\n";
}

inline QByteArray unitsWith(const QByteArray &unit)
{
    return productWith("", "<composition units='" + unit + "'>\n<spine base_width='0.8'/>\n</composition>\n");
}

inline QByteArray widthWith(const QByteArray &width)
{
    return productWith("", "<composition units='mm'>\n<spine base_width='" + width + "'/>\n</composition>\n");
}

inline QByteArray formsWith(const QByteArray &forms)
{
    return productWith("", "<forms>\n" + forms + "</forms>\n");
}

inline QByteArray colorWith(const QByteArray &color)
{
    return formsWith("<form key='a' value='b' color='" + color + "'/>\n");
}

#endif
