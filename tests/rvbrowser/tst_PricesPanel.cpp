#include "EnglishTest.h"
#include "rvcatalog/CommandRun.h"

#include <MainWindow.h>
#include <OrderLine.h>
#include <PageCountChooser.h>
#include <PricesPanel.h>
#include <ProductList.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocumentFragment>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr char CATALOGUE[] =
        "<products>"
        "<product type='BOOK' article_id='1' price_class='PB' page_price_class='&lt;b>' pages='20' max_pages='40' "
        "page_step='10'><forms>"
        "<form key='c' key_name='Cover' value='a' value_name='A &amp; B' price_class='PB' preselected='true'/>"
        "<form key='c' key_name='Cover' value='0' value_name='Zero' price_class='0'/></forms></product>"
        "<product type='BOOK' article_id='2' price_class='PB' pages='20'/>"
        "<product type='CARD' article_id='3' pages='1'/>"
        "<product type='BAD' article_id='4' price_class='PB' pages='20' max_pages='10' page_step='2'/>"
        "</products>";

/// The price classes of an order with their counts in front.
QStringList billedBy(const QString &json)
{
    const QJsonObject order = QJsonDocument::fromJson(json.toUtf8()).object()["order"_L1].toObject();
    QStringList result;
    for (const QJsonValue &value : order["price_classes"_L1].toArray())
        result += u"%1\t%2%3"_s.arg(QString::number(value["count"_L1].toInteger()), value["price_class"_L1].toString(),
                                    value["free"_L1].toBool() ? u" (free)"_s : QString());
    result.sort();
    return result;
}

/// The same of what the window copies.
QStringList counted(const QStringList &lines)
{
    QStringList result;
    for (const QString &line : lines)
        result += line.section(u'\t', 0, 1);
    result.sort();
    return result;
}

}

class tst_PricesPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void followsWhatIsChosen();
    void copies_data();
    void copies();
    void tellsWhyThereAreNone_data();
    void tellsWhyThereAreNone();
    void billsWhatTheTerminalBills();
    void beginsEmpty();
    void forgetsTheProductBefore();
    void standsInOneRow();

private:
    void open(const QString &fileName);
    void load();
    template<typename T>
    T *find(const QString &name) const
    {
        return myWindow->findChild<T *>(name);
    }
    /// The table, a row a line and a bar between its cells.
    QStringList shown() const;
    /// The lines that the button copies; none where it cannot be pressed.
    QStringList copied() const;
    QString project(const RVProductType &type) const;
    void chooseSomething();

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<MainWindow> myWindow;
    QRandomGenerator myRandom { 260571 };
};

void tst_PricesPanel::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    myWindow = std::make_unique<MainWindow>();
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
    myWindow->activateWindow();
}

void tst_PricesPanel::cleanup()
{
    myWindow.reset();
}

void tst_PricesPanel::open(const QString &fileName)
{
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(fileName);
    QVERIFY(changed.wait(60000));
}

