#include "ComparisonPanel.h"

#include "ComparisonFilter.h"
#include "DiffTexts.h"
#include "DiffWriter.h"
#include "LoadProgress.h"
#include "PlainToolTip.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTreeView>
#include <QVBoxLayout>

#include <iterator>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr int SHOWN_CHANGES = 8;
/// More products than these are collapsed, so that there is an overview.
constexpr int MOST_EXPANDED = 100;

/// Widths of columns, in letters; the last one gets what is left.
constexpr int COLUMN_LETTERS[] = { 56, 19, 36 };

/// Of each of the two names; the tool tip has all of them.
constexpr int NAME_LETTERS = 28;

/// The numbers of changes of a product; -1 for the product itself.
using ChosenChanges = std::map<int, QList<int>>;

QString lines(const LoadedComparison &comparison, const ChosenChanges &chosen)
{
    QString result;
    const auto writer = DiffWriter::create(u"text"_s, false, [&result](const QString &text) { result += text; });
    for (const auto &[number, changes] : chosen) {
        ComparedProduct product = comparison.at(number);
        if (!changes.contains(-1)) {
            product.changes.clear();
            for (const int change : changes)
                product.changes += comparison.at(number).changes.at(change);
        }
        writer->product(product);
    }
    return result;
}

}

ComparisonPanel::ComparisonPanel(QWidget *parent)
    : QWidget(parent),
      myFilter(new ComparisonFilter),
      mySummary(new QLabel),
      myNames(new QLabel),
      myProgress(new LoadProgress(u"comparisonProgress"_s)),
      myView(new QTreeView),
      myMessage(new QLabel),
      myClear(new QPushButton(tr("Nothing found: show &all changes"))),
      myHeader(createHeader())
{
    createView();
    myMessage->setObjectName(u"comparisonMessage"_s);
    myMessage->setWordWrap(true);
    myMessage->setAlignment(Qt::AlignCenter);
    myClear->setObjectName(u"showAllChanges"_s);
    connect(myClear, &QPushButton::clicked, myFilter, &ComparisonFilter::clear);
    connect(myFilter, &ComparisonFilter::changed, this, &ComparisonPanel::filter);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 2, 6, 0);
    layout->setSpacing(2);
    layout->addWidget(myHeader);
    layout->addWidget(myProgress);
    layout->addWidget(myView);
    layout->addWidget(myMessage, 1);
    layout->addWidget(myClear, 1, Qt::AlignCenter);
    showParts();
}

QWidget *ComparisonPanel::createHeader()
{
    mySummary->setObjectName(u"comparisonSummary"_s);
    myNames->setObjectName(u"comparedFiles"_s);
    myNames->setTextFormat(Qt::PlainText);
    for (QLabel *label : { mySummary, myNames })
        label->setMinimumWidth(1); // a narrow window stays possible
    auto *result = new QWidget;
    auto *layout = new QHBoxLayout(result);
    layout->setContentsMargins({});
    layout->addWidget(myFilter);
    layout->addWidget(mySummary);
    layout->addWidget(myNames);
    return result;
}

void ComparisonPanel::createView()
{
    myView->setObjectName(u"changes"_s);
    myView->setAccessibleName(tr("Changes"));
    myView->setModel(&myModel);
    myView->setUniformRowHeights(true);
    myView->setAlternatingRowColors(true);
    myView->setAllColumnsShowFocus(true);
    myView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    myView->header()->setSortIndicatorClearable(true);
    myView->header()->setSortIndicator(-1, Qt::AscendingOrder);
    myView->setSortingEnabled(true);
    for (int column = 0; column < int(std::size(COLUMN_LETTERS)); ++column)
        myView->setColumnWidth(column, COLUMN_LETTERS[column] * fontMetrics().averageCharWidth());
    auto *copyChosen = new QAction(tr("&Copy"), myView);
    copyChosen->setShortcut(QKeySequence::Copy);
    copyChosen->setShortcutContext(Qt::WidgetShortcut);
    connect(copyChosen, &QAction::triggered, this, &ComparisonPanel::copy);
    myView->addAction(copyChosen);
    myView->setContextMenuPolicy(Qt::ActionsContextMenu);
    // The focus alone chooses nothing, though it makes the first item the current one.
    connect(myView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection &selected) {
                if (!selected.isEmpty())
                    choose(selected.constLast().bottomRight());
            });
    connect(myView, &QTreeView::clicked, this, &ComparisonPanel::choose);
}

