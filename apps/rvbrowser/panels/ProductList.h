#ifndef PRODUCTLIST_H
#define PRODUCTLIST_H

#include "ProductTreeModel.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

/// The products of a catalogue, with a line to search them.
class ProductList : public QWidget
{
    Q_OBJECT

public:
    explicit ProductList(QWidget *parent = nullptr);

    /// No product is chosen afterwards; the search stays.
    void setCatalogue(const CataloguePointer &catalogue);
    /// Chooses a product by its number; a search that hides it is cleared.
    void setCurrentProduct(int product);
    /// The first product that is shown; -1 where there is none.
    int firstProduct() const { return myModel.firstProduct(); }
    void focusSearch();

Q_SIGNALS:
    void productChosen(int product);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void search(const QString &text);
    void showGroups();
    void showCount();

    ProductTreeModel myModel;
    QLineEdit *mySearch;
    QTreeView *myView;
    QPushButton *myClear; // shown where nothing is found
    QLabel *myCount;
    int myProduct = -1;
    bool myIsSearching = false;
};

#endif
