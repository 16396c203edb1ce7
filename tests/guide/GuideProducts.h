#ifndef GUIDEPRODUCTS_H
#define GUIDEPRODUCTS_H

//! [guideProduct]
#include <QDomDocument>
#include <QFile>

/// The first product of the type in products.xml; a null element where there is none.
inline QDomElement guideProduct(const QString &type)
{
    static const QDomDocument document = [] {
        QDomDocument result;
        QFile file(QStringLiteral("products.xml"));
        if (file.open(QIODevice::ReadOnly))
            result.setContent(&file);
        return result;
    }();
    const QDomNodeList products = document.elementsByTagName(QStringLiteral("product"));
    for (int i = 0; i < products.size(); ++i) {
        const QDomElement product = products.at(i).toElement();
        if (product.attribute(QStringLiteral("type")) == type)
            return product;
    }
    return QDomElement();
}
//! [guideProduct]

#endif
