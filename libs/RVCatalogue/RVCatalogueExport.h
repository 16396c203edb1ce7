#ifndef RVCATALOGUEEXPORT_H
#define RVCATALOGUEEXPORT_H

#include <QtGlobal>

/// Marks the symbols that the library exports.
#ifdef RVCATALOGUE_LIBRARY
#    define RVCATALOGUE_EXPORT Q_DECL_EXPORT
#else
#    define RVCATALOGUE_EXPORT Q_DECL_IMPORT
#endif

#endif
