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
 * The number of an article, the one thing in the catalogue that can be ordered. 0 is no article, and what every reader
 * gives that finds no number.
 *
 * Read from the products XML, project files and JSON under "id", "art_id" or "article_id"; written under the first two.
 */
class RVPRODUCTBASE_EXPORT RVArticleId
{
public:
    static const QString ARTICLE_ID_KEY; ///< "id"
    static const QString ARTICLE_ART_ID_KEY; ///< "art_id"
    static const QString ARTICLE_ARTICLE_ID_KEY; ///< "article_id"

    constexpr RVArticleId(int id = 0) noexcept : myId(id) { }
    RVArticleId(const QJsonObject &object, const QString &key);
    RVArticleId(const QJsonObject &object);
    RVArticleId(const QDomElement &element, const QString &attribute);
    RVArticleId(const QDomNamedNodeMap &attributes, const QString &attribute);

    static RVArticleId fromIdAttribute(const QDomElement &element);
    static RVArticleId fromIdAttribute(const QDomNamedNodeMap &attributes);
    static RVArticleId fromArtIdAttribute(const QDomElement &element);
    static RVArticleId fromArtIdAttribute(const QDomNamedNodeMap &attributes);
    static RVArticleId fromArticleIdAttribute(const QDomElement &element);
    static RVArticleId fromArticleIdAttribute(const QDomNamedNodeMap &attributes);
    /// From "art_id" where that is valid, else from "id".
    static RVArticleId findId(const QDomElement &element);

    constexpr int id() const noexcept { return myId; }
    /// True for a number above 0.
    constexpr bool isValid() const noexcept { return myId > 0; }
    bool isFotoWithoutVariableLength() const noexcept;
    bool isAdventCalendarWithDoorBackPrint() const noexcept;
    bool isCardWithInsertedFoto() const noexcept;

    /// "id".
    static QString defaultKey();

    QString toString() const;
    void toAttribute(QDomElement &element, const QString &name) const;
    void toIdAttribute(QDomElement &element) const;
    void toArtIdAttribute(QDomElement &element) const;
    /// Appends a child element that carries the number under "id", and returns it.
    QDomElement createSubElement(QDomElement &parent, const QString &name) const;
    void toJSON(QJsonObject &object) const;
    /// Writes toString(): the article is on the left, the stream on the right. The library never reads it back.
    QDataStream &operator<<(QDataStream &stream) const;

    friend constexpr bool operator==(RVArticleId a, RVArticleId b) noexcept { return a.myId == b.myId; }
    friend constexpr bool operator==(RVArticleId a, int b) noexcept { return a.myId == b; }
    friend constexpr bool operator!=(RVArticleId a, RVArticleId b) noexcept { return a.myId != b.myId; }
    friend constexpr bool operator!=(RVArticleId a, int b) noexcept { return a.myId != b; }
    friend constexpr bool operator<(RVArticleId a, RVArticleId b) noexcept { return a.myId < b.myId; }
    friend constexpr bool operator>(RVArticleId a, RVArticleId b) noexcept { return a.myId > b.myId; }
    friend constexpr bool operator<=(RVArticleId a, RVArticleId b) noexcept { return a.myId <= b.myId; }
    friend constexpr bool operator>=(RVArticleId a, RVArticleId b) noexcept { return a.myId >= b.myId; }

private:
    int myId;
};

Q_DECLARE_TYPEINFO(RVArticleId, Q_RELOCATABLE_TYPE);

inline std::size_t qHash(const RVArticleId &articleId, std::size_t seed = 0) noexcept
{
    return qHash(articleId.id(), seed);
}

RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVArticleId &articleId);

#endif