void ComparisonPanel::setComparison(const ComparisonPointer &comparison)
{
    const QScopedValueRollback<bool> filling(myIsFilling, true);
    const int chosen = myModel.product(myView->currentIndex());
    const ComparedProduct product = chosen < 0 ? ComparedProduct() : myComparison->at(chosen);
    myComparison = comparison;
    myModel.setComparison(comparison);
    setCurrent(chosen < 0 ? QModelIndex() : myModel.indexOfProduct(find(product)));
    showNames();
    showParts();
}

void ComparisonPanel::chooseNext()
{
    const QModelIndex next = myModel.nextChange(myView->currentIndex());
    setCurrent(next.isValid() ? next : myModel.nextChange(QModelIndex()));
}

void ComparisonPanel::choosePrevious()
{
    const QModelIndex previous = myModel.previousChange(myView->currentIndex());
    setCurrent(previous.isValid() ? previous : myModel.previousChange(QModelIndex()));
}

void ComparisonPanel::copy() const
{
    ChosenChanges chosen;
    for (const QModelIndex &index : myView->selectionModel()->selectedRows())
        chosen[myModel.product(index)] += ComparisonModel::change(index);
    if (!chosen.empty())
        QApplication::clipboard()->setText(lines(*myComparison, chosen));
}

QSize ComparisonPanel::sizeHint() const
{
    return { 600, (SHOWN_CHANGES + 2) * (fontMetrics().height() + 6) };
}

void ComparisonPanel::filter()
{
    const QScopedValueRollback<bool> filling(myIsFilling, true);
    const int chosen = myModel.product(myView->currentIndex());
    myModel.setFilter(myFilter->kind(), myFilter->search());
    setCurrent(myModel.indexOfProduct(chosen));
    showParts();
}

void ComparisonPanel::choose(const QModelIndex &index)
{
    const int product = myModel.product(index);
    if (!myIsFilling && product >= 0)
        Q_EMIT productChosen(product);
}

// A product that is hidden by the filter, or that no longer differs, leaves no choice behind.
void ComparisonPanel::setCurrent(const QModelIndex &index)
{
    if (index.isValid())
        myView->setCurrentIndex(index);
}

/// Its number in the comparison that is shown; -1 where it no longer differs.
int ComparisonPanel::find(const ComparedProduct &product) const
{
    for (int i = 0; myComparison && i < myComparison->size(); ++i) {
        if (myComparison->at(i).type() == product.type())
            return i;
    }
    return -1;
}

void ComparisonPanel::showNames()
{
    if (!myComparison)
        return;
    mySummary->setText(DiffTexts::summary(myComparison->counts()));
    const ComparedFiles &files = myComparison->files();
    const auto shortName = [this](const QString &fileName) {
        const int width = NAME_LETTERS * fontMetrics().averageCharWidth();
        return fontMetrics().elidedText(QFileInfo(fileName).fileName(), Qt::ElideMiddle, width);
    };
    myNames->setText(u"%1 → %2"_s.arg(shortName(files.before.fileName), shortName(files.after.fileName)));
    myNames->setToolTip(plainToolTip(u"%1 → %2"_s.arg(files.before.fileName, files.after.fileName)));
}

void ComparisonPanel::showParts()
{
    const bool isDifferent = myComparison && myComparison->size() > 0;
    const bool isFound = myModel.productCount() > 0;
    myHeader->setVisible(myComparison != nullptr);
    myFilter->setEnabled(isDifferent);
    myView->setVisible(isFound);
    if (isFound && myModel.productCount() <= MOST_EXPANDED)
        myView->expandAll();
    myMessage->setText(myComparison ? tr("The catalogues do not differ.") : tr("Nothing is compared."));
    myMessage->setVisible(!isDifferent);
    myClear->setVisible(isDifferent && !isFound);
}
