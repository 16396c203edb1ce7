#ifndef FINDINGTOOLTIP_H
#define FINDINGTOOLTIP_H

#include <QString>

class RVCatalogueFinding;

/// All that there is to tell of a finding, as HTML: its text, the other places that it is about, and what its rule is
/// good for.
QString findingToolTip(const RVCatalogueFinding &finding);

#endif
