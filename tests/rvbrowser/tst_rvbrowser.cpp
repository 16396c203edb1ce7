#include "EnglishTest.h"
#include "ManyProducts.h"
#include "WrittenFile.h"

#include <FindingsPanel.h>
#include <Language.h>
#include <MainWindow.h>
#include <MessageBanner.h>
#include <OrderLine.h>
#include <PageDrawing.h>
#include <ProductTreeModel.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTreeView>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const char CATALOGUE[] =
        "<products>\n"
        "<product type='DUN9' article_id='1001' name='Großes Buch' article_class='book' cover_type='hardcover' "
        "orientation='portrait' space_magnitude='A4' price_class='PB9' pages='26' max_pages='154' page_step='4'>"
        "<barcodes units='mm'><barcode position_x='12' position_y='290' width='38' height='10' pageNr='2'/>"
        "<barcode position_x='12' position_y='400' width='38' height='10' pageNr='7'/></barcodes>"
        "<composition units='mm'><spine packages_per_block='2' base_width='8' block_width='1' "
        "additional_width='0.5'/></composition><forms>"
        "<form key='alcolor' key_name='Farbe' value='black' value_name='Schwarz' color='#1a1a1a' preselected='true'/>"
        "<form key='alcolor' key_name='Farbe' value='red' value_name='Rot' color='red'/>"
        "<form key='box;lining' key_name='Box' value='none;none' value_name='Ohne' preselected='true'/>"
        "<form key='box;lining' key_name='Box' value='wood;black' value_name='Holz'/>"
        "</forms></product>\n"
        "<product type='VIR1' article_id='1002' name='Wandkalender' article_class='normal_calendar' pages='13'/>\n"
        "<product type='DUNS4' article_id='1003' name='Heft' article_class='book' page_binding='spiral' pages='24' "
        "max_pages='72' page_step='2'/>\n"
        "</products>\n";

/// The lines of a tool tip.
QStringList toolTipLines(const QModelIndex &index)
{
    const QString text = index.data(Qt::ToolTipRole).toString();
    return QTextDocumentFragment::fromHtml(text).toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

}

class tst_rvbrowser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsEmpty();
    void loads();
    void keepsEveryCharacter();
    void searches_data();
    void searches();
    void searchIsNoChoice();
    void searchStays();
    void searchWithoutResult();
    void searchByKeys();
    void choosesByKeys();
    void attributesInWords();
    void changesTheCount();
    void hugeLengths();
    void showsMarkupAsItIs();
    void invalidCounts();
    void optionsAndOrderLines();
    void copies_data();
    void copies();
    void copiesNothing();
    void barcodePages();
    void productsOfOneType();
    void findings();
    void findingsByTheConfiguration();
    void toolTips();
    void brokenConfiguration();
    void reloadsAChangedFile();
    void reloadsWithF5();
    void opensABrokenFile();
    void mendsABrokenFile();
    void tellsOfADeletedFile();
    void beginsWithAProduct_data();
    void beginsWithAProduct();
    void wheelNeedsFocus();
    void buddies();
    void tabOrder();
    void shrinkingSpine();
    void cancelsALoad();
    void dropsAFile();
    void dropsNothingElse();
    void wordsInGerman();
    void findingsInGerman();
    void messagesInGerman();
    void manyProductsStayUsable();
    void narrowWindow();
    void models();

    void screenshot_data();
    void screenshot();
    void screenshotProblems_data();
    void screenshotProblems();
    void help();

private:
    QString path(const QString &name) const { return myFolder->filePath(name); }
    void write(const QString &name, const QByteArray &content);
    /// The parts of an order line, sorted.
    QStringList pieces(const QString &line, QChar separator) const;
    /// Runs a test with a new window that speaks German.
    void inGerman(const std::function<void()> &test);
    /// Loads a file with this content, and waits until it is shown.
    void load(const QByteArray &content);
    template<typename T>
    T *find(const QString &name) const
    {
        return myWindow->findChild<T *>(name);
    }
    QString text(const QString &label) const { return find<QLabel>(label)->text(); }
    QStringList shownTypes() const;
    void drop(const QMimeData &data);

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<MainWindow> myWindow;
};

void tst_rvbrowser::write(const QString &name, const QByteArray &content)
{
    QVERIFY(writeFile(path(name), content));
}

void tst_rvbrowser::load(const QByteArray &content)
{
    write(u"c.xml"_s, content);
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(path(u"c.xml"_s));
    QVERIFY(changed.wait(60000));
}

QStringList tst_rvbrowser::shownTypes() const
{
    QStringList result;
    const QAbstractItemModel *model = find<QTreeView>(u"products"_s)->model();
    for (int group = 0; group < model->rowCount(); ++group) {
        const QModelIndex parent = model->index(group, 0);
        for (int row = 0; row < model->rowCount(parent); ++row)
            result += model->index(row, 0, parent).data().toString();
    }
    return result;
}

void tst_rvbrowser::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    myWindow = std::make_unique<MainWindow>();
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
    myWindow->activateWindow();
}

void tst_rvbrowser::cleanup()
{
    myWindow.reset();
}

void tst_rvbrowser::startsEmpty()
{
    QVERIFY(find<QLabel>(u"welcome"_s)->isVisible());
    QVERIFY(!find<QWidget>(u"productView"_s)->isVisible());
    QVERIFY(shownTypes().isEmpty());
    QTest::keyClick(myWindow.get(), Qt::Key_F5); // there is nothing to load again
    QVERIFY(!myWindow->session()->isLoading());
}

