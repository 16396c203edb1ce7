#include "EnglishTest.h"
#include "ReadProduct.h"

#include <FittingScrollArea.h>
#include <OptionsPanel.h>

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QProxyStyle>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const char BOOK[] =
        "<product type='DUN9'><forms>"
        "<form key='color' key_name='Black &amp; &lt;b>White&lt;/b>' value='black' value_name='Black' "
        "price_class='LEZ1'/>"
        "<form key='color' key_name='Black &amp; &lt;b>White&lt;/b>' value='red' value_name='Red' preselected='true' "
        "price_class='LEZ2'/>"
        "<form key='box' value='none' value_name='None' preselected='true'/>"
        "<form key='box' value='wood' value_name='Wood'/>"
        "</forms></product>";

/// That of a desktop whose forms have their labels at the right.
class RightLabels : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_FormLayoutLabelAlignment ? int(Qt::AlignRight)
                                                   : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

}

class tst_OptionsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new RightLabels); }
    void init();

    void beginsWithTheDefaults();
    void setsVariants();
    void tellsOfChanges();
    void notes_data();
    void notes();
    void labels();
    void showsAnotherProduct();
    void productWithoutOptions();
    void lists();
    void fillsTheBox();
    void scrollsManyOptions();

private:
    void setProduct(const QByteArray &element) { myPanel->setProduct(readProduct(element)); }
    QComboBox *values(const QString &key) const { return myPanel->findChild<QComboBox *>("option "_L1 + key); }
    QLabel *label(const QString &key) const;
    /// The layout of a list and its note.
    QHBoxLayout *field(const QString &key) const
    {
        return qobject_cast<QHBoxLayout *>(myPanel->form()->itemAt(row(key), QFormLayout::FieldRole)->layout());
    }
    QLabel *note(const QString &key) const { return qobject_cast<QLabel *>(field(key)->itemAt(1)->widget()); }
    int row(const QString &key) const;

    std::unique_ptr<OptionsPanel> myPanel;
};

void tst_OptionsPanel::init()
{
    myPanel = std::make_unique<OptionsPanel>();
}

QLabel *tst_OptionsPanel::label(const QString &key) const
{
    return qobject_cast<QLabel *>(myPanel->form()->itemAt(row(key), QFormLayout::LabelRole)->widget());
}

int tst_OptionsPanel::row(const QString &key) const
{
    int result = 0;
    QFormLayout::ItemRole role = QFormLayout::FieldRole;
    for (QHBoxLayout *layout : myPanel->form()->findChildren<QHBoxLayout *>()) {
        if (layout->indexOf(values(key)) >= 0)
            myPanel->form()->getLayoutPosition(layout, &result, &role);
    }
    return result;
}

void tst_OptionsPanel::beginsWithTheDefaults()
{
    setProduct(BOOK);
    QCOMPARE(values(u"color"_s)->currentText(), u"Red"_s);
    QCOMPARE(values(u"color"_s)->count(), 2);
    QCOMPARE(values(u"box"_s)->currentText(), u"None"_s);
    QCOMPARE(myPanel->variants().keys().size(), 2);
    QCOMPARE(myPanel->variants().value(u"color"_s), u"red"_s);
    QCOMPARE(myPanel->variants().value(u"box"_s), u"none"_s);
}

void tst_OptionsPanel::setsVariants()
{
    setProduct(BOOK);
    RVArticleVariants variants;
    variants.insert(u"color"_s, u"black"_s);
    variants.insert(u"box"_s, u"glass"_s); // which is not offered
    variants.insert(u"lining"_s, u"silk"_s);
    myPanel->setVariants(variants);
    QCOMPARE(values(u"color"_s)->currentText(), u"Black"_s);
    QCOMPARE(values(u"box"_s)->currentText(), u"None"_s);
    QCOMPARE(myPanel->variants().keys().size(), 2);
}

void tst_OptionsPanel::tellsOfChanges()
{
    QSignalSpy changed(myPanel.get(), &OptionsPanel::variantsChanged);
    setProduct(BOOK);
    QCOMPARE(changed.size(), 1);
    QTest::keyClick(values(u"color"_s), Qt::Key_Up);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(myPanel->variants().value(u"color"_s), u"black"_s);
}

void tst_OptionsPanel::notes_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("other");

    QTest::newRow("default") << QByteArray() << u"default"_s << QString();
    QTest::newRow("price class") << QByteArray("price_class='LEZ1'") << u"default · LEZ1"_s << u"LEZ1"_s;
    QTest::newRow("not charged") << QByteArray("not_accountable='true'") << u"default · not charged"_s
                                 << u"not charged"_s;
}

