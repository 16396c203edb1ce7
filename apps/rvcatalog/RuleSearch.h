#ifndef RULESEARCH_H
#define RULESEARCH_H

#include <RVCatalogueRule.h>

#include <QString>

/// The message that there is no rule of that name, with the one that was probably meant.
QString noRuleText(const QString &name);

#endif
