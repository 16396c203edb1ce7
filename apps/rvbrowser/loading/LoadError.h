#ifndef LOADERROR_H
#define LOADERROR_H

#include <RVFilePosition.h>

#include <QString>

#include <optional>

/// The reason why a catalogue cannot be loaded.
struct LoadError
{
    QString fileName;
    std::optional<RVFilePosition> position; ///< none where it is the file as a whole
    QString text;
};

#endif
