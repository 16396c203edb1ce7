#include "EnglishTest.h"
#include "FaultyProducts.h"
#include "ReadCatalogue.h"

#include <FindingFilterBar.h>

#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolButton>

#include <memory>

using namespace Qt::StringLiterals;

class tst_FindingFilterBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void beginsWithoutFindings();
    void counts();
    void severities_data();
    void severities();
    void rules();
    void words();
    void keepsWhatIsChosen();
    void clearsAllAtOnce();
    void tellsHowManyAreShown();
    void standsInOneRow();

private:
    template<typename T>
    T *find(const QString &name) const
    {
        return myBar->findChild<T *>(name);
    }
    QComboBox *ruleList() const { return find<QComboBox>(u"findingRule"_s); }
    QLineEdit *text() const { return find<QLineEdit>(u"findingText"_s); }
    QStringList offeredRules() const;
    /// Shows the findings of four products.
    void fill(const QByteArray &content = FAULTY_PRODUCTS) { myBar->setFindings(readCatalogue(content)->findings()); }

    std::unique_ptr<FindingFilterBar> myBar;
    std::unique_ptr<QSignalSpy> myChanged;
};

void tst_FindingFilterBar::init()
{
    myBar = std::make_unique<FindingFilterBar>();
    myChanged = std::make_unique<QSignalSpy>(myBar.get(), &FindingFilterBar::filterChanged);
}

QStringList tst_FindingFilterBar::offeredRules() const
{
    QStringList result;
    for (int i = 0; i < ruleList()->count(); ++i)
        result += ruleList()->itemText(i);
    return result;
}

void tst_FindingFilterBar::beginsWithoutFindings()
{
    QCOMPARE(find<QToolButton>(u"showErrors"_s)->text(), u"0"_s);
    QCOMPARE(offeredRules(), QStringList { u"All rules"_s });
    QCOMPARE(ruleList()->currentIndex(), 0);
    QVERIFY(myBar->filter().text.isEmpty());
    QVERIFY(myBar->filter().hidden.isEmpty());
    QVERIFY(myBar->filter().rule.isNull());
}

void tst_FindingFilterBar::counts()
{
    fill();
    QCOMPARE(offeredRules(),
             (QStringList { u"All rules"_s, u"keyword-legacy (1)"_s, u"keyword-unknown (2)"_s,
                            u"option-incomplete (1)"_s, u"page-step-misses-highest (1)"_s }));
    QCOMPARE(myChanged->size(), 0);
}

void tst_FindingFilterBar::severities_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("count");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<RVCatalogueSeverity>("severity");

    QTest::newRow("errors") << u"showErrors"_s << u"3"_s << u"Show 3 errors"_s << RVCatalogueSeverity::Error;
    QTest::newRow("warnings") << u"showWarnings"_s << u"1"_s << u"Show 1 warning"_s << RVCatalogueSeverity::Warning;
    QTest::newRow("notes") << u"showNotes"_s << u"1"_s << u"Show 1 note"_s << RVCatalogueSeverity::Note;
}

