#ifndef RVORDERID_H
#define RVORDERID_H

#include "RVProductBaseExport.h"

#include <QHashFunctions>
#include <QString>

class QDataStream;
class QDebug;

/// The id of an order, as the ordering service issued it. A null text is no order; an empty one is an order all the
/// same. Written to streams as its text.
/// @par Example
/// @snippet tst_examples_articles.cpp RVOrderId
/// @ingroup pricing
class RVPRODUCTBASE_EXPORT RVOrderId
{
public:
    RVOrderId(); ///< No order.
    RVOrderId(const QString &id); ///< The id with this text.
    // A moved-from id keeps its text after a move construction, and takes the other's text after a move assignment.
    RVOrderId(const RVOrderId &) = default;
    RVOrderId &operator=(const RVOrderId &) = default;
    /// Exchanges the two texts.
    RVOrderId &operator=(RVOrderId &&other) noexcept
    {
        myId.swap(other.myId);
        return *this;
    }
    virtual ~RVOrderId();

    bool isValid() const noexcept { return !myId.isNull(); } ///< True also for an empty text that is not null.
    void clear(); ///< Makes it invalid.

    /// The id. If @p replaceDashes is true, it has "_" for every "-" and is fit for a file name.
    QString toString(bool replaceDashes = false) const;
    /// Writes toString(). The order is on the left of the operator, the stream on the right.
    QDataStream &operator<<(QDataStream &stream) const;
    /// The same with the stream on the left, for a QVariant or a QList of ids, and its reader.
    /// @{
    RVPRODUCTBASE_EXPORT friend QDataStream &operator<<(QDataStream &stream, const RVOrderId &orderId);
    RVPRODUCTBASE_EXPORT friend QDataStream &operator>>(QDataStream &stream, RVOrderId &orderId);
    /// @}

    /// Compares the texts; letter case matters. A null and an empty text are equal. So the invalid id equals the order
    /// with the empty id, though only the latter is valid.
    /// @{
    friend bool operator==(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId == b.myId; }
    friend bool operator!=(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId != b.myId; }
    friend bool operator<(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId < b.myId; }
    friend bool operator>(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId > b.myId; }
    friend bool operator<=(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId <= b.myId; }
    friend bool operator>=(const RVOrderId &a, const RVOrderId &b) noexcept { return a.myId >= b.myId; }
    friend size_t qHash(const RVOrderId &id, size_t seed = 0) noexcept { return qHash(id.myId, seed); }
    /// @}

private:
    QString myId;
};

Q_DECLARE_TYPEINFO(RVOrderId, Q_RELOCATABLE_TYPE);

/// Prints the id in quotes. @relates RVOrderId
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVOrderId &orderId);

#endif
