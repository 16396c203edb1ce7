#ifndef CHECKEDCATALOGUE_H
#define CHECKEDCATALOGUE_H

#include "CatalogueBuffer.h"

#include <RVCatalogueCheck.h>
#include <RVCatalogueReader.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

/// A catalogue with its findings.
class CheckedCatalogue
{
public:
    explicit CheckedCatalogue(const QByteArray &file, const RVCatalogueCheck &check = RVCatalogueCheck())
        : myLines(QString::fromUtf8(file).split(u'\n'))
    {
        CatalogueBuffer buffer(file);
        RVCatalogueReader reader(&buffer);
        reader.setCheck(check);
        for (const RVCatalogueProduct &product : reader)
            myFindings += product.findings();
        myFindings += reader.findings();
        if (reader.hasError())
            myLines = QStringList { reader.errorString() };
    }

    const QList<RVCatalogueFinding> &findings() const { return myFindings; }

    /// The findings as "PLACE: RULE"; the place is the attribute as it stands in the file, or "<name>" for a start tag.
    QStringList rules() const
    {
        QStringList result;
        for (const RVCatalogueFinding &finding : myFindings)
            result += textAt(finding.range()) + ": "_L1 + finding.rule().name();
        return result;
    }
    QStringList texts() const
    {
        QStringList result;
        for (const RVCatalogueFinding &finding : myFindings)
            result += finding.text();
        return result;
    }
    QString textAt(const RVFileRange &range) const
    {
        QString text = between(range);
        if (!text.startsWith(u'<'))
            return text;
        text = text.section(u' ', 0, 0).section(u'/', 0, 0).section(u'>', 0, 0);
        return text + u'>';
    }

    /// The file after the fixes of all findings.
    QString mended() const
    {
        QList<RVFileEdit> edits;
        for (const RVCatalogueFinding &finding : myFindings)
            edits += finding.fix();
        std::sort(edits.begin(), edits.end(),
                  [](const RVFileEdit &a, const RVFileEdit &b) { return b.range.begin < a.range.begin; });
        QString text = myLines.join(u'\n');
        for (const RVFileEdit &edit : std::as_const(edits))
            text.replace(offset(edit.range.begin), offset(edit.range.end) - offset(edit.range.begin), edit.text);
        return text;
    }

private:
    qsizetype offset(const RVFilePosition &position) const
    {
        qsizetype result = qsizetype(position.column) - 1;
        for (qsizetype i = 0; i + 1 < qsizetype(position.line); ++i)
            result += myLines.at(i).size() + 1;
        return result;
    }
    QString between(const RVFileRange &range) const
    {
        return myLines.join(u'\n').mid(offset(range.begin), offset(range.end) - offset(range.begin));
    }

    QStringList myLines;
    QList<RVCatalogueFinding> myFindings;
};

#endif
