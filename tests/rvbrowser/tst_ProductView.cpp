#include "EnglishTest.h"
#include "ReadCatalogue.h"

#include <AttributePanel.h>
#include <CatalogueServices.h>
#include <OptionsPanel.h>
#include <OrderLine.h>
#include <PagePanel.h>
#include <PaletteColors.h>
#include <PricesPanel.h>
#include <ProductView.h>
#include <SpinePanel.h>

#include <QClipboard>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A product with a spine and a page, and one with neither, which breaks a rule.
const char CATALOGUE[] =
        "<products>\n"
        "<product type='DUN9' article_id='1001' name='Buch' article_class='book' cover_type='hardcover' "
        "orientation='portrait' space_magnitude='600cm2' price_class='PB' pages='26' max_pages='154' page_step='4'>"
        "<barcodes units='mm'><barcode position_x='12' position_y='290' width='38' height='10' pageNr='2'/></barcodes>"
        "<composition units='mm'><spine packages_per_block='2' base_width='8' block_width='1'/></composition><forms>"
        "<form key='alcolor' value='black' value_name='Schwarz' key_name='Farbe' preselected='true'/>"
        "<form key='alcolor' value='red' value_name='Rot' key_name='Farbe'/>"
        "</forms></product>\n"
        "<product type='VIR1' article_id='1002' cover_type='hardcovr' pages='13'/>\n"
        "<product type='VIR1' article_id='1003' name='Zweiter' pages='14'/>\n"
        "<product type='BAD' article_id='1004' pages='20' max_pages='10' page_step='2'/>\n"
        "</products>\n";

}

class tst_ProductView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { myView.reset(); }

    void namesTheProduct();
    void tellsWhyItCannotBeOrdered();
    void showsEveryPart();
    void tellsOfChoices();
    void setsAChoice();
    void keepsTheChoice();
    void copies();
    void showsAFault_data();
    void showsAFault();
    void hidesTheFault();
    void marksAnAttribute();
    void twoColumns();
    void oneColumn();
    void changesColumnsWhereThereIsRoom();
    void movesTheFaultAlong();
    void givesRoomToDrawings();
    void alignsLabels();
    void headers();

private:
    void show(int product) { myView->setProduct(myCatalogue, product); }
    void showWindow(const QSize &size);
    /// Shows a finding about the element and the attribute of the first product.
    void showFinding(const QByteArray &from, const QByteArray &to);
    QLabel *label(const QString &name) const { return myView->findChild<QLabel *>(name); }
    template<typename T>
    T *part() const
    {
        return myView->findChild<T *>();
    }
    QRect place(const QWidget *widget) const { return { widget->mapTo(myView->widget(), QPoint()), widget->size() }; }

    CatalogueServices myServices;
    CataloguePointer myCatalogue;
    std::unique_ptr<ProductView> myView;
};

void tst_ProductView::init()
{
    myCatalogue = readCatalogue(CATALOGUE);
    myServices.setCatalogue(myCatalogue);
    myView = std::make_unique<ProductView>();
}

void tst_ProductView::showWindow(const QSize &size)
{
    myView->resize(size);
    myView->show();
    QVERIFY(QTest::qWaitForWindowExposed(myView.get()));
}

void tst_ProductView::showFinding(const QByteArray &from, const QByteArray &to)
{
    myCatalogue = readCatalogue(QByteArray(CATALOGUE).replace(from, to));
    myServices.setCatalogue(myCatalogue);
    show(0);
    for (const RVCatalogueFinding &finding : myCatalogue->findings()) {
        if (finding.product() == 0) {
            myView->showFinding(*myCatalogue, finding);
            return;
        }
    }
    QFAIL("no finding");
}

void tst_ProductView::namesTheProduct()
{
    show(0);
    QCOMPARE(label(u"title"_s)->text(), u"DUN9 – Buch"_s);
    QCOMPARE(label(u"title"_s)->toolTip(), u"DUN9 – Buch"_s);
    QVERIFY(label(u"note"_s)->isHidden());
    QVERIFY(label(u"faults"_s)->isHidden());
    show(1);
    QCOMPARE(label(u"title"_s)->text(), u"VIR1"_s);
    QVERIFY(!label(u"faults"_s)->isHidden());
    QVERIFY(label(u"faults"_s)->text().contains("hardcovr"_L1));
    QCOMPARE(label(u"faults"_s)->toolTip(), label(u"faults"_s)->text());
    QCOMPARE(label(u"faults"_s)->palette().color(QPalette::WindowText), PaletteColors(myView->palette()).fault());
}

