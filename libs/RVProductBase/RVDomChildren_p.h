#ifndef RVDOMCHILDREN_P_H
#define RVDOMCHILDREN_P_H

#include <QDomElement>
#include <QString>

/// What firstChildElement() finds. The document itself compares the names here, instead of making a node object of
/// each child for it.
inline QDomElement rvFirstChildElement(const QDomElement &parent, const QString &name)
{
    const QDomNode child = parent.namedItem(name);
    // A processing instruction may have that name too.
    return child.isNull() || child.isElement() ? child.toElement() : parent.firstChildElement(name);
}

/// Calls visit(element) for each child element of the name, in the order of the document.
template<typename Visitor>
void rvVisitChildElements(const QDomElement &parent, const QString &name, Visitor visit)
{
    for (QDomNode child = parent.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement() && child.nodeName() == name)
            visit(child.toElement());
    }
}

#endif
