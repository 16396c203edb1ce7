#include "ProductTreeModel.h"

#include "PlainToolTip.h"

#include <QFont>

using namespace Qt::StringLiterals;

namespace {

/// The internal id of the items of groups; that of products is their group, counted from 1.
constexpr quintptr GROUP_ID = 0;
constexpr int COLUMN_COUNT = 2;

}

void ProductTreeModel::setCatalogue(const CataloguePointer &catalogue)
{
    beginResetModel();
    myCatalogue = catalogue;
    myGroups = QList<QList<int>>(catalogue ? catalogue->groups().size() : 0);
    myRows.clear();
    for (int product = 0; catalogue && product < catalogue->size(); ++product) {
        QList<int> &group = myGroups[catalogue->at(product).group];
        myRows += int(group.size());
        group += product;
    }
    endResetModel();
}

QModelIndex ProductTreeModel::indexOfProduct(int product) const
{
    if (product < 0 || product >= myRows.size())
        return QModelIndex();
    return createIndex(myRows.at(product), 0, quintptr(myCatalogue->at(product).group) + 1);
}

QModelIndex ProductTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : GROUP_ID);
}

QModelIndex ProductTreeModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == GROUP_ID)
        return QModelIndex();
    return createIndex(int(index.internalId()) - 1, 0, GROUP_ID);
}

int ProductTreeModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return int(myGroups.size());
    const bool isGroup = parent.internalId() == GROUP_ID && parent.column() == 0;
    return isGroup ? int(myGroups.at(parent.row()).size()) : 0;
}

int ProductTreeModel::columnCount(const QModelIndex &) const
{
    return COLUMN_COUNT;
}

QVariant ProductTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (index.internalId() == GROUP_ID)
        return groupData(index.row(), index.column(), role);
    return productData(myGroups.at(qsizetype(index.internalId()) - 1).at(index.row()), index.column(), role);
}

QVariant ProductTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == 0 ? tr("Type") : tr("Name");
}

QVariant ProductTreeModel::groupData(int group, int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return column == 0 ? u"%1 (%2)"_s.arg(myCatalogue->groups().at(group)).arg(myGroups.at(group).size())
                           : QString();
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        return font;
    }
    case ProductRole:
        return -1;
    default:
        return QVariant();
    }
}

QVariant ProductTreeModel::productData(int product, int column, int role) const
{
    const LoadedCatalogue::Entry &entry = myCatalogue->at(product);
    switch (role) {
    case Qt::DisplayRole:
        return column == 0 ? entry.type.orderTxtName() : entry.name;
    case Qt::ToolTipRole:
        return plainToolTip(entry.name);
    case SearchRole:
        return myCatalogue->searchText(product);
    case ProductRole:
        return product;
    default:
        return QVariant();
    }
}
