#ifndef RVPRODUCTBASEEXPORT_H
#define RVPRODUCTBASEEXPORT_H

#include <QtGlobal>

/// Marks the symbols that the library exports.
#ifdef RVPRODUCTBASE_LIBRARY
#    define RVPRODUCTBASE_EXPORT Q_DECL_EXPORT
#else
#    define RVPRODUCTBASE_EXPORT Q_DECL_IMPORT
#endif

#endif
