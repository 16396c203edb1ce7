#include "MessageLog.h"

#include <RVCore/RVDirectoryConfig.h>
#include <RVCore/RVDistance.h>
#include <RVProductBase/RVBarcodeDefinition.h>

#include <QDir>
#include <QDomDocument>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

QDomElement element(const QString &attributes)
{
    static QDomDocument document;
    document.setContent(u"<barcode %1/>"_s.arg(attributes));
    return document.documentElement();
}

QList<int> edges(const QRect &rect)
{
    return { rect.left(), rect.top(), rect.right(), rect.bottom() };
}

QRect fromEdges(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

}

class tst_RVBarcodeDefinition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultConstruction();
    void construction();
    void reads_data();
    void reads();
    void createsFromLengths_data();
    void createsFromLengths();
    void reportsUnknownUnits();
    void validity_data();
    void validity();
    void compares_data();
    void compares();
    void orders_data();
    void orders();
    void loadsTheImageOnce();
};

void tst_RVBarcodeDefinition::defaultConstruction()
{
    const RVBarcodeDefinition definition;
    QCOMPARE(edges(definition.rect()), (QList<int> { 0, 0, -1, -1 }));
    QCOMPARE(definition.pageNr(), 0);
    QVERIFY(definition.imageName().isEmpty());
    QVERIFY(definition.image().isNull());
    QVERIFY(!definition.isValid());
    QCOMPARE(RVBarcodeDefinition::DEFAULT_IMAGE_NAME, u"dummy-barcode.png"_s);
    QVERIFY(std::has_virtual_destructor_v<RVBarcodeDefinition>);
}

void tst_RVBarcodeDefinition::construction()
{
    const RVBarcodeDefinition definition(QRect(1, 2, 3, 4), 5, u"code.png"_s);
    QCOMPARE(definition.rect(), QRect(1, 2, 3, 4));
    QCOMPARE(definition.pageNr(), 5);
    QCOMPARE(definition.imageName(), u"code.png"_s);
}

void tst_RVBarcodeDefinition::reads_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QList<int>>("rect");
    QTest::addColumn<int>("pageNr");
    QTest::addColumn<QString>("imageName");
    const QString dummy = u"dummy-barcode.png"_s;
    const auto row = [](const char *name, const QString &attributes, int unit, const QList<int> &rect, int pageNr,
                        const QString &imageName) {
        QTest::newRow(name) << attributes << unit << rect << pageNr << imageName;
    };
    row("nothing, millimetres", u""_s, 2, { 10, 0, 19, 9 }, 0, dummy);
    row("nothing, base unit", u""_s, 1, { 1, 0, 1, 0 }, 0, dummy);
    row("nothing, inches", u""_s, 4, { 254, 0, 507, 253 }, 0, dummy);
    row("nothing, centimetres", u""_s, 8, { 100, 0, 199, 99 }, 0, dummy);
    row("nothing, points", u""_s, 16, { 3, 0, 5, 2 }, 0, dummy);
    row("all", u"position_x='5.05' position_y='20' width='12.36' height='10' image='code.png' pageNr='-3'"_s, 2,
        { 50, 100, 172, 199 }, -3, u"code.png"_s);
    row("the lower edge before truncation", u"position_x='-1.9' position_y='10.9' width='1.9' height='0.5'"_s, 1,
        { -1, 10, -1, 9 }, 0, dummy);
    row("above the page, truncated toward zero", u"position_y='1' height='2.5'"_s, 1, { 1, -1, 1, 0 }, 0, dummy);
    row("just above the page", u"position_x='-0.5' position_y='0.25' height='1'"_s, 1, { 0, 0, 0, 0 }, 0, dummy);
    row("negative sides, truncated toward zero", u"width='-1.5' height='-1.5'"_s, 1, { 1, 2, -1, 0 }, 0, dummy);
    row("above the page", u"position_y='5' height='10'"_s, 1, { 1, -5, 1, 4 }, 0, dummy);
    row("no width", u"width='0'"_s, 2, { 10, 0, 9, 9 }, 0, dummy);
    row("negative width", u"width='-2'"_s, 2, { 10, 0, -11, 9 }, 0, dummy);
    row("no numbers", u"position_x='' position_y='x' width='1,5' height='nan' pageNr='1.5'"_s, 2, { 10, 0, 19, 9 }, 0,
        dummy);
    row("empty image", u"image=''"_s, 2, { 10, 0, 19, 9 }, 0, u""_s);
    row("huge", u"position_x='1e300' position_y='-1e300' width='1e300' height='1e300'"_s, 2,
        { largest, smallest, largest, -2 }, 0, dummy);
}

