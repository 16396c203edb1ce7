#ifndef RVNAMEDCOLOR_H
#define RVNAMEDCOLOR_H

#include "RVCoreExport.h"

class QColor;
class QString;

/// The representation of a colour in rich text.
/// @par Example
/// @snippet tst_examples_platform.cpp RVNamedColor
/// @ingroup platform
class RVCORE_EXPORT RVNamedColor
{
public:
    /// A small swatch as one inline HTML element; a transparent one for an invalid colour.
    static QString renderColorPreviewHTML(const QColor &color);
};

#endif
