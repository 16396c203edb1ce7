#include "OptionsPanel.h"

#include "Bill.h"
#include "PlainToolTip.h"
#include "WheelGuard.h"

#include <RVCatalogueProduct.h>

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int SHORTEST_LIST = 10; // characters

QString noteText(const RVCatalogueProduct &product, const RVConfiguredArticleVariant &option,
                 const QString &defaultValue)
{
    QStringList texts;
    if (option.value() == defaultValue)
        texts += OptionsPanel::tr("default");
    const RVPriceClass priceClass = product.optionPriceClass(option.key(), option.value());
    if (!Bill::isCharged(option))
        texts += OptionsPanel::tr("not charged");
    else if (priceClass.isValid())
        texts += priceClass.toString();
    return texts.join(u" · "_s);
}

}

OptionsPanel::OptionsPanel(QWidget *parent)
    : QGroupBox(tr("Options"), parent),
      myLayout(new QFormLayout(this)),
      myNoOptions(new QLabel(tr("There is nothing to choose.")))
{
    myLayout->setLabelAlignment(Qt::AlignLeft);
    myLayout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    myLayout->addRow(myNoOptions);
}

void OptionsPanel::setProduct(const RVCatalogueProduct &product)
{
    myLines.clear();
    while (myLayout->rowCount() > 1)
        myLayout->removeRow(1);
    const RVConfiguredArticleVariantList options = product.options();
    const RVArticleVariants defaults = options.defaultVariants();
    for (const QString &key : options.keys())
        addLine(product, options.filter(key), defaults.value(key));
    myLayout->setRowVisible(myNoOptions, myLines.isEmpty());
    Q_EMIT variantsChanged();
}

RVArticleVariants OptionsPanel::variants() const
{
    RVArticleVariants result;
    for (const Line &line : std::as_const(myLines)) {
        const RVConfiguredArticleVariant option = line.model->option(line.values->currentIndex());
        if (option.isValid())
            result.insert(option.key(), option.value());
    }
    return result;
}

void OptionsPanel::setVariants(const RVArticleVariants &variants)
{
    for (const Line &line : std::as_const(myLines)) {
        const int row = line.model->rowOf(variants.value(line.key));
        if (row >= 0)
            line.values->setCurrentIndex(row);
    }
}

void OptionsPanel::addLine(const RVCatalogueProduct &product, const RVConfiguredArticleVariantList &options,
                           const QString &defaultValue)
{
    const QString key = options.constFirst().key();
    auto *values = new QComboBox;
    auto *model = new OptionValueModel(options, values);
    auto *note = new QLabel;
    note->setTextFormat(Qt::PlainText);
    const QString name = options.constFirst().keyName().isEmpty() ? key : options.constFirst().keyName();
    values->setObjectName("option "_L1 + key);
    values->setAccessibleName(name);
    values->setToolTip(plainToolTip(key));
    values->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    values->setMinimumContentsLength(SHORTEST_LIST);
    values->setModel(model);
    new WheelGuard(values);
    values->setCurrentIndex(model->rowOf(defaultValue));
    const auto showNote = [=] {
        note->setText(noteText(product, model->option(values->currentIndex()), defaultValue));
    };
    showNote();

    auto *field = new QHBoxLayout;
    field->addWidget(values, 1);
    field->addWidget(note);
    // Lists of one width, whatever stands beside them.
    const QString longest = tr("default") + u" · "_s + tr("not charged");
    note->setMinimumWidth(note->fontMetrics().horizontalAdvance(longest));
    // The name comes from the catalogue, where an ampersand stands for itself.
    auto *label = new QLabel(QString(name).replace(u'&', "&&"_L1) + u':');
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(values);
    myLayout->addRow(label, field);
    myLines += Line { key, model, values, note };
    connect(values, &QComboBox::currentIndexChanged, this, showNote);
    connect(values, &QComboBox::currentIndexChanged, this, &OptionsPanel::variantsChanged);
}
