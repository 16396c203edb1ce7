#include "CommandRun.h"
#include "ProgramRun.h"
#include "RVCatalogue/RandomCatalogue.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

CommandRun run(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    return CommandRun(arguments, input);
}

const QString SAMPLE_CATALOGUE = QString::fromUtf8(SAMPLES "/products.xml");
const QString SAMPLE_PROJECT = QString::fromUtf8(SAMPLES "/project.xml");

/// The reasons why this JSON does not fit a definition of the schema; empty if it fits.
QString validate(const QString &definition, const QByteArray &json)
{
    const ProgramRun run = runProgram(QString(), QStringLiteral(PYTHON),
                                      { QStringLiteral(VALIDATE), QStringLiteral(JSON_SCHEMA), definition }, json);
    const QString text = run.output + run.messages;
    return run.exitCode == 0 || !text.isEmpty() ? text : u"the validator failed"_s;
}

}

class tst_json_schema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isValid_data();
    void isValid();
    void isRefused_data();
    void isRefused();
    void randomCatalogues();
    void randomSpinesAndOrders();
    void sameValuesLookTheSame();
    void noDisplayNames();

private:
    QTemporaryDir myFolder;
};

void tst_json_schema::initTestCase()
{
    QVERIFY(QDir::setCurrent(myFolder.path()));
}

void tst_json_schema::isValid_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("input");

    QTest::newRow("show") << QStringList { u"show"_s, SAMPLE_CATALOGUE } << QString();
    QTest::newRow("show without products") << QStringList { u"show"_s, u"-"_s } << u"<p/>"_s;
    QTest::newRow("spine") << QStringList { u"spine"_s, SAMPLE_CATALOGUE, u"DUN9"_s } << QString();
    QTest::newRow("spine without a name") << QStringList { u"spine"_s, u"-"_s, u"A"_s }
                                          << u"<p><product type='A' pages='3'><composition><spine base_width='2'/>"
                                             "</composition></product></p>"_s;
    QTest::newRow("order") << QStringList { u"order"_s, SAMPLE_CATALOGUE, SAMPLE_PROJECT } << QString();
    QTest::newRow("order without a spine")
            << QStringList { u"order"_s, SAMPLE_CATALOGUE, u"-"_s } << u"<project productname='VIR1'/>"_s;
    QTest::newRow("order with problems") << QStringList { u"order"_s, SAMPLE_CATALOGUE, u"-"_s }
                                         << u"<project pages='2' variants='a:b'/>"_s;
    QTest::newRow("order of an unknown product")
            << QStringList { u"order"_s, SAMPLE_CATALOGUE, u"-"_s } << u"<project productname='NONE'/>"_s;
    QTest::newRow("keywords") << QStringList { u"keywords"_s } << QString();
    QTest::newRow("keywords of one attribute") << QStringList { u"keywords"_s, u"paper_type"_s } << QString();
    QTest::newRow("decode") << QStringList { u"decode"_s, u"cover_type"_s, u"hard, Leinen,"_s } << QString();
    QTest::newRow("decode lines") << QStringList { u"decode"_s, u"page_type"_s, u"-"_s } << u"left\n\nwrap,x\n"_s;
    QTest::newRow("decode an empty input") << QStringList { u"decode"_s, u"page_type"_s, u"-"_s } << QString();
}

void tst_json_schema::isValid()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, input);
    const CommandRun written = run(arguments + QStringList { u"--format=json"_s }, input.toUtf8());
    QVERIFY2(!written.output.isEmpty(), qPrintable(written.messages));
    QCOMPARE(validate(arguments.constFirst(), written.output.toUtf8()), QString());
}

// The schema is strict.
void tst_json_schema::isRefused_data()
{
    QTest::addColumn<QString>("definition");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");

    const auto row = [](const char *name, const QString &definition, const char *json, const QString &reason) {
        QTest::newRow(name) << definition << QByteArray(json) << reason;
    };
    row("no array", u"show"_s, "{}", u"/: {} is not of type 'array'"_s);
    row("a key is missing", u"decode"_s, R"([{"attribute":"a","keywords":[],"text":"","unknown":[],"value":0}])",
        u"/0: 'keyword' is a required property"_s);
    row("a key too many", u"decode"_s,
        R"([{"attribute":"a","keyword":null,"keywords":[],"name":"","text":"","unknown":[],"value":0}])",
        u"('name' was unexpected)"_s);
    row("an empty text for a missing one", u"decode"_s,
        R"([{"attribute":"a","keyword":"","keywords":[],"text":"","unknown":[],"value":0}])", u"/0/keyword: ''"_s);
    row("neither order nor problem", u"order"_s, R"({"order":null,"problems":[]})",
        u"is not valid under any of the given schemas"_s);
    row("a value as text", u"keywords"_s, R"([{"attribute":"a","of_products":"yes","values":[]}])",
        u"/0/of_products: 'yes' is not of type 'boolean'"_s);
}

