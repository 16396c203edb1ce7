#ifndef RVDOMCHILDREN_P_H
#define RVDOMCHILDREN_P_H

#include <QDomElement>
#include <QString>

/// The element that firstChildElement() finds. Here the document compares the names itself, which avoids a node object
/// for each child.
inline QDomElement rvFirstChildElement(const QDomElement &parent, const QString &name)
{
    const QDomNode child = parent.namedItem(name);
    // A processing instruction or an entity reference may have that name as well.
    return child.isNull() || child.isElement() ? child.toElement() : parent.firstChildElement(name);
}

/// Calls visit(element) for each element that firstChildElement() and nextSiblingElement() find, in the order of the
/// document.
template<typename Visitor>
void rvVisitChildElements(const QDomElement &parent, const QString &name, Visitor visit)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement element = child.toElement();
        // The local name, unlike nodeName(), has no prefix of a name space.
        if (!element.isNull() && element.tagName() == name)
            visit(element);
    }
}

#endif
