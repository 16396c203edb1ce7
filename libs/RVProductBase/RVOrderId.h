#ifndef RVORDERID_H
#define RVORDERID_H

#include "RVProductBaseExport.h"

#include <QString>

class QDataStream;
class QDebug;

/// The id of an order, as the ordering service issued it. A null text is no order; an empty one is an order all the
/// same.
class RVPRODUCTBASE_EXPORT RVOrderId
{
public:
    RVOrderId();
    RVOrderId(const QString &id);
    // An id that is moved from keeps its text, one that is assigned from takes the other's.
    RVOrderId(const RVOrderId &) = default;
    RVOrderId &operator=(const RVOrderId &) = default;
    RVOrderId &operator=(RVOrderId &&other) noexcept
    {
        myId.swap(other.myId);
        return *this;
    }
    virtual ~RVOrderId();

    bool isValid() const noexcept { return !myId.isNull(); }
    void clear();

    /// The id; fit for a file name, with "_" for every "-", where @p replaceDashes is true.
    QString toString(bool replaceDashes = false) const;
    /// Writes toString(): the order is on the left, the stream on the right.
    QDataStream &operator<<(QDataStream &stream) const;

    friend bool operator==(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId == b.myId; }
    friend bool operator!=(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId != b.myId; }
    friend bool operator<(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId < b.myId; }
    friend bool operator>(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId > b.myId; }
    friend bool operator<=(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId <= b.myId; }
    friend bool operator>=(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId >= b.myId; }

private:
    QString myId;
};

Q_DECLARE_TYPEINFO(RVOrderId, Q_RELOCATABLE_TYPE);

RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVOrderId &orderId);

#endif
