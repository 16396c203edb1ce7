#include "WrittenFile.h"

#include <DrawingMenu.h>
#include <DrawingPrint.h>
#include <DrawingWidget.h>
#include <MainWindow.h>
#include <SpinePicture.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QImage>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QPrinter>
#include <QPrintPreviewDialog>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QStringList &drawingNames()
{
    static const QStringList theNames { u"spineDrawing"_s, u"spineCurve"_s, u"pageDrawing"_s };
    return theNames;
}

}

/// The drawings of the window: choosing by them, and what leaves it.
class tst_drawings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void keys_data();
    void keys();
    void otherKeys();
    void click();
    void crossHairFollowsTheMouse();
    void focusIsSeen();
    void slider();
    void toolTipOfABarcode();
    void pageIsDescribed();
    void menus();
    void contextMenuAndButton();
    void copies_data();
    void copies();
    void saves_data();
    void saves();
    void saveFailure();
    void print_data();
    void print();
    void preview();
    void spineSheet();

private:
    DrawingWidget *drawing(const QString &name) const { return myWindow->findChild<DrawingWidget *>(name); }
    QComboBox *counts() const { return myWindow->findChild<QComboBox *>(u"pageCounts"_s); }
    bool show(const QString &type);

    QTemporaryDir myFolder;
    std::unique_ptr<MainWindow> myWindow;
};

void tst_drawings::initTestCase()
{
    myWindow = std::make_unique<MainWindow>();
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
    myWindow->activateWindow();
    for (const QString &name : drawingNames())
        QVERIFY2(!drawing(name)->menu()->menuAction()->isEnabled(), qPrintable(name)); // nothing is drawn yet
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(QString::fromUtf8(SAMPLE));
    QVERIFY(changed.wait(20000));
    QTest::qWait(100); // widgets that have new texts ask for new places one after the other
}

void tst_drawings::cleanupTestCase()
{
    myWindow.reset();
}

void tst_drawings::init()
{
    QVERIFY(show(u"DUN9"_s));
    counts()->setCurrentIndex(15);
    QTRY_VERIFY(drawing(u"spineCurve"_s)->isVisible());
}

bool tst_drawings::show(const QString &type)
{
    return myWindow->showType(RVProductType(type));
}

void tst_drawings::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("row");

    QTest::newRow("left") << int(Qt::Key_Left) << 14;
    QTest::newRow("right") << int(Qt::Key_Right) << 16;
    QTest::newRow("up") << int(Qt::Key_Up) << 16;
    QTest::newRow("down") << int(Qt::Key_Down) << 14;
    QTest::newRow("page up") << int(Qt::Key_PageUp) << 25;
    QTest::newRow("page down") << int(Qt::Key_PageDown) << 5;
    QTest::newRow("home") << int(Qt::Key_Home) << 0;
    QTest::newRow("end") << int(Qt::Key_End) << 32;
}

void tst_drawings::keys()
{
    QFETCH(int, key);
    QTest::keyClick(drawing(u"spineCurve"_s), Qt::Key(key));
    QTEST(counts()->currentIndex(), "row");
    for (int i = 0; i < 40; ++i) // neither end can be left
        QTest::keyClick(drawing(u"spineCurve"_s), Qt::Key(key));
    QVERIFY(counts()->currentIndex() == 0 || counts()->currentIndex() == 32);
}

void tst_drawings::otherKeys()
{
    QTest::keyClick(drawing(u"spineCurve"_s), Qt::Key_Right, Qt::AltModifier);
    QTest::keyClick(drawing(u"spineCurve"_s), Qt::Key_A);
    QCOMPARE(counts()->currentIndex(), 15);
}

void tst_drawings::click()
{
    QWidget *curve = drawing(u"spineCurve"_s);
    QTest::mouseClick(curve, Qt::LeftButton, {}, QPoint(curve->width() - 20, curve->height() / 2));
    QVERIFY(counts()->currentIndex() > 28);
    QTest::mouseClick(curve, Qt::LeftButton, {}, QPoint(2, curve->height() / 2));
    QCOMPARE(counts()->currentIndex(), 0);
    QTest::mouseClick(curve, Qt::MiddleButton, {}, QPoint(curve->width() / 2, curve->height() / 2));
    QCOMPARE(counts()->currentIndex(), 0);
}

void tst_drawings::crossHairFollowsTheMouse()
{
    QWidget *curve = drawing(u"spineCurve"_s);
    counts()->setFocus();
    QTest::qWait(100); // until the texts of init() have their places
    const QImage before = curve->grab().toImage();
    QTest::mouseMove(curve, QPoint(curve->width() / 2, curve->height() / 2));
    QTRY_VERIFY(curve->grab().toImage() != before);
    QCOMPARE(counts()->currentIndex(), 15); // nothing is chosen
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(curve, &leave);
    QCOMPARE(curve->grab().toImage(), before);
}

