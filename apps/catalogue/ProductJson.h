#ifndef PRODUCTJSON_H
#define PRODUCTJSON_H

#include "CatalogueProduct.h"
#include "JsonWriter.h"

#include <QHash>

#include <string>
#include <utility>

class CatalogueElement;

/**
 * Describes products as JSON, one object each, with sorted keys.
 *
 * Names of attributes and font sizes repeat from product to product, so they are kept; one writer for some ten or
 * hundred products keeps little. For one thread.
 */
class ProductJson
{
public:
    /// @p product may be without options, which are read from @p element.
    void write(const CatalogueProduct &product, const CatalogueElement &element);

    void separator(std::string_view text) { myJson.separator(text); }
    /// What was written since the last call.
    std::string take() { return myJson.take(); }

private:
    template<typename T, typename Name>
    void writeAttribute(QLatin1StringView key, const T &attribute, Name name);
    void writeSpine(const CatalogueProduct &product, int pageCount);
    int fontSize(const RVSpineConfig &spine, unsigned pages);

    JsonWriter myJson;
    QHash<std::pair<QLatin1StringView, qint64>, std::string> myAttributes;
    QHash<double, int> myFontSizes; // by the width without its sides
};

#endif
