#include "CatalogueBuffer.h"
#include "EncodedText.h"
#include "TestFolder.h"

#include <RVFileEditor.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

RVFileEdit edit(qint64 line, qint64 column, qint64 endLine, qint64 endColumn, const QString &text)
{
    return { { { line, column }, { endLine, endColumn } }, text };
}

/// An edit in the first line.
RVFileEdit edit(qint64 column, qint64 endColumn, const QString &text)
{
    return edit(1, column, 1, endColumn, text);
}

/// An encoding, its letters, and the begin of a file in it.
struct Encoding
{
    const char *row;
    const char *name;
    const char *letters;
    QByteArray mark = {};
    bool isDeclared = true;
};

const std::vector<Encoding> ENCODINGS = {
    { "UTF-8", "UTF-8", "aäß€щあ𝄞🎉" },
    { "UTF-8 with a mark", "UTF-8", "aäß€щあ𝄞🎉", "\xef\xbb\xbf" },
    { "UTF-8 by default", "UTF-8", "aäß€щあ𝄞🎉", {}, false },
    { "UTF-16LE with a mark", "UTF-16LE", "aäß€щあ𝄞🎉", "\xff\xfe", false },
    { "UTF-16BE with a mark", "UTF-16BE", "aäß€щあ𝄞🎉", "\xfe\xff", false },
    { "UTF-16LE", "UTF-16LE", "aäß€щあ𝄞🎉" },
    { "UTF-16BE", "UTF-16BE", "aäß€щあ𝄞🎉", {}, false },
    { "UTF-32LE with a mark", "UTF-32LE", "aäß€щあ𝄞🎉", QByteArray("\xff\xfe\0\0", 4), false },
    { "UTF-32BE", "UTF-32BE", "aäß€щあ𝄞🎉", {}, false },
    { "US-ASCII", "US-ASCII", "abc" },
    { "ISO-8859-1", "ISO-8859-1", "aäßÊé" },
    { "ISO-8859-2", "ISO-8859-2", "aäßłř" },
    { "ISO-8859-15", "ISO-8859-15", "aäß€Ÿ" },
    { "windows-1252", "windows-1252", "aäß€™" },
    { "windows-1251", "windows-1251", "aщЖё" },
    { "windows-1255", "windows-1255", "aשאבי" },
    { "windows-1258", "windows-1258", "aâêơđế" },
    { "TCVN", "TCVN5712-1", "aâêơđế" },
    { "KOI8-R", "KOI8-R", "aщЖё" },
    { "IBM850", "IBM850", "aäß" },
    { "macintosh", "MACINTOSH", "aäß€" },
    { "Shift_JIS", "Shift_JIS", "aあ漢ｱ" },
    { "EUC-JP", "EUC-JP", "aあ漢ｱ" },
    { "EUC-JISX0213", "EUC-JISX0213", "aあ漢かæ" },
    { "EUC-KR", "EUC-KR", "a한글漢" },
    { "GBK", "GBK", "a汉字€" },
    { "GB18030", "GB18030", "a汉字€ä𝄞" },
    { "Big5", "BIG5", "a漢字" },
    { "Big5-HKSCS", "BIG5-HKSCS", "a漢字Êê" },
    { "ISO-2022-JP", "ISO-2022-JP", "abc" },
};

QString textOf(const QString &letters, int count, QRandomGenerator *random)
{
    const QList<uint> all = letters.toUcs4();
    const QStringList others = { u" "_s, u"\n"_s, u"\r"_s, u"\r\n"_s, u"<!-- - -->"_s, u"<b c='d'/>"_s };
    QString result;
    for (int i = 0; i < count; ++i) {
        const char32_t letter = all.at(random->bounded(int(all.size())));
        result += random->bounded(8) > 0 ? QString::fromUcs4(&letter, 1) : others.at(random->bounded(6));
    }
    return result;
}

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// A device that is written byte by byte, but not beyond some bytes, like a full disk.
class FullFile : public QBuffer
{
public:
    /// @p failure is the result of writing more.
    FullFile(qint64 room, qint64 failure) : myRoom(room), myFailure(failure) { open(QIODevice::ReadWrite); }

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        if (pos() < myRoom)
            return QBuffer::writeData(data, qMin(size, qint64(1)));
        setErrorString(u"No space left on device"_s);
        return myFailure;
    }

private:
    qint64 myRoom;
    qint64 myFailure;
};