void tst_RVBarcodeDefinition::reads()
{
    QFETCH(QString, attributes);
    QFETCH(int, unit);
    const auto definition = RVBarcodeDefinition::createFromProductsXML(element(attributes), unit);
    QTEST(edges(definition.rect()), "rect");
    QTEST(definition.pageNr(), "pageNr");
    QTEST(definition.imageName(), "imageName");
}

void tst_RVBarcodeDefinition::createsFromLengths_data()
{
    QTest::addColumn<QList<qreal>>("lengths"); // left, lower edge, width, height
    QTest::addColumn<int>("unit");
    QTest::addColumn<QList<int>>("rect");
    const auto row = [](const char *name, const QList<qreal> &lengths, int unit, const QList<int> &rect) {
        QTest::newRow(name) << lengths << unit << rect;
    };
    row("millimetres", { 5.05, 20, 12.36, 10 }, 2, { 50, 100, 172, 199 });
    row("inches", { 1, 1, 1, 1 }, 4, { 254, 0, 507, 253 });
    row("the lower edge before truncation", { -1.9, 10.9, 1.9, 0.5 }, 1, { -1, 10, -1, 9 });
    row("above the page", { 1, 5, 1, 10 }, 1, { 1, -5, 1, 4 });
    row("nothing", { 0, 0, 0, 0 }, 2, { 0, 0, -1, -1 });
    row("no numbers", { qQNaN(), qQNaN(), qQNaN(), qQNaN() }, 2, { 0, 0, -1, -1 });
    row("huge", { 1e300, -1e300, 1e300, 1e300 }, 2, { largest, smallest, largest, -2 });
}

void tst_RVBarcodeDefinition::createsFromLengths()
{
    QFETCH(QList<qreal>, lengths);
    QFETCH(int, unit);
    const RVDistanceUnit distanceUnit(unit);
    const auto definition = RVBarcodeDefinition::createFromLengths(
            RVDistance(lengths.at(0), distanceUnit), RVDistance(lengths.at(1), distanceUnit),
            RVDistance(lengths.at(2), distanceUnit), RVDistance(lengths.at(3), distanceUnit), -3, u"code.png"_s);
    QTEST(edges(definition.rect()), "rect");
    QCOMPARE(definition.pageNr(), -3);
    QCOMPARE(definition.imageName(), u"code.png"_s);
}

void tst_RVBarcodeDefinition::reportsUnknownUnits()
{
    const QString warning = u"warning default libs/RVCore/RVDistanceUnit:101 "
                            "constexpr qreal RVDistanceUnit::units2Pixels(qreal) const: distance not supported! 3"_s;
    const MessageLog log;
    const auto definition = RVBarcodeDefinition::createFromProductsXML(element(u"position_x='7'"_s), RVDistanceUnit(3));
    QCOMPARE(log.lines(), (QStringList { warning, warning, warning, warning }));
    QCOMPARE(edges(definition.rect()), (QList<int> { 7, 0, 7, 0 }));
}

void tst_RVBarcodeDefinition::validity_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QString>("imageName");
    QTest::addColumn<bool>("valid");
    QTest::newRow("one tenth") << fromEdges(3, 4, 3, 4) << u"x"_s << true;
    QTest::newRow("no width") << fromEdges(3, 4, 2, 4) << u"x"_s << false;
    QTest::newRow("no height") << fromEdges(3, 4, 3, 3) << u"x"_s << false;
    QTest::newRow("no image") << fromEdges(3, 4, 3, 4) << u""_s << false;
}

void tst_RVBarcodeDefinition::validity()
{
    QFETCH(QRect, rect);
    QFETCH(QString, imageName);
    QTEST(RVBarcodeDefinition(rect, 0, imageName).isValid(), "valid");
}

