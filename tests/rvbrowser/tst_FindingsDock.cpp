#include "EnglishTest.h"
#include "FaultyProducts.h"
#include "ManyProducts.h"
#include "ReadCatalogue.h"

#include <FindingsDock.h>
#include <FindingsPanel.h>
#include <Settings.h>

#include <QAction>
#include <QMainWindow>
#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr auto HEIGHT = "window/findings"_L1;

}

class tst_FindingsDock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void standsBelow();
    void waitsForACatalogue();
    void staysHidden();
    void fitsItsFindings();
    void keepsItsHeight();
    void remembersItsHeight();
    void remembersNothing_data();
    void remembersNothing();
    void restoresItsHeight();

private:
    void load(const QByteArray &content = FAULTY_PRODUCTS) { myDock->setCatalogue(readCatalogue(content)); }
    void setHeight(int height);
    QVariant saved();

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<Settings> mySettings;
    std::unique_ptr<QMainWindow> myWindow;
    FindingsPanel *myPanel = nullptr;
    FindingsDock *myDock = nullptr;
};

void tst_FindingsDock::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    mySettings = std::make_unique<Settings>(myFolder->filePath(u"settings.ini"_s));
    myWindow = std::make_unique<QMainWindow>();
    myWindow->setCentralWidget(new QWidget);
    myPanel = new FindingsPanel;
    myDock = new FindingsDock(u"Findings"_s, myPanel, myWindow.get());
    myWindow->resize(700, 700);
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
}

void tst_FindingsDock::cleanup()
{
    myWindow.reset();
    mySettings.reset();
}

void tst_FindingsDock::setHeight(int height)
{
    myWindow->resizeDocks({ myDock }, { height }, Qt::Vertical);
    QTRY_COMPARE(myDock->height(), height);
}

QVariant tst_FindingsDock::saved()
{
    myDock->save(mySettings.get());
    return mySettings->value(HEIGHT);
}

void tst_FindingsDock::standsBelow()
{
    QCOMPARE(myWindow->dockWidgetArea(myDock), Qt::BottomDockWidgetArea);
    QCOMPARE(myDock->widget(), myPanel);
    QCOMPARE(myDock->windowTitle(), u"Findings"_s);
    QCOMPARE(myDock->objectName(), u"findingsDock"_s); // or the window does not remember its place
}

void tst_FindingsDock::waitsForACatalogue()
{
    QVERIFY(myDock->isVisible());
    myDock->restore(*mySettings);
    QVERIFY(!myDock->isVisible());
    QVERIFY(!myDock->toggleViewAction()->isEnabled());
    load();
    QVERIFY(myDock->isVisible());
    QVERIFY(myDock->toggleViewAction()->isEnabled());
    QVERIFY(myPanel->catalogue());
    myDock->hide(); // by the user, who is asked no more
    load();
    QVERIFY(!myDock->isVisible());
}

void tst_FindingsDock::staysHidden()
{
    myDock->hide();
    myDock->restore(*mySettings);
    load();
    QVERIFY(!myDock->isVisible());
    QVERIFY(myDock->toggleViewAction()->isEnabled());
}

void tst_FindingsDock::fitsItsFindings()
{
    load(manyProducts(1));
    QTRY_VERIFY2(myDock->height() < 100, qPrintable(QString::number(myDock->height())));
    load();
    QTRY_VERIFY(myPanel->height() >= myPanel->sizeHint().height() - 40);
    QVERIFY(myDock->height() > 100);
    load(manyProducts(1));
    QTRY_VERIFY2(myDock->height() < 100, qPrintable(QString::number(myDock->height())));
}

void tst_FindingsDock::keepsItsHeight()
{
    load();
    setHeight(300);
    load(manyProducts(1));
    QTRY_VERIFY(myDock->height() < 100);
    load();
    QTRY_COMPARE(myDock->height(), 300);
    load(); // the same file, saved again
    QTRY_COMPARE(myDock->height(), 300);
}

void tst_FindingsDock::remembersItsHeight()
{
    load();
    setHeight(300);
    QCOMPARE(saved().toInt(), 300);
    load(manyProducts(1));
    QTRY_VERIFY(myDock->height() < 100);
    QCOMPARE(saved().toInt(), 300); // and not that of one line
    load();
    QTRY_COMPARE(myDock->height(), 300);
    myDock->setFloating(true);
    myDock->resize(400, 500);
    QCOMPARE(saved().toInt(), 300); // a window of its own has another height
    myDock->setFloating(false);
    myDock->hide();
    QCOMPARE(saved().toInt(), 300);
}

void tst_FindingsDock::remembersNothing_data()
{
    QTest::addColumn<bool>("hasCatalogue");

    QTest::newRow("no catalogue") << false;
    QTest::newRow("no findings") << true;
}

void tst_FindingsDock::remembersNothing()
{
    QFETCH(bool, hasCatalogue);
    myDock->restore(*mySettings);
    if (hasCatalogue)
        load(manyProducts(1));
    QVERIFY(!saved().isValid());
    QVERIFY(myDock->isVisible()); // the window remembers it as it was
    QVERIFY(myDock->toggleViewAction()->isEnabled());
}

void tst_FindingsDock::restoresItsHeight()
{
    mySettings->setValue(HEIGHT, 280);
    myDock->restore(*mySettings);
    load();
    QTRY_COMPARE(myDock->height(), 280);
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_FindingsDock>(argc, argv);
}

#include "tst_FindingsDock.moc"
