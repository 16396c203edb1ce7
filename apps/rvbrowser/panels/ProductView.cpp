#include "ProductView.h"

#include "AttributePanel.h"
#include "CatalogueServices.h"
#include "DrawingMenu.h"
#include "DrawingWidget.h"
#include "FaultPlace.h"
#include "LargeFont.h"
#include "OptionsPanel.h"
#include "PagePanel.h"
#include "PaletteColors.h"
#include "PlainToolTip.h"
#include "PricesPanel.h"
#include "ProductFaults.h"
#include "SpinePanel.h"
#include "TextLabel.h"

#include <QComboBox>
#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// Order lines that are broken more often than this are hard to read.
constexpr int LEAST_TEXT_CHARACTERS = 60;
/// Nearly all room that is left over is for the drawings; where there are none it stays free.
constexpr int DRAWING_STRETCH = 100;

}

ProductView::ProductView(QWidget *parent)
    : FittingScrollArea(parent),
      myTitle(createTextLabel(u"title"_s)),
      myNote(createTextLabel(u"note"_s)),
      myFaults(createTextLabel(u"faults"_s)),
      myFault(createTextLabel(u"fault"_s)),
      myColumns(new QBoxLayout(QBoxLayout::LeftToRight)),
      myTexts(new QVBoxLayout),
      myDrawings(new QVBoxLayout),
      myAttributes(new AttributePanel),
      myPage(new PagePanel),
      mySpine(new SpinePanel),
      myOptions(new OptionsPanel),
      myOrderLines(new OrderLinesPanel),
      myPrices(new PricesPanel)
{
    setObjectName(u"productView"_s);
    setWidgetResizable(true);
    prepareHeader();
    setWidget(createContent());
    myLabels.add(myOptions->form());
    myLabels.add(myOrderLines->layout());
    myLabels.add(myAttributes->layout());
    connect(myOptions, &OptionsPanel::variantsChanged, this, &ProductView::showOrderLines);
    connect(myOptions, &OptionsPanel::variantsChanged, this, &ProductView::choiceChanged);
    connect(mySpine, &SpinePanel::pagesChanged, this, &ProductView::choiceChanged);
    connect(this, &ProductView::choiceChanged, this, &ProductView::showPrices);
}

void ProductView::setProduct(const CataloguePointer &catalogue, int product)
{
    showHeader(*catalogue, product, note(*catalogue, product));
    showProduct(*catalogue, product,
                catalogue->isSold(product) ? CatalogueServices::pageCounts(catalogue->at(product).type)
                                           : catalogue->product(product).pageCounts());
}

void ProductView::setSingleProduct(const CataloguePointer &catalogue, int product, const QString &note)
{
    showHeader(*catalogue, product, note);
    showProduct(*catalogue, product, catalogue->product(product).pageCounts());
}

void ProductView::showProduct(const LoadedCatalogue &catalogue, int product, const RVPageCountOrganization &pageCounts)
{
    const RVCatalogueProduct values = catalogue.product(product);
    myOffered = values.options();
    myFault->hide();
    myAttributes->setProduct(values, catalogue.words(), catalogue.check());
    myPrices->setProduct(OrderPrices(catalogue, product));
    mySpine->setProduct(values, pageCounts);
    myPage->setProduct(values);
    myOptions->setProduct(values);
    myLabels.align();
    arrangeTabOrder();
    arrangeColumns();
    stretchDrawings();
}

// The spine stands in either column.
void ProductView::stretchDrawings()
{
    for (QVBoxLayout *column : { myTexts, myDrawings })
        column->setStretchFactor(mySpine, mySpine->isDrawn() ? DRAWING_STRETCH : 0);
    myDrawings->setStretchFactor(myPage, myPage->isDrawn() ? DRAWING_STRETCH : 0);
}

void ProductView::updateProduct(const CataloguePointer &catalogue, int product)
{
    const int pages = mySpine->pages();
    const RVArticleVariants variants = myOptions->variants();
    setProduct(catalogue, product);
    mySpine->setPages(pages);
    myOptions->setVariants(variants);
}

QList<QMenu *> ProductView::drawingMenus() const
{
    QList<QMenu *> result;
    for (const DrawingWidget *drawing : findChildren<DrawingWidget *>())
        result += drawing->menu();
    return result;
}

ProductChoice ProductView::choice() const
{
    return { mySpine->pages(), myOptions->variants() };
}

void ProductView::setChoice(const ProductChoice &choice)
{
    const int before = mySpine->pages();
    mySpine->setPages(choice.pages);
    if (mySpine->pages() != choice.pages)
        mySpine->setPages(before);
    myOptions->setVariants(choice.variants);
}

void ProductView::showFinding(const LoadedCatalogue &catalogue, const RVCatalogueFinding &finding)
{
    const RVCatalogueProduct values = catalogue.product(int(finding.product()));
    const FaultPlace place = FaultPlace::of(finding, values, catalogue.check());
    myFault->hide();
    QWidget *shown = place.attribute.isEmpty() ? nullptr : myAttributes->markFault(place.attribute, finding.text());
    if (!shown)
        shown = placeFault(place, finding.text());
    // Labels that have new texts get their places first.
    widget()->layout()->activate();
    ensureWidgetVisible(shown);
}

