#include <LoadProgress.h>

#include <QLabel>
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
    QCOMPARE(bar->maximum(), 100);
    progress.start(u"b.xml"_s);
    QCOMPARE(bar->value(), 0);
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
