#ifndef PRODUCTLIST_H
#define PRODUCTLIST_H

#include "ProductTreeModel.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QTreeView;
class SearchLine;

/// The products of a catalogue, with a line to search them and a way to see the faulty ones alone.
class ProductList : public QWidget
{
    Q_OBJECT

public:
    explicit ProductList(QWidget *parent = nullptr);

    /// No product is chosen afterwards; the search stays.
    void setCatalogue(const CataloguePointer &catalogue);
    /// Chooses a product by its number; what hides it is cleared.
    void setCurrentProduct(int product);
    /// Chooses the same product of a catalogue that was loaded again, without productChosen(). The filters stay, even
    /// if they hide it.
    void keepCurrentProduct(int product);
    /// The number of the chosen product; -1 for none.
    int currentProduct() const { return myProduct; }
    /// No product is chosen, so that each can be chosen again.
    void clearCurrentProduct();
    /// The first product that is shown; -1 where there is none.
    int firstProduct() const { return myModel.firstProduct(); }
    void focusSearch();

Q_SIGNALS:
    void productChosen(int product);

private:
    void search(const QString &text);
    void showFaultyOnly(bool isFaultyOnly);
    void setUpView();
    void choose(const QModelIndex &current);
    void showChosen();
    void clearFilters();
    void fitColumns();
    void showGroups();
    void showCount();

    ProductTreeModel myModel;
    SearchLine *mySearch;
    QCheckBox *myFaultyOnly;
    QTreeView *myView;
    QPushButton *myClear; // shown where nothing is found
    QLabel *myCount;
    int myProduct = -1;
};

#endif
