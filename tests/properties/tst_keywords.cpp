// The quick look-ups of keyword tables give what the rules of the tables say, letter by letter and for every text.
#include "RandomText.h"

#include <RVCatalogue/RVCatalogueAttributes.h>
#include <RVTemplateClasses/RVEnumToStringTable.h>

#include <QHash>
#include <QTest>

#include <tuple>
#include <type_traits>

using namespace Qt::StringLiterals;

enum NarrowEnum : qint32 { };
enum WideEnum : qint64 { };

namespace {

/// The rules, one line each.
template<typename E>
struct Rules
{
    void insert(const QString &keyword, E value)
    {
        values.insert(keyword.toLower(), value);
        if (!encodings.contains(value))
            encodings.insert(value, keyword);
    }

    E decode(const QString &keyword, E fallback) const { return values.value(keyword.trimmed().toLower(), fallback); }

    E decodeCSV(const QString &text) const
    {
        qint64 result = 0;
        for (const QString &piece : text.split(u','))
            result |= qint64(decode(piece, defaultValue));
        return E(result);
    }

    QString encode(E value) const { return encodings.value(value, defaultKeyword); }

    QList<E> bits(E value) const
    {
        QList<E> result;
        for (int bit = 0; qint64(value) > 0 && bit < 63; ++bit) {
            if ((qint64(value) & qint64(1) << bit) != 0)
                result += E(qint64(1) << bit);
        }
        return result;
    }

    QStringList encodeAsList(E value) const
    {
        QStringList result;
        for (const E bit : bits(value))
            result += encode(bit);
        return result;
    }

    QString encodeCSV(E value) const
    {
        const QStringList keywords = encodeAsList(value);
        return keywords.isEmpty() ? defaultKeyword : keywords.join(u", "_s);
    }

    QHash<QString, E> values;
    QHash<E, QString> encodings;
    QString defaultKeyword;
    E defaultValue = E(0);
};

template<typename E>
Rules<E> rulesOf(const RVEnumToStringTable<E> &table)
{
    Rules<E> rules;
    for (const QString &keyword : table.allKnownKeywords())
        rules.values.insert(keyword, table.decode(keyword, E(-260570)));
    for (const E value : table.allKnownEnumValues())
        rules.encodings.insert(value, table.encode(value));
    rules.defaultKeyword = table.defaultKeyword;
    rules.defaultValue = table.defaultValue;
    return rules;
}

/// Keyword lists as people, old catalogues and broken files have them.
class KeywordLists
{
public:
    explicit KeywordLists(const QStringList &keywords)
        : myKeywords(keywords),
          mySpaces(RandomText::whiteSpace() + QStringList { u" "_s, u"  "_s, u""_s, u""_s }),
          myOddLetters(RandomText::oddLetters())
    { }

    QString next()
    {
        QStringList pieces;
        for (int i = myRandom.below(4); i >= 0; --i)
            pieces += myRandom.from(mySpaces) + keyword() + myRandom.from(mySpaces);
        return pieces.join(u',');
    }

private:
    QString keyword()
    {
        QString result = myRandom.inAnyCase(myRandom.from(myKeywords));
        const int at = myRandom.below(int(result.size()) + 1);
        switch (myRandom.below(12)) {
        case 0: // a letter too many
            result.insert(at, myRandom.from(myOddLetters));
            break;
        case 1: // an odd letter in the place of another
            result.replace(at, 1, myRandom.from(myOddLetters));
            break;
        case 2: // one that only looks like the one it should be
            result.replace(u'k', u'\x212a').replace(u's', u'ſ').replace(u'i', u'\x130');
            break;
        case 3: // its neighbours in the table of characters
            if (at < result.size())
                result[at] = QChar(char16_t(result.at(at).unicode() ^ 0x20));
            break;
        case 4: // beyond ASCII, with the same low bits
            if (at < result.size())
                result[at] = QChar(char16_t(result.at(at).unicode() + 0x80 * (1 + myRandom.below(0x1ff))));
            break;
        case 5:
            result.chop(1);
            break;
        case 6:
            result.insert(at, myRandom.from(mySpaces));
            break;
        default:
            break;
        }
        return result;
    }

