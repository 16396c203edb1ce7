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

/// Shows one product: in two columns if they have room, else in one.
class ProductView : public FittingScrollArea
{
    Q_OBJECT

public:
    explicit ProductView(QWidget *parent = nullptr);

    /// Shows a product with the lowest page count and the default options.
    void setProduct(const CataloguePointer &catalogue, int product);
    /// Shows a product that was loaded again: the chosen page count and options stay, as far as it still has them.
    void updateProduct(const CataloguePointer &catalogue, int product);
    ProductChoice choice() const;
    /// Sets the page count and the options; those that the product does not offer stay as they are.
    void setChoice(const ProductChoice &choice);
    /// Scrolls to the place where the product breaks a rule, and shows the finding in red there.
    void showFinding(const LoadedCatalogue &catalogue, const RVCatalogueFinding &finding);
    /// Shows a product of another catalogue than the open one, so its page counts come from the product itself. @p note
    /// says so.
    void setSingleProduct(const CataloguePointer &catalogue, int product, const QString &note);
    void copy(OrderLinesPanel::Line line) const { myOrderLines->copy(line); }
    void copyPrices() const;
    /// The menu of each drawing.
    QList<QMenu *> drawingMenus() const;

Q_SIGNALS:
    /// The page count or an option has changed, or the product has.
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
    /// Puts the options first, then all that stands below and beside them.
    void arrangeTabOrder();
    /// Arranges two columns if both have room, else one below the other.
    void arrangeColumns();
    void stretchDrawings();

    QLabel *myTitle;
    QLabel *myNote;
    QLabel *myFaults;
    QLabel *myFault; // a chosen finding that is not about an attribute
    QWidget *myFaultyPart = nullptr; // the part below myFault
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
