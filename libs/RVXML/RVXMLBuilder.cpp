#include "RVXMLBuilder.h"

#include <QDomDocument>
#include <QDomElement>
#include <QDomText>
#include <QString>

QDomElement RVXMLBuilder::buildDomElement(QDomElement &parent, const QString &name)
{
    if (parent.isNull())
        return QDomElement();
    QDomElement child = parent.ownerDocument().createElement(name);
    return parent.appendChild(child).toElement();
}

QDomElement RVXMLBuilder::buildDomElement(QDomElement &parent, const QString &name, const QString &text)
{
    QDomElement child = buildDomElement(parent, name);
    if (!child.isNull())
        child.appendChild(parent.ownerDocument().createTextNode(text));
    return child;
}
