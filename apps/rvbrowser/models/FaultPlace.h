#ifndef FAULTPLACE_H
#define FAULTPLACE_H

#include <RVCatalogueCheck.h>
#include <RVCatalogueProduct.h>

#include <QString>

/// The part of a product that a finding is about.
struct FaultPlace
{
    QString attribute; ///< Of the product itself; empty where it is in an element below, or not one attribute.
    QString element; ///< The child of the product that it is in, such as "forms"; empty for the product itself.

    /// Finds it in a product that was read again, where everything stands at another place than in the file: among what
    /// the check finds there, by rule and text. Empty where it finds no such thing, as with types that another product
    /// has, too.
    static FaultPlace of(const RVCatalogueFinding &finding, const RVCatalogueProduct &product,
                         const RVCatalogueCheck &check);
};

#endif
