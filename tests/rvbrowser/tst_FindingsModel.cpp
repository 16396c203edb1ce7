#include "FaultyProducts.h"
#include "ReadCatalogue.h"

#include <FaultPlace.h>
#include <FindingsModel.h>

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

/// The numbers of the findings that are shown.
QList<int> shown(const FindingsModel &model)
{
    QList<int> result;
    for (int row = 0; row < model.rowCount(); ++row)
        result += model.findingAt(row);
    return result;
}

}

class tst_FindingsModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cells();
    void otherRoles();
    void sorts_data();
    void sorts();
    void sortsEqualNumbers();
    void sortsPlacesOfALine();
    void filters_data();
    void filters();
    void staysAsItWas();
    void nothing();
    void isAModel();
    void manyFindings();
    void faultPlaces_data();
    void faultPlaces();
    void countsOfProducts();
    void keepsFixes();
};

void tst_FindingsModel::cells()
{
    FindingsModel model;
    model.setCatalogue(readCatalogue(FAULTY_PRODUCTS));
    QCOMPARE(model.rowCount(), 5);
    const auto cell = [&model](int row, int column) { return model.index(row, column).data().toString(); };
    QCOMPARE(cell(0, FINDING_SEVERITY), u"Error"_s);
    QCOMPARE(cell(0, FINDING_PRODUCT), u"DUN10"_s);
    QCOMPARE(cell(0, FINDING_TEXT), u"\"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?"_s);
    QCOMPARE(cell(0, FINDING_PLACE), u"2:70"_s); // the attribute and not the product
    QCOMPARE(cell(0, FINDING_RULE), u"keyword-unknown"_s);
    QCOMPARE(model.product(3), 3);
    QCOMPARE(model.count(RVCatalogueSeverity::Error), 3);
    QCOMPARE(model.count(RVCatalogueSeverity::Warning), 1);
    QCOMPARE(model.count(RVCatalogueSeverity::Note), 1);
}

void tst_FindingsModel::otherRoles()
{
    FindingsModel model;
    QStringList titles;
    for (int column = 0; column < model.columnCount(); ++column)
        titles += model.headerData(column, Qt::Horizontal).toString();
    QCOMPARE(titles, (QStringList { u"Severity"_s, u"Product"_s, u"Finding"_s, u"Place"_s, u"Rule"_s }));
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    model.setCatalogue(readCatalogue(FAULTY_PRODUCTS));
    for (int column = 0; column < model.columnCount(); ++column) {
        const QIcon icon = model.index(0, column).data(Qt::DecorationRole).value<QIcon>();
        QCOMPARE(icon.isNull(), column != FINDING_SEVERITY);
        QVERIFY(Qt::mightBeRichText(model.index(0, column).data(Qt::ToolTipRole).toString()));
        QVERIFY(!model.index(0, column).data(Qt::EditRole).isValid());
    }
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    QCOMPARE(model.columnCount(model.index(0, 0)), 0);
    QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
}

void tst_FindingsModel::sorts_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QList<int>>("up");
    QTest::addColumn<QList<int>>("down");

    QTest::newRow("as found") << -1 << QList<int> { 0, 1, 2, 3, 4 } << QList<int> { 0, 1, 2, 3, 4 };
    QTest::newRow("severity") << int(FINDING_SEVERITY) << QList<int> { 0, 2, 4, 3, 1 } << QList<int> { 1, 3, 0, 2, 4 };
    QTest::newRow("product") << int(FINDING_PRODUCT) << QList<int> { 2, 3, 4, 1, 0 } << QList<int> { 0, 1, 2, 3, 4 };
    QTest::newRow("place") << int(FINDING_PLACE) << QList<int> { 0, 1, 2, 3, 4 } << QList<int> { 4, 3, 2, 1, 0 };
    QTest::newRow("rule") << int(FINDING_RULE) << QList<int> { 1, 0, 2, 4, 3 } << QList<int> { 3, 4, 0, 2, 1 };
    QTest::newRow("no such column") << int(FINDING_COLUMN_COUNT) << QList<int> { 0, 1, 2, 3, 4 }
                                    << QList<int> { 0, 1, 2, 3, 4 };
}

void tst_FindingsModel::sorts()
{
    QFETCH(int, column);
    FindingsModel model;
    model.setCatalogue(readCatalogue(FAULTY_PRODUCTS));
    model.sort(column, Qt::AscendingOrder);
    QTEST(shown(model), "up");
    model.sort(column, Qt::DescendingOrder);
    QTEST(shown(model), "down");
}

