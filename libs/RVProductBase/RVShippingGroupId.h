#ifndef RVSHIPPINGGROUPID_H
#define RVSHIPPINGGROUPID_H

#include "RVProductBaseExport.h"

#include <QHashFunctions>
#include <QString>

class QDataStream;
class QDebug;
class QDomElement;
class QDomNamedNodeMap;
class QJsonObject;

/**
 * The number of a shipping group: articles that carry the same one are shipped together. -1 is no group; every reader
 * that finds no number returns it. 0 is the combined transfer group.
 *
 * The number is read from and written to the products XML and JSON under "id".
 *
 * @par Example
 * @snippet tst_examples_articles.cpp RVShippingGroupId
 *
 * @ingroup pricing
 */
class RVPRODUCTBASE_EXPORT RVShippingGroupId
{
public:
    /// The name of the attribute and of the JSON key: "id".
    static const QString SHIPPING_GROUP_ID_KEY;

    /// Any number; no group by default.
    constexpr RVShippingGroupId(int id = -1) noexcept : myId(id) { }
    /// From a decimal number in the attribute, by default "id".
    /// @{
    RVShippingGroupId(const QDomElement &element, const QString &attribute);
    RVShippingGroupId(const QDomElement &element);
    RVShippingGroupId(const QDomNamedNodeMap &attributes, const QString &attribute);
    RVShippingGroupId(const QDomNamedNodeMap &attributes);
    /// @}
    /// From a number under "id"; a text is no number.
    RVShippingGroupId(const QJsonObject &object);

    /// From a decimal number, with or without blanks around it.
    static RVShippingGroupId createFrom(const QString &text);

    constexpr int id() const noexcept { return myId; } ///< The number itself, valid or not.
    /// True for everything but -1, other negative numbers included.
    constexpr bool isValid() const noexcept { return myId != -1; }
    constexpr bool isCombinedTransfer() const noexcept { return myId == 0; } ///< True for 0.

    /// "id", the name under which every document keeps the number.
    static QString defaultKey();

    QString toString() const; ///< The number in decimal.
    void toXML(QDomElement &element) const; ///< Sets the attribute "id".
    void toJSON(QJsonObject &object) const; ///< Sets "id" to the number.
    /// Writes toString(). The group is on the left of the operator, the stream on the right. createFrom() reads it
    /// back.
    QDataStream &operator<<(QDataStream &stream) const;
    /// The same with the stream on the left, for a QVariant or a QList of groups, and its reader. Text that is no
    /// decimal number is read as -1 and sets the stream's status to QDataStream::ReadCorruptData.
    /// @{
    RVPRODUCTBASE_EXPORT friend QDataStream &operator<<(QDataStream &stream, const RVShippingGroupId &shippingGroupId);
    RVPRODUCTBASE_EXPORT friend QDataStream &operator>>(QDataStream &stream, RVShippingGroupId &shippingGroupId);
    /// @}

    /// Compares the numbers.
    /// @{
    friend constexpr bool operator==(RVShippingGroupId a, RVShippingGroupId b) noexcept { return a.myId == b.myId; }
    friend constexpr bool operator==(RVShippingGroupId a, int b) noexcept { return a.myId == b; }
    friend constexpr bool operator!=(RVShippingGroupId a, RVShippingGroupId b) noexcept { return a.myId != b.myId; }
    friend constexpr bool operator<(RVShippingGroupId a, RVShippingGroupId b) noexcept { return a.myId < b.myId; }
    friend constexpr bool operator>(RVShippingGroupId a, RVShippingGroupId b) noexcept { return a.myId > b.myId; }
    friend constexpr bool operator<=(RVShippingGroupId a, RVShippingGroupId b) noexcept { return a.myId <= b.myId; }
    friend constexpr bool operator>=(RVShippingGroupId a, RVShippingGroupId b) noexcept { return a.myId >= b.myId; }
    friend size_t qHash(RVShippingGroupId id, size_t seed = 0) noexcept { return qHash(id.myId, seed); }
    /// @}

private:
    int myId;
};

Q_DECLARE_TYPEINFO(RVShippingGroupId, Q_RELOCATABLE_TYPE);

/// Prints the number as a quoted text. @relates RVShippingGroupId
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVShippingGroupId &shippingGroupId);

#endif
