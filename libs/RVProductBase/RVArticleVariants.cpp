#include "RVArticleVariants.h"

#include "RVKomma_p.h"
#include "RVOptionPair_p.h"
#include "RVXMLParser.h"

#include <QDataStream>
#include <QDebug>
#include <QDomElement>
#include <QJsonArray>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr bool isSeparator(char16_t letter)
{
    return letter == u':' || letter == u'|' || letter == u'+';
}

/// True for most letters that can only be part of a key or a value; false for digits, which need a closer look. It is a
/// lambda, so that the compiler inlines it into a search.
constexpr auto isOrdinary = [](QChar letter) { return letter > u':' && letter < u'|'; };

/// Reads piece by piece, each with a regular expression, which does not search in broken UTF-16.
RVArticleVariants readPieces(const QString &text)
{
    RVArticleVariants result;
    for (const QString &piece : text.split(KOMMA))
        result.insert(RVArticleVariants(piece));
    return result;
}

}

RVArticleVariants::RVArticleVariants(const QString &key, const QString &value)
{
    if (!key.isEmpty() && !value.isEmpty())
        insert(key, value);
}

RVArticleVariants::RVArticleVariants(const QString &text)
{
    static const auto &separator = *new QRegularExpression(QStringLiteral("[:|+]"));
    const QStringList pieces = text.split(separator);
    if (pieces.size() == 2)
        insert(pieces.at(0), pieces.at(1));
}

RVArticleVariants::RVArticleVariants(const QDomElement &element)
{
    insert(RVXMLParser::attribute(element, QStringLiteral("key"), QLatin1StringView(""), true),
           RVXMLParser::attribute(element, QStringLiteral("value"), QLatin1StringView(""), true));
}

RVArticleVariants::RVArticleVariants(const QJsonArray &parameters)
{
    for (const auto &parameter : parameters) {
        const QStringList pieces = parameter.toString().remove(QLatin1StringView("form_parameter-")).split(u':');
        if (pieces.size() == 2)
            insert(pieces.at(0), pieces.at(1));
    }
}

RVArticleVariants::~RVArticleVariants() = default;

// Does the same as readPieces() in one pass. readPieces() takes over for texts with surrogates, because they may be
// broken.
RVArticleVariants RVArticleVariants::createFromKTX(const QString &text)
{
    RVArticleVariants result;
    const QChar *piece = text.begin();
    const QChar *separator = nullptr;
    int separators = 0;
    for (const QChar *letter = piece;; ++letter) {
        letter = std::find_if_not(letter, text.end(), isOrdinary);
        if (letter == text.end() || *letter == KOMMA) {
            if (separators == 1)
                result.myVariants.emplace(QString(piece, separator - piece),
                                          QString(separator + 1, letter - separator - 1));
            if (letter == text.end())
                return result;
            piece = letter + 1;
            separators = 0;
        } else if (isSeparator(letter->unicode())) {
            separator = letter;
            ++separators;
        } else if (letter->isSurrogate()) {
            return readPieces(text);
        }
    }
}

RVArticleVariants RVArticleVariants::blackPXWGiftBox()
{
    return RVArticleVariants(pxwGiftBoxColorKeyName(), blackPXWGiftBoxValue());
}

RVArticleVariants RVArticleVariants::confettiPXWGiftBox()
{
    return RVArticleVariants(pxwGiftBoxKeyName(), QStringLiteral("confetti"));
}

QString RVArticleVariants::coverColorKeyName()
{
    return QStringLiteral("alcolor");
}

QString RVArticleVariants::coverFotoKeyName()
{
    return QStringLiteral("coverphoto");
}

QString RVArticleVariants::pictureBoxKeyName()
{
    return QStringLiteral("boxstyle");
}

QString RVArticleVariants::flyLeafKeyColorName()
{
    return QStringLiteral("flyleafcolor");
}

QString RVArticleVariants::pxwGiftBoxColorKeyName()
{
    return QStringLiteral("giftboxcolor");
}

QString RVArticleVariants::blackPXWGiftBoxValue()
{
    return QStringLiteral("black");
}

