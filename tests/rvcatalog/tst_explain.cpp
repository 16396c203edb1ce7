#include "ProgramRun.h"
#include "WrittenFile.h"

#include <RVCatalogueRule.h>

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

ProgramRun explain(const QStringList &arguments)
{
    return runProgram(QString(), QStringLiteral(RVCATALOG), QStringList { u"explain"_s } + arguments);
}

}

class tst_explain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void list();
    void text();
    void severalRules();
    void markdown();
    void page();
    void wrongUsage_data();
    void wrongUsage();
};

void tst_explain::list()
{
    const ProgramRun run = explain({});
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
    const QStringList lines = run.output.split(u'\n');
    QCOMPARE(lines.size(), RVCatalogueRule::all().size() + 1);
    qsizetype longest = 0;
    for (const RVCatalogueRule rule : RVCatalogueRule::all())
        longest = std::max(longest, rule.name().size());
    for (int i = 0; i < RVCatalogueRule::all().size(); ++i) {
        const RVCatalogueRule rule = RVCatalogueRule::all().at(i);
        QCOMPARE(lines.at(i),
                 rule.name().toString().leftJustified(longest + 2)
                         + rvSeverityName(rule.severity()).toString().leftJustified(9) + rule.reason());
    }
}

void tst_explain::text()
{
    const ProgramRun run = explain({ u"type-missing"_s });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.output, uR"(type-missing (error)

A product without a type cannot be ordered, because projects find their product by its type; give it a type.

Broken:

    <products>
      <product article_id="1001"/>
    </products>

Mended:

    <products>
      <product type="DUN9" article_id="1001"/>
    </products>

To silence it for an element and everything in it, write in front of that element:

    <!-- rvcatalog: ignore type-missing -->

To leave it out once:

    rvcatalog check --disable type-missing CATALOGUE.xml

To leave it out always, write in rvcatalog.toml:

    [rules]
    type-missing = "off"
)"_s);
    QCOMPARE(run.exitCode, 0);
}

void tst_explain::severalRules()
{
    const ProgramRun run = explain({ u"spine-missing"_s, u"keyword-legacy"_s });
    QVERIFY(run.output.startsWith("spine-missing (error)\n\n"_L1));
    QVERIFY(run.output.contains("\n\nkeyword-legacy (note)\n\n"_L1));
    QCOMPARE(run.exitCode, 0);
}

void tst_explain::markdown()
{
    const ProgramRun run = explain({ u"--format"_s, u"markdown"_s, u"keyword-legacy"_s });
    QVERIFY(run.output.startsWith("## keyword-legacy\n\nSeverity: note\n\nAn alias is still read"_L1));
    QVERIFY(run.output.contains("\n```xml\n<products>\n"_L1));
    QVERIFY(run.output.endsWith("\n```toml\n[rules]\nkeyword-legacy = \"off\"\n```\n"_L1));
    QCOMPARE(run.output.count("\n```"_L1), 10);
    QCOMPARE(run.exitCode, 0);
}

// The page is the output of "rvcatalog explain --format markdown".
void tst_explain::page()
{
    const QString written = QString::fromUtf8(readFile(QStringLiteral(DOCS "/rules.md")));
    QCOMPARE(written, explain({ u"--format=markdown"_s }).output);
    QVERIFY(written.startsWith("# "_L1));
    for (const RVCatalogueRule rule : RVCatalogueRule::all())
        QVERIFY2(written.contains("\n## "_L1 + rule.name() + u'\n'), rule.name().data());
}

void tst_explain::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    const QString hint = u"\nTry \"rvcatalog explain --help\".\n"_s;
    QTest::newRow("misspelt rule") << QStringList {
        u"keyword-unkown"_s
    } << u"rvcatalog: there is no rule \"keyword-unkown\"; did you mean \"keyword-unknown\"?"_s + hint;
    QTest::newRow("misspelt second rule")
            << QStringList { u"type-missing"_s, u"type-dublicate"_s }
            << u"rvcatalog: there is no rule \"type-dublicate\"; did you mean \"type-duplicate\"?"_s + hint;
    QTest::newRow("rule similar to none")
            << QStringList { u"foo"_s }
            << u"rvcatalog: there is no rule \"foo\"; \"rvcatalog explain\" lists them"_s + hint;
    QTest::newRow("rule with four letters missing")
            << QStringList { u"type-mis"_s }
            << u"rvcatalog: there is no rule \"type-mis\"; \"rvcatalog explain\" lists them"_s + hint;
    QTest::newRow("format") << QStringList { u"--format=html"_s }
                            << u"rvcatalog: there is no format \"html\"; there are: text, markdown"_s + hint;
}

void tst_explain::wrongUsage()
{
    QFETCH(QStringList, arguments);
    const ProgramRun run = explain(arguments);
    QCOMPARE(run.output, QString());
    QTEST(run.messages, "message");
    QCOMPARE(run.exitCode, 2);
}

QTEST_GUILESS_MAIN(tst_explain)
#include "tst_explain.moc"
