#ifndef RVFILEPOSITION_P_H
#define RVFILEPOSITION_P_H

#include "RVFilePosition.h"

#include <QByteArrayView>

/// The place behind @p text, which is UTF-8 and begins at @p position. @p next is the letter behind it, since a
/// carriage return ends a line only where no line feed follows.
RVFilePosition rvAdvanced(const RVFilePosition &position, QByteArrayView text, char next);

/// Moves @p position, which is the begin of @p text, on to @p target, and returns the number of bytes up to there. It
/// ends behind the text where the target is further away, and in front of or behind a target that is no place: between
/// the two code units of a letter, or behind the end of a line.
qsizetype rvAdvance(RVFilePosition *position, const RVFilePosition &target, QByteArrayView text, char next);

#endif
