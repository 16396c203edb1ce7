#include "EnglishTest.h"

#include <OrderLine.h>
#include <OrderLinesPanel.h>

#include <RVArticleVariants.h>

#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A line with its parts in the order of the alphabet; they come in any order.
QString sorted(const QString &line, QChar separator)
{
    QStringList parts = line.split(separator);
    parts.sort();
    return parts.join(separator);
}

}

class tst_OrderLinesPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void showsTheChoice();
    void showsNoChoice();
    void copies_data();
    void copies();
    void copiesNothing();
    void labels_data();
    void labels();
    void standsInColumns();

private:
    template<typename T>
    T *find(const QString &name) const
    {
        return myPanel->findChild<T *>(name);
    }
    QLabel *label(const QString &text) const;
    void choose();

    std::unique_ptr<OrderLinesPanel> myPanel;
};

void tst_OrderLinesPanel::init()
{
    myPanel = std::make_unique<OrderLinesPanel>();
}

QLabel *tst_OrderLinesPanel::label(const QString &text) const
{
    for (QLabel *label : myPanel->findChildren<QLabel *>()) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

void tst_OrderLinesPanel::choose()
{
    RVArticleVariants variants;
    variants.insert(u"box;lining"_s, u"wood;black"_s);
    myPanel->setVariants(variants, { u"Box: Wood"_s, u"Colour: <b>Red</b>"_s });
}

void tst_OrderLinesPanel::showsTheChoice()
{
    choose();
    QCOMPARE(find<QLabel>(u"optionNames"_s)->text(), u"Box: Wood · Colour: <b>Red</b>"_s);
    QCOMPARE(find<QLabel>(u"optionNames"_s)->textFormat(), Qt::PlainText);
    QCOMPARE(find<OrderLine>(u"projectFile"_s)->text(), u"box;lining:wood;black"_s);
    QCOMPARE(sorted(find<OrderLine>(u"orderTransfer"_s)->text(), u','), u"box:wood,lining:black"_s);
    QCOMPARE(sorted(find<OrderLine>(u"orderText"_s)->text(), u';'), u"box:wood;lining:black"_s);
}

void tst_OrderLinesPanel::showsNoChoice()
{
    choose();
    myPanel->setVariants({}, {});
    QCOMPARE(find<QLabel>(u"optionNames"_s)->text(), u"–"_s);
    for (const QString &name : { u"projectFile"_s, u"orderTransfer"_s, u"orderText"_s }) {
        QCOMPARE(find<OrderLine>(name)->text(), QString());
        QVERIFY(!find<QPushButton>("copy "_L1 + name)->isEnabled());
    }
}

void tst_OrderLinesPanel::copies_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("line");

    QTest::newRow("project file") << u"projectFile"_s << int(OrderLinesPanel::ProjectFile);
    QTest::newRow("order transfer") << u"orderTransfer"_s << int(OrderLinesPanel::OrderTransfer);
    QTest::newRow("order text") << u"orderText"_s << int(OrderLinesPanel::OrderText);
}

void tst_OrderLinesPanel::copies()
{
    QFETCH(QString, name);
    QFETCH(int, line);
    auto *button = find<QPushButton>("copy "_L1 + name);
    QVERIFY(!button->isEnabled()); // before there is a product
    choose();
    QVERIFY(button->isEnabled());
    const QString text = find<OrderLine>(name)->text();
    QApplication::clipboard()->clear();
    button->click();
    QCOMPARE(QApplication::clipboard()->text(), text);
    QApplication::clipboard()->clear();
    myPanel->copy(OrderLinesPanel::Line(line));
    QCOMPARE(QApplication::clipboard()->text(), text);
}

void tst_OrderLinesPanel::copiesNothing()
{
    QApplication::clipboard()->setText(u"mine"_s);
    myPanel->copy(OrderLinesPanel::OrderText);
    QCOMPARE(QApplication::clipboard()->text(), u"mine"_s);
}

void tst_OrderLinesPanel::labels_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("spoken");

    QTest::newRow("project file") << u"P&roject file:"_s << u"projectFile"_s << u"Copy: Project file:"_s;
    QTest::newRow("order transfer") << u"Order tra&nsfer:"_s << u"orderTransfer"_s << u"Copy: Order transfer:"_s;
    QTest::newRow("order text") << u"Order te&xt:"_s << u"orderText"_s << u"Copy: Order text:"_s;
}

void tst_OrderLinesPanel::labels()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    const auto *line = find<OrderLine>(name);
    QVERIFY(label(text));
    QCOMPARE(label(text)->buddy(), line);
    // The label stands on one line with the text in the frame.
    QCOMPARE(label(text)->contentsMargins(), QMargins(0, line->frameWidth() + 2, 0, 0));
    QTEST(find<QPushButton>("copy "_L1 + name)->accessibleName(), "spoken");
}

void tst_OrderLinesPanel::standsInColumns()
{
    choose();
    myPanel->resize(700, 300);
    myPanel->show();
    QVERIFY(QTest::qWaitForWindowExposed(myPanel.get()));
    const auto *names = find<QLabel>(u"optionNames"_s);
    const QLabel *customer = label(u"Customer:"_s);
    const int left = customer->x();
    const int right = names->geometry().right();
    QCOMPARE(customer->y(), names->y());
    QCOMPARE(customer->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QVERIFY(left > 0);
    int bottom = names->geometry().bottom();
    for (const auto &[name, text] :
         std::initializer_list<std::pair<QString, QString>> { { u"projectFile"_s, u"P&roject file:"_s },
                                                              { u"orderTransfer"_s, u"Order tra&nsfer:"_s },
                                                              { u"orderText"_s, u"Order te&xt:"_s } }) {
        const auto *line = find<OrderLine>(name);
        const auto *button = find<QPushButton>("copy "_L1 + name);
        QCOMPARE(label(text)->x(), left);
        QCOMPARE(line->x(), names->x());
        QCOMPARE(button->geometry().right(), right);
        QVERIFY(button->x() >= line->geometry().right());
        QVERIFY(button->width() <= button->sizeHint().width()); // the line takes what is left over
        QVERIFY(line->y() > bottom);
        QCOMPARE(label(text)->y(), line->y());
        QCOMPARE(button->y(), line->y());
        bottom = line->geometry().bottom();
    }
    const auto *grid = qobject_cast<QGridLayout *>(myPanel->layout());
    QCOMPARE(grid->verticalSpacing(), 4);
    QCOMPARE(grid->rowCount(), 4);
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_OrderLinesPanel>(argc, argv);
}

#include "tst_OrderLinesPanel.moc"
