#include <Drawing.h>
#include <DrawingExport.h>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor RED(0xff, 0x00, 0x00);

/// A red bar of a given width, 10 mm high, in the middle of a sheet with margins of 20 mm.
class Bar : public Drawing
{
public:
    explicit Bar(qreal width) : myWidth(width) { }

    QString title() const override { return u"Bar & <beam>"_s; }
    QSizeF sheetSize(int reduction) const override { return { myWidth / reduction + 40, 50 }; }
    void paint(QPainter *painter, const QRectF &sheet, int reduction) const override
    {
        const qreal millimetre = sheet.height() / 50;
        painter->fillRect(sheet, Qt::white);
        painter->fillRect(QRectF(sheet.left() + 20 * millimetre, sheet.top() + 20 * millimetre,
                                 myWidth / reduction * millimetre, 10 * millimetre),
                          RED);
    }

private:
    qreal myWidth;
};

/// The rectangle of red pixels.
QRect redPartOf(const QImage &image)
{
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.red() > 200 && color.green() < 100)
                result |= QRect(x, y, 1, 1);
        }
    }
    return result;
}

}

class tst_DrawingExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_data();
    void formats();
    void svg_data();
    void svg();
    void png_data();
    void png();
    void pdfPage_data();
    void pdfPage();
    void pdfOnPaper();
    void replaces();
    void failures_data();
    void failures();
    void readOnlyFolder();

private:
    void sizes();
    QString path(const QString &name) const { return myFolder.filePath(name); }

    QTemporaryDir myFolder;
};

void tst_DrawingExport::formats_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<int>("format"); // -1 for none

    QTest::newRow("drawing") << u"a.svg"_s << int(DrawingExport::Format::Svg);
    QTest::newRow("letter case") << u"A.PnG"_s << int(DrawingExport::Format::Png);
    QTest::newRow("page") << u"folder.svg/a.pdf"_s << int(DrawingExport::Format::Pdf);
    QTest::newRow("other") << u"a.gif"_s << -1;
    QTest::newRow("none") << u"svg"_s << -1;
    QTest::newRow("empty") << QString() << -1;
}

void tst_DrawingExport::formats()
{
    QFETCH(QString, fileName);
    const auto format = DrawingExport::formatOf(fileName);
    QTEST(format ? int(*format) : -1, "format");
}

void tst_DrawingExport::sizes()
{
    QTest::addColumn<qreal>("width");
    QTest::addColumn<QSizeF>("sheet");
    QTest::addColumn<qreal>("bar");

    QTest::newRow("narrow") << 12.5 << QSizeF(52.5, 50) << 12.5;
    QTest::newRow("large") << 600.0 << QSizeF(640, 50) << 600.0;
    QTest::newRow("halved") << 1000.0 << QSizeF(540, 50) << 500.0;
    QTest::newRow("3 km long") << 3e6 << QSizeF(640, 50) << 600.0;
}

void tst_DrawingExport::svg_data()
{
    sizes();
}

void tst_DrawingExport::svg()
{
    QFETCH(qreal, width);
    QFETCH(QSizeF, sheet);
    QFETCH(qreal, bar);
    QDomDocument document;
    QVERIFY(document.setContent(DrawingExport(Bar(width)).content(DrawingExport::Format::Svg)));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.attribute(u"width"_s), QString::number(sheet.width()) + "mm"_L1);
    QCOMPARE(root.attribute(u"height"_s), QString::number(sheet.height()) + "mm"_L1);
    QCOMPARE(root.attribute(u"viewBox"_s),
             u"0 0 %1 %2"_s.arg(QString::number(sheet.width() * 10), QString::number(sheet.height() * 10)));
    QCOMPARE(root.firstChildElement(u"title"_s).text(), u"Bar & <beam>"_s);
    // A unit is a tenth of a millimetre.
    QStringList widths;
    const QDomNodeList rects = root.elementsByTagName(u"rect"_s);
    for (int i = 0; i < rects.size(); ++i)
        widths += rects.at(i).toElement().attribute(u"width"_s);
    QVERIFY2(widths.contains(QString::number(bar * 10)), qPrintable(widths.join(u' ')));
}

void tst_DrawingExport::png_data()
{
    sizes();
}