// Each button hides the findings of its severity, and is reached with the tabulator and pressed with the space bar.
void tst_FindingFilterBar::severities()
{
    QFETCH(QString, button);
    QFETCH(QString, toolTip);
    QFETCH(RVCatalogueSeverity, severity);
    fill();
    auto *shown = find<QToolButton>(button);
    QTEST(shown->text(), "count");
    QCOMPARE(shown->toolTip(), toolTip);
    QCOMPARE(shown->accessibleName(), toolTip);
    QVERIFY(!shown->icon().isNull());
    QCOMPARE(shown->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(shown->focusPolicy(), Qt::StrongFocus);
    QVERIFY(shown->isChecked());
    QTest::keyClick(shown, Qt::Key_Space);
    QCOMPARE(myBar->filter().hidden, QList<RVCatalogueSeverity> { severity });
    QCOMPARE(myChanged->size(), 1);
    QTest::keyClick(shown, Qt::Key_Space);
    QVERIFY(myBar->filter().hidden.isEmpty());
    QCOMPARE(myChanged->size(), 2);
}

void tst_FindingFilterBar::rules()
{
    fill();
    ruleList()->setCurrentIndex(2);
    QCOMPARE(myChanged->size(), 1);
    QCOMPARE(myBar->filter().rule.name(), u"keyword-unknown"_s);
    // A long name of a rule does not make the window wide.
    QCOMPARE(ruleList()->sizeAdjustPolicy(), QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QCOMPARE(ruleList()->minimumContentsLength(), 18);
    QCOMPARE(ruleList()->accessibleName(), u"Rule"_s);
}

void tst_FindingFilterBar::words()
{
    QTest::keyClicks(text(), u"du"_s);
    QCOMPARE(myBar->filter().text, u"du"_s);
    QCOMPARE(myChanged->size(), 2);
    QSignalSpy left(myBar.get(), &FindingFilterBar::left);
    QTest::keyClick(text(), Qt::Key_Down);
    QCOMPARE(left.size(), 1);
    QTest::keyClick(text(), Qt::Key_Escape);
    QCOMPARE(myBar->filter().text, QString());
    myBar->show();
    QVERIFY(QTest::qWaitForWindowActive(myBar.get()));
    ruleList()->setFocus();
    myBar->focusText();
    QVERIFY(text()->hasFocus());
}

void tst_FindingFilterBar::keepsWhatIsChosen()
{
    fill();
    ruleList()->setCurrentIndex(3);
    text()->setText(u"x"_s);
    find<QToolButton>(u"showNotes"_s)->click();
    myChanged->clear();
    fill(QByteArray(FAULTY_PRODUCTS).replace("'A4'", "'600cm2'")); // without the first rule
    QCOMPARE(ruleList()->currentText(), u"option-incomplete (1)"_s);
    QCOMPARE(ruleList()->currentIndex(), 2);
    QCOMPARE(myBar->filter().text, u"x"_s);
    QCOMPARE(myBar->filter().hidden, QList<RVCatalogueSeverity> { RVCatalogueSeverity::Note });
    fill("<p/>"); // in which nothing breaks the rule
    QCOMPARE(ruleList()->currentIndex(), 0);
    QVERIFY(myBar->filter().rule.isNull());
    QCOMPARE(myChanged->size(), 0);
}

// The findings are shown once, and not once for each part of the filter.
void tst_FindingFilterBar::clearsAllAtOnce()
{
    fill();
    text()->setText(u"x"_s);
    ruleList()->setCurrentIndex(3);
    for (const QString &name : { u"showErrors"_s, u"showWarnings"_s, u"showNotes"_s })
        find<QToolButton>(name)->click();
    QCOMPARE(myBar->filter().hidden.size(), 3);
    myChanged->clear();
    myBar->clear();
    QCOMPARE(myChanged->size(), 1);
    QCOMPARE(myBar->filter().text, QString());
    QVERIFY(myBar->filter().rule.isNull());
    QVERIFY(myBar->filter().hidden.isEmpty());
    text()->setText(u"y"_s); // which is told again
    QCOMPARE(myChanged->size(), 2);
}

void tst_FindingFilterBar::tellsHowManyAreShown()
{
    myBar->setShown(2, 5);
    QCOMPARE(find<QLabel>(u"findingCount"_s)->text(), u"2 of 5 findings"_s);
    myBar->setShown(0, 1);
    QCOMPARE(find<QLabel>(u"findingCount"_s)->text(), u"0 of 1 finding"_s);
}

// All room that is left over is for the text.
void tst_FindingFilterBar::standsInOneRow()
{
    fill();
    myBar->setShown(5, 5);
    myBar->resize(900, myBar->sizeHint().height());
    myBar->show();
    QVERIFY(QTest::qWaitForWindowExposed(myBar.get()));
    int right = 4;
    for (const QString &name : { u"findingText"_s, u"showErrors"_s, u"showWarnings"_s, u"showNotes"_s, u"findingRule"_s,
                                 u"findingCount"_s }) {
        const auto *part = find<QWidget>(name);
        QVERIFY2(part->isVisible() && part->x() >= right, qPrintable(name));
        right = part->geometry().right() + 1;
        QVERIFY2(part == text() || part->width() <= part->sizeHint().width(), qPrintable(name));
    }
    QCOMPARE(right, 900 - 4);
    QCOMPARE(myBar->layout()->contentsMargins(), QMargins(4, 0, 4, 2));
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_FindingFilterBar>(argc, argv);
}

#include "tst_FindingFilterBar.moc"