void tst_rvbrowser::loads()
{
    load(CATALOGUE);
    QCOMPARE(shownTypes(), (QStringList { u"DUN9"_s, u"DUNS4"_s, u"VIR1"_s }));
    const QAbstractItemModel *model = find<QTreeView>(u"products"_s)->model();
    QCOMPARE(model->index(0, 0).data().toString(), u"RAVO PHOTO BOOK (2)"_s);
    QCOMPARE(model->index(1, 0).data().toString(), u"RAVO CALENDAR (1)"_s);
    QCOMPARE(text(u"title"_s), u"DUN9 – Großes Buch"_s);
    QCOMPARE(text(u"count"_s), u"3 products"_s);
    QVERIFY(!find<QLabel>(u"welcome"_s)->isVisible());
    QVERIFY(!find<QWidget>(u"progress"_s)->isVisible());
    QVERIFY(myWindow->windowTitle().startsWith("c.xml"_L1));
}

// Products are packed away until they are shown.
void tst_rvbrowser::keepsEveryCharacter()
{
    load("<p><product type='X &amp; &lt;Y&gt;' name='&quot;a&apos;&#10;&#9;b&#x1F4D6; ü'><forms>"
         "<form key='k' value='v&amp;&lt;&quot;' value_name='&#233;&#10;'/></forms></product></p>");
    const RVCatalogueProduct product = myWindow->session()->catalogue()->product(0);
    QCOMPARE(product.type().toString(), u"X & <Y>"_s);
    QCOMPARE(product.name(), u"\"a'\n\tb\U0001F4D6 ü"_s);
    QCOMPARE(product.options().size(), 1);
    QCOMPARE(product.options().constFirst().value(), u"v&<\""_s);
    QCOMPARE(product.options().constFirst().visibleName(), u"é\n"_s);
    QCOMPARE(find<OrderLine>(u"projectFile"_s)->text(), u"k:v&<\""_s);
}

void tst_rvbrowser::searches_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("types");

    QTest::newRow("type") << u"dun"_s << QStringList { u"DUN9"_s, u"DUNS4"_s };
    QTest::newRow("article id") << u"1002"_s << QStringList { u"VIR1"_s };
    QTest::newRow("keyword") << u"spiral"_s << QStringList { u"DUNS4"_s };
    QTest::newRow("keyword of the kind") << u"normal_calendar"_s << QStringList { u"VIR1"_s };
    QTest::newRow("another keyword for the same") << u"600cm2"_s << QStringList { u"DUN9"_s };
    QTest::newRow("display name of an attribute") << u"photo book"_s << QStringList { u"DUN9"_s, u"DUNS4"_s };
    QTest::newRow("name, letter case") << u"GROSSES"_s << QStringList { u"DUN9"_s };
    QTest::newRow("name") << u"großes"_s << QStringList { u"DUN9"_s };
    QTest::newRow("two words in any order") << u"hardcover  dun"_s << QStringList { u"DUN9"_s };
    QTest::newRow("nothing") << u"dun 1002"_s << QStringList();
    QTest::newRow("blank") << u"  "_s << QStringList { u"DUN9"_s, u"DUNS4"_s, u"VIR1"_s };
}

void tst_rvbrowser::searches()
{
    load(CATALOGUE);
    QFETCH(QString, search);
    QTest::keyClicks(find<QLineEdit>(u"search"_s), search);
    QTEST(shownTypes(), "types");
    QTest::keyClick(find<QLineEdit>(u"search"_s), Qt::Key_Escape);
    QCOMPARE(shownTypes().size(), 3);
}

// The chosen product stays, with all that was chosen for it, and is current again as soon as it is found.
void tst_rvbrowser::searchIsNoChoice()
{
    load(CATALOGUE);
    auto *products = find<QTreeView>(u"products"_s);
    auto *search = find<QLineEdit>(u"search"_s);
    find<QComboBox>(u"pageCounts"_s)->setCurrentIndex(2);
    for (const QString &hiding : { u"wand"_s, u"no such product"_s }) {
        QTest::keyClicks(search, hiding);
        QCOMPARE(text(u"title"_s), u"DUN9 – Großes Buch"_s);
        QVERIFY(!products->currentIndex().isValid());
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(products->currentIndex().siblingAtColumn(0).data().toString(), u"DUN9"_s);
        QCOMPARE(find<QComboBox>(u"pageCounts"_s)->currentText(), u"34 pages"_s);
    }
    QTest::keyClick(products, Qt::Key_Down);
    QCOMPARE(text(u"title"_s), u"DUNS4 – Heft"_s);
}

// Of another catalogue the first product that is found is shown.
void tst_rvbrowser::searchStays()
{
    load(CATALOGUE);
    QTest::keyClicks(find<QLineEdit>(u"search"_s), u"wand"_s);
    write(u"d.xml"_s, CATALOGUE);
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(path(u"d.xml"_s));
    QVERIFY(changed.wait(20000));
    QCOMPARE(text(u"title"_s), u"VIR1 – Wandkalender"_s);
}

void tst_rvbrowser::searchWithoutResult()
{
    load(CATALOGUE);
    auto *clear = find<QPushButton>(u"clearSearch"_s);
    QVERIFY(!clear->isVisible());
    QTest::keyClicks(find<QLineEdit>(u"search"_s), u"calendar"_s);
    QCOMPARE(text(u"count"_s), u"1 of 3 products"_s);
    QVERIFY(!clear->isVisible());
    QTest::keyClicks(find<QLineEdit>(u"search"_s), u"x"_s);
    QCOMPARE(text(u"count"_s), u"0 of 3 products"_s);
    QVERIFY(clear->isVisible());
    QTest::mouseClick(clear, Qt::LeftButton);
    QCOMPARE(shownTypes().size(), 3);
    QVERIFY(!clear->isVisible());
    QCOMPARE(QApplication::focusWidget(), find<QLineEdit>(u"search"_s));
}

