#include "EnglishTest.h"
#include "ReadProduct.h"

#include <PageDrawing.h>
#include <PagePanel.h>

#include <QComboBox>
#include <QLabel>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// With a barcode on page 2 and one on page 7, which lies outside.
const char BOOK[] = "<product type='DUN9' orientation='portrait' space_magnitude='600cm2'><barcodes units='mm'>"
                    "<barcode position_x='12' position_y='290' width='38' height='10' pageNr='2'/>"
                    "<barcode position_x='12' position_y='400' width='38' height='10' pageNr='7'/>"
                    "</barcodes></product>";

}

class tst_PagePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void offersPagesWithBarcodes();
    void tellsOfBarcodesOutside_data();
    void tellsOfBarcodesOutside();
    void productWithoutAPage();
    void standsBelowEachOther();

private:
    void setProduct(const QByteArray &element) { myPanel->setProduct(readProduct(element)); }
    QComboBox *pages() const { return myPanel->findChild<QComboBox *>(u"barcodePages"_s); }
    QLabel *text() const { return myPanel->findChild<QLabel *>(u"pageText"_s); }
    QLabel *pagesLabel() const;
    PageDrawing *drawing() const { return myPanel->findChild<PageDrawing *>(); }
    /// The picture as the panel draws it is that of this product and page.
    bool isDrawn(const QByteArray &element, int page) const;

    std::unique_ptr<PagePanel> myPanel;
};

void tst_PagePanel::init()
{
    myPanel = std::make_unique<PagePanel>();
}

QLabel *tst_PagePanel::pagesLabel() const
{
    for (QLabel *label : myPanel->findChildren<QLabel *>()) {
        if (label->text() == "&Barcodes of page:"_L1)
            return label;
    }
    return nullptr;
}

bool tst_PagePanel::isDrawn(const QByteArray &element, int page) const
{
    const QImage shown = drawing()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    PageDrawing expected;
    expected.setPage(PageGeometry(readProduct(element)), u"DUN9"_s);
    expected.setPageNumber(page);
    expected.resize(drawing()->size());
    return shown == expected.grab().toImage().convertToFormat(QImage::Format_RGB32)
            && drawing()->accessibleDescription() == expected.accessibleDescription();
}

void tst_PagePanel::offersPagesWithBarcodes()
{
    setProduct(BOOK);
    QVERIFY(myPanel->isDrawn());
    QVERIFY(!pages()->isHidden());
    QVERIFY(!pagesLabel()->isHidden());
    QCOMPARE(pagesLabel()->buddy(), pages());
    QCOMPARE(pages()->count(), 2);
    QCOMPARE(pages()->currentText(), u"2"_s);
    QVERIFY(isDrawn(BOOK, 2));
    QTest::keyClick(pages(), Qt::Key_Down);
    QCOMPARE(pages()->currentText(), u"7"_s);
    QVERIFY(isDrawn(BOOK, 7));
    setProduct(BOOK); // of another product
    QCOMPARE(pages()->count(), 2);
    QCOMPARE(pages()->currentText(), u"2"_s);
    QVERIFY(isDrawn(BOOK, 2));
}

void tst_PagePanel::tellsOfBarcodesOutside_data()
{
    QTest::addColumn<QByteArray>("product");
    QTest::addColumn<bool>("isOutside");
    QTest::addColumn<bool>("hasBarcodes");

    QTest::newRow("one of two") << QByteArray(BOOK) << true << true;
    QTest::newRow("none of two") << QByteArray(BOOK).replace("'400'", "'200'") << false << true;
    QTest::newRow("no barcodes") << QByteArray("<product type='DUN9' orientation='portrait' space_magnitude='600cm2'/>")
                                 << false << false;
}

void tst_PagePanel::tellsOfBarcodesOutside()
{
    QFETCH(QByteArray, product);
    QFETCH(bool, isOutside);
    QFETCH(bool, hasBarcodes);
    setProduct(BOOK);
    setProduct(product);
    const QString assumed = u"The page size is assumed: the catalogue tells only size class and orientation."_s;
    QCOMPARE(text()->text(), isOutside ? assumed + u" A barcode lies outside of it (red)."_s : assumed);
    QCOMPARE(!pages()->isHidden(), hasBarcodes);
    QCOMPARE(!pagesLabel()->isHidden(), hasBarcodes);
    QVERIFY(isDrawn(product, hasBarcodes ? 2 : 0));
}

void tst_PagePanel::productWithoutAPage()
{
    setProduct(BOOK);
    setProduct(QByteArray(BOOK).replace("'portrait'", "'portrait,square'"));
    QVERIFY(!myPanel->isDrawn());
    QVERIFY(drawing()->isHidden());
    QVERIFY(pages()->isHidden());
    QVERIFY(pagesLabel()->isHidden());
    QCOMPARE(text()->text(),
             u"A page is drawn for one size class and one orientation; this product does not have them."_s);
}

void tst_PagePanel::standsBelowEachOther()
{
    setProduct(BOOK);
    myPanel->resize(500, 500);
    myPanel->show();
    QVERIFY(QTest::qWaitForWindowExposed(myPanel.get()));
    QVERIFY(text()->wordWrap());
    QVERIFY(text()->y() > 0);
    QVERIFY(pages()->y() >= text()->geometry().bottom());
    QVERIFY(pagesLabel()->y() >= text()->geometry().bottom());
    QVERIFY(pages()->x() >= pagesLabel()->geometry().right());
    QVERIFY(pages()->width() <= pages()->sizeHint().width()); // the room beside it is free
    QVERIFY(pagesLabel()->width() <= pagesLabel()->sizeHint().width());
    QVERIFY(drawing()->y() >= pages()->geometry().bottom());
    QVERIFY(drawing()->height() > 300); // all that is left over
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_PagePanel>(argc, argv);
}

#include "tst_PagePanel.moc"
