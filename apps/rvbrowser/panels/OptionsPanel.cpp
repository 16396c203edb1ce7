#include "OptionsPanel.h"

#include "Bill.h"
#include "ElidedLabel.h"
#include "FittingScrollArea.h"
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

constexpr int SHORTEST_LIST = 8; // characters
constexpr int LONGEST_NAME = 24;
constexpr int LEAST_LINES = 8; // without scrolling
constexpr int LINE_SPACING = 4;

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

QComboBox *createValues(const QString &key, const QString &name)
{
    auto *values = new QComboBox;
    values->setObjectName("option "_L1 + key);
    values->setAccessibleName(name);
    values->setToolTip(plainToolTip(key));
    values->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    values->setMinimumContentsLength(SHORTEST_LIST);
    new WheelGuard(values);
    return values;
}

// The name comes from the catalogue, where an ampersand stands for itself.
QLabel *createLabel(QString name, QComboBox *values)
{
    auto *label = new ElidedLabel(name.replace(u'&', "&&"_L1) + u':');
    label->setMostCharacters(LONGEST_NAME);
    label->setBuddy(values);
    return label;
}

// Each note asks for the same room, so that all lists are of one width.
QLabel *createNote()
{
    auto *note = new ElidedLabel(QString());
    note->setUsualText(OptionsPanel::tr("default") + u" · "_s + OptionsPanel::tr("not charged"));
    return note;
}

}

OptionsPanel::OptionsPanel(QWidget *parent)
    : QGroupBox(tr("Options"), parent),
      myArea(new FittingScrollArea),
      myLayout(new QFormLayout),
      myNoOptions(new QLabel(tr("This product has no options, so its order lines are empty.")))
{
    myLayout->setContentsMargins({});
    myLayout->setVerticalSpacing(LINE_SPACING);
    myLayout->setLabelAlignment(Qt::AlignLeft);
    myLayout->addRow(myNoOptions);
    myNoOptions->setObjectName(u"noOptions"_s);
    myNoOptions->setWordWrap(true);
    auto *lines = new QWidget;
    lines->setLayout(myLayout);
    myArea->setWidget(lines);
    // The group box has a background of its own.
    lines->setAutoFillBackground(false);
    myArea->viewport()->setAutoFillBackground(false);
    myArea->setLeastHeight(LEAST_LINES * (QComboBox().sizeHint().height() + LINE_SPACING));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(myArea);
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
    const QString keyName = options.constFirst().keyName();
    const QString name = keyName.isEmpty() ? key : keyName;
    QComboBox *values = createValues(key, name);
    auto *model = new OptionValueModel(options, values);
    values->setModel(model);
    values->setCurrentIndex(model->rowOf(defaultValue));
    QLabel *note = createNote();
    const auto showNote = [=] {
        note->setText(noteText(product, model->option(values->currentIndex()), defaultValue));
    };
    showNote();
    auto *field = new QHBoxLayout;
    field->setSpacing(myLayout->horizontalSpacing());
    field->addWidget(values, 1);
    field->addWidget(note);
    myLayout->addRow(createLabel(name, values), field);
    myLines += Line { key, model, values };
    connect(values, &QComboBox::currentIndexChanged, this, showNote);
    connect(values, &QComboBox::currentIndexChanged, this, &OptionsPanel::variantsChanged);
}