void tst_rvbrowser::searchByKeys()
{
    load(CATALOGUE);
    find<QTreeView>(u"products"_s)->setFocus();
    QTest::keyClick(myWindow.get(), Qt::Key_F, Qt::ControlModifier);
    QTRY_COMPARE(QApplication::focusWidget(), find<QLineEdit>(u"search"_s));
    QTest::keyClicks(QApplication::focusWidget(), u"wand"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(text(u"title"_s), u"VIR1 – Wandkalender"_s);
    QCOMPARE(QApplication::focusWidget(), find<QTreeView>(u"products"_s));
}

void tst_rvbrowser::choosesByKeys()
{
    load(CATALOGUE);
    auto *products = find<QTreeView>(u"products"_s);
    QTest::keyClick(products, Qt::Key_Down);
    QCOMPARE(text(u"title"_s), u"DUNS4 – Heft"_s);
    QTest::keyClick(products, Qt::Key_Down); // the next kind of article; the product stays
    QCOMPARE(text(u"title"_s), u"DUNS4 – Heft"_s);
    QTest::keyClick(products, Qt::Key_Down);
    QCOMPARE(text(u"title"_s), u"VIR1 – Wandkalender"_s);
    const QModelIndex first = products->model()->index(0, 1, products->model()->index(0, 0));
    QTest::mouseClick(products->viewport(), Qt::LeftButton, {}, products->visualRect(first).center());
    QCOMPARE(text(u"title"_s), u"DUN9 – Großes Buch"_s);
}

void tst_rvbrowser::attributesInWords()
{
    load(CATALOGUE);
    QStringList texts;
    for (const QLabel *label : myWindow->findChildren<QLabel *>()) {
        if (label->isVisible())
            texts += label->text();
    }
    for (const QString &wanted :
         { u"Kind of article"_s, u"RAVO PHOTO BOOK (book)"_s, u"1001"_s, u"Hardcover (HARDCOVER)"_s, u"A4 (600cm2)"_s,
           u"PB9"_s, u"38.0 × 10.0 mm on page 2\n38.0 × 10.0 mm on page 7"_s })
        QVERIFY2(texts.contains(wanted), qPrintable(wanted));
    QVERIFY(!texts.contains(u"Paper"_s)); // the product says nothing of it
}

void tst_rvbrowser::changesTheCount()
{
    load(CATALOGUE);
    auto *counts = find<QComboBox>(u"pageCounts"_s);
    QCOMPARE(counts->count(), 33);
    QCOMPARE(counts->currentText(), u"26 pages"_s);
    QVERIFY2(text(u"spineText"_s).startsWith(u"Spine 9.00 mm · font up to "_s), qPrintable(text(u"spineText"_s)));
    QCOMPARE(text(u"pageRange"_s), u"26 to 154 in steps of 4"_s);
    const QImage before = find<QWidget>(u"spineCurve"_s)->grab().toImage();
    QTest::keyClick(counts, Qt::Key_Down);
    QTest::keyClick(counts, Qt::Key_Down);
    QCOMPARE(counts->currentText(), u"34 pages"_s);
    QVERIFY(text(u"spineText"_s).startsWith(u"Spine 10.00 mm · font up to "_s));
    QVERIFY(text(u"spineText"_s).endsWith(u" pt DejaVu Sans · 2 packages more · 1 block more"_s));
    QVERIFY(find<QWidget>(u"spineCurve"_s)->grab().toImage() != before);
    QCOMPARE(find<QWidget>(u"spineDrawing"_s)->accessibleDescription(), u"10.0 mm wide"_s);
    QTest::keyClick(counts, Qt::Key_End);
    QVERIFY(text(u"spineText"_s).startsWith("Spine 25.00 mm"_L1));

    QVERIFY(myWindow->showType(RVProductType(u"VIR1"_s)));
    QCOMPARE(counts->count(), 1);
    QCOMPARE(text(u"spineText"_s), u"This product has no spine."_s);
    QVERIFY(!find<QWidget>(u"spineCurve"_s)->isVisible());
}

// Drawn by whole numbers, the page would vanish, or the barcode stand on its other side.
void tst_rvbrowser::hugeLengths()
{
    QByteArray content(CATALOGUE);
    load(content.replace("position_x='12' position_y='400'", "position_x='1e300' position_y='1e300'"));
    auto *pages = find<QComboBox>(u"barcodePages"_s);
    auto *drawing = find<PageDrawing>(u"pageDrawing"_s);
    pages->setCurrentIndex(pages->findText(u"7"_s));
    // Of so much room the page is a point.
    const QImage image = drawing->grab().toImage();
    bool isEmpty = true;
    for (int y = 0; y < image.height() && isEmpty; ++y) {
        for (int x = 0; x < image.width() && isEmpty; ++x)
            isEmpty = image.pixelColor(x, y) == drawing->palette().color(QPalette::Base);
    }
    QVERIFY(!isEmpty);

    content = CATALOGUE;
    load(content.replace("base_width='8'", "base_width='1e308'").replace("units='mm'><spine", "units='inch'><spine"));
    QCOMPARE(text(u"spineText"_s), u"This product has no spine."_s);
}

void tst_rvbrowser::showsMarkupAsItIs()
{
    QByteArray content(CATALOGUE);
    load(content.replace("key_name='Farbe'", "key_name='&lt;b>Farbe&lt;/b>'"));
    QLabel *name = nullptr;
    for (QLabel *label : myWindow->findChildren<QLabel *>()) {
        if (label->buddy() == find<QComboBox>(u"option alcolor"_s))
            name = label;
    }
    QVERIFY(name);
    QCOMPARE(name->text(), u"<b>Farbe</b>:"_s);
    QCOMPARE(name->textFormat(), Qt::PlainText);
}

void tst_rvbrowser::invalidCounts()
{
    load("<p><product type='X' pages='20' max_pages='10' page_step='2'/></p>");
    QCOMPARE(text(u"pageRange"_s), u"The page counts are not valid: from 20 to 10 in steps of 2."_s);
    QVERIFY(!find<QComboBox>(u"pageCounts"_s)->isEnabled());
    QVERIFY(text(u"note"_s).startsWith("This product cannot be offered"_L1));
}

QStringList tst_rvbrowser::pieces(const QString &line, QChar separator) const
{
    QStringList result = find<OrderLine>(line)->text().split(separator);
    result.sort();
    return result;
}

void tst_rvbrowser::optionsAndOrderLines()
{
    load(CATALOGUE);
    auto *color = find<QComboBox>(u"option alcolor"_s);
    auto *box = find<QComboBox>(u"option box;lining"_s);
    QCOMPARE(color->currentText(), u"Schwarz"_s);
    QCOMPARE(box->currentText(), u"Ohne"_s);
    const auto swatch = color->itemData(1, Qt::DecorationRole).value<QPixmap>();
    QCOMPARE(swatch.toImage().pixelColor(swatch.rect().center()), QColor(Qt::red));
    QVERIFY(!box->itemData(0, Qt::DecorationRole).isValid());

    QCOMPARE(pieces(u"projectFile"_s, u','), (QStringList { u"alcolor:black"_s, u"box;lining:none;none"_s }));
    QTest::keyClick(color, Qt::Key_Down);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(pieces(u"projectFile"_s, u','), (QStringList { u"alcolor:red"_s, u"box;lining:wood;black"_s }));
    const QStringList single { u"alcolor:red"_s, u"box:wood"_s, u"lining:black"_s };
    QCOMPARE(pieces(u"orderTransfer"_s, u','), single);
    QCOMPARE(pieces(u"orderText"_s, u';'), single);
    QCOMPARE(text(u"optionNames"_s), u"Farbe: Rot · Box: Holz"_s);

    // A text that is longer than its field is broken, not cut off.
    myWindow->resize(800, 500);
    const OrderLine *line = find<OrderLine>(u"projectFile"_s);
    QTRY_VERIFY(line->height() > line->fontMetrics().lineSpacing() * line->document()->size().height());

    QVERIFY(myWindow->showType(RVProductType(u"VIR1"_s)));
    QCOMPARE(line->text(), QString());
    QVERIFY(!find<QComboBox>(u"option alcolor"_s));
}

void tst_rvbrowser::copies_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Qt::Key>("key");

    QTest::newRow("project file") << u"projectFile"_s << Qt::Key_P;
    QTest::newRow("order transfer") << u"orderTransfer"_s << Qt::Key_T;
    QTest::newRow("order text") << u"orderText"_s << Qt::Key_O;
}

