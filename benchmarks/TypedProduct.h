#ifndef TYPEDPRODUCT_H
#define TYPEDPRODUCT_H

#include <RVArticleClass.h>
#include <RVArticleId.h>
#include <RVBarcodeDefinitionList.h>
#include <RVConfiguredArticleVariantList.h>
#include <RVCoverType.h>
#include <RVFotoPaperType.h>
#include <RVOrientation.h>
#include <RVPageBinding.h>
#include <RVPageCountOrganization.h>
#include <RVPaperType.h>
#include <RVPriceClass.h>
#include <RVProductType.h>
#include <RVShippingGroupId.h>
#include <RVSpaceMagnitude.h>
#include <RVSpineConfig.h>

#include <QString>
#include <QStringList>

/// Everything that a catalogue says about a product, in the classes of the library.
struct TypedProduct
{
    RVProductType type;
    QString name;
    RVArticleId articleId;
    RVArticleClass articleClass;
    RVCoverType coverType;
    RVPageBinding pageBinding;
    RVPaperType paperType;
    RVFotoPaperType fotoPaperType;
    RVOrientation orientation;
    RVSpaceMagnitude spaceMagnitude;
    RVShippingGroupId shippingGroup;
    RVPageCountOrganization pageCounts;
    RVSpineConfig spine;
    bool hasSpine;
    RVBarcodeDefinitionList barcodes;
    RVConfiguredArticleVariantList options;
    RVPriceClass optionPriceClass; ///< The price class of the first option.
    RVPriceClass priceClass;
    RVPriceClass pagePriceClass;
    QStringList families;
    qint64 number;
    qint64 line; ///< The line of its start tag.
};

/// A checksum of the values of many products: two programs that print the same number have read the same values.
class ProductChecksum
{
public:
    void add(const TypedProduct &values);
    /// Writes one line to the standard output.
    void print() const;

private:
    void add(quint64 value);
    void add(double value);
    void add(const QString &text);
    void add(const RVConfiguredArticleVariant &option);
    void add(const RVBarcodeDefinition &barcode);

    quint64 myValue = 0;
    int myProducts = 0;
};

#endif
