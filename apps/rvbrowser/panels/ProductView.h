#ifndef PRODUCTVIEW_H
#define PRODUCTVIEW_H

#include "FittingScrollArea.h"
#include "LabelColumn.h"
#include "LoadedCatalogue.h"
#include "OrderLinesPanel.h"
#include "ProductChoice.h"

class AttributePanel;
class OptionsPanel;
class PagePanel;
class PricesPanel;
class QBoxLayout;
class QLabel;
class QMenu;
class QVBoxLayout;
class SpinePanel;
struct FaultPlace;

/// All there is to see of one product: in two columns where they have room, in one where they have not.
class ProductView : public FittingScrollArea
{
    Q_OBJECT

public:
    explicit ProductView(QWidget *parent = nullptr);

    /// With the lowest page count and the default options.
    void setProduct(const CataloguePointer &catalogue, int product);
    /// The same, but the page count and the options stay as they were chosen, as far as the product still has them.
    void updateProduct(const CataloguePointer &catalogue, int product);
    ProductChoice choice() const;
    /// Leaves as it is what the product does not offer.
    void setChoice(const ProductChoice &choice);
    /// Scrolls to where the product breaks a rule, and shows it in red there.
    void showFinding(const LoadedCatalogue &catalogue, const RVCatalogueFinding &finding);
    /// Of another catalogue than the one that is open, so no application is asked about it. The note says so.
    void setSingleProduct(const CataloguePointer &catalogue, int product, const QString &note);
    void copy(OrderLinesPanel::Line line) const { myOrderLines->copy(line); }
    void copyPrices() const;
    /// The menu of each drawing.
    QList<QMenu *> drawingMenus() const;

Q_SIGNALS:
    /// The page count or an option is another one, also because the product is.
    void choiceChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *createContent();
    void prepareHeader();
    /// Puts the text of a fault above the part of the product that it is about, and returns what shows it.
    QWidget *placeFault(const FaultPlace &place, const QString &text);
    void moveFault();
    void showProduct(const LoadedCatalogue &catalogue, int product, const RVPageCountOrganization &pageCounts);
    void showHeader(const LoadedCatalogue &catalogue, int product, const QString &note);
    static QString note(const LoadedCatalogue &catalogue, int product);
    void showOrderLines();
    void showPrices();
    /// Options first, then what stands below and beside them.
    void arrangeTabOrder();
    /// Two columns where both have room, else one below the other.
    void arrangeColumns();

    QLabel *myTitle;
    QLabel *myNote;
    QLabel *myFaults;
    QWidget *myFaultyPart = nullptr; // which myFault stands above
    QLabel *myFault; // where the finding that was chosen is not one of the attributes
    QVBoxLayout *myContent; // of all that follows
    QBoxLayout *myColumns;
    QVBoxLayout *myTexts;
    QVBoxLayout *myDrawings;
    AttributePanel *myAttributes;
    PagePanel *myPage;
    SpinePanel *mySpine;
    OptionsPanel *myOptions;
    OrderLinesPanel *myOrderLines;
    PricesPanel *myPrices;
    LabelColumn myLabels;
    RVConfiguredArticleVariantList myOffered;
};

#endif
