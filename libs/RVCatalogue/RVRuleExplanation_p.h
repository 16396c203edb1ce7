#ifndef RVRULEEXPLANATION_P_H
#define RVRULEEXPLANATION_P_H

#include "RVCatalogueRule.h"

#include <QLatin1StringView>
#include <QList>
#include <QString>

/// All that is to be said of a rule, in the notation of the reader: why it matters, a broken and a mended example, and
/// how to silence it. In the language of the program.
class RVRuleExplanation
{
public:
    explicit RVRuleExplanation(RVCatalogueRule rule);

    QString toPlainText() const; ///< Code is set in by four blanks.
    QString toMarkdown() const; ///< Code is fenced, and there is no heading.

private:
    struct Paragraph
    {
        QString text;
        QString code; // empty where there is none
        QLatin1StringView language; // of the code
    };

    QList<Paragraph> myParagraphs;
};

#endif
