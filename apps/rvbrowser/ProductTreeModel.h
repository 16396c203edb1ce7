#ifndef PRODUCTTREEMODEL_H
#define PRODUCTTREEMODEL_H

#include "LoadedCatalogue.h"

#include <QAbstractItemModel>
#include <QList>

/// The products of a catalogue, in two columns (type and name), below their kinds of article.
class ProductTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role {
        SearchRole = Qt::UserRole, ///< what a search looks at; products only
        ProductRole, ///< the number of the product in the catalogue; -1 for a kind of article
    };

    using QAbstractItemModel::QAbstractItemModel;

    /// Null for no products.
    void setCatalogue(const CataloguePointer &catalogue);
    /// The item of a product, by its number in the catalogue.
    QModelIndex indexOfProduct(int product) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVariant groupData(int group, int column, int role) const;
    QVariant productData(int product, int column, int role) const;

    CataloguePointer myCatalogue;
    QList<QList<int>> myGroups; // the products of each kind
    QList<int> myRows; // of each product in its group
};

#endif
