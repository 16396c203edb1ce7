#ifndef RVRULEEXPLANATION_P_H
#define RVRULEEXPLANATION_P_H

#include "RVCatalogueRule.h"

#include <QLatin1StringView>
#include <QList>
#include <QString>

/// The explanation of a rule in the language of the program: why it matters, a broken and a mended example, and how to
/// silence it.
class RVRuleExplanation
{
public:
    explicit RVRuleExplanation(RVCatalogueRule rule);

    QString toPlainText() const; ///< Code is indented by four blanks.
    QString toMarkdown() const; ///< Code is fenced, and there is no heading.

private:
    struct Paragraph
    {
        QString text;
        QString code; // empty if there is none
        QLatin1StringView language; // of the code
    };

    QList<Paragraph> myParagraphs;
};

#endif