void tst_ProductView::tellsWhyItCannotBeOrdered()
{
    show(2);
    QVERIFY(!label(u"note"_s)->isHidden());
    QCOMPARE(label(u"note"_s)->text(), u"An earlier product has the same type, so this one is never offered."_s);
    QCOMPARE(myView->choice().pages, 14); // and not those of the earlier product
    show(3);
    QCOMPARE(label(u"note"_s)->text(),
             u"This product cannot be offered: it needs a type, an article id and valid page counts."_s);
    show(0);
    QVERIFY(label(u"note"_s)->isHidden());
    myView->setSingleProduct(myCatalogue, 1, u"from elsewhere"_s);
    QCOMPARE(label(u"note"_s)->text(), u"from elsewhere"_s);
    QCOMPARE(label(u"title"_s)->text(), u"VIR1"_s);
    QCOMPARE(myView->choice().pages, 13);
}

void tst_ProductView::showsEveryPart()
{
    show(0);
    QVERIFY(part<SpinePanel>()->isDrawn());
    QVERIFY(part<PagePanel>()->isDrawn());
    QCOMPARE(part<OptionsPanel>()->variants().value(u"alcolor"_s), u"black"_s);
    QCOMPARE(myView->findChild<OrderLine *>(u"projectFile"_s)->text(), u"alcolor:black"_s);
    QCOMPARE(label(u"optionNames"_s)->text(), u"Farbe: Schwarz"_s);
    QVERIFY(label(u"prices"_s)->text().contains("PB"_L1));
    QCOMPARE(myView->drawingMenus().size(), 3);
    show(1);
    QVERIFY(!part<SpinePanel>()->isDrawn());
    QVERIFY(!part<PagePanel>()->isDrawn());
    QVERIFY(part<OptionsPanel>()->variants().keys().isEmpty());
    QCOMPARE(label(u"prices"_s)->text(), u"None of the choices has a price class."_s);
}

void tst_ProductView::tellsOfChoices()
{
    show(0);
    QSignalSpy changed(myView.get(), &ProductView::choiceChanged);
    part<SpinePanel>()->setPages(30);
    QCOMPARE(changed.size(), 1);
    auto *colors = myView->findChild<QComboBox *>(u"option alcolor"_s);
    colors->setCurrentIndex(1);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(myView->findChild<OrderLine *>(u"projectFile"_s)->text(), u"alcolor:red"_s);
    QCOMPARE(myView->choice().pages, 30);
    QCOMPARE(myView->choice().variants.value(u"alcolor"_s), u"red"_s);
}

void tst_ProductView::setsAChoice()
{
    show(0);
    myView->setChoice({ 34, RVArticleVariants(u"alcolor"_s, u"red"_s) });
    QCOMPARE(myView->choice().pages, 34);
    QCOMPARE(myView->choice().variants.value(u"alcolor"_s), u"red"_s);
    myView->setChoice({ 35, RVArticleVariants(u"alcolor"_s, u"blue"_s) }); // neither is offered
    QCOMPARE(myView->choice().pages, 34);
    QCOMPARE(myView->choice().variants.value(u"alcolor"_s), u"red"_s);
}

void tst_ProductView::keepsTheChoice()
{
    show(0);
    myView->setChoice({ 34, RVArticleVariants(u"alcolor"_s, u"red"_s) });
    myCatalogue = readCatalogue(QByteArray(CATALOGUE).replace("Buch", "Album"));
    myView->updateProduct(myCatalogue, 0);
    QCOMPARE(label(u"title"_s)->text(), u"DUN9 – Album"_s);
    QCOMPARE(myView->choice().pages, 34);
    QCOMPARE(myView->choice().variants.value(u"alcolor"_s), u"red"_s);
    show(0);
    QCOMPARE(myView->choice().pages, 26);
    QCOMPARE(myView->choice().variants.value(u"alcolor"_s), u"black"_s);
}

void tst_ProductView::copies()
{
    show(0);
    myView->copyPrices();
    QCOMPARE(QApplication::clipboard()->text(), u"1\tPB\tproduct"_s);
    myView->copy(OrderLinesPanel::OrderText);
    QCOMPARE(QApplication::clipboard()->text(), u"alcolor:black"_s);
}

void tst_ProductView::showsAFault_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QByteArray>("part");

    QTest::newRow("option") << QByteArray("</forms>") << QByteArray("<form key='x'/></forms>")
                            << QByteArray("OptionsPanel");
    QTest::newRow("barcode") << QByteArray("width='38'") << QByteArray("width='-38'") << QByteArray("PagePanel");
    QTest::newRow("spine") << QByteArray("block_width='1'") << QByteArray("block_width='x'")
                           << QByteArray("SpinePanel");
    QTest::newRow("page counts") << QByteArray("'154'") << QByteArray("'155'") << QByteArray("SpinePanel");
}

