// No attribute is missing: neither in the list itself, nor in the descriptions of catalogues for people and for
// editors.
#include "ListDifference.h"
#include "WrittenFile.h"

#include <RVCatalogueAttribute.h>
#include <RVCatalogueAttributes.h>
#include <RVCatalogueReader.h>

#include <QDomDocument>
#include <QMetaType>
#include <QTest>

#include <algorithm>
#include <tuple>
#include <type_traits>

using namespace Qt::StringLiterals;

class tst_RVCatalogueAttributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyClassOfTheLibraries();
    void schema();
    void format();
    void conditions();
    void architecture();
    void displayNames();
    void sample_data();
    void sample();
};

namespace {

QString className(const QMetaType &type)
{
    return QString::fromLatin1(type.name());
}

QStringList classNames()
{
    return std::apply(
            [](const auto &...rows) {
                return QStringList { className(
                        QMetaType::fromType<typename std::decay_t<decltype(rows)>::Class>())... };
            },
            RV_CATALOGUE_ATTRIBUTES);
}

QStringList names(const QList<RVCatalogueAttribute> &attributes)
{
    QStringList result;
    for (const RVCatalogueAttribute &attribute : attributes)
        result += attribute.name();
    return result;
}

QDomElement named(const QDomElement &parent, const QString &tag, const QString &name)
{
    QDomElement child = parent.firstChildElement(tag);
    while (!child.isNull() && child.attribute(u"name"_s) != name)
        child = child.nextSiblingElement(tag);
    return child;
}

/// The attributes of a product in the schema whose type is the list of keywords with their name.
QStringList keywordAttributesOfSchema()
{
    QDomDocument schema;
    schema.setContent(readFile(QStringLiteral(SCHEMA)));
    const QDomElement root = schema.documentElement();
    const QDomElement product = named(root, u"xs:element"_s, u"product"_s).firstChildElement(u"xs:complexType"_s);
    QStringList result;
    for (QDomElement attribute = product.firstChildElement(u"xs:attribute"_s); !attribute.isNull();
         attribute = attribute.nextSiblingElement(u"xs:attribute"_s)) {
        const QString type = attribute.attribute(u"type"_s);
        const QDomElement keywords = named(root, u"xs:simpleType"_s, type).firstChildElement(u"xs:union"_s);
        if (type == attribute.attribute(u"name"_s) && keywords.attribute(u"memberTypes"_s) == "keywords"_L1)
            result += type;
    }
    return result;
}

/// The rows of the table of products whose values are keywords: the name and the class that reads it.
QStringList keywordAttributesOfFormat()
{
    const QString text = QString::fromUtf8(readFile(QStringLiteral(FORMAT)));
    const QString products = text.section(u"### `product`"_s, 1).section(u"\n###"_s, 0, 0);
    QStringList result;
    for (const QString &line : products.split(u'\n')) {
        const QStringList columns = line.split(u" | "_s);
        if (columns.size() == 5 && columns.at(2) == "keywords"_L1)
            result += columns.constFirst().section(u'`', 1, 1) + u' ' + columns.constLast().section(u'`', 1, 1);
    }
    return result;
}

/// The first column of the row of docs/json.md for conditions with keywords.
QStringList attributesOfConditions()
{
    const QString text = QString::fromUtf8(readFile(QStringLiteral(DOCS "/json.md")));
    const QString row = text.section(u"| attribute | signs |"_s, 1).section(u"\n| "_s, 1, 1).section(u" | "_s, 0, 0);
    return row.split(u", "_s).replaceInStrings(u"`"_s, QString());
}

/// Those of the classes that the map of the libraries names.
QStringList namedByArchitecture(const QStringList &classes)
{
    const QString text = QString::fromUtf8(readFile(QStringLiteral(DOCS "/architecture.md")));
    QStringList result;
    for (const QString &name : classes) {
        if (text.contains(u'`' + name + u'`'))
            result += name;
    }
    return result;
}

}

// The classes in the list file of RVProductBase, and the one of the platform.
void tst_RVCatalogueAttributes::everyClassOfTheLibraries()
{
    QStringList found = classNames();
    QStringList expected = QStringLiteral(ATTRIBUTE_CLASSES).split(u',') + QStringList { u"RVSpotColor"_s };
    found.sort();
    expected.sort();
    QCOMPARE(listDifference(u"libs/RVCatalogue/RVCatalogueAttributes.h"_s, found, expected), QString());
}

// An editor completes the keywords of every attribute.
void tst_RVCatalogueAttributes::schema()
{
    QCOMPARE(listDifference(u"libs/RVCatalogue/catalogue.xsd"_s, keywordAttributesOfSchema(),
                            names(RVCatalogueAttribute::ofProducts())),
             QString());
}

void tst_RVCatalogueAttributes::format()
{
    const QStringList classes = classNames();
    QStringList expected = names(RVCatalogueAttribute::ofProducts());
    for (qsizetype i = 0; i < expected.size(); ++i)
        expected[i] += u' ' + classes.at(i);
    QCOMPARE(listDifference(u"docs/catalogue-format.md"_s, keywordAttributesOfFormat(), expected), QString());
}

// "rvcatalog show --where" takes every attribute of products.
void tst_RVCatalogueAttributes::conditions()
{
    QCOMPARE(listDifference(u"docs/json.md"_s, attributesOfConditions(), names(RVCatalogueAttribute::ofProducts())),
             QString());
}

void tst_RVCatalogueAttributes::architecture()
{
    const QStringList classes = QStringLiteral(ATTRIBUTE_CLASSES).split(u',');
    QCOMPARE(listDifference(u"docs/architecture.md"_s, namedByArchitecture(classes), classes), QString());
}

// An attribute whose row has a function for display names also has them in the list of its values.
void tst_RVCatalogueAttributes::displayNames()
{
    const auto check = [](const auto &row) {
        const auto values = RVCatalogueAttribute::find(row.name).values();
        const bool hasNames = std::any_of(values.begin(), values.end(),
                                          [](const auto &value) { return !value.displayName.isEmpty(); });
        QVERIFY2(hasNames || !row.displayName,
                 qPrintable(u"libs/RVCatalogue/RVCatalogueAttribute.cpp lacks displayName() for %1"_s.arg(row.name)));
    };
    std::apply([check](const auto &...rows) { (check(rows), ...); }, RV_CATALOGUE_ATTRIBUTES);
}

void tst_RVCatalogueAttributes::sample_data()
{
    QTest::addColumn<RVCatalogueAttribute>("attribute");
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::ofProducts())
        QTest::newRow(attribute.name().data()) << attribute;
}

// A product of the sample catalogue has the attribute, with a valid keyword.
void tst_RVCatalogueAttributes::sample()
{
    QFETCH(const RVCatalogueAttribute, attribute);
    RVCatalogueReader reader(QStringLiteral(SAMPLE));
    QStringList texts;
    for (const RVCatalogueProduct &product : reader)
        texts += product.element().attribute(attribute.name());
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    texts.removeAll(QString());
    QVERIFY2(!texts.isEmpty(),
             qPrintable(u"examples/catalogue/products.xml has no product with %1"_s.arg(attribute.name())));
    QCOMPARE(attribute.decode(texts.join(u',')).unknownPieces.join(u','), QString());
}

QTEST_GUILESS_MAIN(tst_RVCatalogueAttributes)
#include "tst_RVCatalogueAttributes.moc"
