#ifndef DISTINCTFILES_H
#define DISTINCTFILES_H

#include "Console.h"

#include <QStringList>

/// The files without those that were named before, also by another path; a message says so of each of them. Two links
/// to one file are the same, and so is "-" with itself.
QStringList distinctFiles(const QStringList &fileNames, const Console &console);

#endif
