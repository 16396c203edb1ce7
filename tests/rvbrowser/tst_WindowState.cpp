#include <Settings.h>
#include <WindowState.h>

#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_WindowState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatEarlierReleasesWrote();
    void fitsTheScreen();
    void nothingWithoutSettings();
};

void tst_WindowState::readsWhatEarlierReleasesWrote()
{
    const QTemporaryDir folder;
    Settings settings(folder.filePath(u"settings.ini"_s));
    QMainWindow window;
    QSplitter splitter;
    settings.setValue(u"window/geometry"_s, window.saveGeometry());
    settings.setValue(u"window/splitter"_s, splitter.saveState());
    settings.setValue(u"window/state"_s, window.saveState(1));
    QVERIFY(WindowState(&settings).restore(&window, &splitter));
    settings.setValue(u"window/state"_s, window.saveState(2));
    QVERIFY(!WindowState(&settings).restore(&window, &splitter));
}

// Without a place of last time, a window that is larger than the screen becomes as large as that.
void tst_WindowState::fitsTheScreen()
{
    const QTemporaryDir folder;
    Settings settings(folder.filePath(u"settings.ini"_s));
    QMainWindow window;
    QSplitter splitter;
    window.resize(5000, 5000);
    QVERIFY(!WindowState(&settings).restore(&window, &splitter));
    QCOMPARE(window.size(), window.screen()->availableSize());
    window.resize(300, 200);
    WindowState(&settings).restore(&window, &splitter);
    QCOMPARE(window.size(), QSize(300, 200));
}

void tst_WindowState::nothingWithoutSettings()
{
    Settings settings(QString {});
    QMainWindow window;
    QSplitter splitter;
    window.resize(5000, 5000);
    QVERIFY(!WindowState(&settings).restore(&window, &splitter));
    QCOMPARE(window.size(), QSize(5000, 5000));
}

QTEST_MAIN(tst_WindowState)
#include "tst_WindowState.moc"
