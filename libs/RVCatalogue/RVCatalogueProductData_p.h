#ifndef RVCATALOGUEPRODUCTDATA_P_H
#define RVCATALOGUEPRODUCTDATA_P_H

#include "RVCatalogueFinding.h"
#include "RVFilePosition.h"
#include "RVSuppressionScope_p.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QSharedData>
#include <QStringList>

#include <vector>

struct RVXmlTag;

/// The elements of a product: the text of all its start tags in the file, one behind the other, and rows with the
/// offsets of their parts. So a value costs no copy, and the place of an attribute is computed only when a caller needs
/// it.
struct RVCatalogueRows
{
    struct Piece
    {
        quint32 begin;
        quint32 size;
    };
    struct Attribute
    {
        Piece name;
        Piece value; // in the tag, or behind all tags if XML reads other letters than the file has
        quint32 end = 0; // of the quote behind the value
    };
    struct Element
    {
        Piece tag;
        quint32 nameSize;
        quint32 attributesBegin;
        quint32 attributesEnd;
        quint32 end; // behind the last element in it; elements follow one another as they start
        RVFilePosition position;
    };

    /// Appends an element without children.
    void append(const RVXmlTag &tag);

    QByteArrayView view(const Piece &piece) const noexcept
    {
        return QByteArrayView(text).sliced(piece.begin, piece.size);
    }
    QByteArrayView name(const Element &element) const noexcept
    {
        return QByteArrayView(text).sliced(element.tag.begin + 1, element.nameSize);
    }

    std::vector<Element> elements; // the product first
    std::vector<Attribute> attributes;
    QByteArray text; // UTF-8

private:
    void appendGiven(const RVXmlTag &tag, quint32 begin);
    Piece append(QByteArrayView bytes);
};

class RVCatalogueProductData : public QSharedData
{
public:
    RVCatalogueRows rows;
    QStringList families;
    std::vector<RVSuppression> suppressions; // in the product and in front of it, in the order of the file
    RVSuppressionScope::Pointer scope; // of the groups around it; null if no comment stands in front of them
    QList<RVCatalogueFinding> findings;
    qint64 number = 0;
};

#endif
