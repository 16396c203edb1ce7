#include <RVCore/RVFontCreator.h>

#include <QFont>
#include <QGuiApplication>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVFontCreator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createsFonts_data();
    void createsFonts();
    void defaultFontFamily();
    void canMeasure();
};

void tst_RVFontCreator::createsFonts_data()
{
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<int>("result");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("usual") << 12 << 12;
    QTest::newRow("zero") << 0 << 1;
    QTest::newRow("negative") << -5 << 1;
}

void tst_RVFontCreator::createsFonts()
{
    QFETCH(int, pointSize);
    QTest::failOnWarning(QRegularExpression(u"."_s));
    const QFont font = RVFontCreator::instance()->createFont(u"DejaVu Serif"_s, pointSize);
    QCOMPARE(font.family(), u"DejaVu Serif"_s);
    QTEST(font.pointSize(), "result");
}

void tst_RVFontCreator::defaultFontFamily()
{
    const QFont previous = QGuiApplication::font();
    QGuiApplication::setFont(QFont(u"DejaVu Sans Mono"_s));
    QCOMPARE(RVFontCreator::instance()->defaultFontFamily(), u"DejaVu Sans Mono"_s);
    QGuiApplication::setFont(previous);
}

void tst_RVFontCreator::canMeasure()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QVERIFY(RVFontCreator::canMeasure());
    QT_WARNING_POP
}

QTEST_MAIN(tst_RVFontCreator)
#include "tst_RVFontCreator.moc"
