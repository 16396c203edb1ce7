#include "RVShippingGroupId.h"

#include "RVNumbers_p.h"
#include "RVXMLParser.h"

#include <QDataStream>
#include <QDebug>
#include <QDomElement>
#include <QJsonObject>

using namespace Qt::StringLiterals;

const QString RVShippingGroupId::SHIPPING_GROUP_ID_KEY = u"id"_s;

RVShippingGroupId::RVShippingGroupId(const QDomElement &element, const QString &attribute)
    : myId(RVXMLParser::intAttribute(element, attribute, -1))
{ }

RVShippingGroupId::RVShippingGroupId(const QDomElement &element) : RVShippingGroupId(element, SHIPPING_GROUP_ID_KEY) { }

RVShippingGroupId::RVShippingGroupId(const QDomNamedNodeMap &attributes, const QString &attribute)
    : myId(RVXMLParser::intAttribute(attributes, attribute, -1))
{ }

RVShippingGroupId::RVShippingGroupId(const QDomNamedNodeMap &attributes)
    : RVShippingGroupId(attributes, SHIPPING_GROUP_ID_KEY)
{ }

RVShippingGroupId::RVShippingGroupId(const QJsonObject &object)
    : myId(rvToInt(object.value(SHIPPING_GROUP_ID_KEY)).value_or(-1))
{ }

RVShippingGroupId RVShippingGroupId::createFrom(const QString &text)
{
    return rvToInt(text).value_or(-1);
}

QString RVShippingGroupId::defaultKey()
{
    return SHIPPING_GROUP_ID_KEY;
}

QString RVShippingGroupId::toString() const
{
    return QString::number(myId);
}

void RVShippingGroupId::toXML(QDomElement &element) const
{
    element.setAttribute(SHIPPING_GROUP_ID_KEY, myId);
}

void RVShippingGroupId::toJSON(QJsonObject &object) const
{
    object.insert(SHIPPING_GROUP_ID_KEY, myId);
}

QDataStream &RVShippingGroupId::operator<<(QDataStream &stream) const
{
    return stream << toString();
}

QDataStream &operator<<(QDataStream &stream, const RVShippingGroupId &shippingGroupId)
{
    return shippingGroupId << stream;
}

QDataStream &operator>>(QDataStream &stream, RVShippingGroupId &shippingGroupId)
{
    shippingGroupId.myId = rvReadNumber(stream, -1);
    return stream;
}

QDebug operator<<(QDebug debug, const RVShippingGroupId &shippingGroupId)
{
    return debug << shippingGroupId.toString();
}
