#include "ProductOption.h"

using namespace Qt::StringLiterals;

namespace {

/// The form, or the next one behind it, that has a key and a value; other forms are no options of a product.
RVCatalogueElement complete(RVCatalogueElement form)
{
    while (!form.isNull() && (form.utf8("key"_L1).isEmpty() || form.utf8("value"_L1).isEmpty()))
        form = form.nextSiblingElement("form"_L1);
    return form;
}

}

QString ProductOption::colorText() const
{
    const QColor color = option.color();
    if (!color.isValid())
        return QString();
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QList<ProductOption> ProductOption::of(const RVCatalogueProduct &product)
{
    const RVConfiguredArticleVariantList options = product.options();
    const RVArticleVariants defaults = options.defaultVariants();
    const RVCatalogueElement forms = product.element().firstChildElement("forms"_L1);
    RVCatalogueElement form = complete(forms.firstChildElement("form"_L1));
    QList<ProductOption> result;
    result.reserve(options.size());
    for (const RVConfiguredArticleVariant &option : options) {
        result += { option, form.attribute("name"_L1), form.attribute("price_class"_L1),
                    defaults.value(option.key()) == option.value() };
        form = complete(form.nextSiblingElement("form"_L1));
    }
    return result;
}
