#include "EnglishTest.h"
#include "ReadProduct.h"

#include <PageCountChooser.h>
#include <SpineCurve.h>
#include <SpineDrawing.h>
#include <SpinePanel.h>

#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// 26 to 154 pages by 4, with a spine that grows from 9 to 25 mm.
const char BOOK[] = "<product type='DUN9' article_class='book' pages='26' max_pages='154' page_step='4'>"
                    "<composition units='mm'><spine packages_per_block='2' base_width='8' block_width='1' "
                    "additional_width='0.5'/></composition></product>";

}

class tst_SpinePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void tellsTheSpine();
    void drawsTheSpine_data();
    void drawsTheSpine();
    void productsWithoutASpine_data();
    void productsWithoutASpine();
    void pageCounts_data();
    void pageCounts();
    void choosesPages();
    void emphasizesTheSpine();
    void standsTogether();

private:
    void setProduct(const QByteArray &element)
    {
        const RVCatalogueProduct product = readProduct(element);
        myPanel->setProduct(product, product.pageCounts());
    }
    QString text(const QString &label) const { return myPanel->findChild<QLabel *>(label)->text(); }
    SpineDrawing *drawing() const { return myPanel->findChild<SpineDrawing *>(); }
    SpineCurve *curve() const { return myPanel->findChild<SpineCurve *>(); }

    std::unique_ptr<SpinePanel> myPanel;
};

void tst_SpinePanel::init()
{
    myPanel = std::make_unique<SpinePanel>();
}

void tst_SpinePanel::tellsTheSpine()
{
    setProduct(BOOK);
    const auto parts = [this] {
        QStringList result = text(u"spineText"_s).split(u" · "_s);
        result.removeAt(1);
        return result;
    };
    QVERIFY2(text(u"spineText"_s).section(u" · "_s, 1, 1).startsWith("font up to "_L1),
             qPrintable(text(u"spineText"_s)));
    QCOMPARE(parts(), QStringList { u"Spine 9.00 mm"_s });
    myPanel->setPages(30);
    QCOMPARE(parts(), (QStringList { u"Spine 9.00 mm"_s, u"1 package more"_s }));
    myPanel->setPages(34);
    QCOMPARE(parts(), (QStringList { u"Spine 10.00 mm"_s, u"2 packages more"_s, u"1 block more"_s }));
    myPanel->setPages(154);
    QCOMPARE(parts(), (QStringList { u"Spine 25.00 mm"_s, u"32 packages more"_s, u"16 blocks more"_s }));
    QCOMPARE(text(u"pageRange"_s), u"26 to 154 in steps of 4"_s);
}

void tst_SpinePanel::drawsTheSpine_data()
{
    QTest::addColumn<QByteArray>("product");
    QTest::addColumn<int>("pages");
    QTest::addColumn<qreal>("width");
    QTest::addColumn<qreal>("widest");

    QTest::newRow("growing") << QByteArray(BOOK) << 34 << 10.0 << 25.0;
    QTest::newRow("shrinking") << QByteArray(BOOK)
                                          .replace("base_width='8'", "base_width='20'")
                                          .replace("block_width='1'", "block_width='-1'")
                               << 34 << 20.0 << 21.0;
    QTest::newRow("shrinking at once") << QByteArray(BOOK)
                                                  .replace("packages_per_block='2'", "packages_per_block='1'")
                                                  .replace("base_width='8'", "base_width='20'")
                                                  .replace("block_width='1'", "block_width='-1'")
                                       << 34 << 19.0 << 21.0;
    QTest::newRow("single page count") << QByteArray(BOOK).replace("'154'", "'26'") << 26 << 9.0 << 9.0;
    QTest::newRow("thin") << QByteArray(BOOK).replace("'154'", "'26'").replace("base_width='8'", "base_width='-0.2'")
                          << 26 << 0.8 << 0.8;
}

