#include "RVProductFingerprint_p.h"

#include "RVCatalogueProduct.h"
#include "RVCatalogueProductData_p.h"

#include <QCryptographicHash>
#include <QVarLengthArray>

#include <algorithm>
#include <cstring>

namespace {

// XML has none of these characters, so they are unambiguous.
constexpr char ELEMENT_BEGIN = '\1';
constexpr char TEXT_END = '\0';

bool isBefore(QByteArrayView a, QByteArrayView b)
{
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end());
}

/// Writes the elements of a product in a canonical form.
class CanonicalText
{
public:
    explicit CanonicalText(const RVCatalogueRows &rows) : myRows(rows) { myText.reserve(rows.text.size()); }

    void append(QByteArrayView text) { myText.append(text).append(TEXT_END); }

    void appendElements()
    {
        for (const RVCatalogueRows::Element &element : myRows.elements)
            appendElement(element);
    }

    const QByteArray &text() const { return myText; }

private:
    void appendElement(const RVCatalogueRows::Element &element)
    {
        QVarLengthArray<const RVCatalogueRows::Attribute *> sorted;
        for (quint32 i = element.attributesBegin; i < element.attributesEnd; ++i)
            sorted.append(&myRows.attributes[i]);
        std::sort(sorted.begin(), sorted.end(),
                  [this](const RVCatalogueRows::Attribute *a, const RVCatalogueRows::Attribute *b) {
                      return isBefore(myRows.view(a->name), myRows.view(b->name));
                  });
        myText.append(ELEMENT_BEGIN);
        append(myRows.name(element));
        append(QByteArray::number(element.end)); // tells which elements are in it
        for (const RVCatalogueRows::Attribute *attribute : sorted) {
            append(myRows.view(attribute->name));
            append(myRows.view(attribute->value));
        }
    }

    const RVCatalogueRows &myRows;
    QByteArray myText;
};

}

RVProductFingerprint::RVProductFingerprint(const RVCatalogueProduct &product)
{
    CanonicalText canonical(product.d->rows);
    for (const QString &family : product.d->families)
        canonical.append(family.toUtf8());
    canonical.appendElements();
    const QByteArray hash = QCryptographicHash::hash(canonical.text(), QCryptographicHash::Blake2b_160);
    std::memcpy(myHash.data(), hash.constData(), sizeof(myHash));
}
