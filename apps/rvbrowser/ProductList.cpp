#include "ProductList.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProductList::ProductList(QWidget *parent)
    : QWidget(parent),
      mySearch(new QLineEdit),
      myView(new QTreeView),
      myCount(new QLabel)
{
    myFilter.setSourceModel(&myModel);

    mySearch->setObjectName(u"search"_s);
    mySearch->setPlaceholderText(tr("Search type, article id, keyword, name"));
    mySearch->setAccessibleName(tr("Search products"));
    mySearch->setClearButtonEnabled(true);
    mySearch->setAcceptDrops(false); // a file that is dropped here is to be opened
    mySearch->installEventFilter(this);
    connect(mySearch, &QLineEdit::textChanged, this, &ProductList::search);

    myView->setObjectName(u"products"_s);
    myView->setAccessibleName(tr("Products"));
    myView->setModel(&myFilter);
    myView->setUniformRowHeights(true);
    myView->setAlternatingRowColors(true);
    myView->setAllColumnsShowFocus(true);
    myView->header()->setStretchLastSection(true);
    connect(myView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (myIsSearching)
                    return;
                const QVariant product = current.siblingAtColumn(0).data(ProductTreeModel::ProductRole);
                if (!product.isValid() || product.toInt() < 0 || product.toInt() == myProduct)
                    return;
                myProduct = product.toInt();
                Q_EMIT productChosen(myProduct);
            });

    myCount->setObjectName(u"count"_s);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(mySearch);
    layout->addWidget(myView);
    layout->addWidget(myCount);
    showCount();
}

void ProductList::setCatalogue(const CataloguePointer &catalogue)
{
    myProduct = -1;
    myModel.setCatalogue(catalogue);
    for (int group = 0; group < myFilter.rowCount(); ++group)
        myView->setFirstColumnSpanned(group, QModelIndex(), true);
    myView->expandAll();
    myView->resizeColumnToContents(0);
    myView->setColumnWidth(0,
                           qBound(fontMetrics().averageCharWidth() * 14, myView->columnWidth(0),
                                  fontMetrics().averageCharWidth() * 22));
    showCount();
}

void ProductList::setCurrentProduct(int product)
{
    const QModelIndex index = myModel.indexOfProduct(product);
    if (!index.isValid())
        return;
    if (!myFilter.mapFromSource(index).isValid())
        mySearch->clear();
    const QModelIndex shown = myFilter.mapFromSource(index);
    myView->setCurrentIndex(shown);
    myView->scrollTo(shown);
}

int ProductList::firstProduct() const
{
    return myFilter.index(0, 0, myFilter.index(0, 0)).isValid()
            ? myFilter.index(0, 0, myFilter.index(0, 0)).data(ProductTreeModel::ProductRole).toInt()
            : -1;
}

void ProductList::focusSearch()
{
    mySearch->setFocus(Qt::ShortcutFocusReason);
    mySearch->selectAll();
}

// From the search line on to what was found, and back to all products.
bool ProductList::eventFilter(QObject *watched, QEvent *event)
{
    const auto *pressed = event->type() == QEvent::KeyPress ? dynamic_cast<QKeyEvent *>(event) : nullptr;
    if (watched != mySearch || !pressed)
        return QWidget::eventFilter(watched, event);
    switch (pressed->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        setCurrentProduct(firstProduct());
        myView->setFocus(Qt::TabFocusReason);
        return true;
    case Qt::Key_Escape:
        mySearch->clear();
        return true;
    default:
        return false;
    }
}

void ProductList::search(const QString &text)
{
    const QScopedValueRollback<bool> searching(myIsSearching, true);
    myFilter.setSearch(text);
    for (int group = 0; group < myFilter.rowCount(); ++group)
        myView->setFirstColumnSpanned(group, QModelIndex(), true);
    myView->expandAll();
    // Qt would go on to a neighbour of the chosen product where that is hidden, but searching is not choosing.
    const QModelIndex chosen = myFilter.mapFromSource(myModel.indexOfProduct(myProduct));
    myView->setCurrentIndex(chosen);
    myView->scrollTo(chosen);
    showCount();
}

void ProductList::showCount()
{
    int shown = 0;
    for (int group = 0; group < myFilter.rowCount(); ++group)
        shown += myFilter.rowCount(myFilter.index(group, 0));
    myCount->setText(tr("%n product(s)", nullptr, shown));
}