void tst_rvbrowser::copies()
{
    load(CATALOGUE);
    QFETCH(QString, line);
    QFETCH(Qt::Key, key);
    const QString expected = find<OrderLine>(line)->text();
    QVERIFY(expected.contains("alcolor:black"_L1));
    QApplication::clipboard()->clear();
    QTest::mouseClick(find<QPushButton>("copy "_L1 + line), Qt::LeftButton);
    QCOMPARE(QApplication::clipboard()->text(), expected);
    QApplication::clipboard()->clear();
    QTest::keyClick(myWindow.get(), key, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QApplication::clipboard()->text(), expected);
}

void tst_rvbrowser::copiesNothing()
{
    QApplication::clipboard()->setText(u"mine"_s);
    for (const Qt::Key key : { Qt::Key_P, Qt::Key_T, Qt::Key_O })
        QTest::keyClick(myWindow.get(), key, Qt::ControlModifier | Qt::ShiftModifier);
    load("<p><product type='A' article_id='1'/></p>");
    QTest::keyClick(myWindow.get(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QApplication::clipboard()->text(), u"mine"_s);
    QVERIFY(!find<QPushButton>(u"copy projectFile"_s)->isEnabled());
}

void tst_rvbrowser::barcodePages()
{
    load(CATALOGUE);
    auto *pages = find<QComboBox>(u"barcodePages"_s);
    QCOMPARE(pages->count(), 2);
    QCOMPARE(pages->currentText(), u"2"_s);
    QVERIFY(text(u"pageText"_s).endsWith("A barcode lies outside of it (red)."_L1)); // the other one does
    const QImage before = find<QWidget>(u"pageDrawing"_s)->grab().toImage();
    QTest::keyClick(pages, Qt::Key_Down);
    QCOMPARE(pages->currentText(), u"7"_s);
    QVERIFY(find<QWidget>(u"pageDrawing"_s)->grab().toImage() != before);
    QVERIFY(myWindow->showType(RVProductType(u"VIR1"_s)));
    QVERIFY(!pages->isVisible());
    QVERIFY(!find<QWidget>(u"pageDrawing"_s)->isVisible());
}

// The services know the first product of a type only; the others are shown as they are.
void tst_rvbrowser::productsOfOneType()
{
    load("<p><product type='X' article_id='1' pages='5'/><product type='X' article_id='2' pages='7'/></p>");
    QCOMPARE(find<QComboBox>(u"pageCounts"_s)->currentText(), u"5 pages"_s);
    QVERIFY(!find<QLabel>(u"note"_s)->isVisible());
    QTest::keyClick(find<QTreeView>(u"products"_s), Qt::Key_Down);
    QCOMPARE(find<QComboBox>(u"pageCounts"_s)->currentText(), u"7 pages"_s);
    QVERIFY(text(u"note"_s).startsWith("An earlier product has the same type"_L1));
}

void tst_rvbrowser::findings()
{
    load(CATALOGUE);
    QVERIFY(text(u"summary"_s).contains("errors"_L1));
    QByteArray content(CATALOGUE);
    load(content.replace("page_binding='spiral'", "page_binding='spirall'"));
    auto *view = find<QTableView>(u"findings"_s);
    const QAbstractItemModel *model = view->model();
    int row = 0;
    while (row < model->rowCount() && !model->index(row, 2).data().toString().contains("spirall"_L1))
        ++row;
    QVERIFY(row < model->rowCount());
    QCOMPARE(model->index(row, 1).data().toString(), u"DUNS4"_s);
    QCOMPARE(model->index(row, 3).data().toString(), u"4:74"_s);
    QCOMPARE(text(u"title"_s), u"DUN9 – Großes Buch"_s);
    QTest::keyClicks(find<QLineEdit>(u"search"_s), u"wand"_s); // which hides the product
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(model->index(row, 2)).center());
    QCOMPARE(text(u"title"_s), u"DUNS4 – Heft"_s);
    QCOMPARE(find<QLineEdit>(u"search"_s)->text(), QString());

    QVERIFY(view->isVisible());
    QTest::keyClick(myWindow.get(), Qt::Key_F4);
    QVERIFY(!view->isVisible());
}

