#include "ManyProducts.h"
#include "TestFolder.h"

#include <ComparisonActions.h>
#include <Language.h>
#include <MainWindow.h>

#include <QApplication>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

/// Uses the window without knowing it: touches all of it at random, but in every run in the same order.
class tst_monkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void playsWithTheWindow();

private:
    void openSample();
    QWidget *anyWidget();
    void press();
    void click();
    void turn();
    void resize();
    void reload();
    void compare();

    QRandomGenerator myRandom { 260570 };
    std::unique_ptr<MainWindow> myWindow;
    TestFolder myFolder;
    QStringList myFiles;
};

namespace {

constexpr int EVENTS = 2000;

constexpr Qt::Key KEYS[] = {
    Qt::Key_A,      Qt::Key_E,      Qt::Key_1,    Qt::Key_Space,  Qt::Key_Backspace, Qt::Key_Down,
    Qt::Key_Up,     Qt::Key_F4,     Qt::Key_Left, Qt::Key_Return, Qt::Key_PageDown,  Qt::Key_End,
    Qt::Key_Delete, Qt::Key_Tab,    Qt::Key_F8,   Qt::Key_F5,     Qt::Key_Home,      Qt::Key_Right,
    Qt::Key_Escape, Qt::Key_PageUp, Qt::Key_F6,   Qt::Key_F7,
};

}

QWidget *tst_monkey::anyWidget()
{
    QList<QWidget *> widgets;
    for (QWidget *widget : myWindow->findChildren<QWidget *>()) {
        if (widget->isVisible() && widget->isEnabled() && widget->window() == myWindow.get())
            widgets += widget;
    }
    return widgets.isEmpty() ? myWindow.get() : widgets.at(myRandom.bounded(int(widgets.size())));
}

void tst_monkey::press()
{
    QWidget *focus = QApplication::focusWidget();
    const Qt::Key key = KEYS[myRandom.bounded(int(std::size(KEYS)))];
    QTest::keyClick(focus ? focus : myWindow.get(), key);
}

void tst_monkey::click()
{
    QWidget *widget = anyWidget();
    // A menu or a dialogue would wait for an answer.
    if (widget->inherits("QMenuBar") || widget->inherits("QComboBox") || widget->objectName() == "drawingButton"_L1)
        return;
    const QPoint place(myRandom.bounded(qMax(1, widget->width())), myRandom.bounded(qMax(1, widget->height())));
    if (myRandom.bounded(4) == 0)
        QTest::mouseDClick(widget, Qt::LeftButton, {}, place);
    else
        QTest::mouseClick(widget, Qt::LeftButton, {}, place);
}

void tst_monkey::turn()
{
    QWidget *widget = anyWidget();
    const QPointF middle = widget->rect().center();
    QWheelEvent event(middle, widget->mapToGlobal(middle), {}, { 0, myRandom.bounded(-360, 360) }, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void tst_monkey::resize()
{
    myWindow->resize(myRandom.bounded(300, 1600), myRandom.bounded(200, 1200));
}

void tst_monkey::reload()
{
    myWindow->session()->open(myFiles.at(myRandom.bounded(int(myFiles.size()))));
    if (myRandom.bounded(2) == 0)
        QTest::qWait(20);
}

void tst_monkey::compare()
{
    ComparisonSession *session = myWindow->comparison()->session();
    switch (myRandom.bounded(4)) {
    case 0:
        session->swap();
        break;
    case 1:
        session->close();
        break;
    case 2:
        session->compareWithOriginal();
        break;
    default:
        session->compareWith(myFiles.at(myRandom.bounded(int(myFiles.size()))));
    }
}

void tst_monkey::initTestCase()
{
    const std::pair<QString, QByteArray> contents[] = {
        { u"many.xml"_s, manyProducts(500) },
        { u"broken.xml"_s, "<products><product type='A'" },
        { u"empty.xml"_s, "<products/>" },
        { u"faulty.xml"_s,
          "<p><product type='A' article_id='x' pages='9' max_pages='2' cover_type='y'><composition><spine "
          "base_width='-1'/></composition><forms><form key='a'/></forms></product><product/></p>" },
    };
    for (const auto &[name, content] : contents) {
        QVERIFY(myFolder.write(name, content));
        myFiles += myFolder.path(name);
    }
    myFiles += QString::fromUtf8(SAMPLE);
    myFiles += myFolder.path(u"missing.xml"_s);
}

/// Opens the sample, and waits until the window shows it.
void tst_monkey::openSample()
{
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(QString::fromUtf8(SAMPLE));
    QVERIFY(changed.wait(20000));
}

void tst_monkey::playsWithTheWindow()
{
    myWindow = std::make_unique<MainWindow>();
    myWindow->show();
    // The button of the start screen opens a dialogue, which would wait for an answer.
    openSample();
    QVERIFY(!QTest::currentTestFailed());
    void (tst_monkey::*const games[])() = { &tst_monkey::press, &tst_monkey::press, &tst_monkey::click,
                                            &tst_monkey::click, &tst_monkey::turn };
    for (int i = 0; i < EVENTS; ++i) {
        if (i % 100 == 99)
            reload();
        else if (i % 50 == 49)
            resize();
        else if (i % 50 == 24)
            compare();
        else
            (this->*games[myRandom.bounded(int(std::size(games)))])();
        QApplication::processEvents();
    }
    // It still works.
    myWindow->show();
    openSample();
    QVERIFY(!myWindow->session()->isLoading());
    QVERIFY(myWindow->session()->catalogue()->size() > 5);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // A double click on a place opens an editor, which is not wanted here.
    qputenv("PATH", "");
    Language language;
    language.speak(QLocale(QLocale::English));
    tst_monkey test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_monkey.moc"
