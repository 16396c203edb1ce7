#include "RVOptionComparison_p.h"

#include "RVCatalogueProduct.h"
#include "RVProductChanges_p.h"

#include <QColor>
#include <QHash>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// An option and its other data in the product.
struct Option
{
    RVConfiguredArticleVariant variant;
    QString name;
    QString priceClass;
    int number; // the number among the options with the same key and value
};

/// The options of a product, found by key, value and number.
class Options
{
public:
    explicit Options(const RVCatalogueProduct &product) : myVariants(product.options())
    {
        auto variant = myVariants.cbegin();
        const RVCatalogueElement forms = product.element().firstChildElement("forms"_L1);
        for (auto form = forms.firstChildElement("form"_L1); !form.isNull();
             form = form.nextSiblingElement("form"_L1)) {
            if (!form.utf8("key"_L1).isEmpty() && !form.utf8("value"_L1).isEmpty())
                append(*variant++, form);
        }
    }

    const std::vector<Option> &all() const { return myOptions; }
    /// The option; null if there is none.
    const Option *find(const Option &other) const
    {
        const QList<std::size_t> indexes = myIndexes.value({ other.variant.key(), other.variant.value() });
        return other.number < indexes.size() ? &myOptions.at(indexes.at(other.number)) : nullptr;
    }
    RVArticleVariants defaults() const { return myVariants.defaultVariants(); }

private:
    void append(const RVConfiguredArticleVariant &variant, const RVCatalogueElement &form)
    {
        QList<std::size_t> &indexes = myIndexes[{ variant.key(), variant.value() }];
        const int number = int(indexes.size());
        indexes += myOptions.size();
        myOptions.push_back({ variant, form.attribute("name"_L1), form.attribute("price_class"_L1), number });
    }

    RVConfiguredArticleVariantList myVariants;
    std::vector<Option> myOptions;
    QHash<std::pair<QString, QString>, QList<std::size_t>> myIndexes; // by key and value
};

QString colorName(const QColor &color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

RVComparedValue compared(const QColor &color)
{
    return color.isValid() ? RVComparedValue { colorName(color), colorName(color) } : RVComparedValue();
}

QString keyAndValue(const Option &option)
{
    return option.variant.key() + u':' + option.variant.value();
}

QJsonObject itemOf(const Option &option)
{
    QJsonObject result { { u"key"_s, option.variant.key() }, { u"value"_s, option.variant.value() } };
    if (option.number > 0)
        result.insert(u"number"_s, option.number + 1);
    return result;
}

void beginItem(const Option &option, RVProductChanges *changes)
{
    const QString label = option.number == 0
            ? RVChangeText::tr("Option %1").arg(keyAndValue(option))
            : RVChangeText::tr("Option %1 (number %2)").arg(keyAndValue(option), QString::number(option.number + 1));
    changes->beginItem(label, itemOf(option));
}

/// Adds an option that only one product has, with all its data.
RVComparedValue compared(const Option &option)
{
    const RVConfiguredArticleVariant &variant = option.variant;
    QStringList texts;
    for (const QString &text : { variant.keyName(), variant.visibleName(), option.priceClass }) {
        if (!text.isEmpty())
            texts += rvComparedText(text).text;
    }
    if (variant.color().isValid())
        texts += colorName(variant.color());
    if (texts.isEmpty())
        texts += rvComparedText(keyAndValue(option)).text;
    return { texts.join(", "_L1),
             QJsonObject { { u"accountable"_s, !variant.isNotAccountable() },
                           { u"color"_s, compared(variant.color()).value },
                           { u"editor_name"_s, variant.editorName() },
                           { u"key"_s, variant.key() },
                           { u"key_name"_s, variant.keyName() },
                           { u"name"_s, option.name },
                           { u"preselected"_s, variant.isDefault() },
                           { u"preview"_s, variant.preview() },
                           { u"price_class"_s, rvComparedText(option.priceClass).value },
                           { u"value"_s, variant.value() },
                           { u"value_name"_s, variant.visibleName() } } };
}

void addOne(const Option &option, const RVVersions<RVComparedValue> &values, RVProductChanges *changes)
{
    beginItem(option, changes);
    changes->add("option"_L1, QString(), values);
}

void compareTexts(const Option &before, const Option &after, RVProductChanges *changes)
{
    const RVVersions<RVConfiguredArticleVariant> both { before.variant, after.variant };
    const auto add = [&](QLatin1StringView subject, const QString &label,
                         QString (RVConfiguredArticleVariant::*text)() const) {
        changes->addText(subject, label, { (both.before.*text)(), (both.after.*text)() });
    };
    add("option.key_name"_L1, RVChangeText::tr("name of the key"), &RVConfiguredArticleVariant::keyName);
    add("option.value_name"_L1, RVChangeText::tr("name of the value"), &RVConfiguredArticleVariant::visibleName);
    add("option.editor_name"_L1, RVChangeText::tr("name in the editor"), &RVConfiguredArticleVariant::editorName);
    changes->addText("option.name"_L1, RVChangeText::tr("name of the form"), { before.name, after.name });
    add("option.preview"_L1, RVChangeText::tr("preview"), &RVConfiguredArticleVariant::preview);
}

/// The defaults of all keys before and after.
using Defaults = RVVersions<RVArticleVariants>;

/// A mark that does not change the default of its key would otherwise not be reported.
bool isHiddenDefault(const Option &option, const Defaults &defaults)
{
    const QString key = option.variant.key();
    return defaults.before.value(key) == defaults.after.value(key);
}

void compareTwo(const Option &before, const Option &after, const Defaults &defaults, RVProductChanges *changes)
{
    beginItem(after, changes);
    compareTexts(before, after, changes);
    const RVVersions<RVComparedValue> colors { compared(before.variant.color()), compared(after.variant.color()) };
    if (colors.before.value != colors.after.value)
        changes->add("option.color"_L1, RVChangeText::tr("colour"), colors);
    changes->addBoolean("option.accountable"_L1, RVChangeText::tr("accountable"),
                        { !before.variant.isNotAccountable(), !after.variant.isNotAccountable() });
    changes->addText("option.price_class"_L1, RVChangeText::tr("price class"), { before.priceClass, after.priceClass });
    if (isHiddenDefault(after, defaults))
        changes->addBoolean("option.preselected"_L1, RVChangeText::tr("preselected"),
                            { before.variant.isDefault(), after.variant.isDefault() });
}

void compareDefaults(const Defaults &defaults, const QStringList &keys, RVProductChanges *changes)
{
    for (const QString &key : keys) {
        changes->beginItem(RVChangeText::tr("Default of %1").arg(key), QJsonObject { { u"key"_s, key } });
        changes->addText("option.default"_L1, QString(), { defaults.before.value(key), defaults.after.value(key) });
    }
}

QStringList keysOf(const Options &after, const Options &before)
{
    QStringList result;
    for (const Options *options : { &after, &before }) {
        for (const Option &option : options->all())
            result += option.variant.key();
    }
    result.removeDuplicates();
    return result;
}

}

void rvCompareOptions(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes)
{
    const Options oldOptions(before);
    const Options newOptions(after);
    const Defaults defaults { oldOptions.defaults(), newOptions.defaults() };
    for (const Option &option : oldOptions.all()) {
        if (!newOptions.find(option))
            addOne(option, { compared(option), {} }, changes);
    }
    for (const Option &option : newOptions.all()) {
        if (const Option *old = oldOptions.find(option))
            compareTwo(*old, option, defaults, changes);
        else
            addOne(option, { {}, compared(option) }, changes);
    }
    compareDefaults(defaults, keysOf(newOptions, oldOptions), changes);
}