// They are those of "rvcatalog check".
void tst_rvbrowser::findingsByTheConfiguration()
{
    write(u"rvcatalog.toml"_s, "[rules]\nprice-class-unknown = 'error'\narticle-id-missing = 'off'\n");
    load("<products><product type='DUN9' page_price_class='TAS1'/></products>");
    const QAbstractItemModel *model = find<QTableView>(u"findings"_s)->model();
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(model->index(0, 0).data().toString(), u"Error"_s);
    QCOMPARE(model->index(0, 1).data().toString(), u"DUN9"_s);
    QCOMPARE(model->index(0, 4).data().toString(), u"price-class-unknown"_s);
    QCOMPARE(text(u"summary"_s), u"1 error, 0 warnings, 0 notes"_s);
    QVERIFY(!myWindow->findChild<MessageBanner *>()->isVisible());
}

void tst_rvbrowser::toolTips()
{
    load("<products>\n<product type='DUN9_30' article_id='1' pages='26' max_pages='154' "
         "page_step='6'/>\n</products>\n");
    const QAbstractItemModel *model = find<QTableView>(u"findings"_s)->model();
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(model->index(0, 1).data().toString(), u"DUN9_30"_s); // as it stands in the file
    const QString finding = model->index(0, 2).data().toString();
    for (int column = 0; column < model->columnCount(); ++column) {
        const QStringList lines = toolTipLines(model->index(0, column));
        QCOMPARE(lines.value(0), finding);
        for (const QString &line :
             { u"The highest page count can never be chosen if no number of steps leads to it; "
               "correct page_step or max_pages."_s,
               u"  <product type=\"DUN9\" article_id=\"1001\" pages=\"26\" max_pages=\"154\" page_step=\"6\"/>"_s,
               u"  <product type=\"DUN9\" article_id=\"1001\" pages=\"26\" max_pages=\"154\" page_step=\"4\"/>"_s,
               u"<!-- rvcatalog: ignore page-step-misses-highest -->"_s, u"page-step-misses-highest = \"off\""_s })
            QVERIFY2(lines.contains(line), qPrintable(lines.join(u'\n')));
    }
}

void tst_rvbrowser::brokenConfiguration()
{
    write(u"rvcatalog.toml"_s, "[rules]\nprice-class-unknwon = 'off'\n");
    load(CATALOGUE);
    QCOMPARE(text(u"title"_s), u"DUN9 – Großes Buch"_s); // the products are there all the same
    const auto *banner = myWindow->findChild<MessageBanner *>();
    QVERIFY(banner->isVisible());
    QCOMPARE(banner->text(),
             path(u"rvcatalog.toml"_s)
                     + u", line 2, column 1: there is no rule \"price-class-unknwon\"; did you mean "
                       "\"price-class-unknown\"?\nThe catalogue was checked without this configuration."_s);
    write(u"rvcatalog.toml"_s, "[rules]\nprice-class-unknown = 'off'\n");
    QTRY_VERIFY_WITH_TIMEOUT(!banner->isVisible(), 20000);
}

// The page counts come from the manager's cache, which must have been emptied.
void tst_rvbrowser::reloadsAChangedFile()
{
    load(CATALOGUE);
    auto *counts = find<QComboBox>(u"pageCounts"_s);
    counts->setCurrentIndex(2);
    QTest::keyClick(find<QComboBox>(u"option alcolor"_s), Qt::Key_Down);
    QByteArray content(CATALOGUE);
    write(u"c.xml"_s, content.replace("max_pages='154'", "max_pages='50'").replace("Großes Buch", "Buch"));
    QTRY_COMPARE_WITH_TIMEOUT(text(u"title"_s), u"DUN9 – Buch"_s, 20000);
    QCOMPARE(counts->count(), 7);
    QCOMPARE(counts->currentText(), u"34 pages"_s);
    QCOMPARE(find<QComboBox>(u"option alcolor"_s)->currentText(), u"Rot"_s);
}

void tst_rvbrowser::reloadsWithF5()
{
    load(CATALOGUE);
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    QTest::keyClick(myWindow.get(), Qt::Key_F5);
    QVERIFY(changed.wait(20000));
}

void tst_rvbrowser::opensABrokenFile()
{
    load(CATALOGUE);
    write(u"broken.xml"_s, "<products>\n <product type='A'></products>");
    myWindow->session()->open(path(u"broken.xml"_s));
    auto *banner = myWindow->findChild<MessageBanner *>();
    QTRY_VERIFY_WITH_TIMEOUT(banner->isVisible(), 20000);
    QVERIFY2(banner->text().startsWith(path(u"broken.xml"_s) + ", line 2, column 20: "_L1), qPrintable(banner->text()));
    QVERIFY(banner->text().endsWith("\nThe catalogue that was loaded before is still shown."_L1));
    QCOMPARE(text(u"title"_s), u"DUN9 – Großes Buch"_s);
    QCOMPARE(find<QComboBox>(u"pageCounts"_s)->count(), 33);
    QVERIFY(myWindow->windowTitle().startsWith("c.xml"_L1));

    myWindow->session()->open(path(u"missing.xml"_s));
    QTRY_VERIFY_WITH_TIMEOUT(banner->text().contains("cannot open the file"_L1), 20000);
    load(CATALOGUE);
    QVERIFY(!banner->isVisible());
}

