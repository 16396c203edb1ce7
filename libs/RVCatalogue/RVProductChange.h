#ifndef RVPRODUCTCHANGE_H
#define RVPRODUCTCHANGE_H

#include "RVCatalogueExport.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QSharedDataPointer>
#include <QString>

class RVProductChangeData;

/// The way in which something differs between two catalogues. @ingroup catalogues
enum class RVChangeKind {
    None, ///< It does not differ.
    Added, ///< Only the new one has it.
    Removed, ///< Only the old one has it.
    Changed, ///< Both have it, with different values.
};

/// "added", "removed" and "changed", as programs write it; "equal" for what does not differ.
/// @relates RVProductChange
RVCATALOGUE_EXPORT QLatin1StringView rvChangeKindName(RVChangeKind kind);

/// A value of one of two products. By default there is none.
/// @par Example
/// @snippet tst_examples_catalogues.cpp RVComparedValue
/// @ingroup catalogues
struct RVComparedValue
{
    QString text; ///< For people, in the language of the program; texts of the catalogue are in quotes.
    QJsonValue value = QJsonValue::Null; ///< For programs, the same in every language; null where there is none.
};

/**
 * One difference between two versions of a product, in terms of what the ordering application reads: an attribute, a
 * page count, a field of an option. Copies share their data, also between threads; it never changes. The default change
 * is null: it is of no kind.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVProductChange
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVProductChange
{
public:
    RVProductChange();
    /// @p subject is a literal. The kind follows from which of the values are there. @p item says which of several
    /// things of the subject it is.
    RVProductChange(QLatin1StringView subject, const QString &label, const RVComparedValue &oldValue,
                    const RVComparedValue &newValue, const QJsonObject &item = QJsonObject());
    RVProductChange(const RVProductChange &other);
    RVProductChange(RVProductChange &&other) noexcept;
    RVProductChange &operator=(const RVProductChange &other);
    RVProductChange &operator=(RVProductChange &&other) noexcept;
    ~RVProductChange();

    bool isNull() const noexcept { return !d; } ///< True for the default one.
    RVChangeKind kind() const; ///< None for a null change.
    QLatin1StringView subject() const; ///< The same in every language: "cover_type", "option.price_class".
    /// Names the one of several that it is: "key" and "value" of an option, "from", "to" and "step" of page counts,
    /// "page" and "number" of a barcode; empty for what a product has once.
    QJsonObject item() const;
    QString label() const; ///< Subject and item for people, in the language of the program: "Cover".
    RVComparedValue oldValue() const; ///< None for what was added.
    RVComparedValue newValue() const; ///< None for what was removed.

private:
    QSharedDataPointer<RVProductChangeData> d;
};

Q_DECLARE_TYPEINFO(RVProductChange, Q_RELOCATABLE_TYPE);

#endif
