#ifndef COMPAREDPRODUCT_H
#define COMPAREDPRODUCT_H

#include <RVArticleId.h>
#include <RVCatalogueComparison.h>
#include <RVProductType.h>

#include <QList>
#include <QString>

/// All that there is to say of a product that differs, without the product itself, so that many can be kept.
struct ComparedProduct
{
    ComparedProduct() = default; ///< A product that does not differ.
    /// Not explicit: it is the same, in less memory.
    ComparedProduct(const RVProductComparison &product);

    /// Of the new version; of the old one where that is all there is.
    const RVProductType &type() const { return kind == RVChangeKind::Removed ? oldType : newType; }

    RVChangeKind kind = RVChangeKind::None;
    bool isRenamed = false;
    RVProductType oldType; ///< Invalid for what was added.
    RVProductType newType; ///< Invalid for what was removed.
    QString name; ///< With the article, of the same version as type().
    RVArticleId articleId;
    RVFilePosition oldPosition;
    RVFilePosition newPosition;
    QList<RVProductChange> changes; ///< None unless it is of the kind Changed.
};

Q_DECLARE_TYPEINFO(ComparedProduct, Q_RELOCATABLE_TYPE);

#endif