void tst_rvbrowser::mendsABrokenFile()
{
    load(CATALOGUE);
    auto *banner = myWindow->findChild<MessageBanner *>();
    write(u"c.xml"_s, QByteArray(CATALOGUE).left(700));
    QTRY_VERIFY_WITH_TIMEOUT(banner->isVisible(), 20000);
    QVERIFY2(banner->text().contains("the file ends too early"_L1), qPrintable(banner->text()));
    QCOMPARE(shownTypes().size(), 3);
    write(u"c.xml"_s, CATALOGUE);
    QTRY_VERIFY_WITH_TIMEOUT(!banner->isVisible(), 20000);
}

void tst_rvbrowser::tellsOfADeletedFile()
{
    load(CATALOGUE);
    auto *banner = myWindow->findChild<MessageBanner *>();
    QVERIFY(QFile::remove(path(u"c.xml"_s)));
    QTRY_VERIFY_WITH_TIMEOUT(banner->isVisible(), 20000);
    QCOMPARE(banner->text(),
             path(u"c.xml"_s)
                     + " is gone. It is loaded again when it comes back.\n"
                       "The catalogue that was loaded before is still shown."_L1);
    QCOMPARE(shownTypes().size(), 3);
    write(u"c.xml"_s, CATALOGUE);
    QTRY_VERIFY_WITH_TIMEOUT(!banner->isVisible(), 20000);
}

void tst_rvbrowser::beginsWithAProduct_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("message");

    QTest::newRow("there") << u"VIR1"_s << u"VIR1 – Wandkalender"_s << QString();
    QTest::newRow("a code of its family") << u"DUN9_30"_s << u"DUN9 – Großes Buch"_s << QString();
    QTest::newRow("type that the catalogue does not have")
            << u"NOPE"_s << u"DUN9 – Großes Buch"_s << u"The catalogue has no product of type \"NOPE\"."_s;
}

void tst_rvbrowser::beginsWithAProduct()
{
    QFETCH(QString, type);
    myWindow->beginWith(RVProductType(type));
    load(CATALOGUE);
    QTEST(text(u"title"_s), "title");
    QTEST(myWindow->findChild<MessageBanner *>()->text(), "message");
}

// A wheel over an option scrolls the product, as long as the option does not have the focus.
void tst_rvbrowser::wheelNeedsFocus()
{
    load(CATALOGUE);
    auto *values = find<QComboBox>(u"option alcolor"_s);
    const auto turn = [values] {
        const QPointF middle = values->rect().center();
        QWheelEvent event(middle, values->mapToGlobal(middle), {}, { 0, -120 }, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(values, &event);
    };
    find<QTreeView>(u"products"_s)->setFocus();
    turn();
    QCOMPARE(values->currentIndex(), 0);
    values->setFocus();
    QTRY_VERIFY(values->hasFocus());
    turn();
    QCOMPARE(values->currentIndex(), 1);
}

void tst_rvbrowser::buddies()
{
    load(CATALOGUE);
    int count = 0;
    for (const QLabel *label : myWindow->findChildren<QLabel *>()) {
        const QWidget *buddy = label->buddy();
        if (!buddy || QKeySequence::mnemonic(label->text()).isEmpty())
            continue;
        ++count;
        QVERIFY2(buddy->focusPolicy() & Qt::TabFocus, qPrintable(label->text()));
    }
    QCOMPARE(count, 5);
}

// With the tabulator through the whole product, as its panels stand.
void tst_rvbrowser::tabOrder()
{
    load(CATALOGUE);
    QTRY_VERIFY(find<QComboBox>(u"option alcolor"_s)->isVisible());
    QStringList names;
    find<QScrollArea>(u"productView"_s)->setFocus();
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        names += QApplication::focusWidget()->objectName();
    }
    const QStringList expected { u"option alcolor"_s, u"option box;lining"_s, u"projectFile"_s, u"copy projectFile"_s };
    const qsizetype first = names.indexOf(expected.constFirst());
    QVERIFY2(first >= 0, qPrintable(names.join(u' ')));
    QCOMPARE(names.mid(first, expected.size()), expected);
    QVERIFY2(names.indexOf(u"pageCounts"_s) > first, qPrintable(names.join(u' ')));
}

// A fault is to be seen, and not only that there is nothing.
void tst_rvbrowser::shrinkingSpine()
{
    load(QByteArray(CATALOGUE).replace("block_width='1'", "block_width='-1'"));
    QVERIFY(find<QWidget>(u"spineCurve"_s)->isVisible());
    QVERIFY2(text(u"spineText"_s).startsWith("Spine 9.00 mm"_L1), qPrintable(text(u"spineText"_s)));
    auto *counts = find<QComboBox>(u"pageCounts"_s);
    counts->setCurrentIndex(counts->count() - 1);
    QVERIFY2(text(u"spineText"_s).startsWith("Spine -7.00 mm"_L1), qPrintable(text(u"spineText"_s)));
    load(QByteArray(CATALOGUE).replace("base_width='8' block_width='1'", "base_width='-8' block_width='-1'"));
    QVERIFY(!find<QWidget>(u"spineCurve"_s)->isVisible());
}

