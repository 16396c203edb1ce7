#ifndef LOADERROR_H
#define LOADERROR_H

#include <CatalogueReader.h>

#include <QString>

#include <optional>

/// Why a catalogue cannot be loaded.
struct LoadError
{
    QString fileName;
    std::optional<FilePosition> position; ///< none where it is the file as a whole
    QString text;
};

#endif
