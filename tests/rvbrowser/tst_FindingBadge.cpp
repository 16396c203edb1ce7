#include "FaultyProducts.h"
#include "ReadCatalogue.h"

#include <FindingBadge.h>
#include <PaletteColors.h>
#include <ProductTreeModel.h>

#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Room for one item, on a picture with an edge around it.
constexpr QRect ROOM(10, 10, 100, 24);

}

class tst_FindingBadge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void widths_data();
    void widths();
    void needsTheRoomOfItsText();
    void standsAtTheRight();
    void isRound();
    void isStraightBetweenItsEnds();
    void fillsANarrowColumn();
    void showsTheNumber();
    void paintsNoBadge();
    void marksWhatIsSelected();
    void givesThePainterBack();

private:
    /// The badge of the product, or of its kind of article.
    QImage paint(int product, const QStyleOptionViewItem &option) const;
    QStyleOptionViewItem option() const;
    QModelIndex index(int product) const;
    QColor ground(RVCatalogueSeverity severity) const
    {
        return PaletteColors(PaletteColors::light()).severity(severity);
    }

    ProductTreeModel myModel;
    FindingBadge myBadge;
};

void tst_FindingBadge::init()
{
    myModel.setCatalogue(readCatalogue(FAULTY_PRODUCTS));
}

QModelIndex tst_FindingBadge::index(int product) const
{
    return myModel.indexOfProduct(product).siblingAtColumn(ProductTreeModel::FindingsColumn);
}

QStyleOptionViewItem tst_FindingBadge::option() const
{
    QStyleOptionViewItem result;
    result.palette = PaletteColors::light();
    result.rect = ROOM;
    result.state = QStyle::State_Enabled;
    return result;
}

QImage tst_FindingBadge::paint(int product, const QStyleOptionViewItem &option) const
{
    QImage result(120, 44, QImage::Format_RGB32);
    result.fill(Qt::white);
    QPainter painter(&result);
    myBadge.paint(&painter, option, index(product));
    return result;
}

void tst_FindingBadge::widths_data()
{
    QTest::addColumn<int>("number");

    QTest::newRow("two digits") << 88;
    QTest::newRow("five digits") << 88888;
}

// With 5 pixels beside the number in the badge, and 2 beside the badge.
void tst_FindingBadge::widths()
{
    QFETCH(int, number);
    const QFontMetrics metrics { QFont() };
    const int text = metrics.horizontalAdvance(QString::number(number));
    QVERIFY(text + 10 > metrics.height());
    QCOMPARE(FindingBadge::widthOf(number, metrics), text + 14);
    QCOMPARE(FindingBadge::widthOf(1, metrics), qMax(metrics.height(), metrics.horizontalAdvance(u'1') + 10) + 4);
    QVERIFY(metrics.horizontalAdvance(u'1') + 10 != metrics.height());
}

void tst_FindingBadge::needsTheRoomOfItsText()
{
    QCOMPARE(myBadge.sizeHint(option(), index(3)).width(), FindingBadge::widthOf(3, option().fontMetrics));
    QVERIFY(myBadge.sizeHint(option(), index(3)).height() >= option().fontMetrics.height());
}

// One pixel above the bottom of its row, so that badges do not touch.
void tst_FindingBadge::standsAtTheRight()
{
    const QImage image = paint(0, option());
    const QString fault = ground(RVCatalogueSeverity::Error).name();
    const int middle = ROOM.center().y();
    const int width = FindingBadge::widthOf(1, option().fontMetrics) - 4;
    const int right = ROOM.right() - 2;
    const int left = right - width + 1;
    // Beside the number the ground reaches from end to end.
    for (const int x : { left + 1, right - 1 })
        QCOMPARE(image.pixelColor(x, middle).name(), fault);
    for (const int x : { left - 1, right + 1 })
        QCOMPARE(image.pixelColor(x, middle).name(), QColor(Qt::white).name());
    const int center = (left + right) / 2;
    QVERIFY(image.pixelColor(center, ROOM.top()).lightness() < 128);
    QVERIFY(image.pixelColor(center, ROOM.bottom() - 1).lightness() < 128);
    QCOMPARE(image.pixelColor(center, ROOM.bottom()).name(), QColor(Qt::white).name());
    QCOMPARE(image.pixelColor(center, ROOM.top() - 1).name(), QColor(Qt::white).name());
}