void tst_rvbrowser::cancelsALoad()
{
    load(CATALOGUE);
    write(u"big.xml"_s, manyProducts(50000));
    QSignalSpy ended(myWindow->session(), &CatalogueSession::ended);
    QSignalSpy progressed(myWindow->session(), &CatalogueSession::progressed);
    myWindow->session()->open(path(u"big.xml"_s));
    QVERIFY(find<QWidget>(u"progress"_s)->isVisible());
    const auto percent = [&progressed] { return progressed.isEmpty() ? 0 : progressed.constLast().at(0).toInt(); };
    QTRY_VERIFY_WITH_TIMEOUT(percent() > 0, 20000);
    QCOMPARE(find<QWidget>(u"progress"_s)->findChild<QProgressBar *>()->value(), percent());
    QTest::mouseClick(find<QPushButton>(u"progressCancel"_s), Qt::LeftButton);
    QVERIFY(ended.wait(20000));
    QVERIFY(!myWindow->session()->isLoading());
    QVERIFY(!find<QWidget>(u"progress"_s)->isVisible());
    QCOMPARE(shownTypes().size(), 3);

    myWindow->session()->open(path(u"big.xml"_s));
    QTest::keyClick(myWindow.get(), Qt::Key_Escape);
    QVERIFY(ended.wait(20000));
    QCOMPARE(shownTypes().size(), 3);
    QCOMPARE(ended.size(), 2);
}

void tst_rvbrowser::drop(const QMimeData &data)
{
    const QPoint middle = myWindow->rect().center();
    // With this key files are moved.
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(middle, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    enter.ignore();
    QApplication::sendEvent(myWindow.get(), &enter);
    if (!enter.isAccepted())
        return;
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QDropEvent event(middle, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    event.ignore();
    QApplication::sendEvent(myWindow.get(), &event);
    QVERIFY(event.isAccepted());
    QCOMPARE(event.dropAction(), Qt::CopyAction);
}

void tst_rvbrowser::dropsAFile()
{
    write(u"c.xml"_s, CATALOGUE);
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(path(u"c.xml"_s)) });
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    drop(data);
    QVERIFY(changed.wait(20000));
    QCOMPARE(shownTypes().size(), 3);
}

void tst_rvbrowser::dropsNothingElse()
{
    QMimeData text;
    text.setText(u"c.xml"_s);
    drop(text);
    QMimeData two;
    two.setUrls({ QUrl::fromLocalFile(u"/a.xml"_s), QUrl::fromLocalFile(u"/b.xml"_s) });
    drop(two);
    QMimeData remote;
    remote.setUrls({ QUrl(u"https://localhost/c.xml"_s) });
    drop(remote);
    QVERIFY(!myWindow->session()->isLoading());
}

void tst_rvbrowser::inGerman(const std::function<void()> &test)
{
    myWindow.reset();
    {
        Language german;
        german.speak(QLocale(QLocale::German));
        myWindow = std::make_unique<MainWindow>();
        myWindow->show();
        test();
        myWindow.reset();
    }
    QLocale::setDefault(QLocale(QLocale::English));
}

void tst_rvbrowser::wordsInGerman()
{
    inGerman([this] {
        load(CATALOGUE);
        QCOMPARE(text(u"count"_s), u"3 Produkte"_s);
        QVERIFY2(text(u"spineText"_s).startsWith(u"Rücken 9,00 mm"_s), qPrintable(text(u"spineText"_s)));
        QStringList texts;
        for (const QLabel *label : myWindow->findChildren<QLabel *>())
            texts += label->text();
        for (const QString &wanted : { u"Artikelart"_s, u"Einband"_s, u"Bindung"_s, u"Papier"_s, u"Fotopapier"_s,
                                       u"Ausrichtung"_s, u"Größenklasse"_s, u"Hochformat (portrait)"_s })
            QVERIFY2(texts.contains(wanted), qPrintable(wanted));
    });
}

void tst_rvbrowser::findingsInGerman()
{
    inGerman([this] {
        load(CATALOGUE);
        const QAbstractItemModel *findings = find<QTableView>(u"findings"_s)->model();
        int row = 0;
        while (row < findings->rowCount() && findings->index(row, 4).data().toString() != "keyword-legacy"_L1)
            ++row;
        QVERIFY(row < findings->rowCount());
        QCOMPARE(findings->index(row, 2).data().toString(),
                 u"\"A4\" ist ein Zweitname in space_magnitude; das Hauptschlüsselwort ist \"600cm2\""_s);
        const QStringList lines = toolTipLines(findings->index(row, 4));
        QVERIFY2(lines.contains(u"Ein Zweitname wird noch gelesen, aber Programme schreiben das Hauptschlüsselwort "
                                "des Wertes; bitte das Hauptschlüsselwort angeben."_s),
                 qPrintable(lines.join(u'\n')));
    });
}

void tst_rvbrowser::messagesInGerman()
{
    inGerman([this] {
        load(CATALOGUE);
        write(u"c.xml"_s, "");
        auto *banner = myWindow->findChild<MessageBanner *>();
        QTRY_VERIFY_WITH_TIMEOUT(banner->isVisible(), 20000);
        QVERIFY2(banner->text().contains(u", Zeile 1, Spalte 1: die Datei ist leer"_s), qPrintable(banner->text()));
    });
}

void tst_rvbrowser::manyProductsStayUsable()
{
    load(manyProducts(20000));
    QCOMPARE(text(u"count"_s), u"20000 products"_s);
    QElapsedTimer timer;
    timer.start();
    QTest::keyClicks(find<QLineEdit>(u"search"_s), u"t1999"_s);
    QCOMPARE(shownTypes().size(), 11);
    QVERIFY(myWindow->showType(RVProductType(u"T7"_s)));
    QCOMPARE(text(u"title"_s), u"T7"_s);
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
}

