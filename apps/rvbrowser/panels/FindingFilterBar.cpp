#include "FindingFilterBar.h"

#include "FindingsModel.h"
#include "SearchLine.h"
#include "WheelGuard.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMap>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

FindingFilterBar::FindingFilterBar(QWidget *parent)
    : QWidget(parent),
      myText(new SearchLine(u"findingText"_s, tr("Filter findings"), tr("Filter by product, text, rule"))),
      myRules(new QComboBox),
      myCount(new QLabel)
{
    connect(myText, &QLineEdit::textChanged, this, &FindingFilterBar::filterChanged);
    connect(myText, &SearchLine::left, this, &FindingFilterBar::left);
    myRules->setObjectName(u"findingRule"_s);
    myRules->setAccessibleName(tr("Rule"));
    myRules->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    myRules->setMinimumContentsLength(18);
    connect(myRules, &QComboBox::currentIndexChanged, this, &FindingFilterBar::filterChanged);
    new WheelGuard(myRules);
    myCount->setObjectName(u"findingCount"_s);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 0, 4, 2);
    layout->addWidget(myText);
    addSeverity(RVCatalogueSeverity::Error, u"showErrors"_s);
    addSeverity(RVCatalogueSeverity::Warning, u"showWarnings"_s);
    addSeverity(RVCatalogueSeverity::Note, u"showNotes"_s);
    layout->addWidget(myRules);
    layout->addWidget(myCount);
    setFindings({});
}

void FindingFilterBar::addSeverity(RVCatalogueSeverity severity, const QString &objectName)
{
    auto *button = new QToolButton;
    button->setObjectName(objectName);
    button->setCheckable(true);
    button->setChecked(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIcon(FindingsModel::severityIcon(severity));
    connect(button, &QToolButton::toggled, this, &FindingFilterBar::filterChanged);
    layout()->addWidget(button);
    mySeverities += SeverityButton { severity, button };
}

void FindingFilterBar::setFindings(const QList<RVCatalogueFinding> &findings)
{
    for (const SeverityButton &severity : std::as_const(mySeverities)) {
        const auto count = std::count_if(
                findings.begin(), findings.end(),
                [&severity](const RVCatalogueFinding &finding) { return finding.severity() == severity.severity; });
        setSeverityCount(severity, int(count));
    }
    setRules(findings);
}

void FindingFilterBar::setSeverityCount(const SeverityButton &severity, int count)
{
    QString text;
    switch (severity.severity) {
    case RVCatalogueSeverity::Error:
        text = tr("Show %n error(s)", nullptr, count);
        break;
    case RVCatalogueSeverity::Warning:
        text = tr("Show %n warning(s)", nullptr, count);
        break;
    case RVCatalogueSeverity::Note:
        text = tr("Show %n note(s)", nullptr, count);
        break;
    }
    severity.button->setText(QString::number(count));
    severity.button->setToolTip(text);
    severity.button->setAccessibleName(text);
}

void FindingFilterBar::setRules(const QList<RVCatalogueFinding> &findings)
{
    QMap<QString, int> counts;
    for (const RVCatalogueFinding &finding : findings)
        ++counts[finding.rule().name()];
    const QSignalBlocker blocker(myRules);
    const QString chosen = myRules->currentData().toString();
    myRules->clear();
    myRules->addItem(tr("All rules"), QString());
    for (auto rule = counts.constKeyValueBegin(); rule != counts.constKeyValueEnd(); ++rule)
        myRules->addItem(u"%1 (%2)"_s.arg(rule->first).arg(rule->second), rule->first);
    myRules->setCurrentIndex(qMax(0, myRules->findData(chosen)));
}

void FindingFilterBar::setShown(int shown, int all)
{
    myCount->setText(tr("%1 of %n finding(s)", nullptr, all).arg(shown));
}

FindingFilter FindingFilterBar::filter() const
{
    FindingFilter result;
    result.text = myText->text();
    result.rule = RVCatalogueRule::find(myRules->currentData().toString());
    for (const SeverityButton &severity : mySeverities) {
        if (!severity.button->isChecked())
            result.hidden += severity.severity;
    }
    return result;
}

void FindingFilterBar::clear()
{
    {
        const QSignalBlocker blocker(this);
        myText->clear();
        myRules->setCurrentIndex(0);
        for (const SeverityButton &severity : std::as_const(mySeverities))
            severity.button->setChecked(true);
    }
    Q_EMIT filterChanged();
}

void FindingFilterBar::focusText()
{
    myText->setFocus(Qt::OtherFocusReason);
}
