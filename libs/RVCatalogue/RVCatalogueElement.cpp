#include "RVCatalogueElement.h"

#include "RVCatalogueProductData_p.h"
#include "RVFilePosition_p.h"
#include "RVNameVocabulary_p.h"
#include "RVUtf8_p.h"

#include <algorithm>

namespace {

const RVCatalogueRows::Attribute *findAttribute(const RVCatalogueRows &rows, const RVCatalogueRows::Element &element,
                                                QLatin1StringView name)
{
    const auto *begin = rows.attributes.data() + element.attributesBegin;
    const auto *end = rows.attributes.data() + element.attributesEnd;
    const auto *found = std::find_if(begin, end, [&](const RVCatalogueRows::Attribute &attribute) {
        return rvIsName(rows.view(attribute.name), name);
    });
    return found == end ? nullptr : found;
}

/// The attribute with an index; null if there is none.
const RVCatalogueRows::Attribute *attributeAt(const RVCatalogueRows &rows, const RVCatalogueRows::Element &element,
                                              int index)
{
    const auto count = int(element.attributesEnd - element.attributesBegin);
    return index >= 0 && index < count ? &rows.attributes[element.attributesBegin + quint32(index)] : nullptr;
}

/// The place in a start tag at a number of bytes behind its begin. A line feed that belongs to a carriage return in
/// front of it never stands there, because it is no part of a name or a value.
RVFilePosition place(const RVCatalogueRows &rows, const RVCatalogueRows::Element &element, quint32 offset)
{
    return rvAdvanced(element.position, rows.view(element.tag).first(offset), '\0');
}

/// True between the two code units of a letter.
bool splitsLetter(const QString &text, qsizetype index)
{
    return index < text.size() && text.at(index).isLowSurrogate();
}

/// A piece of a start tag between two numbers of bytes behind its begin.
RVFileRange piece(const RVCatalogueRows &rows, const RVCatalogueRows::Element &element, quint32 begin, quint32 end)
{
    const RVFilePosition first = place(rows, element, begin);
    return { first, rvAdvanced(first, rows.view(element.tag).first(end).sliced(begin), '\0') };
}

RVFileRange rangeOf(const RVCatalogueRows &rows, const RVCatalogueRows::Element &element,
                    const RVCatalogueRows::Attribute &attribute)
{
    // A document type may give an attribute to an element that does not have it in the file.
    if (attribute.name.begin >= element.tag.begin + element.tag.size)
        return { element.position, place(rows, element, element.tag.size) };
    return piece(rows, element, attribute.name.begin - element.tag.begin, attribute.end - element.tag.begin);
}

}

RVCatalogueElement::RVCatalogueElement(const RVCatalogueProductData *data, quint32 index, quint32 siblingsEnd) noexcept
    : d(index < siblingsEnd ? data : nullptr),
      myIndex(index),
      mySiblingsEnd(siblingsEnd)
{ }

QString RVCatalogueElement::name() const
{
    return d ? QString::fromUtf8(d->rows.name(d->rows.elements[myIndex])) : QString();
}

QByteArrayView RVCatalogueElement::utf8Name() const noexcept
{
    return d ? d->rows.name(d->rows.elements[myIndex]) : QByteArrayView();
}

bool RVCatalogueElement::hasAttribute(QLatin1StringView name) const noexcept
{
    return d && findAttribute(d->rows, d->rows.elements[myIndex], name);
}

QByteArrayView RVCatalogueElement::utf8(QLatin1StringView name) const noexcept
{
    const auto *attribute = d ? findAttribute(d->rows, d->rows.elements[myIndex], name) : nullptr;
    return attribute ? d->rows.view(attribute->value) : QByteArrayView();
}

QString RVCatalogueElement::attribute(QLatin1StringView name) const
{
    const QByteArrayView text = utf8(name);
    return text.isNull() ? QString() : rvFromUtf8(text);
}

