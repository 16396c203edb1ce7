#ifndef RVBARCODEDEFINITION_H
#define RVBARCODEDEFINITION_H

#include "RVDistanceUnit.h"
#include "RVProductBaseExport.h"

#include <QImage>
#include <QRect>
#include <QString>

class QDomElement;
class RVDistance;

/**
 * The place of the production barcode of a product: a rectangle in tenths of a millimetre on one page, and the
 * placeholder image that the editor shows there.
 *
 * It is read from the products XML. The default is an invalid definition: an empty rectangle on page 0 without an
 * image.
 *
 * @par Example
 * @snippet tst_examples_geometry.cpp RVBarcodeDefinition
 *
 * @ingroup geometry
 */
class RVPRODUCTBASE_EXPORT RVBarcodeDefinition
{
public:
    /// The default placeholder.
    static const QString DEFAULT_IMAGE_NAME;

    RVBarcodeDefinition(); ///< The invalid definition.
    /// @p rect is in tenths of a millimetre.
    RVBarcodeDefinition(const QRect &rect, int pageNr, const QString &imageName);
    RVBarcodeDefinition(const RVBarcodeDefinition &) = default;
    RVBarcodeDefinition(RVBarcodeDefinition &&) = default;
    RVBarcodeDefinition &operator=(const RVBarcodeDefinition &) = default;
    RVBarcodeDefinition &operator=(RVBarcodeDefinition &&) = default;
    virtual ~RVBarcodeDefinition();

    /// Reads "position_x", "position_y", "width" and "height" in @p unit (1 each), "image" (DEFAULT_IMAGE_NAME) and
    /// "pageNr" (0). "position_y" is the lower edge; the barcode stands on it. At 20 mm, 10 mm high, it is
    /// in the tenths 100 to 199.
    static RVBarcodeDefinition createFromProductsXML(const QDomElement &element, const RVDistanceUnit &unit);
    /// The same from the values of the attributes: left and lower edge, width and height.
    static RVBarcodeDefinition createFromLengths(const RVDistance &x, const RVDistance &y, const RVDistance &width,
                                                 const RVDistance &height, int pageNr, const QString &imageName);

    QRect rect() const noexcept { return myRect; } ///< The rectangle in tenths of a millimetre.
    int pageNr() const noexcept { return myPageNr; } ///< The page number of the catalogue.
    /// The name joined to "icons/picjolly/" without a check, so a name with ".." can leave that directory.
    QString imageName() const { return myImageName; }
    /// The placeholder; null if it cannot be loaded. The first call loads it, and copies share it afterwards. Only one
    /// thread at a time may call it.
    QImage image() const;
    /// True for a rectangle that is not empty, with the name of an image.
    bool isValid() const noexcept;

    /// Compares the name of the image, not the image itself.
    /// @{
    bool operator==(const RVBarcodeDefinition &other) const;
    bool operator!=(const RVBarcodeDefinition &other) const { return !(*this == other); }
    /// @}
    /// This is no strict order: true if any of left, top, width, height and page is smaller here, even if an earlier
    /// one is larger; otherwise by the name of the image.
    bool operator<(const RVBarcodeDefinition &other) const;

private:
    QRect myRect;
    int myPageNr = 0;
    QString myImageName;
    mutable QImage myImage;
};

Q_DECLARE_TYPEINFO(RVBarcodeDefinition, Q_RELOCATABLE_TYPE);

#endif
