#ifndef CATALOGUEBATCH_H
#define CATALOGUEBATCH_H

#include "FilePosition.h"

#include <QString>
#include <QStringView>

#include <initializer_list>
#include <vector>

class QDomDocument;
class QDomElement;
class QXmlStreamAttributes;

class CatalogueBatch;

/// An element of a batch, read as one reads a QDomElement. Valid as long as its batch is, and as long as that does not
/// change; so are the texts.
class CatalogueElement
{
public:
    CatalogueElement() = default; ///< No element; without attributes and children.

    bool isNull() const { return !myBatch; }
    QStringView tagName() const;
    /// Where the start tag begins.
    FilePosition position() const;

    bool hasAttribute(QLatin1StringView name) const { return !attribute(name).isNull(); }
    /// Null where there is no such attribute, empty where its text is.
    QStringView attribute(QLatin1StringView name) const;
    QString text(QLatin1StringView name) const { return attribute(name).toString(); }

    /// Children by name, any where that is empty.
    /// @{
    CatalogueElement firstChildElement(QLatin1StringView name = {}) const;
    CatalogueElement nextSiblingElement(QLatin1StringView name = {}) const;
    /// @}

    /// Copies for the library's readers: the element with those of its attributes that are named, or with all
    /// attributes and elements in it.
    /// @{
    QDomElement copy(QDomDocument *document, std::initializer_list<QLatin1StringView> attributes) const;
    QDomElement deepCopy(QDomDocument *document) const;
    /// @}

private:
    friend class CatalogueBatch;

    CatalogueElement(const CatalogueBatch *batch, quint32 index, quint32 siblingsEnd);
    /// The first element of that name from this one on.
    CatalogueElement named(QLatin1StringView name) const;
    CatalogueElement next() const;

    const CatalogueBatch *myBatch = nullptr;
    quint32 myIndex = 0;
    quint32 mySiblingsEnd = 0;
};

/**
 * Some products of a catalogue that follow one another, with all elements, attributes and positions but without texts
 * between tags, which no product needs.
 *
 * Everything lies in three arrays, so a product costs a tenth of what a QDomDocument of it would, and batches can be
 * handed from thread to thread.
 */
class CatalogueBatch
{
public:
    /// @p firstProduct counts the products of the file from 0.
    explicit CatalogueBatch(qint64 firstProduct = 0) : myFirstProduct(firstProduct) { }

    qint64 firstProduct() const { return myFirstProduct; }
    int size() const { return int(myProducts.size()); }
    bool isEmpty() const { return myProducts.empty(); }
    /// All names and attributes together, in UTF-16 code units.
    qsizetype textSize() const { return myText.size(); }
    CatalogueElement at(int number) const;

    /// Products are appended element by element: every start is followed by the starts and ends of what is in it, then
    /// by its end.
    /// @{
    void startElement(QStringView name, const QXmlStreamAttributes &attributes, const FilePosition &position);
    void endElement();
    /// @}
    /// Takes back the product that has not come to its end.
    void dropUnfinished();

private:
    friend class CatalogueElement;

    struct Text
    {
        quint32 begin;
        quint32 size;
    };
    struct Attribute
    {
        Text name;
        Text value;
    };
    struct Element
    {
        Text name;
        quint32 attributesBegin;
        quint32 attributesEnd;
        quint32 end; // behind the last element in it; elements follow one another as they start
        FilePosition position;
    };

    Text append(QStringView text);
    QStringView view(const Text &text) const { return QStringView(myText).mid(text.begin, text.size); }

    QString myText;
    std::vector<Attribute> myAttributes;
    std::vector<Element> myElements;
    std::vector<quint32> myProducts; // their elements
    std::vector<quint32> myOpenElements;
    qint64 myFirstProduct;
};

#endif