void tst_DrawingExport::png()
{
    QFETCH(qreal, width);
    QFETCH(QSizeF, sheet);
    QFETCH(qreal, bar);
    const QImage image = QImage::fromData(DrawingExport(Bar(width)).content(DrawingExport::Format::Png), "PNG");
    QCOMPARE(image.dotsPerMeterX(), 11811); // 300 an inch
    QCOMPARE(image.dotsPerMeterY(), 11811);
    QVERIFY(qAbs(image.width() / 11.811 - sheet.width()) < 0.1);
    QVERIFY(qAbs(image.height() / 11.811 - sheet.height()) < 0.1);
    const QRect red = redPartOf(image);
    QVERIFY2(qAbs(red.width() / 11.811 - bar) < 0.2, qPrintable(QString::number(red.width())));
    QVERIFY2(qAbs(red.height() / 11.811 - 10) < 0.2, qPrintable(QString::number(red.height())));
}

void tst_DrawingExport::pdfPage_data()
{
    sizes();
}

// The page is as large as the sheet, to the point of a printer.
void tst_DrawingExport::pdfPage()
{
    QFETCH(qreal, width);
    QFETCH(QSizeF, sheet);
    const QByteArray pdf = DrawingExport(Bar(width)).content(DrawingExport::Format::Pdf);
    static const QRegularExpression box(u"/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]"_s);
    const QRegularExpressionMatch match = box.match(QString::fromLatin1(pdf));
    QVERIFY(match.hasMatch());
    QVERIFY2(qAbs(match.captured(1).toDouble() / 72 * 25.4 - sheet.width()) < 0.36, qPrintable(match.captured()));
    QVERIFY2(qAbs(match.captured(2).toDouble() / 72 * 25.4 - sheet.height()) < 0.36, qPrintable(match.captured()));
    QVERIFY(pdf.endsWith("%%EOF\n"));
}

// A ruler on the paper would measure the same: drawn with ten dots a millimetre, a bar of 25 mm has 250.
void tst_DrawingExport::pdfOnPaper()
{
    QCOMPARE(DrawingExport(Bar(25)).write(path(u"bar.pdf"_s)), QString());
    QProcess process;
    process.start(u"pdftoppm"_s,
                  { u"-r"_s, u"254"_s, u"-png"_s, u"-singlefile"_s, path(u"bar.pdf"_s), path(u"paper"_s) });
    QVERIFY2(process.waitForStarted(), "pdftoppm of the package poppler-utils is missing");
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 0);
    const QRect red = redPartOf(QImage(path(u"paper.png"_s)));
    QVERIFY2(qAbs(red.width() - 250) <= 1, qPrintable(QString::number(red.width())));
    QVERIFY2(qAbs(red.height() - 100) <= 1, qPrintable(QString::number(red.height())));
}

void tst_DrawingExport::replaces()
{
    QCOMPARE(DrawingExport(Bar(5)).write(path(u"a.svg"_s)), QString());
    QFile file(path(u"a.svg"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray first = file.readAll();
    file.close();
    QCOMPARE(DrawingExport(Bar(6)).write(path(u"a.svg"_s)), QString());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll() != first);
    QCOMPARE(QDir(myFolder.path()).entryList({ u"a.svg*"_s }), QStringList { u"a.svg"_s });
}

void tst_DrawingExport::failures_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("message");

    QTest::newRow("no such folder") << u"nowhere/a.svg"_s << u"No such file or directory"_s;
    QTest::newRow("full disk") << u"full.png"_s << u"No space left on device"_s;
    QTest::newRow("folder") << u"folder.svg"_s << u"Filename refers to a directory"_s;
    QTest::newRow("format") << u"a.gif"_s << u"the name of the file must end in .svg, .png or .pdf"_s;
}

void tst_DrawingExport::failures()
{
    QFETCH(QString, fileName);
    QDir(myFolder.path()).mkdir(u"folder.svg"_s);
    QFile::link(u"/dev/full"_s, path(u"full.png"_s));
    QTEST(DrawingExport(Bar(5)).write(QDir(myFolder.path()).absoluteFilePath(fileName)), "message");
    QVERIFY(!QFileInfo(u"/dev/full"_s).isFile()); // it was written to, and not replaced
}

// No user can make a file in /proc, not even root; the reason depends on the user.
void tst_DrawingExport::readOnlyFolder()
{
    const QString failure = DrawingExport(Bar(5)).write(u"/proc/a.pdf"_s);
    QVERIFY2(failure == "No such file or directory"_L1 || failure == "Permission denied"_L1, qPrintable(failure));
}

QTEST_MAIN(tst_DrawingExport)
#include "tst_DrawingExport.moc"
