#include <MainWindow.h>

#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// Prints what the window says of the spine at each page count: "26 48 DejaVu Sans".
int printSpines(const QString &type)
{
    MainWindow window;
    window.show();
    QSignalSpy changed(window.session(), &CatalogueSession::catalogueChanged);
    window.session()->open(QString::fromUtf8(SAMPLE));
    if (!changed.wait(20000) || !window.showType(RVProductType(type)))
        return 1;
    static const QRegularExpression pattern(u"font up to ([0-9]+) pt ([^·]+)"_s);
    auto *counts = window.findChild<QComboBox *>(u"pageCounts"_s);
    const auto *text = window.findChild<QLabel *>(u"spineText"_s);
    QTextStream out(stdout);
    for (int i = 0; i < counts->count(); ++i) {
        counts->setCurrentIndex(i);
        const QRegularExpressionMatch match = pattern.match(text->text());
        out << counts->currentText().section(u' ', 0, 0) << ' ' << match.captured(1) << ' '
            << match.captured(2).trimmed() << '\n';
    }
    return 0;
}

QByteArray run(const QString &program, const QStringList &arguments, const QStringList &environment)
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    for (const QString &variable : environment)
        variables.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    process.setProcessEnvironment(variables);
    process.start(program, arguments);
    process.waitForFinished(60000);
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 ? process.readAllStandardOutput()
                                                                                   : QByteArray();
}

}

/// The window and "rvcatalog spine" tell the same font sizes on every screen.
class tst_spine_fonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothPrograms_data();
    void bothPrograms();
};

void tst_spine_fonts::bothPrograms_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("environment");
    QTest::addColumn<int>("counts");
    QTest::addColumn<QByteArray>("first");

    const QStringList none;
    QTest::newRow("usual screen") << u"DUN9"_s << none << 33 << QByteArray("26 48 DejaVu Sans");
    QTest::newRow("fine screen") << u"DUN9"_s << QStringList { u"QT_FONT_DPI=192"_s } << 33
                                 << QByteArray("26 48 DejaVu Sans");
    QTest::newRow("coarse screen") << u"DUN9"_s << QStringList { u"QT_FONT_DPI=60"_s } << 33
                                   << QByteArray("26 48 DejaVu Sans");
    QTest::newRow("scaled screen") << u"DUN9"_s << QStringList { u"QT_SCALE_FACTOR=1.5"_s } << 33
                                   << QByteArray("26 48 DejaVu Sans");
    QTest::newRow("other platform") << u"DUN9"_s << QStringList { u"QT_QPA_PLATFORM=minimal:enable_fonts"_s } << 33
                                    << QByteArray("26 48 DejaVu Sans");
    QTest::newRow("thin book") << u"DUN1"_s << QStringList { u"QT_FONT_DPI=120"_s, u"QT_SCALE_FACTOR=2"_s } << 7
                               << QByteArray("26 22 DejaVu Sans");
}

void tst_spine_fonts::bothPrograms()
{
    QFETCH(QString, type);
    QFETCH(QStringList, environment);
    QFETCH(int, counts);
    const QByteArray catalog = run(QString::fromUtf8(RVCATALOG),
                                   { u"spine"_s, u"--json"_s, QString::fromUtf8(SAMPLE), type }, {});
    QList<QByteArray> expected;
    for (const QJsonValue &row : QJsonDocument::fromJson(catalog)["spine"_L1].toArray())
        expected += QByteArray::number(row["page_count"_L1].toInt()) + ' '
                + QByteArray::number(row["max_font_size"_L1].toInt()) + ' ' + row["font_family"_L1].toString().toUtf8();
    QCOMPARE(expected.size(), counts);
    QTEST(expected.constFirst(), "first");
    const QByteArray window = run(QCoreApplication::applicationFilePath(), { u"--print"_s, type }, environment);
    QCOMPARE(window.trimmed().split('\n'), expected);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.value(1) == "--print"_L1)
        return printSpines(arguments.value(2));
    tst_spine_fonts test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_spine_fonts.moc"
