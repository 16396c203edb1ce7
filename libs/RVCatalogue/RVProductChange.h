#ifndef RVPRODUCTCHANGE_H
#define RVPRODUCTCHANGE_H

#include "RVCatalogueExport.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QSharedDataPointer>
#include <QString>

class RVProductChangeData;

/// The kind of a difference between two catalogues. @ingroup catalogues
enum class RVChangeKind {
    None, ///< No difference.
    Added, ///< Only the new one has it.
    Removed, ///< Only the old one has it.
    Changed, ///< Both have it, with different values.
};

/// "added", "removed" or "changed", for programs; "equal" for None.
/// @relates RVProductChange
RVCATALOGUE_EXPORT QLatin1StringView rvChangeKindName(RVChangeKind kind);

/// A value of one of two products. By default there is none.
/// @par Example
/// @snippet tst_examples_catalogues.cpp RVComparedValue
/// @ingroup catalogues
struct RVComparedValue
{
    QString text; ///< The text for people, in the language of the program; texts of the catalogue are in quotes.
    QJsonValue value = QJsonValue::Null; ///< The value for programs, the same in every language; null if there is none.
};

/**
 * One difference between two versions of a product that matters to the ordering application: an attribute, a page
 * count, a field of an option. It never changes, so copies share their data, also between threads. The default change
 * is null: it has no kind.
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
    /// @p subject is a literal. The kind follows from the values that are present. @p item names one of several things
    /// of the subject.
    RVProductChange(QLatin1StringView subject, const QString &label, const RVComparedValue &oldValue,
                    const RVComparedValue &newValue, const QJsonObject &item = QJsonObject());
    RVProductChange(const RVProductChange &other);
    RVProductChange(RVProductChange &&other) noexcept;
    RVProductChange &operator=(const RVProductChange &other);
    RVProductChange &operator=(RVProductChange &&other) noexcept;
    ~RVProductChange();

    bool isNull() const noexcept { return !d; } ///< True for the default one.
    RVChangeKind kind() const; ///< None for a null change.
    QLatin1StringView subject() const; ///< The subject, the same in every language: "cover_type", "option.price_class".
    /// The item of the subject: "key" and "value" of an option, "from", "to" and "step" of page counts, "page" and
    /// "number" of a barcode; empty for a subject that a product has only once.
    QJsonObject item() const;
    QString label() const; ///< Subject and item for people, in the language of the program: "Cover".
    RVComparedValue oldValue() const; ///< None for an added item.
    RVComparedValue newValue() const; ///< None for a removed item.

private:
    QSharedDataPointer<RVProductChangeData> d;
};

Q_DECLARE_TYPEINFO(RVProductChange, Q_RELOCATABLE_TYPE);

#endif
