#include "EnglishTest.h"
#include "ReadCatalogue.h"

#include <AttributePanel.h>
#include <PaletteColors.h>

#include <QFormLayout>
#include <QLabel>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const char PRODUCT[] = "<p><product type='DUN9' article_id='17' article_class='book' cover_type='hardcovr' "
                       "space_magnitude='A4' paper_type='indigo-glossy'/></p>";

}

class tst_AttributePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void showsWhatTheProductSays();
    void showsAnotherProduct();
    void showsFaultsInRed();
    void marksAFault_data();
    void marksAFault();
    void marksOneAfterTheOther();
    void marksNothing();
    void longValues();

private:
    void show(const QByteArray &content);
    QFormLayout *form() const { return qobject_cast<QFormLayout *>(myPanel->layout()); }
    QLabel *label(int row, QFormLayout::ItemRole role) const
    {
        return qobject_cast<QLabel *>(form()->itemAt(row, role)->widget());
    }
    /// The rows that are shown: "label: text".
    QStringList rows() const;
    QLabel *value(const QString &label) const;
    bool isRed(const QLabel *label) const
    {
        return label->palette().color(QPalette::WindowText) == PaletteColors(myPanel->palette()).fault();
    }

    std::unique_ptr<AttributePanel> myPanel;
};

void tst_AttributePanel::init()
{
    myPanel = std::make_unique<AttributePanel>();
}

void tst_AttributePanel::show(const QByteArray &content)
{
    const CataloguePointer catalogue = readCatalogue(content);
    myPanel->setProduct(catalogue->product(0), catalogue->words(), catalogue->check());
}

QStringList tst_AttributePanel::rows() const
{
    QStringList result;
    for (int row = 0; row < form()->rowCount(); ++row) {
        if (form()->isRowVisible(row))
            result += label(row, QFormLayout::LabelRole)->text() + u": "_s + label(row, QFormLayout::FieldRole)->text();
    }
    return result;
}

QLabel *tst_AttributePanel::value(const QString &label) const
{
    for (int row = 0; row < form()->rowCount(); ++row) {
        if (this->label(row, QFormLayout::LabelRole)->text() == label)
            return this->label(row, QFormLayout::FieldRole);
    }
    return nullptr;
}

void tst_AttributePanel::showsWhatTheProductSays()
{
    show(PRODUCT);
    QCOMPARE(rows(),
             (QStringList { u"Kind of article: RAVO PHOTO BOOK (book)"_s, u"Article id: 17"_s,
                            u"Cover: hardcovr\n\"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?"_s,
                            u"Paper: Digital print, high gloss (indigo-glossy)"_s, u"Size class: A4 (600cm2)"_s }));
}

void tst_AttributePanel::showsAnotherProduct()
{
    show(PRODUCT);
    const int before = form()->rowCount();
    show("<p><product type='DUN1' article_id='18' cover_type='hardcover'/></p>");
    QCOMPARE(form()->rowCount(), before);
    QCOMPARE(rows().mid(1), (QStringList { u"Article id: 18"_s, u"Cover: Hardcover (HARDCOVER)"_s }));
    QVERIFY(!isRed(value(u"Cover"_s)));
}

void tst_AttributePanel::showsFaultsInRed()
{
    show(PRODUCT);
    QVERIFY(isRed(value(u"Cover"_s)));
    QVERIFY(!isRed(value(u"Paper"_s)));
    QCOMPARE(value(u"Cover"_s)->toolTip(), value(u"Cover"_s)->text()); // all of it, where it is cut off
}

void tst_AttributePanel::marksAFault_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");

    QTest::newRow("first") << u"article_class"_s << u"Kind of article"_s << u"RAVO PHOTO BOOK (book)\nbad"_s;
    QTest::newRow("value") << u"space_magnitude"_s << u"Size class"_s << u"A4 (600cm2)\nbad"_s;
    QTest::newRow("missing") << u"orientation"_s << u"Orientation"_s << u"\nbad"_s;
    QTest::newRow("faulty already")
            << u"cover_type"_s << u"Cover"_s
            << u"hardcovr\n\"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?"_s;
}

void tst_AttributePanel::marksAFault()
{
    QFETCH(QString, attribute);
    QFETCH(QString, label);
    QFETCH(QString, text);
    show(PRODUCT);
    QCOMPARE(myPanel->markFault(attribute, u"bad"_s), value(label));
    QCOMPARE(value(label)->text(), text);
    QVERIFY(isRed(value(label)));
    QVERIFY2(rows().contains(label + u": "_s + text), qPrintable(rows().join(u'|')));
    show(PRODUCT);
    QVERIFY(!value(label)->text().endsWith(u"bad"_s));
}

void tst_AttributePanel::marksOneAfterTheOther()
{
    show(PRODUCT);
    myPanel->markFault(u"space_magnitude"_s, u"bad"_s);
    myPanel->markFault(u"space_magnitude"_s, u"worse"_s);
    QCOMPARE(value(u"Size class"_s)->text(), u"A4 (600cm2)\nworse"_s);
}

void tst_AttributePanel::marksNothing()
{
    show(PRODUCT);
    const QStringList before = rows();
    QCOMPARE(myPanel->markFault(u"pages"_s, u"bad"_s), nullptr);
    QCOMPARE(rows(), before);
}

// They are broken, and stand beside their names.
void tst_AttributePanel::longValues()
{
    show(PRODUCT);
    QCOMPARE(form()->labelAlignment(), Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(form()->verticalSpacing(), 3);
    const QLabel *cover = value(u"Cover"_s);
    QVERIFY(cover->wordWrap());
    QCOMPARE(cover->textFormat(), Qt::PlainText);
    QVERIFY(cover->textInteractionFlags() & Qt::TextSelectableByMouse);
    QCOMPARE(cover->minimumWidth(), 12 * cover->fontMetrics().averageCharWidth());
    QCOMPARE(label(0, QFormLayout::LabelRole)->alignment(), Qt::AlignLeft | Qt::AlignTop);
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_AttributePanel>(argc, argv);
}

#include "tst_AttributePanel.moc"
