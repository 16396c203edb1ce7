#include "RVArticleId.h"

#include "RVNumbers_p.h"
#include "RVXMLBuilder.h"
#include "RVXMLParser.h"

#include <QDataStream>
#include <QDebug>
#include <QDomElement>
#include <QJsonObject>

using namespace Qt::StringLiterals;

const QString RVArticleId::ARTICLE_ID_KEY = u"id"_s;
const QString RVArticleId::ARTICLE_ART_ID_KEY = u"art_id"_s;
const QString RVArticleId::ARTICLE_ARTICLE_ID_KEY = u"article_id"_s;

RVArticleId::RVArticleId(const QJsonObject &object, const QString &key) : myId(rvToInt(object.value(key)).value_or(0))
{ }

RVArticleId::RVArticleId(const QJsonObject &object) : RVArticleId(object, ARTICLE_ID_KEY) { }

RVArticleId::RVArticleId(const QDomElement &element, const QString &attribute)
    : myId(RVXMLParser::intAttribute(element, attribute, 0))
{ }

RVArticleId::RVArticleId(const QDomNamedNodeMap &attributes, const QString &attribute)
    : myId(RVXMLParser::intAttribute(attributes, attribute, 0))
{ }

RVArticleId RVArticleId::fromIdAttribute(const QDomElement &element)
{
    return RVArticleId(element, ARTICLE_ID_KEY);
}

RVArticleId RVArticleId::fromIdAttribute(const QDomNamedNodeMap &attributes)
{
    return RVArticleId(attributes, ARTICLE_ID_KEY);
}

RVArticleId RVArticleId::fromArtIdAttribute(const QDomElement &element)
{
    return RVArticleId(element, ARTICLE_ART_ID_KEY);
}

RVArticleId RVArticleId::fromArtIdAttribute(const QDomNamedNodeMap &attributes)
{
    return RVArticleId(attributes, ARTICLE_ART_ID_KEY);
}

RVArticleId RVArticleId::fromArticleIdAttribute(const QDomElement &element)
{
    return RVArticleId(element, ARTICLE_ARTICLE_ID_KEY);
}

RVArticleId RVArticleId::fromArticleIdAttribute(const QDomNamedNodeMap &attributes)
{
    return RVArticleId(attributes, ARTICLE_ARTICLE_ID_KEY);
}

RVArticleId RVArticleId::findId(const QDomElement &element)
{
    const RVArticleId id = fromArtIdAttribute(element);
    return id.isValid() ? id : fromIdAttribute(element);
}

bool RVArticleId::isFotoWithoutVariableLength() const noexcept
{
    switch (myId) {
    case 7101:
    case 7102:
    case 7103:
        return true;
    default:
        return false;
    }
}

bool RVArticleId::isAdventCalendarWithDoorBackPrint() const noexcept
{
    switch (myId) {
    case 5210:
    case 5211:
    case 5420:
    case 5421:
        return true;
    default:
        return false;
    }
}

bool RVArticleId::isCardWithInsertedFoto() const noexcept
{
    return myId == 5880;
}

QString RVArticleId::defaultKey()
{
    return ARTICLE_ID_KEY;
}

QString RVArticleId::toString() const
{
    return QString::number(myId);
}

void RVArticleId::toAttribute(QDomElement &element, const QString &name) const
{
    element.setAttribute(name, qlonglong(myId));
}

void RVArticleId::toIdAttribute(QDomElement &element) const
{
    toAttribute(element, ARTICLE_ID_KEY);
}

void RVArticleId::toArtIdAttribute(QDomElement &element) const
{
    toAttribute(element, ARTICLE_ART_ID_KEY);
}

QDomElement RVArticleId::createSubElement(QDomElement &parent, const QString &name) const
{
    QDomElement element = RVXMLBuilder::buildDomElement(parent, name);
    toIdAttribute(element);
    return element;
}

void RVArticleId::toJSON(QJsonObject &object) const
{
    object.insert(ARTICLE_ID_KEY, myId);
}

QDataStream &RVArticleId::operator<<(QDataStream &stream) const
{
    return stream << toString();
}

QDataStream &operator<<(QDataStream &stream, const RVArticleId &articleId)
{
    return articleId << stream;
}

QDataStream &operator>>(QDataStream &stream, RVArticleId &articleId)
{
    articleId.myId = rvReadNumber(stream, 0);
    return stream;
}

QDebug operator<<(QDebug debug, const RVArticleId &articleId)
{
    return debug << articleId.toString();
}
