#include "EnglishTest.h"
#include "FaultyProducts.h"
#include "WrittenFile.h"

#include <MainWindow.h>
#include <ProductList.h>
#include <StartScreen.h>

#include <QAction>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The entries of a menu, each with its keys; "-" for a line between them, and "off" behind what cannot be chosen.
QString entriesOf(const QMenu *menu)
{
    QStringList result;
    for (const QAction *action : menu->actions()) {
        QStringList entry { action->isSeparator() ? u"-"_s : QString(action->text()).remove(u'&') };
        for (const QKeySequence &key : action->shortcuts())
            entry += key.toString(QKeySequence::PortableText);
        if (!action->isEnabled())
            entry += u"off"_s;
        result += entry.join(u' ');
    }
    return result.join(u'|');
}

}

/// The frame of the window: its menus and their dialogues, and how its parts share the room.
class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { myWindow.reset(); }

    void start();
    void menus_data();
    void menus();
    void menuOfAComparison();
    void sharesTheRoom();
    void about();
    void choosesAFile();
    void comparesWithAFile();
    void savesChanges();

private:
    QString path(const QString &name) const { return myFolder->filePath(name); }
    void open(const QString &name);
    QMenu *menu(const QString &title) const;
    QAction *action(const QString &menuTitle, const QString &text) const;
    /// Chooses an entry of a menu that opens a dialogue, and does something with that.
    template<typename Dialog, typename Answer>
    bool choose(QAction *action, Answer answer);

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<MainWindow> myWindow;
};

void tst_MainWindow::init()
{
    QApplication::setApplicationName(u"rvbrowser"_s);
    QApplication::setApplicationVersion(u"1.2"_s);
    myFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(writeFile(path(u"c.xml"_s), FAULTY_PRODUCTS));
    QVERIFY(writeFile(path(u"d.xml"_s), QByteArray(FAULTY_PRODUCTS).replace("Two", "Zwei")));
    myWindow = std::make_unique<MainWindow>(path(u"settings.ini"_s));
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
    myWindow->activateWindow();
}

void tst_MainWindow::open(const QString &name)
{
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(path(name));
    QVERIFY(changed.wait(20000));
    QCoreApplication::processEvents();
}

QMenu *tst_MainWindow::menu(const QString &title) const
{
    for (const QAction *action : myWindow->menuBar()->actions()) {
        if (QString(action->text()).remove(u'&') == title)
            return action->menu();
    }
    return nullptr;
}

QAction *tst_MainWindow::action(const QString &menuTitle, const QString &text) const
{
    for (QAction *action : menu(menuTitle)->actions()) {
        if (QString(action->text()).remove(u'&') == text)
            return action;
    }
    return nullptr;
}

template<typename Dialog, typename Answer>
bool tst_MainWindow::choose(QAction *action, Answer answer)
{
    bool isAnswered = false;
    QTimer::singleShot(0, qApp, [&] {
        if (auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget())) {
            isAnswered = true;
            answer(dialog);
        }
    });
    action->trigger();
    return isAnswered;
}

// The list of recent catalogues has the keyboard, and without any the way to open one.
void tst_MainWindow::start()
{
    QCOMPARE(myWindow->windowTitle(), u"rvbrowser"_s);
    QVERIFY(myWindow->acceptDrops());
    auto *screen = myWindow->findChild<StartScreen *>();
    QVERIFY(screen->isVisible());
    QTRY_VERIFY(screen->isAncestorOf(myWindow->focusWidget()) || myWindow->focusWidget() == screen);
    open(u"c.xml"_s);
    QVERIFY(!screen->isVisible());
    QVERIFY(myWindow->findChild<ProductList *>()->isAncestorOf(myWindow->focusWidget())); // to search
    QCOMPARE(myWindow->windowTitle(), u"c.xml – rvbrowser"_s);
}

void tst_MainWindow::menus_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("closed"); // without a catalogue
    QTest::addColumn<QString>("opened");

    const QString file =
            u"Open… Ctrl+O|Open recent|Reload F5|Cancel loading Esc off|-|Spine off|Spine curve off|Page off"
            "|-|Forget everything…|-|Quit Ctrl+Q"_s;
    QTest::newRow("file") << u"File"_s << file << file;
    const QString edit = u"Find Ctrl+F|-|Copy project file Ctrl+Shift+P|Copy order transfer Ctrl+Shift+T"
                         "|Copy order text Ctrl+Shift+O|Copy price classes Ctrl+Shift+C"_s;
    QTest::newRow("edit") << u"Edit"_s << edit << edit;
    QTest::newRow("view") << u"View"_s << u"Findings F4 off"_s << u"Findings F4"_s;
    QTest::newRow("findings")
            << u"Findings"_s
            << u"Next finding F8 off|Previous finding Shift+F8 off|-|Open in editor F2 Ctrl+E off"
               "|Copy findings Ctrl+C off|Explain Shift+F1 off|-|Apply fix… Ctrl+. off|Apply all fixes… off|-|Editor…"_s
            << u"Next finding F8|Previous finding Shift+F8|-|Open in editor F2 Ctrl+E"
               "|Copy findings Ctrl+C off|Explain Shift+F1|-|Apply fix… Ctrl+. off|Apply all fixes…|-|Editor…"_s;
    QTest::newRow("compare")
            << u"Compare"_s
            << u"Compare with… off|Changes since opening off|Swap old and new off|-|Show changes F6|Next change F7 off"
               "|Previous change Shift+F7 off|-|Copy changes off|Save changes as… off|-|Cancel comparing Esc off"
               "|Close comparison off"_s
            << u"Compare with…|Changes since opening|Swap old and new off|-|Show changes F6|Next change F7 off"
               "|Previous change Shift+F7 off|-|Copy changes off|Save changes as… off|-|Cancel comparing Esc off"
               "|Close comparison off"_s;
    QTest::newRow("help") << u"Help"_s << u"About"_s << u"About"_s;
}

