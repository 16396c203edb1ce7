#ifndef RVGROUPSILENCE_P_H
#define RVGROUPSILENCE_P_H

#include "RVCatalogueCheck.h"
#include "RVCatalogueFinding.h"
#include "RVSuppressionScope_p.h"

#include <QList>

#include <vector>

/// Finds the comments in front of groups that silence nothing, once all products of a group were checked. It keeps a
/// group no longer than that.
class RVGroupSilence
{
public:
    explicit RVGroupSilence(const RVCatalogueCheck &check) : myCheck(check) { }

    /// Takes groups that were closed, inner ones before outer ones, and judges those that are complete.
    void add(const std::vector<RVSuppressionScope::Pointer> &closed);
    /// The findings about the judged groups, in the order in which the groups were judged.
    const QList<RVCatalogueFinding> &findings() const { return myFindings; }

private:
    void judge(const RVSuppressionScope &scope);

    RVCatalogueCheck myCheck;
    std::vector<RVSuppressionScope::Pointer> myClosed; // closed groups that are not judged yet
    QList<RVCatalogueFinding> myFindings;
};

#endif
