#include "RVOrderId.h"

#include <QDataStream>
#include <QDebug>

RVOrderId::RVOrderId() = default;

RVOrderId::RVOrderId(const QString &id) : myId(id) { }

RVOrderId::~RVOrderId() = default;

void RVOrderId::clear()
{
    myId.clear();
}

QString RVOrderId::toString(bool replaceDashes) const
{
    QString text = myId;
    return replaceDashes ? text.replace(u'-', u'_') : text;
}

QDataStream &RVOrderId::operator<<(QDataStream &stream) const
{
    return stream << myId;
}

QDataStream &operator<<(QDataStream &stream, const RVOrderId &orderId)
{
    return orderId << stream;
}

QDataStream &operator>>(QDataStream &stream, RVOrderId &orderId)
{
    return stream >> orderId.myId;
}

QDebug operator<<(QDebug debug, const RVOrderId &orderId)
{
    return debug << orderId.toString();
}
