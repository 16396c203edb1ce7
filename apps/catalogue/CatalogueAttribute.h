#ifndef CATALOGUEATTRIBUTE_H
#define CATALOGUEATTRIBUTE_H

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// One value of an attribute that has a keyword.
struct AttributeValue
{
    qint64 value = 0;
    QString keyword;
    QStringList aliases; ///< sorted, lower case
    QString displayName; ///< empty where it has none
};

/// What a keyword list says.
struct AttributeDecoding
{
    qint64 value = 0;
    QString keyword; ///< of the value as a whole; empty where it has none
    QStringList keywords; ///< one a bit
    QString displayName; ///< of the value as a whole; empty where it has none
    QStringList unknownPieces;
};

/// An attribute of products or pages whose values are written as keywords.
struct CatalogueAttribute
{
    QString name; ///< such as "cover_type"
    std::function<QList<AttributeValue>()> values; ///< sorted by value
    std::function<AttributeDecoding(const QString &)> decode;
};

/// Every attribute enumeration of the library, in the order of their subjects.
const QList<CatalogueAttribute> &catalogueAttributes();

#endif
