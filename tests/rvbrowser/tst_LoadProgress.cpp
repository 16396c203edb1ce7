#include <LoadProgress.h>

#include <QLabel>
#include <QLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_LoadProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsItself();
    void startsOver();
    void tellsWhatIsCompared();
    void standsInOneRow();
    void asksToCancel();
};

void tst_LoadProgress::showsItself()
{
    LoadProgress progress(u"progress"_s);
    QVERIFY(progress.isHidden());
    progress.start(u"/catalogues/<b>products</b>.xml"_s);
    QVERIFY(progress.isVisible());
    const auto *label = progress.findChild<QLabel *>();
    QCOMPARE(label->text(), u"Loading b>.xml"_s);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    progress.start(u"products.xml"_s);
    QCOMPARE(label->text(), u"Loading products.xml"_s);
}

void tst_LoadProgress::startsOver()
{
    LoadProgress progress(u"progress"_s);
    const auto *bar = progress.findChild<QProgressBar *>();
    progress.start(u"a.xml"_s);
    QCOMPARE(bar->value(), 0);
    for (const int percent : { 1, 50, 100 }) {
        progress.setPercent(percent);
        QCOMPARE(bar->value(), percent);
    }
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 100);
    progress.start(u"b.xml"_s);
    QCOMPARE(bar->value(), 0);
}

void tst_LoadProgress::tellsWhatIsCompared()
{
    LoadProgress progress(u"progress"_s);
    progress.setPercent(50);
    progress.start(u"/old/a.xml"_s, u"/new/b.xml"_s);
    QVERIFY(progress.isVisible());
    QCOMPARE(progress.findChild<QLabel *>()->text(), u"Comparing a.xml with b.xml"_s);
    QCOMPARE(progress.findChild<QProgressBar *>()->value(), 0);
}

// Without an edge of its own, and with a bar whose width does not depend on the name of the file.
void tst_LoadProgress::standsInOneRow()
{
    LoadProgress progress(u"progress"_s);
    QCOMPARE(progress.objectName(), u"progress"_s);
    QCOMPARE(progress.layout()->contentsMargins(), QMargins());
    progress.start(u"a.xml"_s);
    QVERIFY(QTest::qWaitForWindowExposed(&progress));
    const auto *label = progress.findChild<QLabel *>();
    const auto *bar = progress.findChild<QProgressBar *>();
    const auto *cancel = progress.findChild<QPushButton *>();
    QCOMPARE(bar->width(), 200);
    QVERIFY(bar->x() > label->geometry().right());
    QVERIFY(cancel->x() > bar->geometry().right());
    QCOMPARE(label->x(), 0);
}

void tst_LoadProgress::asksToCancel()
{
    LoadProgress progress(u"progress"_s);
    progress.start(u"a.xml"_s);
    QSignalSpy cancelRequested(&progress, &LoadProgress::cancelRequested);
    QTest::mouseClick(progress.findChild<QPushButton *>(u"progressCancel"_s), Qt::LeftButton);
    QCOMPARE(cancelRequested.size(), 1);
    QVERIFY(progress.isVisible()); // until it has ended
}

QTEST_MAIN(tst_LoadProgress)
#include "tst_LoadProgress.moc"
