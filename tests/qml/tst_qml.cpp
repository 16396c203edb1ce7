#include <RVProductBase/RVArticleId.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVMetaTypes.h>
#include <RVProductBase/RVPageCountOrganizationListModel.h>

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// An order as an application may show it to QML.
class Order : public QObject
{
    Q_OBJECT
    Q_PROPERTY(RVCoverType cover MEMBER cover NOTIFY changed)
    Q_PROPERTY(RVArticleId article MEMBER article NOTIFY changed)
    Q_PROPERTY(RVArticleVariants options MEMBER options NOTIFY changed)

public:
    RVCoverType cover = HARDCOVER | GIFT;
    RVArticleId article = 7101;
    RVArticleVariants options = RVArticleVariants(u"alcolor:red"_s);

Q_SIGNALS:
    void changed();
};

class tst_qml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readsTexts();
    void compares();
    void writesTexts();
    void writesValues();
    void refusesTexts();
    void listsPageCounts();

private:
    /// The value of an expression where "order" and "other" are orders.
    QVariant evaluate(const QString &expression);

    QQmlEngine myEngine;
    Order myOrder;
    Order myOther;
};

void tst_qml::initTestCase()
{
    RVMetaTypes::registerAll();
}

QVariant tst_qml::evaluate(const QString &expression)
{
    QQmlContext context(myEngine.rootContext());
    context.setContextProperty(u"order"_s, &myOrder);
    context.setContextProperty(u"other"_s, &myOther);
    QQmlComponent component(&myEngine);
    component.setData("import QtQml\nQtObject { property var result: { " + expression.toUtf8() + " } }", QUrl());
    const std::unique_ptr<QObject> object(component.create(&context));
    return object ? object->property("result") : QVariant(component.errorString());
}

void tst_qml::readsTexts()
{
    QCOMPARE(evaluate(u"return String(order.cover)"_s), u"HARDCOVER, GIFT"_s);
    QCOMPARE(evaluate(u"return 'cover: ' + order.cover"_s), u"cover: HARDCOVER, GIFT"_s);
    QCOMPARE(evaluate(u"return String(order.article)"_s), u"7101"_s);
    QCOMPARE(evaluate(u"return String(order.options)"_s), u"alcolor:red"_s);
}

void tst_qml::compares()
{
    myOther.cover = GIFT;
    QCOMPARE(evaluate(u"return order.cover == other.cover"_s), QVariant(false));
    myOther.cover = HARDCOVER | GIFT;
    QCOMPARE(evaluate(u"return order.cover == other.cover"_s), QVariant(true));
}

void tst_qml::writesTexts()
{
    evaluate(u"order.cover = 'softcover'; order.article = '5880'; order.options = 'coverphoto:yes'"_s);
    QCOMPARE(myOrder.cover, RVCoverType(SOFTCOVER));
    QCOMPARE(myOrder.article, RVArticleId(5880));
    QCOMPARE(myOrder.options, RVArticleVariants(u"coverphoto:yes"_s));
}

void tst_qml::writesValues()
{
    myOther.cover = WOOD;
    evaluate(u"order.cover = other.cover"_s);
    QCOMPARE(myOrder.cover, RVCoverType(WOOD));
}

// A text that means nothing gives no cover; where QVariant can say so, QML may keep the one that is there.
void tst_qml::refusesTexts()
{
    myOrder.cover = WOOD;
    evaluate(u"try { order.cover = 'Leinen' } catch (error) { } return true"_s);
    const bool mayBeKept = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);
    QVERIFY(myOrder.cover.isNull() || (mayBeKept && myOrder.cover == RVCoverType(WOOD)));
}

void tst_qml::listsPageCounts()
{
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(RVPageCountOrganization(RVIntRange(26, 34), 4));
    QQmlContext context(myEngine.rootContext());
    context.setContextProperty(u"pageModel"_s, &model);
    QQmlComponent component(&myEngine);
    component.setData(R"(
        import QtQml
        import QtQml.Models
        Instantiator {
            model: pageModel
            property var texts: []
            property int sum: 0
            delegate: QtObject { required property int pages; required property string display }
            onObjectAdded: (index, object) => { sum += object.pages; texts.push(object.display) }
        })",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create(&context));
    QVERIFY2(object, qPrintable(component.errorString()));
    QCOMPARE(object->property("count").toInt(), 3);
    QCOMPARE(object->property("sum").toInt(), 26 + 30 + 34);
    QCOMPARE(object->property("texts").value<QJSValue>().toVariant().toStringList(),
             QStringList({ u"26 Seiten"_s, u"30 Seiten"_s, u"34 Seiten"_s }));
    model.setPageOrganization(RVPageCountOrganization(RVIntRange(3, 3), 0));
    QCOMPARE(object->property("count").toInt(), 1);
}

QTEST_GUILESS_MAIN(tst_qml)
#include "tst_qml.moc"
