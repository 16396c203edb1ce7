#include <RVPackedPlaces_p.h>

#include <QTest>

class tst_RVPackedPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places_data();
    void places();
    void severalFiles();
    void largeColumns();
};

namespace {

RVFileRange range(qint64 line, qint64 column, qint64 endLine, qint64 endColumn)
{
    return { { line, column }, { endLine, endColumn } };
}

}

void tst_RVPackedPlaces::places_data()
{
    QTest::addColumn<RVFilePosition>("product");
    QTest::addColumn<RVFileRange>("attribute");
    QTest::addColumn<RVFileRange>("kept");

    const auto row = [](const char *name, const RVFilePosition &product, const RVFileRange &attribute,
                        const RVFileRange &kept) { QTest::newRow(name) << product << attribute << kept; };
    row("begin of the file", { 1, 1 }, range(1, 10, 1, 21), range(1, 10, 1, 21));
    row("first letter of the file", { 1, 1 }, range(1, 1, 1, 2), range(1, 1, 1, 2));
    row("far down", { 30000000, 3 }, range(30000000, 12, 30000000, 23), range(30000000, 12, 30000000, 23));
    row("as far down as can be told", { 1073741823, 3 }, range(1073741823, 12, 1073741823, 23),
        range(1073741823, 12, 1073741823, 23));
    row("farther down", { 1073741900, 3 }, range(1073741900, 12, 1073741900, 23),
        range(1073741823, 12, 1073741823, 23));
    row("line below the product", { 7, 1 }, range(8, 4, 8, 15), range(8, 4, 8, 15));
    row("far to the right", { 1, 90000000 }, range(1, 90000009, 1, 90000020), range(1, 90000009, 1, 90000020));
    row("below what is far to the right", { 2, 90000000 }, range(3, 4, 3, 15), range(3, 4, 3, 15));
    row("end of the largest tag", { 5, 500000 }, range(5, 565000, 5, 565010), range(5, 565000, 5, 565010));
    row("longest with an end", { 2, 1 }, range(2, 10, 2, 73), range(2, 10, 2, 73));
    row("longer", { 2, 1 }, range(2, 10, 2, 74), range(2, 10, 2, 10));
    row("over two lines", { 2, 1 }, range(2, 10, 3, 12), range(2, 10, 2, 10));
}

void tst_RVPackedPlaces::places()
{
    QFETCH(RVFilePosition, product);
    QFETCH(RVFileRange, attribute);
    RVPackedPlaces places;
    places.beginFile();
    places.beginProduct(product);
    const quint64 packed = places.pack(attribute);
    QVERIFY(packed != 0);
    QVERIFY(packed < quint64(1) << 56);
    places.beginProduct({ product.line + 1, 90000000 });
    places.beginFile();
    const RVPackedPlaces::Place place = places.unpack(packed);
    QTEST(place.range, "kept");
    QCOMPARE(place.file, qsizetype(0));
}

void tst_RVPackedPlaces::severalFiles()
{
    constexpr int count = 1000;
    RVPackedPlaces places;
    QList<quint64> packed;
    for (int file = 0; file < count; ++file) {
        places.beginFile();
        if (file % 3 == 0) // a file without places
            packed += 0;
        else
            packed += places.pack(range(file, 2, file, 5));
    }
    for (int file = 0; file < count; ++file) {
        if (file % 3 == 0)
            continue;
        const RVPackedPlaces::Place place = places.unpack(packed.at(file));
        QCOMPARE(place.file, qsizetype(file));
        QCOMPARE(place.range, range(file, 2, file, 5));
    }
}

// A catalogue on one line needs several pages, and the line behind it none.
void tst_RVPackedPlaces::largeColumns()
{
    constexpr qint64 count = 100000;
    constexpr qint64 width = 1000;
    RVPackedPlaces places;
    places.beginFile();
    QList<quint64> packed;
    for (qint64 i = 0; i < count; ++i) {
        const qint64 column = 1 + i * width;
        places.beginProduct({ 1, column });
        packed += places.pack(range(1, column + 20, 1, column + 30));
    }
    places.beginProduct({ 2, 1 });
    packed += places.pack(range(2, 10, 2, 20));
    for (qint64 i = 0; i < count; ++i)
        QCOMPARE(places.unpack(packed.at(i)).range, range(1, i * width + 21, 1, i * width + 31));
    QCOMPARE(places.unpack(packed.last()).range, range(2, 10, 2, 20));
}

QTEST_GUILESS_MAIN(tst_RVPackedPlaces)
#include "tst_RVPackedPlaces.moc"
