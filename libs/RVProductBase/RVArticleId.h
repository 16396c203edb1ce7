#ifndef RVARTICLEID_H
#define RVARTICLEID_H

#include "RVProductBaseExport.h"

#include <QHash>
#include <QString>

#include <cstddef>

class QDataStream;
class QDebug;
class QDomElement;
class QDomNamedNodeMap;
class QJsonObject;

/**
 * The number of an article, the one thing in the catalogue that can be ordered. 0 is no article; every reader that
 * finds no number returns it.
 *
 * It is read from the products XML, project files and JSON under "id", "art_id" or "article_id", and written under the
 * first two.
 *
 * @par Example
 * @snippet tst_examples_articles.cpp RVArticleId
 *
 * @ingroup articles
 */
class RVPRODUCTBASE_EXPORT RVArticleId
{
public:
    static const QString ARTICLE_ID_KEY; ///< "id"
    static const QString ARTICLE_ART_ID_KEY; ///< "art_id"
    static const QString ARTICLE_ARTICLE_ID_KEY; ///< "article_id"

    /// Any number, also an invalid one.
    constexpr RVArticleId(int id = 0) noexcept : myId(id) { }
    /// From a number under @p key, by default "id"; a text is no number.
    /// @{
    RVArticleId(const QJsonObject &object, const QString &key);
    RVArticleId(const QJsonObject &object);
    /// @}
    /// From a decimal number in the attribute.
    /// @{
    RVArticleId(const QDomElement &element, const QString &attribute);
    RVArticleId(const QDomNamedNodeMap &attributes, const QString &attribute);
    /// @}

    /// From the attribute "id", "art_id" or "article_id".
    /// @{
    static RVArticleId fromIdAttribute(const QDomElement &element);
    static RVArticleId fromIdAttribute(const QDomNamedNodeMap &attributes);
    static RVArticleId fromArtIdAttribute(const QDomElement &element);
    static RVArticleId fromArtIdAttribute(const QDomNamedNodeMap &attributes);
    static RVArticleId fromArticleIdAttribute(const QDomElement &element);
    static RVArticleId fromArticleIdAttribute(const QDomNamedNodeMap &attributes);
    /// @}
    /// From "art_id" if that is valid, otherwise from "id".
    static RVArticleId findId(const QDomElement &element);

    /// The number itself, valid or not.
    constexpr int id() const noexcept { return myId; }
    /// True for a number above 0.
    constexpr bool isValid() const noexcept { return myId > 0; }
    bool isFotoWithoutVariableLength() const noexcept; ///< 7101 to 7103
    bool isAdventCalendarWithDoorBackPrint() const noexcept; ///< 5210, 5211, 5420, 5421
    bool isCardWithInsertedFoto() const noexcept; ///< 5880

    /// "id", the name under which most documents keep the number.
    static QString defaultKey();

    QString toString() const; ///< The number in decimal.
    /// Sets the attribute @p name, "id" or "art_id".
    /// @{
    void toAttribute(QDomElement &element, const QString &name) const;
    void toIdAttribute(QDomElement &element) const;
    void toArtIdAttribute(QDomElement &element) const;
    /// @}
    /// Appends a child element that carries the number under "id", and returns it.
    QDomElement createSubElement(QDomElement &parent, const QString &name) const;
    void toJSON(QJsonObject &object) const; ///< Sets "id" to the number.
    /// Writes toString(): the article is on the left, the stream on the right.
    QDataStream &operator<<(QDataStream &stream) const;
    /// The same with the stream on the left, for a QVariant or a QList of articles, and its reader. Text that is no
    /// decimal number is read as 0 and sets the stream's status to QDataStream::ReadCorruptData.
    /// @{
    RVPRODUCTBASE_EXPORT friend QDataStream &operator<<(QDataStream &stream, const RVArticleId &articleId);
    RVPRODUCTBASE_EXPORT friend QDataStream &operator>>(QDataStream &stream, RVArticleId &articleId);
    /// @}

    /// Compares the numbers.
    /// @{
    friend constexpr bool operator==(RVArticleId a, RVArticleId b) noexcept { return a.myId == b.myId; }
    friend constexpr bool operator==(RVArticleId a, int b) noexcept { return a.myId == b; }
    friend constexpr bool operator!=(RVArticleId a, RVArticleId b) noexcept { return a.myId != b.myId; }
    friend constexpr bool operator!=(RVArticleId a, int b) noexcept { return a.myId != b; }
    friend constexpr bool operator<(RVArticleId a, RVArticleId b) noexcept { return a.myId < b.myId; }
    friend constexpr bool operator>(RVArticleId a, RVArticleId b) noexcept { return a.myId > b.myId; }
    friend constexpr bool operator<=(RVArticleId a, RVArticleId b) noexcept { return a.myId <= b.myId; }
    friend constexpr bool operator>=(RVArticleId a, RVArticleId b) noexcept { return a.myId >= b.myId; }
    /// @}

private:
    int myId;
};

Q_DECLARE_TYPEINFO(RVArticleId, Q_RELOCATABLE_TYPE);

/// Hashes the number. @relates RVArticleId
inline std::size_t qHash(const RVArticleId &articleId, std::size_t seed = 0) noexcept
{
    return qHash(articleId.id(), seed);
}

/// Prints the number as a quoted text. @relates RVArticleId
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVArticleId &articleId);

#endif