void tst_FindingBadge::isRound()
{
    const QImage image = paint(0, option());
    const int right = ROOM.right() - 2;
    const int left = right - FindingBadge::widthOf(1, option().fontMetrics) + 5;
    for (const QPoint corner : { QPoint(left, ROOM.top()), QPoint(right, ROOM.top()), QPoint(left, ROOM.bottom() - 1),
                                 QPoint(right, ROOM.bottom() - 1) })
        QCOMPARE(image.pixelColor(corner).name(), QColor(Qt::white).name());
    QSet<QRgb> shades;
    for (int y = ROOM.top(); y < ROOM.top() + 6; ++y) {
        for (int x = left; x < left + 6; ++x)
            shades += image.pixel(x, y);
    }
    QVERIFY(shades.size() > 2); // a smooth edge
}

// Its sides are, and its upper edge is straight.
void tst_FindingBadge::isStraightBetweenItsEnds()
{
    myModel.setCatalogue(readCatalogue("<p><product type='A' article_id='1'><forms>"
                                       + QByteArray("<form key='a'/>").repeated(8888) + "</forms></product></p>"));
    QCOMPARE(index(0).data().toInt(), 8888);
    const QImage image = paint(0, option());
    const int left = ROOM.right() - 2 - FindingBadge::widthOf(8888, option().fontMetrics) + 5;
    const QColor edge = image.pixelColor(left + ROOM.height() / 2 + 1, ROOM.top());
    QVERIFY2(edge.lightness() < 128, qPrintable(edge.name()));
    QVERIFY(edge.red() > 2 * edge.green()); // without a line around it
}

void tst_FindingBadge::fillsANarrowColumn()
{
    QStyleOptionViewItem narrow = option();
    narrow.rect.setWidth(14);
    const QImage image = paint(0, narrow);
    const int middle = ROOM.center().y();
    QCOMPARE(image.pixelColor(ROOM.left() + 1, middle).name(), QColor(Qt::white).name());
    QCOMPARE(image.pixelColor(ROOM.left() + 12, middle).name(), QColor(Qt::white).name());
    QVERIFY(image.pixelColor(ROOM.left() + 2, middle).name() != QColor(Qt::white).name());
}

void tst_FindingBadge::showsTheNumber()
{
    const PaletteColors colors(PaletteColors::light());
    QImage expected(120, 44, QImage::Format_RGB32);
    expected.fill(ground(RVCatalogueSeverity::Error));
    {
        QPainter painter(&expected);
        painter.setPen(colors.textOnSeverity());
        const int width = FindingBadge::widthOf(3, option().fontMetrics) - 4;
        painter.drawText(QRect(ROOM.right() - 2 - width + 1, ROOM.top(), width, ROOM.height() - 1), Qt::AlignCenter,
                         u"3"_s);
    }
    const QImage image = paint(3, option());
    // The middle of the badge, in which there is nothing but the number.
    const int width = option().fontMetrics.horizontalAdvance(u'3');
    const QRect middle(ROOM.right() - 2 - FindingBadge::widthOf(3, option().fontMetrics) / 2 + 2 - width / 2,
                       ROOM.center().y() - 4, width, 8);
    QCOMPARE(image.copy(middle), expected.copy(middle));
    QVERIFY(image.copy(middle) != paint(0, option()).copy(middle));
}

// A product without findings has no badge, but the ground of its row.
void tst_FindingBadge::paintsNoBadge()
{
    const QImage image = paint(2, option());
    QImage empty(image.size(), QImage::Format_RGB32);
    empty.fill(Qt::white);
    QCOMPARE(image, empty);
}

void tst_FindingBadge::marksWhatIsSelected()
{
    QStyleOptionViewItem selected = option();
    selected.state |= QStyle::State_Selected | QStyle::State_Active;
    selected.showDecorationSelected = true;
    const QImage image = paint(2, selected);
    QCOMPARE(image.pixelColor(ROOM.center()).name(), selected.palette.color(QPalette::Highlight).name());
    // The number stands in the badge alone.
    const QImage faulty = paint(0, selected);
    QSet<QRgb> shades;
    for (int x = ROOM.left() + 2; x < ROOM.center().x(); ++x) {
        for (int y = ROOM.top() + 4; y < ROOM.bottom() - 4; ++y)
            shades += faulty.pixel(x, y);
    }
    QCOMPARE(shades.size(), 1);
}

void tst_FindingBadge::givesThePainterBack()
{
    QImage image(120, 44, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(Qt::green);
    painter.setBrush(Qt::blue);
    painter.setRenderHint(QPainter::Antialiasing, false);
    myBadge.paint(&painter, option(), index(0));
    QCOMPARE(painter.pen().color(), QColor(Qt::green));
    QCOMPARE(painter.brush().color(), QColor(Qt::blue));
    QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
}

QTEST_MAIN(tst_FindingBadge)
#include "tst_FindingBadge.moc"
