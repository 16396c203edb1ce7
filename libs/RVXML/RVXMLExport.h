#ifndef RVXMLEXPORT_H
#define RVXMLEXPORT_H

#include <QtGlobal>

/// Marks what the library offers to others.
#ifdef RVXML_LIBRARY
#    define RVXML_EXPORT Q_DECL_EXPORT
#else
#    define RVXML_EXPORT Q_DECL_IMPORT
#endif

#endif
