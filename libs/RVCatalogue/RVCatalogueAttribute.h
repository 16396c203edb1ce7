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
    QString keyword; ///< The one that is written.
    QStringList aliases; ///< Others that are read, sorted, in lower case.
    QString displayName; ///< Empty where it has none.
};

/// The meaning of a list of keywords.
/// @par Example
/// @snippet tst_examples_catalogues.cpp RVCatalogueAttributeDecoding
/// @ingroup catalogues
struct RVCatalogueAttributeDecoding
{
    qint64 value = 0; ///< All bits together.
    QString keyword; ///< Of the value as a whole; empty where it has none.
    QStringList keywords; ///< One for each bit.
    QString text; ///< The value as a list of keywords is written.
    QString displayName; ///< Of the value as a whole; empty where it has none.
    QStringList unknownPieces; ///< Of the list; they stand for the default value.
};

/**
 * An attribute whose values are written as keywords, without its class: RV_CATALOGUE_ATTRIBUTES for who does not want
 * to know the classes. Attributes are fixed, so a copy costs nothing; the default attribute is null, without a name and
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
    /// Those that a product element may have.
    static QList<RVCatalogueAttribute> ofProducts();
    /// The attribute of that name, such as "cover_type"; null where there is none.
    static RVCatalogueAttribute find(QAnyStringView name);

    bool isNull() const noexcept { return !myFunctions; } ///< True for the default one.
    QLatin1StringView name() const; ///< In the products XML.
    QString label() const; ///< For people, in the language of the program: "Cover".
    QList<RVCatalogueAttributeValue> values() const; ///< Those that have a keyword, by their numbers.
    /// Reads a list of keywords as the class of the attribute does.
    RVCatalogueAttributeDecoding decode(const QString &text) const;

    /// True where a product tells the attribute, which is then no null value.
    bool isIn(const RVCatalogueProduct &product) const;
    /// The number of the product's value; that of the default where it does not tell, or is no attribute of products.
    qint64 value(const RVCatalogueProduct &product) const;
    /// The product's value, with no unknown pieces; an empty one where it does not tell.
    RVCatalogueAttributeDecoding decode(const RVCatalogueProduct &product) const;

    /// By identity; null ones are equal.
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
