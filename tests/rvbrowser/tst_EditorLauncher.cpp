#include "WrittenFile.h"

#include <EditorChoice.h>
#include <EditorLauncher.h>
#include <Settings.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// Runs scripts in the place of editors.
class tst_EditorLauncher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void runs_data();
    void runs();
    void fails_data();
    void fails();
    void hasNoInput();
    void cannotBeRun();
    void hasNoOutput();
    void missesATerminal();
    void leavesEditorsRunning();
    void choices_data();
    void choices();
    void choosesTheEnvironment();
    void choosesWhatIsInstalled();

private:
    QString path(const QString &name) const { return myFolder->filePath(name); }
    /// Writes a script into the only folder of $PATH.
    void script(const QString &name, const QByteArray &lines);

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<Settings> mySettings;
};

void tst_EditorLauncher::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(myFolder->isValid());
    mySettings = std::make_unique<Settings>(path(u"settings.ini"_s));
    qputenv("PATH", QFile::encodeName(myFolder->path()));
    qunsetenv("VISUAL");
    qunsetenv("EDITOR");
}

void tst_EditorLauncher::cleanup()
{
    mySettings.reset();
    myFolder.reset();
}

void tst_EditorLauncher::script(const QString &name, const QByteArray &lines)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + lines + '\n');
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_EditorLauncher::runs_data()
{
    QTest::addColumn<QString>("fileName");

    QTest::newRow("plain") << u"c.xml"_s;
    QTest::newRow("blanks, quotes, percent signs") << u"a  \"b\" 'c' 100%f.xml"_s;
    QTest::newRow("for a shell") << u"$(touch x) `y` ; &.xml"_s;
    QTest::newRow("option") << u"--help.xml"_s;
}

void tst_EditorLauncher::runs()
{
    QFETCH(QString, fileName);
    script(u"ed"_s, "printf '%s\\n' \"$@\" > \"${0%/*}/part\"; /bin/mv \"${0%/*}/part\" \"${0%/*}/log\"");
    EditorLauncher launcher;
    QSignalSpy failed(&launcher, &EditorLauncher::failed);
    launcher.open(EditorCommand(u"ed --goto %f:%l:%c"_s), path(fileName), { 12, 7 });
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(u"log"_s)), 20000);
    QCOMPARE(readFile(path(u"log"_s)), (u"--goto\n"_s + path(fileName) + u":12:7\n"_s).toUtf8());
    QTRY_VERIFY_WITH_TIMEOUT(launcher.children().isEmpty(), 20000);
    QCOMPARE(failed.size(), 0);
}

void tst_EditorLauncher::fails_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("message");

    QTest::newRow("no editor")
            << QString() << u"There is no editor to open the file with. Choose one in the menu of the findings."_s;
    QTest::newRow("missing")
            << u"nowhere %f"_s
            << u"The editor \"nowhere\" is not installed. Choose another one in the menu of the findings."_s;
    QTest::newRow("exit code") << u"bad %f"_s
                               << u"The editor \"bad\" ended at once with the exit code 3.\nno display"_s;
    QTest::newRow("long message") << u"verbose %f"_s
                                  << u"The editor \"verbose\" ended at once with the exit code 1.\n"_s
                    + QString(500, u'b');
    QTest::newRow("crash") << u"crashes %f"_s << u"The editor \"crashes\" crashed."_s;
}

void tst_EditorLauncher::fails()
{
    QFETCH(QString, command);
    QFETCH(QString, message);
    script(u"bad"_s, "echo 'no display' >&2; exit 3");
    script(u"crashes"_s, "kill -SEGV $$");
    script(u"verbose"_s, "echo '" + QByteArray(10, 'a') + QByteArray(500, 'b') + "' >&2; exit 1");
    EditorLauncher launcher;
    QSignalSpy failed(&launcher, &EditorLauncher::failed);
    launcher.open(EditorCommand(command), path(u"c.xml"_s), { 1, 1 });
    QVERIFY(!failed.isEmpty() || failed.wait(20000));
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.at(0).at(0).toString(), message);
}

// An editor that reads what it is given reaches the end at once.
void tst_EditorLauncher::hasNoInput()
{
    script(u"ed"_s, "while read line; do :; done; : > \"${0%/*}/ended\"");
    EditorLauncher launcher;
    launcher.open(EditorCommand(u"ed %f"_s), path(u"c.xml"_s), { 1, 1 });
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(u"ended"_s)), 20000);
}

// The system tells why, in words that depend on Qt.
void tst_EditorLauncher::cannotBeRun()
{
    QVERIFY(writeFile(path(u"broken"_s), "#!/nowhere/sh\n"));
    QFile::setPermissions(path(u"broken"_s), QFile::ReadOwner | QFile::ExeOwner);
    EditorLauncher launcher;
    QSignalSpy failed(&launcher, &EditorLauncher::failed);
    launcher.open(EditorCommand(u"broken %f"_s), path(u"c.xml"_s), { 1, 1 });
    QVERIFY(!failed.isEmpty() || failed.wait(20000));
    const QString message = failed.at(0).at(0).toString();
    QVERIFY2(message.startsWith("The editor \"broken\" cannot be run: "_L1), qPrintable(message));
    QVERIFY2(message.endsWith("No such file or directory"_L1), qPrintable(message));
    QTRY_VERIFY_WITH_TIMEOUT(launcher.children().isEmpty(), 20000);
}

