#include <RVXML/RVXMLBuilder.h>

#include <QDomDocument>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVXMLBuilder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void appendsChildren();
    void returnsTheChild();
    void escapesTexts();
    void leavesNullParentsAlone();
};

void tst_RVXMLBuilder::appendsChildren()
{
    QDomDocument document;
    document.setContent(u"<template><old/></template>"_s);
    QDomElement parent = document.documentElement();
    RVXMLBuilder::buildDomElement(parent, u"type"_s, u"Größe"_s);
    RVXMLBuilder::buildDomElement(parent, u"empty"_s);
    RVXMLBuilder::buildDomElement(parent, u"noText"_s, u""_s);
    QCOMPARE(document.toString(-1), u"<template><old/><type>Größe</type><empty/><noText></noText></template>"_s);
}

void tst_RVXMLBuilder::returnsTheChild()
{
    QDomDocument document;
    QDomElement parent = document.createElement(u"template"_s);
    QDomElement child = RVXMLBuilder::buildDomElement(parent, u"page"_s);
    child.setAttribute(u"nr"_s, 3);
    QCOMPARE(parent.firstChildElement().attribute(u"nr"_s), u"3"_s);
    QVERIFY(RVXMLBuilder::buildDomElement(child, u"text"_s, u"x"_s).parentNode() == child);
}

void tst_RVXMLBuilder::escapesTexts()
{
    QDomDocument document;
    document.setContent(u"<a/>"_s);
    QDomElement parent = document.documentElement();
    RVXMLBuilder::buildDomElement(parent, u"t"_s, u"<b> & c"_s);
    QDomDocument reread;
    QVERIFY(reread.setContent(document.toString()));
    QCOMPARE(reread.documentElement().firstChildElement(u"t"_s).text(), u"<b> & c"_s);
}

void tst_RVXMLBuilder::leavesNullParentsAlone()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QDomElement null;
    QVERIFY(RVXMLBuilder::buildDomElement(null, u"page"_s).isNull());
    QVERIFY(RVXMLBuilder::buildDomElement(null, u"page"_s, u"text"_s).isNull());
}

QTEST_APPLESS_MAIN(tst_RVXMLBuilder)
#include "tst_RVXMLBuilder.moc"
