// The type of a file, as file managers tell it: that of a catalogue where it has products, under every name; no other
// XML file is taken for one.

#include <QBuffer>
#include <QFile>
#include <QMimeDatabase>
#include <QTest>

class tst_mime_type : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void type_data();
    void type();
    void ofNameAlone();
};

void tst_mime_type::initTestCase()
{
    qputenv("XDG_DATA_HOME", MIME_FOLDER "/none");
    qputenv("XDG_DATA_DIRS", MIME_FOLDER);
    const QMimeType catalogue = QMimeDatabase().mimeTypeForName(QStringLiteral("application/x-rvcatalogue+xml"));
    QVERIFY(catalogue.isValid());
    QVERIFY(catalogue.inherits(QStringLiteral("application/xml")));
}

void tst_mime_type::type_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("type");

    const QString catalogue = QStringLiteral("application/x-rvcatalogue+xml");
    const QString xml = QStringLiteral("application/xml");
    const auto file = [](const char *path) {
        QFile opened(QStringLiteral(SAMPLES "/") + QLatin1String(path));
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    };
    const QByteArray sample = file("products.xml");
    QTest::newRow("sample catalogue") << "products.xml" << sample << catalogue;
    QTest::newRow("catalogue with another name") << "products.2026" << sample << catalogue;
    QTest::newRow("catalogue without a declaration")
            << "a.xml" << QByteArray("<products><product type=\"DUN9\" article_id=\"1\"/></products>") << catalogue;
    QTest::newRow("another root, no article")
            << "a.xml" << QByteArray("<?xml version=\"1.0\"?><shop>\n<product\narticle_class='book'/></shop>")
            << catalogue;
    QTest::newRow("sample order") << "project.xml" << file("project.xml") << xml;
    QTest::newRow("other products") << "a.xml"
                                    << QByteArray("<?xml version=\"1.0\"?><products><product name=\"tea\"/></products>")
                                    << xml;
    QTest::newRow("articles that are no products")
            << "a.xml" << QByteArray("<?xml version=\"1.0\"?><news><item article_id=\"1\"/></news>") << xml;
    QTest::newRow("another kind of XML file")
            << "a.svg" << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\"/>") << "image/svg+xml";
}

void tst_mime_type::type()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QVERIFY(!content.isEmpty());
    QBuffer buffer(&content);

    QTEST(QMimeDatabase().mimeTypeForFileNameAndData(name, &buffer).name(), "type");
}

// A file without content is XML as before.
void tst_mime_type::ofNameAlone()
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(QStringLiteral("a.xml"), QMimeDatabase::MatchExtension);

    QCOMPARE(type.name(), QStringLiteral("application/xml"));
}

QTEST_GUILESS_MAIN(tst_mime_type)
#include "tst_mime_type.moc"
