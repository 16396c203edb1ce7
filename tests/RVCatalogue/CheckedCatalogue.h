#ifndef CHECKEDCATALOGUE_H
#define CHECKEDCATALOGUE_H

#include "FindingTools.h"

using namespace Qt::StringLiterals;

/// A catalogue with its findings.
class CheckedCatalogue
{
public:
    explicit CheckedCatalogue(const QByteArray &file, const RVCatalogueCheck &check = RVCatalogueCheck())
        : myText(QString::fromUtf8(file))
    {
        CatalogueBuffer buffer(file);
        RVCatalogueReader reader(&buffer);
        reader.setCheck(check);
        for (const RVCatalogueProduct &product : reader)
            myFindings += product.findings();
        myFindings += reader.findings();
        if (reader.hasError())
            myText = reader.errorString();
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
        const qsizetype begin = offsetOf(myText, range.begin);
        QString text = myText.mid(begin, offsetOf(myText, range.end) - begin);
        if (!text.startsWith(u'<'))
            return text;
        text = text.section(u' ', 0, 0).section(u'/', 0, 0).section(u'>', 0, 0);
        return text + u'>';
    }

    /// The file after the fixes of all findings.
    QString mended() const { return QString::fromUtf8(::mended(myText.toUtf8(), myFindings)); }

private:
    QString myText;
    QList<RVCatalogueFinding> myFindings;
};

#endif
