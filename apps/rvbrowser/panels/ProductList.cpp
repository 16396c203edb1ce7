#include "ProductList.h"

#include "FindingBadge.h"
#include "SearchLine.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProductList::ProductList(QWidget *parent)
    : QWidget(parent),
      mySearch(new SearchLine(u"search"_s, tr("Search products"), tr("Search type, article id, keyword, name"))),
      myFaultyOnly(new QCheckBox(tr("F&aulty products only"))),
      myView(new QTreeView),
      myClear(new QPushButton),
      myCount(new QLabel)
{
    connect(mySearch, &QLineEdit::textChanged, this, &ProductList::search);
    connect(mySearch, &SearchLine::left, this, [this] {
        setCurrentProduct(firstProduct());
        myView->setFocus(Qt::TabFocusReason);
    });
    myFaultyOnly->setObjectName(u"faultyOnly"_s);
    myFaultyOnly->setToolTip(tr("Products with an error or a warning"));
    connect(myFaultyOnly, &QCheckBox::toggled, this, &ProductList::showFaultyOnly);
    setUpView();
    myClear->setObjectName(u"clearSearch"_s);
    connect(myClear, &QPushButton::clicked, this, [this] {
        clearFilters();
        focusSearch();
    });
    myCount->setObjectName(u"count"_s);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(mySearch);
    layout->addWidget(myFaultyOnly);
    layout->addWidget(myView);
    layout->addWidget(myClear);
    layout->addWidget(myCount);
    showCount();
}

void ProductList::setUpView()
{
    myView->setObjectName(u"products"_s);
    myView->setAccessibleName(tr("Products"));
    myView->setModel(&myModel);
    myView->setItemDelegateForColumn(ProductTreeModel::FindingsColumn, new FindingBadge(this));
    myView->setUniformRowHeights(true);
    myView->setAlternatingRowColors(true);
    myView->setAllColumnsShowFocus(true);
    myView->header()->setStretchLastSection(false);
    myView->header()->setMinimumSectionSize(0);
    myView->header()->setSectionResizeMode(ProductTreeModel::NameColumn, QHeaderView::Stretch);
    myView->header()->setSectionResizeMode(ProductTreeModel::FindingsColumn, QHeaderView::Fixed);
    connect(myView->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &ProductList::choose);
}

void ProductList::setCatalogue(const CataloguePointer &catalogue)
{
    myProduct = -1;
    myModel.setCatalogue(catalogue);
    showGroups();
    fitColumns();
    showCount();
}

void ProductList::fitColumns()
{
    myView->resizeColumnToContents(ProductTreeModel::TypeColumn);
    myView->setColumnWidth(ProductTreeModel::TypeColumn,
                           qBound(fontMetrics().averageCharWidth() * 14,
                                  myView->columnWidth(ProductTreeModel::TypeColumn),
                                  fontMetrics().averageCharWidth() * 22));
    myView->setColumnHidden(ProductTreeModel::FindingsColumn, myModel.mostFindings() == 0);
    myView->setColumnWidth(ProductTreeModel::FindingsColumn,
                           FindingBadge::widthOf(myModel.mostFindings(), fontMetrics()));
}

void ProductList::choose(const QModelIndex &current)
{
    const QVariant product = current.data(ProductTreeModel::ProductRole);
    if (!product.isValid() || product.toInt() < 0 || product.toInt() == myProduct)
        return;
    myProduct = product.toInt();
    Q_EMIT productChosen(myProduct);
}

void ProductList::setCurrentProduct(int product)
{
    if (product < 0 || product >= myModel.productCount())
        return;
    if (!myModel.isFaulty(product))
        myFaultyOnly->setChecked(false);
    if (!myModel.indexOfProduct(product).isValid())
        mySearch->clear();
    const QModelIndex shown = myModel.indexOfProduct(product);
    myView->setCurrentIndex(shown);
    myView->scrollTo(shown);
}

void ProductList::keepCurrentProduct(int product)
{
    myProduct = product;
    showChosen();
}

void ProductList::clearCurrentProduct()
{
    myProduct = -1;
    myView->setCurrentIndex(QModelIndex());
}

void ProductList::focusSearch()
{
    mySearch->setFocus(Qt::ShortcutFocusReason);
    mySearch->selectAll();
}

void ProductList::search(const QString &text)
{
    myModel.setSearch(text);
    showGroups();
    showChosen();
    showCount();
}

void ProductList::showFaultyOnly(bool isFaultyOnly)
{
    myModel.setFaultyOnly(isFaultyOnly);
    showGroups();
    showChosen();
    showCount();
}

// A chosen product that is hidden stays the chosen one: searching is not choosing.
void ProductList::showChosen()
{
    myView->setCurrentIndex(myModel.indexOfProduct(myProduct));
}

void ProductList::clearFilters()
{
    mySearch->clear();
    myFaultyOnly->setChecked(false);
}

// Expands the groups one by one: to expand all would make the view remember every product as well.
void ProductList::showGroups()
{
    for (int group = 0; group < myModel.rowCount(); ++group) {
        myView->setFirstColumnSpanned(group, QModelIndex(), true);
        myView->expand(myModel.index(group, 0));
    }
}

void ProductList::showCount()
{
    const int all = myModel.productCount();
    const int shown = myModel.shownProductCount();
    myCount->setText(shown == all ? tr("%n product(s)", nullptr, all)
                                  : tr("%1 of %n product(s)", nullptr, all).arg(shown));
    myClear->setText(mySearch->text().isEmpty() ? tr("No faulty product: &show all")
                                                : tr("Nothing found: &clear the search"));
    myClear->setVisible(shown == 0 && all > 0);
}
