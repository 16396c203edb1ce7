#include <OrderLine.h>

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

class tst_OrderLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isOneLineHigh();
    void growsWithItsText();
    void growsWhereItIsNarrow();
    void breaksBehindSeparators();
    void separators();
    void scrollsWhatIsLong();
    void cannotBeChanged();
    void isLeftByTab();

private:
    int lines() const; ///< that there is room for
    std::unique_ptr<OrderLine> myLine;
};

void tst_OrderLine::init()
{
    myLine = std::make_unique<OrderLine>();
    myLine->resize(400, myLine->height());
    myLine->show();
    QVERIFY(QTest::qWaitForWindowExposed(myLine.get()));
    myLine->activateWindow();
}

int tst_OrderLine::lines() const
{
    return myLine->height() / myLine->fontMetrics().lineSpacing();
}

void tst_OrderLine::isOneLineHigh()
{
    QCOMPARE(lines(), 1);
    myLine->setText(u"alcolor:red"_s);
    QCOMPARE(lines(), 1);
    // A margin of two pixels on both sides, and a pixel for what is rounded.
    const int frame = 2 * myLine->frameWidth();
    QCOMPARE(myLine->height(), myLine->fontMetrics().lineSpacing() + 4 + frame + 1);
    QCOMPARE(myLine->document()->documentMargin(), 2.0);
}

void tst_OrderLine::growsWithItsText()
{
    myLine->setText(u"a\nb\nc"_s);
    QCOMPARE(lines(), 3);
    QVERIFY(!myLine->verticalScrollBar()->isVisible());
    myLine->setText(u"a"_s);
    QCOMPARE(lines(), 1);
}

// There is no blank where it could be broken.
void tst_OrderLine::growsWhereItIsNarrow()
{
    const QString text(30, u'm');
    const int width = myLine->fontMetrics().horizontalAdvance(text);
    myLine->resize(width * 2, myLine->height());
    myLine->setText(text);
    QCOMPARE(lines(), 1);
    myLine->resize(width * 2 / 3, myLine->height());
    QTRY_COMPARE(lines(), 2);
    QVERIFY(!myLine->horizontalScrollBar()->isVisible());
}

void tst_OrderLine::breaksBehindSeparators()
{
    const QString text = u"coverphoto:yes,boxstyle;giftboxcolor:none;notAccountable"_s;
    myLine->resize(myLine->fontMetrics().horizontalAdvance(u"boxstyle;giftboxcolor:none"_s), myLine->height());
    myLine->setText(text);
    QStringList shown;
    const QTextBlock block = myLine->document()->firstBlock();
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
        const QTextLine line = block.layout()->lineAt(i);
        shown += block.text().mid(line.textStart(), line.textLength()).remove(QChar(0x200b));
    }
    QVERIFY(shown.size() > 2);
    for (const QString &line : shown)
        QVERIFY2(line.endsWith(u',') || line.endsWith(u';') || line.endsWith(u':') || line == shown.constLast(),
                 qPrintable(line));
    QCOMPARE(shown.join(QString()), text);

    // Copied, it is the text itself.
    QCOMPARE(myLine->text(), text);
    myLine->selectAll();
    myLine->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
}

// Every separator of an order.
void tst_OrderLine::separators()
{
    myLine->setText(u"a,b;c:d.e"_s);
    QCOMPARE(myLine->toPlainText(), u"a,\u200Bb;\u200Bc:\u200Bd.e"_s);
}

void tst_OrderLine::scrollsWhatIsLong()
{
    myLine->setText(u"1\n2\n3\n4"_s);
    QCOMPARE(lines(), 4);
    QTRY_VERIFY(!myLine->verticalScrollBar()->isVisible());
    myLine->setText(u"1\n2\n3\n4\n5\n6"_s);
    QCOMPARE(lines(), 4);
    QTRY_VERIFY(myLine->verticalScrollBar()->isVisible());
    QVERIFY(myLine->verticalScrollBar()->maximum() > 0);
}

void tst_OrderLine::cannotBeChanged()
{
    myLine->setText(u"alcolor:red"_s);
    QTest::keyClicks(myLine.get(), u"abc"_s);
    QTest::keyClick(myLine.get(), Qt::Key_Tab);
    QTest::keyClick(myLine.get(), Qt::Key_Delete);
    QCOMPARE(myLine->text(), u"alcolor:red"_s);
    QVERIFY(!myLine->testAttribute(Qt::WA_InputMethodEnabled)); // no keyboard on the screen opens
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(myLine.get(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(myLine.get(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"alcolor:red"_s);
}

// Like a label, although it can be chosen from.
void tst_OrderLine::isLeftByTab()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *line = new OrderLine;
    auto *next = new OrderLine;
    layout->addWidget(line);
    layout->addWidget(next);
    window.show();
    window.activateWindow();
    line->setFocus();
    QTRY_VERIFY(line->hasFocus());
    QTest::keyClick(line, Qt::Key_Tab);
    QVERIFY(next->hasFocus());
}

QTEST_MAIN(tst_OrderLine)
#include "tst_OrderLine.moc"
