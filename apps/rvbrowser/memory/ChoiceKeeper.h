#ifndef CHOICEKEEPER_H
#define CHOICEKEEPER_H

#include "LoadedCatalogue.h"
#include "ProductMemory.h"

#include <QObject>
#include <QTimer>

class ProductView;

/// Remembers what is chosen in a product view: a moment after each choice, and before another product is shown. Of
/// products of one type only the first is remembered, which is the one that is sold.
class ChoiceKeeper : public QObject
{
    Q_OBJECT

public:
    /// View and settings must live longer.
    ChoiceKeeper(ProductView *view, Settings *settings);

    /// Shows the product, with what was chosen when it was shown last.
    void show(const CataloguePointer &catalogue, int product);
    /// Shows what has become of the product that is shown, with what is chosen now.
    void update(const CataloguePointer &catalogue, int product);
    /// The view shows something that is not to be remembered from now on.
    void leave();
    /// The number of the product that was shown last in the catalogue; -1 where there is none.
    int lastProduct(const LoadedCatalogue &catalogue) const;
    /// Writes what waits to be written.
    void keep();

private:
    void noteChange();
    void setProduct(const LoadedCatalogue &catalogue, int product);

    ProductView *myView;
    ProductMemory myMemory;
    QTimer myTimer;
    bool myHasChange = false; // which waits to be written
    QString myFileName; // of the product that is shown; empty where it is not to be remembered
    RVProductType myType;
};

#endif
