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
 * places of both. It is for data without a function in RVCatalogueProduct, and for code that needs the text rather than
 * the value.
 *
 * An element is a view of a product and small enough to be passed by value. It is valid as long as its product, or a
 * copy of that product, exists. The default element is null: it has no name, no attributes and no children. The same
 * holds for a missing child or sibling, so calls can be chained.
 *
 * Names are compared exactly, prefixes included. Any thread may call the functions.
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

    bool isNull() const noexcept { return !d; } ///< True for the default element and for a missing one.
    QString name() const; ///< The name with its prefix; empty for a null element.
    QByteArrayView utf8Name() const noexcept; ///< The same in UTF-8 and without a copy.

    bool hasAttribute(QLatin1StringView name) const noexcept; ///< True even if its value is empty.
    /// The value as XML reads it, with resolved entities; null if the attribute is missing, empty if its text is empty.
    QString attribute(QLatin1StringView name) const;
    /// The same in UTF-8 and without a copy; its size is 0 in both cases.
    QByteArrayView utf8(QLatin1StringView name) const noexcept;
    /// The attributes in the order of the file.
    QStringList attributeNames() const;
    int attributeCount() const noexcept; ///< The number of attributes; 0 for a null element.
    /// The name of an attribute by its index, from 0 to attributeCount() - 1, in UTF-8 and without a copy; null for
    /// any other index.
    QByteArrayView attributeName(int index) const noexcept;

    RVFilePosition position() const; ///< The place of the "<" of the start tag.
    RVFileRange range() const; ///< The start tag, from "<" to ">".
    /// The attribute from the first letter of its name to the quote behind its value; the start tag if it is missing.
    /// @{
    RVFileRange attributeRange(QLatin1StringView name) const;
    RVFileRange attributeRange(int index) const;
    /// @}
    /// The place of a piece of a value, @p length UTF-16 code units from @p from on. None if the value has no such
    /// piece, if the piece begins or ends within a letter, if XML reads it differently from its text in the file
    /// because of references or line ends, or if the attribute is not in the file.
    std::optional<RVFileRange> valueRange(QLatin1StringView name, qsizetype from, qsizetype length) const;

    /// The first child, or the next sibling, with that name; with any name if it is empty. Texts and comments do not
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
