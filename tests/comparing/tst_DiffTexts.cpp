#include <ComparedProduct.h>
#include <DiffTexts.h>
#include <PrintableText.h>

#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(RVChangeKind)

class tst_DiffTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printable_data();
    void printable();
    void kinds_data();
    void kinds();
    void products_data();
    void products();
    void articles();
    void summaries_data();
    void summaries();
};

void tst_DiffTexts::printable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");

    QTest::newRow("plain") << u"Großes Buch"_s << u"Großes Buch"_s;
    QTest::newRow("lines") << u"a\nb\tc"_s << u"a b c"_s;
    QTest::newRow("control of a terminal") << u"a\033[31mb"_s << u"a [31mb"_s;
    QTest::newRow("beyond 16 bits") << u"a\U0001F4D6b"_s << u"a\U0001F4D6b"_s;
    QTest::newRow("empty") << QString() << QString();
}

void tst_DiffTexts::printable()
{
    QFETCH(QString, text);
    QTEST(printableText(text), "line");
}

void tst_DiffTexts::kinds_data()
{
    QTest::addColumn<RVChangeKind>("kind");
    QTest::addColumn<QString>("text");

    QTest::newRow("added") << RVChangeKind::Added << u"+ added"_s;
    QTest::newRow("removed") << RVChangeKind::Removed << u"- removed"_s;
    QTest::newRow("changed") << RVChangeKind::Changed << u"~ changed"_s;
    QTest::newRow("none") << RVChangeKind::None << u"~ equal"_s;
}

void tst_DiffTexts::kinds()
{
    QFETCH(RVChangeKind, kind);
    QTEST(DiffTexts::marker(kind) + u' ' + DiffTexts::kind(kind), "text");
    ComparedProduct product;
    product.kind = kind;
    QTEST(DiffTexts::marker(product.kind) + u' ' + DiffTexts::kind(product), "text");
}

void tst_DiffTexts::products_data()
{
    QTest::addColumn<QString>("oldType");
    QTest::addColumn<QString>("newType");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");

    QTest::newRow("changed") << u"A"_s << u"A"_s << u"Album"_s << u"changed"_s << u"A \"Album\""_s;
    QTest::newRow("without a name") << u"A"_s << u"A"_s << QString() << u"changed"_s << u"A"_s;
    QTest::newRow("renamed") << u"A"_s << u"B"_s << u"Album"_s << u"renamed"_s << u"A -> B \"Album\""_s;
    QTest::newRow("name of two lines") << u"A"_s << u"A"_s << u"a\nb"_s << u"changed"_s << u"A \"a b\""_s;
}

void tst_DiffTexts::products()
{
    QFETCH(QString, oldType);
    QFETCH(QString, newType);
    ComparedProduct product;
    product.kind = RVChangeKind::Changed;
    product.oldType = RVProductType(oldType);
    product.newType = RVProductType(newType);
    product.isRenamed = oldType != newType;
    QFETCH(QString, name);
    product.name = name;
    QTEST(DiffTexts::kind(product), "kind");
    QTEST(DiffTexts::product(product), "text");
}

void tst_DiffTexts::articles()
{
    QCOMPARE(DiffTexts::article(RVArticleId(1018)), u"article 1018"_s);
    QCOMPARE(DiffTexts::article(RVArticleId()), u"no article"_s);
}

void tst_DiffTexts::summaries_data()
{
    QTest::addColumn<int>("renamed");
    QTest::addColumn<QString>("text");

    QTest::newRow("none renamed") << 0 << u"3 added, 1 removed, 7 changed, 40 equal"_s;
    QTest::newRow("renamed") << 2 << u"3 added, 1 removed, 7 changed (2 renamed), 40 equal"_s;
}

void tst_DiffTexts::summaries()
{
    QFETCH(int, renamed);
    RVComparisonCounts counts;
    counts.added = 3;
    counts.removed = 1;
    counts.changed = 7;
    counts.renamed = renamed;
    counts.equal = 40;
    QTEST(DiffTexts::summary(counts), "text");
}

QTEST_GUILESS_MAIN(tst_DiffTexts)
#include "tst_DiffTexts.moc"
