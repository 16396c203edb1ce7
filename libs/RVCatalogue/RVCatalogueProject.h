#ifndef RVCATALOGUEPROJECT_H
#define RVCATALOGUEPROJECT_H

#include "RVCatalogueElement.h"
#include "RVCatalogueExport.h"
#include "RVFilePosition.h"

#include <RVProductType.h>

#include <QExplicitlySharedDataPointer>
#include <QString>

class QIODevice;

/**
 * The choice of a customer in a project file: an XML file whose root element, of any name, has the product, the page
 * count and the options.
 *
 * A file is refused for the same reasons for which RVCatalogueReader refuses a catalogue. The default project has the
 * default type and no chosen options.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueProject
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueProject
{
public:
    RVCatalogueProject();
    RVCatalogueProject(const RVCatalogueProject &other);
    RVCatalogueProject(RVCatalogueProject &&other) noexcept;
    RVCatalogueProject &operator=(const RVCatalogueProject &other);
    RVCatalogueProject &operator=(RVCatalogueProject &&other) noexcept;
    ~RVCatalogueProject();

    /// Reads a file to its end; hasError() is false if that succeeded.
    /// @{
    static RVCatalogueProject read(const QString &fileName);
    static RVCatalogueProject read(QIODevice *device); ///< The device is open for reading and stays the caller's.
    /// @}

    RVProductType type() const; ///< "productname", by RVProductType::fromKtx().
    QString pages() const; ///< "pages", as a text; empty for the lowest count of the product.
    QString variants() const; ///< "variants", for RVArticleVariants::createFromKTX().
    RVCatalogueElement element() const; ///< The root element without its contents, for the places of its attributes.

    /// True if the file could not be read to its end.
    bool hasError() const { return !myError.isEmpty(); }
    QString errorString() const { return myError; } ///< One line, without a full stop; empty without an error.
    /// The place where the reader noticed the error; the begin of the file without an error.
    RVFilePosition errorPosition() const { return myErrorPosition; }

private:
    QExplicitlySharedDataPointer<RVCatalogueProductData> d;
    QString myError;
    RVFilePosition myErrorPosition;
};

#endif