// In red above the part that it is about.
void tst_ProductView::showsAFault()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QByteArray, part);
    showWindow({ 1000, 300 });
    QVERIFY(label(u"fault"_s)->isHidden());
    showFinding(from, to);
    showFinding(from, to); // once more
    const QLabel *fault = label(u"fault"_s);
    QVERIFY(fault->isVisible());
    QVERIFY(!fault->text().isEmpty());
    QCOMPARE(fault->palette().color(QPalette::WindowText), PaletteColors(myView->palette()).fault());
    const QWidget *below = nullptr;
    for (const QWidget *widget : myView->findChildren<QWidget *>()) {
        if (widget->metaObject()->className() == part)
            below = widget;
    }
    QVERIFY(below);
    QTRY_VERIFY(place(below).top() > place(fault).bottom());
    QVERIFY(place(below).top() - place(fault).bottom() < 30);
    QCOMPARE(place(fault).x(), place(below).x());
    QVERIFY(!fault->visibleRegion().isEmpty()); // it was scrolled to
}

void tst_ProductView::hidesTheFault()
{
    showWindow({ 1000, 600 });
    showFinding("'154'", "'155'");
    QVERIFY(label(u"fault"_s)->isVisible());
    show(0);
    QVERIFY(!label(u"fault"_s)->isVisible());
    myCatalogue = readCatalogue(QByteArray(CATALOGUE).replace("'154'", "'155'").replace("'hardcover'", "'hardcvr'"));
    myServices.setCatalogue(myCatalogue);
    show(0);
    QStringList texts;
    for (const RVCatalogueFinding &finding : myCatalogue->findings()) {
        if (finding.product() != 0)
            continue;
        myView->showFinding(*myCatalogue, finding);
        // A fault of an attribute stands at the attribute itself.
        QCOMPARE(label(u"fault"_s)->isVisible(), !finding.text().contains("hardcvr"_L1));
        texts += finding.text();
    }
    QVERIFY(texts.size() > 1);
    for (const RVCatalogueFinding &finding : myCatalogue->findings()) {
        if (finding.text().contains("hardcvr"_L1))
            myView->showFinding(*myCatalogue, finding);
    }
    QVERIFY(!label(u"fault"_s)->isVisible());
}

void tst_ProductView::marksAnAttribute()
{
    showWindow({ 1000, 300 });
    showFinding("'600cm2'", "'A4'");
    const QLabel *marked = nullptr;
    for (const QLabel *text : part<AttributePanel>()->findChildren<QLabel *>()) {
        if (text->text().startsWith("A4 (600cm2)\n"_L1))
            marked = text;
    }
    QVERIFY(marked);
    QVERIFY(!marked->visibleRegion().isEmpty());
    QVERIFY(label(u"fault"_s)->isHidden());
}

void tst_ProductView::twoColumns()
{
    show(0);
    showWindow({ 1400, 900 });
    const QRect options = place(part<OptionsPanel>());
    const QRect spine = place(part<SpinePanel>());
    QTRY_VERIFY(place(part<SpinePanel>()).left() > place(part<OptionsPanel>()).right());
    QCOMPARE(place(part<SpinePanel>()).top(), place(part<OptionsPanel>()).top());
    QVERIFY(qAbs(options.width() - spine.width()) <= 1);
    QVERIFY(place(part<PagePanel>()).top() > spine.bottom());
    int bottom = place(label(u"title"_s)).bottom();
    for (const QWidget *widget : std::initializer_list<const QWidget *> {
                 part<OptionsPanel>(), part<OrderLinesPanel>(), part<PricesPanel>(), part<AttributePanel>() }) {
        QVERIFY(place(widget).top() > bottom);
        bottom = place(widget).bottom();
    }
}

// With the page count below the options, where it is chosen.
void tst_ProductView::oneColumn()
{
    show(0);
    showWindow({ 450, 900 });
    int bottom = place(label(u"title"_s)).bottom();
    for (const QWidget *widget :
         std::initializer_list<const QWidget *> { part<OptionsPanel>(), part<SpinePanel>(), part<OrderLinesPanel>(),
                                                  part<PricesPanel>(), part<AttributePanel>(), part<PagePanel>() }) {
        QVERIFY2(place(widget).top() > bottom, widget->metaObject()->className());
        bottom = place(widget).bottom();
    }
}

