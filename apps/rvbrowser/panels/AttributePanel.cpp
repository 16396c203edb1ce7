#include "AttributePanel.h"

#include "PaletteColors.h"
#include "PlainToolTip.h"
#include "TextLabel.h"

#include <QFormLayout>

#include <algorithm>

namespace {

/// A longer word is cut off, and its tool tip has all of it.
constexpr int LEAST_VALUE_CHARACTERS = 12;

}

AttributePanel::AttributePanel(QWidget *parent) : QGroupBox(tr("Attributes"), parent), myLayout(new QFormLayout(this))
{
    myLayout->setLabelAlignment(Qt::AlignLeft | Qt::AlignTop);
    myLayout->setVerticalSpacing(3);
}

void AttributePanel::setProduct(const RVCatalogueProduct &product, const AttributeWords &words,
                                const RVCatalogueCheck &check)
{
    myFacts = ProductFacts(product, words).facts(check);
    for (qsizetype i = 0; i < myFacts.size(); ++i) {
        const ProductFacts::Fact &fact = myFacts.at(i);
        if (i == myTexts.size())
            addLine(fact.label);
        show(fact, myTexts.at(i));
        myLayout->setRowVisible(int(i), !fact.text.isEmpty() || !fact.fault.isEmpty());
    }
}

void AttributePanel::addLine(const QString &label)
{
    auto *name = new QLabel(label);
    name->setAlignment(Qt::AlignLeft | Qt::AlignTop); // beside the first line of the text
    QLabel *text = createTextLabel();
    text->setMinimumWidth(text->fontMetrics().averageCharWidth() * LEAST_VALUE_CHARACTERS);
    myLayout->addRow(name, text);
    myTexts += text;
}

QWidget *AttributePanel::markFault(const QString &attribute, const QString &fault)
{
    const auto found = std::find_if(myFacts.cbegin(), myFacts.cend(),
                                    [&](const ProductFacts::Fact &fact) { return fact.attribute == attribute; });
    if (found == myFacts.cend())
        return nullptr;
    QLabel *text = myTexts.at(found - myFacts.cbegin());
    if (found->fault.isEmpty()) { // as with a note, which is none for who only looks at the product
        ProductFacts::Fact faulty = *found;
        faulty.fault = fault;
        show(faulty, text);
        myLayout->setRowVisible(text, true);
    }
    return text;
}

// The fault stands below the value, so that it is not the colour alone that tells.
void AttributePanel::show(const ProductFacts::Fact &fact, QLabel *text) const
{
    const bool isFaulty = !fact.fault.isEmpty();
    text->setText(isFaulty ? fact.text + u'\n' + fact.fault : fact.text);
    text->setToolTip(plainToolTip(text->text()));
    text->setPalette(isFaulty ? PaletteColors(palette()).faultPalette() : palette());
}
