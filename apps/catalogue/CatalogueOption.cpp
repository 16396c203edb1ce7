#include "CatalogueOption.h"

#include "CatalogueValue.h"

using namespace Qt::StringLiterals;

CatalogueOption::CatalogueOption(const CatalogueElement &form)
    : key(form.attribute("key"_L1)),
      keyName(form.attribute("key_name"_L1)),
      value(form.attribute("value"_L1)),
      valueName(form.attribute("value_name"_L1)),
      isPreselected(boolValue(form, "preselected"_L1).value_or(false)),
      isNotAccountable(boolValue(form, "not_accountable"_L1).value_or(false))
{ }

CatalogueOptions::CatalogueOptions(const CatalogueElement &product)
{
    bool hasPreselected = false;
    for (CatalogueElement form = product.firstChildElement("forms"_L1).firstChildElement("form"_L1); !form.isNull();
         form = form.nextSiblingElement("form"_L1)) {
        const CatalogueOption option(form);
        if (!option.isValid())
            continue;
        myOptions.push_back(option);
        hasPreselected = hasPreselected || option.isPreselected;
    }
    for (const CatalogueOption &option : myOptions) {
        if (hasPreselected ? option.isPreselected : !myDefaults.contains(option.key))
            myDefaults.insert(option.key, option.value);
    }
}

bool CatalogueOptions::isDefault(const CatalogueOption &option) const
{
    return myDefaults.value(option.key) == option.value;
}
