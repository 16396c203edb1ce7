#ifndef RVXMLPARSER_H
#define RVXMLPARSER_H

#include "RVDistance.h"
#include "RVXMLExport.h"

class QDomElement;
class QDomNamedNodeMap;
class QString;

/**
 * Reads attributes of XML elements, with a default for what is missing.
 *
 * A null element has no attributes. An attribute that is present and empty is an empty text, and no number. A number
 * that is not finite or does not fit its type counts as not a number, so the default stands. Nothing is reported.
 *
 * @par Example
 * @snippet tst_examples_platform.cpp RVXMLParser
 *
 * @ingroup platform
 */
class RVXML_EXPORT RVXMLParser
{
public:
    /// The text as it stands. The last argument has no effect.
    /// @{
    static QString attribute(const QDomElement &element, const QString &name, const QString &defaultValue,
                             bool = false);
    static QString attribute(const QDomNamedNodeMap &attributes, const QString &name, const QString &defaultValue,
                             bool = false);
    /// @}

    /// A decimal number; white space around it is ignored.
    /// @{
    static int intAttribute(const QDomElement &element, const QString &name, int defaultValue);
    static int intAttribute(const QDomNamedNodeMap &attributes, const QString &name, int defaultValue);
    /// @}

    /// True for "true", "1", "yes" and "on", false for "false", "0", "no" and "off", in any letter case.
    static bool boolAttribute(const QDomElement &element, const QString &name, bool defaultValue);

    /// A decimal number with a point, whatever the locale.
    static qreal doubleAttribute(const QDomElement &element, const QString &name, qreal defaultValue);

    /// A number of @p unit as a length; the default is in the same unit.
    static RVDistance readDistance(const QDomElement &element, const QString &name, qreal defaultValue,
                                   const RVDistanceUnit &unit);
};

#endif
