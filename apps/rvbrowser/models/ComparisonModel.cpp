#include "ComparisonModel.h"

#include "DiffTexts.h"
#include "PaletteColors.h"
#include "PlainToolTip.h"
#include "PrintableText.h"

#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The internal id of the items of products; that of changes is the row of their product, counted from 1.
constexpr quintptr PRODUCT_ID = 0;

bool isProduct(const QModelIndex &index)
{
    return index.internalId() == PRODUCT_ID;
}

/// Red for what is gone and green for what is new, in lines that are the one or the other, and in the columns of what
/// has changed.
QVariant color(RVChangeKind kind, bool isChange, int column)
{
    using Model = ComparisonModel;
    const bool isOld = kind == RVChangeKind::Removed || (isChange && column == Model::OldColumn);
    const bool isNew = kind == RVChangeKind::Added || (isChange && column == Model::NewColumn);
    const PaletteColors colors(QGuiApplication::palette());
    return isOld ? colors.fault() : isNew ? QVariant(colors.good()) : QVariant();
}

}

void ComparisonModel::setComparison(const ComparisonPointer &comparison)
{
    beginResetModel();
    myComparison = comparison;
    fill();
    endResetModel();
}

void ComparisonModel::setFilter(Kind kind, const QString &search)
{
    beginResetModel();
    myKind = kind;
    mySearch = search;
    fill();
    endResetModel();
}

void ComparisonModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    mySortColumn = column;
    mySortOrder = order;
    fill();
    endResetModel();
}

void ComparisonModel::fill()
{
    myShown = myComparison ? myComparison->searchIndex().find(mySearch) : QList<int>();
    myShown.removeIf([this](int product) { return !isShown(myComparison->at(product)); });
    if (mySortColumn >= 0) {
        QList<QPair<QString, int>> keys;
        for (const int product : std::as_const(myShown))
            keys += { text(myComparison->at(product), mySortColumn), product };
        const bool isAscending = mySortOrder == Qt::AscendingOrder;
        std::stable_sort(keys.begin(), keys.end(), [isAscending](const auto &a, const auto &b) {
            return isAscending ? a.first < b.first : b.first < a.first;
        });
        std::transform(keys.cbegin(), keys.cend(), myShown.begin(), [](const auto &key) { return key.second; });
    }
}

bool ComparisonModel::isShown(const ComparedProduct &product) const
{
    switch (myKind) {
    case Kind::Any:
        break;
    case Kind::Added:
        return product.kind == RVChangeKind::Added;
    case Kind::Removed:
        return product.kind == RVChangeKind::Removed;
    case Kind::Changed:
        return product.kind == RVChangeKind::Changed;
    case Kind::Renamed:
        return product.isRenamed;
    }
    return true;
}

int ComparisonModel::product(const QModelIndex &index) const
{
    if (!index.isValid())
        return -1;
    return myShown.at(isProduct(index) ? index.row() : int(index.internalId()) - 1);
}

int ComparisonModel::change(const QModelIndex &index)
{
    return !index.isValid() || isProduct(index) ? -1 : index.row();
}

QModelIndex ComparisonModel::indexOfProduct(int product) const
{
    return index(int(myShown.indexOf(product)), 0);
}

QModelIndex ComparisonModel::nextChange(const QModelIndex &current) const
{
    const QModelIndex product = current.isValid() && !isProduct(current) ? current.parent() : current;
    const int change = isProduct(current) || !current.isValid() ? 0 : current.row() + 1;
    if (product.isValid() && change < rowCount(product))
        return index(change, 0, product);
    const int row = product.isValid() ? product.row() + 1 : 0;
    if (row >= productCount())
        return QModelIndex();
    const QModelIndex next = index(row, 0);
    return rowCount(next) > 0 ? index(0, 0, next) : next;
}

QModelIndex ComparisonModel::previousChange(const QModelIndex &current) const
{
    if (!current.isValid())
        return lastChange(productCount() - 1);
    if (isProduct(current))
        return lastChange(current.row() - 1);
    return current.row() > 0 ? index(current.row() - 1, 0, current.parent()) : lastChange(current.parent().row() - 1);
}

QModelIndex ComparisonModel::lastChange(int row) const
{
    const QModelIndex product = index(row, 0);
    const int count = product.isValid() ? rowCount(product) : 0;
    return count > 0 ? index(count - 1, 0, product) : product;
}

QModelIndex ComparisonModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row()) + 1 : PRODUCT_ID);
}

QModelIndex ComparisonModel::parent(const QModelIndex &index) const
{
    if (!index.isValid() || isProduct(index))
        return QModelIndex();
    return createIndex(int(index.internalId()) - 1, 0, PRODUCT_ID);
}

int ComparisonModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return productCount();
    return isProduct(parent) && parent.column() == 0 ? int(productAt(parent.row()).changes.size()) : 0;
}

int ComparisonModel::columnCount(const QModelIndex &) const
{
    return COLUMN_COUNT;
}

QVariant ComparisonModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const ComparedProduct &compared = myComparison->at(product(index));
    const int number = change(index);
    const RVProductChange changed = number < 0 ? RVProductChange() : compared.changes.at(number);
    const QString shown = number < 0 ? text(compared, index.column()) : text(changed, index.column());
    switch (role) {
    case Qt::DisplayRole:
        return shown;
    case Qt::ToolTipRole:
        return plainToolTip(shown);
    case Qt::ForegroundRole:
        return color(number < 0 ? compared.kind : changed.kind(), number >= 0, index.column());
    default:
        return QVariant();
    }
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    const QStringList titles { tr("Product"), tr("Change"), tr("Old"), tr("New") };
    return titles.value(section);
}

QString ComparisonModel::text(const ComparedProduct &product, int column)
{
    switch (column) {
    case ProductColumn:
        return DiffTexts::product(product);
    case KindColumn:
        return DiffTexts::marker(product.kind) + u' ' + DiffTexts::kind(product);
    case OldColumn:
        return product.kind == RVChangeKind::Removed ? DiffTexts::article(product.articleId) : QString();
    case NewColumn:
        return product.kind == RVChangeKind::Added ? DiffTexts::article(product.articleId) : QString();
    default:
        return QString();
    }
}

QString ComparisonModel::text(const RVProductChange &change, int column)
{
    switch (column) {
    case ProductColumn:
        return printableText(change.label());
    case KindColumn:
        return DiffTexts::marker(change.kind()) + u' ' + DiffTexts::kind(change.kind());
    case OldColumn:
        return printableText(change.oldValue().text);
    case NewColumn:
        return printableText(change.newValue().text);
    default:
        return QString();
    }
}