// Each column has all the room that it needs, and the window is no wider than it must be.
void tst_ProductView::changesColumnsWhereThereIsRoom()
{
    show(0);
    showWindow({ 1400, 900 });
    const auto isWide = [this] { return place(part<SpinePanel>()).left() > place(part<OptionsPanel>()).right(); };
    QTRY_VERIFY(isWide());
    const QMargins edges = myView->widget()->layout()->contentsMargins();
    const int texts = 60 * myView->fontMetrics().averageCharWidth();
    const int drawings = qMax(part<SpinePanel>()->minimumSizeHint().width(),
                              part<PagePanel>()->minimumSizeHint().width());
    QVERIFY(part<SpinePanel>()->minimumSizeHint().width() != part<PagePanel>()->minimumSizeHint().width());
    const int between = place(part<SpinePanel>()).left() - place(part<OptionsPanel>()).right() - 1;
    const int needed = edges.left() + texts + between + drawings + edges.right();
    const int beside = myView->width() - myView->viewport()->width();
    myView->resize(needed + beside, 900);
    QTRY_COMPARE(myView->viewport()->width(), needed);
    QApplication::processEvents(); // which moves the parts
    QVERIFY(isWide());
    myView->resize(needed + beside - 1, 900);
    QTRY_VERIFY(!isWide());
    QTRY_VERIFY(myView->widget()->width() <= myView->viewport()->width());
}

void tst_ProductView::movesTheFaultAlong()
{
    showWindow({ 1400, 900 });
    showFinding("'154'", "'155'");
    const QLabel *fault = label(u"fault"_s);
    for (const int width : { 450, 1400, 450 }) {
        myView->resize(width, 900);
        QTRY_COMPARE(place(part<SpinePanel>()).left() > place(part<OptionsPanel>()).right(), width == 1400);
        QTRY_VERIFY(place(part<SpinePanel>()).top() > place(fault).bottom());
        QVERIFY(place(part<SpinePanel>()).top() - place(fault).bottom() < 30);
        QCOMPARE(place(fault).x(), place(part<SpinePanel>()).x());
        QVERIFY(place(part<PagePanel>()).top() > place(part<SpinePanel>()).bottom());
    }
}

// Texts do not become higher than they need be, and what is left over below small drawings stays free.
void tst_ProductView::givesRoomToDrawings()
{
    show(0);
    showWindow({ 1400, 1800 });
    const auto height = [](const QWidget *widget) { return widget->height(); };
    QTRY_VERIFY(height(part<SpinePanel>()) > 700);
    QVERIFY(qAbs(height(part<SpinePanel>()) - height(part<PagePanel>())) < 100);
    QVERIFY(height(part<PagePanel>()) + height(part<SpinePanel>()) > 1650); // nearly all
    QVERIFY(height(part<AttributePanel>()) < 600);
    QVERIFY(height(part<OptionsPanel>()) < 200);
    show(1); // without drawings
    QTRY_VERIFY(height(part<SpinePanel>()) < 300);
    QVERIFY(height(part<PagePanel>()) < 300);
    QVERIFY(place(part<PagePanel>()).bottom() < 700);
    myView->resize(450, 4000); // in one column as well
    QTRY_VERIFY(place(part<SpinePanel>()).left() <= place(part<OptionsPanel>()).right());
    QVERIFY(height(part<SpinePanel>()) < 300);
    show(0);
    QTRY_VERIFY(place(part<SpinePanel>()).left() <= place(part<OptionsPanel>()).right());
    QTRY_VERIFY(height(part<SpinePanel>()) > 500);
    QVERIFY(height(part<OptionsPanel>()) < 200);
}

void tst_ProductView::alignsLabels()
{
    show(0);
    showWindow({ 1400, 900 });
    QTRY_VERIFY(place(myView->findChild<QComboBox *>(u"option alcolor"_s)).left() > 0);
    const auto left = [this](const QWidget *widget) { return place(widget).left(); };
    QTRY_COMPARE(left(myView->findChild<OrderLine *>(u"projectFile"_s)),
                 left(myView->findChild<QComboBox *>(u"option alcolor"_s)));
    const auto *form = qobject_cast<QFormLayout *>(part<AttributePanel>()->layout());
    QCOMPARE(left(form->itemAt(0, QFormLayout::FieldRole)->widget()),
             left(myView->findChild<OrderLine *>(u"projectFile"_s)));
}

// They are emphasized, broken and can be copied, and a long word does not make the window wide.
void tst_ProductView::headers()
{
    QVERIFY(myView->widgetResizable());
    const QFont usual = label(u"note"_s)->font();
    QVERIFY(label(u"faults"_s)->font().bold());
    QVERIFY(label(u"faults"_s)->font().pointSizeF() > usual.pointSizeF());
    QVERIFY(label(u"title"_s)->font().bold());
    QVERIFY(label(u"title"_s)->font().pointSizeF() > label(u"faults"_s)->font().pointSizeF());
    for (const QString &name : { u"title"_s, u"note"_s, u"faults"_s, u"fault"_s }) {
        QCOMPARE(label(name)->minimumWidth(), 1);
        QVERIFY(label(name)->wordWrap());
        QCOMPARE(label(name)->textFormat(), Qt::PlainText);
        QVERIFY(label(name)->textInteractionFlags() & Qt::TextSelectableByMouse);
    }
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_ProductView>(argc, argv);
}

#include "tst_ProductView.moc"
