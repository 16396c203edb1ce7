// No attribute is missing: neither in the list itself, nor in the descriptions of catalogues for people and for
// editors.
#include <RVCatalogueAttribute.h>
#include <RVCatalogueAttributes.h>
#include <RVCatalogueReader.h>

#include <QDomDocument>
#include <QFile>
#include <QMetaType>
#include <QTest>

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

QByteArray content(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(fileName));
    return file.readAll();
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
    schema.setContent(content(QStringLiteral(SCHEMA)));
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
    const QString text = QString::fromUtf8(content(QStringLiteral(FORMAT)));
    const QString products = text.section(u"### `product`"_s, 1).section(u"\n###"_s, 0, 0);
    QStringList result;
    for (const QString &line : products.split(u'\n')) {
        const QStringList columns = line.split(u" | "_s);
        if (columns.size() == 5 && columns.at(2) == "keywords"_L1)
            result += columns.constFirst().section(u'`', 1, 1) + u' ' + columns.constLast().section(u'`', 1, 1);
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
    QCOMPARE(found.join(u' '), expected.join(u' '));
}

// An editor completes the keywords of every attribute.
void tst_RVCatalogueAttributes::schema()
{
    QCOMPARE(keywordAttributesOfSchema().join(u' '), names(RVCatalogueAttribute::ofProducts()).join(u' '));
}

void tst_RVCatalogueAttributes::format()
{
    const QStringList classes = classNames();
    QStringList expected = names(RVCatalogueAttribute::ofProducts());
    for (qsizetype i = 0; i < expected.size(); ++i)
        expected[i] += u' ' + classes.at(i);
    QCOMPARE(keywordAttributesOfFormat().join(u'\n'), expected.join(u'\n'));
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
    QVERIFY(!texts.isEmpty());
    QCOMPARE(attribute.decode(texts.join(u',')).unknownPieces.join(u','), QString());
}

QTEST_GUILESS_MAIN(tst_RVCatalogueAttributes)
#include "tst_RVCatalogueAttributes.moc"
