#include "CommandRun.h"

#include <HelpText.h>

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

CommandRun run(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    return CommandRun(arguments, input);
}

}

class tst_arguments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void messages_data();
    void messages();
    void shortForm_data();
    void shortForm();
    void formatCountsMore();
    void helpOfACommand();
    void helpOnAFullDisk();
    void everyCommand_data();
    void everyCommand();

private:
    QTemporaryDir myFolder;
};

void tst_arguments::initTestCase()
{
    QVERIFY(QDir::setCurrent(myFolder.path()));
    QFile catalogue(u"c.xml"_s);
    QVERIFY(catalogue.open(QIODevice::WriteOnly));
    catalogue.write(
            "<p><product type='DUN9' pages='26'><composition><spine base_width='8'/></composition></product></p>");
    QFile project(u"p.xml"_s);
    QVERIFY(project.open(QIODevice::WriteOnly));
    project.write("<project/>");
}

void tst_arguments::messages_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("firstLine");

    QTest::newRow("misspelt command") << QStringList { u"shwo"_s }
                                      << u"rvcatalog: there is no command \"shwo\"; did you mean \"show\"?"_s;
    QTest::newRow("command in capitals") << QStringList { u"Check"_s }
                                         << u"rvcatalog: there is no command \"Check\"; did you mean \"check\"?"_s;
    QTest::newRow("command similar to none")
            << QStringList { u"sing"_s } << u"rvcatalog: there is no command \"sing\""_s;
    QTest::newRow("help of a misspelt command")
            << QStringList { u"help"_s, u"ordr"_s }
            << u"rvcatalog: there is no command \"ordr\"; did you mean \"order\"?"_s;
    QTest::newRow("misspelt option of the program")
            << QStringList { u"--hlep"_s }
            << u"rvcatalog: there is no option \"--hlep\" in front of a command; did you mean \"--help\"?"_s;
    QTest::newRow("misspelt option with one dash")
            << QStringList { u"-hep"_s }
            << u"rvcatalog: there is no option \"-hep\" in front of a command; did you mean \"--help\"?"_s;
    QTest::newRow("option in front of the command")
            << QStringList { u"--json"_s, u"show"_s, u"c.xml"_s }
            << u"rvcatalog: there is no option \"--json\" in front of a command"_s;
    QTest::newRow("misspelt option") << QStringList { u"show"_s, u"--wehre=a=b"_s, u"c.xml"_s }
                                     << u"rvcatalog: Unknown option 'wehre'; did you mean \"--where\"?"_s;
    QTest::newRow("misspelt short form") << QStringList { u"keywords"_s, u"--jsn"_s }
                                         << u"rvcatalog: Unknown option 'jsn'; did you mean \"--json\"?"_s;
    QTest::newRow("option similar to none")
            << QStringList { u"show"_s, u"--colour"_s } << u"rvcatalog: Unknown option 'colour'."_s;
    QTest::newRow("option of another command")
            << QStringList { u"order"_s, u"--where=a=b"_s } << u"rvcatalog: Unknown option 'where'."_s;
    QTest::newRow("no value") << QStringList { u"show"_s, u"--where"_s }
                              << u"rvcatalog: Missing value after '--where'."_s;
    QTest::newRow("misspelt format") << QStringList {
        u"spine"_s, u"--format=jsn"_s, u"c.xml"_s, u"DUN9"_s
    } << u"rvcatalog: there is no format \"jsn\"; there are: text, json; did you mean \"json\"?"_s;
    QTest::newRow("format similar to none") << QStringList { u"show"_s, u"--format"_s, u"pdf"_s, u"c.xml"_s }
                                            << u"rvcatalog: there is no format \"pdf\"; there are: text, json"_s;
    QTest::newRow("empty format") << QStringList { u"show"_s, u"--format="_s, u"c.xml"_s }
                                  << u"rvcatalog: there is no format \"\"; there are: text, json"_s;
    QTest::newRow("two standard inputs of an order")
            << QStringList { u"order"_s, u"-"_s, u"-"_s } << u"rvcatalog: only one file can be the standard input"_s;
    QTest::newRow("no file for show") << QStringList { u"show"_s, QString() } << u"rvcatalog: argument 1 is empty"_s;
    QTest::newRow("no type for spine") << QStringList { u"spine"_s, u"c.xml"_s, QString() }
                                       << u"rvcatalog: argument 2 is empty"_s;
    QTest::newRow("no type for show") << QStringList { u"show"_s, u"c.xml"_s, QString() }
                                      << u"rvcatalog: argument 2 is empty"_s;
    QTest::newRow("one file of a check") << QStringList { u"check"_s, u"c.xml"_s, QString() }
                                         << u"rvcatalog: argument 2 is empty"_s;
    QTest::newRow("no files for diff") << QStringList { u"diff"_s, QString(), QString() }
                                       << u"rvcatalog: argument 1 is empty"_s;
    QTest::newRow("two types for spine") << QStringList { u"spine"_s, u"c.xml"_s, u"DUN9"_s, u"DUN9"_s }
                                         << u"rvcatalog: expected 2 arguments, got 3"_s;
    QTest::newRow("diff of nothing") << QStringList { u"diff"_s } << u"rvcatalog: expected 2 arguments, got 0"_s;
    QTest::newRow("diff of three") << QStringList { u"diff"_s, u"c.xml"_s, u"c.xml"_s, u"c.xml"_s }
                                   << u"rvcatalog: expected 2 arguments, got 3"_s;
    QTest::newRow("diff of git without files")
            << QStringList { u"diff"_s, u"--git"_s } << u"rvcatalog: expected 7 arguments, got 0"_s;
    QTest::newRow("diff of git with ten") << QStringList { u"diff"_s, u"--git"_s } + QStringList(10, u"c.xml"_s)
                                          << u"rvcatalog: expected 7 arguments, got 10"_s;
    QTest::newRow("format of the changes of --fix") << QStringList { u"check"_s, u"--diff"_s, u"--json"_s, u"c.xml"_s }
                                                    << u"rvcatalog: --diff writes a unified diff, and no json"_s;
    QTest::newRow("two standard inputs of a check") << QStringList { u"check"_s, u"-"_s, u"c.xml"_s, u"-"_s }
                                                    << u"rvcatalog: only one file can be the standard input"_s;
}