/// A device whose text ends early when it is read for the second time.
class BrokenFile : public CatalogueBuffer
{
public:
    BrokenFile(const QByteArray &content, qint64 readable) : CatalogueBuffer(content), myReadable(readable) { }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        if (pos() >= myReadable) {
            setErrorString(u"Input/output error"_s);
            return -1;
        }
        return CatalogueBuffer::readData(data, qMin(size, myReadable - pos()));
    }

private:
    qint64 myReadable;
};

}

class tst_RVFileEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bytes_data();
    void bytes();
    void impossible_data();
    void impossible();
    void fixes_data();
    void fixes();
    void countsEachFix();
    void refusedFixLeavesNothing();
    void encodings_data();
    void encodings();
    void letterInTwoPieces();
    void unwritableLetters_data();
    void unwritableLetters();
    void unwritableLetterAmongOthers();
    void statefulEncoding();
    void manyEditsInOneLine();
    void fullDevice();
    void brokenDevice();
    void save();
    void saveWithoutFixes();
    void savePermissions();
    void saveOwner();
    void saveExtendedAttributes();
    void saveAccessControlList();
    void saveThroughLink();
    void saveOneOfHardLinks();
    void saveLongName();
    void changedMeanwhile_data();
    void changedMeanwhile();
    void unsavable_data();
    void unsavable();
    void pipeWithoutWriter();
    void brokenByEdit();
    void onlyOnce();

private:
    QString write(const QString &name, const QByteArray &content) const
    {
        return myFolder->write(name, content) ? myFolder->path(name) : QString();
    }

    std::unique_ptr<TestFolder> myFolder;
};

void tst_RVFileEditor::init()
{
    myFolder = std::make_unique<TestFolder>();
}

void tst_RVFileEditor::bytes_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QList<RVFileEdit>>("edits");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const char *file, const QList<RVFileEdit> &edits, const char *expected) {
        QTest::newRow(name) << QByteArray(file) << edits << QByteArray(expected);
    };

    row("none", "<a/>", {}, "<a/>");
    row("piece of a value", "<a b='1,5'/>", { edit(8, 9, u"."_s) }, "<a b='1.5'/>");
    row("longer", "<a b='1'/>", { edit(7, 8, u"2345"_s) }, "<a b='2345'/>");
    row("shorter", "<a b='1234'/>", { edit(7, 11, u"5"_s) }, "<a b='5'/>");
    row("taken out", "<a b=' 1 '/>", { edit(7, 8, QString()), edit(9, 10, QString()) }, "<a b='1'/>");
    row("put in", "<a b='1'/>", { edit(7, 7, u"2"_s) }, "<a b='21'/>");
    row("name of an attribute", "<a b='1'/>", { edit(4, 5, u"bb"_s) }, "<a bb='1'/>");
    row("whole file", "<a/>", { edit(1, 5, u"<b/>"_s) }, "<b/>");
    row("begin of the file", "<a/>", { edit(1, 1, u"<!-- -->"_s) }, "<!-- --><a/>");
    row("end of the file", "<a/>", { edit(5, 5, u"\n"_s) }, "<a/>\n");
    row("in any order", "<a b='12'/>", { edit(8, 9, u"y"_s), edit(7, 8, u"x"_s) }, "<a b='xy'/>");
    row("behind a byte order mark", "\xef\xbb\xbf<a b='1'/>", { edit(7, 8, u"2"_s) }, "\xef\xbb\xbf<a b='2'/>");
    row("behind two columns of one letter",
        "<a b='\xf0\x9f\x8e\x89"
        "1'/>",
        { edit(9, 10, u"2"_s) },
        "<a b='\xf0\x9f\x8e\x89"
        "2'/>");
    row("letter of four bytes",
        "<a b='1\xf0\x9f\x8e\x89"
        "1'/>",
        { edit(8, 10, u"ä"_s) },
        "<a b='1\xc3\xa4"
        "1'/>");
    row("lines with line feeds", "<a>\n\n<b c='1'/>\n</a>\n", { edit(3, 7, 3, 8, u"2"_s) },
        "<a>\n\n<b c='2'/>\n</a>\n");
    row("lines with carriage returns", "<a>\r\r<b c='1'/>\r</a>\r", { edit(3, 7, 3, 8, u"2"_s) },
        "<a>\r\r<b c='2'/>\r</a>\r");
    row("lines with both", "<a>\r\n\r\n<b c='1'/>\r\n</a>\r\n", { edit(3, 7, 3, 8, u"2"_s) },
        "<a>\r\n\r\n<b c='2'/>\r\n</a>\r\n");
    row("mixed lines", "<a>\n\r\r\n\n<b c='1'/></a>", { edit(5, 7, 5, 8, u"2"_s) }, "<a>\n\r\r\n\n<b c='2'/></a>");
    row("end of a line", "<a>\r\n</a>", { edit(1, 4, 1, 4, u" "_s) }, "<a> \r\n</a>");
    row("carriage return of a line", "<a>\r\n</a>", { edit(1, 4, 1, 5, QString()) }, "<a>\n</a>");
    row("carriage return before the last letter", "<a/>\r\n ", { edit(1, 5, 1, 6, QString()) }, "<a/>\n ");
    row("across lines", "<a>\r\n\r\n</a>", { edit(1, 4, 3, 1, u" "_s) }, "<a> </a>");
    row("text with a line end", "<a b='1'/>", { edit(3, 4, u"\r\n"_s) }, "<a\r\nb='1'/>");
}

