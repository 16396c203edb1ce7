#ifndef RVXMLEXPORT_H
#define RVXMLEXPORT_H

#include <QtGlobal>

/// Marks the symbols that the library exports.
#ifdef RVXML_LIBRARY
#    define RVXML_EXPORT Q_DECL_EXPORT
#else
#    define RVXML_EXPORT Q_DECL_IMPORT
#endif

#endif
