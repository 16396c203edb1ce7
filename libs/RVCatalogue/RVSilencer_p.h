#ifndef RVSILENCER_P_H
#define RVSILENCER_P_H

#include "RVCatalogueFinding.h"
#include "RVCatalogueProduct.h"
#include "RVSuppression_p.h"

#include <QList>

#include <cstddef>
#include <vector>

class RVCatalogueCheck;
class RVCatalogueProductData;

/**
 * Removes the findings of a product that comments silence: comments in the product, in front of it, and in front of the
 * groups around it. A comment has an effect if there is a finding in its element, even if another comment silences it,
 * too.
 *
 * It walks through elements and findings together, in the order of the file, with the comments whose elements are open.
 * An object serves one call of either function.
 */
class RVSilencer
{
public:
    /// Both outlive the silencer.
    RVSilencer(const RVCatalogueCheck &check, const RVCatalogueProduct &product);

    /// True if there is any such comment; otherwise there is nothing to do.
    static bool isNeeded(const RVCatalogueProduct &product);

    /// The findings that are not silenced. The given findings are in the order of the file.
    QList<RVCatalogueFinding> audible(const QList<RVCatalogueFinding> &findings);
    /// The same with the findings about the comments, also in the order of the file. It reports to the groups around
    /// the product, so call it once for each product.
    QList<RVCatalogueFinding> judged(const QList<RVCatalogueFinding> &findings);

private:
    struct OpenComment
    {
        const RVSuppression *comment;
        RVCatalogueRuleSet broken; // in its element
    };

    quint32 elementAt(const RVFilePosition &position) const;
    quint32 endOf(const RVSuppression &comment) const;
    void moveTo(quint32 element);
    void closeUpTo(quint32 element);
    void complain(const RVSuppression &comment, const RVCatalogueRuleSet &broken);
    void take(const RVCatalogueFinding &finding, quint32 element);

    const RVCatalogueCheck &myCheck;
    const RVCatalogueProduct &myProduct;
    const RVCatalogueProductData &myData;
    bool myJudgesComments = false;
    std::size_t myNext = 0; // the first comment whose element was not reached yet
    std::vector<OpenComment> myOpen;
    RVCatalogueRuleSet myBroken; // in all of the product
    QList<RVCatalogueFinding> myAudible;
};

#endif