void tst_arguments::messages()
{
    QFETCH(QStringList, arguments);
    const CommandRun result = run(arguments, "<p/>");
    QTEST(result.messages.section(u'\n', 0, 0), "firstLine");
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void tst_arguments::shortForm_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("show") << QStringList { u"show"_s, u"c.xml"_s };
    QTest::newRow("spine") << QStringList { u"spine"_s, u"c.xml"_s, u"DUN9"_s };
    QTest::newRow("order") << QStringList { u"order"_s, u"c.xml"_s, u"p.xml"_s };
    QTest::newRow("keywords") << QStringList { u"keywords"_s, u"orientation"_s };
    QTest::newRow("decode") << QStringList { u"decode"_s, u"orientation"_s, u"square"_s };
    QTest::newRow("check") << QStringList { u"check"_s, u"c.xml"_s };
}

void tst_arguments::shortForm()
{
    QFETCH(QStringList, arguments);
    const CommandRun inFull = run(arguments + QStringList { u"--format"_s, u"json"_s });
    QVERIFY2(inFull.output.startsWith(u'[') || inFull.output.startsWith(u'{'), qPrintable(inFull.output));
    const CommandRun inShort = run(arguments + QStringList { u"--json"_s });
    QCOMPARE(inShort.output, inFull.output);
    QCOMPARE(inShort.exitCode, inFull.exitCode);
    QVERIFY(run(arguments).output != inFull.output);
    QCOMPARE(run(arguments + QStringList { u"--format=text"_s }).output, run(arguments).output);
}

void tst_arguments::formatCountsMore()
{
    const CommandRun text = run({ u"decode"_s, u"orientation"_s, u"square"_s });
    QCOMPARE(run({ u"decode"_s, u"--json"_s, u"--format=text"_s, u"orientation"_s, u"square"_s }).output, text.output);
    QCOMPARE(run({ u"decode"_s, u"--format=text"_s, u"--json"_s, u"orientation"_s, u"square"_s }).output, text.output);
    // Words behind "--" are no options.
    QCOMPARE(run({ u"decode"_s, u"orientation"_s, u"--"_s, u"--json"_s }).messages,
             u"rvcatalog: \"--json\" is no keyword of orientation; it stands for the default value\n"_s);
}

void tst_arguments::helpOfACommand()
{
    const CommandRun help = run({ u"help"_s, u"spine"_s });
    QCOMPARE(help.output, run({ u"spine"_s, u"--help"_s }).output);
    QVERIFY2(help.output.startsWith("Usage: rvcatalog spine "_L1), qPrintable(help.output));
    QCOMPARE(help.exitCode, 0);
    const QString usage = run({ u"help"_s }).output;
    QCOMPARE(usage, run({ u"--help"_s }).output);
    QVERIFY2(usage.contains("\n  keywords  list the keywords of the attributes\n"_L1), qPrintable(usage));
}

void tst_arguments::helpOnAFullDisk()
{
    for (const QStringList &arguments : { QStringList { u"help"_s }, QStringList { u"help"_s, u"check"_s } }) {
        using File = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;
        const File full(std::fopen("/dev/full", "w"), &std::fclose);
        const File messages(std::tmpfile(), &std::fclose);
        QVERIFY(full && messages);
        QCOMPARE(runCommand(arguments, { stdin, full.get(), messages.get() }), 2);
        const QByteArray expected("rvcatalog: cannot write to the standard output\n");
        QCOMPARE(std::ftell(messages.get()), expected.size());
    }
}

void tst_arguments::everyCommand_data()
{
    QTest::addColumn<QString>("command");

    for (const QString &name : commandNames())
        QTest::newRow(qPrintable(name)) << name;
}

// Completion, suggestions and the short form of JSON read the help.
void tst_arguments::everyCommand()
{
    QFETCH(QString, command);
    const QString text = run({ command, u"--help"_s }).output;
    for (const QString &line : text.split(u'\n'))
        QVERIFY2(line.size() <= 80, qPrintable(line));
    const HelpText help(text);
    QVERIFY(help.optionNames().contains(u"--help"_s));
    if (help.optionNames().contains(u"--format"_s)) {
        const QStringList formats = help.option(u"--format"_s).values();
        QVERIFY2(formats.value(0) == "text"_L1,
                 "the value of --format is to be named by the formats, as in \"text|json\", and text is the usual one");
        QCOMPARE(help.optionNames().contains(u"--json"_s), formats.contains(u"json"_s));
    }
    QVERIFY2(!commandSummary(command).isEmpty() && commandSummary(command).size() <= 68,
             qPrintable(commandSummary(command)));
}

QTEST_MAIN(tst_arguments)
#include "tst_arguments.moc"
