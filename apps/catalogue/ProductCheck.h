#ifndef PRODUCTCHECK_H
#define PRODUCTCHECK_H

#include "CatalogueBatch.h"
#include "CatalogueProduct.h"
#include "CatalogueRule.h"
#include "KeywordCheck.h"

#include <QHash>
#include <QList>
#include <QRect>
#include <QSet>

#include <utility>
#include <vector>

/// What a check of one product came to, and what must not come twice in a file.
struct CheckedProduct
{
    FilePosition position;
    RVProductType type; ///< unknown where it is missing
    QString typeText; ///< as it was written
    int articleId = 0; ///< 0 where there is no valid one
    QList<CatalogueFinding> findings; ///< in the order of the file
};

/**
 * Checks products one by one, by the rules that concern one product alone.
 *
 * Where one mistake breaks several rules, it is found once: what cannot be read is not judged further.
 *
 * Keyword lists repeat from product to product, so their faults are kept; one check for some ten or hundred products
 * keeps little. For one thread.
 */
class ProductCheck
{
public:
    explicit ProductCheck(const QSet<QString> &disabledRules);

    /// @p number counts the products of the file from 0.
    CheckedProduct check(const CatalogueElement &product, qint64 number);

private:
    struct OptionKey
    {
        CatalogueElement first;
        CatalogueElement preselected; ///< the first that is
        QSet<QStringView> values;
        bool hasTwoDefaults;
    };
    struct PlacedBarcode
    {
        CatalogueElement element;
        QRect area;
        int page;
    };

    void add(Rule rule, const CatalogueElement &element, const QString &text);

    void checkIds(const CatalogueElement &product);
    void checkParts(const CatalogueElement &product);
    void checkFirst(const CatalogueElement &first, QLatin1StringView name);
    void checkKeywords(const CatalogueElement &product);
    bool checkNumber(const CatalogueElement &element, QLatin1StringView name, bool isWhole);
    bool checkBoolean(const CatalogueElement &element, QLatin1StringView name);
    bool checkUnit(const CatalogueElement &element);
    void checkPageCounts(const CatalogueElement &product);
    void checkSpine(const CatalogueElement &product);
    void checkSpineWidths(const CatalogueElement &spine, bool isBound, bool isUnitKnown);
    void checkOptions(const CatalogueElement &product);
    void checkOption(const CatalogueElement &form);
    void checkDefaults(const CatalogueElement &forms);
    void checkDefault(const CatalogueElement &form, bool isPreselected, OptionKey *key);
    void checkBarcodes(const CatalogueElement &product);
    void checkBarcodePage(const CatalogueElement &barcode, int page);
    void checkBarcodeArea(const PlacedBarcode &barcode, std::vector<PlacedBarcode> *placed);
    bool isBeyondPage(const QRect &area) const;
    void checkPriceClass(const CatalogueElement &element, QLatin1StringView name);

    QSet<QString> myDisabledRules;
    QHash<std::pair<QLatin1StringView, QString>, QList<KeywordFault>> myKeywordFaults;
    CatalogueProduct myProduct; // the one that is being checked
    CheckedProduct myResult;
    qint64 myNumber = 0;
    bool myHasPageCounts = false; // that make sense
};

#endif
