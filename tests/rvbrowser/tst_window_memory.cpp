#include "EnglishTest.h"
#include "WrittenFile.h"

#include <ComparisonActions.h>
#include <FindingsDock.h>
#include <Language.h>
#include <MainWindow.h>
#include <RecentFilesMenu.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

const char CATALOGUE[] =
        "<products>\n"
        "<product type='DUN9' article_id='1001' name='Buch' article_class='book' cover_type='hardcovr' "
        "orientation='portrait' space_magnitude='600cm2' pages='26' max_pages='154' page_step='4'>"
        "<composition units='mm'><spine packages_per_block='2' base_width='8' block_width='1'/></composition><forms>"
        "<form key='alcolor' key_name='Farbe' value='black' value_name='Schwarz' preselected='true'/>"
        "<form key='alcolor' key_name='Farbe' value='red' value_name='Rot'/>"
        "<form key='box' key_name='Box' value='none' value_name='Ohne' preselected='true'/>"
        "<form key='box' key_name='Box' value='wood' value_name='Holz'/>"
        "</forms></product>\n"
        "<product type='DUN1' article_id='1002' name='Heft' article_class='book' pages='24' max_pages='72' "
        "page_step='2'/>\n"
        "<product type='DUN1' article_id='1003' name='Heft' article_class='book' pages='30' max_pages='72' "
        "page_step='2'/>\n"
        "</products>\n";

}

/// A user, who closes the window in the evening and opens it in the morning.
class tst_window_memory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { myWindow.reset(); }
    void startsWithoutAFile();
    void remembersItsPlace();
    void remembersTheFindings();
    void remembersProducts();
    void remembersWhatIsChosenAfterAReload();
    void remembersBeforeAReload();
    void remembersBesideAComparison();
    void remembersAtOnce();
    void menuOfRecentFiles();
    void lastProductBeforeWhatIsFound();
    void remembersWhileItRuns();
    void forgottenStaysForgotten();
    void ignoresWhatIsNotOffered();
    void productsOfOneType();
    void twoWindows();
    void forgetsEverything();
    void survivesDamage_data();
    void survivesDamage();
    void nothingWithoutSettings();
    void picturesAreTheSame();
    void fitsTheScreen_data();
    void fitsTheScreen();

private:
    QString path(const QString &name) const { return myFolder->filePath(name); }
    void write(const QString &name, const QByteArray &content) const;
    /// Closes the window that there is, and opens a new one.
    void startAgain();
    void open(const QString &name);
    /// Writes the open catalogue, and waits until it was loaded again.
    void change(const QByteArray &content);
    void choose(const QString &type) { QVERIFY(myWindow->showType(RVProductType(type))); }
    template<typename T>
    T *find(const QString &name) const
    {
        return myWindow->findChild<T *>(name);
    }
    bool isRedRemembered() const; ///< By the settings, for DUN9.
    QString title() const { return find<QLabel>(u"title"_s)->text(); }
    QString pages() const { return find<QComboBox>(u"pageCounts"_s)->currentText(); }
    QString color() const { return find<QComboBox>(u"option alcolor"_s)->currentText(); }

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<MainWindow> myWindow;
};

void tst_window_memory::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    write(u"c.xml"_s, CATALOGUE);
    startAgain();
}

void tst_window_memory::write(const QString &name, const QByteArray &content) const
{
    QVERIFY(writeFile(path(name), content));
}

void tst_window_memory::startAgain()
{
    if (myWindow)
        myWindow->close();
    myWindow.reset();
    myWindow = std::make_unique<MainWindow>(path(u"settings.ini"_s));
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
}

void tst_window_memory::open(const QString &name)
{
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(path(name));
    QVERIFY(changed.wait(20000));
}

void tst_window_memory::change(const QByteArray &content)
{
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    write(u"c.xml"_s, content);
    myWindow->session()->reload();
    QVERIFY(changed.wait(20000));
}

