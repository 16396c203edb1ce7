#ifndef RVDOMCHILDREN_P_H
#define RVDOMCHILDREN_P_H

#include <QDomElement>
#include <QString>

/// The element that firstChildElement() finds. The document itself compares the names here, instead of making a node
/// object of each child for it.
inline QDomElement rvFirstChildElement(const QDomElement &parent, const QString &name)
{
    const QDomNode child = parent.namedItem(name);
    // A processing instruction or a reference to an entity may have that name too.
    return child.isNull() || child.isElement() ? child.toElement() : parent.firstChildElement(name);
}

/// Calls visit(element) for what firstChildElement() and nextSiblingElement() find, in the order of the document.
template<typename Visitor>
void rvVisitChildElements(const QDomElement &parent, const QString &name, Visitor visit)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement element = child.toElement();
        // Unlike nodeName(), this is without the prefix of a name space.
        if (!element.isNull() && element.tagName() == name)
            visit(element);
    }
}

#endif
