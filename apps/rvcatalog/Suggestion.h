#ifndef SUGGESTION_H
#define SUGGESTION_H

#include <QString>
#include <QStringList>

/// The end of a message about something that is not there: "; did you mean "show"?", or nothing where no candidate is
/// so near that it was probably meant. @p prefix stands in front of the candidate, but does not count.
QString didYouMean(const QString &wanted, const QStringList &candidates, const QString &prefix = QString());

#endif
