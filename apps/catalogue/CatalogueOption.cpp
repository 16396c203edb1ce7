#include "CatalogueOption.h"

#include <RVXMLParser.h>

#include <QDomDocument>

using namespace Qt::StringLiterals;

namespace {

/// Asks the library's reader only for what is not written as usual.
bool boolAttribute(const CatalogueElement &element, QLatin1StringView name)
{
    const QStringView text = element.attribute(name);
    if (text.isEmpty() || text == "false"_L1)
        return false;
    if (text == "true"_L1)
        return true;
    QDomDocument document;
    QDomElement copy = document.createElement(u"form"_s);
    copy.setAttribute(name.toString(), text.toString());
    return RVXMLParser::boolAttribute(copy, name.toString(), false);
}

}

CatalogueOption::CatalogueOption(const CatalogueElement &form)
    : key(form.attribute("key"_L1)),
      keyName(form.attribute("key_name"_L1)),
      value(form.attribute("value"_L1)),
      valueName(form.attribute("value_name"_L1)),
      isPreselected(boolAttribute(form, "preselected"_L1)),
      isNotAccountable(boolAttribute(form, "not_accountable"_L1))
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