void tst_RVFileEditor::bytes()
{
    QFETCH(QByteArray, file);
    QFETCH(QList<RVFileEdit>, edits);
    RVFileEditor editor;
    for (const RVFileEdit &each : edits)
        QVERIFY(editor.add({ each }));
    QTEST(editor.apply(file), "expected");
    QCOMPARE(editor.errorString(), QString());
}

void tst_RVFileEditor::impossible_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<RVFileEdit>("edit");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &file, const RVFileEdit &edit, const QString &error) {
        QTest::newRow(name) << file << edit << error;
    };

    row("no such line", "<a>\n</a>", edit(3, 1, 3, 1, u" "_s), u"there is no line 3 with a column 1"_s);
    row("behind the line", "<a>\n</a>", edit(1, 2, 1, 5, u" "_s), u"there is no line 1 with a column 5"_s);
    row("behind the line, which ends with a carriage return", "<a>\r</a>", edit(1, 2, 1, 5, u" "_s),
        u"there is no line 1 with a column 5"_s);
    row("behind the file", "<a/>", edit(1, 6, u" "_s), u"there is no line 1 with a column 6"_s);
    row("before the first column", "<a/>", edit(0, 1, u" "_s), u"there is no line 1 with a column 0"_s);
    row("within a letter", "<a b='\xf0\x9f\x8e\x89'/>", edit(8, 9, u" "_s), u"there is no line 1 with a column 8"_s);
    row("not its encoding", "<?xml version='1.0' encoding='EUC-KR'?><a b='\xff'/>", edit(46, 47, u" "_s),
        u"this is not encoded in EUC-KR, which the first line of the file declares"_s);
    row("unknown encoding", "<?xml version='1.0' encoding='x-none'?><a/>", edit(42, 42, u" "_s),
        u"the encoding \"x-none\", which the first line of the file declares, is not known; UTF-8 always is"_s);
    row("not well-formed", "<a b='1'>", edit(7, 8, u"2"_s),
        u"the changes would break the file in line 1, column 10: the file ends too early: <a>, which was opened in "
        "line 1, is not closed"_s);
    row("broken by it", "<a b='1'/>", edit(7, 8, u"<"_s),
        u"the changes would break the file in line 1, column 11: the file ends too early"_s);
    row("other encoding declared", "<?xml version='1.0' encoding='UTF-8'?><a b='\xc3\xa4'/>",
        edit(31, 36, u"ISO-8859-1"_s), u"the file cannot be changed in its encoding; save it in UTF-8"_s);
}

void tst_RVFileEditor::impossible()
{
    QFETCH(QByteArray, file);
    QFETCH(RVFileEdit, edit);
    RVFileEditor editor;
    QVERIFY(editor.add({ edit }));
    QVERIFY(editor.apply(file).isNull());
    QTEST(editor.errorString(), "error");
}