void tst_EditorLauncher::hasNoOutput()
{
    script(u"ed"_s,
           "output=$(/bin/readlink /proc/$$/fd/1); echo \"$output\" > \"${0%/*}/part\"\n"
           "/bin/mv \"${0%/*}/part\" \"${0%/*}/log\"");
    EditorLauncher launcher;
    launcher.open(EditorCommand(u"ed %f"_s), path(u"c.xml"_s), { 1, 1 });
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(u"log"_s)), 20000);
    QCOMPARE(readFile(path(u"log"_s)), QByteArray("/dev/null\n"));
}

void tst_EditorLauncher::missesATerminal()
{
    script(u"vim"_s, "exit 0");
    EditorLauncher launcher;
    QSignalSpy failed(&launcher, &EditorLauncher::failed);
    launcher.open(EditorCommand::ofEnvironment(u"vim"_s), path(u"c.xml"_s), { 1, 1 });
    QCOMPARE(failed.value(0).value(0).toString(), u"The editor \"vim\" needs a terminal, and none is installed."_s);
    script(u"xterm"_s, "printf '%s\\n' \"$@\" > \"${0%/*}/part\"; /bin/mv \"${0%/*}/part\" \"${0%/*}/log\"");
    launcher.open(EditorCommand::ofEnvironment(u"vim"_s), path(u"c.xml"_s), { 4, 2 });
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(u"log"_s)), 20000);
    QCOMPARE(readFile(path(u"log"_s)), (u"-e\nvim\n+call cursor(4, 2)\n"_s + path(u"c.xml"_s) + u'\n').toUtf8());
    QCOMPARE(failed.size(), 1);
}

// The script waits until the launcher is gone, and still has to reach its end.
void tst_EditorLauncher::leavesEditorsRunning()
{
    script(u"ed"_s,
           "touch() { : > \"${0%/*}/$1\"; }; touch begun; while [ ! -e \"${0%/*}/go\" ]; do /bin/sleep 0.05; done; "
           "touch ended");
    {
        EditorLauncher launcher;
        launcher.open(EditorCommand(u"ed %f"_s), path(u"c.xml"_s), { 1, 1 });
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(u"begun"_s)), 20000);
    }
    QVERIFY(!QFile::exists(path(u"ended"_s)));
    QFile go(path(u"go"_s));
    QVERIFY(go.open(QIODevice::WriteOnly));
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(u"ended"_s)), 20000);
}

void tst_EditorLauncher::choices_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("Kate") << u"kate"_s << u"kate"_s
                          << QStringList { u"--line"_s, u"3"_s, u"--column"_s, u"5"_s, u"/c.xml"_s };
    QTest::newRow("Visual Studio Code") << u"code"_s << u"code"_s << QStringList { u"--goto"_s, u"/c.xml:3:5"_s };
    QTest::newRow("Qt Creator") << u"qtcreator"_s << u"qtcreator"_s << QStringList { u"-client"_s, u"/c.xml:3:5"_s };
    QTest::newRow("own") << u"own"_s << u"mine"_s << QStringList { u"/c.xml"_s, u"@3"_s };
}

void tst_EditorLauncher::choices()
{
    QFETCH(QString, id);
    EditorChoice(id, u"mine %f @%l"_s).save(mySettings.get());
    const EditorChoice choice = EditorChoice::load(*mySettings);
    QCOMPARE(choice.id(), id);
    QCOMPARE(choice.ownCommand(), u"mine %f @%l"_s);
    QTEST(choice.command().program(), "program");
    QTEST(choice.command().arguments(u"/c.xml"_s, { 3, 5 }), "arguments");
}

void tst_EditorLauncher::choosesTheEnvironment()
{
    qputenv("EDITOR", "nano");
    QCOMPARE(EditorChoice::load(*mySettings).command().program(), u"nano"_s);
    qputenv("VISUAL", "gvim");
    QCOMPARE(EditorChoice::load(*mySettings).command().program(), u"gvim"_s);
    EditorChoice(u"kate"_s, QString()).save(mySettings.get());
    QCOMPARE(EditorChoice::load(*mySettings).command().program(), u"kate"_s);
}

void tst_EditorLauncher::choosesWhatIsInstalled()
{
    QVERIFY(EditorChoice::load(*mySettings).command().isEmpty());
    script(u"qtcreator"_s, "exit 0");
    QCOMPARE(EditorChoice::load(*mySettings).id(), u"qtcreator"_s);
    script(u"kate"_s, "exit 0");
    QCOMPARE(EditorChoice::load(*mySettings).id(), u"kate"_s);
    EditorChoice(u"an editor of tomorrow"_s, QString()).save(mySettings.get());
    QCOMPARE(EditorChoice::load(*mySettings).id(), u"kate"_s);
}

QTEST_GUILESS_MAIN(tst_EditorLauncher)
#include "tst_EditorLauncher.moc"
