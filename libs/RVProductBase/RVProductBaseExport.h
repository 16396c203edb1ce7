#ifndef RVPRODUCTBASEEXPORT_H
#define RVPRODUCTBASEEXPORT_H

#include <QtGlobal>

/// Marks what the library offers to others.
#ifdef RVPRODUCTBASE_LIBRARY
#    define RVPRODUCTBASE_EXPORT Q_DECL_EXPORT
#else
#    define RVPRODUCTBASE_EXPORT Q_DECL_IMPORT
#endif

#endif
