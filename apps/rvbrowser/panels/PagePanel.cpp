#include "PagePanel.h"

#include "PageDrawing.h"

#include <RVCatalogueProduct.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

PagePanel::PagePanel(QWidget *parent)
    : QGroupBox(tr("Page"), parent),
      myPages(new QComboBox),
      myPagesLabel(new QLabel(tr("&Barcodes of page:"))),
      myText(new QLabel),
      myDrawing(new PageDrawing)
{
    myPages->setObjectName(u"barcodePages"_s);
    myPagesLabel->setBuddy(myPages);
    myText->setObjectName(u"pageText"_s);
    myText->setWordWrap(true);
    auto *pages = new QHBoxLayout;
    pages->addWidget(myPagesLabel);
    pages->addWidget(myPages);
    pages->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(myText);
    layout->addLayout(pages);
    layout->addWidget(myDrawing, 1);
    connect(myPages, &QComboBox::currentIndexChanged, this,
            [this] { myDrawing->setPageNumber(myPages->currentData().toInt()); });
}

void PagePanel::setProduct(const RVCatalogueProduct &product)
{
    const PageGeometry geometry(product);
    myDrawing->setPage(geometry, product.type().toString());
    myDrawing->setVisible(geometry.isValid());
    showPages(geometry);
    if (!geometry.isValid()) {
        myText->setText(tr("A page is drawn for one size class and one orientation; this product does not have them."));
        return;
    }
    const auto isOutside = [&geometry](const RVBarcodeDefinition &barcode) {
        return !QRectF(geometry.usableRect()).contains(geometry.barcodeRect(barcode));
    };
    QString text = tr("The page size is assumed: the catalogue tells only size class and orientation.");
    if (std::any_of(geometry.barcodes().begin(), geometry.barcodes().end(), isOutside))
        text += u' ' + tr("A barcode lies outside of it (red).");
    myText->setText(text);
}

bool PagePanel::isDrawn() const
{
    return !myDrawing->isHidden();
}

void PagePanel::showPages(const PageGeometry &geometry)
{
    const QList<int> pages = geometry.barcodePages();
    const bool isShown = geometry.isValid() && !pages.isEmpty();
    {
        const QSignalBlocker blocker(myPages);
        myPages->clear();
        for (const int page : pages)
            myPages->addItem(QString::number(page), page);
    }
    myPages->setVisible(isShown);
    myPagesLabel->setVisible(isShown);
    myDrawing->setPageNumber(pages.value(0));
}
