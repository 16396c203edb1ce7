#ifndef ATTRIBUTEWORDS_H
#define ATTRIBUTEWORDS_H

#include <CatalogueAttribute.h>

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>

/// Turns the keywords of attributes into words for people. Making one builds every table, so keep it for many products.
class AttributeWords
{
    Q_DECLARE_TR_FUNCTIONS(AttributeWords)

public:
    AttributeWords();

    /// The display names with their keywords behind them, such as "Hardcover (HARDCOVER)"; keywords alone where they
    /// have no name. @p attribute is the name of the attribute, such as "cover_type".
    QString text(const QString &attribute, const QStringList &keywords) const;
    /// What somebody may type who looks for a product with these keywords: the keywords, their aliases, their names.
    QStringList searchTexts(const QString &attribute, const QStringList &keywords) const;

private:
    QHash<QString, QHash<QString, AttributeValue>> myValues; // by attribute, then by keyword
};

#endif