void tst_window_memory::startsWithoutAFile()
{
    const auto isStart = [this] { return find<QWidget>(u"startScreen"_s)->isVisible(); };
    QVERIFY(isStart());
    QVERIFY(!find<QListWidget>(u"recentList"_s)->isVisible());
    QVERIFY(!find<QWidget>(u"findingsDock"_s)->isVisible());
    open(u"c.xml"_s);
    QVERIFY(!isStart());
    QVERIFY(find<QWidget>(u"findingsDock"_s)->isVisible());
    startAgain();
    QVERIFY(isStart());
    auto *recent = find<QListWidget>(u"recentList"_s);
    QVERIFY(recent->isVisible());
    QCOMPARE(recent->count(), 1);
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    recent->setFocus();
    QTest::keyClick(recent, Qt::Key_Return);
    QVERIFY(changed.wait(20000));
    QVERIFY(!isStart());
}

void tst_window_memory::remembersItsPlace()
{
    open(u"c.xml"_s);
    myWindow->setGeometry(20, 30, 760, 600); // the screen of the tests is not larger
    auto *splitter = myWindow->findChild<QSplitter *>();
    splitter->setSizes({ 260, 500 });
    const QList<int> sizes = splitter->sizes();
    startAgain();
    QCOMPARE(myWindow->geometry(), QRect(20, 30, 760, 600));
    open(u"c.xml"_s);
    QTRY_COMPARE(myWindow->findChild<QSplitter *>()->sizes(), sizes);
}

void tst_window_memory::remembersTheFindings()
{
    open(u"c.xml"_s);
    myWindow->resize(760, 700);
    auto *dock = find<FindingsDock>(u"findingsDock"_s);
    myWindow->resizeDocks({ dock }, { 210 }, Qt::Vertical);
    QTRY_COMPARE(dock->height(), 210);
    write(u"clean.xml"_s, "<products><product type='X' article_id='1'/></products>");
    open(u"clean.xml"_s);
    QTRY_VERIFY2(dock->height() < 100, qPrintable(QString::number(dock->height()))); // there are none
    startAgain();
    open(u"c.xml"_s);
    QTRY_COMPARE(find<FindingsDock>(u"findingsDock"_s)->height(), 210);
    QTest::keyClick(myWindow.get(), Qt::Key_F4);
    QVERIFY(!find<QWidget>(u"findingsDock"_s)->isVisible());
    startAgain();
    startAgain(); // a day without a catalogue does not change it
    open(u"c.xml"_s);
    QVERIFY(!find<QWidget>(u"findingsDock"_s)->isVisible());
}

void tst_window_memory::remembersProducts()
{
    open(u"c.xml"_s);
    QCOMPARE(title(), u"DUN9 – Buch"_s);
    find<QComboBox>(u"pageCounts"_s)->setCurrentIndex(2);
    find<QComboBox>(u"option alcolor"_s)->setCurrentIndex(1);
    choose(u"DUN1"_s);
    choose(u"DUN9"_s); // as it was left
    QCOMPARE(pages(), u"34 pages"_s);
    QCOMPARE(color(), u"Rot"_s);
    choose(u"DUN1"_s);
    find<QComboBox>(u"pageCounts"_s)->setCurrentIndex(1);
    startAgain();
    open(u"c.xml"_s);
    QCOMPARE(title(), u"DUN1 – Heft"_s);
    QCOMPARE(pages(), u"26 pages"_s);
    choose(u"DUN9"_s);
    QCOMPARE(pages(), u"34 pages"_s);
    QCOMPARE(color(), u"Rot"_s);
    write(u"other.xml"_s, CATALOGUE); // which has products of the same types
    open(u"other.xml"_s);
    QCOMPARE(title(), u"DUN9 – Buch"_s);
    QCOMPARE(pages(), u"26 pages"_s);
}

bool tst_window_memory::isRedRemembered() const
{
    Settings settings(path(u"settings.ini"_s));
    settings.refresh();
    const auto choice = ProductMemory(&settings).choice(path(u"c.xml"_s), RVProductType(u"DUN9"_s));
    return choice && choice->variants.value(u"alcolor"_s) == "red"_L1;
}

void tst_window_memory::remembersWhatIsChosenAfterAReload()
{
    open(u"c.xml"_s);
    change(QByteArray(CATALOGUE).replace("'Buch'", "'Band'"));
    find<QComboBox>(u"option alcolor"_s)->setCurrentIndex(1);
    startAgain();
    open(u"c.xml"_s);
    QCOMPARE(color(), u"Rot"_s);
}