void tst_drawings::focusIsSeen()
{
    QWidget *curve = drawing(u"spineCurve"_s);
    QVERIFY(curve->focusPolicy() & Qt::TabFocus);
    counts()->setFocus();
    QTest::qWait(100);
    const QImage without = curve->grab().toImage();
    curve->setFocus(Qt::TabFocusReason);
    QVERIFY(curve->hasFocus());
    const QImage with = curve->grab().toImage();
    int different = 0;
    for (int x = 0; x < with.width(); ++x)
        different += with.pixel(x, with.height() - 1) != without.pixel(x, without.height() - 1);
    QVERIFY2(different > with.width() / 2, qPrintable(QString::number(different))); // the frame
}

void tst_drawings::slider()
{
    QAccessibleInterface *curve = QAccessible::queryAccessibleInterface(drawing(u"spineCurve"_s));
    QVERIFY(curve);
    QCOMPARE(curve->role(), QAccessible::Slider);
    QVERIFY(!curve->text(QAccessible::Name).isEmpty());
    QCOMPARE(curve->text(QAccessible::Value), u"page count 86 · 16.00 mm · font up to 72 pt"_s);
    QAccessibleValueInterface *value = curve->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->minimumValue().toInt(), 26);
    QCOMPARE(value->maximumValue().toInt(), 154);
    QCOMPARE(value->minimumStepSize().toInt(), 4);
    QCOMPARE(value->currentValue().toInt(), 86);
    value->setCurrentValue(34);
    QCOMPARE(counts()->currentIndex(), 2);
    value->setCurrentValue(1e9);
    QCOMPARE(counts()->currentIndex(), 32);
}

void tst_drawings::toolTipOfABarcode()
{
    QWidget *page = drawing(u"pageDrawing"_s);
    QString text;
    for (int y = 0; y < page->height() && text.isEmpty(); y += 2) {
        for (int x = 0; x < page->width() / 2 && text.isEmpty(); x += 2) {
            QHelpEvent event(QEvent::ToolTip, QPoint(x, y), page->mapToGlobal(QPoint(x, y)));
            QApplication::sendEvent(page, &event);
            text = QToolTip::isVisible() ? QToolTip::text() : QString();
        }
    }
    QCOMPARE(text, u"barcode 38.0 × 10.0 mm at 12.0, 280.5"_s);
    QHelpEvent event(QEvent::ToolTip, QPoint(0, 0), page->mapToGlobal(QPoint(0, 0)));
    QApplication::sendEvent(page, &event);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_drawings::pageIsDescribed()
{
    QCOMPARE(drawing(u"pageDrawing"_s)->accessibleDescription(),
             u"trim 204.1 × 306.2 mm, assumed; bleed 3.0 mm, assumed; barcode 38.0 × 10.0 mm at 12.0, 280.5"_s);
}

// They can be chosen from as long as there is a drawing.
void tst_drawings::menus()
{
    for (const QString &name : drawingNames())
        QVERIFY2(drawing(name)->menu()->menuAction()->isEnabled(), qPrintable(name));
    QVERIFY(show(u"GES1"_s)); // a mug
    for (const QString &name : drawingNames().mid(0, 2))
        QVERIFY2(!drawing(name)->menu()->menuAction()->isEnabled(), qPrintable(name));
    QStringList titles;
    for (const QAction *action : drawing(u"spineCurve"_s)->menu()->actions()) {
        if (!action->isSeparator())
            titles += action->text();
    }
    QCOMPARE(titles, (QStringList { u"&Copy"_s, u"&Save as…"_s, u"&Print…"_s, u"Print pre&view…"_s }));
}

void tst_drawings::contextMenuAndButton()
{
    for (const QString &name : drawingNames()) {
        DrawingWidget *widget = drawing(name);
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), widget->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(widget, &event);
        QVERIFY2(widget->menu()->isVisible(), qPrintable(name));
        widget->menu()->close();
        auto *button = widget->findChild<QToolButton *>(u"drawingButton"_s);
        QVERIFY(widget->rect().contains(button->geometry()));
        QVERIFY(!button->accessibleName().isEmpty());
        button->click();
        QVERIFY2(widget->menu()->isVisible(), qPrintable(name));
        widget->menu()->close();
    }
}

