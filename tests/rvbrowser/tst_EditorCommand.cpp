#include <EditorCommand.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_EditorCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arguments_data();
    void arguments();
    void environment_data();
    void environment();
    void terminals();
    void nothing_data();
    void nothing();
};

void tst_EditorCommand::arguments_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");

    const QString plain = u"/c/p.xml"_s;
    QTest::newRow("Kate") << u"kate --line %l --column %c %f"_s << plain << u"kate"_s
                          << QStringList { u"--line"_s, u"12"_s, u"--column"_s, u"7"_s, plain };
    QTest::newRow("in one argument") << u"code --goto %f:%l:%c"_s << plain << u"code"_s
                                     << QStringList { u"--goto"_s, u"/c/p.xml:12:7"_s };
    QTest::newRow("without the file") << u"ed -l %l"_s << plain << u"ed"_s << QStringList { u"-l"_s, u"12"_s, plain };
    QTest::newRow("program alone") << u"xed"_s << plain << u"xed"_s << QStringList { plain };
    QTest::newRow("program with a blank")
            << u"\"/opt/my editor/run\" %f"_s << plain << u"/opt/my editor/run"_s << QStringList { plain };
    QTest::newRow("argument with blanks") << u"vim \"+call cursor(%l, %c)\" %f"_s << plain << u"vim"_s
                                          << QStringList { u"+call cursor(12, 7)"_s, plain };
    QTest::newRow("file with blanks") << u"e %f:%l"_s << u"/my c/a  b.xml"_s << u"e"_s
                                      << QStringList { u"/my c/a  b.xml:12"_s };
    QTest::newRow("file with quotes") << u"e %f"_s << u"/a \"b\" 'c'.xml"_s << u"e"_s
                                      << QStringList { u"/a \"b\" 'c'.xml"_s };
    QTest::newRow("file with percent signs")
            << u"e %f %l"_s << u"/100%l%f%%.xml"_s << u"e"_s << QStringList { u"/100%l%f%%.xml"_s, u"12"_s };
    QTest::newRow("file for a shell") << u"e %f"_s << u"/$(rm x);`y`&|.xml"_s << u"e"_s
                                      << QStringList { u"/$(rm x);`y`&|.xml"_s };
    QTest::newRow("percent sign") << u"e 50%% %f"_s << plain << u"e"_s << QStringList { u"50%"_s, plain };
    QTest::newRow("percent sign in front of f") << u"e %%f"_s << plain << u"e"_s << QStringList { u"%f"_s, plain };
    QTest::newRow("percent sign in front of another letter")
            << u"e %x %f %"_s << plain << u"e"_s << QStringList { u"%x"_s, plain, u"%"_s };
}

void tst_EditorCommand::arguments()
{
    QFETCH(QString, command);
    QFETCH(QString, fileName);
    const EditorCommand editor(command);
    QVERIFY(!editor.isEmpty());
    QVERIFY(!editor.needsTerminal());
    QTEST(editor.program(), "program");
    QTEST(editor.arguments(fileName, { 12, 7 }), "arguments");
}

void tst_EditorCommand::environment_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("needsTerminal");

    const QString file = u"/a b%.xml"_s;
    QTest::newRow("vim") << u"vim"_s << u"vim"_s << QStringList { u"+call cursor(12, 7)"_s, file } << true;
    QTest::newRow("vi") << u"vi"_s << u"vi"_s << QStringList { u"+12"_s, file } << true;
    QTest::newRow("path") << u"/usr/bin/nano"_s << u"/usr/bin/nano"_s << QStringList { u"+12,7"_s, file } << true;
    QTest::newRow("window") << u"emacs"_s << u"emacs"_s << QStringList { u"+12:7"_s, file } << false;
    QTest::newRow("without a window") << u"emacs -nw"_s << u"emacs"_s << QStringList { u"-nw"_s, u"+12:7"_s, file }
                                      << true;
    QTest::newRow("own arguments") << u"code --wait"_s << u"code"_s
                                   << QStringList { u"--wait"_s, u"--goto"_s, u"/a b%.xml:12:7"_s } << false;
    QTest::newRow("unknown") << u"my-editor"_s << u"my-editor"_s << QStringList { u"+12"_s, file } << true;
    QTest::newRow("percent sign in the value")
            << u"my-editor %f"_s << u"my-editor"_s << QStringList { u"%f"_s, u"+12"_s, file } << true;
    QTest::newRow("percent sign in the program")
            << u"/100%/vim"_s << u"/100%/vim"_s << QStringList { u"+call cursor(12, 7)"_s, file } << true;
}

void tst_EditorCommand::environment()
{
    QFETCH(QString, value);
    const EditorCommand editor = EditorCommand::ofEnvironment(value);
    QTEST(editor.program(), "program");
    QTEST(editor.arguments(u"/a b%.xml"_s, { 12, 7 }), "arguments");
    QTEST(editor.needsTerminal(), "needsTerminal");
}

// Editors without a window of their own, and those that are told to do without.
void tst_EditorCommand::terminals()
{
    const auto needsTerminal = [](const char *value) {
        return EditorCommand::ofEnvironment(QString::fromUtf8(value)).needsTerminal();
    };
    for (const char *value : { "vim", "nvim", "nano", "micro", "kak", "hx", "emacs -nw", "emacs --quick -nw",
                               "emacsclient -t", "emacsclient --tty", "emacs --no-window-system" })
        QVERIFY2(needsTerminal(value), value);
    for (const char *value : { "gvim", "emacs", "emacs --quick", "emacsclient", "kate", "kwrite", "gedit", "geany",
                               "code", "codium", "subl", "qtcreator" })
        QVERIFY2(!needsTerminal(value), value);
}

void tst_EditorCommand::nothing_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("null") << QString();
    QTest::newRow("blanks") << u"  "_s;
}

void tst_EditorCommand::nothing()
{
    QFETCH(QString, text);
    for (const EditorCommand &editor : { EditorCommand(text), EditorCommand::ofEnvironment(text), EditorCommand() }) {
        QVERIFY(editor.isEmpty());
        QCOMPARE(editor.program(), QString());
        QCOMPARE(editor.arguments(u"/a"_s, {}), QStringList());
    }
}

QTEST_APPLESS_MAIN(tst_EditorCommand)
#include "tst_EditorCommand.moc"