QString RVArticleVariants::cutoutKeyName()
{
    return QStringLiteral("cutout");
}

QString RVArticleVariants::pxwGiftBoxKeyName()
{
    return QStringLiteral("variant");
}

QString RVArticleVariants::value(const QString &key, const QString &defaultValue) const
{
    return myVariants.value(key, defaultValue);
}

QStringList RVArticleVariants::keys() const
{
    QStringList result = myVariants.keys();
    result.sort();
    return result;
}

QStringList RVArticleVariants::values() const
{
    return myVariants.values();
}

bool RVArticleVariants::hasCoverColor() const
{
    return myVariants.contains(coverColorKeyName());
}

bool RVArticleVariants::hasFlyLeafColor() const
{
    return myVariants.contains(flyLeafKeyColorName());
}

bool RVArticleVariants::hasCutOut() const
{
    return myVariants.contains(cutoutKeyName());
}

bool RVArticleVariants::isValid() const
{
    return !myVariants.isEmpty();
}

bool RVArticleVariants::containsNotAccountableVariant() const
{
    return std::any_of(myVariants.begin(), myVariants.end(),
                       [](const QString &value) { return value == QLatin1StringView("notAccountable"); });
}

bool RVArticleVariants::contains(const RVArticleVariants &other) const
{
    const QStringList keys = other.keys();
    return std::all_of(keys.begin(), keys.end(), [&](const QString &key) { return value(key) == other.value(key); });
}

bool RVArticleVariants::containsAtLeastOne(const RVArticleVariants &other) const
{
    if (!isValid() || !other.isValid())
        return true;
    for (auto it = myVariants.begin(); it != myVariants.end(); ++it) {
        if (other.value(it.key()) == it.value())
            return true;
    }
    return false;
}

size_t RVArticleVariants::hash() const
{
    return qHash(myVariants, 0);
}

void RVArticleVariants::insert(const QString &key, const QString &value)
{
    myVariants.insert(key, value);
}

void RVArticleVariants::insert(const RVArticleVariants &other)
{
    myVariants.insert(other.myVariants);
}

void RVArticleVariants::splitForProduction(const QString &key, const QString &value)
{
    for (const RVOptionPair &pair : rvExpandComposite(key, value))
        insert(pair.key, pair.value);
}

QString RVArticleVariants::toKTX() const
{
    QStringList pieces;
    for (auto it = myVariants.begin(); it != myVariants.end(); ++it) {
        if (!it.key().isEmpty() && !it.value().isEmpty())
            pieces += rvJoinOption(it.key(), it.value());
    }
    return pieces.join(KOMMA);
}

RVArticleVariants RVArticleVariants::toXTCI() const
{
    RVArticleVariants result;
    for (const QString &key : keys())
        result.splitForProduction(key, value(key));
    return result;
}

QString RVArticleVariants::toOrderTxt() const
{
    QStringList pieces;
    for (auto it = myVariants.begin(); it != myVariants.end(); ++it) {
        for (const RVOptionPair &pair : rvExpandComposite(it.key(), it.value()))
            pieces += rvJoinOption(pair.key, pair.value);
    }
    return pieces.join(u';');
}

QDataStream &operator<<(QDataStream &stream, const RVArticleVariants &variants)
{
    QMap<QString, QString> sorted;
    for (auto it = variants.myVariants.begin(); it != variants.myVariants.end(); ++it)
        sorted.insert(it.key(), it.value());
    return stream << sorted;
}

QDataStream &operator>>(QDataStream &stream, RVArticleVariants &variants)
{
    QMap<QString, QString> sorted;
    stream >> sorted;
    variants.myVariants.clear();
    for (auto it = sorted.cbegin(); it != sorted.cend(); ++it)
        variants.myVariants.insert(it.key(), it.value());
    return stream;
}

QDebug operator<<(QDebug debug, const RVArticleVariants &variants)
{
    QStringList entries;
    for (const QString &key : variants.keys())
        entries += key + QLatin1StringView(" = ") + variants.value(key);
    return debug << entries.join(QLatin1StringView("; "));
}
