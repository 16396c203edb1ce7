#ifndef RVCATALOGUEEXPORT_H
#define RVCATALOGUEEXPORT_H

#include <QtGlobal>

/// Marks what the library offers to others.
#ifdef RVCATALOGUE_LIBRARY
#    define RVCATALOGUE_EXPORT Q_DECL_EXPORT
#else
#    define RVCATALOGUE_EXPORT Q_DECL_IMPORT
#endif

#endif
