#include <FittingScrollArea.h>

#include <QLabel>
#include <QScrollBar>
#include <QStyle>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class tst_FittingScrollArea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void breaksLines();
    void withoutContent();
    void leavesTheFocusToItsContent();
    void leastHeight_data();
    void leastHeight();
};

// Rows keep their height, even if the text beside them needs more.
void tst_FittingScrollArea::breaksLines()
{
    FittingScrollArea area;
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    auto *text = new QLabel(u"words that are broken "_s.repeated(60));
    text->setWordWrap(true);
    layout->addWidget(text);
    auto *rows = new QVBoxLayout;
    for (int i = 0; i < 40; ++i)
        rows->addWidget(new QLabel(u"row"_s));
    layout->addLayout(rows);
    area.setWidget(content);
    area.resize(300, 200);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    for (const int width : { 300, 500, 200 }) {
        area.resize(width, 200);
        QTRY_COMPARE(content->width(), area.viewport()->width());
        QTRY_VERIFY(text->height() >= text->heightForWidth(text->width()));
        for (int i = 0; i < 40; ++i)
            QVERIFY(rows->itemAt(i)->geometry().height() >= text->fontMetrics().height());
    }
    area.resize(300, 9000);
    QTRY_COMPARE(content->height(), area.viewport()->height());
    QTRY_VERIFY(!area.verticalScrollBar()->isVisible());
    text->setText(u"words that are broken "_s.repeated(3000)); // the content becomes higher by itself
    QTRY_VERIFY(area.verticalScrollBar()->isVisible());
}

void tst_FittingScrollArea::withoutContent()
{
    FittingScrollArea area;
    QCOMPARE(area.frameShape(), QFrame::NoFrame);
    QScrollArea plain;
    plain.setFrameShape(QFrame::NoFrame);
    QCOMPARE(area.sizeHint(), plain.sizeHint());
    const QSize usual = area.minimumSizeHint();
    area.setLeastHeight(100); // there is nothing to fit
    QCOMPARE(area.minimumSizeHint(), usual);
    area.setWidget(new QWidget);
    QCOMPARE(area.minimumSizeHint(), usual);
    area.resize(100, 100);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    QCOMPARE(area.maximumHeight(), QWIDGETSIZE_MAX);
}

void tst_FittingScrollArea::leavesTheFocusToItsContent()
{
    FittingScrollArea area;
    QVERIFY(area.focusPolicy() != Qt::NoFocus);
    area.setLeastHeight(1);
    QCOMPARE(area.focusPolicy(), Qt::NoFocus);
    QCOMPARE(area.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

void tst_FittingScrollArea::leastHeight_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("scrolls");

    QTest::newRow("few") << 2 << 600 << 40 << false;
    QTest::newRow("just the least") << 5 << 600 << 100 << false;
    QTest::newRow("many with room") << 20 << 600 << 400 << false;
    QTest::newRow("many with less room") << 20 << 300 << 300 << true;
    QTest::newRow("many without room") << 20 << 10 << 100 << true;
}

void tst_FittingScrollArea::leastHeight()
{
    QFETCH(int, rows);
    QFETCH(int, room);
    QFETCH(bool, scrolls);
    QWidget window;
    auto *outer = new QVBoxLayout(&window);
    outer->setContentsMargins(0, 0, 0, 0);
    auto *area = new FittingScrollArea;
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (int i = 0; i < rows; ++i) {
        auto *row = new QLabel;
        row->setFixedSize(200, 20);
        layout->addWidget(row);
    }
    area->setWidget(content);
    area->setLeastHeight(100);
    QCOMPARE(area->maximumHeight(), rows * 20);
    const int bar = rows * 20 > 100 ? area->style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    QCOMPARE(area->minimumSizeHint().width(), 200 + bar);
    outer->addWidget(area);
    outer->addStretch();
    window.resize(300, room);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(area->verticalScrollBar()->isVisible(), scrolls);
    QTEST(area->height(), "height");
    QVERIFY(!area->horizontalScrollBar()->isVisible());
    QVERIFY(window.minimumSizeHint().width() >= 200 + (scrolls ? area->verticalScrollBar()->width() : 0));
}

QTEST_MAIN(tst_FittingScrollArea)
#include "tst_FittingScrollArea.moc"