void tst_RVFileEditor::fixes_data()
{
    QTest::addColumn<QList<RVFileEdit>>("first");
    QTest::addColumn<QList<RVFileEdit>>("second");
    QTest::addColumn<bool>("isAdded");
    const auto row = [](const char *name, const QList<RVFileEdit> &first, const QList<RVFileEdit> &second,
                        bool isAdded) { QTest::newRow(name) << first << second << isAdded; };
    const RVFileEdit middle = edit(10, 14, u"x"_s);
    const RVFileEdit insertion = edit(10, 10, u"x"_s);

    row("far apart", { middle }, { edit(20, 24, u"y"_s) }, true);
    row("right behind", { middle }, { edit(14, 15, u"y"_s) }, true);
    row("right before", { middle }, { edit(8, 10, u"y"_s) }, true);
    row("equal", { middle }, { middle }, true);
    row("equal insertion", { insertion }, { insertion }, true);
    row("other text", { middle }, { edit(10, 14, u"y"_s) }, false);
    row("other text put in", { insertion }, { edit(10, 10, u"y"_s) }, false);
    row("begins in it", { middle }, { edit(13, 15, u"y"_s) }, false);
    row("ends in it", { middle }, { edit(8, 11, u"y"_s) }, false);
    row("within", { middle }, { edit(11, 12, u"y"_s) }, false);
    row("around", { middle }, { edit(9, 15, u"y"_s) }, false);
    row("around a place", { insertion }, { edit(9, 11, u"y"_s) }, false);
    row("put in within", { middle }, { edit(12, 12, u"y"_s) }, false);
    row("put in at the begin", { middle }, { insertion }, false);
    row("put in at the end", { middle }, { edit(14, 14, u"y"_s) }, false);
    row("behind a place", { insertion }, { edit(10, 12, u"y"_s) }, false);
    row("put in one column behind", { middle }, { edit(15, 15, u"y"_s) }, true);
    row("one of two touches", { middle }, { edit(20, 24, u"y"_s), edit(11, 12, u"y"_s) }, false);
    row("one of two is equal", { middle }, { middle, edit(20, 24, u"y"_s) }, true);
    row("two that touch each other", {}, { edit(10, 14, u"x"_s), edit(12, 16, u"y"_s) }, false);
    row("ends in front of its begin", {}, { edit(14, 10, u"x"_s) }, false);
    row("across lines", { edit(1, 10, 3, 2, u"x"_s) }, { edit(2, 1, 2, 2, u"y"_s) }, false);
    row("same columns of other lines", { middle }, { edit(2, 10, 2, 14, u"y"_s) }, true);
    row("none", { middle }, {}, false);
}

void tst_RVFileEditor::fixes()
{
    QFETCH(QList<RVFileEdit>, first);
    QFETCH(QList<RVFileEdit>, second);
    RVFileEditor editor;
    QCOMPARE(editor.add(first), !first.isEmpty());
    QTEST(editor.add(second), "isAdded");
}

void tst_RVFileEditor::countsEachFix()
{
    RVFileEditor editor;
    QCOMPARE(editor.count(), 0);
    editor.add({ edit(7, 8, u"2"_s), edit(9, 10, u"3"_s) });
    editor.add({ edit(7, 8, u"2"_s) });
    QCOMPARE(editor.count(), 2);
    QCOMPARE(editor.leftOut(), 0);
    editor.add({ edit(7, 8, u"4"_s) });
    editor.add({});
    QCOMPARE(editor.count(), 2);
    QCOMPARE(editor.leftOut(), 1);
    QCOMPARE(editor.apply("<a b='1,1'/>"), QByteArray("<a b='2,3'/>"));
}

// The first edit of a fix is removed when the second one cannot be made.
void tst_RVFileEditor::refusedFixLeavesNothing()
{
    RVFileEditor editor;
    QVERIFY(editor.add({ edit(9, 10, u"3"_s) }));
    QVERIFY(!editor.add({ edit(9, 10, u"3"_s), edit(7, 8, u"2"_s), edit(9, 10, u"4"_s) }));
    QCOMPARE(editor.apply("<a b='1,1'/>"), QByteArray("<a b='1,3'/>"));
}

void tst_RVFileEditor::encodings_data()
{
    QTest::addColumn<int>("index");
    int known = 0;
    for (std::size_t i = 0; i < ENCODINGS.size(); ++i) {
        if (!encoded(u"a"_s, ENCODINGS[i].name))
            continue; // the system lacks this encoding
        QTest::newRow(ENCODINGS[i].row) << int(i);
        ++known;
    }
    QVERIFY(known >= 10);
}

namespace {

/// A file with texts of several pieces, which have letters of all lengths at the ends of pieces and edits.
void compareEditedFile(const Encoding &encoding, int count, QRandomGenerator *random)
{
    const QString letters = QString::fromUtf8(encoding.letters);
    const QString declaration = u"<?xml version='1.0' encoding='%1'?>"_s.arg(QLatin1StringView(encoding.name));
    QString text = (encoding.isDeclared ? declaration : QString()) + u"<p>"_s;
    QString expected = text;
    RVFileEditor editor;
    const int edits = count > 1000 ? 4 : 40;
    for (int i = 0; i < edits; ++i) {
        // Only letters of texts may be replaced, or the file would be no XML.
        const QString kept = textOf(letters, random->bounded(count), random);
        text += kept + u'|';
        expected += kept + u'|';
        const QString old = textOf(letters, random->bounded(3), random);
        const QString wanted = random->bounded(4) > 0 ? textOf(letters, random->bounded(4), random) : QString();
        const RVFilePosition begin = placeOf(text, text.size());
        text += old;
        QVERIFY(editor.add({ { { begin, placeOf(text, text.size()) }, wanted } }));
        text += u'|';
        expected += wanted + u'|';
    }
    text += u"</p>"_s;
    expected += u"</p>"_s;
    const QByteArray result = editor.apply(encoding.mark + *encoded(text, encoding.name));
    QCOMPARE(editor.errorString(), QString());
    QVERIFY(result == encoding.mark + *encoded(expected, encoding.name));
    QCOMPARE(editor.count(), edits);
}

}

