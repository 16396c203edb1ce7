#include "ProductFilterModel.h"

#include "ProductTreeModel.h"

#include <algorithm>

ProductFilterModel::ProductFilterModel(QObject *parent) : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void ProductFilterModel::setSearch(const QString &text)
{
    myWords = text.toLower().simplified().split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

// A kind of article is shown for the sake of its products.
bool ProductFilterModel::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    if (!parent.isValid())
        return myWords.isEmpty();
    const QString text = index.data(ProductTreeModel::SearchRole).toString();
    return std::all_of(myWords.begin(), myWords.end(), [&text](const QString &word) { return text.contains(word); });
}
