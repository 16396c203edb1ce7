#include "RVXMLParser.h"

#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QString>

#include <algorithm>
#include <cfloat>
#include <iterator>
#include <limits>
#include <optional>

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

// Most texts are written as in the table, and plain equality is quicker to tell.
template<typename Texts>
bool isOneOf(const Texts &texts, const QString &text)
{
    return std::any_of(std::begin(texts), std::end(texts), [&text](QLatin1StringView candidate) {
        return text.size() == candidate.size()
                && (text == candidate || text.compare(candidate, Qt::CaseInsensitive) == 0);
    });
}

/// A number such as "154" or "-290.5": its digits without the point, and how many of them stand behind it.
struct PlainNumber
{
    qint64 digits = 0;
    qsizetype decimals = 0;
    bool isNegative = false;
};

/// A double holds all numbers of this length.
constexpr qsizetype MOST_LETTERS = 15;
constexpr double POWERS_OF_TEN[] = { 1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13 };

/// A register with more digits than a double, as on i386, rounds a quotient twice, which may then be off by a bit.
constexpr bool ROUNDS_ONCE = FLT_EVAL_METHOD == 0;

static_assert(std::size(POWERS_OF_TEN) == MOST_LETTERS - 1, "one letter is the point, and one stands before it");

/// Reads what nearly every number of a catalogue looks like; the other ones are Qt's to judge. No number that it reads
/// has more digits than a double holds, so one division gives the nearest one.
std::optional<PlainNumber> parsePlain(QStringView text) noexcept
{
    PlainNumber number;
    number.isNegative = text.startsWith(u'-');
    const QStringView digits = number.isNegative ? text.sliced(1) : text;
    if (digits.isEmpty() || digits.size() > MOST_LETTERS)
        return std::nullopt;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        const QChar letter = digits[i];
        if (letter >= u'0' && letter <= u'9')
            number.digits = number.digits * 10 + (letter.unicode() - u'0');
        else if (letter == u'.' && number.decimals == 0 && i > 0 && i + 1 < digits.size())
            number.decimals = digits.size() - i - 1;
        else
            return std::nullopt;
    }
    return number;
}

int toInt(const QString &text, int defaultValue)
{
    if (const auto plain = parsePlain(text);
        plain && plain->decimals == 0 && plain->digits <= std::numeric_limits<int>::max())
        return int(plain->isNegative ? -plain->digits : plain->digits);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && !text.contains(QChar::Null) ? number : defaultValue; // Qt's number ends at a null character
}

qreal toDouble(const QString &text, qreal defaultValue)
{
    if (const auto plain = parsePlain(text); plain && (ROUNDS_ONCE || plain->decimals == 0)) {
        const double number = double(plain->digits) / POWERS_OF_TEN[plain->decimals];
        return plain->isNegative ? -number : number;
    }
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
