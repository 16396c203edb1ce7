#include "RVCatalogueValues_p.h"

#include <RVXMLParser.h>

#include <QDomDocument>

#include <algorithm>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

/// Most numbers of a catalogue are short, and Qt's parser of bytes is enough for them. A longer number may not fit its
/// type.
bool isPlainNumber(QByteArrayView text)
{
    constexpr qsizetype longest = 9;
    return text.size() <= longest && std::all_of(text.begin(), text.end(), [](char letter) {
               return QByteArrayView("0123456789-.").contains(letter);
           });
}

/// The result of the reader that all others use; nothing if it is the default, for any default.
template<typename Read>
auto unlessDefault(const RVCatalogueElement &element, QLatin1StringView name, Read read)
        -> std::optional<std::invoke_result_t<Read, QDomElement, QString, bool>>
{
    QDomDocument document;
    QDomElement copy = document.createElement(u"element"_s);
    copy.setAttribute(name, element.attribute(name));
    const auto value = read(copy, name, false);
    if (value != read(copy, name, true))
        return std::nullopt;
    return value;
}

}

std::optional<int> rvIntValue(const RVCatalogueElement &element, QLatin1StringView name)
{
    const QByteArrayView text = element.utf8(name);
    if (text.isEmpty())
        return std::nullopt;
    if (isPlainNumber(text)) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (isNumber)
            return number;
    }
    return unlessDefault(element, name, [](const QDomElement &copy, const QString &copiedName, int defaultValue) {
        return RVXMLParser::intAttribute(copy, copiedName, defaultValue);
    });
}

std::optional<double> rvDoubleValue(const RVCatalogueElement &element, QLatin1StringView name)
{
    const QByteArrayView text = element.utf8(name);
    if (text.isEmpty())
        return std::nullopt;
    if (isPlainNumber(text)) {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (isNumber)
            return number;
    }
    return unlessDefault(element, name, [](const QDomElement &copy, const QString &copiedName, qreal defaultValue) {
        return RVXMLParser::doubleAttribute(copy, copiedName, defaultValue);
    });
}

std::optional<bool> rvBoolValue(const RVCatalogueElement &element, QLatin1StringView name)
{
    const QByteArrayView text = element.utf8(name);
    if (text == "true")
        return true;
    if (text == "false")
        return false;
    if (text.isEmpty())
        return std::nullopt;
    return unlessDefault(element, name, [](const QDomElement &copy, const QString &copiedName, bool defaultValue) {
        return RVXMLParser::boolAttribute(copy, copiedName, defaultValue);
    });
}
