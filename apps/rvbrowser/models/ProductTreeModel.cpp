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
    fill();
    endResetModel();
}

void ProductTreeModel::setSearch(const QString &text)
{
    beginResetModel();
    mySearch = text;
    fill();
    endResetModel();
}

// Groups come in the order of their first product that is shown.
void ProductTreeModel::fill()
{
    const QList<int> shown = myCatalogue ? myCatalogue->searchIndex().find(mySearch) : QList<int>();
    myShownProducts = int(shown.size());
    myGroups.clear();
    myRowsOfGroups.fill(-1, myCatalogue ? myCatalogue->groups().size() : 0);
    myRows.fill(-1, productCount());
    for (const int product : shown) {
        const int number = myCatalogue->at(product).group;
        if (myRowsOfGroups.at(number) < 0) {
            myRowsOfGroups[number] = int(myGroups.size());
            myGroups += Group { number, {} };
        }
        Group &group = myGroups[myRowsOfGroups.at(number)];
        myRows[product] = int(group.products.size());
        group.products += product;
    }
}

QModelIndex ProductTreeModel::indexOfProduct(int product) const
{
    if (product < 0 || product >= myRows.size() || myRows.at(product) < 0)
        return QModelIndex();
    const int group = myRowsOfGroups.at(myCatalogue->at(product).group);
    return createIndex(myRows.at(product), 0, quintptr(group) + 1);
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
    return isGroup ? int(myGroups.at(parent.row()).products.size()) : 0;
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
        return groupData(myGroups.at(index.row()), index.column(), role);
    const Group &group = myGroups.at(qsizetype(index.internalId()) - 1);
    return productData(group.products.at(index.row()), index.column(), role);
}

QVariant ProductTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == 0 ? tr("Type") : tr("Name");
}

QVariant ProductTreeModel::groupData(const Group &group, int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return column == 0 ? u"%1 (%2)"_s.arg(myCatalogue->groups().at(group.number)).arg(group.products.size())
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
    case ProductRole:
        return product;
    default:
        return QVariant();
    }
}