void tst_RVBarcodeDefinition::compares_data()
{
    QTest::addColumn<RVBarcodeDefinition>("other");
    QTest::addColumn<bool>("equal");
    const auto row = [](const char *name, const QRect &rect, int pageNr, const QString &imageName, bool equal) {
        QTest::newRow(name) << RVBarcodeDefinition(rect, pageNr, imageName) << equal;
    };
    row("equal", fromEdges(1, 2, 3, 4), 5, u"a.png"_s, true);
    row("left", fromEdges(0, 2, 3, 4), 5, u"a.png"_s, false);
    row("top", fromEdges(1, 1, 3, 4), 5, u"a.png"_s, false);
    row("right", fromEdges(1, 2, 4, 4), 5, u"a.png"_s, false);
    row("bottom", fromEdges(1, 2, 3, 5), 5, u"a.png"_s, false);
    row("page", fromEdges(1, 2, 3, 4), 6, u"a.png"_s, false);
    row("letter case of the image", fromEdges(1, 2, 3, 4), 5, u"A.png"_s, false);
}

void tst_RVBarcodeDefinition::compares()
{
    QFETCH(RVBarcodeDefinition, other);
    QFETCH(bool, equal);
    const RVBarcodeDefinition definition(fromEdges(1, 2, 3, 4), 5, u"a.png"_s);
    QCOMPARE(definition == other, equal);
    QCOMPARE(definition != other, !equal);
}

void tst_RVBarcodeDefinition::orders_data()
{
    QTest::addColumn<RVBarcodeDefinition>("other");
    QTest::addColumn<bool>("less");
    QTest::addColumn<bool>("greater");
    const auto row = [](const char *name, const QRect &rect, int pageNr, const QString &imageName, bool less,
                        bool greater) {
        QTest::newRow(name) << RVBarcodeDefinition(rect, pageNr, imageName) << less << greater;
    };
    const QString image = u"m.png"_s;
    row("equal", QRect(10, 10, 10, 10), 5, image, false, false);
    row("further right", QRect(11, 10, 10, 10), 5, image, true, false);
    row("further down", QRect(10, 11, 10, 10), 5, image, true, false);
    row("wider", QRect(10, 10, 11, 10), 5, image, true, false);
    row("higher", QRect(10, 10, 10, 11), 5, image, true, false);
    row("later page", QRect(10, 10, 10, 10), 6, image, true, false);
    row("later image", QRect(10, 10, 10, 10), 5, u"n.png"_s, true, false);
    row("images with letter case", QRect(10, 10, 10, 10), 5, u"Z.png"_s, false, true);
    row("further right, but up", QRect(11, 9, 10, 10), 5, image, true, true);
    row("further left, but wider", QRect(9, 10, 11, 10), 5, image, true, true);
    row("narrower, but higher", QRect(10, 10, 9, 11), 5, image, true, true);
    row("lower, but later page", QRect(10, 10, 10, 9), 6, image, true, true);
    row("earlier page, but later image", QRect(10, 10, 10, 10), 4, u"n.png"_s, true, true);
    row("whole range", fromEdges(smallest, 10, largest, 19), 5, image, true, true);
}

void tst_RVBarcodeDefinition::orders()
{
    QFETCH(RVBarcodeDefinition, other);
    const RVBarcodeDefinition definition(QRect(10, 10, 10, 10), 5, u"m.png"_s);
    QTEST(definition < other, "less");
    QTEST(other < definition, "greater");
}

void tst_RVBarcodeDefinition::loadsTheImageOnce()
{
    const QTemporaryDir directory;
    QVERIFY(directory.isValid());
    RVDirectoryConfig::instance()->addSearchDirectory(directory.path());
    const RVBarcodeDefinition definition(QRect(0, 0, 10, 10), 0, u"code.png"_s);
    QVERIFY(definition.image().isNull());

    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(QDir(directory.path()).mkpath(u"icons/picjolly"_s));
    const QString path = directory.filePath(u"icons/picjolly/code.png"_s);
    QVERIFY(image.save(path));
    QCOMPARE(definition.image().size(), QSize(3, 2));

    QVERIFY(QFile::remove(path));
    QCOMPARE(definition.image().size(), QSize(3, 2));
    const RVBarcodeDefinition copy = definition;
    QCOMPARE(copy.image().size(), QSize(3, 2));
    QVERIFY(copy == RVBarcodeDefinition(QRect(0, 0, 10, 10), 0, u"code.png"_s));
}

QTEST_GUILESS_MAIN(tst_RVBarcodeDefinition)
#include "tst_RVBarcodeDefinition.moc"
