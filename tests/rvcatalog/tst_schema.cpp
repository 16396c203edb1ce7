#include "ListDifference.h"
#include "ProgramRun.h"
#include "RVCatalogue/SampleProduct.h"
#include "TestFolder.h"
#include "WrittenFile.h"

#include <RVCatalogueAttribute.h>
#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QDomDocument>
#include <QFile>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

class tst_schema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sample();
    void allowed_data();
    void allowed();
    void refused_data();
    void refused();
    void keywords_data();
    void keywords();

private:
    bool isValid(const QByteArray &file);
    static QStringList findings(QByteArray file);

    TestFolder myFolder;
};

/// Runs xmllint, which distinguishes a file that the schema refuses from one that it cannot check.
bool tst_schema::isValid(const QByteArray &content)
{
    constexpr int valid = 0;
    constexpr int refused = 3;
    if (!myFolder.write(u"c.xml"_s, content))
        qFatal("cannot write");
    const ProgramRun run = runProgram(myFolder.path(), QStringLiteral(XMLLINT),
                                      { u"--noout"_s, u"--schema"_s, QStringLiteral(SCHEMA), u"c.xml"_s });
    if (run.exitCode != valid && run.exitCode != refused)
        QTest::qFail(qPrintable(run.messages), __FILE__, __LINE__);
    return run.exitCode == valid;
}

QStringList tst_schema::findings(QByteArray file)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&buffer);
    reader.setCheck(RVCatalogueCheck());
    QList<RVCatalogueFinding> found;
    for (const RVCatalogueProduct &product : reader)
        found += product.findings();
    found += reader.findings();
    QStringList result;
    for (const RVCatalogueFinding &finding : found)
        result += finding.rule().name() + ": "_L1 + finding.text();
    return reader.hasError() ? result + QStringList { reader.errorString() } : result;
}

void tst_schema::sample()
{
    QVERIFY(isValid(readFile(QStringLiteral(SAMPLES "/products.xml"))));
}

void tst_schema::allowed_data()
{
    QTest::addColumn<QByteArray>("file");

    QTest::newRow("as it is") << QByteArray(CLEAN_CATALOGUE);
    QTest::newRow("groups of any name") << changed("<products>", "<products><family name='x'><a><b>")
                                                   .replace("</products>", "</b></a>text</family></products>");
    QTest::newRow("unknown elements and attributes")
            << changed("<forms>", "<x y='z'>text</x>text<forms x='y'><z/>").replace("<barcodes ", "<barcodes x='y' ");
    QTest::newRow("keyword list in any case") << changed("orientation='portrait'", "orientation='Portrait , SQUARE'");
    QTest::newRow("booleans") << changed("preselected='yes'", "preselected='TRUE'").replace("='true'", "='On'");
    QTest::newRow("colours") << changed("color='red'", "color='Light Blue'").replace("#1a1a1a", "#fff");
    QTest::newRow("no colour") << changed("color='red'", "color=''");
    QTest::newRow("numbers") << changed("base_width='0.8'", "base_width=' 8e-1 '").replace("pages='26'", "pages='+26'");
    QTest::newRow("photo box") << changed("<product type='FOT1'", "<product photo_box='1' type='FOT1'");
}

void tst_schema::allowed()
{
    QFETCH(QByteArray, file);
    QVERIFY(!file.isEmpty());
    QVERIFY(isValid(file));
    QCOMPARE(findings(file), QStringList());
}

