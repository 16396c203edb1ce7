#include "ProgramRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString DRIVERS = QString::fromUtf8(DRIVER_FOLDER);
const QString SCRIPTS = QString::fromUtf8(SCRIPT_FOLDER);

/// The lines that a shell writes when it completes a command line.
QStringList complete(const QString &shell, const QString &driver, const QString &script, const QStringList &line)
{
    QProcessEnvironment environment;
    const QString folder = QFileInfo(QString::fromUtf8(RVCATALOG)).path();
    environment.insert(u"PATH"_s, folder + u':' + qEnvironmentVariable("PATH"));
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"HOME"_s, QDir::currentPath());
    const ProgramRun run = runProgram(QString(), shell,
                                      QStringList { DRIVERS + u'/' + driver, SCRIPTS + u'/' + script } + line,
                                      QByteArray(), environment);
    if (run.exitCode != 0)
        return { u"the shell failed: "_s + run.messages };
    QStringList result = run.output.split(u'\n', Qt::SkipEmptyParts);
    for (QString &word : result)
        word = word.trimmed();
    result.sort();
    return result;
}

}

class tst_shells : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bash_data();
    void bash();
    void zsh_data();
    void zsh();
    void fish_data();
    void fish();

private:
    QTemporaryDir myFolder;
};

void tst_shells::initTestCase()
{
    QVERIFY(QDir::setCurrent(myFolder.path()));
    QFile catalogue(u"cat.xml"_s);
    QVERIFY(catalogue.open(QIODevice::WriteOnly));
    catalogue.write("<p><product type='DUN9' name='Big: one'/><product type='DUN10'/><product type='VIR1'/></p>");
}

void tst_shells::bash_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("candidates");

    QTest::newRow("command") << QStringList { u"sh"_s } << QStringList { u"show"_s };
    QTest::newRow("option") << QStringList { u"show"_s, u"--wh"_s } << QStringList { u"--where"_s };
    QTest::newRow("value behind a blank")
            << QStringList { u"show"_s, u"--format"_s, u""_s } << QStringList { u"json"_s, u"text"_s };
    QTest::newRow("value behind the sign")
            << QStringList { u"show"_s, u"--format"_s, u"="_s } << QStringList { u"json"_s, u"text"_s };
    QTest::newRow("begun value") << QStringList { u"show"_s, u"--format"_s, u"="_s, u"js"_s }
                                 << QStringList { u"json"_s };
    QTest::newRow("type") << QStringList { u"show"_s, u"cat.xml"_s, u"VI"_s } << QStringList { u"VIR1"_s };
    QTest::newRow("condition") << QStringList { u"show"_s, u"--where"_s, u"cover_"_s }
                               << QStringList { u"cover_type="_s };
    QTest::newRow("keyword of a condition")
            << QStringList { u"show"_s, u"--where"_s, u"cover_type"_s, u"="_s, u"lea"_s }
            << QStringList { u"LEATHER"_s };
    QTest::newRow("condition behind a sign")
            << QStringList { u"show"_s, u"--where"_s, u"="_s, u"cover_type"_s, u"="_s, u"lea"_s }
            << QStringList { u"LEATHER"_s };
    QTest::newRow("rule") << QStringList { u"check"_s, u"--disable"_s, u"type-m"_s }
                          << QStringList { u"type-missing"_s };
    QTest::newRow("second rule of a list") << QStringList { u"check"_s, u"--disable"_s, u"type-missing,option-bl"_s }
                                           << QStringList { u"type-missing,option-blank"_s };
    QTest::newRow("comma that was escaped") << QStringList { u"check"_s, u"--disable"_s, u"type-missing\\,option-bl"_s }
                                            << QStringList { u"type-missing,option-blank"_s };
    QTest::newRow("words in quotes") << QStringList { u"show"_s, u"\"cat.xml\""_s, u"'VI"_s }
                                     << QStringList { u"VIR1"_s };
    QTest::newRow("option of the program") << QStringList { u"--"_s } << QStringList { u"--help"_s, u"--version"_s };
    QTest::newRow("nothing fits") << QStringList { u"keywords"_s, u"x"_s } << QStringList();
}

void tst_shells::bash()
{
    QFETCH(QStringList, words);
    const QStringList found = complete(u"bash"_s, u"complete.bash"_s, u"rvcatalog.bash"_s,
                                       QStringList { u"rvcatalog"_s } + words);
    QTEST(found, "candidates");
}

void tst_shells::zsh_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("completed");

    QTest::newRow("command") << u"rvcatalog sh"_s << u"rvcatalog show"_s;
    QTest::newRow("option") << u"rvcatalog show --wh"_s << u"rvcatalog show --where"_s;
    QTest::newRow("value") << u"rvcatalog show --format j"_s << u"rvcatalog show --format json"_s;
    QTest::newRow("value in one word") << u"rvcatalog show --format=j"_s << u"rvcatalog show --format=json"_s;
    QTest::newRow("type with a colon in its name")
            << u"rvcatalog show cat.xml DUN9"_s << u"rvcatalog show cat.xml DUN9"_s;
    QTest::newRow("type") << u"rvcatalog show cat.xml V"_s << u"rvcatalog show cat.xml VIR1"_s;
    QTest::newRow("condition") << u"rvcatalog show --where cover_"_s << u"rvcatalog show --where cover_type="_s;
    QTest::newRow("keyword of a condition")
            << u"rvcatalog show --where cover_type=lea"_s << u"rvcatalog show --where cover_type=LEATHER"_s;
    QTest::newRow("file") << u"rvcatalog show ca"_s << u"rvcatalog show cat.xml"_s;
    QTest::newRow("nothing fits") << u"rvcatalog keywords x"_s << u"rvcatalog keywords x"_s;
}

void tst_shells::zsh()
{
    QFETCH(QString, line);
    QFETCH(QString, completed);
    QCOMPARE(complete(u"zsh"_s, u"complete.zsh"_s, QString(), { line }), QStringList { completed });
}

void tst_shells::fish_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("candidates");

    QTest::newRow("command") << u"rvcatalog sh"_s << QStringList { u"show"_s };
    QTest::newRow("option") << u"rvcatalog show --wh"_s << QStringList { u"--where"_s };
    QTest::newRow("value") << u"rvcatalog show --format "_s << QStringList { u"json"_s, u"text"_s };
    QTest::newRow("value in one word") << u"rvcatalog show --format="_s
                                       << QStringList { u"--format=json"_s, u"--format=text"_s };
    QTest::newRow("type") << u"rvcatalog show cat.xml DUN"_s << QStringList { u"DUN10"_s, u"DUN9"_s };
    QTest::newRow("condition") << u"rvcatalog show --where cover_"_s << QStringList { u"cover_type="_s };
    QTest::newRow("keyword of a condition")
            << u"rvcatalog show --where cover_type=lea"_s << QStringList { u"cover_type=LEATHER"_s };
    QTest::newRow("file") << u"rvcatalog show ca"_s << QStringList { u"cat.xml"_s };
    QTest::newRow("nothing fits") << u"rvcatalog keywords x"_s << QStringList();
}

void tst_shells::fish()
{
    QFETCH(QString, line);
    QTEST(complete(u"fish"_s, u"complete.fish"_s, u"rvcatalog.fish"_s, { line }), "candidates");
}

QTEST_GUILESS_MAIN(tst_shells)
#include "tst_shells.moc"
