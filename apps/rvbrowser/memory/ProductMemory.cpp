#include "ProductMemory.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr auto FILE_NAME_KEY = "file"_L1; // not read; it tells people whose the entry is
constexpr auto TYPE = "type"_L1;
constexpr auto PAGES = "pages"_L1;
constexpr auto OPTIONS = "options"_L1;

/// Keys and values in turn; any character may stand in them.
QStringList toList(const RVArticleVariants &variants)
{
    QStringList result;
    for (const QString &key : variants.keys())
        result << key << variants.value(key);
    return result;
}

RVArticleVariants fromList(const QStringList &list)
{
    RVArticleVariants result;
    for (qsizetype i = 0; i + 1 < list.size(); i += 2)
        result.insert(list.at(i), list.at(i + 1));
    return result;
}

QString absolute(const QString &fileName)
{
    return QFileInfo(fileName).absoluteFilePath();
}

}

ProductMemory::ProductMemory(Settings *settings)
    : myCatalogues(settings, u"catalogues"_s, CATALOGUE_LIMIT),
      myProducts(settings, u"products"_s, PRODUCT_LIMIT)
{ }

RVProductType ProductMemory::lastProduct(const QString &fileName) const
{
    return RVProductType(myCatalogues.values({ absolute(fileName) }).value(TYPE).toString());
}

void ProductMemory::setLastProduct(const QString &fileName, const RVProductType &type)
{
    const QString name = absolute(fileName);
    myCatalogues.setValues({ name }, { { FILE_NAME_KEY, name }, { TYPE, type.toString() } });
}

std::optional<ProductChoice> ProductMemory::choice(const QString &fileName, const RVProductType &type) const
{
    const QVariantMap values = myProducts.values({ absolute(fileName), type.toString() });
    if (values.isEmpty())
        return std::nullopt;
    return ProductChoice { values.value(PAGES).toInt(), fromList(values.value(OPTIONS).toStringList()) };
}

void ProductMemory::setChoice(const QString &fileName, const RVProductType &type, const ProductChoice &choice)
{
    const QString name = absolute(fileName);
    const QStringList options = toList(choice.variants);
    myProducts.setValues(
            { name, type.toString() },
            { { FILE_NAME_KEY, name }, { TYPE, type.toString() }, { PAGES, choice.pages }, { OPTIONS, options } });
}
