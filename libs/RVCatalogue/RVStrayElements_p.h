#ifndef RVSTRAYELEMENTS_P_H
#define RVSTRAYELEMENTS_P_H

#include "RVCatalogueFinding.h"
#include "RVCatalogueRuleTable_p.h"
#include "RVFileRange.h"
#include "RVSuppressionScope_p.h"

#include <QLatin1StringView>
#include <QList>
#include <QString>

#include <optional>
#include <vector>

class RVCatalogueCheck;
struct RVXmlTag;

/// An element outside of products that was probably meant to be read.
struct RVStrayElement
{
    RVCatalogueRuleId rule; ///< the broken rule
    RVFileRange range; ///< the start tag
    QString name;
    QLatin1StringView meant; ///< the known element
    QString type; ///< its attribute "type"
    RVSuppressionScope::Pointer scope; ///< of the comments in front of it and around it; may be null
};

/**
 * Finds elements outside of products that were probably meant to be read: products whose name is misspelt or has a
 * prefix, and parts of products that stand beside one. Elements that group products may have any name. So an element
 * with a product in it is no misspelt product, and elements in a group without products of its own are foreign.
 *
 * The first thousand of a file are kept.
 */
class RVStrayElements
{
public:
    /// Starts an element outside of products that is no product. @p scope silences rules for it; may be null.
    void startGroup(const RVXmlTag &tag, const RVSuppressionScope::Pointer &scope);
    void endGroup();
    void startProduct(); ///< Starts a product in the current group.

    /// The findings about the elements in groups that have ended, in any order.
    QList<RVCatalogueFinding> findings(const RVCatalogueCheck &check) const;
    /// True if one of these findings, other than a note, says that a product is not read.
    static bool haveProduct(const QList<RVCatalogueFinding> &findings);

private:
    struct Group
    {
        std::optional<RVStrayElement> product; // the product that the group was meant to be
        std::vector<RVStrayElement> parts; // of products, directly in the group
        qsizetype firstInside = 0; // the index of the first kept element inside
        bool hasProducts = false; // directly
        bool hasInnerProducts = false; // at any depth
    };

    void keep(const RVStrayElement &element);

    std::vector<Group> myGroups; // that are open
    qsizetype myParts = 0; // of all of them
    QList<RVStrayElement> myElements;
};

#endif
