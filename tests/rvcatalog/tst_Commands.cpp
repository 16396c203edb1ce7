#include "BrokenCatalogue.h"
#include "CommandRun.h"
#include "WrittenFile.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

CommandRun run(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    return CommandRun(arguments, input);
}

const char CATALOGUE[] = "<products>\n"
                         "<product type='DUN9' article_id='1' pages='26' max_pages='154' page_step='4'>"
                         "<composition><spine packages_per_block='2' base_width='8' block_width='1'/></composition>"
                         "<forms><form key='alcolor' key_name='Farbe' value='black' value_name='Schwarz'/></forms>"
                         "</product>\n"
                         "<product type='VIR1' article_id='2' pages='13'/>\n"
                         "</products>\n";

/// A catalogue whose products need more than one batch, so that several threads write.
QByteArray manyProducts(int count)
{
    QByteArray file = "<p>";
    for (int i = 0; i < count; ++i)
        file += "<product type='T" + QByteArray::number(i) + "' pages='26' cover_type='hard'/>";
    return file + "</p>";
}

/// Output and messages of a command as they stand in one file, which they share as those of a process may.
QByteArray inOneFile(const QStringList &arguments, const QByteArray &input)
{
    using File = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;
    const File in(std::tmpfile(), &std::fclose);
    const File out(std::tmpfile(), &std::fclose);
    const File messages(::fdopen(::dup(::fileno(out.get())), "w"), &std::fclose);
    std::fwrite(input.constData(), 1, std::size_t(input.size()), in.get());
    std::rewind(in.get());
    runCommand(arguments, { in.get(), out.get(), messages.get() });
    std::fflush(messages.get());
    std::rewind(out.get());
    QByteArray result(10000, '\0');
    result.resize(qsizetype(std::fread(result.data(), 1, std::size_t(result.size()), out.get())));
    return result;
}

/// A product with this number of page counts.
QByteArray withCounts(int count)
{
    return "<p>\n<product type='X' pages='2' page_step='1' max_pages='" + QByteArray::number(count + 1)
            + "'><composition><spine base_width='5'/></composition></product></p>";
}

}

class tst_Commands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void exitCodes_data();
    void exitCodes();
    void standardInput_data();
    void standardInput();
    void onlyOneStandardInput();
    void brokenStandardInput_data();
    void brokenStandardInput();
    void noFile_data();
    void noFile();
    void nothingIsLeftOfARun();
    void hundredThousandCounts();
    void oneCountTooMany();
    void jsonOfManyProducts();
    void jsonOfTheLastProduct();
    void severalTexts();
    void outputInFrontOfMessages_data();
    void outputInFrontOfMessages();

private:
    void write(const QString &name, const QByteArray &content);

    QTemporaryDir myFolder;
};

void tst_Commands::write(const QString &name, const QByteArray &content)
{
    QVERIFY(writeFile(myFolder.filePath(name), content));
}

void tst_Commands::init()
{
    QVERIFY(QDir::setCurrent(myFolder.path()));
    write(u"c.xml"_s, CATALOGUE);
    write(u"p.xml"_s, "<project productname='DUN9' pages='30'/>");
}

void tst_Commands::exitCodes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<bool>("hasOutput");
    QTest::addColumn<bool>("hasMessages");

    QTest::newRow("nothing") << QStringList() << 2 << false << true;
    QTest::newRow("help of an unknown command") << QStringList { u"help"_s, u"sing"_s } << 2 << false << true;
    QTest::newRow("unknown command") << QStringList { u"sing"_s } << 2 << false << true;
    QTest::newRow("help") << QStringList { u"help"_s } << 0 << true << false;
    QTest::newRow("version") << QStringList { u"--version"_s } << 0 << true << false;
    QTest::newRow("help of a command") << QStringList { u"spine"_s, u"--help"_s } << 0 << true << false;
    QTest::newRow("no argument") << QStringList { u"spine"_s } << 2 << false << true;
    QTest::newRow("show") << QStringList { u"show"_s, u"c.xml"_s } << 0 << true << false;
    QTest::newRow("unknown rule") << QStringList { u"check"_s, u"c.xml"_s, u"--disable=foo"_s } << 2 << false << true;
    QTest::newRow("keywords") << QStringList { u"keywords"_s } << 0 << true << false;
    QTest::newRow("unknown keyword") << QStringList { u"decode"_s, u"orientation"_s, u"up"_s } << 1 << true << true;
    QTest::newRow("unknown type") << QStringList { u"spine"_s, u"c.xml"_s, u"Z"_s } << 1 << false << true;
}