void tst_RVFileEditor::encodings()
{
    QFETCH(int, index);
    QRandomGenerator random(quint32(index) + 1);
    for (const int count : { 10, 50, 200, 60000 })
        compareEditedFile(ENCODINGS[std::size_t(index)], count, &random);
}

// The file is read in pieces of 64 KiB, which may end between the bytes of a letter.
void tst_RVFileEditor::letterInTwoPieces()
{
    const QByteArray begin("<p>\n");
    for (qsizetype size = 65536 - begin.size() - 4; size < 65536 - begin.size(); ++size) {
        const QByteArray text = begin + QByteArray(size, ' ') + "\xf0\x9f\x98\x80" + "a</p>";
        RVFileEditor editor;
        QVERIFY(editor.add({ edit(2, size + 3, 2, size + 4, u"b"_s) }));
        QCOMPARE(editor.apply(text).last(6),
                 QByteArray("\x80"
                            "b</p>"));
        QCOMPARE(editor.errorString(), QString());
    }
}

void tst_RVFileEditor::unwritableLetters_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<RVFileEdit>("edit");
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<QString>("error");
    const QByteArray latin1 = "<?xml version='1.0' encoding='ISO-8859-1'?>\n";

    QTest::newRow("in a value") << latin1 + "<a b='\xe4'/>" << edit(2, 8, 2, 8, u"1 €"_s)
                                << latin1
                    + "<a b='\xe4"
                      "1 &#x20AC;'/>"
                                << QString();
    QTest::newRow("in a text") << latin1 + "<!-- --><a>\xe4</a>" << edit(2, 12, 2, 13, u"𝄞"_s)
                               << latin1 + "<!-- --><a>&#x1D11E;</a>" << QString();
    QTest::newRow("in UTF-16") << *encoded(u"<a b='1'/>"_s, "UTF-16BE") << edit(7, 8, u"€"_s)
                               << *encoded(u"<a b='€'/>"_s, "UTF-16BE") << QString();
    QTest::newRow("in a comment") << latin1 + "<a/><!-- 1 -->" << edit(2, 10, 2, 11, u"€"_s) << QByteArray()
                                  << u"\"€\" cannot be written in ISO-8859-1"_s;
    QTest::newRow("in a comment that begins with a bracket")
            << latin1 + "<a/><!--> 1 -->" << edit(2, 11, 2, 12, u"€"_s) << QByteArray()
            << u"\"€\" cannot be written in ISO-8859-1"_s;
    QTest::newRow("behind a comment that begins with a bracket")
            << latin1 + "<a><!--> -->1</a>" << edit(2, 13, 2, 14, u"€"_s) << latin1 + "<a><!--> -->&#x20AC;</a>"
            << QString();
    QTest::newRow("in the declaration") << latin1 + "<a/>" << edit(1, 18, 1, 19, u"€"_s) << QByteArray()
                                        << u"\"€\" cannot be written in ISO-8859-1"_s;
    QTest::newRow("in an instruction") << latin1 + "<a/><?b 1?>" << edit(2, 9, 2, 10, u"€"_s) << QByteArray()
                                       << u"\"€\" cannot be written in ISO-8859-1"_s;
    QTest::newRow("in a section") << latin1 + "<a><![CDATA[1]]></a>" << edit(2, 13, 2, 14, u"€"_s) << QByteArray()
                                  << u"\"€\" cannot be written in ISO-8859-1"_s;
    QTest::newRow("in a name") << latin1 + "<a b='1'/>" << edit(2, 4, 2, 5, u"€"_s) << QByteArray()
                               << u"the changes would break the file in line 2, column 4: \"&\" does not begin an "
                                  u"entity here; the letter itself "
                                  "is written \"&amp;\""_s;
}

void tst_RVFileEditor::unwritableLetters()
{
    QFETCH(QByteArray, file);
    QFETCH(RVFileEdit, edit);
    RVFileEditor editor;
    QVERIFY(editor.add({ edit }));
    QTEST(editor.apply(file), "expected");
    QTEST(editor.errorString(), "error");
}