// To a scale at which the widest spine of the product still has room.
void tst_SpinePanel::drawsTheSpine()
{
    QFETCH(QByteArray, product);
    QFETCH(int, pages);
    QFETCH(qreal, width);
    QFETCH(qreal, widest);
    setProduct(product);
    myPanel->setPages(pages);
    QVERIFY(myPanel->isDrawn());
    QVERIFY(!drawing()->isHidden());
    QVERIFY(!curve()->isHidden());
    QCOMPARE(curve()->table().row(curve()->row()).pages, pages);
    SpineDrawing expected;
    expected.setTitle(u"DUN9"_s);
    expected.setSpine({ pages, 0, 0, width, curve()->table().row(curve()->row()).fontSize }, 0.5, widest);
    expected.resize(130, 160);
    drawing()->resize(130, 160);
    const auto picture = [](SpineDrawing *drawing) {
        return drawing->grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    QCOMPARE(picture(drawing()), picture(&expected));
}

void tst_SpinePanel::productsWithoutASpine_data()
{
    QTest::addColumn<QByteArray>("product");
    QTest::addColumn<QString>("text");

    const QString none = u"This product has no spine."_s;
    QTest::newRow("none") << QByteArray("<product type='A' pages='26' max_pages='30' page_step='4'/>") << none;
    QTest::newRow("without a width") << QByteArray(BOOK).replace("base_width='8'", "base_width='-33'") << none;
    QTest::newRow("as thin as nothing") << QByteArray(BOOK).replace("'154'", "'26'").replace("='8'", "='-1'") << none;
    QTest::newRow("no page counts") << QByteArray(BOOK).replace("'154'", "'10'") << QString();
}

void tst_SpinePanel::productsWithoutASpine()
{
    QFETCH(QByteArray, product);
    setProduct(BOOK);
    QCOMPARE(drawing()->accessibleDescription(), u"9.0 mm wide"_s);
    setProduct(product);
    QVERIFY(!myPanel->isDrawn());
    QVERIFY(drawing()->isHidden());
    QVERIFY(curve()->isHidden());
    QTEST(text(u"spineText"_s), "text");
    QCOMPARE(drawing()->accessibleDescription(), u"0.0 mm wide"_s); // nothing of the product before is left
    QCOMPARE(curve()->reading(), QString());
}

void tst_SpinePanel::pageCounts_data()
{
    QTest::addColumn<QByteArray>("highest");
    QTest::addColumn<QString>("text");

    QTest::newRow("several") << QByteArray("'30'") << u"26 to 30 in steps of 4"_s;
    QTest::newRow("one") << QByteArray("'26'") << u"always"_s;
    QTest::newRow("invalid") << QByteArray("'10'") << u"The page counts are not valid: from 26 to 10 in steps of 4."_s;
}

void tst_SpinePanel::pageCounts()
{
    QFETCH(QByteArray, highest);
    setProduct(QByteArray(BOOK).replace("'154'", highest));
    QTEST(text(u"pageRange"_s), "text");
}

void tst_SpinePanel::choosesPages()
{
    setProduct(BOOK);
    QSignalSpy changed(myPanel.get(), &SpinePanel::pagesChanged);
    myPanel->setPages(34);
    QCOMPARE(myPanel->pages(), 34);
    QCOMPARE(curve()->row(), 2);
    QCOMPARE(changed.size(), 1);
    curve()->resize(400, 200);
    QTest::keyClick(curve(), Qt::Key_Right); // to the next count
    QCOMPARE(myPanel->pages(), 38);
    QCOMPARE(changed.size(), 2);
    auto *list = myPanel->findChild<QComboBox *>(u"pageCounts"_s);
    QCOMPARE(list->currentText(), u"38 pages"_s);
    setProduct(QByteArray(BOOK).replace("'book'", "'photo'"));
    QCOMPARE(list->currentText(), u"26 photos"_s);
}

void tst_SpinePanel::emphasizesTheSpine()
{
    const auto *spine = myPanel->findChild<QLabel *>(u"spineText"_s);
    const auto *range = myPanel->findChild<QLabel *>(u"pageRange"_s);
    QVERIFY(spine->font().bold());
    QVERIFY(spine->font().pointSizeF() > range->font().pointSizeF());
    for (const QLabel *label : { spine, range }) // which are broken in a narrow window
        QVERIFY(label->wordWrap());
}

void tst_SpinePanel::standsTogether()
{
    setProduct(BOOK);
    myPanel->resize(800, 400);
    myPanel->show();
    QVERIFY(QTest::qWaitForWindowActive(myPanel.get()));
    const auto *chooser = myPanel->findChild<PageCountChooser *>();
    const auto *range = myPanel->findChild<QLabel *>(u"pageRange"_s);
    const auto *spine = myPanel->findChild<QLabel *>(u"spineText"_s);
    const QLabel *label = nullptr;
    for (const QLabel *part : myPanel->findChildren<QLabel *>()) {
        if (part->text() == "&Page count:"_L1)
            label = part;
    }
    QVERIFY(label);
    QCOMPARE(label->buddy(), chooser);
    QVERIFY(label->x() > 0);
    QVERIFY(chooser->x() >= label->geometry().right());
    QVERIFY(chooser->width() <= chooser->sizeHint().width());
    QVERIFY(range->x() >= chooser->geometry().right());
    QVERIFY(spine->y() >= chooser->geometry().bottom());
    QVERIFY(drawing()->y() >= spine->geometry().bottom());
    QCOMPARE(drawing()->y(), curve()->y());
    QVERIFY(curve()->x() >= drawing()->geometry().right());
    QVERIFY(curve()->width() > 400); // the curve takes all room that is left over
    QVERIFY(drawing()->height() > 200);
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_SpinePanel>(argc, argv);
}

#include "tst_SpinePanel.moc"
