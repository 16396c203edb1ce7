#ifndef RVCATALOGUEATTRIBUTE_H
#define RVCATALOGUEATTRIBUTE_H

#include "RVCatalogueExport.h"

#include <QAnyStringView>
#include <QList>
#include <QString>
#include <QStringList>

class RVCatalogueProduct;
struct RVCatalogueAttributeFunctions;

/// One value of an attribute that has a keyword.
/// @par Example
/// @snippet tst_examples_catalogues.cpp RVCatalogueAttributeValue
/// @ingroup catalogues
struct RVCatalogueAttributeValue
{
    qint64 value = 0; ///< Its number.
    QString keyword; ///< The main keyword, which is the one that is written.
    QStringList aliases; ///< The other keywords that are read, sorted, in lower case.
    QString displayName; ///< Empty if it has none.
};

/// The meaning of a list of keywords.
/// @par Example
/// @snippet tst_examples_catalogues.cpp RVCatalogueAttributeDecoding
/// @ingroup catalogues
struct RVCatalogueAttributeDecoding
{
    qint64 value = 0; ///< All bits together.
    QString keyword; ///< The text of the value as a whole; empty if it has none.
    QStringList keywords; ///< One for each bit.
    QString text; ///< The value, written as a list of keywords.
    QString displayName; ///< The text of the value as a whole; empty if it has none.
    QStringList unknownPieces; ///< The unknown pieces of the list; they stand for the default value.
};

/**
 * An attribute whose values are written as keywords, without its class, for code that uses RV_CATALOGUE_ATTRIBUTES but
 * not the classes. Attributes are fixed, so a copy costs nothing; the default attribute is null, without a name and
 * without values.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueAttribute
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueAttribute
{
public:
    RVCatalogueAttribute() = default;

    /// Every attribute, those of products first.
    static QList<RVCatalogueAttribute> all();
    /// The attributes that a product element may have.
    static QList<RVCatalogueAttribute> ofProducts();
    /// The attribute with that name, such as "cover_type"; null if there is none.
    static RVCatalogueAttribute find(QAnyStringView name);

    bool isNull() const noexcept { return !myFunctions; } ///< True for the default one.
    QLatin1StringView name() const; ///< The name in the products XML.
    QString label() const; ///< The label for people, in the language of the program: "Cover".
    QList<RVCatalogueAttributeValue> values() const; ///< The values with a keyword, ordered by their numbers.
    /// Reads a list of keywords as the class of the attribute does.
    RVCatalogueAttributeDecoding decode(const QString &text) const;

    /// True if a product has the attribute, which is then no null value.
    bool isIn(const RVCatalogueProduct &product) const;
    /// The number of the product's value; that of the default if the product does not have it, or if it is no attribute
    /// of products.
    qint64 value(const RVCatalogueProduct &product) const;
    /// The product's value, with no unknown pieces; an empty one if the product does not have it.
    RVCatalogueAttributeDecoding decode(const RVCatalogueProduct &product) const;

    /// Compares the identity; null attributes are equal.
    /// @{
    friend bool operator==(RVCatalogueAttribute a, RVCatalogueAttribute b) noexcept
    {
        return a.myFunctions == b.myFunctions;
    }
    friend bool operator!=(RVCatalogueAttribute a, RVCatalogueAttribute b) noexcept { return !(a == b); }
    /// @}

private:
    explicit RVCatalogueAttribute(const RVCatalogueAttributeFunctions *functions) : myFunctions(functions) { }

    const RVCatalogueAttributeFunctions *myFunctions = nullptr;
};

Q_DECLARE_TYPEINFO(RVCatalogueAttribute, Q_RELOCATABLE_TYPE);

#endif
