#include "ProductView.h"

#include "AttributePanel.h"
#include "CatalogueServices.h"
#include "DrawingMenu.h"
#include "DrawingWidget.h"
#include "OptionsPanel.h"
#include "PagePanel.h"
#include "PricesPanel.h"
#include "SpinePanel.h"

#include <QComboBox>
#include <QFontInfo>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ProductView::ProductView(QWidget *parent)
    : QScrollArea(parent),
      myTitle(new QLabel),
      myNote(new QLabel),
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
    setFrameShape(QFrame::NoFrame);
    QFont font = myTitle->font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * 1.4); // also where the desktop counts in pixels
    font.setBold(true);
    myTitle->setFont(font);
    myTitle->setObjectName(u"title"_s);
    myTitle->setTextFormat(Qt::PlainText);
    myTitle->setWordWrap(true);
    myTitle->setTextInteractionFlags(Qt::TextSelectableByMouse);
    myNote->setObjectName(u"note"_s);
    myNote->setTextFormat(Qt::PlainText);
    myNote->setWordWrap(true);

    // Texts need no more room than they have; drawings take what there is.
    myTexts->addWidget(myAttributes);
    myTexts->addWidget(myOptions);
    myTexts->addWidget(myOrderLines);
    myTexts->addWidget(myPrices);
    myTexts->addStretch(1);
    myDrawings->addWidget(mySpine);
    myDrawings->addWidget(myPage);
    myDrawings->addStretch();
    myColumns->addLayout(myTexts, 1);
    myColumns->addLayout(myDrawings, 1);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(myTitle);
    layout->addWidget(myNote);
    layout->addLayout(myColumns, 1);
    setWidget(content);
    connect(myOptions, &OptionsPanel::variantsChanged, this, &ProductView::showOrderLines);
    connect(myOptions, &OptionsPanel::variantsChanged, this, &ProductView::showPrices);
    connect(mySpine, &SpinePanel::pagesChanged, this, &ProductView::showPrices);
}

void ProductView::setProduct(const CataloguePointer &catalogue, int product)
{
    const RVCatalogueProduct values = catalogue->product(product);
    const RVProductType type = values.type();
    const bool isSold = catalogue->indexOf(type) == product;
    myOffered = values.options();
    showHeader(*catalogue, product);
    myAttributes->setProduct(values, catalogue->words());
    myPrices->setProduct(OrderPrices(*catalogue, product));
    mySpine->setProduct(values, isSold ? CatalogueServices::pageCounts(type) : values.pageCounts());
    myPage->setProduct(values);
    myOptions->setProduct(values);
    myDrawings->setStretchFactor(mySpine, mySpine->isDrawn() ? 1 : 0);
    myDrawings->setStretchFactor(myPage, myPage->isDrawn() ? 1 : 0);
    arrangeTabOrder();
    arrangeColumns();
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

void ProductView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    arrangeColumns();
}

void ProductView::arrangeColumns()
{
    const QMargins edges = widget()->layout()->contentsMargins();
    const int needed = edges.left() + myTexts->minimumSize().width() + myColumns->spacing()
            + myDrawings->minimumSize().width() + edges.right();
    const bool isWide = needed <= viewport()->width();
    myColumns->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
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

void ProductView::showHeader(const LoadedCatalogue &catalogue, int product)
{
    const LoadedCatalogue::Entry &entry = catalogue.at(product);
    const QString type = entry.type.orderTxtName();
    myTitle->setText(entry.name.isEmpty() ? type : u"%1 – %2"_s.arg(type, entry.name));
    QString note;
    if (catalogue.indexOf(entry.type) != product)
        note = tr("An earlier product has the same type, so this one is never offered.");
    else if (!CatalogueServices::isOffered(entry.type))
        note = tr("This product cannot be offered: it needs a type, an article id and valid page counts.");
    myNote->setText(note);
    myNote->setVisible(!note.isEmpty());
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
