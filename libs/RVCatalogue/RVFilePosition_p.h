#ifndef RVFILEPOSITION_P_H
#define RVFILEPOSITION_P_H

#include "RVFilePosition.h"

#include <QByteArrayView>

/// The place behind @p text, which is UTF-8 and begins at @p position. @p next is the letter behind it, because a
/// carriage return ends a line only if no line feed follows.
RVFilePosition rvAdvanced(const RVFilePosition &position, QByteArrayView text, char next);

/// Moves @p position from the begin of @p text to @p target, and returns the number of bytes up to there. It stops
/// behind the text if the target is further away. If the target is no place, between the two code units of a letter or
/// behind the end of a line, it stops in front of it or behind it.
qsizetype rvAdvance(RVFilePosition *position, const RVFilePosition &target, QByteArrayView text, char next);

#endif
