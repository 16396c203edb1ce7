#include <WheelGuard.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <memory>

using namespace Qt::StringLiterals;

class tst_WheelGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void needsTheFocus_data();
    void needsTheFocus();
    void letsOtherEventsPass();

private:
    /// True where the control takes it.
    static bool turn(QWidget *control);

    std::unique_ptr<QWidget> myWindow;
    QLineEdit *myOther = nullptr;
    QComboBox *myList = nullptr;
    QSpinBox *myNumber = nullptr;
};

void tst_WheelGuard::init()
{
    myWindow = std::make_unique<QWidget>();
    myOther = new QLineEdit;
    myList = new QComboBox;
    myNumber = new QSpinBox;
    myList->addItems({ u"a"_s, u"b"_s, u"c"_s });
    myList->setCurrentIndex(1);
    myNumber->setValue(1);
    auto *layout = new QVBoxLayout(myWindow.get());
    layout->addWidget(myOther);
    layout->addWidget(myList);
    layout->addWidget(myNumber);
    new WheelGuard(myList);
    new WheelGuard(myNumber);
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
    myWindow->activateWindow();
    myOther->setFocus();
    QTRY_VERIFY(myOther->hasFocus());
}

bool tst_WheelGuard::turn(QWidget *control)
{
    const QPointF middle = control->rect().center();
    QWheelEvent event(middle, control->mapToGlobal(middle), {}, { 0, 120 }, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(control, &event);
    return event.isAccepted();
}

void tst_WheelGuard::needsTheFocus_data()
{
    QTest::addColumn<bool>("isList");

    QTest::newRow("list") << true;
    QTest::newRow("number") << false;
}

void tst_WheelGuard::needsTheFocus()
{
    QFETCH(bool, isList);
    QWidget *control = isList ? static_cast<QWidget *>(myList) : myNumber;
    const auto value = [&] { return isList ? 2 - myList->currentIndex() : myNumber->value(); };
    QVERIFY(!turn(control)); // so that it goes on to the area that scrolls
    QCOMPARE(value(), 1);
    QVERIFY(!control->hasFocus());
    QCOMPARE(control->focusPolicy(), Qt::StrongFocus);
    control->setFocus();
    QTRY_VERIFY(control->hasFocus());
    QVERIFY(turn(control));
    QCOMPARE(value(), 2);
}

void tst_WheelGuard::letsOtherEventsPass()
{
    QTest::keyClick(myList, Qt::Key_Down);
    QCOMPARE(myList->currentIndex(), 2);
    QTest::keyClick(myNumber, Qt::Key_Up);
    QCOMPARE(myNumber->value(), 2);
}

QTEST_MAIN(tst_WheelGuard)
#include "tst_WheelGuard.moc"
