#include <RVCore/RVNamedColor.h>

#include <QColor>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVNamedColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void swatches_data();
    void swatches();
};

void tst_RVNamedColor::swatches_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("html");
    QTest::newRow("colour") << QColor(0x8c, 0x1c, 0x2b)
                            << u"<span style=\"background-color:#8c1c2b\">&nbsp;&nbsp;&nbsp;</span>"_s;
    QTest::newRow("invalid") << QColor() << u"<span style=\"background-color:transparent\">&nbsp;&nbsp;&nbsp;</span>"_s;
}

void tst_RVNamedColor::swatches()
{
    QFETCH(QColor, color);
    QTEST(RVNamedColor::renderColorPreviewHTML(color), "html");
}

QTEST_APPLESS_MAIN(tst_RVNamedColor)
#include "tst_RVNamedColor.moc"