    RandomText myRandom;
    QStringList myKeywords;
    QStringList mySpaces;
    QStringList myOddLetters;
};

template<typename E>
E randomValue(RandomText *random)
{
    // Few bits as a rule, and sometimes all of them.
    quint64 bits = 0;
    for (int i = random->below(5); i > 0; --i)
        bits |= quint64(1) << random->below(int(sizeof(E)) * 8);
    return E(random->oneIn(10) ? random->number() : bits);
}

template<typename E>
void compareDecoding(const RVEnumToStringTable<E> &table, const Rules<E> &rules, const QStringList &keywords, int count)
{
    KeywordLists lists(keywords);
    for (int i = 0; i < count; ++i) {
        const QString text = lists.next();
        QVERIFY2(table.decodeCSV(text) == rules.decodeCSV(text), text.toUtf8().toPercentEncoding().constData());
        QVERIFY2(table.decode(text, E(-3)) == rules.decode(text, E(-3)), text.toUtf8().toPercentEncoding().constData());
    }
}

template<typename E>
void compareEncoding(const RVEnumToStringTable<E> &table, const Rules<E> &rules, int count)
{
    RandomText random;
    for (int i = 0; i < count; ++i) {
        const E value = randomValue<E>(&random);
        QCOMPARE(table.encode(value), rules.encode(value));
        QCOMPARE(table.encodeCSV(value), rules.encodeCSV(value));
        QCOMPARE(table.encodeCSV(value).isNull(), rules.encodeCSV(value).isNull());
        QCOMPARE(table.encodeAsList(value), rules.encodeAsList(value));
        QCOMPARE(table.splitToBitsSorted(value), rules.bits(value));
    }
}

/// Adds random keywords to a table and to its rules, and returns them.
template<typename E>
QStringList fill(RVEnumToStringTable<E> *table, Rules<E> *rules, RandomText *random)
{
    const QStringList letters = QStringList { u"a"_s, u"b"_s, u"k"_s, u"S"_s, u"Z"_s, u"_"_s, u"@"_s,
                                              u"["_s, u"`"_s, u"{"_s, u"9"_s, u" "_s, u"ä"_s, u"É"_s }
            + RandomText::oddLetters().mid(0, 3);
    QStringList keywords { u""_s };
    for (int i = random->below(60); i > 0; --i) {
        // Mostly ASCII, mostly short, and with lengths on both sides of what the index takes.
        const QStringList alphabet = random->oneIn(5) ? letters : letters.mid(0, 11);
        QString keyword = random->joined(alphabet, random->oneIn(4) ? 40 : 9);
        if (random->oneIn(6))
            keyword = random->from(keywords) + keyword;
        const E value = randomValue<E>(random);
        table->insert(keyword, value);
        rules->insert(keyword, value);
        keywords += keyword;
    }
    if (random->oneIn(2)) {
        table->defaultKeyword = rules->defaultKeyword = u"none"_s;
        table->defaultValue = rules->defaultValue = randomValue<E>(random);
    }
    return keywords;
}

template<typename E>
void compareRandomTable(quint32 seed)
{
    RandomText random(seed);
    RVEnumToStringTable<E> table;
    Rules<E> rules;
    QStringList keywords = fill(&table, &rules, &random);
    compareDecoding(table, rules, keywords, 30);
    compareEncoding(table, rules, 20);
    table.optimize();
    compareDecoding(table, rules, keywords, 300);
    compareEncoding(table, rules, 100);

    // A keyword that comes later is found too.
    table.insert(u"Later"_s, E(1));
    rules.insert(u"Later"_s, E(1));
    keywords += u"later"_s;
    compareDecoding(table, rules, keywords, 50);
    compareEncoding(table, rules, 20);
}

template<typename Attribute>
void compareAttribute()
{
    const Attribute attribute;
    const auto &table = *attribute.enumToStringTable();
    const auto rules = rulesOf(table);
    compareDecoding(table, rules, table.allKnownKeywords(), 20000);
    compareEncoding(table, rules, 3000);
}

}

class tst_keywords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void corpusIsOdd();
    void randomTables_data();
    void randomTables();
    void attributes_data();
    void attributes();
};

// The random texts that the other tests are made of.
void tst_keywords::corpusIsOdd()
{
    QCOMPARE(RandomText::whiteSpace().size(), 25);
    const QStringList odd = RandomText::oddLetters();
    QVERIFY(odd.contains(u"\x212a"_s)); // the Kelvin sign, "k" in lower case
    QVERIFY(odd.contains(u"\x130"_s)); // "i" with a dot above, two letters in lower case
    QVERIFY(odd.contains(QString(QChar(0xd801)))); // half a pair
}

void tst_keywords::randomTables_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 60; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_keywords::randomTables()
{
    QFETCH(quint32, seed);
    compareRandomTable<NarrowEnum>(seed);
    compareRandomTable<WideEnum>(seed);
}

void tst_keywords::attributes_data()
{
    using Comparison = void (*)();
    QTest::addColumn<Comparison>("compare");
    const auto add = [](const auto &row) {
        using Attribute = typename std::decay_t<decltype(row)>::Class;
        QTest::newRow(row.name.data()) << Comparison(compareAttribute<Attribute>);
    };
    std::apply([&](const auto &...rows) { (add(rows), ...); }, RV_CATALOGUE_ATTRIBUTES);
}

void tst_keywords::attributes()
{
    using Comparison = void (*)();
    QFETCH(const Comparison, compare);
    compare();
}

QTEST_MAIN(tst_keywords)
#include "tst_keywords.moc"