// Zeros in front make no other number, but the order is always the same.
void tst_FindingsModel::sortsEqualNumbers()
{
    QByteArray content;
    for (const char *type : { "T1", "T0001", "T01", "T00001", "T001", "T0002" })
        content += "<product type='" + QByteArray(type) + "' article_id='1' cover_type='x'/>";
    FindingsModel model;
    model.setCatalogue(readCatalogue("<p>" + content + "</p>"));
    model.setFilter({ QString(), RVCatalogueRule::find(u"keyword-unknown"_s), {} });
    model.sort(FINDING_PRODUCT, Qt::AscendingOrder);
    QStringList types;
    for (int row = 0; row < model.rowCount(); ++row)
        types += model.index(row, FINDING_PRODUCT).data().toString();
    QCOMPARE(types, (QStringList { u"T00001"_s, u"T0001"_s, u"T001"_s, u"T01"_s, u"T1"_s, u"T0002"_s }));
}

// Lines before columns.
void tst_FindingsModel::sortsPlacesOfALine()
{
    FindingsModel model;
    model.setCatalogue(readCatalogue("<p><product type='A' article_id='1' cover_type='x' page_binding='y'/>\n"
                                     "<product type='B' article_id='2' cover_type='x'/></p>"));
    model.setFilter({ QString(), RVCatalogueRule::find(u"keyword-unknown"_s), {} });
    model.sort(FINDING_PLACE, Qt::DescendingOrder);
    QStringList places;
    for (int row = 0; row < model.rowCount(); ++row)
        places += model.index(row, FINDING_PLACE).data().toString();
    QCOMPARE(places, (QStringList { u"2:34"_s, u"1:52"_s, u"1:37"_s }));
}

void tst_FindingsModel::filters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QList<RVCatalogueSeverity>>("hidden");
    QTest::addColumn<QList<int>>("findings");

    using Severities = QList<RVCatalogueSeverity>;
    QTest::newRow("all") << QString() << QString() << Severities() << QList<int> { 0, 1, 2, 3, 4 };
    QTest::newRow("blanks") << u"  "_s << QString() << Severities() << QList<int> { 0, 1, 2, 3, 4 };
    QTest::newRow("product, letter case") << u"dun2"_s << QString() << Severities() << QList<int> { 2, 3, 4 };
    QTest::newRow("text") << u"did you mean"_s << QString() << Severities() << QList<int> { 0, 2 };
    QTest::newRow("rule as text") << u"legacy"_s << QString() << Severities() << QList<int> { 1 };
    QTest::newRow("words of several columns") << u"option DUN2"_s << QString() << Severities() << QList<int> { 4 };
    QTest::newRow("rule") << QString() << u"keyword-unknown"_s << Severities() << QList<int> { 0, 2 };
    QTest::newRow("severity") << QString() << QString() << Severities { RVCatalogueSeverity::Error }
                              << QList<int> { 1, 3 };
    QTest::newRow("no severity") << QString() << QString()
                                 << Severities { RVCatalogueSeverity::Error, RVCatalogueSeverity::Warning,
                                                 RVCatalogueSeverity::Note }
                                 << QList<int>();
    QTest::newRow("everything") << u"dun10"_s << u"keyword-unknown"_s << Severities { RVCatalogueSeverity::Note }
                                << QList<int> { 0 };
    QTest::newRow("nothing") << u"no such text"_s << QString() << Severities() << QList<int>();
}

void tst_FindingsModel::filters()
{
    QFETCH(QString, text);
    QFETCH(QString, rule);
    QFETCH(QList<RVCatalogueSeverity>, hidden);
    FindingsModel model;
    model.setCatalogue(readCatalogue(FAULTY_PRODUCTS));
    model.setFilter({ text, RVCatalogueRule::find(rule), hidden });
    QTEST(shown(model), "findings");
    QCOMPARE(model.findingCount(), 5);
}

void tst_FindingsModel::staysAsItWas()
{
    FindingsModel model;
    model.setCatalogue(readCatalogue(FAULTY_PRODUCTS));
    model.sort(FINDING_PLACE, Qt::DescendingOrder);
    model.setFilter({ u"dun2"_s, RVCatalogueRule(), {} });
    QCOMPARE(shown(model), (QList<int> { 4, 3, 2 }));
    QCOMPARE(model.rowOf(3), 1);
    QCOMPARE(model.rowOf(0), -1);
    model.setCatalogue(readCatalogue(QByteArray(FAULTY_PRODUCTS).replace("spirall", "spiral")));
    QCOMPARE(shown(model), (QList<int> { 3, 2 }));
}

void tst_FindingsModel::nothing()
{
    FindingsModel model;
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.findingAt(0), -1);
    QCOMPARE(model.product(0), -1);
    QCOMPARE(model.count(RVCatalogueSeverity::Error), 0);
    model.sort(FINDING_TEXT);
    model.setFilter({ u"x"_s, RVCatalogueRule(), {} });
    model.setCatalogue(nullptr);
    QCOMPARE(model.findingCount(), 0);
}

