#include <OptionValueModel.h>

#include <QAbstractItemModelTester>
#include <QDomDocument>
#include <QPixmap>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RVConfiguredArticleVariant option(const QString &attributes)
{
    QDomDocument document;
    document.setContent("<form key='c' "_L1 + attributes + "/>"_L1);
    return RVConfiguredArticleVariant(document.documentElement());
}

const QStringList OPTIONS {
    u"value='red' value_name='Rot' color='#ff0000'"_s,
    u"value='none'"_s,
    u"value='a&lt;b>' value_name='&lt;b>A&lt;/b>'"_s,
    u"value='red' value_name='Rot, noch einmal'"_s,
};

}

class tst_OptionValueModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows();
    void data_data();
    void data();
    void swatches();
    void rowOf_data();
    void rowOf();

private:
    static RVConfiguredArticleVariantList options();
};

RVConfiguredArticleVariantList tst_OptionValueModel::options()
{
    RVConfiguredArticleVariantList result;
    for (const QString &attributes : OPTIONS)
        result += option(attributes);
    return result;
}

void tst_OptionValueModel::rows()
{
    OptionValueModel model(options(), nullptr);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(model.rowCount(model.index(0)), 0);
    QCOMPARE(model.option(1).value(), u"none"_s);
    for (const int row : { -1, 4 })
        QVERIFY(!model.option(row).isValid());
    QVERIFY(!model.data(QModelIndex()).isValid());
    QVERIFY(!model.data(model.index(0), Qt::EditRole).isValid());
}

void tst_OptionValueModel::data_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");

    QTest::newRow("name") << 0 << u"Rot"_s << u"c:red"_s;
    QTest::newRow("without name") << 1 << u"none"_s << u"c:none"_s;
    QTest::newRow("markup") << 2 << u"<b>A</b>"_s << u"<p>c:a&lt;b&gt;</p>"_s;
}

void tst_OptionValueModel::data()
{
    const OptionValueModel model(options(), nullptr);
    QFETCH(int, row);
    QTEST(model.index(row).data().toString(), "text");
    QTEST(model.index(row).data(Qt::ToolTipRole).toString(), "toolTip");
}

void tst_OptionValueModel::swatches()
{
    const OptionValueModel model(options(), nullptr);
    const QImage swatch = model.index(0).data(Qt::DecorationRole).value<QPixmap>().toImage();
    QCOMPARE(swatch.pixelColor(swatch.rect().center()), QColor(0xff, 0, 0));
    QCOMPARE(swatch.size(), QSize(16, 16));
    const QColor frame(0x80, 0x80, 0x80); // white ones need it
    for (int i = 0; i < 16; ++i) {
        for (const QPoint &place : { QPoint(i, 0), QPoint(i, 15), QPoint(0, i), QPoint(15, i) })
            QCOMPARE(swatch.pixelColor(place), frame);
    }
    for (const QPoint &place : { QPoint(1, 1), QPoint(14, 14) })
        QCOMPARE(swatch.pixelColor(place), QColor(0xff, 0, 0));
    QVERIFY(!model.index(1).data(Qt::DecorationRole).isValid());
}

void tst_OptionValueModel::rowOf_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("row");

    QTest::newRow("there") << u"none"_s << 1;
    QTest::newRow("twice") << u"red"_s << 0;
    QTest::newRow("another letter case") << u"None"_s << -1;
    QTest::newRow("nothing") << QString() << -1;
}

void tst_OptionValueModel::rowOf()
{
    QFETCH(QString, value);
    QTEST(OptionValueModel(options(), nullptr).rowOf(value), "row");
}

QTEST_MAIN(tst_OptionValueModel)
#include "tst_OptionValueModel.moc"