void tst_OptionsPanel::notes()
{
    QFETCH(QByteArray, attributes);
    setProduct("<product type='A'><forms><form key='k' value='a' preselected='true' " + attributes
               + "/><form key='k' value='b' " + attributes + "/></forms></product>");
    QTEST(note(u"k"_s)->text(), "chosen");
    values(u"k"_s)->setCurrentIndex(1);
    QTEST(note(u"k"_s)->text(), "other");
    const QFontMetrics metrics = note(u"k"_s)->fontMetrics();
    QCOMPARE(note(u"k"_s)->sizeHint().width(), metrics.horizontalAdvance(u"default · not charged"_s));
}

void tst_OptionsPanel::labels()
{
    setProduct(BOOK);
    QCOMPARE(label(u"color"_s)->text(), u"Black && <b>White</b>:"_s);
    QCOMPARE(label(u"color"_s)->textFormat(), Qt::PlainText);
    QCOMPARE(label(u"color"_s)->buddy(), values(u"color"_s));
    QCOMPARE(values(u"color"_s)->accessibleName(), u"Black & <b>White</b>"_s);
    QCOMPARE(values(u"color"_s)->toolTip(), u"color"_s);
    QCOMPARE(label(u"box"_s)->text(), u"box:"_s); // an option without a name
    QCOMPARE(values(u"box"_s)->accessibleName(), u"box"_s);
    setProduct("<product type='A'><forms><form key='k' key_name='" + QByteArray(60, 'M')
               + "' value='a'/></forms></product>");
    QCOMPARE(label(u"k"_s)->sizeHint().width(), 24 * label(u"k"_s)->fontMetrics().averageCharWidth());
}

void tst_OptionsPanel::showsAnotherProduct()
{
    setProduct(BOOK);
    QCOMPARE(myPanel->form()->rowCount(), 3);
    setProduct("<product type='A'><forms><form key='box' value='a'/></forms></product>");
    QCOMPARE(myPanel->form()->rowCount(), 2);
    QVERIFY(!values(u"color"_s));
    QCOMPARE(myPanel->variants().keys().size(), 1);
}

void tst_OptionsPanel::productWithoutOptions()
{
    const auto *none = myPanel->findChild<QLabel *>(u"noOptions"_s);
    QVERIFY(none->wordWrap());
    setProduct("<product type='A'/>");
    QVERIFY(myPanel->variants().keys().isEmpty());
    QCOMPARE(none->text(), u"This product has no options, so its order lines are empty."_s);
    QVERIFY(myPanel->form()->isRowVisible(0));
    setProduct(BOOK);
    QVERIFY(!myPanel->form()->isRowVisible(0));
    setProduct("<product type='A'/>");
    QVERIFY(myPanel->form()->isRowVisible(0));
}

// A long value does not make the window wide, and what is left over is for the lists, which are all equally wide.
void tst_OptionsPanel::lists()
{
    setProduct(BOOK);
    QCOMPARE(values(u"color"_s)->sizeAdjustPolicy(), QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QCOMPARE(values(u"color"_s)->minimumContentsLength(), 8);
    const QFormLayout *form = myPanel->form();
    QCOMPARE(form->contentsMargins(), QMargins());
    QCOMPARE(form->verticalSpacing(), 4);
    QCOMPARE(form->labelAlignment(), Qt::AlignLeft); // below those of the other panels
    QCOMPARE(field(u"color"_s)->spacing(), form->horizontalSpacing());
    myPanel->resize(800, 200);
    myPanel->show();
    QVERIFY(QTest::qWaitForWindowExposed(myPanel.get()));
    QCOMPARE(values(u"color"_s)->width(), values(u"box"_s)->width());
    QVERIFY(note(u"color"_s)->width() <= note(u"color"_s)->sizeHint().width());
    QVERIFY(values(u"color"_s)->width() > 300);
    QVERIFY(note(u"color"_s)->x() >= values(u"color"_s)->geometry().right());
    QVERIFY(note(u"color"_s)->geometry().right() > 700);
}

// Whose background is that of the group box.
void tst_OptionsPanel::fillsTheBox()
{
    const auto *area = myPanel->findChild<FittingScrollArea *>();
    QVERIFY(!area->viewport()->autoFillBackground());
    QVERIFY(!area->widget()->autoFillBackground());
    QCOMPARE(area->parentWidget(), myPanel.get());
}

void tst_OptionsPanel::scrollsManyOptions()
{
    QByteArray forms;
    for (int i = 0; i < 12; ++i)
        forms += "<form key='k" + QByteArray::number(i) + "' value='a'/>";
    setProduct("<product type='A'><forms>" + forms + "</forms></product>");
    const auto *area = myPanel->findChild<FittingScrollArea *>();
    QCOMPARE(area->minimumSizeHint().height(), 8 * (QComboBox().sizeHint().height() + 4));
    QVERIFY(area->sizeHint().height() > area->minimumSizeHint().height());
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_OptionsPanel>(argc, argv);
}

#include "tst_OptionsPanel.moc"
