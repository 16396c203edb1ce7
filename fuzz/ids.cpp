// Three numbers; two order ids and a session; two lists of price classes; the rest is JSON.
#include "Input.h"
#include "Properties.h"

#include <RVArticleId.h>
#include <RVArticleIdSet.h>
#include <RVContentStatistic.h>
#include <RVModelAddOnStatistic.h>
#include <RVOrderId.h>
#include <RVOrderIdList.h>
#include <RVOrderProjectInfo.h>
#include <RVPriceClass.h>
#include <RVPriceClassSet.h>
#include <RVProductType.h>
#include <RVShippingGroupId.h>
#include <RVShippingGroupIdList.h>
#include <RVSpotColor.h>

#include <QDataStream>
#include <QDomDocument>
#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/// The texts that are read back after a value was written to a binary stream.
template<typename T>
QString readBack(const T &value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    value << out;
    QDataStream in(bytes);
    QString text;
    in >> text;
    CHECK(in.atEnd() && in.status() == QDataStream::Ok);
    return text;
}

void checkArticleIds(int first, int second, int third)
{
    const RVArticleId id(first);
    checkCopies(id, RVArticleId(second));
    checkTotalOrder(id, RVArticleId(second));
    CHECK(id == first && !(id != first));
    CHECK_EQUAL(id.isValid(), first > 0);
    CHECK_EQUAL(id.toString().toInt(), first);
    CHECK_EQUAL(qHash(id, 5), qHash(RVArticleId(first), 5));
    CHECK_EQUAL(readBack(id), id.toString());
    CHECK(!id.isFotoWithoutVariableLength() || !id.isCardWithInsertedFoto());

    QJsonObject object { { u"id"_s, u"old"_s } };
    id.toJSON(object);
    CHECK(RVArticleId(object) == id && RVArticleId(object, RVArticleId::defaultKey()) == id);

    QDomDocument document;
    QDomElement parent = document.createElement(u"articles"_s);
    QDomElement element = id.createSubElement(parent, u"article"_s);
    CHECK(RVArticleId::fromIdAttribute(element) == id);
    CHECK(RVArticleId::findId(element) == id);
    RVArticleId(second).toArtIdAttribute(element);
    CHECK(RVArticleId::fromArtIdAttribute(element) == RVArticleId(second));
    CHECK(RVArticleId::findId(element) == RVArticleId(second > 0 ? second : first));
    CHECK(RVArticleId::fromIdAttribute(element.attributes()) == id);

    const RVArticleIdSet set(QSet<RVArticleId> { id, RVArticleId(second) });
    RVArticleIdSet more = set;
    more.insert(third);
    CHECK(set.extends(set) && set.extends(RVArticleIdSet()));
    CHECK(more.extends(set));
    CHECK_EQUAL(set.extends(more), set.contains(third));
}

void checkShippingGroups(int first, int second, int third)
{
    const RVShippingGroupId id(first);
    checkCopies(id, RVShippingGroupId(second));
    checkTotalOrder(id, RVShippingGroupId(second));
    CHECK_EQUAL(id.isValid(), first != -1);
    CHECK_EQUAL(id.isCombinedTransfer(), first == 0);
    CHECK(RVShippingGroupId::createFrom(id.toString()) == id);
    CHECK(RVShippingGroupId::createFrom(readBack(id)) == id);

    QJsonObject object;
    id.toJSON(object);
    CHECK(RVShippingGroupId(object) == id);
    QDomDocument document;
    QDomElement element = document.createElement(u"group"_s);
    id.toXML(element);
    CHECK(RVShippingGroupId(element) == id && RVShippingGroupId(element.attributes()) == id);
    CHECK(RVShippingGroupId(element, RVShippingGroupId::defaultKey()) == id);

    const RVShippingGroupIdList list(QList<int> { first, second, third, first });
    CHECK_EQUAL(list.filter(id, true).size() + list.filter(id, false).size(), list.size());
    CHECK_EQUAL(list.filter(id, true).size(), list.count(id));
    CHECK(!list.filter(id, false).contains(id));
}

void checkOrders(const QString &first, const QString &second)
{
    const RVOrderId id(first);
    const RVOrderId other(second);
    checkOrder(id, other);
    checkTotalOrder(id, other);
    CHECK_EQUAL(id.isValid(), !first.isNull());
    CHECK_EQUAL(id.toString(), first);
    CHECK_EQUAL(readBack(id), first);
    CHECK_EQUAL(readBack(id).isNull(), first.isNull());
    CHECK(!id.toString(true).contains(u'-'));
    CHECK_EQUAL(id.toString(true).size(), first.size());
    CHECK(RVOrderId(id) == id);

    RVOrderIdList list;
    list << id << RVOrderId() << other;
    QStringList texts;
    for (const QString &text : { first, second }) {
        if (!text.isNull())
            texts += text;
    }
    CHECK_EQUAL(list.toString(), texts.join(u','));
}

