#ifndef ATTRIBUTETEST_H
#define ATTRIBUTETEST_H

#include "ListDifference.h"

#include <RVTemplateClasses/RVEnumToStringTable.h>

#include <QDomDocument>
#include <QTest>

#include <algorithm>
#include <future>
#include <type_traits>

/// One value of the keyword table of an attribute class. The first keyword encodes it.
struct KeywordRow
{
    qint64 value;
    QStringList keywords;
};

/// The result of the function on another thread.
template<typename Function>
auto onAnotherThread(Function function)
{
    return std::async(std::launch::async, function).get();
}

/// An attribute whose isValid() returns the opposite.
template<typename Attribute>
class LyingAttribute : public Attribute
{
public:
    using Attribute::Attribute;
    bool isValid() const override { return !Attribute::isValid(); }
};

/// Checks the keyword table of an attribute class against rows that are written out.
template<typename Attribute>
class KeywordTableTest
{
    using Enum = std::decay_t<decltype(std::declval<Attribute>().value())>;

public:
    /// Most classes assign the defaults of their table; others leave those of a new one.
    enum Defaults { Assigned, Left };

    KeywordTableTest(const QList<KeywordRow> &rows, const QString &defaultKeyword, qint64 defaultValue,
                     Defaults defaults = Assigned)
        : myRows(rows),
          myDefaultKeyword(defaultKeyword),
          myDefaultValue(defaultValue),
          myDefaults(defaults)
    { }

    /// Checks the table; call it from a test function.
    void check() const
    {
        QStringList allKeywords;
        QList<qint64> allValues;
        for (const KeywordRow &row : myRows) {
            checkRow(row);
            for (const QString &keyword : row.keywords)
                allKeywords += keyword.toLower();
            allValues += row.value;
        }
        QCOMPARE(
                listDifference(u"the test of the class"_s, sorted(allKeywords), sorted(Attribute().allKnownKeywords())),
                QString());
        QList<qint64> knownValues;
        for (const Enum value : Attribute().allKnownEnumValues())
            knownValues += qint64(value);
        QCOMPARE(sorted(knownValues), sorted(allValues));
        const auto table = [] { return Attribute().enumToStringTable(); };
        QCOMPARE(onAnotherThread(table), table());
        checkDefaults();
        checkChangedDefaults();
    }

private:
    void checkRow(const KeywordRow &row) const
    {
        const Attribute attribute { Enum(row.value) };
        QCOMPARE(attribute.encode(), row.keywords.first());
        for (const QString &keyword : row.keywords) {
            QCOMPARE(qint64(Attribute(keyword).value()), row.value);
            QCOMPARE(qint64(Attribute(keyword.toUpper()).value()), row.value);
            QCOMPARE(qint64(Attribute(QString(u' ' + keyword.toLower() + u'\t')).value()), row.value);
        }
        QStringList aliases;
        for (const QString &keyword : row.keywords)
            aliases += keyword.toLower();
        QCOMPARE(attribute.allPossibleKeywordsOneElement(), sorted(aliases));
    }

    void checkDefaults() const
    {
        QCOMPARE(qint64(Attribute(QStringLiteral("no such keyword")).value()), myDefaultValue);
        QCOMPARE(qint64(Attribute(QString()).value()), myDefaultValue);
        QCOMPARE(Attribute().enumToStringTable()->defaultKeyword, myDefaultKeyword);
        QCOMPARE(qint64(Attribute().enumToStringTable()->defaultValue), myDefaultValue);
        QCOMPARE(Attribute(Enum(-1)).encode(), myDefaultKeyword);
        QCOMPARE(Attribute().encodeCSV(), myDefaultKeyword);
        QCOMPARE(qint64(Attribute().value()), 0);
    }

    void checkChangedDefaults() const
    {
        RVEnumToStringTable<Enum> table;
        table.defaultKeyword = QStringLiteral("changed");
        table.defaultValue = Enum(0x40);
        Attribute().fillTable(&table);
        QCOMPARE(table.defaultKeyword, myDefaults == Assigned ? myDefaultKeyword : QStringLiteral("changed"));
        QCOMPARE(qint64(table.defaultValue), myDefaults == Assigned ? myDefaultValue : 0x40);
    }

    template<typename List>
    static List sorted(List list)
    {
        std::sort(list.begin(), list.end());
        return list;
    }

    QList<KeywordRow> myRows;
    QString myDefaultKeyword;
    qint64 myDefaultValue;
    Defaults myDefaults;
};

/// The child elements as "name=text", sorted.
inline QStringList childTexts(const QDomElement &parent)
{
    QStringList result;
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        result += child.tagName() + u'=' + child.text();
    result.sort();
    return result;
}

template<typename T>
QString debugText(const T &value)
{
    QString text;
    QDebug(&text) << value;
    return text;
}

#endif