QStringList RVCatalogueElement::attributeNames() const
{
    QStringList result;
    if (!d)
        return result;
    const RVCatalogueRows::Element &element = d->rows.elements[myIndex];
    for (quint32 i = element.attributesBegin; i < element.attributesEnd; ++i)
        result += QString::fromUtf8(d->rows.view(d->rows.attributes[i].name));
    return result;
}

int RVCatalogueElement::attributeCount() const noexcept
{
    return d ? int(d->rows.elements[myIndex].attributesEnd - d->rows.elements[myIndex].attributesBegin) : 0;
}

QByteArrayView RVCatalogueElement::attributeName(int index) const noexcept
{
    const auto *attribute = d ? attributeAt(d->rows, d->rows.elements[myIndex], index) : nullptr;
    return attribute ? d->rows.view(attribute->name) : QByteArrayView();
}

RVFilePosition RVCatalogueElement::position() const
{
    return d ? d->rows.elements[myIndex].position : RVFilePosition();
}

RVFileRange RVCatalogueElement::range() const
{
    if (!d)
        return RVFileRange();
    const RVCatalogueRows::Element &element = d->rows.elements[myIndex];
    return { element.position, place(d->rows, element, element.tag.size) };
}

RVFileRange RVCatalogueElement::attributeRange(QLatin1StringView name) const
{
    if (!d)
        return RVFileRange();
    const RVCatalogueRows::Element &element = d->rows.elements[myIndex];
    const auto *attribute = findAttribute(d->rows, element, name);
    return attribute ? rangeOf(d->rows, element, *attribute) : range();
}

RVFileRange RVCatalogueElement::attributeRange(int index) const
{
    const auto *attribute = d ? attributeAt(d->rows, d->rows.elements[myIndex], index) : nullptr;
    return attribute ? rangeOf(d->rows, d->rows.elements[myIndex], *attribute) : range();
}

std::optional<RVFileRange> RVCatalogueElement::valueRange(QLatin1StringView name, qsizetype from,
                                                          qsizetype length) const
{
    const auto *attribute = d ? findAttribute(d->rows, d->rows.elements[myIndex], name) : nullptr;
    if (!attribute)
        return std::nullopt;
    const RVCatalogueRows::Element &element = d->rows.elements[myIndex];
    const bool isInTag = attribute->value.begin < element.tag.begin + element.tag.size;
    const QString value = rvFromUtf8(d->rows.view(attribute->value));
    if (!isInTag || from < 0 || length < 0 || from > value.size() - length || splitsLetter(value, from)
        || splitsLetter(value, from + length))
        return std::nullopt;
    const quint32 begin = attribute->value.begin - element.tag.begin;
    const auto before = quint32(QStringView(value).first(from).toUtf8().size());
    const auto piece = quint32(QStringView(value).sliced(from, length).toUtf8().size());
    return RVFileRange { place(d->rows, element, begin + before), place(d->rows, element, begin + before + piece) };
}

RVCatalogueElement RVCatalogueElement::firstChildElement(QLatin1StringView name) const noexcept
{
    if (!d)
        return RVCatalogueElement();
    return RVCatalogueElement(d, myIndex + 1, d->rows.elements[myIndex].end).named(name);
}

RVCatalogueElement RVCatalogueElement::nextSiblingElement(QLatin1StringView name) const noexcept
{
    return d ? next().named(name) : RVCatalogueElement();
}

RVCatalogueElement RVCatalogueElement::named(QLatin1StringView name) const noexcept
{
    RVCatalogueElement element = *this;
    while (!element.isNull() && !name.isEmpty() && !rvIsName(d->rows.name(d->rows.elements[element.myIndex]), name))
        element = element.next();
    return element;
}

RVCatalogueElement RVCatalogueElement::next() const noexcept
{
    return RVCatalogueElement(d, d->rows.elements[myIndex].end, mySiblingsEnd);
}
