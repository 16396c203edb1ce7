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
    void isWholeAfterAMove();
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

void tst_RVRegularExpression::isWholeAfterAMove()
{
    RVRegularExpression first(u"(b+)c"_s);
    const RVRegularExpression taken = std::move(first);
    QCOMPARE(taken.match(u"aabbc"_s).captured(1), u"bb"_s);
    QCOMPARE(first.match(u"aabbc"_s).hasMatch(), first.pattern() == taken.pattern());
    RVRegularExpression second(u"d"_s);
    second = std::move(first);
    QVERIFY(second.match(u"bc"_s).hasMatch());
    QCOMPARE(first.match(u"bc"_s).hasMatch(), first.pattern() == taken.pattern());
}

QTEST_APPLESS_MAIN(tst_RVRegularExpression)
#include "tst_RVRegularExpression.moc"
