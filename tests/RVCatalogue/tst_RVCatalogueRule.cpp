#include <RVCatalogueRule.h>

#include <QList>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVCatalogueRule : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void all();
    void texts();
    void find();
    void severities_data();
    void severities();
    void explanation();
    void explanationAsMarkdown();
    void nullRule();
    void severityNames();
};

void tst_RVCatalogueRule::all()
{
    const QList<RVCatalogueRule> rules = RVCatalogueRule::all();
    QSet<QString> names;
    for (const RVCatalogueRule rule : rules)
        names.insert(rule.name());
    QCOMPARE(names.size(), rules.size());
    QCOMPARE(rules.first().name(), "products-missing"_L1);
    QCOMPARE(rules.last().name(), "suppression-unknown"_L1);
}

void tst_RVCatalogueRule::texts()
{
    static const QRegularExpression kebabCase(u"^[a-z]+(-[a-z]+)+$"_s);
    for (const RVCatalogueRule rule : RVCatalogueRule::all()) {
        QVERIFY2(kebabCase.match(rule.name()).hasMatch(), rule.name().data());
        QVERIFY2(rule.reason().endsWith(u'.'), rule.name().data());
        QVERIFY2(!rule.reason().contains(". "_L1), rule.name().data());
        QVERIFY2(!rule.example().isEmpty(), rule.name().data());
    }
    const RVCatalogueRule rule = RVCatalogueRule::find(u"article-id-missing");
    QCOMPARE(rule.reason(), u"Shop and production identify an article by its id; give the product an article id."_s);
    QCOMPARE(rule.example(), QByteArray("<products>\n  <product type=\"DUN9\"/>\n</products>\n"));
}

void tst_RVCatalogueRule::find()
{
    for (const RVCatalogueRule rule : RVCatalogueRule::all()) {
        QVERIFY(RVCatalogueRule::find(rule.name().toString()) == rule);
        QVERIFY(!rule.isNull());
    }
    QVERIFY(RVCatalogueRule::find(u"spine-missing") != RVCatalogueRule::find(u"spine-negative"));
    for (const QString &name : { u"no-such-rule"_s, u""_s, u"Spine-Missing"_s, u"spine"_s })
        QVERIFY2(RVCatalogueRule::find(name).isNull(), qPrintable(name));
}

void tst_RVCatalogueRule::severities_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<RVCatalogueSeverity>("severity");

    QTest::newRow("note") << u"keyword-legacy"_s << RVCatalogueSeverity::Note;
    QTest::newRow("warning") << u"option-default-missing"_s << RVCatalogueSeverity::Warning;
    QTest::newRow("error") << u"type-missing"_s << RVCatalogueSeverity::Error;
}

void tst_RVCatalogueRule::severities()
{
    QFETCH(QString, rule);
    QTEST(RVCatalogueRule::find(rule).severity(), "severity");
}

void tst_RVCatalogueRule::explanation()
{
    QCOMPARE(RVCatalogueRule::find(u"article-id-invalid").explanation(),
             uR"(An article id is a whole number above 0, and any other text is read as no id; write such a number.

Broken:

    <products>
      <product type="DUN9" article_id="10-01"/>
    </products>

Mended:

    <products>
      <product type="DUN9" article_id="1001"/>
    </products>

To silence it for an element and everything in it, write in front of that element:

    <!-- rvcatalog: ignore article-id-invalid -->

To leave it out once:

    rvcatalog check --disable article-id-invalid CATALOGUE.xml

To leave it out always, write in rvcatalog.toml:

    [rules]
    article-id-invalid = "off")"_s);
}

void tst_RVCatalogueRule::explanationAsMarkdown()
{
    QCOMPARE(RVCatalogueRule::find(u"article-id-invalid").explanationAsMarkdown(),
             uR"(An article id is a whole number above 0, and any other text is read as no id; write such a number.

Broken:

```xml
<products>
  <product type="DUN9" article_id="10-01"/>
</products>
```

Mended:

```xml
<products>
  <product type="DUN9" article_id="1001"/>
</products>
```

To silence it for an element and everything in it, write in front of that element:

```xml
<!-- rvcatalog: ignore article-id-invalid -->
```

To leave it out once:

```sh
rvcatalog check --disable article-id-invalid CATALOGUE.xml
```

To leave it out always, write in rvcatalog.toml:

```toml
[rules]
article-id-invalid = "off"
```)"_s);
}

void tst_RVCatalogueRule::nullRule()
{
    const RVCatalogueRule rule;
    QVERIFY(rule.isNull());
    QVERIFY(rule == RVCatalogueRule());
    QVERIFY(rule != RVCatalogueRule::find(u"type-missing"));
    QVERIFY(rule.name().isEmpty());
    QCOMPARE(rule.severity(), RVCatalogueSeverity::Note);
    QVERIFY(rule.reason().isEmpty());
    QVERIFY(rule.example().isEmpty());
    QVERIFY(rule.mendedExample().isEmpty());
    QVERIFY(rule.explanation().isEmpty());
    QVERIFY(rule.explanationAsMarkdown().isEmpty());
}

void tst_RVCatalogueRule::severityNames()
{
    QCOMPARE(rvSeverityName(RVCatalogueSeverity::Note), "note"_L1);
    QCOMPARE(rvSeverityName(RVCatalogueSeverity::Warning), "warning"_L1);
    QCOMPARE(rvSeverityName(RVCatalogueSeverity::Error), "error"_L1);
}

QTEST_GUILESS_MAIN(tst_RVCatalogueRule)
#include "tst_RVCatalogueRule.moc"