void tst_schema::refused_data()
{
    QTest::addColumn<QByteArray>("file");

    const QList<std::pair<QByteArray, QByteArray>> changes = {
        { "type='DUN9' ", "" },
        { "type='DUN9'", "type=''" },
        { "type='FOT1'", "type='DUN9'" },
        { "article_id='2'", "" },
        { "article_id='2'", "article_id='0'" },
        { "article_id='2'", "article_id='1'" },
        { "article_id='2'", "article_id='2147483648'" },
        { "paper_type='fotopaper'", "paper_type=''" },
        { "orientation='portrait'", "orientation='portrait,,square'" },
        { "shipping_group='2'", "shipping_group='none'" },
        { "shipping_group='2'", "shipping_group=''" },
        { "pages='26'", "pages='many'" },
        { "pages='26'", "pages='-26'" },
        { "max_pages='154'", "max_pages='154.0'" },
        { "page_step='4'", "page_step='-4'" },
        { "pieces='1'", "pieces='0'" },
        { "pages='26'", "pages='26' photo_box='ja'" },
        { "<barcodes units='mm'>", "<barcodes units='MM'>" },
        { "position_x='62'", "position_x='62,0'" },
        { "position_x='12' position_y='290.5'", "position_y='low'" },
        { "width='38' height='10' pageNr='2'/>", "width='0' height='10' pageNr='2'/>" },
        { "height='10' pageNr='2'/>", "height='-1' pageNr='2'/>" },
        { "pageNr='2'/>", "pageNr='-1'/>" },
        { "pageNr='2'/>", "pageNr='two'/>" },
        { "image='a.png'", "image=''" },
        { "<composition units='cm'>", "<composition units='km'>" },
        { "packages_per_block='2'", "packages_per_block='1.5'" },
        { "packages_per_block='2'", "packages_per_block='-2'" },
        { "base_width='0.8'", "base_width='-0.8'" },
        { "block_width='0.1'", "block_width='x'" },
        { "additional_width='0.05'", "additional_width=''" },
        { "key='alcolor' value='black'", "value='black'" },
        { "value='red'", "" },
        { "value='red'", "value=''" },
        { "color='red'", "color='#12345'" },
        { "color='red'", "color='red;'" },
        { "preselected='yes'", "preselected='2'" },
        { "not_accountable='true'", "not_accountable=''" },
    };
    for (const auto &[from, to] : changes) {
        QTest::addRow("%s for %s", to.constData(), from.constData()) << changed(from, to);
        QTest::addRow("%s for %s, in a group", to.constData(), from.constData())
                << changed(from, to)
                           .replace("<products>", "<products><a><b>")
                           .replace("</products>", "</b></a></products>");
    }
}

void tst_schema::refused()
{
    QFETCH(QByteArray, file);
    QVERIFY(!file.isEmpty());
    QVERIFY(!isValid(file));
    QCOMPARE(findings(file).size(), 1);
}

void tst_schema::keywords_data()
{
    QTest::addColumn<QString>("attribute");

    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::ofProducts())
        QTest::newRow(attribute.name().data()) << attribute.name().toString();
}

// The schema offers the keywords that "check" accepts without a finding: the main keywords, and words for those that
// are numbers.
void tst_schema::keywords()
{
    QFETCH(QString, attribute);
    QFile file(QStringLiteral(SCHEMA));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDomDocument document;
    QVERIFY(document.setContent(&file));
    QStringList offered;
    const QDomElement root = document.documentElement();
    for (QDomElement type = root.firstChildElement(u"xs:simpleType"_s); !type.isNull();
         type = type.nextSiblingElement(u"xs:simpleType"_s)) {
        if (type.attribute(u"name"_s) != attribute)
            continue;
        const QDomNodeList values = type.elementsByTagName(u"xs:enumeration"_s);
        for (int i = 0; i < values.size(); ++i)
            offered += values.at(i).toElement().attribute(u"value"_s);
    }

    QStringList expected;
    for (const RVCatalogueAttributeValue &value : RVCatalogueAttribute::find(attribute).values()) {
        const bool isNumber = std::all_of(value.keyword.begin(), value.keyword.end(),
                                          [](QChar letter) { return letter.isDigit(); });
        if (isNumber && !value.aliases.isEmpty())
            expected += value.aliases;
        else
            expected += value.keyword;
    }
    QCOMPARE(listDifference(u"libs/RVCatalogue/catalogue.xsd"_s, offered, expected), QString());
    for (const QString &keyword : offered) {
        const QString product = u"<product type='A' article_id='1' %1='%2'/>"_s.arg(attribute, keyword);
        QCOMPARE(findings(product.toUtf8()).filter(u"keyword-"_s), QStringList());
    }
}

QTEST_MAIN(tst_schema)
#include "tst_schema.moc"
