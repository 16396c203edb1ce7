#include "WrittenFile.h"

#include <Settings.h>
#include <SettingsGroup.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int PROCESSES = 4;
constexpr int THINGS = 20; // of each process

/// The work of one process among several.
int remember(const QString &fileName, const QString &process)
{
    Settings settings(fileName);
    SettingsGroup group(&settings, u"things"_s, PROCESSES * THINGS);
    for (int i = 0; i < THINGS; ++i) {
        group.setValues({ process, QString::number(i) }, { { u"name"_s, process + QString::number(i) } });
        settings.refresh();
    }
    return 0;
}

}

class tst_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { myFolder = std::make_unique<QTemporaryDir>(); }
    void usualFile();
    void remembers_data();
    void remembers();
    void nothingWithoutAFile();
    void forgets();
    void damaged_data();
    void damaged();
    void notWritable();
    void severalProcesses();

private:
    QString path() const { return myFolder->filePath(u"folder/settings.ini"_s); }
    void write(const QByteArray &content) const;

    std::unique_ptr<QTemporaryDir> myFolder;
};

void tst_Settings::write(const QByteArray &content) const
{
    QVERIFY(QDir().mkpath(QFileInfo(path()).path()));
    QVERIFY(writeFile(path(), content));
}

void tst_Settings::usualFile()
{
    QStandardPaths::setTestModeEnabled(true);
    QCOMPARE(Settings::usualFileName(),
             QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/rvbrowser/rvbrowser.ini"_s);
    QStandardPaths::setTestModeEnabled(false);
}

void tst_Settings::remembers_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("text") << QVariant(u"Größe; \"a\" = b\\c\n\t%1 @home"_s);
    QTest::newRow("begins like a variant") << QVariant(u"@Variant(x)"_s);
    QTest::newRow("outside the first plane") << QVariant(u"\U0001F4D6"_s);
    QTest::newRow("list with commas") << QVariant(QStringList { u"a,b"_s, u""_s, u"c;d"_s });
    QTest::newRow("bytes") << QVariant(QByteArray("\0\1\xff)", 4));
}

void tst_Settings::remembers()
{
    QFETCH(QVariant, value);
    {
        Settings settings(path());
        settings.setValue(u"group/key"_s, value);
    }
    const Settings settings(path());
    QVERIFY(settings.isRemembering());
    QCOMPARE(settings.value(u"group/key"_s), value);
    QCOMPARE(settings.values(u"group"_s), (QVariantMap { { u"key"_s, value } }));
    QVERIFY(!settings.value(u"group/other"_s).isValid());
    QVERIFY(settings.groups(u"group"_s).isEmpty());
}

void tst_Settings::nothingWithoutAFile()
{
    Settings settings;
    QVERIFY(!settings.isRemembering());
    settings.setValue(u"a/b"_s, 1);
    settings.refresh();
    settings.remove(u"a"_s);
    settings.forgetEverything();
    QVERIFY(!settings.value(u"a/b"_s).isValid());
    QVERIFY(settings.values(u"a"_s).isEmpty());
    QVERIFY(settings.groups(u"a"_s).isEmpty());
}

void tst_Settings::forgets()
{
    Settings settings(path());
    settings.setValue(u"a/x/1"_s, 1);
    settings.setValue(u"a/y/2"_s, 2);
    settings.setValue(u"b"_s, 3);
    settings.refresh();
    QVERIFY(readFile(path()).contains("b=3"));
    QCOMPARE(settings.groups(u"a"_s), (QStringList { u"x"_s, u"y"_s }));
    settings.remove(u"a/x"_s);
    QCOMPARE(settings.groups(u"a"_s), QStringList { u"y"_s });
    settings.forgetEverything();
    QVERIFY(!readFile(path()).contains("b=3"));
    QVERIFY(settings.groups(u"a"_s).isEmpty());
    QVERIFY(!Settings(path()).value(u"b"_s).isValid());
}

void tst_Settings::damaged_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QVariant>("value"); // of the line that is in order

    QTest::newRow("line without a value") << QByteArray("[a]\nnonsense\nkey=7\n") << QVariant(u"7"_s);
    QTest::newRow("cut off") << QByteArray("[a]\nkey=7\nother=@ByteArray(\\x1") << QVariant(u"7"_s);
    QTest::newRow("damaged variant") << QByteArray("[a]\nkey=7\nother=@Variant(\\xff\\xff\\xff\\x7f)\n")
                                     << QVariant(u"7"_s);
    QTest::newRow("group is not closed") << QByteArray("[a\nkey=7\n") << QVariant(u"7"_s);
    QTest::newRow("binary") << QByteArray("\0\xff[\n=\n%zz=\xc3\n]\0", 14) << QVariant();
    QTest::newRow("empty") << QByteArray() << QVariant();
}

void tst_Settings::damaged()
{
    QFETCH(QByteArray, content);
    write(content);
    {
        Settings settings(path());
        QTEST(settings.value(u"a/key"_s), "value");
        settings.setValue(u"b/key"_s, 8);
    }
    QCOMPARE(Settings(path()).value(u"b/key"_s).toInt(), 8);
}

void tst_Settings::notWritable()
{
    QVERIFY(QDir().mkpath(path())); // a folder where the file should be
    {
        Settings settings(path());
        settings.setValue(u"a"_s, 1);
        settings.refresh();
        QCOMPARE(settings.value(u"a"_s).toInt(), 1); // as long as the program runs
    }
    QVERIFY(QFileInfo(path()).isDir());
}

void tst_Settings::severalProcesses()
{
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < PROCESSES; ++i) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->start(QCoreApplication::applicationFilePath(),
                                { u"--remember"_s, path(), u"process %1 "_s.arg(i) });
    }
    for (const auto &process : processes) {
        QVERIFY(process->waitForFinished(60000));
        QCOMPARE(process->exitCode(), 0);
    }
    Settings settings(path());
    QStringList names;
    for (const QVariantMap &thing : SettingsGroup(&settings, u"things"_s, PROCESSES * THINGS).newest())
        names += thing.value(u"name"_s).toString();
    names.removeDuplicates();
    QCOMPARE(names.size(), PROCESSES * THINGS);
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--remember"_L1)
        return remember(arguments.value(2), arguments.value(3));
    tst_Settings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Settings.moc"
