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
 * What a customer has chosen, as a project file says it: an XML file whose root element, of any name, names the
 * product, the page count and the options.
 *
 * A file is refused for the same reasons as a catalogue is by RVCatalogueReader. The default project is of the usual
 * type and has chosen nothing.
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

    /// Reads a file to its end; hasError() tells whether that went well.
    /// @{
    static RVCatalogueProject read(const QString &fileName);
    static RVCatalogueProject read(QIODevice *device); ///< Open for reading; stays the caller's.
    /// @}

    RVProductType type() const; ///< "productname", by RVProductType::fromKtx().
    QString pages() const; ///< "pages", as it is written; empty for the lowest count of the product.
    QString variants() const; ///< "variants", for RVArticleVariants::createFromKTX().
    RVCatalogueElement element() const; ///< The root element without what is in it, for the places of its attributes.

    /// True where the file could not be read to its end.
    bool hasError() const { return !myError.isEmpty(); }
    QString errorString() const { return myError; } ///< One line, without a full stop; empty without an error.
    /// The place where the reader noticed it; the begin of the file without an error.
    RVFilePosition errorPosition() const { return myErrorPosition; }

private:
    QExplicitlySharedDataPointer<RVCatalogueProductData> d;
    QString myError;
    RVFilePosition myErrorPosition;
};

#endif