void checkProject(const RVOrderId &id, const RVOrderId &other, const QString &session, int position)
{
    const RVOrderProjectInfo info(session, id, position);
    checkCopies(info, RVOrderProjectInfo::createDeletingProjetInfo());
    CHECK_EQUAL(info.isValid(), id.isValid() && position >= 0 && !session.isNull());
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    info << out;
    QDataStream in(bytes);
    QString orderText;
    qint32 positionRead = 0;
    QString sessionRead;
    in >> orderText >> positionRead >> sessionRead;
    CHECK(in.atEnd());
    CHECK(RVOrderProjectInfo(sessionRead, orderText, positionRead) == info);
    RVOrderProjectInfo changed = info;
    changed.setOrderId(other);
    CHECK(changed.orderId() == other && (changed == info) == (id == other));
}

RVPriceClassSet readSet(const QString &text)
{
    RVPriceClassSet result;
    for (const QString &code : text.split(u',', Qt::SkipEmptyParts))
        result.insert(RVPriceClass::create(code));
    return result;
}

void checkPriceClasses(const RVPriceClassSet &set, const RVPriceClassSet &other)
{
    checkCopies(set, other);
    CHECK(readSet(set.toString()) == set);
    CHECK_EQUAL(set.containsOneOf(other), other.containsOneOf(set));
    CHECK_EQUAL(set.containsOneOf(set), !set.isEmpty());
    CHECK_EQUAL(set.containsOneOf(other), set.intersects(other));
    for (const RVPriceClass &a : set) {
        CHECK_EQUAL(a.isEmpty(), !a.isValid());
        CHECK_EQUAL(a.isFree(), !a.isValid() || a.toString().startsWith(u'0'));
        CHECK(!RVPriceClassSet(a).containsOneOf(RVPriceClassSet::videoNames()) || a.toString().startsWith("MUL"_L1));
        for (const RVPriceClass &b : other) {
            checkOrder(a, b);
            CHECK_EQUAL(int(a < b) + int(a == b) + int(b < a), 1);
            CHECK(!(a == b) || qHash(a, 3) == qHash(b, 3));
        }
    }
}

/// Each price class of the set is in the statistic with this quantity.
void checkReplacing(const RVContentStatistic &statistic, const RVPriceClassSet &set, const RVPriceClassSet &other,
                    int quantity)
{
    for (const RVPriceClass &from : set) {
        CHECK_EQUAL(statistic.count(from), quantity);
        for (const RVPriceClass &to : other) {
            RVContentStatistic replaced = statistic;
            replaced.replaceAddOn(from, to);
            CHECK_EQUAL(replaced.count(from), 0);
            if (from != to)
                CHECK_EQUAL(replaced.count(to), quantity > 0 ? quantity : statistic.count(to));
        }
    }
}

void checkStatistics(const RVPriceClassSet &set, const RVPriceClassSet &other, int quantity, int areas)
{
    RVContentStatistic statistic(areas, quantity, {});
    for (const RVPriceClass &priceClass : set)
        statistic.addAddOn(priceClass, quantity);
    CHECK_EQUAL(statistic.boughtAdditionalContent().size(), set.size());
    CHECK_EQUAL(statistic.isPriceClassAddOnApplied(other), set.containsOneOf(other));
    checkCopies(statistic, RVContentStatistic(0, 0, {}));

    RVModelAddOnStatistic model(statistic);
    model.setDesignStyleAddOns(other);
    checkCopies(model, RVModelAddOnStatistic(RVContentStatistic(1, 1, {}), RVPriceClass(), RVPriceClass()));
    CHECK_EQUAL(model.additionalContent(), statistic.boughtAdditionalContent());
    for (const RVPriceClass &priceClass : set) {
        model.removeAddOn(priceClass);
        CHECK_EQUAL(model.count(priceClass), 0);
    }
    const RVContentStatistic before = statistic;
    statistic.adaptFromOrToVario(true, true);
    CHECK(statistic == before);
    checkReplacing(statistic, set, other, quantity);
    statistic.adaptFromOrToVario(false, true);
    CHECK_EQUAL(statistic.boughtAdditionalContent().values(), QList<int>(set.size(), 10));
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const int first = input.integer();
    const int second = input.integer();
    const int third = input.integer();
    checkArticleIds(first, second, third);
    checkShippingGroups(first, second, third);

    const QString orderId = input.text();
    const QString otherOrderId = input.text();
    checkOrders(orderId, otherOrderId);
    checkProject(RVOrderId(orderId), RVOrderId(otherOrderId), input.text(), first);

    const RVPriceClassSet set = readSet(input.text());
    const RVPriceClassSet other = readSet(input.text());
    checkPriceClasses(set, other);
    checkPriceClasses(set, RVPriceClassSet::spotColorPriceClasses(RVSpotColorEnum(second)));
    checkStatistics(set, other, first, second);

    const QJsonObject object = QJsonDocument::fromJson(input.rest()).object();
    for (const QString &key : object.keys()) {
        const RVArticleId id(object, key);
        CHECK(object.value(key).isDouble() || id == 0);
    }
    CHECK(object.value(u"id"_s).isDouble() || !RVShippingGroupId(object).isValid());
    return 0;
}
