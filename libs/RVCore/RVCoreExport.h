#ifndef RVCOREEXPORT_H
#define RVCOREEXPORT_H

#include <QtGlobal>

/// Marks what the library offers to others.
#ifdef RVCORE_LIBRARY
#    define RVCORE_EXPORT Q_DECL_EXPORT
#else
#    define RVCORE_EXPORT Q_DECL_IMPORT
#endif

#endif
