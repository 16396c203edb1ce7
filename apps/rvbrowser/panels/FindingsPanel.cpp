#include "FindingsPanel.h"

#include "FindingFilterBar.h"
#include "FindingToolTip.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSplitter>
#include <QTableView>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int SHOWN_FINDINGS = 5;

/// True for one fault in two states of a file, also where it moved.
bool isSame(const RVCatalogueFinding &a, const RVCatalogueFinding &b)
{
    return a.rule() == b.rule() && a.productType() == b.productType() && a.text() == b.text();
}

}

FindingsPanel::FindingsPanel(QWidget *parent)
    : QWidget(parent),
      myFilter(new FindingFilterBar),
      myNothing(new QLabel),
      myClear(new QPushButton(tr("Clear the &filter"))),
      myView(new QTableView),
      myExplanation(new QTextBrowser),
      mySplitter(new QSplitter)
{
    setUpView();
    setUpNothing();
    myExplanation->setObjectName(u"explanation"_s);
    myExplanation->setAccessibleName(tr("Explanation of the finding"));
    myExplanation->hide();
    mySplitter->setChildrenCollapsible(false);
    mySplitter->addWidget(myView);
    mySplitter->addWidget(myExplanation);
    mySplitter->setStretchFactor(0, 3);
    mySplitter->setStretchFactor(1, 2);
    connect(myFilter, &FindingFilterBar::filterChanged, this, &FindingsPanel::applyFilter);
    connect(myFilter, &FindingFilterBar::left, myView, [this] {
        if (currentFinding() < 0)
            myView->selectRow(0);
        myView->setFocus(Qt::TabFocusReason);
    });
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(myFilter);
    layout->addWidget(myNothing);
    layout->addWidget(myClear, 0, Qt::AlignLeft);
    layout->addWidget(mySplitter, 1);
    showState();
}

void FindingsPanel::setUpView()
{
    myView->setObjectName(u"findings"_s);
    myView->setAccessibleName(tr("Findings"));
    myView->setModel(&myModel);
    myView->setSelectionBehavior(QAbstractItemView::SelectRows);
    myView->setContextMenuPolicy(Qt::ActionsContextMenu);
    myView->setShowGrid(false);
    myView->setWordWrap(false);
    myView->setTabKeyNavigation(false);
    myView->verticalHeader()->hide();
    myView->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    myView->verticalHeader()->setMinimumSectionSize(0);
    myView->horizontalHeader()->setSectionResizeMode(FINDING_TEXT, QHeaderView::Stretch);
    myView->horizontalHeader()->setHighlightSections(false);
    myView->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // A third click on a header brings back the order of the file.
    myView->horizontalHeader()->setSortIndicatorShown(true);
    myView->horizontalHeader()->setSortIndicatorClearable(true);
    myView->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    connect(myView->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &FindingsPanel::sort);
    connect(myView, &QTableView::clicked, this, &FindingsPanel::choose);
    connect(myView, &QTableView::activated, this, &FindingsPanel::choose);
    connect(myView, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        if (index.column() == FINDING_PLACE)
            Q_EMIT editRequested();
    });
    connect(myView->selectionModel(), &QItemSelectionModel::selectionChanged, this, &FindingsPanel::explain);
    connect(myView->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &FindingsPanel::explain);
}

void FindingsPanel::setUpNothing()
{
    myNothing->setObjectName(u"noFindings"_s);
    myNothing->setWordWrap(true);
    myNothing->setIndent(6);
    myClear->setObjectName(u"clearFilter"_s);
    connect(myClear, &QPushButton::clicked, this, [this] {
        myFilter->clear();
        myFilter->focusText();
    });
}

void FindingsPanel::setCatalogue(const CataloguePointer &catalogue)
{
    const CataloguePointer before = myModel.catalogue();
    const int finding = currentFinding();
    const int row = finding < 0 ? myResumeRow : myModel.rowOf(finding);
    myModel.setCatalogue(catalogue);
    myFilter->setFindings(catalogue ? catalogue->findings() : QList<RVCatalogueFinding>());
    myModel.setFilter(myFilter->filter());
    const bool isReload = before && catalogue && before->fileName() == catalogue->fileName();
    myResumeRow = isReload ? row : 0;
    myHidden.reset();
    if (isReload && finding >= 0)
        keepCurrent(before->findings().at(finding), row);
    showState();
    myView->resizeColumnsToContents(); // which measures only what is visible, so it is quick for many findings as well
    Q_EMIT catalogueChanged();
}

// Of equal findings it takes the nearest one.
void FindingsPanel::keepCurrent(const RVCatalogueFinding &before, int row)
{
    int nearest = -1;
    const QList<RVCatalogueFinding> &findings = myModel.catalogue()->findings();
    for (int i = 0; i < myModel.rowCount(); ++i) {
        const bool isNearer = nearest < 0 || qAbs(i - row) < qAbs(nearest - row);
        if (isNearer && isSame(findings.at(myModel.findingAt(i)), before))
            nearest = i;
    }
    if (nearest >= 0)
        select({ myModel.findingAt(nearest) }, myModel.findingAt(nearest));
}