// A choice that the catalogue no longer offers is there again when the catalogue does.
void tst_window_memory::remembersBeforeAReload()
{
    open(u"c.xml"_s);
    find<QComboBox>(u"option alcolor"_s)->setCurrentIndex(1);
    change(QByteArray(CATALOGUE).replace("'red'", "'blue'"));
    QCOMPARE(color(), u"Schwarz"_s);
    change(CATALOGUE);
    startAgain();
    open(u"c.xml"_s);
    QCOMPARE(color(), u"Rot"_s);
}

// A choice for a product that only the other catalogue has belongs to no product of this one.
void tst_window_memory::remembersBesideAComparison()
{
    const QByteArray first = "<product type='A' article_id='1' pages='20' max_pages='40' page_step='2'/>";
    write(u"a.xml"_s, "<p>" + first + "</p>");
    write(u"b.xml"_s, "<p>" + first + QByteArray(first).replace("'A'", "'B'") + "</p>");
    open(u"a.xml"_s);
    QSignalSpy compared(myWindow->comparison()->session(), &ComparisonSession::changed);
    myWindow->comparison()->session()->compareWith(path(u"b.xml"_s));
    QVERIFY(compared.wait(20000));
    auto *changes = find<QTreeView>(u"changes"_s);
    QTest::mouseClick(changes->viewport(), Qt::LeftButton, {},
                      changes->visualRect(changes->model()->index(0, 0)).center());
    QCOMPARE(title(), u"B"_s);
    find<QComboBox>(u"pageCounts"_s)->setCurrentIndex(2);
    startAgain();
    open(u"a.xml"_s);
    QCOMPARE(pages(), u"20 pages"_s);
}

void tst_window_memory::remembersAtOnce()
{
    open(u"c.xml"_s);
    myWindow->close();
    QVERIFY(readFile(path(u"settings.ini"_s)).contains("[window]"));
}

void tst_window_memory::menuOfRecentFiles()
{
    open(u"c.xml"_s);
    startAgain();
    auto *menu = myWindow->findChild<RecentFilesMenu *>();
    Q_EMIT menu->aboutToShow();
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    menu->actions().constFirst()->trigger();
    QVERIFY(changed.wait(20000));
    QCOMPARE(myWindow->session()->catalogue()->fileName(), path(u"c.xml"_s));

    startAgain();
    QCOMPARE(find<QListWidget>(u"recentList"_s)->count(), 1);
    menu = myWindow->findChild<RecentFilesMenu *>();
    Q_EMIT menu->aboutToShow();
    menu->actions().constLast()->trigger();
    QCOMPARE(find<QListWidget>(u"recentList"_s)->count(), 0);
}

void tst_window_memory::lastProductBeforeWhatIsFound()
{
    open(u"c.xml"_s);
    write(u"other.xml"_s, CATALOGUE);
    open(u"other.xml"_s);
    choose(u"DUN1"_s);
    find<QLineEdit>(u"search"_s)->setText(u"Heft"_s);
    open(u"c.xml"_s);
    QCOMPARE(title(), u"DUN9 – Buch"_s);
}

// A program that is killed in the evening does not close its window.
void tst_window_memory::remembersWhileItRuns()
{
    open(u"c.xml"_s);
    find<QComboBox>(u"option alcolor"_s)->setCurrentIndex(1);
    QTRY_VERIFY_WITH_TIMEOUT(isRedRemembered(), 20000);
}

// A choice is written once, and not again when the window closes.
void tst_window_memory::forgottenStaysForgotten()
{
    open(u"c.xml"_s);
    find<QComboBox>(u"option alcolor"_s)->setCurrentIndex(1);
    QTRY_VERIFY_WITH_TIMEOUT(isRedRemembered(), 20000);
    {
        Settings settings(path(u"settings.ini"_s));
        settings.forgetEverything();
    }
    myWindow->close();
    QVERIFY(!isRedRemembered());
}

void tst_window_memory::ignoresWhatIsNotOffered()
{
    open(u"c.xml"_s);
    find<QComboBox>(u"pageCounts"_s)->setCurrentIndex(2); // 34
    find<QComboBox>(u"option alcolor"_s)->setCurrentIndex(1);
    find<QComboBox>(u"option box"_s)->setCurrentIndex(1);
    myWindow->close();
    write(u"c.xml"_s, QByteArray(CATALOGUE).replace("page_step='4'", "page_step='128'").replace("'red'", "'blue'"));
    startAgain();
    open(u"c.xml"_s);
    QCOMPARE(pages(), u"26 pages"_s);
    QCOMPARE(color(), u"Schwarz"_s);
    QCOMPARE(find<QComboBox>(u"option box"_s)->currentText(), u"Holz"_s);
    myWindow->close();
    write(u"c.xml"_s, "<products><product type='NEW' article_id='1'/></products>");
    startAgain();
    open(u"c.xml"_s);
    QCOMPARE(title(), u"NEW"_s);
}

