#ifndef FINDINGFILTERBAR_H
#define FINDINGFILTERBAR_H

#include "FindingFilter.h"

#include <QList>
#include <QWidget>

class QComboBox;
class QLabel;
class QToolButton;
class SearchLine;

/// Chooses which findings are shown: by words, by severity and by rule.
class FindingFilterBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindingFilterBar(QWidget *parent = nullptr);

    /// Offers the rules and severities of these findings with their counts. The filter stays, but for a rule that none
    /// of them breaks.
    void setFindings(const QList<RVCatalogueFinding> &findings);
    /// Tells how many findings are shown.
    void setShown(int shown, int all);
    FindingFilter filter() const;
    void clear();
    void focusText();

Q_SIGNALS:
    void filterChanged();
    /// A key was pressed that leads on from the text to the findings.
    void left();

private:
    struct SeverityButton
    {
        RVCatalogueSeverity severity;
        QToolButton *button;
    };

    void addSeverity(RVCatalogueSeverity severity, const QString &objectName);
    void setSeverityCount(const SeverityButton &severity, int count);
    void setRules(const QList<RVCatalogueFinding> &findings);

    SearchLine *myText;
    QList<SeverityButton> mySeverities;
    QComboBox *myRules;
    QLabel *myCount;
};

#endif