void tst_FindingsModel::isAModel()
{
    FindingsModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy begun(&model, &QAbstractItemModel::modelAboutToBeReset);
    const QSignalSpy ended(&model, &QAbstractItemModel::modelReset);
    model.setCatalogue(readCatalogue(FAULTY_PRODUCTS));
    model.sort(FINDING_TEXT);
    model.setFilter({ u"dun2"_s, RVCatalogueRule(), {} });
    model.setFilter({});
    model.setCatalogue(nullptr);
    QCOMPARE(begun.size(), 5);
    QCOMPARE(ended.size(), 5);
}

// Texts with numbers of their own, as none of them is shared.
void tst_FindingsModel::manyFindings()
{
    constexpr int count = 100000;
    QByteArray content("<products>\n");
    for (int i = 0; i < count; ++i)
        content += "<product type='T" + QByteArray::number(i) + "' article_id='" + QByteArray::number(i + 1)
                + "' cover_type='x" + QByteArray::number(i) + "'/>\n";
    FindingsModel model;
    model.setCatalogue(readCatalogue(content + "</products>"));
    QVERIFY(model.findingCount() >= count);
    const RVCatalogueRule rule = RVCatalogueRule::find(u"keyword-unknown"_s);
    model.setFilter({ u"t9"_s, rule, {} });
    QCOMPARE(model.rowCount(), 11111);
    model.sort(FINDING_PRODUCT, Qt::DescendingOrder);
    QCOMPARE(model.index(0, FINDING_PRODUCT).data().toString(), u"T99999"_s);
    QCOMPARE(model.index(10000, FINDING_PRODUCT).data().toString(), u"T9999"_s);
    model.sort(FINDING_TEXT);
    QVERIFY2(model.index(1, FINDING_TEXT).data().toString().startsWith("\"x90\""_L1),
             qPrintable(model.index(1, FINDING_TEXT).data().toString()));
}

void tst_FindingsModel::faultPlaces_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("finding");
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("element");

    const QByteArray sample = FAULTY_PRODUCTS;
    QTest::newRow("attribute") << sample << 0 << u"cover_type"_s << QString();
    QTest::newRow("note") << sample << 1 << u"space_magnitude"_s << QString();
    QTest::newRow("one of several attributes") << sample << 3 << u"page_step"_s << QString();
    QTest::newRow("element below") << sample << 4 << QString() << u"forms"_s;
    const QByteArray wrong = "<p><product cover_type='x' type='A' article_id='1' page_binding='y'/></p>";
    QTest::newRow("first attribute") << wrong << 0 << u"cover_type"_s << QString();
    QTest::newRow("the same rule again") << wrong << 1 << u"page_binding"_s << QString();
    QTest::newRow("second element of a name")
            << QByteArray("<p><product type='A' article_id='1'><forms/><composition/><forms/></product></p>") << 0
            << QString() << u"forms"_s;
}

void tst_FindingsModel::faultPlaces()
{
    QFETCH(QByteArray, content);
    QFETCH(int, finding);
    const CataloguePointer catalogue = readCatalogue(content);
    const RVCatalogueFinding &found = catalogue->findings().at(finding);
    const FaultPlace place = FaultPlace::of(found, catalogue->product(int(found.product())), catalogue->check());
    QTEST(place.attribute, "attribute");
    QTEST(place.element, "element");
    const CataloguePointer sample = readCatalogue(FAULTY_PRODUCTS);
    const FaultPlace other = FaultPlace::of(found, sample->product(2), sample->check()); // which has no fault
    QCOMPARE(other.attribute, QString());
    QCOMPARE(other.element, QString());
}

void tst_FindingsModel::countsOfProducts()
{
    const CataloguePointer catalogue = readCatalogue(FAULTY_PRODUCTS);
    QList<int> counts;
    for (int i = 0; i < catalogue->size(); ++i)
        counts += catalogue->at(i).findings.count();
    QCOMPARE(counts, (QList<int> { 1, 1, 0, 3 }));
    QCOMPARE(catalogue->at(0).findings.worst(), RVCatalogueSeverity::Error);
    QCOMPARE(catalogue->at(1).findings.worst(), RVCatalogueSeverity::Note);
    QCOMPARE(catalogue->at(3).findings.worst(), RVCatalogueSeverity::Error);
}

void tst_FindingsModel::keepsFixes()
{
    const QList<RVCatalogueFinding> findings = readCatalogue(FAULTY_PRODUCTS)->findings();
    QStringList texts;
    for (const RVCatalogueFinding &finding : findings)
        texts += finding.fix().isEmpty() ? u"-"_s : finding.fix().constFirst().text;
    QCOMPARE(texts, (QStringList { u"hardcover"_s, u"600cm2"_s, u"spiral"_s, u"-"_s, u"-"_s }));
}

QTEST_MAIN(tst_FindingsModel)
#include "tst_FindingsModel.moc"
