#include <RVProductBase/RVArticleVariantsList.h>

#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

RVArticleVariants variants(const QString &text)
{
    return RVArticleVariants::createFromKTX(text);
}

}

class tst_RVArticleVariantsList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void containsBoxStyle_data();
    void containsBoxStyle();
};

void tst_RVArticleVariantsList::construction()
{
    RVArticleVariantsList list;
    QVERIFY(list.isEmpty());
    list += variants(u"a:1"_s);
    const RVArticleVariantsList copy = list;
    list.clear();
    QCOMPARE(copy.size(), 1);
    QVERIFY(std::has_virtual_destructor_v<RVArticleVariantsList>);
    QVERIFY((std::is_convertible_v<RVArticleVariantsList *, QList<RVArticleVariants> *>));
}

void tst_RVArticleVariantsList::containsBoxStyle_data()
{
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<bool>("contains");
    const QStringList styles = { u"boxstyle:wood,coverphoto:yes"_s, u"boxstyle:linen"_s };
    QTest::newRow("whole element") << styles << u"boxstyle:linen"_s << true;
    QTest::newRow("part of an element") << styles << u"coverphoto:yes"_s << true;
    QTest::newRow("spread over two elements") << styles << u"boxstyle:linen,coverphoto:yes"_s << false;
    QTest::newRow("other value") << styles << u"boxstyle:tin"_s << false;
    QTest::newRow("more than any element") << styles << u"boxstyle:wood,coverphoto:yes,alcolor:red"_s << false;
    QTest::newRow("nothing asked for") << styles << QString() << true;
    QTest::newRow("empty list") << QStringList() << u"boxstyle:wood"_s << false;
    QTest::newRow("empty list, nothing asked for") << QStringList() << QString() << false;
}

void tst_RVArticleVariantsList::containsBoxStyle()
{
    QFETCH(QStringList, list);
    QFETCH(QString, asked);
    RVArticleVariantsList tested;
    for (const QString &text : list)
        tested += variants(text);
    QTEST(tested.containsBoxStyle(variants(asked)), "contains");
}

QTEST_APPLESS_MAIN(tst_RVArticleVariantsList)
#include "tst_RVArticleVariantsList.moc"
