#include "MessageLog.h"
#include "WrittenFile.h"

#include <SourceLines.h>

#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class tst_SourceLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void anyOrder();
    void endsBetweenPieces();
    void longFile();
    void longLine();
    void noFile_data();
    void noFile();

private:
    QString write(const QByteArray &content);

    QTemporaryDir myFolder;
};

QString tst_SourceLines::write(const QByteArray &content)
{
    const QString name = myFolder.filePath(u"a.xml"_s);
    return writeFile(name, content) ? name : QString();
}

void tst_SourceLines::lines_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("lines");

    const auto encoded = [](QStringConverter::Encoding encoding, QStringConverter::Flags flags, const QString &text) {
        return QByteArray(QStringEncoder(encoding, flags)(text));
    };
    const QString text = u"<ä>\n日</ä>"_s;
    const QStringList expected { u"<ä>"_s, u"日</ä>"_s };
    QTest::newRow("line feeds") << QByteArray("a\nb\n") << QStringList { u"a"_s, u"b"_s };
    QTest::newRow("carriage returns") << QByteArray("a\rb\r") << QStringList { u"a"_s, u"b"_s };
    QTest::newRow("both") << QByteArray("a\r\nb\r\n") << QStringList { u"a"_s, u"b"_s };
    QTest::newRow("empty lines") << QByteArray("\n\r\n\r\ra") << QStringList { u""_s, u""_s, u""_s, u""_s, u"a"_s };
    QTest::newRow("no end of the line") << QByteArray("a\nb") << QStringList { u"a"_s, u"b"_s };
    QTest::newRow("nothing") << QByteArray() << QStringList();
    QTest::newRow("UTF-8") << text.toUtf8() << expected;
    QTest::newRow("UTF-8 with a mark") << "\xef\xbb\xbf" + text.toUtf8() << expected;
    QTest::newRow("UTF-16") << encoded(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom, text) << expected;
    QTest::newRow("UTF-16 without a mark")
            << encoded(QStringConverter::Utf16BE, QStringConverter::Flag::Default, text) << expected;
    QTest::newRow("UTF-32") << encoded(QStringConverter::Utf32BE, QStringConverter::Flag::WriteBom, text) << expected;
    QTest::newRow("ISO-8859-1") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?>\n<\xe4>")
                                << QStringList { u"<?xml version='1.0' encoding='ISO-8859-1'?>"_s, u"<ä>"_s };
    QTest::newRow("unknown encoding") << QByteArray("<?xml version='1.0' encoding='klingon'?>\na") << QStringList();
}

void tst_SourceLines::lines()
{
    QFETCH(QByteArray, content);
    SourceLines file(write(content));
    QStringList lines;
    for (QString line = file.line(1); !line.isNull(); line = file.line(lines.size() + 1))
        lines += line;
    QTEST(lines, "lines");
}

void tst_SourceLines::anyOrder()
{
    SourceLines file(write("a\nb\nc\n"));
    QCOMPARE(file.line(3), u"c"_s);
    QCOMPARE(file.line(1), u"a"_s);
    QCOMPARE(file.line(1), u"a"_s);
    QCOMPARE(file.line(2), u"b"_s);
    QVERIFY(file.line(4).isNull());
    QCOMPARE(file.line(2), u"b"_s);
}

// The file is read in pieces of 64 KiB.
void tst_SourceLines::endsBetweenPieces()
{
    for (int length = 65530; length < 65540; ++length) {
        const QByteArray first(length, 'x');
        SourceLines file(write(first + "\r\nb\n"));
        QCOMPARE(file.line(1), QString::fromLatin1(first));
        QCOMPARE(file.line(2), u"b"_s);
    }
}

void tst_SourceLines::longFile()
{
    QByteArray content;
    for (int i = 1; i <= 30000; ++i)
        content += QByteArray(i % 17, 'x') + QByteArray::number(i) + "\r\n";
    SourceLines file(write(content));
    for (int i = 1; i <= 30000; ++i)
        QCOMPARE(file.line(i), QString(i % 17, u'x') + QString::number(i));
    QVERIFY(file.line(30001).isNull());
}

void tst_SourceLines::longLine()
{
    SourceLines file(write("a\n" + QByteArray(500000, 'x') + "\n" + QByteArray(2000000, 'y') + "\nb\n"));
    QCOMPARE(file.line(2).size(), 500000);
    QVERIFY(file.line(3).isNull());
    QCOMPARE(file.line(1), u"a"_s);
}

void tst_SourceLines::noFile_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing") << myFolder.filePath(u"missing"_s);
    QTest::newRow("the standard input") << u"-"_s;
    QTest::newRow("folder") << myFolder.path();
    QTest::newRow("pipe") << myFolder.filePath(u"pipe"_s);
}

void tst_SourceLines::noFile()
{
    QFETCH(QString, name);
    ::mkfifo(myFolder.filePath(u"pipe"_s).toUtf8().constData(), 0600);
    const MessageLog log;
    QVERIFY(SourceLines(name).line(1).isNull());
    QCOMPARE(log.lines(), QStringList());
}

QTEST_GUILESS_MAIN(tst_SourceLines)
#include "tst_SourceLines.moc"