// Two products of one type cannot be told apart; only the first is sold.
void tst_window_memory::productsOfOneType()
{
    open(u"c.xml"_s);
    choose(u"DUN1"_s);
    find<QComboBox>(u"pageCounts"_s)->setCurrentIndex(1);
    QTest::keyClick(find<QTreeView>(u"products"_s), Qt::Key_Down);
    QCOMPARE(pages(), u"30 pages"_s);
    find<QComboBox>(u"pageCounts"_s)->setCurrentIndex(4);
    startAgain();
    open(u"c.xml"_s);
    QCOMPARE(title(), u"DUN1 – Heft"_s);
    QCOMPARE(pages(), u"26 pages"_s);
}

void tst_window_memory::twoWindows()
{
    write(u"d.xml"_s, CATALOGUE);
    open(u"c.xml"_s);
    {
        MainWindow other(path(u"settings.ini"_s));
        other.show();
        QSignalSpy changed(other.session(), &CatalogueSession::catalogueChanged);
        other.session()->open(path(u"d.xml"_s));
        QVERIFY(changed.wait(20000));
        other.findChild<QComboBox *>(u"option box"_s)->setCurrentIndex(1);
        find<QComboBox>(u"option alcolor"_s)->setCurrentIndex(1);
        other.close();
    }
    startAgain();
    QCOMPARE(find<QListWidget>(u"recentList"_s)->count(), 2);
    open(u"c.xml"_s);
    QCOMPARE(color(), u"Rot"_s);
    open(u"d.xml"_s);
    QCOMPARE(find<QComboBox>(u"option box"_s)->currentText(), u"Holz"_s);
}

void tst_window_memory::forgetsEverything()
{
    open(u"c.xml"_s);
    choose(u"DUN1"_s);
    startAgain();
    QCOMPARE(find<QListWidget>(u"recentList"_s)->count(), 1);
    const auto answer = [](QMessageBox::StandardButton button) {
        QTimer::singleShot(0, qApp, [button] {
            const auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            question->button(button)->click();
        });
    };
    auto *forget = find<QAction>(u"forgetEverything"_s);
    answer(QMessageBox::No);
    forget->trigger();
    QCOMPARE(find<QListWidget>(u"recentList"_s)->count(), 1);
    answer(QMessageBox::Yes);
    forget->trigger();
    QCOMPARE(find<QListWidget>(u"recentList"_s)->count(), 0);
    open(u"c.xml"_s);
    QCOMPARE(title(), u"DUN9 – Buch"_s);
}

void tst_window_memory::survivesDamage_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("no settings at all") << QByteArray("\0\xff{}[[[\n=;", 9);
    QTest::newRow("damaged places") << QByteArray("[window]\ngeometry=@ByteArray(\\x1\\xd9\\xd0\\xcb\\0\\x3\\0)\n"
                                                  "state=@ByteArray(\\0\\0\\0\\xff\\0\\0\\0\\x1\\xfd\\xff\\xff)\n"
                                                  "splitter=@ByteArray(\\0\\0)\nfindings=-7\n");
    QTest::newRow("other kinds of values") << QByteArray("[window]\ngeometry=1\nstate=a, b\nsplitter=x\nfindings=y\n");
}

void tst_window_memory::survivesDamage()
{
    QFETCH(QByteArray, content);
    myWindow.reset();
    write(u"settings.ini"_s, content);
    startAgain();
    open(u"c.xml"_s);
    QCOMPARE(title(), u"DUN9 – Buch"_s);
    QVERIFY(find<QWidget>(u"findingsDock"_s)->isVisible());
    choose(u"DUN1"_s);
    startAgain();
    open(u"c.xml"_s);
    QCOMPARE(title(), u"DUN1 – Heft"_s);
}

