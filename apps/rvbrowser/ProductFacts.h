#ifndef PRODUCTFACTS_H
#define PRODUCTFACTS_H

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

class AttributeWords;
class RVArticleClass;
struct CatalogueProduct;

/// What there is to read about a product, apart from what can be chosen.
class ProductFacts
{
    Q_DECLARE_TR_FUNCTIONS(ProductFacts)

public:
    struct Fact
    {
        QString label;
        QString text; ///< empty where the product does not say
    };

    ProductFacts(const CatalogueProduct &product, const AttributeWords &words) : myProduct(product), myWords(words) { }

    /// Always the same facts in the same order.
    QList<Fact> facts() const;
    /// Everything that a search for the product may name, in lower case.
    QString searchText() const;
    /// What kind of article it is, in the words of the shop.
    static QString group(const RVArticleClass &articleClass);

private:
    struct Attribute
    {
        QString name; // in the catalogue
        QString label;
        QStringList keywords;
    };

    QList<Attribute> attributes() const;
    QString kind() const;
    QString barcodes() const;

    const CatalogueProduct &myProduct;
    const AttributeWords &myWords;
};

#endif
