#include "CatalogueBatch.h"

#include <QDomDocument>
#include <QXmlStreamAttributes>

#include <algorithm>
#include <utility>

CatalogueElement::CatalogueElement(const CatalogueBatch *batch, quint32 index, quint32 siblingsEnd)
    : myBatch(index < siblingsEnd ? batch : nullptr),
      myIndex(index),
      mySiblingsEnd(siblingsEnd)
{ }

QStringView CatalogueElement::tagName() const
{
    return myBatch ? myBatch->view(myBatch->myElements[myIndex].name) : QStringView();
}

FilePosition CatalogueElement::position() const
{
    return myBatch ? myBatch->myElements[myIndex].position : FilePosition();
}

QStringView CatalogueElement::attribute(QLatin1StringView name) const
{
    if (!myBatch)
        return QStringView();
    const CatalogueBatch::Element &element = myBatch->myElements[myIndex];
    const auto begin = myBatch->myAttributes.begin() + element.attributesBegin;
    const auto end = myBatch->myAttributes.begin() + element.attributesEnd;
    const auto found = std::find_if(begin, end, [&](const CatalogueBatch::Attribute &attribute) {
        return attribute.name.size == quint32(name.size()) && myBatch->view(attribute.name) == name;
    });
    return found == end ? QStringView() : myBatch->view(found->value);
}

CatalogueElement CatalogueElement::named(QLatin1StringView name) const
{
    CatalogueElement element = *this;
    while (!element.isNull() && !name.isEmpty() && element.tagName() != name)
        element = element.next();
    return element;
}

CatalogueElement CatalogueElement::next() const
{
    return CatalogueElement(myBatch, myBatch->myElements[myIndex].end, mySiblingsEnd);
}

CatalogueElement CatalogueElement::firstChildElement(QLatin1StringView name) const
{
    if (!myBatch)
        return CatalogueElement();
    return CatalogueElement(myBatch, myIndex + 1, myBatch->myElements[myIndex].end).named(name);
}

CatalogueElement CatalogueElement::nextSiblingElement(QLatin1StringView name) const
{
    return myBatch ? next().named(name) : CatalogueElement();
}

QDomElement CatalogueElement::copy(QDomDocument *document, std::initializer_list<QLatin1StringView> attributes) const
{
    QDomElement result = document->createElement(tagName().toString());
    for (const QLatin1StringView name : attributes) {
        const QStringView value = attribute(name);
        if (!value.isNull())
            result.setAttribute(name, value.toString());
    }
    return result;
}

QDomElement CatalogueElement::deepCopy(QDomDocument *document) const
{
    if (!myBatch)
        return QDomElement();
    QDomElement result;
    std::vector<std::pair<QDomElement, quint32>> open; // with the end of what is in it
    for (quint32 index = myIndex; index < myBatch->myElements[myIndex].end; ++index) {
        const CatalogueBatch::Element &element = myBatch->myElements[index];
        QDomElement copy = document->createElement(myBatch->view(element.name).toString());
        for (quint32 i = element.attributesBegin; i < element.attributesEnd; ++i) {
            const CatalogueBatch::Attribute &attribute = myBatch->myAttributes[i];
            copy.setAttribute(myBatch->view(attribute.name).toString(), myBatch->view(attribute.value).toString());
        }
        while (!open.empty() && open.back().second <= index)
            open.pop_back();
        if (open.empty())
            result = copy;
        else
            open.back().first.appendChild(copy);
        open.emplace_back(copy, element.end);
    }
    return result;
}

CatalogueElement CatalogueBatch::at(int number) const
{
    const quint32 index = myProducts[std::size_t(number)];
    return CatalogueElement(this, index, index + 1);
}

void CatalogueBatch::startElement(QStringView name, const QXmlStreamAttributes &attributes,
                                  const FilePosition &position)
{
    const auto index = quint32(myElements.size());
    if (myOpenElements.empty())
        myProducts.push_back(index);
    myOpenElements.push_back(index);
    const auto firstAttribute = quint32(myAttributes.size());
    const Text ownName = append(name);
    for (const QXmlStreamAttribute &attribute : attributes)
        myAttributes.push_back({ append(attribute.qualifiedName()), append(attribute.value()) });
    myElements.push_back({ ownName, firstAttribute, quint32(myAttributes.size()), index + 1, position });
}

void CatalogueBatch::endElement()
{
    myElements[myOpenElements.back()].end = quint32(myElements.size());
    myOpenElements.pop_back();
}

void CatalogueBatch::dropUnfinished()
{
    if (myOpenElements.empty())
        return;
    const Element &product = myElements[myProducts.back()];
    myText.truncate(product.name.begin);
    myAttributes.resize(product.attributesBegin);
    myElements.resize(myProducts.back());
    myProducts.pop_back();
    myOpenElements.clear();
}

CatalogueBatch::Text CatalogueBatch::append(QStringView text)
{
    const Text result = { quint32(myText.size()), quint32(text.size()) };
    myText.append(text);
    return result;
}
