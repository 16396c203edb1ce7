#ifndef RVCATALOGUEATTRIBUTES_H
#define RVCATALOGUEATTRIBUTES_H

#include "RVCatalogueProduct.h"

#include <RVDlpType.h>
#include <RVMaterialType.h>
#include <RVPageAlignment.h>
#include <RVPageType.h>
#include <RVProductArrangement.h>
#include <RVSpotColor.h>

#include <QLatin1StringView>
#include <QtGlobal>

#include <tuple>
#include <type_traits>

/// An attribute whose values are written as keywords: its class, its name in the products XML, its label for people,
/// and the function of a product that returns it, which is null if it is no attribute of products.
/// @par Example
/// @snippet tst_examples_catalogues.cpp RVCatalogueAttributeRow
/// @ingroup catalogues
template<typename T>
struct RVCatalogueAttributeRow
{
    using Class = T; ///< The class of the attribute.
    using Value = T (RVCatalogueProduct::*)() const; ///< The function of a product that returns it.
    using DisplayName = QString (T::*)() const; ///< The function that returns the name of a value for people.

    /// The members in their order; an attribute without a value is no attribute of products.
    /// @{
    constexpr RVCatalogueAttributeRow(QLatin1StringView name_, const char *label_) : name(name_), label(label_) { }
    constexpr RVCatalogueAttributeRow(QLatin1StringView name_, const char *label_, Value value_,
                                      const char *shortLabel_, DisplayName displayName_ = nullptr,
                                      bool hasBareKeywords_ = false)
        : name(name_),
          label(label_),
          isOfProducts(true),
          value(value_),
          shortLabel(shortLabel_),
          displayName(displayName_),
          hasBareKeywords(hasBareKeywords_)
    { }
    /// @}

    QLatin1StringView name; ///< The name in the products XML.
    const char *label; ///< The label in English; RVCatalogueAttribute::label() translates it.
    bool isOfProducts = false; ///< True where product elements may have it.
    Value value = nullptr; ///< Null where it is no attribute of products.
    const char *shortLabel = nullptr; ///< A short label in English, for a line of many attributes.
    DisplayName displayName = nullptr; ///< Null also if display names are only parts of words.
    bool hasBareKeywords = false; ///< True if keywords are numbers, so that people need the display name.
};

/**
 * Every attribute whose values are written as keywords, those of products first. All code that iterates over the
 * attributes uses this list: std::apply() if it needs their classes, and RVCatalogueAttribute::all() otherwise.
 *
 * @ingroup catalogues
 */
inline constexpr std::tuple RV_CATALOGUE_ATTRIBUTES {
    // clang-format off
    RVCatalogueAttributeRow<RVArticleClass> { QLatin1StringView("article_class"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Article class"), &RVCatalogueProduct::articleClass, "class", &RVArticleClass::toHumanReadable },
    RVCatalogueAttributeRow<RVCoverType> { QLatin1StringView("cover_type"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Cover"), &RVCatalogueProduct::coverType, "cover", &RVCoverType::humanReadableName },
    RVCatalogueAttributeRow<RVPageBinding> { QLatin1StringView("page_binding"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Binding"), &RVCatalogueProduct::pageBinding, "binding", &RVPageBinding::humanReadableName },
    RVCatalogueAttributeRow<RVPaperType> { QLatin1StringView("paper_type"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Paper"), &RVCatalogueProduct::paperType, "paper", &RVPaperType::humanReadableName },
    RVCatalogueAttributeRow<RVFotoPaperType> { QLatin1StringView("foto_paper_type"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Photo paper"), &RVCatalogueProduct::fotoPaperType, "photo paper", &RVFotoPaperType::humanReadableName, true },
    RVCatalogueAttributeRow<RVOrientation> { QLatin1StringView("orientation"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Orientation"), &RVCatalogueProduct::orientation, "orientation" },
    RVCatalogueAttributeRow<RVSpaceMagnitude> { QLatin1StringView("space_magnitude"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Size class"), &RVCatalogueProduct::spaceMagnitude, "size", &RVSpaceMagnitude::humanReadableName },
    RVCatalogueAttributeRow<RVPageType> { QLatin1StringView("page_type"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Page type") },
    RVCatalogueAttributeRow<RVPageAlignment> { QLatin1StringView("page_alignment"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Page alignment") },
    RVCatalogueAttributeRow<RVMaterialType> { QLatin1StringView("material_type"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Material") },
    RVCatalogueAttributeRow<RVProductArrangement> { QLatin1StringView("product_arrangement"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Arrangement") },
    RVCatalogueAttributeRow<RVDlpType> { QLatin1StringView("dlp_type"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Design content") },
    RVCatalogueAttributeRow<RVSpotColor> { QLatin1StringView("spot_color"), QT_TRANSLATE_NOOP("RVCatalogueAttribute", "Spot colour") },
    // clang-format on
};

/// The name of the attribute that has this class.
/// @relates RVCatalogueAttributeRow
template<typename T>
constexpr QLatin1StringView rvCatalogueAttributeName()
{
    return std::get<RVCatalogueAttributeRow<T>>(RV_CATALOGUE_ATTRIBUTES).name;
}

#endif
