#ifndef PRODUCTJSON_H
#define PRODUCTJSON_H

#include "JsonWriter.h"

#include <QHash>
#include <QString>

#include <string>
#include <utility>
#include <vector>

class RVCatalogueProduct;
struct ProductValues;
template<typename T>
struct RVCatalogueAttributeRow;

/**
 * Describes products as JSON, one object each, with sorted keys.
 *
 * Keywords of attributes and font sizes repeat from product to product, so some thousand of them are cached. Only one
 * thread at a time may use an object.
 */
class ProductJson
{
public:
    /// @p fileName is that of the catalogue, for the places of products.
    explicit ProductJson(const QString &fileName) : myFileName(fileName) { }

    std::string object(const ProductValues &values);

private:
    struct Member;

    static std::vector<Member> members();
    template<typename T>
    static void addAttribute(std::vector<Member> *members, const RVCatalogueAttributeRow<T> &row);
    template<typename T>
    void writeAttribute(const ProductValues &values);
    void writeSpines(const ProductValues &values);
    void writeSpine(const ProductValues &values, int pages);
    void writeOptions(const RVCatalogueProduct &product);
    int fontSize(const ProductValues &values, int pages);

    QString myFileName;
    JsonWriter myJson;
    QHash<std::pair<QLatin1StringView, qint64>, std::string> myAttributes;
    QHash<double, int> myFontSizes; // by the width without its sides
};

#endif
