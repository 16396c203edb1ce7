#ifndef PRODUCTTREEMODEL_H
#define PRODUCTTREEMODEL_H

#include "LoadedCatalogue.h"

#include <QAbstractItemModel>
#include <QList>

/// The products of a catalogue that a search finds, in three columns (type, name and number of findings), below their
/// kinds of article.
class ProductTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role {
        ProductRole = Qt::UserRole, ///< the number of the product in the catalogue; -1 for a kind of article
        SeverityRole, ///< the worst RVCatalogueSeverity of a product's findings as a number; invalid where it has none
    };
    enum Column {
        TypeColumn,
        NameColumn,
        FindingsColumn,
        COLUMN_COUNT,
    };

    using QAbstractItemModel::QAbstractItemModel;

    /// Null for no products.
    void setCatalogue(const CataloguePointer &catalogue);
    /// Shows the products in which each word is found; all of them where there is no word.
    void setSearch(const QString &text);
    /// Leaves out products without an error or a warning; false at first.
    void setFaultyOnly(bool isFaultyOnly);
    int productCount() const { return myCatalogue ? myCatalogue->size() : 0; }
    int mostFindings() const { return myMostFindings; } ///< Of one product; 0 where none has any.
    int shownProductCount() const { return myShownProducts; }
    /// True for a product with an error or a warning, by its number in the catalogue.
    bool isFaulty(int product) const;
    /// The first product that is shown; -1 where there is none.
    int firstProduct() const { return myGroups.isEmpty() ? -1 : myGroups.constFirst().products.constFirst(); }
    /// The item of a product, by its number in the catalogue; invalid where it is not shown.
    QModelIndex indexOfProduct(int product) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Group
    {
        int number; // in the catalogue
        QList<int> products;
    };

    void fill();
    QVariant groupData(const Group &group, int column, int role) const;
    QVariant productData(int product, int column, int role) const;
    static QVariant findingsData(const LoadedCatalogue::Entry &entry, int role);
    static QString findingsText(const LoadedCatalogue::Entry &entry);

    CataloguePointer myCatalogue;
    QString mySearch;
    bool myIsFaultyOnly = false;
    QList<Group> myGroups; // that have products
    QList<int> myRowsOfGroups; // of each group of the catalogue
    QList<int> myRows; // of each product in its group; -1 where it is not shown
    int myShownProducts = 0;
    int myMostFindings = 0;
};

#endif