void tst_drawings::copies_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : drawingNames())
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_drawings::copies()
{
    QFETCH(QString, name);
    QApplication::clipboard()->clear();
    drawing(name)->menu()->copy();
    const QMimeData *data = QApplication::clipboard()->mimeData();
    QVERIFY(data->hasImage());
    QCOMPARE(qvariant_cast<QImage>(data->imageData()).dotsPerMeterX(), 11811);
    QVERIFY(data->data(u"image/svg+xml"_s).contains("<svg "));
    QVERIFY(data->data(u"application/pdf"_s).startsWith("%PDF-"));
}

void tst_drawings::saves_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("size"); // of the SVG drawing

    QTest::newRow("spine") << u"spineDrawing"_s << QByteArray("width=\"85mm\" height=\"152mm\"");
    QTest::newRow("curve") << u"spineCurve"_s << QByteArray("width=\"160mm\" height=\"100mm\"");
    QTest::newRow("page") << u"pageDrawing"_s << QByteArray("width=\"231mm\" height=\"356mm\"");
}

void tst_drawings::saves()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, size);
    const QString fileName = myFolder.filePath(name + ".svg"_L1);
    drawing(name)->menu()->save(fileName);
    const QByteArray content = readFile(fileName);
    QVERIFY2(content.contains(size), content.left(400));
    const bool hasScale = name != "spineCurve"_L1;
    QCOMPARE(content.contains("scale 1 : 1"), hasScale);
}

void tst_drawings::saveFailure()
{
    drawing(u"spineCurve"_s)->menu()->save(myFolder.filePath(u"nowhere/a.svg"_s));
    auto *box = myWindow->findChild<QMessageBox *>(u"saveFailure"_s);
    QVERIFY(box);
    QVERIFY2(box->text().endsWith(u"/nowhere/a.svg cannot be written: No such file or directory."_s),
             qPrintable(box->text()));
    QPointer<QMessageBox> watched(box);
    box->close();
    QTRY_VERIFY(!watched);
}

void tst_drawings::print_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("paper");
    QTest::addColumn<int>("reduction");

    QTest::newRow("spine on A4") << u"spineDrawing"_s << int(QPageSize::A4) << 1;
    QTest::newRow("A4 page with its legend on A3") << u"pageDrawing"_s << int(QPageSize::A3) << 1;
    QTest::newRow("A4 page with its legend on A4") << u"pageDrawing"_s << int(QPageSize::A4) << 2;
}

// To a PDF printer, whose page has the scale among its texts, and one page only.
void tst_drawings::print()
{
    QFETCH(QString, name);
    QFETCH(int, paper);
    const QString fileName = myFolder.filePath(u"print.pdf"_s);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(fileName);
    printer.setPageSize(QPageSize(QPageSize::PageSizeId(paper)));
    const std::shared_ptr<Drawing> printed = drawing(name)->drawing();
    const DrawingPrint page(printed);
    page.setUp(&printer);
    page.paint(&printer);
    QCOMPARE(printer.docName(), printed->title());
    QTEST(printed->reductionFor(printer.pageRect(QPrinter::Millimeter).size()), "reduction");
    const QByteArray content = readFile(fileName);
    QCOMPARE(content.count("/Type /Page\n"), 1);
    QVERIFY(content.endsWith("%%EOF\n"));
}

void tst_drawings::preview()
{
    drawing(u"pageDrawing"_s)->menu()->actions().constLast()->trigger();
    QPointer<QPrintPreviewDialog> dialog(myWindow->findChild<QPrintPreviewDialog *>(u"printPreview"_s));
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QTest::qWait(0);
    dialog->close();
    QTRY_VERIFY(!dialog);
}

// A spine of 20 mm is 200 dots wide where there are 10 dots a millimetre.
void tst_drawings::spineSheet()
{
    SpinePicture picture;
    picture.setSpine({ 34, 2, 1, 20, 48 }, 0.5);
    picture.setText(u"DUN9"_s);
    QCOMPARE(picture.title(), u"DUN9 spine, page count 34"_s);
    const QSizeF sheet = picture.sheetSize(1);
    QImage image((sheet * 10).toSize(), QImage::Format_RGB32);
    image.setDotsPerMeterX(10000);
    image.setDotsPerMeterY(10000);
    QPainter painter(&image);
    static_cast<const Drawing &>(picture).paint(&painter, image.rect(), 1);
    painter.end();
    const QColor paper = PlotColors().band;
    int width = 0;
    for (int x = 0; x < image.width(); ++x)
        width += image.pixelColor(x, 120) == paper;
    QVERIFY2(qAbs(width - 200) <= 16,
             qPrintable(QString::number(width))); // without the lines at the edges and the sides
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English));
    tst_drawings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_drawings.moc"
