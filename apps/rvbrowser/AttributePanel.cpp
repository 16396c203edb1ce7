#include "AttributePanel.h"

#include "ProductFacts.h"

#include <QFormLayout>
#include <QLabel>

AttributePanel::AttributePanel(QWidget *parent) : QGroupBox(tr("Attributes"), parent), myLayout(new QFormLayout(this))
{
    myLayout->setLabelAlignment(Qt::AlignLeft);
    myLayout->setVerticalSpacing(3);
}

void AttributePanel::setProduct(const RVCatalogueProduct &product, const AttributeWords &words)
{
    const QList<ProductFacts::Fact> facts = ProductFacts(product, words).facts();
    for (qsizetype i = 0; i < facts.size(); ++i) {
        if (i == myTexts.size()) {
            auto *text = new QLabel;
            text->setTextFormat(Qt::PlainText);
            text->setTextInteractionFlags(Qt::TextSelectableByMouse);
            text->setWordWrap(true);
            myLayout->addRow(facts.at(i).label, text);
            myTexts += text;
        }
        myTexts.at(i)->setText(facts.at(i).text);
        myLayout->setRowVisible(int(i), !facts.at(i).text.isEmpty());
    }
}
