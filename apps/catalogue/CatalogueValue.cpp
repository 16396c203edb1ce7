#include "CatalogueValue.h"

#include <RVXMLParser.h>

#include <QDomDocument>

using namespace Qt::StringLiterals;

std::optional<int> intValue(const CatalogueElement &element, QLatin1StringView name)
{
    bool isNumber = false;
    const int number = element.attribute(name).toInt(&isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

std::optional<double> doubleValue(const CatalogueElement &element, QLatin1StringView name)
{
    bool isNumber = false;
    const double number = element.attribute(name).toDouble(&isNumber);
    return isNumber && qIsFinite(number) ? std::optional<double>(number) : std::nullopt;
}

// The library is only asked for what is not written as usual.
std::optional<bool> boolValue(const CatalogueElement &element, QLatin1StringView name)
{
    const QStringView text = element.attribute(name);
    if (text.isEmpty())
        return std::nullopt;
    if (text == "true"_L1)
        return true;
    if (text == "false"_L1)
        return false;
    QDomDocument document;
    const QDomElement copy = element.copy(&document, { name });
    const bool value = RVXMLParser::boolAttribute(copy, name, false);
    return value == RVXMLParser::boolAttribute(copy, name, true) ? std::optional<bool>(value) : std::nullopt;
}
