#include <ElidedLabel.h>

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

using namespace Qt::StringLiterals;

class tst_ElidedLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QToolTip::hideText(); }
    void room();
    void toolTip_data();
    void toolTip();
    void paintsLess();
    void paintsAllThatFits();
    void paintsNoKey();
};

void tst_ElidedLabel::room()
{
    ElidedLabel label(QString(100, u'x'));
    const int whole = label.fontMetrics().horizontalAdvance(label.text());
    QVERIFY(label.sizeHint().width() >= whole);
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QCOMPARE(label.minimumSizeHint().width(), 6 * label.fontMetrics().averageCharWidth());
    QCOMPARE(label.minimumSizeHint().height(), label.sizeHint().height());
    label.setMostCharacters(1);
    QCOMPARE(label.sizeHint().width(), label.fontMetrics().averageCharWidth());
    label.setMostCharacters(20);
    QCOMPARE(label.sizeHint().width(), 20 * label.fontMetrics().averageCharWidth());
    label.setText(u"x"_s);
    QVERIFY(label.sizeHint().width() < 5 * label.fontMetrics().averageCharWidth());
    QCOMPARE(label.minimumSizeHint(), label.sizeHint());
    label.setUsualText(u"mmmm"_s);
    QCOMPARE(label.sizeHint().width(), label.fontMetrics().horizontalAdvance(u"mmmm"_s));
}

void tst_ElidedLabel::toolTip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasBuddy");
    QTest::addColumn<QString>("toolTip");

    QTest::newRow("short") << u"A"_s << false << u"window"_s;
    QTest::newRow("long") << QString(100, u'x') << false << QString(100, u'x');
    QTest::newRow("ampersand of a label") << QString(100, u'x') + u"&&"_s << true << QString(100, u'x') + u"&"_s;
    QTest::newRow("ampersands of a text") << QString(100, u'x') + u"&&"_s << false << QString(100, u'x') + u"&&"_s;
    QTest::newRow("markup") << QString(100, u'x') + u"<b>y</b>"_s << false
                            << u"<p>"_s + QString(100, u'x') + u"&lt;b&gt;y&lt;/b&gt;</p>"_s;
}

void tst_ElidedLabel::toolTip()
{
    QFETCH(QString, text);
    QFETCH(bool, hasBuddy);
    QWidget buddy;
    QWidget window;
    window.setToolTip(u"window"_s);
    ElidedLabel label(text);
    if (hasBuddy)
        label.setBuddy(&buddy);
    label.setParent(&window);
    label.resize(60, 20);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), label.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&label, &event);
    QTEST(QToolTip::text(), "toolTip");
}

// Nothing is cut off in the middle of a letter: beyond the dots there is nothing.
void tst_ElidedLabel::paintsLess()
{
    ElidedLabel label(QString(100, u'M'));
    label.resize(100, 20);
    const QImage image = label.grab().toImage();
    const QString shown = label.fontMetrics().elidedText(label.text(), Qt::ElideRight, 100);
    QVERIFY(shown.endsWith(u'…'));
    QLabel expected(shown);
    expected.resize(100, 20);
    QCOMPARE(image, expected.grab().toImage());
}

void tst_ElidedLabel::paintsAllThatFits()
{
    ElidedLabel label(u"short"_s);
    label.resize(label.sizeHint());
    QLabel expected(u"short"_s);
    expected.resize(label.size());
    QCOMPARE(label.grab().toImage(), expected.grab().toImage());
}

// An ampersand stands for itself, unless the label has a buddy.
void tst_ElidedLabel::paintsNoKey()
{
    ElidedLabel label(u"&&"_s + QString(100, u'M'));
    ElidedLabel other(u"&&"_s + QString(100, u'M'));
    QWidget buddy;
    other.setBuddy(&buddy);
    label.resize(100, 20);
    other.resize(100, 20);
    QVERIFY(label.grab().toImage() != other.grab().toImage());
}

QTEST_MAIN(tst_ElidedLabel)
#include "tst_ElidedLabel.moc"
