#include "CatalogueBuffer.h"

#include <RVCatalogueProject.h>

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVCatalogueProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everything();
    void nothing();
    void emptyType();
    void largeContent();
    void errors_data();
    void errors();
    void fileName();
    void byDefault();
};

void tst_RVCatalogueProject::everything()
{
    CatalogueBuffer file("<!-- a -->\n<project productname='DUN9_48' pages='034'\n variants='alcolor:red,a;b:c;d'>"
                         "<page productname='x'/></project>");
    const RVCatalogueProject project = RVCatalogueProject::read(&file);
    QVERIFY(!project.hasError());
    QCOMPARE(project.errorString(), QString());
    QCOMPARE(project.type().toString(), u"DUN9"_s);
    QCOMPARE(project.pages(), u"034"_s);
    QCOMPARE(project.variants(), u"alcolor:red,a;b:c;d"_s);
    QCOMPARE(project.element().name(), u"project"_s);
    QVERIFY(project.element().firstChildElement().isNull());
    QVERIFY(project.element().nextSiblingElement().isNull());
    QCOMPARE(project.element().attributeRange("variants"_L1).begin.line, qint64(3));
    QCOMPARE(project.element().attributeRange("variants"_L1).begin.column, qint64(2));
}

void tst_RVCatalogueProject::nothing()
{
    CatalogueBuffer file("<x/>");
    const RVCatalogueProject project = RVCatalogueProject::read(&file);
    QVERIFY(!project.hasError());
    QCOMPARE(project.type().toString(), u"DUN9"_s);
    QVERIFY(project.pages().isEmpty());
    QVERIFY(project.variants().isEmpty());
}

void tst_RVCatalogueProject::emptyType()
{
    CatalogueBuffer file("<x productname=''/>");
    QVERIFY(RVCatalogueProject::read(&file).type().isUnknown());
}

// Only the start of the root element is kept, so its content may have any size.
void tst_RVCatalogueProject::largeContent()
{
    CatalogueBuffer file("<project pages='3'>" + QByteArray("<page a='b'/>\n").repeated(200000) + "</project>");
    const RVCatalogueProject project = RVCatalogueProject::read(&file);
    QVERIFY2(!project.hasError(), qPrintable(project.errorString()));
    QCOMPARE(project.pages(), u"3"_s);
}

void tst_RVCatalogueProject::errors_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");

    QTest::newRow("empty") << QByteArray() << u"the file is empty"_s << 1 << 1;
    QTest::newRow("no XML") << QByteArray("{}") << u"this is no XML"_s << 1 << 1;
    QTest::newRow("broken behind the root's start")
            << QByteArray("<project pages='3'>\n<page></project>")
            << u"</project> closes <page>, which was opened in line 2"_s << 2 << 7;
    QTest::newRow("entities") << QByteArray("<!DOCTYPE p [<!ENTITY a 'b'>]><p/>")
                              << u"entity declarations are not supported"_s << 1 << 14;
}

void tst_RVCatalogueProject::errors()
{
    QFETCH(QByteArray, file);
    CatalogueBuffer device(file);
    const RVCatalogueProject project = RVCatalogueProject::read(&device);
    QVERIFY(project.hasError());
    QTEST(project.errorString(), "error");
    QTEST(int(project.errorPosition().line), "line");
    QTEST(int(project.errorPosition().column), "column");
}

void tst_RVCatalogueProject::fileName()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"project.xml"_s);
    QCOMPARE(RVCatalogueProject::read(name).errorString(), u"cannot open the file: No such file or directory"_s);
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<project pages='7'/>");
    file.close();
    QCOMPARE(RVCatalogueProject::read(name).pages(), u"7"_s);
}

void tst_RVCatalogueProject::byDefault()
{
    const RVCatalogueProject project;
    QVERIFY(!project.hasError());
    QVERIFY(project.element().isNull());
    QCOMPARE(project.type().toString(), u"DUN9"_s);
    const RVCatalogueProject copy = project;
    QVERIFY(copy.pages().isEmpty());
}

QTEST_GUILESS_MAIN(tst_RVCatalogueProject)
#include "tst_RVCatalogueProject.moc"
