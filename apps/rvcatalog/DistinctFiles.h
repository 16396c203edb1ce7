#ifndef DISTINCTFILES_H
#define DISTINCTFILES_H

#include "Console.h"

#include <QStringList>

/// The files without repeated ones, also by another path; a message names each of those. Two links to one file are the
/// same, and so are two "-".
QStringList distinctFiles(const QStringList &fileNames, const Console &console);

#endif