// Without room for two columns nothing is cut off: the product can be scrolled down, but not sideways.
void tst_rvbrowser::narrowWindow()
{
    myWindow.reset();
    Language german;
    german.speak(QLocale(QLocale::German)); // whose words are longer
    myWindow = std::make_unique<MainWindow>();
    myWindow->show();
    load(CATALOGUE);
    auto *view = find<QScrollArea>(u"productView"_s);
    for (const QSize size : { QSize(800, 500), QSize(1000, 640), QSize(1100, 900), QSize(1150, 700), QSize(1200, 900),
                              QSize(1280, 800), QSize(1920, 1080) }) {
        myWindow->resize(size);
        QTest::qWait(100);
        QCOMPARE(myWindow->size(), size);
        QVERIFY2(view->widget()->width() <= view->viewport()->width(), qPrintable(QString::number(size.width())));
    }
    const auto left = [this](const QString &name) { return find<QWidget>(name)->mapTo(myWindow.get(), QPoint()).x(); };
    QVERIFY(left(u"pageDrawing"_s) > left(u"projectFile"_s)); // two columns
    myWindow->resize(800, 500);
    QTRY_VERIFY(left(u"pageDrawing"_s) < left(u"projectFile"_s));
    myWindow.reset();
    QLocale::setDefault(QLocale(QLocale::English));
}

void tst_rvbrowser::models()
{
    load(CATALOGUE);
    ProductTreeModel tree;
    const QAbstractItemModelTester treeTester(&tree, QAbstractItemModelTester::FailureReportingMode::QtTest);
    tree.setCatalogue(myWindow->session()->catalogue());
    QCOMPARE(tree.indexOfProduct(1).data(), QVariant(u"VIR1"_s));
    QCOMPARE(tree.indexOfProduct(1).parent(), tree.index(1, 0));
    QVERIFY(!tree.indexOfProduct(3).isValid());
    QVERIFY(!tree.indexOfProduct(-1).isValid());
    tree.setCatalogue(nullptr);
    QCOMPARE(tree.rowCount(), 0);
    FindingsModel findings;
    const QAbstractItemModelTester findingsTester(&findings, QAbstractItemModelTester::FailureReportingMode::QtTest);
    findings.setCatalogue(myWindow->session()->catalogue());
    findings.setCatalogue(nullptr);
    QCOMPARE(findings.rowCount(), 0);
}

void tst_rvbrowser::screenshot_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isDark");

    QTest::newRow("usual") << QStringList { u"--palette"_s, u"light"_s } << QSize(1280, 800) << false;
    QTest::newRow("dark, small") << QStringList { u"--palette"_s, u"dark"_s, u"--size"_s, u"1000x640"_s }
                                 << QSize(1000, 640) << true;
    QTest::newRow("product, German") << QStringList { u"--product"_s, u"DUN9_30"_s, u"--language"_s, u"de"_s }
                                     << QSize(1280, 800) << false;
    QTest::newRow("options of Qt") << QStringList { u"-style"_s, u"fusion"_s, u"--palette"_s, u"light"_s }
                                   << QSize(1280, 800) << false;
}

// From outside, without a display.
void tst_rvbrowser::screenshot()
{
    QFETCH(QStringList, options);
    QFETCH(bool, isDark);
    QProcess process;
    process.setProcessEnvironment(QProcessEnvironment());
    process.start(QString::fromUtf8(RVBROWSER),
                  options + QStringList { u"--screenshot"_s, path(u"out.png"_s), QString::fromUtf8(SAMPLE) });
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()), QString());
    QCOMPARE(process.exitCode(), 0);
    const QImage image(path(u"out.png"_s));
    QTEST(image.size(), "size");
    QCOMPARE(image.pixelColor(5, image.height() - 5).lightness() < 128, isDark);
    int colors = 0;
    QSet<QRgb> seen;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            seen.insert(image.pixel(x, y));
    }
    colors = int(seen.size());
    QVERIFY2(colors > 100, qPrintable(QString::number(colors)));
}

void tst_rvbrowser::screenshotProblems_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");

    const QString sample = QString::fromUtf8(SAMPLE);
    QTest::newRow("no such product") << QStringList { u"--screenshot"_s, u"o.png"_s, u"--product"_s, u"X"_s, sample }
                                     << 1 << u"rvbrowser: the catalogue has no product of type \"X\"\n"_s;
    QTest::newRow("broken") << QStringList {
        u"--screenshot"_s, u"o.png"_s, u"cut.xml"_s
    } << 2 << u"cut.xml:1:11: the file ends too early: <products>, which was opened in line 1, is not closed\n"_s;
    QTest::newRow("missing") << QStringList { u"--screenshot"_s, u"o.png"_s, u"missing.xml"_s } << 2
                             << u"missing.xml:1:1: cannot open the file: No such file or directory\n"_s;
    QTest::newRow("cannot write") << QStringList { u"--screenshot"_s, u"nowhere/o.png"_s, sample } << 2
                                  << u"rvbrowser: cannot write nowhere/o.png\n"_s;
    QTest::newRow("unknown option") << QStringList { u"--sing"_s } << 2
                                    << u"rvbrowser: Unknown option 'sing'.\nTry \"rvbrowser --help\".\n"_s;
}

void tst_rvbrowser::screenshotProblems()
{
    QFETCH(QStringList, arguments);
    write(u"cut.xml"_s, "<products>");
    QProcess process;
    process.setWorkingDirectory(myFolder->path());
    process.setProcessEnvironment(QProcessEnvironment());
    process.start(QString::fromUtf8(RVBROWSER), arguments);
    QVERIFY(process.waitForFinished(60000));
    QTEST(QString::fromUtf8(process.readAllStandardError()), "message");
    QTEST(process.exitCode(), "exitCode");
    QVERIFY(!QFile::exists(path(u"o.png"_s)));
}

void tst_rvbrowser::help()
{
    QProcess process;
    process.start(QString::fromUtf8(RVBROWSER), { u"--help"_s });
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(process.readAllStandardOutput().contains("[CATALOGUE.xml]"));
    process.start(QString::fromUtf8(RVBROWSER), { u"--version"_s });
    QVERIFY(process.waitForFinished(60000));
    QVERIFY(process.readAllStandardOutput().startsWith("rvbrowser 0."));
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_rvbrowser>(argc, argv);
}

#include "tst_rvbrowser.moc"
