#ifndef CATALOGUESTAMP_H
#define CATALOGUESTAMP_H

#include "FileStamp.h"

#include <QList>
#include <QStringList>

/// The stamp of a catalogue, and that of the configuration that it is checked by.
struct CatalogueStamp
{
    /// The stamps of the files as they are now.
    static CatalogueStamp of(const QString &fileName);

    FileStamp catalogue;
    QStringList configurationNames;
    QList<FileStamp> configurations; // one for each name

    friend bool operator==(const CatalogueStamp &a, const CatalogueStamp &b)
    {
        return a.catalogue == b.catalogue && a.configurationNames == b.configurationNames
                && a.configurations == b.configurations;
    }
    friend bool operator!=(const CatalogueStamp &a, const CatalogueStamp &b) { return !(a == b); }
};

#endif