// A reference is possible in the value, and not needed in the comment behind it.
void tst_RVFileEditor::unwritableLetterAmongOthers()
{
    const QByteArray begin = "<?xml version='1.0' encoding='ISO-8859-1'?>\n";
    RVFileEditor editor;
    QVERIFY(editor.add({ edit(2, 7, 2, 8, u"5"_s), edit(2, 13, 2, 14, u"6"_s), edit(2, 19, 2, 20, u"€"_s),
                         edit(2, 28, 2, 29, u"7"_s) }));
    QCOMPARE(editor.apply(begin + "<a b='1' c='2' d='3'/><!-- 4 -->"),
             begin + "<a b='5' c='6' d='&#x20AC;'/><!-- 7 -->");
    QCOMPARE(editor.errorString(), QString());
}

// Bytes belong to the current alphabet of the encoding, so an edit must not change the meaning of later bytes.
void tst_RVFileEditor::statefulEncoding()
{
    const QString declaration = u"<?xml version='1.0' encoding='ISO-2022-JP'?>\n"_s;
    const QByteArray file = *encoded(declaration + u"<a b='漢字' c='1'/>"_s, "ISO-2022-JP");
    RVFileEditor whole;
    QVERIFY(whole.add({ edit(2, 7, 2, 9, u"漢"_s) }));
    QVERIFY(whole.add({ edit(2, 14, 2, 15, u"2"_s) }));
    QCOMPARE(QString::fromLatin1(whole.apply(file)).count(u'2'), 4); // ISO-2022, and the new one
    QCOMPARE(whole.errorString(), QString());

    RVFileEditor last; // an ASCII letter follows it
    QVERIFY(last.add({ edit(2, 14, 2, 15, u"字"_s) }));
    QCOMPARE(last.apply(file), *encoded(declaration + u"<a b='漢字' c='字'/>"_s, "ISO-2022-JP"));

    RVFileEditor part;
    QVERIFY(part.add({ edit(2, 7, 2, 8, u"1"_s) }));
    QVERIFY(part.apply(file).isNull());
    QVERIFY(!part.errorString().isEmpty());
}

void tst_RVFileEditor::manyEditsInOneLine()
{
    constexpr int count = 20000;
    for (const QByteArray &encoding : { QByteArray("UTF-8"), QByteArray("ISO-8859-1") }) {
        QByteArray file = "<?xml version='1.0' encoding='" + encoding + "'?><a>";
        QByteArray expected = file;
        RVFileEditor editor;
        for (int i = 0; i < count; ++i) {
            file += "<b c=' 1'/>";
            expected += "<b c='1'/>";
            QVERIFY(editor.add({ edit(file.size() - 4, file.size() - 3, QString()) }));
        }
        QVERIFY(editor.apply(file + "</a>") == expected + "</a>");
    }
}

void tst_RVFileEditor::fullDevice()
{
    CatalogueBuffer from("<a b='1'/>");
    RVFileEditor editor;
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    for (const int room : { 0, 6, 7, 9 }) {
        for (const int failure : { -1, 0 }) {
            FullFile to(room, failure);
            QVERIFY(!editor.apply(&from, &to));
            QCOMPARE(editor.errorString(), u"cannot write: No space left on device"_s);
        }
    }
    FullFile to(10, -1);
    QVERIFY(editor.apply(&from, &to));
    QCOMPARE(editor.errorString(), QString());
    QCOMPARE(to.data(), QByteArray("<a b='2'/>"));
}

// A text that an error cuts off here would be well-formed.
void tst_RVFileEditor::brokenDevice()
{
    RVFileEditor editor;
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    BrokenFile from("<a b='1'/><!-- and so on -->", 10);
    QBuffer to;
    QVERIFY(to.open(QIODevice::ReadWrite));
    QVERIFY(!editor.apply(&from, &to));
    QCOMPARE(editor.errorString(), u"cannot read on: Input/output error"_s);
}

void tst_RVFileEditor::save()
{
    const QString path = write(u"a.xml"_s, "\xef\xbb\xbf<a b='1'/>\r\n");
    RVFileEditor editor(path);
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QVERIFY2(editor.save(), qPrintable(editor.errorString()));
    QCOMPARE(readFile(path), QByteArray("\xef\xbb\xbf<a b='2'/>\r\n"));
    QCOMPARE(namesIn(myFolder->path()), QStringList { u"a.xml"_s });
}

