#ifndef RVCATALOGUEELEMENT_H
#define RVCATALOGUEELEMENT_H

#include "RVCatalogueExport.h"
#include "RVFileRange.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

class RVCatalogueProductData;

/**
 * A product element as it stands in the file, or an element in it: its attributes as texts, its child elements, and the
 * places of both. It is for what RVCatalogueProduct has no function for, and for who judges the text rather than the
 * value.
 *
 * An element is a view of a product and small enough to be passed by value. It is valid as long as the product that it
 * came from, or a copy of that product, is there. The default element is null: it has no name, no attributes and no
 * children, and neither has the missing child or sibling of another one, so calls can be chained.
 *
 * Names are compared exactly, prefixes included. Any thread may ask.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueElement
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueElement
{
public:
    RVCatalogueElement() = default;

    bool isNull() const noexcept { return !d; } ///< True for the default element, and where there was none to return.
    QString name() const; ///< With its prefix; empty for a null element.
    QByteArrayView utf8Name() const noexcept; ///< The same in UTF-8 and without a copy.

    bool hasAttribute(QLatin1StringView name) const noexcept; ///< Also where its value is empty.
    /// The value as XML reads it, entities resolved; null where the attribute is missing, empty where its text is.
    QString attribute(QLatin1StringView name) const;
    /// The same in UTF-8 and without a copy; its size is 0 in both cases.
    QByteArrayView utf8(QLatin1StringView name) const noexcept;
    /// In the order of the file.
    QStringList attributeNames() const;
    int attributeCount() const noexcept; ///< 0 for a null element.
    /// The name of one of them, from 0 to attributeCount() - 1, in UTF-8 and without a copy.
    QByteArrayView attributeName(int index) const noexcept;

    RVFilePosition position() const; ///< Of the "<" of the start tag.
    RVFileRange range() const; ///< The start tag, from "<" to ">".
    /// The attribute from the first letter of its name to the quote behind its value; the start tag where it is
    /// missing.
    /// @{
    RVFileRange attributeRange(QLatin1StringView name) const;
    RVFileRange attributeRange(int index) const;
    /// @}
    /// A piece of a value, @p length UTF-16 code units from @p from on, which is read where it stands. Nothing where
    /// the value has no such piece, where references or line ends make XML read something else than what stands in the
    /// file, and where the attribute is not in the file.
    std::optional<RVFileRange> valueRange(QLatin1StringView name, qsizetype from, qsizetype length) const;

    /// The first child, or the next sibling, of that name; of any name where it is empty. Texts and comments do not
    /// count.
    /// @{
    RVCatalogueElement firstChildElement(QLatin1StringView name = {}) const noexcept;
    RVCatalogueElement nextSiblingElement(QLatin1StringView name = {}) const noexcept;
    /// @}

private:
    friend class RVCatalogueProduct;
    friend class RVCatalogueProject;

    RVCatalogueElement(const RVCatalogueProductData *data, quint32 index, quint32 siblingsEnd) noexcept;
    RVCatalogueElement named(QLatin1StringView name) const noexcept;
    RVCatalogueElement next() const noexcept;

    const RVCatalogueProductData *d = nullptr;
    quint32 myIndex = 0;
    quint32 mySiblingsEnd = 0;
};

Q_DECLARE_TYPEINFO(RVCatalogueElement, Q_RELOCATABLE_TYPE);

#endif