QWidget *ProductView::placeFault(const FaultPlace &place, const QString &text)
{
    const QStringList pageCounts { u"pages"_s, u"max_pages"_s, u"page_step"_s, u"pieces"_s };
    if (place.element == "forms"_L1)
        myFaultyPart = myOptions;
    else if (place.element == "barcodes"_L1)
        myFaultyPart = myPage;
    else if (place.element == "composition"_L1 || pageCounts.contains(place.attribute))
        myFaultyPart = mySpine;
    else
        myFaultyPart = myNote;
    moveFault();
    myFault->setPalette(PaletteColors(palette()).faultPalette());
    myFault->setText(text);
    myFault->show();
    return myFault;
}

// Parts go from one column to the other when the window becomes narrower or wider.
void ProductView::moveFault()
{
    for (QVBoxLayout *layout : { myContent, myTexts, myDrawings })
        layout->removeWidget(myFault);
    for (QVBoxLayout *layout : { myContent, myTexts, myDrawings }) {
        if (const int place = layout->indexOf(myFaultyPart); place >= 0)
            layout->insertWidget(place, myFault);
    }
}

void ProductView::resizeEvent(QResizeEvent *event)
{
    FittingScrollArea::resizeEvent(event);
    arrangeColumns();
}

void ProductView::prepareHeader()
{
    myTitle->setFont(largeFont(myTitle->font(), 1.4));
    myFaults->setFont(largeFont(myFaults->font(), 1.1));
    myFault->hide();
    // A word that is wider than the window does not make all else as wide.
    for (QLabel *label : { myTitle, myNote, myFaults, myFault })
        label->setMinimumWidth(1);
}

QWidget *ProductView::createContent()
{
    // Texts need no more room than they have; drawings take what there is.
    myTexts->addWidget(myOptions);
    myTexts->addWidget(myOrderLines);
    myTexts->addWidget(myPrices);
    myTexts->addWidget(myAttributes);
    myTexts->addStretch(1);
    myDrawings->addWidget(mySpine);
    myDrawings->addWidget(myPage);
    myDrawings->addStretch(1);
    myColumns->addLayout(myTexts, 1);
    myColumns->addLayout(myDrawings, 1);
    auto *content = new QWidget;
    myContent = new QVBoxLayout(content);
    myContent->addWidget(myTitle);
    myContent->addWidget(myNote);
    myContent->addWidget(myFaults);
    myContent->addWidget(myFault);
    myContent->addLayout(myColumns, 1);
    return content;
}

void ProductView::arrangeColumns()
{
    const QMargins edges = widget()->layout()->contentsMargins();
    const int texts = qMax(myTexts->minimumSize().width(), fontMetrics().averageCharWidth() * LEAST_TEXT_CHARACTERS);
    const int drawings = qMax(mySpine->minimumSizeHint().width(), myPage->minimumSizeHint().width());
    const int needed = edges.left() + texts + myColumns->spacing() + drawings + edges.right();
    const bool isWide = needed <= viewport()->width();
    const auto direction = isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (direction == myColumns->direction())
        return;
    myColumns->setDirection(direction);
    // In one column the page count belongs to what is chosen, so it stands below the options.
    (isWide ? myTexts : myDrawings)->removeWidget(mySpine);
    (isWide ? myDrawings : myTexts)->insertWidget(isWide ? 0 : 1, mySpine);
    stretchDrawings();
    if (myFaultyPart)
        moveFault();
}

// Options are made for each product, and so they would come last.
void ProductView::arrangeTabOrder()
{
    QWidget *previous = myTitle;
    for (QComboBox *values : myOptions->findChildren<QComboBox *>()) {
        setTabOrder(previous, values);
        previous = values;
    }
}

void ProductView::showHeader(const LoadedCatalogue &catalogue, int product, const QString &note)
{
    const LoadedCatalogue::Entry &entry = catalogue.at(product);
    const QString type = entry.type.orderTxtName();
    myTitle->setText(entry.name.isEmpty() ? type : u"%1 – %2"_s.arg(type, entry.name));
    myTitle->setToolTip(plainToolTip(myTitle->text()));
    myNote->setText(note);
    myNote->setVisible(!note.isEmpty());
    myFaults->setText(ProductFaults(catalogue, product).text());
    myFaults->setToolTip(plainToolTip(myFaults->text()));
    myFaults->setHidden(myFaults->text().isEmpty());
    myFaults->setPalette(PaletteColors(palette()).faultPalette());
}

/// The reason why the product cannot be ordered; empty if there is none.
QString ProductView::note(const LoadedCatalogue &catalogue, int product)
{
    if (!catalogue.isSold(product))
        return tr("An earlier product has the same type, so this one is never offered.");
    if (!CatalogueServices::isOffered(catalogue.at(product).type))
        return tr("This product cannot be offered: it needs a type, an article id and valid page counts.");
    return QString();
}

void ProductView::showOrderLines()
{
    const RVArticleVariants variants = myOptions->variants();
    myOrderLines->setVariants(variants, myOffered.visibleNames(variants));
}

void ProductView::showPrices()
{
    myPrices->setChoice(mySpine->pages(), myOptions->variants());
}

void ProductView::copyPrices() const
{
    myPrices->copy();
}
