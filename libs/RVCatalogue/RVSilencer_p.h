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
 * Leaves out the findings of a product that comments silence: those in the product, in front of it, and in front of the
 * groups around it. A comment is of use where there is a finding in its element, even if another comment silences it,
 * too.
 *
 * It goes through elements and findings together, in the order of the file, with the comments whose elements are open.
 * It is made for one call of either function.
 */
class RVSilencer
{
public:
    /// Both outlive the silencer.
    RVSilencer(const RVCatalogueCheck &check, const RVCatalogueProduct &product);

    /// True where there is any such comment; without one nothing has to be done.
    static bool isNeeded(const RVCatalogueProduct &product);

    /// Those of the findings, which are in the order of the file, that are not silenced.
    QList<RVCatalogueFinding> audible(const QList<RVCatalogueFinding> &findings);
    /// The same with what is wrong with the comments, also in the order of the file. The groups around the product are
    /// told, so this is done once for each product.
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
    std::size_t myNext = 0; // the first comment whose element was not reached
    std::vector<OpenComment> myOpen;
    RVCatalogueRuleSet myBroken; // in all of the product
    QList<RVCatalogueFinding> myAudible;
};

#endif
