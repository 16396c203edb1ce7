#include "FindingsPanel.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int SHOWN_LINES = 5;

}

FindingsPanel::FindingsPanel(QWidget *parent)
    : QWidget(parent),
      myNothing(new QLabel(tr("Nothing was found."))),
      myView(new QTableView)
{
    myView->setObjectName(u"findings"_s);
    myView->setAccessibleName(tr("Findings"));
    myView->setModel(&myModel);
    myView->setSelectionBehavior(QAbstractItemView::SelectRows);
    myView->setSelectionMode(QAbstractItemView::SingleSelection);
    myView->setShowGrid(false);
    myView->setWordWrap(false);
    myView->setTabKeyNavigation(false);
    myView->verticalHeader()->hide();
    myView->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    myView->verticalHeader()->setMinimumSectionSize(0);
    myView->horizontalHeader()->setHighlightSections(false);
    myView->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(myView, &QTableView::clicked, this, &FindingsPanel::choose);
    connect(myView, &QTableView::activated, this, &FindingsPanel::choose);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(myNothing);
    layout->addWidget(myView, 1);
    myNothing->setIndent(6);
    myView->hide();
    myNothing->hide();
}

void FindingsPanel::setCatalogue(const CataloguePointer &catalogue)
{
    myModel.setCatalogue(catalogue);
    const bool isEmpty = myModel.rowCount() == 0;
    myNothing->setVisible(isEmpty);
    myView->setVisible(!isEmpty);
    // Only what is visible is measured, so this is quick for many findings as well.
    myView->resizeColumnsToContents();
    const int longest = fontMetrics().averageCharWidth() * 90;
    constexpr int textColumn = 2;
    myView->setColumnWidth(textColumn, qMin(longest, myView->columnWidth(textColumn)));
    myView->horizontalHeader()->setSectionResizeMode(textColumn, QHeaderView::Stretch);
}

QString FindingsPanel::summary() const
{
    return u"%1, %2, %3"_s.arg(tr("%n error(s)", nullptr, myModel.count(RVCatalogueSeverity::Error)),
                               tr("%n warning(s)", nullptr, myModel.count(RVCatalogueSeverity::Warning)),
                               tr("%n note(s)", nullptr, myModel.count(RVCatalogueSeverity::Note)));
}

QSize FindingsPanel::sizeHint() const
{
    const int line = fontMetrics().height() + 6;
    return { 600, myModel.rowCount() == 0 ? line : SHOWN_LINES * line };
}

void FindingsPanel::choose(const QModelIndex &index)
{
    const int product = index.isValid() ? myModel.product(index.row()) : -1;
    if (product >= 0)
        Q_EMIT productChosen(product);
}
