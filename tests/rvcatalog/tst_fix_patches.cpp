#include "BrokenCatalogue.h"
#include "CheckFolder.h"
#include "RVCatalogue/EncodedText.h"

#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_fix_patches : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void patches_data();
    void patches();

private:
    int exitCode(const QString &program, const QStringList &arguments, const QByteArray &input) const;

    std::unique_ptr<CheckFolder> myFolder;
};

void tst_fix_patches::init()
{
    myFolder = std::make_unique<CheckFolder>();
}

int tst_fix_patches::exitCode(const QString &program, const QStringList &arguments, const QByteArray &input) const
{
    return runProgram(myFolder->path(), program, arguments, input).exitCode;
}

void tst_fix_patches::patches_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *situation, const QString &name, const QByteArray &before, const QByteArray &after) {
        QTest::newRow(situation) << name << before << after;
    };
    const auto changed = [](const char *text, const QByteArray &from, const QByteArray &to) {
        return QByteArray(text).replace(from, to);
    };
    const auto utf16 = [](const char *text) { return "\xff\xfe" + *encoded(QString::fromUtf8(text), "UTF-16LE"); };

    row("line feeds", u"b.xml"_s, BROKEN_CATALOGUE, MENDED_CATALOGUE);
    row("carriage returns and line feeds", u"b.xml"_s, changed(BROKEN_CATALOGUE, "\n", "\r\n"),
        changed(MENDED_CATALOGUE, "\n", "\r\n"));
    row("one line", u"b.xml"_s, changed(BROKEN_CATALOGUE, "\n", " "), changed(MENDED_CATALOGUE, "\n", " "));
    row("carriage returns", u"b.xml"_s, changed(BROKEN_CATALOGUE, "\n", "\r"), changed(MENDED_CATALOGUE, "\n", "\r"));
    row("last line without end", u"b.xml"_s, QByteArray(BROKEN_CATALOGUE).chopped(1),
        QByteArray(MENDED_CATALOGUE).chopped(1));
    row("byte order mark", u"b.xml"_s, QByteArray("\xef\xbb\xbf") + BROKEN_CATALOGUE,
        QByteArray("\xef\xbb\xbf") + MENDED_CATALOGUE);
    row("Latin-1", u"b.xml"_s,
        "<?xml version='1.0' encoding='ISO-8859-1'?>\n" + changed(BROKEN_CATALOGUE, "8,5 ", "\xe4"),
        "<?xml version='1.0' encoding='ISO-8859-1'?>\n" + changed(MENDED_CATALOGUE, "8,5 ", "\xe4"));
    row("UTF-16", u"b.xml"_s, utf16(BROKEN_CATALOGUE), utf16(MENDED_CATALOGUE));
    row("blank in the name", u"b c.xml"_s, BROKEN_CATALOGUE, MENDED_CATALOGUE);
    row("letters in the name", u"Bücher.xml"_s, BROKEN_CATALOGUE, MENDED_CATALOGUE);
    row("quote in the name", u"\"b\".xml"_s, BROKEN_CATALOGUE, MENDED_CATALOGUE);
    row("backslash in the name", u"b\\c.xml"_s, BROKEN_CATALOGUE, MENDED_CATALOGUE);
    row("line end in the name", u"b\nc.xml"_s, BROKEN_CATALOGUE, MENDED_CATALOGUE);
    row("hyphen before the name", u"-b.xml"_s, BROKEN_CATALOGUE, MENDED_CATALOGUE);
}

// Programs that apply patches turn the old file into the same file as --fix does.
void tst_fix_patches::patches()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QVERIFY(myFolder->write(name, before));
    const QByteArray diff = myFolder->check({ u"--diff"_s, u"--"_s, name }).bytes;
    QVERIFY(diff.contains("\n@@ "));

    QCOMPARE(exitCode(QStringLiteral(GIT), { u"apply"_s, u"-p0"_s }, diff), 0);
    QCOMPARE(myFolder->read(name), after);

    // patch 2.8 and newer accept no line end in a name.
    if (!name.contains(u'\n')) {
        QVERIFY(myFolder->write(name, before));
        QCOMPARE(exitCode(QStringLiteral(PATCH), { u"--binary"_s, u"-p0"_s }, diff), 0);
        QCOMPARE(myFolder->read(name), after);
    }

    QVERIFY(myFolder->write(name, before));
    myFolder->check({ u"--fix"_s, u"--"_s, name });
    QCOMPARE(myFolder->read(name), after);
}

QTEST_GUILESS_MAIN(tst_fix_patches)
#include "tst_fix_patches.moc"
