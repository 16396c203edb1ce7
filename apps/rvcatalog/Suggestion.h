#ifndef SUGGESTION_H
#define SUGGESTION_H

#include <QString>
#include <QStringList>

/// The end of a message about an unknown name: "; did you mean "show"?", or nothing if no candidate is near. @p prefix
/// stands in front of the candidate, but does not count.
QString didYouMean(const QString &wanted, const QStringList &candidates, const QString &prefix = QString());

#endif
