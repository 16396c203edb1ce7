#ifndef PRODUCTFACTS_H
#define PRODUCTFACTS_H

#include <RVCatalogueCheck.h>
#include <RVCatalogueProduct.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

class AttributeWords;

/// The facts about a product, apart from what can be chosen.
class ProductFacts
{
    Q_DECLARE_TR_FUNCTIONS(ProductFacts)

public:
    struct Fact
    {
        QString label;
        QLatin1StringView attribute; ///< empty where it is not one attribute
        QString text; ///< as it stands in the file where something is wrong with it; empty where there is nothing
        QString fault; ///< the fault of it, and the value that was probably meant; empty where nothing is
    };

    ProductFacts(const RVCatalogueProduct &product, const AttributeWords &words)
        : myProduct(product),
          myWords(words) { }

    /// Always the same facts in the same order. The check decides on what is a fault.
    QList<Fact> facts(const RVCatalogueCheck &check = RVCatalogueCheck()) const;
    /// The words, in lower case, by which a search finds the product besides its type, name and article id. Many
    /// products have the same words.
    QString searchText() const;
    /// The kind of article, in the words of the shop.
    static QString group(const RVArticleClass &articleClass);

private:
    QString articleId() const;
    QString shippingGroup() const;
    QString kind() const;
    QString barcodes() const;
    QStringList optionTexts() const;
    void addFaults(QList<Fact> *facts, const RVCatalogueCheck &check) const;
    QString faultOf(QLatin1StringView attribute, const QList<RVCatalogueFinding> &findings) const;

    RVCatalogueProduct myProduct;
    const AttributeWords &myWords;
};

#endif
