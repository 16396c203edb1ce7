#ifndef NAMESPACES_H
#define NAMESPACES_H

#include <QDomDocument>
#include <QString>

/// A document whose elements know their name spaces; QDomDocument otherwise takes a prefix for a part of the name.
inline QDomDocument parseWithNameSpaces(const QString &xml)
{
    QDomDocument document;
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    document.setContent(xml, QDomDocument::ParseOption::UseNamespaceProcessing);
#else
    document.setContent(xml, true);
#endif
    return document;
}

#endif
