#include "CatalogueJson.h"

#include "Interruption.h"
#include "ProductJson.h"

#include <QMutex>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

/// Some consecutive products of a catalogue.
struct JsonLines
{
    QList<RVProductType> types; // of all of them
    qint64 count = 0; // of the shown products
    std::string text; // each line begins with the comma that ends the previous one
    QList<Problem> problems;
};

JsonLines jsonLines(const QList<RVCatalogueProduct> &products, const ProductFilter &filter, ProductJson *json)
{
    JsonLines result;
    for (const RVCatalogueProduct &product : products) {
        const ProductValues values(product);
        result.types += values.type;
        if (!filter.chooses(product))
            continue;
        result.text += ",\n" + json->object(values);
        result.problems += ShowReport::problems(values);
        ++result.count;
    }
    return result;
}

/// The writers of several threads, which keep their caches from one call to the next.
class JsonWriters
{
public:
    JsonWriters(const QString &fileName, const ProductFilter &filter) : myFileName(fileName), myFilter(filter) { }

    JsonLines lines(const QList<RVCatalogueProduct> &products)
    {
        std::unique_ptr<ProductJson> json = take();
        JsonLines result = jsonLines(products, myFilter, json.get());
        const QMutexLocker locker(&myMutex);
        myIdleWriters.push_back(std::move(json));
        return result;
    }

private:
    std::unique_ptr<ProductJson> take()
    {
        const QMutexLocker locker(&myMutex);
        if (myIdleWriters.empty())
            return std::make_unique<ProductJson>(myFileName);
        std::unique_ptr<ProductJson> result = std::move(myIdleWriters.back());
        myIdleWriters.pop_back();
        return result;
    }

    QString myFileName;
    const ProductFilter &myFilter;
    QMutex myMutex;
    std::vector<std::unique_ptr<ProductJson>> myIdleWriters;
};

}

void writeCatalogueJson(CatalogueFile &file, const ProductFilter &filter, ShowReport *report, const Console &console)
{
    JsonWriters writers(file.name(), filter);
    bool isFirst = true;
    console.write("[");
    file.reader().map([&](const QList<RVCatalogueProduct> &products) { return writers.lines(products); },
                      [&](const JsonLines &lines) {
                          const bool hasComma = isFirst && lines.count > 0;
                          console.write(std::string_view(lines.text).substr(hasComma ? 1 : 0));
                          isFirst = isFirst && lines.count == 0;
                          report->addTypes(lines.types);
                          report->addShown(lines.count, lines.problems);
                          return Interruption::signal() == 0;
                      });
    console.write("\n]\n");
    console.flush();
}