void tst_PricesPanel::load()
{
    QFile file(myFolder->filePath(u"c.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(CATALOGUE);
    file.close();
    open(file.fileName());
}

QStringList tst_PricesPanel::shown() const
{
    const QString text = QTextDocumentFragment::fromHtml(find<QLabel>(u"prices"_s)->text()).toPlainText();
    QStringList result;
    QStringList cells;
    for (const QString &cell : text.split(u'\n', Qt::SkipEmptyParts)) {
        cells += cell.trimmed();
        if (cells.size() < 4)
            continue;
        cells.removeAll(QString());
        result += cells.join(u'|');
        cells.clear();
    }
    return result;
}

QStringList tst_PricesPanel::copied() const
{
    QApplication::clipboard()->clear();
    QTest::mouseClick(find<QPushButton>(u"copy prices"_s), Qt::LeftButton);
    return QApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
}

void tst_PricesPanel::followsWhatIsChosen()
{
    load();
    QCOMPARE(shown(), QStringList { u"2 ×|PB|product · Cover: A & B"_s });
    auto *counts = find<QComboBox>(u"pageCounts"_s);
    QTest::keyClick(counts, Qt::Key_End);
    QCOMPARE(shown(), (QStringList { u"2 ×|PB|product · Cover: A & B"_s, u"2 ×|<b>|pages above the lowest count"_s }));
    QTest::keyClick(find<QComboBox>(u"option c"_s), Qt::Key_Down);
    QCOMPARE(shown(),
             (QStringList { u"1 ×|PB|product"_s, u"2 ×|<b>|pages above the lowest count"_s,
                            u"1 ×|0 (free)|Cover: Zero"_s }));
    QTest::keyClick(counts, Qt::Key_Home);
    QCOMPARE(shown(), (QStringList { u"1 ×|PB|product"_s, u"1 ×|0 (free)|Cover: Zero"_s }));
}

void tst_PricesPanel::copies_data()
{
    QTest::addColumn<bool>("isByKeys");

    QTest::newRow("button") << false;
    QTest::newRow("menu") << true;
}

void tst_PricesPanel::copies()
{
    QFETCH(bool, isByKeys);
    load();
    find<QComboBox>(u"pageCounts"_s)->setCurrentIndex(1);
    QApplication::clipboard()->clear();
    if (isByKeys)
        QTest::keyClick(myWindow.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    else
        QTest::mouseClick(find<QPushButton>(u"copy prices"_s), Qt::LeftButton);
    QCOMPARE(QApplication::clipboard()->text(),
             u"2\tPB\tproduct · Cover: A & B\n1\t<b>\tpages above the lowest count"_s);
    QCOMPARE(find<QLabel>(u"prices"_s)->accessibleName(), QApplication::clipboard()->text());
}

void tst_PricesPanel::tellsWhyThereAreNone_data()
{
    QTest::addColumn<int>("product");
    QTest::addColumn<QString>("text");

    QTest::newRow("earlier product") << 1 << u"This product cannot be ordered: an earlier one has the same type."_s;
    QTest::newRow("no price class") << 2 << u"None of the choices has a price class."_s;
    QTest::newRow("page counts") << 3 << u"This product cannot be ordered: its page counts are not valid."_s;
}

void tst_PricesPanel::tellsWhyThereAreNone()
{
    QFETCH(int, product);
    load();
    QVERIFY(!shown().isEmpty());
    myWindow->findChild<ProductList *>()->setCurrentProduct(product);
    QTEST(find<QLabel>(u"prices"_s)->text(), "text");
    QTEST(find<QLabel>(u"prices"_s)->accessibleName(), "text");
    QVERIFY(!find<QPushButton>(u"copy prices"_s)->isEnabled());
    QApplication::clipboard()->setText(u"mine"_s);
    QTest::keyClick(myWindow.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QApplication::clipboard()->text(), u"mine"_s);
}

/// The project file of what is chosen.
QString tst_PricesPanel::project(const RVProductType &type) const
{
    return u"<project productname=\"%1\" pages=\"%2\" variants=\"%3\"/>"_s.arg(
            type.toString().toHtmlEscaped(), QString::number(myWindow->findChild<PageCountChooser *>()->pages()),
            find<OrderLine>(u"projectFile"_s)->text().toHtmlEscaped());
}

void tst_PricesPanel::chooseSomething()
{
    for (QComboBox *values : myWindow->findChildren<QComboBox *>()) {
        if (values->objectName() == "pageCounts"_L1 || values->objectName().startsWith("option "_L1))
            values->setCurrentIndex(int(myRandom.bounded(values->count())));
    }
}

void tst_PricesPanel::beginsEmpty()
{
    PricesPanel panel;
    QCOMPARE(panel.findChild<QLabel *>()->text(), QString());
    QVERIFY(!panel.findChild<QPushButton *>()->isEnabled());
    QCOMPARE(panel.findChild<QPushButton *>()->accessibleName(), u"Copy: Price classes"_s);
}

// As long as nothing is chosen of the new one.
void tst_PricesPanel::forgetsTheProductBefore()
{
    load();
    auto *panel = myWindow->findChild<PricesPanel *>();
    QVERIFY(find<QPushButton>(u"copy prices"_s)->isEnabled());
    panel->setProduct(OrderPrices());
    QCOMPARE(find<QLabel>(u"prices"_s)->text(), QString());
    QCOMPARE(find<QLabel>(u"prices"_s)->accessibleName(), QString());
    QVERIFY(!find<QPushButton>(u"copy prices"_s)->isEnabled());
    QApplication::clipboard()->setText(u"mine"_s);
    panel->copy();
    QCOMPARE(QApplication::clipboard()->text(), u"mine"_s);
}

void tst_PricesPanel::standsInOneRow()
{
    PricesPanel panel;
    auto *text = panel.findChild<QLabel *>();
    const auto *button = panel.findChild<QPushButton *>();
    QCOMPARE(text->textFormat(), Qt::RichText);
    QVERIFY(text->wordWrap());
    QCOMPARE(text->textInteractionFlags(), Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setText(u"a<br>b<br>c<br>d<br>e"_s);
    panel.resize(600, 200);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    QVERIFY(button->width() <= button->sizeHint().width());
    QVERIFY(button->x() > text->geometry().right());
    QCOMPARE(button->y(), text->y()); // beside the first line
    QVERIFY(text->height() > 100);
}

void tst_PricesPanel::billsWhatTheTerminalBills()
{
    open(QString::fromUtf8(SAMPLE));
    const CataloguePointer catalogue = myWindow->session()->catalogue();
    QCOMPARE(catalogue->size(), 49);
    int bills = 0;
    for (int product = 0; product < catalogue->size(); ++product) {
        const RVProductType type = catalogue->at(product).type;
        QVERIFY(myWindow->showType(type));
        for (int choice = 0; choice < 5; ++choice) {
            const QString text = project(type);
            const CommandRun run({ u"order"_s, u"--json"_s, QString::fromUtf8(SAMPLE), u"-"_s }, text.toUtf8());
            QVERIFY2(run.exitCode == 0, qPrintable(text + run.messages));
            const QStringList expected = billedBy(run.output);
            const QStringList billed = counted(copied());
            QVERIFY2(billed == expected, qPrintable(text + billed.join(u'\n') + u" != "_s + expected.join(u'\n')));
            bills += billed.isEmpty() ? 0 : 1;
            chooseSomething();
        }
    }
    QVERIFY2(bills > 100, qPrintable(QString::number(bills)));
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_PricesPanel>(argc, argv);
}

#include "tst_PricesPanel.moc"
