#ifndef ELEMENTTEXT_H
#define ELEMENTTEXT_H

#include <CatalogueBatch.h>

#include <QDomDocument>
#include <QStringList>

/// The element with its attributes and with all elements in it, as one text to compare.
inline QString describe(const QDomElement &element)
{
    QStringList attributes;
    for (int i = 0; i < element.attributes().size(); ++i) {
        const QDomAttr attribute = element.attributes().item(i).toAttr();
        attributes += attribute.name() + u'=' + attribute.value();
    }
    attributes.sort();
    QString result = u'<' + element.tagName() + u' ' + attributes.join(u' ');
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        result += describe(child);
    return result + u'>';
}

inline QString describe(const CatalogueElement &element)
{
    QDomDocument document;
    return describe(element.deepCopy(&document));
}

#endif
