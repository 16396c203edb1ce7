#ifndef SUGGESTION_H
#define SUGGESTION_H

#include <QString>
#include <QStringList>

/// The end of a message about something that is not there: "; did you mean "show"?", or nothing where no candidate is
/// so near that it was probably meant.
QString didYouMean(const QString &wanted, const QStringList &candidates);

#endif
