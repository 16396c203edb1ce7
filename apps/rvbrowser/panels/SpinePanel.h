#ifndef SPINEPANEL_H
#define SPINEPANEL_H

#include "SpineTable.h"

#include <QGroupBox>

class PageCountChooser;
class QLabel;
class SpineCurve;
class SpineDrawing;
class RVCatalogueProduct;

/// The page counts of a product, and what its spine becomes at the chosen one.
class SpinePanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit SpinePanel(QWidget *parent = nullptr);

    /// The page counts may be others than the product says itself.
    void setProduct(const RVCatalogueProduct &product, const RVPageCountOrganization &pageCounts);
    /// False for a product without a spine.
    bool isDrawn() const;
    /// The chosen page count.
    int pages() const;
    void setPages(int pages);

Q_SIGNALS:
    void pagesChanged();

private:
    void showRow(int row);

    SpineTable myTable;
    qreal mySideWidth = 0;
    qreal myWidest = 0;
    PageCountChooser *myChooser;
    QLabel *myRange;
    QLabel *myText;
    SpineDrawing *myDrawing;
    SpineCurve *myCurve;
};

#endif