void tst_json_schema::isRefused()
{
    QFETCH(QString, definition);
    QFETCH(QByteArray, json);
    QFETCH(QString, reason);
    const QString found = validate(definition, json);
    QVERIFY2(found.contains(reason), qPrintable(found));
}

void tst_json_schema::randomCatalogues()
{
    RandomCatalogue random(15);
    QString catalogue = u"<p><family name=''><family name='Groß &lt;'>"_s;
    for (int i = 0; i < 300; ++i)
        catalogue += random.product() + u'\n';
    const CommandRun written = run({ u"show"_s, u"--json"_s, u"-"_s },
                                   (catalogue + u"</family></family></p>"_s).toUtf8());
    QCOMPARE(QJsonDocument::fromJson(written.output.toUtf8()).array().size(), 300);
    QCOMPARE(validate(u"show"_s, written.output.toUtf8()), QString());
}

void tst_json_schema::randomSpinesAndOrders()
{
    RandomCatalogue random(16);
    QByteArrayList spines;
    QByteArrayList orders;
    QFile file(u"p.xml"_s);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<project productname='DUN9'/>");
    file.close();
    for (int i = 0; i < 500; ++i) {
        const QByteArray catalogue = u"<p>%1</p>"_s.arg(random.product()).toUtf8();
        const CommandRun spine = run({ u"spine"_s, u"--json"_s, u"-"_s, u"DUN9"_s }, catalogue);
        if (!spine.output.isEmpty() && spine.output.size() < 20000)
            spines += spine.output.toUtf8();
        orders += run({ u"order"_s, u"--json"_s, u"-"_s, u"p.xml"_s }, catalogue).output.toUtf8();
    }
    QVERIFY2(spines.size() > 3, qPrintable(QString::number(spines.size())));
    QVERIFY(std::count_if(orders.begin(), orders.end(),
                          [](const QByteArray &json) { return json.contains("\"problems\":[]"); })
            > 3);
    QCOMPARE(validate(u"spine..."_s, '[' + spines.join(',') + ']'), QString());
    QCOMPARE(validate(u"order..."_s, '[' + orders.join(',') + ']'), QString());
}

// The same key has the same value in every command.
void tst_json_schema::sameValuesLookTheSame()
{
    const auto json = [](const QStringList &arguments) {
        return QJsonDocument::fromJson(run(arguments + QStringList { u"--json"_s }).output.toUtf8());
    };
    const QJsonObject shown = json({ u"show"_s, SAMPLE_CATALOGUE, u"DUN9"_s }).array().at(0).toObject();
    const QJsonObject spine = json({ u"spine"_s, SAMPLE_CATALOGUE, u"DUN9"_s }).object();
    const QJsonObject order =
            json({ u"order"_s, SAMPLE_CATALOGUE, SAMPLE_PROJECT }).object().value("order"_L1).toObject();
    for (const QString &key : { u"type"_s, u"name"_s, u"place"_s, u"pages"_s })
        QCOMPARE(spine.value(key), shown.value(key));
    for (const QString &key : { u"type"_s, u"name"_s, u"place"_s })
        QCOMPARE(order.value(key), shown.value(key));
    const QJsonArray rows = spine.value("spine"_L1).toArray();
    QCOMPARE(rows.size(), 33);
    QCOMPARE(QJsonValue(QJsonArray { rows.at(0), rows.at(32) }), shown.value("spine"_L1));
    QCOMPARE(QJsonValue(QJsonArray { rows.at(2) }), order.value("spine"_L1));
    const QJsonArray offered = shown.value("options"_L1).toArray();
    const QJsonArray ordered = order.value("options"_L1).toArray();
    QCOMPARE(ordered.size(), 3);
    for (const QJsonValue &option : ordered)
        QVERIFY(offered.contains(option));
    const QJsonObject decoded = json({ u"decode"_s, u"cover_type"_s, u"hardcover"_s }).array().at(0).toObject();
    const QJsonObject cover = shown.value("cover_type"_L1).toObject();
    QCOMPARE(decoded.value("keywords"_L1), cover.value("keywords"_L1));
    QCOMPARE(decoded.value("value"_L1), cover.value("value"_L1));
}

// Programs must not depend on the language of the user.
void tst_json_schema::noDisplayNames()
{
    for (const QStringList &arguments :
         { QStringList { u"keywords"_s }, QStringList { u"decode"_s, u"page_binding"_s, u"glue"_s },
           QStringList { u"decode"_s, u"foto_paper_type"_s, u"1"_s } }) {
        const QString text = run(arguments).output;
        const QString json = run(arguments + QStringList { u"--json"_s }).output;
        for (const QString &name : { u"klassische Buchbindung"_s, u"Glänzend"_s, u"Digitaldruck"_s })
            QVERIFY2(!json.contains(name), qPrintable(json));
        QVERIFY(text.contains("klassische Buchbindung"_L1) || text.contains(u"Glänzend"_s));
    }
}

QTEST_MAIN(tst_json_schema)
#include "tst_json_schema.moc"
