#include "RVBarcodeComparison_p.h"

#include "RVCatalogueProduct.h"
#include "RVProductChanges_p.h"

#include <QHash>
#include <QJsonObject>

#include <deque>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A barcode, and its number on its page, from 1.
struct Barcode
{
    RVBarcodeDefinition definition;
    int number = 0;
    bool isMatched = false;
};

/// The fields in the terms of the catalogue, with the lower edge, on which the barcode stands.
RVDistance tenths(qint64 length)
{
    return RVDistance(qreal(length));
}

RVDistance lowerEdge(const QRect &rect)
{
    return tenths(qint64(rect.bottom()) + 1);
}

RVDistance width(const QRect &rect)
{
    return tenths(qint64(rect.right()) - rect.left() + 1);
}

RVDistance height(const QRect &rect)
{
    return tenths(qint64(rect.bottom()) - rect.top() + 1);
}

double millimetres(const RVDistance &length)
{
    return length.value(DISTANCE_UNIT_MILLIMETRE);
}

std::vector<Barcode> barcodesOf(const RVBarcodeDefinitionList &definitions)
{
    std::vector<Barcode> result;
    QHash<int, int> numbers;
    for (const RVBarcodeDefinition &definition : definitions)
        result.push_back({ definition, ++numbers[definition.pageNr()] });
    return result;
}

/// Keys that are the same for barcodes that belong together: equal barcodes, barcodes on one page, and any barcodes.
/// @{
QString identity(const RVBarcodeDefinition &barcode)
{
    const QRect rect = barcode.rect();
    return u"%1 %2 %3 %4 %5 %6"_s.arg(rect.left())
            .arg(rect.top())
            .arg(rect.right())
            .arg(rect.bottom())
            .arg(QString::number(barcode.pageNr()), barcode.imageName());
}

QString page(const RVBarcodeDefinition &barcode)
{
    return QString::number(barcode.pageNr());
}

QString anywhere(const RVBarcodeDefinition &)
{
    return QString();
}
/// @}

RVComparedValue compared(const RVBarcodeDefinition &barcode)
{
    const QRect rect = barcode.rect();
    const QString text = RVChangeText::tr("%1 x %2 mm at %3, %4, \"%5\"")
                                 .arg(rvMillimetres(width(rect)), rvMillimetres(height(rect)),
                                      rvMillimetres(tenths(rect.left())), rvMillimetres(lowerEdge(rect)),
                                      barcode.imageName());
    return { text,
             QJsonObject { { u"height"_s, millimetres(height(rect)) },
                           { u"image"_s, barcode.imageName() },
                           { u"page"_s, barcode.pageNr() },
                           { u"position_x"_s, millimetres(tenths(rect.left())) },
                           { u"position_y"_s, millimetres(lowerEdge(rect)) },
                           { u"width"_s, millimetres(width(rect)) } } };
}

void beginItem(const Barcode &barcode, RVProductChanges *changes)
{
    const int page = barcode.definition.pageNr();
    changes->beginItem(RVChangeText::tr("Barcode %1 on page %2").arg(barcode.number).arg(page),
                       QJsonObject { { u"number"_s, barcode.number }, { u"page"_s, page } });
}

/// Each barcode belongs to at most one of the other product.
class BarcodeMatching
{
public:
    BarcodeMatching(const RVBarcodeDefinitionList &before, const RVBarcodeDefinitionList &after)
        : myOld(barcodesOf(before)),
          myNew(barcodesOf(after))
    { }

    void compare(RVProductChanges *changes)
    {
        match(identity, changes);
        match(page, changes);
        match(anywhere, changes);
        for (const Barcode &barcode : myOld) {
            if (!barcode.isMatched)
                addOne(barcode, { compared(barcode.definition), {} }, changes);
        }
        for (const Barcode &barcode : myNew) {
            if (!barcode.isMatched)
                addOne(barcode, { {}, compared(barcode.definition) }, changes);
        }
    }

private:
    void match(QString (*keyOf)(const RVBarcodeDefinition &barcode), RVProductChanges *changes)
    {
        QHash<QString, std::deque<Barcode *>> waiting;
        for (Barcode &barcode : myOld) {
            if (!barcode.isMatched)
                waiting[keyOf(barcode.definition)].push_back(&barcode);
        }
        for (Barcode &barcode : myNew) {
            if (barcode.isMatched)
                continue;
            const auto found = waiting.find(keyOf(barcode.definition));
            if (found == waiting.end() || found->empty())
                continue;
            barcode.isMatched = true;
            found->front()->isMatched = true;
            compareTwo(*found->front(), barcode, changes);
            found->pop_front();
        }
    }

    static void compareTwo(const Barcode &before, const Barcode &after, RVProductChanges *changes)
    {
        const RVVersions<QRect> rects { before.definition.rect(), after.definition.rect() };
        const auto lengths = [&rects](RVDistance (*length)(const QRect &)) {
            return RVVersions<RVDistance> { length(rects.before), length(rects.after) };
        };
        beginItem(after, changes);
        changes->addNumber("barcode.page"_L1, RVChangeText::tr("page"),
                           { before.definition.pageNr(), after.definition.pageNr() });
        changes->addLength("barcode.position_x"_L1, RVChangeText::tr("left edge"),
                           lengths([](const QRect &rect) { return tenths(rect.left()); }));
        changes->addLength("barcode.position_y"_L1, RVChangeText::tr("lower edge"), lengths(lowerEdge));
        changes->addLength("barcode.width"_L1, RVChangeText::tr("width"), lengths(width));
        changes->addLength("barcode.height"_L1, RVChangeText::tr("height"), lengths(height));
        changes->addText("barcode.image"_L1, RVChangeText::tr("image"),
                         { before.definition.imageName(), after.definition.imageName() });
    }

    static void addOne(const Barcode &barcode, const RVVersions<RVComparedValue> &values, RVProductChanges *changes)
    {
        beginItem(barcode, changes);
        changes->add("barcode"_L1, QString(), values);
    }

    std::vector<Barcode> myOld;
    std::vector<Barcode> myNew;
};

}

void rvCompareBarcodes(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes)
{
    const RVVersions<RVBarcodeDefinitionList> barcodes { before.barcodes(), after.barcodes() };
    if (barcodes.differ())
        BarcodeMatching(barcodes.before, barcodes.after).compare(changes);
}
