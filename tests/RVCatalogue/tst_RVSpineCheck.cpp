#include "CheckedCatalogue.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A bound product of 26 to 154 pages, which are 32 packages, with widths in millimetres.
QByteArray spine(const QByteArray &attributes, const QByteArray &unit = "mm", const QByteArray &maxPages = "154")
{
    return "<p><product type='A' article_id='1' page_binding='glue' pages='26' max_pages='" + maxPages
            + "' page_step='4'><composition units='" + unit + "'><spine " + attributes
            + "/></composition></product></p>";
}

}

class tst_RVSpineCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_data();
    void parts();
    void width_data();
    void width();
};

void tst_RVSpineCheck::parts_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    const QString noBase = u"<spine>: spine-base-missing"_s;
    const QString noPackages = u"<spine>: spine-packages-missing"_s;
    QTest::newRow("all") << spine("base_width='8' block_width='1' packages_per_block='2' additional_width='1'")
                         << QStringList();
    QTest::newRow("base alone") << spine("base_width='8'") << QStringList();
    QTest::newRow("no base beside blocks") << spine("block_width='1' packages_per_block='2'") << QStringList { noBase };
    QTest::newRow("no base beside sides") << spine("additional_width='1'") << QStringList { noBase };
    QTest::newRow("base of 0") << spine("base_width='0' additional_width='1'") << QStringList();
    QTest::newRow("no base beside sides of 0")
            << spine("additional_width='0'") << QStringList { u"<spine>: spine-missing"_s };
    QTest::newRow("no base beside a negative width")
            << spine("additional_width='-1'") << QStringList { u"additional_width='-1': spine-negative"_s };
    QTest::newRow("base is misspelt") << spine("base_widht='8' additional_width='1'")
                                      << QStringList { u"base_widht='8': attribute-misspelt"_s };
    QTest::newRow("base is no number") << spine("base_width='x' additional_width='1'")
                                       << QStringList { u"base_width='x': number-invalid"_s };
    QTest::newRow("sides are no number") << spine("additional_width='x'")
                                         << QStringList { u"additional_width='x': number-invalid"_s };
    QTest::newRow("no packages") << spine("base_width='8' block_width='1'") << QStringList { noPackages };
    QTest::newRow("0 packages") << spine("base_width='8' block_width='1' packages_per_block='0'") << QStringList();
    QTest::newRow("no packages beside blocks of 0") << spine("base_width='8' block_width='0'") << QStringList();
    QTest::newRow("packages are misspelt") << spine("base_width='8' block_width='1' packages_per_blok='2'")
                                           << QStringList { u"packages_per_blok='2': attribute-misspelt"_s };
    QTest::newRow("packages are no number") << spine("base_width='8' block_width='1' packages_per_block='x'")
                                            << QStringList { u"packages_per_block='x': number-invalid"_s };
    QTest::newRow("no base and no packages") << spine("block_width='1'") << QStringList { noBase, noPackages };
}

void tst_RVSpineCheck::parts()
{
    QFETCH(QByteArray, file);
    QTEST(CheckedCatalogue(file).rules(), "findings");
}

void tst_RVSpineCheck::width_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    QTest::newRow("as wide as allowed") << spine("base_width='80'") << QStringList();
    QTest::newRow("wider") << spine("base_width='80.1'") << QStringList { u"base_width='80.1': spine-too-wide"_s };
    QTest::newRow("another unit") << spine("base_width='9'", "cm")
                                  << QStringList { u"base_width='9': spine-too-wide"_s };
    QTest::newRow("too wide by its base beside packages without a width")
            << spine("base_width='9' packages_per_block='1'", "cm")
            << QStringList { u"base_width='9': spine-too-wide"_s };
    QTest::newRow("in tenths of a millimetre") << spine("base_width='800'", "0.1mm") << QStringList();
    QTest::newRow("as wide as allowed at the highest count")
            << spine("base_width='8' block_width='2' packages_per_block='1' additional_width='4'") << QStringList();
    QTest::newRow("too wide by its blocks")
            << spine("base_width='8' block_width='2.1' packages_per_block='1' additional_width='4'")
            << QStringList { u"block_width='2.1': spine-too-wide"_s };
    QTest::newRow("too wide by its sides") << spine("base_width='8' additional_width='40'")
                                           << QStringList { u"additional_width='40': spine-too-wide"_s };
    QTest::newRow("too wide by two sides") << spine("base_width='50' additional_width='26'")
                                           << QStringList { u"additional_width='26': spine-too-wide"_s };
    QTest::newRow("too wide by its base")
            << spine("base_width='50' additional_width='24'") << QStringList { u"base_width='50': spine-too-wide"_s };
    QTest::newRow("too wide by its base as much as by its sides")
            << spine("base_width='50' additional_width='25'") << QStringList { u"base_width='50': spine-too-wide"_s };
    QTest::newRow("in an unknown unit") << spine("base_width='900'", "metre")
                                        << QStringList { u"units='metre': unit-unknown"_s };
    QTest::newRow("page counts are invalid")
            << spine("base_width='90'", "mm", "20") << QStringList { u"max_pages='20': page-counts-reversed"_s };
    QTest::newRow("too many page counts")
            << spine("base_width='8' block_width='1' packages_per_block='1'", "mm", "15400")
            << QStringList { u"max_pages='15400': page-counts-excessive"_s };
    QTest::newRow("unit of the widths stands at the spine")
            << spine("units='0.1mm' base_width='90'").replace(" units='mm'", "")
            << QStringList { u"units='0.1mm': attribute-misplaced"_s };
}

void tst_RVSpineCheck::width()
{
    QFETCH(QByteArray, file);
    QTEST(CheckedCatalogue(file).rules(), "findings");
}

QTEST_MAIN(tst_RVSpineCheck)
#include "tst_RVSpineCheck.moc"
