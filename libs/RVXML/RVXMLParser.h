#ifndef RVXMLPARSER_H
#define RVXMLPARSER_H

#include "RVDistance.h"
#include "RVXMLExport.h"

class QDomElement;
class QDomNamedNodeMap;
class QString;

/**
 * Reads attributes of XML elements, with a default for missing ones.
 *
 * A null element has no attributes. An empty attribute is an empty text and no number. A number that is not finite or
 * does not fit its type is no number either, so the result is the default. Errors are not reported.
 *
 * @par Example
 * @snippet tst_examples_platform.cpp RVXMLParser
 *
 * @ingroup platform
 */
class RVXML_EXPORT RVXMLParser
{
public:
    /// The text of the attribute, unchanged. The last argument has no effect.
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

    /// A decimal number with a point, in every locale.
    static qreal doubleAttribute(const QDomElement &element, const QString &name, qreal defaultValue);

    /// A number of @p unit as a length; the default is in the same unit.
    static RVDistance readDistance(const QDomElement &element, const QString &name, qreal defaultValue,
                                   const RVDistanceUnit &unit);
};

#endif
