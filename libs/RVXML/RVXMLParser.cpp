#include "RVXMLParser.h"

#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QString>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <system_error>

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

// Most texts are written as in the table, and plain equality is the faster test.
template<typename Texts>
bool isOneOf(const Texts &texts, const QString &text)
{
    return std::any_of(std::begin(texts), std::end(texts), [&text](QLatin1StringView candidate) {
        return text.size() == candidate.size()
                && (text == candidate || text.compare(candidate, Qt::CaseInsensitive) == 0);
    });
}

/// The number in a short ASCII text, the form of nearly all numbers of a catalogue; Qt parses the others.
template<typename Number>
std::optional<Number> parsed(QStringView text) noexcept
{
    constexpr qsizetype MOST_LETTERS = 24;
    if (text.size() > MOST_LETTERS)
        return std::nullopt;
    char letters[MOST_LETTERS];
    char *const end = std::transform(text.begin(), text.end(), letters, [](QChar letter) { return letter.toLatin1(); });
    Number number {};
    const auto [parsedEnd, error] = std::from_chars(letters, end, number);
    if (error != std::errc() || parsedEnd != end)
        return std::nullopt;
    return number;
}

int toInt(const QString &text, int defaultValue)
{
    if (const auto plain = parsed<int>(text))
        return *plain;
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && !text.contains(QChar::Null) ? number : defaultValue; // Qt's number ends at a null character
}

qreal toDouble(const QString &text, qreal defaultValue)
{
    if (const auto plain = parsed<qreal>(text); plain && qIsFinite(*plain))
        return *plain;
    bool isNumber = false;
    const qreal number = text.toDouble(&isNumber);
    return isNumber && qIsFinite(number) ? number : defaultValue;
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
    return toDouble(element.attribute(name), defaultValue);
}

RVDistance RVXMLParser::readDistance(const QDomElement &element, const QString &name, qreal defaultValue,
                                     const RVDistanceUnit &unit)
{
    return RVDistance(doubleAttribute(element, name, defaultValue), unit);
}
