#include <ComparisonActions.h>
#include <Language.h>
#include <MainWindow.h>

#include <QAccessible>
#include <QApplication>
#include <QLocale>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

bool isControl(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::RadioButton:
    case QAccessible::Slider:
    case QAccessible::SpinBox:
    case QAccessible::Table:
    case QAccessible::Tree:
        return true;
    default:
        return false;
    }
}

QString describe(QAccessibleInterface *item)
{
    const QObject *object = item->object();
    return object ? QString::fromLatin1(object->metaObject()->className()) + u' ' + object->objectName() : QString();
}

/// Parts that a control is made of are spoken of with it.
bool isPart(QAccessibleInterface *item)
{
    const QAccessibleInterface *parent = item->parent();
    return parent && (parent->role() == QAccessible::ComboBox || parent->role() == QAccessible::SpinBox);
}

}

/// Walks through all that a screen reader sees of the window.
class tst_accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyControlHasAName_data();
    void everyControlHasAName();
    void everyControlOfAComparisonHasAName();
    void drawingsAreDescribed();

private:
    void walk(QAccessibleInterface *item);

    std::unique_ptr<MainWindow> myWindow;
    QStringList myNameless;
    int myControls = 0;
};

void tst_accessibility::init()
{
    myNameless.clear();
    myControls = 0;
}

void tst_accessibility::cleanup()
{
    myWindow.reset();
    QLocale::setDefault(QLocale(QLocale::English));
}

void tst_accessibility::walk(QAccessibleInterface *item)
{
    if (item->state().invisible || isPart(item))
        return;
    if (isControl(item->role())) {
        ++myControls;
        if (item->text(QAccessible::Name).isEmpty())
            myNameless += describe(item);
        return; // rows and cells have the texts of the model
    }
    for (int i = 0; i < item->childCount(); ++i) {
        if (QAccessibleInterface *child = item->child(i))
            walk(child);
    }
}

void tst_accessibility::everyControlHasAName_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("hasCatalogue");
    QTest::addColumn<int>("leastControls");

    QTest::newRow("catalogue, English") << u"en"_s << true << 12;
    QTest::newRow("catalogue, German") << u"de"_s << true << 12;
    QTest::newRow("nothing open") << u"en"_s << false << 1;
}

void tst_accessibility::everyControlHasAName()
{
    QFETCH(QString, language);
    QFETCH(bool, hasCatalogue);
    QFETCH(int, leastControls);
    Language spoken;
    spoken.speak(QLocale(language));
    myWindow = std::make_unique<MainWindow>();
    myWindow->show();
    if (hasCatalogue) {
        QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
        myWindow->session()->open(QString::fromUtf8(SAMPLE));
        QVERIFY(changed.wait(20000));
        QTest::qWait(100);
    }
    QAccessibleInterface *window = QAccessible::queryAccessibleInterface(myWindow.get());
    QVERIFY(window);
    walk(window);
    QCOMPARE(myNameless, QStringList());
    QVERIFY2(myControls >= leastControls, qPrintable(QString::number(myControls)));
}

void tst_accessibility::everyControlOfAComparisonHasAName()
{
    QTemporaryFile empty;
    QVERIFY(empty.open());
    empty.write("<products/>");
    empty.close();
    myWindow = std::make_unique<MainWindow>();
    myWindow->show();
    ComparisonSession *session = myWindow->comparison()->session();
    QSignalSpy changed(session, &ComparisonSession::changed);
    session->compareWith(empty.fileName());
    myWindow->session()->open(QString::fromUtf8(SAMPLE));
    QVERIFY(changed.wait(20000));
    QVERIFY(session->comparison()->size() > 0);
    walk(QAccessible::queryAccessibleInterface(myWindow.get()));
    QCOMPARE(myNameless, QStringList());
    QVERIFY(myControls > 14);
}

void tst_accessibility::drawingsAreDescribed()
{
    myWindow = std::make_unique<MainWindow>();
    myWindow->show();
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(QString::fromUtf8(SAMPLE));
    QVERIFY(changed.wait(20000));
    for (const QString &name : { u"spineDrawing"_s, u"spineCurve"_s, u"pageDrawing"_s }) {
        const auto *drawing = myWindow->findChild<QWidget *>(name);
        QVERIFY2(drawing, qPrintable(name));
        QVERIFY2(!drawing->accessibleName().isEmpty(), qPrintable(name));
    }
}

QTEST_MAIN(tst_accessibility)
#include "tst_accessibility.moc"
