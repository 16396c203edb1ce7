#ifndef RVCOREEXPORT_H
#define RVCOREEXPORT_H

#include <QtGlobal>

/// Marks the symbols that the library exports.
#ifdef RVCORE_LIBRARY
#    define RVCORE_EXPORT Q_DECL_EXPORT
#else
#    define RVCORE_EXPORT Q_DECL_IMPORT
#endif

#endif