// A chosen finding that is hidden stays the chosen one: filtering is not choosing.
void FindingsPanel::applyFilter()
{
    const bool isHidden = currentFinding() < 0 && myHidden;
    const QList<int> selected = isHidden ? QList<int> { *myHidden } : selectedFindings();
    const int current = isHidden ? *myHidden : currentFinding();
    myModel.setFilter(myFilter->filter());
    myHidden = current;
    myResumeRow = 0;
    select(selected, current);
    showState();
}

void FindingsPanel::sort(int column, Qt::SortOrder order)
{
    const QList<int> selected = selectedFindings();
    const int current = currentFinding();
    myModel.sort(column, order);
    myResumeRow = 0;
    select(selected, current);
}

// Says what to do where there is no finding to see.
void FindingsPanel::showState()
{
    const bool hasFindings = myModel.findingCount() > 0;
    const bool isShown = myModel.rowCount() > 0;
    if (!hasFindings)
        myNothing->setText(tr("Nothing was found.") + u' '
                           + tr("The catalogue is checked again whenever its file changes."));
    else
        myNothing->setText(tr("No finding matches the filter."));
    myFilter->setShown(myModel.rowCount(), myModel.findingCount());
    myFilter->setVisible(hasFindings);
    myNothing->setVisible(!isShown);
    myClear->setVisible(hasFindings && !isShown);
    mySplitter->setVisible(isShown);
    explain();
}

QString FindingsPanel::summary() const
{
    return u"%1, %2, %3"_s.arg(tr("%n error(s)", nullptr, myModel.count(RVCatalogueSeverity::Error)),
                               tr("%n warning(s)", nullptr, myModel.count(RVCatalogueSeverity::Warning)),
                               tr("%n note(s)", nullptr, myModel.count(RVCatalogueSeverity::Note)));
}

int FindingsPanel::currentFinding() const
{
    return myModel.findingAt(myView->currentIndex().row());
}

QList<int> FindingsPanel::selectedFindings() const
{
    QList<int> rows;
    for (const QModelIndex &index : myView->selectionModel()->selectedRows())
        rows += index.row();
    std::sort(rows.begin(), rows.end());
    std::transform(rows.begin(), rows.end(), rows.begin(), [this](int row) { return myModel.findingAt(row); });
    return rows;
}

FindingsPanel::Step FindingsPanel::next()
{
    const QModelIndex current = myView->currentIndex();
    const int row = current.isValid() ? current.row() + 1 : myResumeRow;
    const bool isWrapped = row >= myModel.rowCount();
    return goTo(isWrapped ? 0 : row, isWrapped);
}

FindingsPanel::Step FindingsPanel::previous()
{
    const QModelIndex current = myView->currentIndex();
    const int row = (current.isValid() ? current.row() : myResumeRow) - 1;
    const bool isWrapped = row < 0;
    return goTo(isWrapped ? myModel.rowCount() - 1 : qMin(row, myModel.rowCount() - 1), isWrapped);
}

FindingsPanel::Step FindingsPanel::goTo(int row, bool isWrapped)
{
    if (myModel.rowCount() == 0)
        return Step::None;
    const QModelIndex index = myModel.index(row, FINDING_TEXT);
    myView->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    choose(index);
    return isWrapped ? Step::Wrapped : Step::Taken;
}

void FindingsPanel::select(const QList<int> &findings, int current)
{
    const QSet<int> wanted(findings.begin(), findings.end());
    QItemSelection selection;
    for (int row = 0; row < myModel.rowCount(); ++row) {
        if (!wanted.contains(myModel.findingAt(row)))
            continue;
        const QModelIndex index = myModel.index(row, FINDING_TEXT);
        const bool isBelow = !selection.isEmpty() && selection.constLast().bottom() + 1 == row;
        if (isBelow)
            selection.last() = QItemSelectionRange(selection.constLast().topLeft(), index);
        else
            selection += QItemSelectionRange(index);
    }
    myView->selectionModel()->setCurrentIndex(myModel.index(myModel.rowOf(current), FINDING_TEXT),
                                              QItemSelectionModel::NoUpdate);
    myView->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void FindingsPanel::setExplained(bool isExplained)
{
    const bool hadFocus = myExplanation->hasFocus();
    myExplanation->setVisible(isExplained);
    explain();
    if (isExplained)
        myExplanation->setFocus(Qt::OtherFocusReason);
    else if (hadFocus)
        myView->setFocus(Qt::OtherFocusReason);
}

void FindingsPanel::addViewActions(const QList<QAction *> &actions)
{
    myView->addActions(actions);
}

void FindingsPanel::explain()
{
    const int finding = currentFinding();
    if (!myExplanation->isHidden())
        myExplanation->setHtml(finding < 0 ? QString() : findingToolTip(myModel.catalogue()->findings().at(finding)));
    Q_EMIT selectionChanged();
}

QSize FindingsPanel::sizeHint() const
{
    const int line = fontMetrics().height() + 6;
    if (myModel.findingCount() == 0)
        return { 600, line };
    return { 600,
             SHOWN_FINDINGS * line + myView->horizontalHeader()->sizeHint().height() + myFilter->sizeHint().height() };
}

void FindingsPanel::choose(const QModelIndex &index)
{
    const int product = myModel.product(index.row());
    if (product >= 0)
        Q_EMIT productChosen(product);
    Q_EMIT findingChosen(myModel.findingAt(index.row()));
}
