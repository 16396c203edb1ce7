#ifndef ATTRIBUTEWORDS_H
#define ATTRIBUTEWORDS_H

#include <RVCatalogueAttribute.h>

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>

/// Turns the attributes of products into words for people. Making one builds every table, so keep it for many products.
class AttributeWords
{
    Q_DECLARE_TR_FUNCTIONS(AttributeWords)

public:
    AttributeWords();

    /// The display names with their keywords behind them, such as "Hardcover (HARDCOVER)"; keywords alone where they
    /// have no name. Empty where the product does not tell the attribute.
    QString text(RVCatalogueAttribute attribute, const RVCatalogueProduct &product) const;
    /// The words by which a search finds the product: keywords, their aliases and their display names.
    QStringList searchTexts(RVCatalogueAttribute attribute, const RVCatalogueProduct &product) const;

private:
    QHash<QLatin1StringView, QHash<QString, RVCatalogueAttributeValue>> myValues; // by attribute, then by keyword
};

#endif
