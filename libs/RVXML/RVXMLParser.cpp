#include "RVXMLParser.h"

#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QString>

#include <algorithm>

namespace {

constexpr QLatin1StringView TRUE_TEXTS[] = {
    QLatin1StringView("true"),
    QLatin1StringView("1"),
    QLatin1StringView("yes"),
    QLatin1StringView("on"),
};
constexpr QLatin1StringView FALSE_TEXTS[] = {
    QLatin1StringView("false"),
    QLatin1StringView("0"),
    QLatin1StringView("no"),
    QLatin1StringView("off"),
};

template<typename Texts>
bool isOneOf(const Texts &texts, const QString &text)
{
    return std::any_of(std::begin(texts), std::end(texts), [&text](QLatin1StringView candidate) {
        return text.compare(candidate, Qt::CaseInsensitive) == 0;
    });
}

int toInt(const QString &text, int defaultValue)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? number : defaultValue;
}

}

QString RVXMLParser::attribute(const QDomElement &element, const QString &name, const QString &defaultValue, bool)
{
    return element.attribute(name, defaultValue);
}

QString RVXMLParser::attribute(const QDomNamedNodeMap &attributes, const QString &name, const QString &defaultValue,
                               bool)
{
    const QDomNode node = attributes.namedItem(name);
    return node.isNull() ? defaultValue : node.nodeValue();
}

int RVXMLParser::intAttribute(const QDomElement &element, const QString &name, int defaultValue)
{
    return toInt(element.attribute(name), defaultValue);
}

int RVXMLParser::intAttribute(const QDomNamedNodeMap &attributes, const QString &name, int defaultValue)
{
    return toInt(attribute(attributes, name, QString()), defaultValue);
}

bool RVXMLParser::boolAttribute(const QDomElement &element, const QString &name, bool defaultValue)
{
    const QString text = element.attribute(name);
    if (isOneOf(TRUE_TEXTS, text))
        return true;
    if (isOneOf(FALSE_TEXTS, text))
        return false;
    return defaultValue;
}

qreal RVXMLParser::doubleAttribute(const QDomElement &element, const QString &name, qreal defaultValue)
{
    bool isNumber = false;
    const qreal number = element.attribute(name).toDouble(&isNumber);
    return isNumber && qIsFinite(number) ? number : defaultValue;
}

RVDistance RVXMLParser::readDistance(const QDomElement &element, const QString &name, qreal defaultValue,
                                     const RVDistanceUnit &unit)
{
    return RVDistance(doubleAttribute(element, name, defaultValue), unit);
}
