#ifndef RULESEARCH_H
#define RULESEARCH_H

#include <RVCatalogueRule.h>

#include <QString>

/// The message that there is no rule with that name, and the one that was probably meant.
QString noRuleText(const QString &name);

#endif
