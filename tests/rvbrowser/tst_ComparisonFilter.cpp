#include "EnglishTest.h"

#include <ComparisonFilter.h>

#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;

class tst_ComparisonFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void kinds();
    void words();
    void clears();
    void standsInOneRow();

private:
    QComboBox *kindList() const { return myFilter->findChild<QComboBox *>(u"changeKinds"_s); }
    QLineEdit *search() const { return myFilter->findChild<QLineEdit *>(u"searchChanges"_s); }

    std::unique_ptr<ComparisonFilter> myFilter;
};

void tst_ComparisonFilter::init()
{
    myFilter = std::make_unique<ComparisonFilter>();
}

void tst_ComparisonFilter::kinds()
{
    using Kind = ComparisonModel::Kind;
    QSignalSpy changed(myFilter.get(), &ComparisonFilter::changed);
    QStringList names;
    const Kind expected[] = { Kind::Any, Kind::Added, Kind::Removed, Kind::Changed, Kind::Renamed };
    for (int i = 0; i < kindList()->count(); ++i) {
        kindList()->setCurrentIndex(i);
        names += kindList()->currentText();
        QCOMPARE(myFilter->kind(), expected[i]);
        QCOMPARE(changed.size(), i);
    }
    QCOMPARE(names.join(u'|'), u"All changes|Added|Removed|Changed|Renamed"_s);
    QCOMPARE(kindList()->accessibleName(), u"Kind of change"_s);
}

void tst_ComparisonFilter::words()
{
    QSignalSpy changed(myFilter.get(), &ComparisonFilter::changed);
    QTest::keyClicks(search(), u"ab"_s);
    QCOMPARE(myFilter->search(), u"ab"_s);
    QCOMPARE(changed.size(), 2);
    QCOMPARE(search()->accessibleName(), u"Search changes"_s);
    QCOMPARE(search()->placeholderText(), u"Search product, change, value"_s);
    QVERIFY(search()->isClearButtonEnabled());
    QVERIFY(!search()->acceptDrops()); // the window opens files that are dropped
}

void tst_ComparisonFilter::clears()
{
    myFilter->show();
    QVERIFY(QTest::qWaitForWindowActive(myFilter.get()));
    kindList()->setCurrentIndex(3);
    kindList()->setFocus();
    search()->setText(u"x"_s);
    myFilter->clear();
    QCOMPARE(myFilter->kind(), ComparisonModel::Kind::Any);
    QCOMPARE(myFilter->search(), QString());
    QVERIFY(search()->hasFocus());
}

// Without an edge of its own, and with all room that is left over for the words.
void tst_ComparisonFilter::standsInOneRow()
{
    QCOMPARE(myFilter->layout()->contentsMargins(), QMargins());
    myFilter->resize(600, myFilter->sizeHint().height());
    myFilter->show();
    QVERIFY(QTest::qWaitForWindowExposed(myFilter.get()));
    QVERIFY(search()->x() > kindList()->geometry().right());
    QCOMPARE(kindList()->width(), kindList()->sizeHint().width());
    QCOMPARE(search()->geometry().right(), 599);
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_ComparisonFilter>(argc, argv);
}

#include "tst_ComparisonFilter.moc"
