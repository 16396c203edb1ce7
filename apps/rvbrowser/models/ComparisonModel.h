#ifndef COMPARISONMODEL_H
#define COMPARISONMODEL_H

#include "LoadedComparison.h"

#include <QAbstractItemModel>

/// The products that differ between two catalogues, and below each what has changed of it, in the order of the
/// catalogue or in that of a column.
class ComparisonModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { ProductColumn, KindColumn, OldColumn, NewColumn, COLUMN_COUNT };
    enum class Kind { Any, Added, Removed, Changed, Renamed };

    using QAbstractItemModel::QAbstractItemModel;

    /// Null for none. Filter and order stay.
    void setComparison(const ComparisonPointer &comparison);
    /// Shows the products of the kind in which each word of the search is found, or in what has changed of them. A
    /// renamed product is also one that has changed.
    void setFilter(Kind kind, const QString &search);
    /// Sorts the products; -1 for the order of the catalogue.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    int productCount() const { return int(myShown.size()); } ///< Those that are shown.
    /// The product's number in the comparison, also for what has changed of it; -1 without one.
    int product(const QModelIndex &index) const;
    /// The change, by its number among the changes of its product; -1 for the product itself.
    static int change(const QModelIndex &index);
    /// The item of a product; invalid where it is not shown.
    QModelIndex indexOfProduct(int product) const;
    /// The next change behind an item, or the one before it; a product that was added or removed is one itself. Invalid
    /// behind the last and before the first one. An invalid item stands before the first and behind the last one.
    QModelIndex nextChange(const QModelIndex &current) const;
    QModelIndex previousChange(const QModelIndex &current) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    void fill();
    bool isShown(const ComparedProduct &product) const;
    const ComparedProduct &productAt(int row) const { return myComparison->at(myShown.at(row)); }
    QModelIndex lastChange(int row) const;
    static QString text(const ComparedProduct &product, int column);
    static QString text(const RVProductChange &change, int column);

    ComparisonPointer myComparison;
    Kind myKind = Kind::Any;
    QString mySearch;
    int mySortColumn = -1;
    Qt::SortOrder mySortOrder = Qt::AscendingOrder;
    QList<int> myShown;
};

#endif