void tst_RVFileEditor::saveWithoutFixes()
{
    const QString path = write(u"a.xml"_s, "<a>");
    const QFileInfo before(path);
    RVFileEditor editor(path);
    QVERIFY(editor.save());
    QFileInfo after(path);
    QCOMPARE(after.metadataChangeTime(), before.metadataChangeTime());
    RVFileEditor missing(myFolder->path(u"missing.xml"_s));
    QVERIFY(missing.apply("<a>").isNull());
    QVERIFY(missing.save());
    QCOMPARE(missing.errorString(), QString());
    QCOMPARE(namesIn(myFolder->path()), QStringList { u"a.xml"_s });
}

void tst_RVFileEditor::savePermissions()
{
    const QString path = write(u"a.xml"_s, "<a b='1'/>");
    for (const mode_t mode : { 0600, 0664, 0755, 0640 }) {
        QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode), 0);
        RVFileEditor editor(path);
        QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
        QVERIFY2(editor.save(), qPrintable(editor.errorString()));
        struct stat state = {};
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &state), 0);
        QCOMPARE(state.st_mode & 07777U, mode);
    }
}

// A user who may give files away keeps the owner; any other user becomes the owner.
void tst_RVFileEditor::saveOwner()
{
    const QString path = write(u"a.xml"_s, "<a b='1'/>");
    const uid_t owner = ::geteuid() == 0 ? 1234 : ::geteuid();
    const gid_t group = ::geteuid() == 0 ? 4321 : ::getegid();
    QCOMPARE(::chown(QFile::encodeName(path).constData(), owner, group), 0);
    RVFileEditor editor(path);
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QVERIFY2(editor.save(), qPrintable(editor.errorString()));
    struct stat state = {};
    QCOMPARE(::stat(QFile::encodeName(path).constData(), &state), 0);
    QCOMPARE(state.st_uid, owner);
    QCOMPARE(state.st_gid, group);
}

// If the file system has none, the file has none before and after.
void tst_RVFileEditor::saveExtendedAttributes()
{
    const QByteArray path = QFile::encodeName(write(u"a.xml"_s, "<a b='1'/>"));
    const auto attribute = [&path] {
        QByteArray value(100, '\0');
        const ssize_t size = ::getxattr(path.constData(), "user.proof", value.data(), std::size_t(value.size()));
        return value.first(qMax(ssize_t(0), size));
    };
    ::setxattr(path.constData(), "user.proof", "read", 4, 0);
    const QByteArray before = attribute();
    RVFileEditor editor(QFile::decodeName(path));
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QVERIFY2(editor.save(), qPrintable(editor.errorString()));
    QCOMPARE(attribute(), before);
}

// New files in the folder have another access control list. If the file system has none, the file has none before and
// after.
void tst_RVFileEditor::saveAccessControlList()
{
    const auto list = [](quint8 permissions) {
        QByteArray result("\2\0\0\0", 4);
        for (const char tag : { '\x01', '\x02', '\x04', '\x10', '\x20' }) {
            const char entry[] = { tag, 0, char(permissions), 0 };
            result += QByteArray(entry, sizeof(entry));
            result += tag == '\x02' ? QByteArray("\1\0\0\0", 4) : QByteArray(4, '\xff');
        }
        return result;
    };
    const QByteArray path = QFile::encodeName(write(u"a.xml"_s, "<a b='1'/>"));
    const auto listOfFile = [&path] {
        QByteArray value(100, '\0');
        return value.left(::getxattr(path.constData(), "system.posix_acl_access", value.data(), 100));
    };
    ::setxattr(path.constData(), "system.posix_acl_access", list(6).constData(), 44, 0);
    ::setxattr(QFile::encodeName(myFolder->path()).constData(), "system.posix_acl_default", list(4).constData(), 44, 0);
    const QByteArray before = listOfFile();
    RVFileEditor editor(QFile::decodeName(path));
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QVERIFY2(editor.save(), qPrintable(editor.errorString()));
    QCOMPARE(listOfFile(), before);
}

void tst_RVFileEditor::saveThroughLink()
{
    const QString path = write(u"a.xml"_s, "<a b='1'/>");
    QVERIFY(QDir(myFolder->path()).mkdir(u"d"_s));
    const QString link = myFolder->path(u"d/link.xml"_s);
    QVERIFY(QFile::link(u"../a.xml"_s, link));
    RVFileEditor editor(link);
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QVERIFY2(editor.save(), qPrintable(editor.errorString()));
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(!QFileInfo(path).isSymLink());
    QCOMPARE(readFile(path), QByteArray("<a b='2'/>"));
    QCOMPARE(namesIn(myFolder->path(u"d"_s)), QStringList { u"link.xml"_s });
}