void tst_MainWindow::menus()
{
    QFETCH(QString, title);
    QVERIFY(menu(title));
    QTEST(entriesOf(menu(title)), "closed");
    open(u"c.xml"_s);
    QTEST(entriesOf(menu(title)), "opened");
}

// Changes can be walked through, copied and saved after a comparison.
void tst_MainWindow::menuOfAComparison()
{
    comparesWithAFile();
    QCOMPARE(entriesOf(menu(u"Compare"_s)),
             u"Compare with…|Changes since opening|Swap old and new|-|Show changes F6|Next change F7"
             "|Previous change Shift+F7|-|Copy changes|Save changes as…|-|Cancel comparing Esc off|Close comparison"_s);
}

// The list begins with 300 pixels; of what a larger window has, the product gets three quarters.
void tst_MainWindow::sharesTheRoom()
{
    MainWindow window;
    window.show();
    QSignalSpy changed(window.session(), &CatalogueSession::catalogueChanged);
    window.session()->open(path(u"c.xml"_s));
    QVERIFY(changed.wait(20000));
    const auto *splitter = qobject_cast<QSplitter *>(window.findChild<ProductList *>()->parentWidget());
    QVERIFY(!splitter->childrenCollapsible());
    QTRY_COMPARE(splitter->width(), window.width()); // without margins
    QCOMPARE(splitter->mapTo(&window, QPoint()), QPoint(0, window.menuBar()->height()));
    const QList<int> before = splitter->sizes();
    QVERIFY2(qAbs(before.constFirst() - 300) <= 10, qPrintable(QString::number(before.constFirst())));
    window.resize(window.width() + 400, window.height());
    QTRY_COMPARE(splitter->width(), window.width());
    const int more = splitter->sizes().constFirst() - before.constFirst();
    QVERIFY2(qAbs(more - 100) <= 10, qPrintable(QString::number(more)));
}

void tst_MainWindow::about()
{
    QString text;
    QVERIFY(choose<QMessageBox>(action(u"Help"_s, u"About"_s), [&text](QMessageBox *box) {
        text = box->text();
        box->accept();
    }));
    QCOMPARE(text, u"rvbrowser 1.2\nShows catalogues of print products."_s);
}

// Begins in the folder of the file that is open, or of the last one.
void tst_MainWindow::choosesAFile()
{
    open(u"c.xml"_s);
    QString folder;
    const auto pick = [&](QFileDialog *dialog) {
        folder = dialog->directory().absolutePath();
        dialog->selectFile(path(u"d.xml"_s));
        static_cast<QDialog *>(dialog)->accept();
    };
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    QVERIFY(choose<QFileDialog>(action(u"File"_s, u"Open…"_s), pick));
    QCOMPARE(folder, myFolder->path());
    QVERIFY(changed.wait(20000));
    QCOMPARE(myWindow->session()->catalogue()->fileName(), path(u"d.xml"_s));

    QVERIFY(QDir(myFolder->path()).mkdir(u"newest"_s));
    QVERIFY(QFile::copy(path(u"d.xml"_s), path(u"newest/d.xml"_s)));
    open(u"newest/d.xml"_s);
    myWindow->close();
    myWindow = std::make_unique<MainWindow>(path(u"settings.ini"_s));
    folder.clear();
    QSignalSpy started(myWindow->session(), &CatalogueSession::started);
    QVERIFY(choose<QFileDialog>(action(u"File"_s, u"Open…"_s), [&folder](QFileDialog *dialog) {
        folder = dialog->directory().absolutePath();
        dialog->reject();
    }));
    QCOMPARE(folder, path(u"newest"_s));
    QVERIFY(started.isEmpty());
}

void tst_MainWindow::comparesWithAFile()
{
    open(u"c.xml"_s);
    QString folder;
    QVERIFY(choose<QFileDialog>(action(u"Compare"_s, u"Compare with…"_s), [&folder](QFileDialog *dialog) {
        folder = dialog->directory().absolutePath();
        dialog->reject();
    }));
    QCOMPARE(folder, myFolder->path());
    QVERIFY(!action(u"Compare"_s, u"Close comparison"_s)->isEnabled());
    QVERIFY(choose<QFileDialog>(action(u"Compare"_s, u"Compare with…"_s), [this](QFileDialog *dialog) {
        dialog->selectFile(path(u"d.xml"_s));
        static_cast<QDialog *>(dialog)->accept();
    }));
    QTRY_VERIFY_WITH_TIMEOUT(action(u"Compare"_s, u"Save changes as…"_s)->isEnabled(), 20000);
}

void tst_MainWindow::savesChanges()
{
    comparesWithAFile();
    QString proposed;
    QVERIFY(choose<QFileDialog>(action(u"Compare"_s, u"Save changes as…"_s), [&proposed](QFileDialog *dialog) {
        proposed = dialog->selectedFiles().value(0);
        dialog->reject();
    }));
    QCOMPARE(proposed, path(u"changes.txt"_s));
    QVERIFY(!QFile::exists(proposed));
    QVERIFY(choose<QFileDialog>(action(u"Compare"_s, u"Save changes as…"_s), [this](QFileDialog *dialog) {
        dialog->selectFile(path(u"changes.md"_s));
        static_cast<QDialog *>(dialog)->accept();
    }));
    QVERIFY(readFile(path(u"changes.md"_s)).contains("Zwei"));
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_MainWindow>(argc, argv);
}

#include "tst_MainWindow.moc"