void tst_window_memory::nothingWithoutSettings()
{
    myWindow = std::make_unique<MainWindow>();
    QVERIFY(QFile::remove(path(u"settings.ini"_s)) || !QFile::exists(path(u"settings.ini"_s)));
    QCOMPARE(myWindow->size(), QSize(1280, 800));
    myWindow->show();
    open(u"c.xml"_s);
    find<QComboBox>(u"option alcolor"_s)->setCurrentIndex(1);
    choose(u"DUN1"_s);
    choose(u"DUN9"_s);
    QCOMPARE(color(), u"Schwarz"_s);
    QVERIFY(!find<QAction>(u"forgetEverything"_s)->isEnabled());
    myWindow->close();
    QCOMPARE(QDir(myFolder->path()).entryList(QDir::Files), QStringList { u"c.xml"_s });
}

// They neither depend on what is remembered nor change it.
void tst_window_memory::picturesAreTheSame()
{
    myWindow.reset();
    const auto take = [this](const QString &picture) {
        QProcess process;
        QProcessEnvironment environment;
        environment.insert(u"XDG_CONFIG_HOME"_s, path(u"config"_s));
        environment.insert(u"HOME"_s, path(u"home"_s));
        process.setProcessEnvironment(environment);
        process.start(QString::fromUtf8(RVBROWSER), { u"--screenshot"_s, path(picture), path(u"c.xml"_s) });
        return process.waitForFinished(60000) && process.exitCode() == 0;
    };
    QVERIFY(take(u"1.png"_s));
    QVERIFY(!QFile::exists(path(u"config/rvbrowser"_s)));
    {
        Settings settings(path(u"config/rvbrowser/rvbrowser.ini"_s));
        ProductMemory(&settings).setLastProduct(path(u"c.xml"_s), RVProductType(u"DUN1"_s));
        settings.setValue(u"window/findings"_s, 300);
    }
    QFile file(path(u"config/rvbrowser/rvbrowser.ini"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    QVERIFY(take(u"2.png"_s));
    QCOMPARE(QImage(path(u"2.png"_s)), QImage(path(u"1.png"_s)));
    file.seek(0);
    QCOMPARE(file.readAll(), before);
}

void tst_window_memory::fitsTheScreen_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("options");

    for (const QString &language : { u"en"_s, u"de"_s }) {
        QTest::addRow("%s, usual", qPrintable(language)) << language << QSize(1280, 800) << 2;
        QTest::addRow("%s, usual, six options", qPrintable(language)) << language << QSize(1280, 800) << 6;
        QTest::addRow("%s, small", qPrintable(language)) << language << QSize(1024, 700) << 2;
        QTest::addRow("%s, large, ten options", qPrintable(language)) << language << QSize(1920, 1080) << 10;
    }
}

// The parts that are needed most are in sight without scrolling, and the window can be smaller still.
void tst_window_memory::fitsTheScreen()
{
    QFETCH(QString, language);
    QFETCH(QSize, size);
    QFETCH(int, options);
    QByteArray more;
    for (int i = 2; i < options; ++i)
        more += "<form key='k" + QByteArray::number(i) + "' value='v'/>";
    write(u"c.xml"_s, QByteArray(CATALOGUE).replace("</forms>", more + "</forms>"));
    Language spoken;
    spoken.speak(QLocale(language));
    myWindow.reset();
    startAgain();
    myWindow->resize(size);
    open(u"c.xml"_s);
    QCOMPARE(myWindow->size(), size);
    const QWidget *viewport = find<QScrollArea>(u"productView"_s)->viewport();
    for (const QString &name : { u"title"_s, u"faults"_s, u"pageCounts"_s, u"spineText"_s, u"option alcolor"_s,
                                 u"optionNames"_s, u"projectFile"_s, u"orderTransfer"_s, u"orderText"_s }) {
        const auto *widget = find<QWidget>(name);
        const auto isInSight = [widget, viewport] {
            return viewport->rect().contains(QRect(widget->mapTo(viewport, QPoint()), widget->size()));
        };
        QTRY_VERIFY2(isInSight(), qPrintable(name));
    }
    const QSize least = myWindow->minimumSizeHint();
    QVERIFY2(least.width() < 800 && least.height() < 600,
             qPrintable(QString::number(least.width()) + u'x' + QString::number(least.height())));
    myWindow.reset();
    QLocale::setDefault(QLocale(QLocale::English));
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_window_memory>(argc, argv);
}

#include "tst_window_memory.moc"