void tst_Commands::exitCodes()
{
    QFETCH(QStringList, arguments);
    const CommandRun result = run(arguments);
    QTEST(result.exitCode, "exitCode");
    QTEST(!result.output.isEmpty(), "hasOutput");
    QTEST(!result.messages.isEmpty(), "hasMessages");
}

void tst_Commands::standardInput_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QStringList>("unnamed");

    QTest::newRow("show") << u"c.xml"_s << QStringList { u"show"_s, u"c.xml"_s } << QStringList { u"show"_s, u"-"_s };
    QTest::newRow("JSON") << u"c.xml"_s << QStringList { u"show"_s, u"--json"_s, u"c.xml"_s }
                          << QStringList { u"show"_s, u"--json"_s, u"-"_s };
    QTest::newRow("everything") << u"c.xml"_s << QStringList { u"show"_s, u"--long"_s, u"c.xml"_s, u"DUN9"_s }
                                << QStringList { u"show"_s, u"--long"_s, u"-"_s, u"DUN9"_s };
    QTest::newRow("spine") << u"c.xml"_s << QStringList { u"spine"_s, u"c.xml"_s, u"DUN9"_s }
                           << QStringList { u"spine"_s, u"-"_s, u"DUN9"_s };
    QTest::newRow("catalogue of an order") << u"c.xml"_s << QStringList { u"order"_s, u"c.xml"_s, u"p.xml"_s }
                                           << QStringList { u"order"_s, u"-"_s, u"p.xml"_s };
    QTest::newRow("project of an order") << u"p.xml"_s << QStringList { u"order"_s, u"c.xml"_s, u"p.xml"_s }
                                         << QStringList { u"order"_s, u"c.xml"_s, u"-"_s };
}

void tst_Commands::standardInput()
{
    QFETCH(QString, file);
    QFETCH(QStringList, named);
    QFETCH(QStringList, unnamed);
    const CommandRun ofFile = run(named);
    const CommandRun ofInput = run(unnamed, readFile(file));
    QCOMPARE(ofFile.exitCode, 0);
    QVERIFY(!ofFile.output.isEmpty());
    QCOMPARE(ofInput.messages, QString());
    // The place of a product names the file.
    QString output = ofInput.output;
    output.replace("\"file\":\"-\""_L1, "\"file\":\"c.xml\""_L1)
            .replace("Place           -:"_L1, "Place           c.xml:"_L1);
    QCOMPARE(output, ofFile.output);
    QCOMPARE(ofInput.exitCode, 0);
}

void tst_Commands::onlyOneStandardInput()
{
    const CommandRun result = run({ u"order"_s, u"-"_s, u"-"_s }, CATALOGUE);
    QCOMPARE(result.messages,
             u"rvcatalog: only one file can be the standard input\nTry \"rvcatalog order --help\".\n"_s);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void tst_Commands::brokenStandardInput_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("show") << QStringList { u"show"_s, u"-"_s };
    QTest::newRow("JSON") << QStringList { u"show"_s, u"--json"_s, u"-"_s };
    QTest::newRow("spine") << QStringList { u"spine"_s, u"-"_s, u"DUN9"_s };
    QTest::newRow("catalogue of an order") << QStringList { u"order"_s, u"-"_s, u"p.xml"_s };
    QTest::newRow("project of an order") << QStringList { u"order"_s, u"c.xml"_s, u"-"_s };
}

void tst_Commands::brokenStandardInput()
{
    QFETCH(QStringList, arguments);
    const CommandRun result = run(arguments);
    QCOMPARE(result.messages, u"-:1:1: the file is empty\n"_s);
    QCOMPARE(result.exitCode, 2);
}

void tst_Commands::noFile_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("show") << QStringList { u"show"_s, u"no.xml"_s };
    QTest::newRow("JSON") << QStringList { u"show"_s, u"--json"_s, u"no.xml"_s };
    QTest::newRow("spine") << QStringList { u"spine"_s, u"no.xml"_s, u"DUN9"_s };
    QTest::newRow("catalogue of an order") << QStringList { u"order"_s, u"no.xml"_s, u"p.xml"_s };
    QTest::newRow("project of an order") << QStringList { u"order"_s, u"c.xml"_s, u"no.xml"_s };
}

