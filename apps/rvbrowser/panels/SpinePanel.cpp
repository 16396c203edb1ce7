#include "SpinePanel.h"

#include "LargeFont.h"
#include "PageCountChooser.h"
#include "SpineCurve.h"
#include "SpineDrawing.h"
#include "SpineFont.h"
#include "TextLabel.h"

#include <RVCatalogueProduct.h>

#include <QHBoxLayout>
#include <QLocale>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QString rangeText(const RVPageCountOrganization &counts)
{
    if (!counts.isValid())
        return SpinePanel::tr("The page counts are not valid: from %1 to %2 in steps of %3.")
                .arg(QString::number(counts.minPages()), QString::number(counts.maxPages()),
                     QString::number(counts.pageIncrement()));
    if (counts.minPages() == counts.maxPages())
        return SpinePanel::tr("always");
    return SpinePanel::tr("%1 to %2 in steps of %3")
            .arg(QString::number(counts.minPages()), QString::number(counts.maxPages()),
                 QString::number(counts.pageIncrement()));
}

}

SpinePanel::SpinePanel(QWidget *parent)
    : QGroupBox(tr("Pages and spine"), parent),
      myChooser(new PageCountChooser),
      myRange(new QLabel),
      myText(createTextLabel(u"spineText"_s)),
      myDrawing(new SpineDrawing),
      myCurve(new SpineCurve)
{
    auto *label = new QLabel(tr("&Page count:"));
    label->setBuddy(myChooser);
    myText->setFont(largeFont(myText->font(), 1.3));
    myRange->setObjectName(u"pageRange"_s);
    myRange->setWordWrap(true);

    auto *counts = new QHBoxLayout;
    counts->addWidget(label);
    counts->addWidget(myChooser);
    counts->addWidget(myRange, 1);
    auto *drawings = new QHBoxLayout;
    drawings->addWidget(myDrawing);
    drawings->addWidget(myCurve);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(counts);
    layout->addWidget(myText);
    layout->addLayout(drawings, 1);
    connect(myChooser, &PageCountChooser::rowChanged, this, &SpinePanel::showRow);
    connect(myChooser, &PageCountChooser::rowChanged, this, &SpinePanel::pagesChanged);
    connect(myCurve, &SpineCurve::rowWanted, myChooser, &PageCountChooser::setRow);
}

void SpinePanel::setProduct(const RVCatalogueProduct &product, const RVPageCountOrganization &pageCounts)
{
    const SpineTable table(product.spine(), pageCounts);
    myWidest = qMax(table.row(0).width, table.row(table.rowCount()).width); // rows behind the last are the last
    myTable = myWidest > 0 ? table : SpineTable();
    mySideWidth = product.spine().additionalSpineWidth().value(DISTANCE_UNIT_MILLIMETRE);
    myDrawing->setTitle(product.type().toString());
    myDrawing->setVisible(isDrawn());
    myCurve->setVisible(isDrawn());
    myCurve->setTable(myTable,
                      product.name().isEmpty() ? product.type().toString()
                                               : u"%1 (%2)"_s.arg(product.name(), product.type().toString()));
    myRange->setText(rangeText(pageCounts));
    myChooser->setPageCounts(pageCounts,
                             product.articleClass().matches(ARTICLE_CLASS_PICTURE_BOX | ARTICLE_CLASS_PHOTO));
}

bool SpinePanel::isDrawn() const
{
    return myTable.rowCount() > 0;
}

int SpinePanel::pages() const
{
    return myChooser->pages();
}

void SpinePanel::setPages(int pages)
{
    myChooser->setPages(pages);
}

void SpinePanel::showRow(int row)
{
    myCurve->setRow(row);
    if (row < 0 || !isDrawn()) {
        myDrawing->clear();
        myText->setText(row < 0 ? QString() : tr("This product has no spine."));
        return;
    }
    const SpineRow spine = myTable.row(row);
    myDrawing->setSpine(spine, mySideWidth, myWidest);
    QStringList texts { tr("Spine %1 mm").arg(QLocale().toString(spine.width, 'f', 2)),
                        tr("font up to %1 pt %2").arg(QLocale().toString(spine.fontSize), SpineFont::family()) };
    if (spine.packages > 0)
        texts += tr("%n package(s) more", nullptr, spine.packages);
    if (spine.blocks > 0)
        texts += tr("%n block(s) more", nullptr, spine.blocks);
    myText->setText(texts.join(u" · "_s));
}
