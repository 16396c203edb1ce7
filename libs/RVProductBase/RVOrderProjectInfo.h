#ifndef RVORDERPROJECTINFO_H
#define RVORDERPROJECTINFO_H

#include "RVOrderId.h"
#include "RVProductBaseExport.h"

#include <QString>

class QDataStream;
class QDebug;

/// Ties a project of the user to the order that it was sent with, or asks for its order data to be deleted. Written to
/// streams, but without that request.
/// @par Example
/// @snippet tst_examples_articles.cpp RVOrderProjectInfo
/// @ingroup pricing
class RVPRODUCTBASE_EXPORT RVOrderProjectInfo
{
public:
    /// No project: without session and order, at an unknown position.
    RVOrderProjectInfo();
    /// @p xtciSession is the session of the order transfer, @p orderPosition counts within the order; negative is
    /// unknown.
    RVOrderProjectInfo(const QString &xtciSession, const RVOrderId &orderId, int orderPosition);
    RVOrderProjectInfo(const RVOrderProjectInfo &) = default;
    RVOrderProjectInfo(RVOrderProjectInfo &&) = default;
    RVOrderProjectInfo &operator=(const RVOrderProjectInfo &) = default;
    RVOrderProjectInfo &operator=(RVOrderProjectInfo &&) = default;
    virtual ~RVOrderProjectInfo();

    /// An info that asks for deletion; it is not valid. The request is not written to streams.
    static RVOrderProjectInfo createDeletingProjetInfo();

    QString xtciSession() const { return myXtciSession; } ///< The name of the session of the order transfer.
    RVOrderId orderId() const { return myOrderId; } ///< The order that the project was sent with.
    int orderPosition() const noexcept { return myOrderPosition; } ///< Negative if it is unknown.
    /// True only for an info that asks for deletion.
    bool deleteProjectInfo() const noexcept { return myDeleteProjectInfo; }
    /// True with a valid order, a known position and a session that is not null.
    bool isValid() const noexcept;

    void setOrderId(const RVOrderId &orderId); ///< Sets the order id only.

    /// Writes the order id, the position as a 32-bit integer and the session. The info is on the left of the operator,
    /// the stream on the right. deleteProjectInfo() is not written, so an info that is read back never asks for
    /// deletion.
    QDataStream &operator<<(QDataStream &stream) const;
    /// The same with the stream on the left, for a QVariant or a QList of them, and its reader.
    /// @{
    RVPRODUCTBASE_EXPORT friend QDataStream &operator<<(QDataStream &stream, const RVOrderProjectInfo &info);
    RVPRODUCTBASE_EXPORT friend QDataStream &operator>>(QDataStream &stream, RVOrderProjectInfo &info);
    /// @}

    /// Compares all four values.
    /// @{
    friend bool operator==(const RVOrderProjectInfo &a, const RVOrderProjectInfo &b) noexcept
    {
        return a.myXtciSession == b.myXtciSession && a.myOrderId == b.myOrderId
                && a.myOrderPosition == b.myOrderPosition && a.myDeleteProjectInfo == b.myDeleteProjectInfo;
    }
    friend bool operator!=(const RVOrderProjectInfo &a, const RVOrderProjectInfo &b) noexcept { return !(a == b); }
    /// @}

private:
    QString myXtciSession;
    RVOrderId myOrderId;
    int myOrderPosition;
    bool myDeleteProjectInfo = false;
};

Q_DECLARE_TYPEINFO(RVOrderProjectInfo, Q_RELOCATABLE_TYPE);

/// Prints order id, position and session, but not whether it asks for deletion. @relates RVOrderProjectInfo
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVOrderProjectInfo &info);

#endif
