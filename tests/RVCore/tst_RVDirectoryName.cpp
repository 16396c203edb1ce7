#include <RVCore/RVDirectoryName.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVDirectoryName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void combinationsHaveNoName();
};

void tst_RVDirectoryName::names_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("cliparts") << 2 << u"cliparts"_s;
    QTest::newRow("styles") << 4 << u"styles"_s;
    QTest::newRow("backgrounds") << 8 << u"backgrounds"_s;
    QTest::newRow("form parameters") << 16 << u"formparameters"_s;
    QTest::newRow("layouts") << 64 << u"layouts"_s;
    QTest::newRow("designs") << 65536 << u"designs"_s;
    QTest::newRow("templates") << 131072 << u"templates"_s;
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("two at once") << 6 << QString();
    QTest::newRow("unknown bit") << 32 << QString();
}

void tst_RVDirectoryName::names()
{
    QFETCH(int, value);
    QFETCH(QString, name);
    const RVDirectoryName directory { RVDirectoryNameEnum(value) };
    QCOMPARE(int(directory.value()), value);
    QCOMPARE(directory.name(), name);
    QCOMPARE(directory.name().isNull(), name.isNull());
}

void tst_RVDirectoryName::combinationsHaveNoName()
{
    for (int value = 0; value < 0x80000; ++value) {
        if (qPopulationCount(quint32(value)) != 1)
            QVERIFY(RVDirectoryName(RVDirectoryNameEnum(value)).name().isNull());
    }
}

QTEST_APPLESS_MAIN(tst_RVDirectoryName)
#include "tst_RVDirectoryName.moc"
