#ifndef RVXMLBUILDER_H
#define RVXMLBUILDER_H

#include "RVXMLExport.h"

class QDomElement;
class QString;

/// Appends child elements to XML elements.
/// @par Example
/// @snippet tst_examples_platform.cpp RVXMLBuilder
/// @ingroup platform
class RVXML_EXPORT RVXMLBuilder
{
public:
    /// Appends an empty child element and returns it; a null element when @p parent is null.
    static QDomElement buildDomElement(QDomElement &parent, const QString &name);
    /// Appends a child element that holds @p text and returns it; a null element when @p parent is null.
    static QDomElement buildDomElement(QDomElement &parent, const QString &name, const QString &text);
};

#endif
