#include "RVProductArchive_p.h"

#include "RVCatalogueReader.h"

#include <QBuffer>

#include <algorithm>

namespace {

/// The level of compression. A higher one takes noticeably longer, and a lower one saves no time.
constexpr int EFFORT = 1;
/// A reader accepts larger products in parts, but a tag may be larger here than in the file.
constexpr qsizetype LARGEST = 32768; // 32 KiB

/// The product in groups with the names of its families.
QByteArray withFamilies(const RVCatalogueProduct &product)
{
    QByteArray result;
    const QStringList families = product.families();
    for (const QString &family : families) {
        QString name = family.toHtmlEscaped();
        name.replace(u'\t', QLatin1StringView("&#9;"))
                .replace(u'\n', QLatin1StringView("&#10;"))
                .replace(u'\r', QLatin1StringView("&#13;"));
        result += "<f name=\"" + name.toUtf8() + "\">";
    }
    return result + product.toXml() + QByteArray("</f>").repeated(families.size());
}

}

RVProductPack::RVProductPack(const QList<RVCatalogueProduct> &products)
{
    QByteArray text;
    for (const RVCatalogueProduct &product : products) {
        const QByteArray element = withFamilies(product);
        if (element.size() <= LARGEST)
            text += element;
        else
            large.insert(ends.size(), product);
        ends += int(text.size());
    }
    elements = qCompress(text, EFFORT);
    elements.squeeze();
}

void RVProductArchive::append(const RVProductPack &pack)
{
    if (pack.size() == 0)
        return;
    myPacks.push_back({ pack, mySize });
    mySize += pack.size();
}

RVCatalogueProduct RVProductArchive::product(qint64 number) const
{
    const auto behind = std::upper_bound(myPacks.begin(), myPacks.end(), number,
                                         [](qint64 wanted, const Place &place) { return wanted < place.first; });
    const auto index = std::size_t(behind - myPacks.begin()) - 1;
    const qint64 inPack = number - myPacks[index].first;
    const RVProductPack &pack = myPacks[index].pack;
    if (pack.large.contains(inPack))
        return pack.large.value(inPack);
    unpack(index);
    const QList<int> &ends = pack.ends;
    const int begin = inPack == 0 ? 0 : ends.at(inPack - 1);
    QBuffer buffer;
    buffer.setData(myUnpacked.constData() + begin, ends.at(inPack) - begin);
    buffer.open(QIODevice::ReadOnly);
    return RVCatalogueReader(&buffer).next();
}

void RVProductArchive::unpack(std::size_t pack) const
{
    if (myUnpackedPack == pack)
        return;
    myUnpacked = qUncompress(myPacks[pack].pack.elements);
    myUnpackedPack = pack;
}
