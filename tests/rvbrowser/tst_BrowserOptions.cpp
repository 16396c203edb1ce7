#include <BrowserOptions.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *DISPLAYS[] = { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" };

}

class tst_BrowserOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothing();
    void everything();
    void errors_data();
    void errors();
    void sizes_data();
    void sizes();
    void withoutDisplay_data();
    void withoutDisplay();
    void helpNamesAll();

private:
    static BrowserOptions options(const QStringList &arguments)
    {
        return BrowserOptions(QStringList { u"rvbrowser"_s } + arguments);
    }
};

void tst_BrowserOptions::nothing()
{
    const BrowserOptions none = options({});
    QCOMPARE(none.error(), QString());
    QVERIFY(!none.isHelp());
    QVERIFY(!none.isVersion());
    QVERIFY(!none.isScreenshot());
    QVERIFY(!none.size());
    for (const QString &value :
         { none.screenshot(), none.product(), none.palette(), none.language(), none.catalogue() })
        QCOMPARE(value, QString());
}

void tst_BrowserOptions::everything()
{
    const BrowserOptions all = options({ u"--product"_s, u"DUN9"_s, u"--screenshot"_s, u"o.PNG"_s, u"--size"_s,
                                         u"800x600"_s, u"--palette=dark"_s, u"--language"_s, u"de"_s, u"c.xml"_s });
    QCOMPARE(all.error(), QString());
    QCOMPARE(all.product(), u"DUN9"_s);
    QVERIFY(all.isScreenshot());
    QCOMPARE(all.screenshot(), u"o.PNG"_s);
    QCOMPARE(all.size(), QSize(800, 600));
    QCOMPARE(all.palette(), u"dark"_s);
    QCOMPARE(all.language(), u"de"_s);
    QCOMPARE(all.catalogue(), u"c.xml"_s);
}

void tst_BrowserOptions::errors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");

    QTest::newRow("no catalogue") << QStringList { u"--screenshot"_s, u"o.png"_s }
                                  << u"a screenshot needs a catalogue"_s;
    QTest::newRow("help of a screenshot") << QStringList { u"--screenshot"_s, u"o.png"_s, u"--help"_s } << QString();
    QTest::newRow("version of a screenshot")
            << QStringList { u"--screenshot"_s, u"o.png"_s, u"--version"_s } << QString();
    QTest::newRow("other picture") << QStringList { u"--screenshot"_s, u"o.svg"_s, u"c.xml"_s }
                                   << u"a screenshot is a PNG; let the name \"o.svg\" end in .png"_s;
    QTest::newRow("palette") << QStringList { u"--palette"_s, u"pink"_s }
                             << u"there is no palette \"pink\"; there are: light, dark"_s;
    QTest::newRow("empty palette") << QStringList { u"--palette="_s }
                                   << u"there is no palette \"\"; there are: light, dark"_s;
    QTest::newRow("language") << QStringList { u"--language"_s, u"fr"_s }
                              << u"there is no language \"fr\"; there are: de, en"_s;
    QTest::newRow("language and country")
            << QStringList { u"--language"_s, u"de_AT"_s } << u"there is no language \"de_AT\"; there are: de, en"_s;
    QTest::newRow("two catalogues") << QStringList { u"a.xml"_s, u"b.xml"_s }
                                    << u"expected at most 1 catalogue, got 2"_s;
    QTest::newRow("unknown option") << QStringList { u"--sing"_s } << u"Unknown option 'sing'."_s;
    QTest::newRow("no value") << QStringList { u"--product"_s } << u"Missing value after '--product'."_s;
}

void tst_BrowserOptions::errors()
{
    QFETCH(QStringList, arguments);
    QTEST(options(arguments).error(), "error");
}

void tst_BrowserOptions::sizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size"); // not valid where it is refused

    QTest::newRow("usual") << u"1280x800"_s << QSize(1280, 800);
    QTest::newRow("least") << u"1x1"_s << QSize(1, 1);
    QTest::newRow("largest") << u"9999x9999"_s << QSize(9999, 9999);
    for (const QString &wrong :
         { u"12"_s, u"0x0"_s, u"10000x1"_s, u"-1x5"_s, u"1280X800"_s, u"1280 x 800"_s, u""_s, u"1280x800x3"_s })
        QTest::addRow("\"%s\"", qPrintable(wrong)) << wrong << QSize();
}

void tst_BrowserOptions::sizes()
{
    QFETCH(QString, text);
    QFETCH(QSize, size);
    const BrowserOptions wanted = options({ u"--size="_s + text });
    QCOMPARE(wanted.size().has_value(), size.isValid());
    QCOMPARE(wanted.size().value_or(QSize()), size);
    QCOMPARE(wanted.error(), size.isValid() ? QString() : u"\"%1\" is no size; write it as 1280x800"_s.arg(text));
}

void tst_BrowserOptions::withoutDisplay_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("onScreen");
    QTest::addColumn<bool>("withoutScreen");

    QTest::newRow("window") << QStringList { u"c.xml"_s } << false << false;
    QTest::newRow("help") << QStringList { u"-h"_s } << true << true;
    QTest::newRow("version") << QStringList { u"--version"_s } << true << true;
    QTest::newRow("screenshot") << QStringList { u"--screenshot"_s, u"o.png"_s, u"c.xml"_s } << true << true;
    QTest::newRow("error") << QStringList { u"--sing"_s } << false << true;
}

void tst_BrowserOptions::withoutDisplay()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, onScreen);
    const QByteArray before = qgetenv("QT_QPA_PLATFORM");
    for (const char *variable : DISPLAYS)
        qunsetenv(variable);
    const bool withoutScreen = options(arguments).isWithoutDisplay();
    QList<bool> onScreens;
    for (const char *variable : DISPLAYS) {
        qputenv(variable, "x");
        onScreens += options(arguments).isWithoutDisplay();
        qunsetenv(variable);
    }
    qputenv("QT_QPA_PLATFORM", before);
    QTEST(withoutScreen, "withoutScreen");
    QCOMPARE(onScreens, QList<bool>(3, onScreen));
}

void tst_BrowserOptions::helpNamesAll()
{
    const QString help = options({}).helpText();
    for (const QString &name : { u"--help"_s, u"--version"_s, u"--product"_s, u"--screenshot"_s, u"--size"_s,
                                 u"--palette"_s, u"--language"_s, u"[CATALOGUE.xml]"_s })
        QVERIFY2(help.contains(name), qPrintable(name));
}

QTEST_GUILESS_MAIN(tst_BrowserOptions)
#include "tst_BrowserOptions.moc"