void tst_RVFileEditor::saveOneOfHardLinks()
{
    const QString path = write(u"a.xml"_s, "<a b='1'/>");
    const QString other = myFolder->path(u"b.xml"_s);
    QCOMPARE(::link(QFile::encodeName(path).constData(), QFile::encodeName(other).constData()), 0);
    RVFileEditor editor(path);
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QVERIFY2(editor.save(), qPrintable(editor.errorString()));
    QCOMPARE(readFile(path), QByteArray("<a b='2'/>"));
    QCOMPARE(readFile(other), QByteArray("<a b='1'/>"));
}

void tst_RVFileEditor::saveLongName()
{
    const QString path = write(QString(250, u'x') + u".xml"_s, "<a b='1'/>");
    RVFileEditor editor(path);
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QVERIFY2(editor.save(), qPrintable(editor.errorString()));
    QCOMPARE(readFile(path), QByteArray("<a b='2'/>"));
}

void tst_RVFileEditor::changedMeanwhile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isReplaced");

    QTest::newRow("longer") << QByteArray("<a b='1' />") << false;
    QTest::newRow("of equal size") << QByteArray("<a b='3'/>") << false;
    QTest::newRow("same content in another file") << QByteArray("<a b='1'/>") << true;
}

void tst_RVFileEditor::changedMeanwhile()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isReplaced);
    const QString path = write(u"a.xml"_s, "<a b='1'/>");
    RVFileEditor editor(path);
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QTest::qWait(20); // file systems count in steps of some milliseconds
    write(isReplaced ? u"b.xml"_s : u"a.xml"_s, content);
    if (isReplaced) {
        const QByteArray other = QFile::encodeName(myFolder->path(u"b.xml"_s));
        QCOMPARE(::rename(other.constData(), QFile::encodeName(path).constData()), 0);
    }
    QVERIFY(!editor.save());
    QCOMPARE(editor.errorString(), u"the file was changed meanwhile; check it again"_s);
    QCOMPARE(readFile(path), content);
    QCOMPARE(namesIn(myFolder->path()), QStringList { u"a.xml"_s });
}

void tst_RVFileEditor::unsavable_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("error");

    QTest::newRow("missing") << u"missing.xml"_s << u"cannot open the file: No such file or directory"_s;
    QTest::newRow("folder") << u"."_s << u"cannot open the file: file to open is a directory"_s;
    QTest::newRow("device") << u"/dev/zero"_s << u"this is no ordinary file"_s;
    QTest::newRow("in no folder that takes files")
            << u"/proc/self/status"_s << u"cannot write a new file beside the old one"_s;
}

void tst_RVFileEditor::unsavable()
{
    QFETCH(QString, path);
    QFETCH(QString, error);
    RVFileEditor editor(QDir(myFolder->path()).absoluteFilePath(path));
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QVERIFY(!editor.save());
    QVERIFY2(editor.errorString().startsWith(error), qPrintable(editor.errorString()));
}

// Nobody writes to the pipe, so opening it would wait for ever.
void tst_RVFileEditor::pipeWithoutWriter()
{
    const QString path = myFolder->path(u"pipe.xml"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    RVFileEditor editor(path);
    QVERIFY(editor.add({ edit(7, 8, u"2"_s) }));
    QVERIFY(!editor.save());
    QCOMPARE(editor.errorString(), u"this is no ordinary file"_s);
}

void tst_RVFileEditor::brokenByEdit()
{
    const QString path = write(u"a.xml"_s, "<a b='1'/>");
    RVFileEditor editor(path);
    QVERIFY(editor.add({ edit(7, 8, u"'"_s) }));
    QVERIFY(!editor.save());
    QVERIFY(editor.errorString().startsWith("the changes would break the file in line 1, column "_L1));
    QCOMPARE(readFile(path), QByteArray("<a b='1'/>"));
    QCOMPARE(namesIn(myFolder->path()), QStringList { u"a.xml"_s });
}

// The places are those of the old file.
void tst_RVFileEditor::onlyOnce()
{
    const QString path = write(u"a.xml"_s, "<a b='1'/>");
    RVFileEditor editor(path);
    QVERIFY(editor.add({ edit(7, 8, u"23"_s) }));
    QVERIFY(editor.save());
    QVERIFY(!editor.save());
    QCOMPARE(readFile(path), QByteArray("<a b='23'/>"));
}

QTEST_GUILESS_MAIN(tst_RVFileEditor)
#include "tst_RVFileEditor.moc"