void tst_Commands::noFile()
{
    QFETCH(QStringList, arguments);
    const CommandRun result = run(arguments);
    QCOMPARE(result.messages, u"no.xml:1:1: cannot open the file: No such file or directory\n"_s);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 2);
}

void tst_Commands::nothingIsLeftOfARun()
{
    const QStringList arguments = { u"check"_s, u"--format=json"_s, u"c.xml"_s, u"no.xml"_s };
    const CommandRun first = run(arguments);
    QCOMPARE(first.exitCode, 2);
    const CommandRun second = run(arguments);
    QCOMPARE(second.output, first.output);
    QCOMPARE(second.messages, first.messages);
    QCOMPARE(second.exitCode, 2);
}

void tst_Commands::hundredThousandCounts()
{
    const CommandRun result = run({ u"spine"_s, u"-"_s, u"X"_s }, withCounts(100000));
    QCOMPARE(result.messages, QString());
    QCOMPARE(result.output.count(u'\n'), 100001);
    QCOMPARE(result.exitCode, 0);
}

void tst_Commands::oneCountTooMany()
{
    const CommandRun result = run({ u"spine"_s, u"-"_s, u"X"_s, u"--plot"_s, u"x.svg"_s }, withCounts(100001));
    QCOMPARE(result.messages,
             u"-:2:43: X has 100001 page counts, and no more than 100000 can be listed; set a larger page_step or a "
             "smaller max_pages\n"_s);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.exitCode, 1);
    QVERIFY(!QFile::exists(u"x.svg"_s));
}

void tst_Commands::jsonOfManyProducts()
{
    constexpr int count = 20000;
    const CommandRun result = run({ u"show"_s, u"--json"_s, u"-"_s }, manyProducts(count));
    QCOMPARE(result.messages, QString());
    QCOMPARE(result.exitCode, 0);
    QJsonParseError error;
    const QJsonArray products = QJsonDocument::fromJson(result.output.toUtf8(), &error).array();
    QCOMPARE(error.errorString(), u"no error occurred"_s);
    QCOMPARE(products.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(products.at(i)["type"_L1].toString(), u"T%1"_s.arg(i));
}

// The first batches have no shown product.
void tst_Commands::jsonOfTheLastProduct()
{
    const CommandRun result = run({ u"show"_s, u"--json"_s, u"--where"_s, u"type=T19999"_s, u"-"_s },
                                  manyProducts(20000));
    QJsonParseError error;
    const QJsonArray products = QJsonDocument::fromJson(result.output.toUtf8(), &error).array();
    QCOMPARE(error.errorString(), u"no error occurred"_s);
    QCOMPARE(products.size(), 1);
    QCOMPARE(products.at(0)["type"_L1].toString(), u"T19999"_s);
}

void tst_Commands::severalTexts()
{
    const CommandRun result = run({ u"decode"_s, u"page_alignment"_s, u"-"_s }, "left\nleft\n");
    QVERIFY2(result.output.startsWith("Value "_L1), qPrintable(result.output));
    QCOMPARE(result.output.count("\n\nValue "_L1), 1);
    QCOMPARE(result.exitCode, 0);
}

void tst_Commands::outputInFrontOfMessages_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("begin");

    const auto newRow = [](const char *name, const QStringList &arguments, const QByteArray &begin) {
        QTest::newRow(name) << arguments << begin;
    };
    newRow("mended catalogue", { u"check"_s, u"--fix"_s, u"-"_s }, MENDED_CATALOGUE);
    newRow("products", { u"show"_s, u"--json"_s, u"c.xml"_s, u"--where"_s, u"pages>1000"_s }, "[\n]\n");
    newRow("keywords", { u"decode"_s, u"--json"_s, u"page_alignment"_s, u"above"_s }, "[\n{");
    newRow("findings", { u"check"_s, u"--format=json"_s, u"no.xml"_s }, "{\"findings\":[");
}

void tst_Commands::outputInFrontOfMessages()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, begin);
    const QByteArray file = inOneFile(arguments, BROKEN_CATALOGUE);
    QVERIFY2(file.startsWith(begin), file.constData());
    QVERIFY2(file.size() > begin.size(), file.constData());
}

QTEST_MAIN(tst_Commands)
#include "tst_Commands.moc"
