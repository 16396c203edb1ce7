#include "RVOrderProjectInfo.h"

#include <QDataStream>
#include <QDebug>

RVOrderProjectInfo::RVOrderProjectInfo() : RVOrderProjectInfo(QString(), RVOrderId(), -1) { }

RVOrderProjectInfo::RVOrderProjectInfo(const QString &xtciSession, const RVOrderId &orderId, int orderPosition)
    : myXtciSession(xtciSession),
      myOrderId(orderId),
      myOrderPosition(orderPosition)
{ }

RVOrderProjectInfo::~RVOrderProjectInfo() = default;

RVOrderProjectInfo RVOrderProjectInfo::createDeletingProjetInfo()
{
    RVOrderProjectInfo info(QString(), RVOrderId(), 0);
    info.myDeleteProjectInfo = true;
    return info;
}

bool RVOrderProjectInfo::isValid() const noexcept
{
    return myOrderId.isValid() && myOrderPosition >= 0 && !myXtciSession.isNull();
}

void RVOrderProjectInfo::setOrderId(const RVOrderId &orderId)
{
    myOrderId = orderId;
}

QDataStream &RVOrderProjectInfo::operator<<(QDataStream &stream) const
{
    myOrderId << stream;
    return stream << qint32(myOrderPosition) << myXtciSession;
}

QDataStream &operator<<(QDataStream &stream, const RVOrderProjectInfo &info)
{
    return info << stream;
}

QDataStream &operator>>(QDataStream &stream, RVOrderProjectInfo &info)
{
    RVOrderId orderId;
    qint32 orderPosition = -1;
    QString xtciSession;
    stream >> orderId >> orderPosition >> xtciSession;
    info = RVOrderProjectInfo(xtciSession, orderId, orderPosition);
    return stream;
}

QDebug operator<<(QDebug debug, const RVOrderProjectInfo &info)
{
    return debug << info.orderId() << info.orderPosition() << info.xtciSession();
}
