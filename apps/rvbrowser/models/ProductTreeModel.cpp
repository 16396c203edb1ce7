#include "ProductTreeModel.h"

#include "PlainToolTip.h"

#include <QFont>

using namespace Qt::StringLiterals;

namespace {

/// The internal id of the items of groups; that of products is their group, counted from 1.
constexpr quintptr GROUP_ID = 0;

}

void ProductTreeModel::setCatalogue(const CataloguePointer &catalogue)
{
    beginResetModel();
    myCatalogue = catalogue;
    myMostFindings = 0;
    for (int product = 0; product < productCount(); ++product)
        myMostFindings = qMax(myMostFindings, myCatalogue->at(product).findings.count());
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

void ProductTreeModel::setFaultyOnly(bool isFaultyOnly)
{
    beginResetModel();
    myIsFaultyOnly = isFaultyOnly;
    fill();
    endResetModel();
}

// Groups come in the order of their first product that is shown.
void ProductTreeModel::fill()
{
    QList<int> shown = myCatalogue ? myCatalogue->searchIndex().find(mySearch) : QList<int>();
    if (myIsFaultyOnly)
        shown.removeIf([this](int product) { return !isFaulty(product); });
    myShownProducts = int(shown.size());
    myGroups.clear();
    const QStringList groups = myCatalogue ? myCatalogue->groups() : QStringList();
    myRowsOfGroups.fill(-1, groups.size());
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

bool ProductTreeModel::isFaulty(int product) const
{
    return myCatalogue->at(product).findings.worst() != RVCatalogueSeverity::Note;
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
    if (orientation != Qt::Horizontal)
        return QVariant();
    if (section == FindingsColumn) {
        const bool isText = role == Qt::ToolTipRole || role == Qt::AccessibleTextRole;
        return isText ? QVariant(tr("Findings")) : QVariant();
    }
    return role == Qt::DisplayRole ? QVariant(section == TypeColumn ? tr("Type") : tr("Name")) : QVariant();
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
    if (role != ProductRole && column == FindingsColumn)
        return findingsData(entry, role);
    switch (role) {
    case Qt::DisplayRole:
        return column == TypeColumn ? entry.type.orderTxtName() : entry.name;
    case Qt::ToolTipRole:
        return plainToolTip(entry.name);
    case ProductRole:
        return product;
    default:
        return QVariant();
    }
}

QVariant ProductTreeModel::findingsData(const LoadedCatalogue::Entry &entry, int role)
{
    if (entry.findings.count() == 0)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return entry.findings.count();
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return findingsText(entry);
    case SeverityRole:
        return int(entry.findings.worst());
    default:
        return QVariant();
    }
}

QString ProductTreeModel::findingsText(const LoadedCatalogue::Entry &entry)
{
    switch (entry.findings.worst()) {
    case RVCatalogueSeverity::Note:
        return tr("%n note(s)", nullptr, entry.findings.count());
    case RVCatalogueSeverity::Warning:
        return tr("%n finding(s), the worst of which is a warning", nullptr, entry.findings.count());
    case RVCatalogueSeverity::Error:
        break;
    }
    return tr("%n finding(s), the worst of which is an error", nullptr, entry.findings.count());
}
