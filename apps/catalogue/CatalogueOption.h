#ifndef CATALOGUEOPTION_H
#define CATALOGUEOPTION_H

#include "CatalogueBatch.h"

#include <QHash>
#include <QStringView>

#include <vector>

/// What a form of a product says of an option; valid as long as its batch is. RVConfiguredArticleVariant says the same
/// at several times the cost.
struct CatalogueOption
{
    explicit CatalogueOption(const CatalogueElement &form);

    /// True with a key and a value; what has none is no option.
    bool isValid() const { return !key.isEmpty() && !value.isEmpty(); }

    QStringView key;
    QStringView keyName;
    QStringView value;
    QStringView valueName;
    bool isPreselected;
    bool isNotAccountable;
};

/// The valid options of a product, in the order of the catalogue.
class CatalogueOptions
{
public:
    explicit CatalogueOptions(const CatalogueElement &product);

    auto begin() const { return myOptions.begin(); }
    auto end() const { return myOptions.end(); }
    /// True for what an order has where the customer chooses nothing: of the preselected options the last of every key,
    /// but where none is preselected the first of every key.
    bool isDefault(const CatalogueOption &option) const;

private:
    std::vector<CatalogueOption> myOptions;
    QHash<QStringView, QStringView> myDefaults;
};

#endif
