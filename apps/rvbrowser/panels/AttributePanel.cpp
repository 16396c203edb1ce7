#include "AttributePanel.h"

#include "PaletteColors.h"
#include "PlainToolTip.h"

#include <QFormLayout>
#include <QLabel>
#include <QPalette>

namespace {

/// A longer word is cut off, and its tool tip has all of it.
constexpr int LEAST_CHARACTERS = 12;

}

AttributePanel::AttributePanel(QWidget *parent) : QGroupBox(tr("Attributes"), parent), myLayout(new QFormLayout(this))
{
    myLayout->setLabelAlignment(Qt::AlignLeft | Qt::AlignTop);
    myLayout->setVerticalSpacing(3);
}

void AttributePanel::setProduct(const RVCatalogueProduct &product, const AttributeWords &words)
{
    const QList<ProductFacts::Fact> facts = ProductFacts(product, words).facts();
    for (qsizetype i = 0; i < facts.size(); ++i) {
        if (i == myTexts.size())
            addLine(facts.at(i).label);
        show(facts.at(i), myTexts.at(i));
        myLayout->setRowVisible(int(i), !facts.at(i).text.isEmpty() || !facts.at(i).fault.isEmpty());
    }
}

void AttributePanel::addLine(const QString &label)
{
    auto *name = new QLabel(label);
    name->setAlignment(Qt::AlignLeft | Qt::AlignTop); // beside the first line of the text
    auto *text = new QLabel;
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setWordWrap(true);
    text->setMinimumWidth(text->fontMetrics().averageCharWidth() * LEAST_CHARACTERS);
    myLayout->addRow(name, text);
    myTexts += text;
}

// The fault stands below the value, so that it is not the colour alone that tells.
void AttributePanel::show(const ProductFacts::Fact &fact, QLabel *text) const
{
    const bool isFaulty = !fact.fault.isEmpty();
    text->setText(isFaulty ? fact.text + u'\n' + fact.fault : fact.text);
    text->setToolTip(plainToolTip(text->text()));
    QPalette colors = palette();
    if (isFaulty)
        colors.setColor(QPalette::WindowText, PaletteColors(palette()).fault());
    text->setPalette(colors);
}
