#include <RVCore/RVRegularExpression.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVRegularExpression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches();
    void hasNoOptions();
    void keepsBrokenPatterns();
};

void tst_RVRegularExpression::matches()
{
    const RVRegularExpression expression(u"(b+)c"_s);
    QCOMPARE(expression.match(u"aabbc"_s).captured(1), u"bb"_s);
    QVERIFY(!expression.match(u"aabb"_s).hasMatch());
    QCOMPARE(expression.pattern(), u"(b+)c"_s);
}

void tst_RVRegularExpression::hasNoOptions()
{
    const RVRegularExpression expression(u"(b+)c"_s);
    QVERIFY(!expression.match(u"BC"_s).hasMatch());
    QCOMPARE(expression.patternOptions(), QRegularExpression::NoPatternOption);
}

void tst_RVRegularExpression::keepsBrokenPatterns()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QVERIFY(!RVRegularExpression(u"(b"_s).isValid());
}

QTEST_APPLESS_MAIN(tst_RVRegularExpression)
#include "tst_RVRegularExpression.moc"
