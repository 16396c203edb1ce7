#ifndef RVFILEPOSITION_P_H
#define RVFILEPOSITION_P_H

#include "RVFilePosition.h"

#include <QByteArrayView>

/// The place behind @p text, which is UTF-8 and begins at @p position. @p next is the letter behind it, since a
/// carriage return ends a line only where no line feed follows.
RVFilePosition rvAdvanced(const RVFilePosition &position, QByteArrayView text, char next);

#endif
