// Two product codes, a list of codes, and another one.
#include "Input.h"
#include "Properties.h"

#include <RVArticleVariants.h>
#include <RVPriceClass.h>
#include <RVProductChecker.h>
#include <RVProductCheckerRegistry.h>
#include <RVProductType.h>
#include <RVProductTypeList.h>

#include <QDomDocument>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Refuses every product that is no calendar, as a shop for calendars does.
class CalendarChecker : public RVProductChecker
{
public:
    bool isValid(const RVProductType &type) const override { return type.isCalendar(); }
    RVProductCheckerType checkerTypes() const override { return 1; }
    bool isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants) const override
    {
        return type.isCalendar() && variants.hasCutOut();
    }
};

void checkType(const QString &code)
{
    const RVProductType type(code);
    CHECK_EQUAL(type.isUnknown(), code.isEmpty());
    CHECK_EQUAL(type.isValid(), !type.isUnknown());
    CHECK_EQUAL(type.orderTxtName(), code.isEmpty() ? u"UNKNOWN"_s : type.toString());
    CHECK(!type.isAgenda() || type.isCalendar());
    CHECK(code.contains(type.toString()));

    // A book has no text behind its family, and additional text makes no difference.
    static const QRegularExpression family(u"^DUNS?\\d+"_s);
    static const QRegularExpression familyOnly(u"^DUNS?\\d+$"_s);
    if (type.toString().contains(family)) {
        CHECK(type.toString().contains(familyOnly));
        CHECK(RVProductType(type.toString() + u"_30"_s) == type);
    }

    const RVProductType again(type.toString());
    CHECK(again == type);
    CHECK_EQUAL(again.toString(), type.toString());
    CHECK_EQUAL(again.calcHashValue(), type.calcHashValue());

    CHECK(RVProductType::fromPriceClass(RVPriceClass(code)) == type);
    QDomDocument document;
    QDomElement project = document.createElement(u"project"_s);
    project.setAttribute(u"productname"_s, code);
    CHECK(RVProductType::fromKtx(project) == type);
}

void checkPair(const RVProductType &a, const RVProductType &b)
{
    checkCopies(a, b);
    CHECK_EQUAL(a == b, b == a);
    CHECK(!(a == b) || qHash(a, 7) == qHash(b, 7));
    CHECK(a.toString() != b.toString() || a == b);
    // Codes that differ only in letter case would be equal if their hashes were equal; their order is still defined.
    CHECK_EQUAL(int(a < b) + int(b < a) + int(a.toString() == b.toString()), 1);
}

void checkList(const QString &csv, const RVProductTypeList &other)
{
    const RVProductTypeList list = RVProductTypeList::buildFromCSV(csv);
    for (const RVProductType &type : list)
        CHECK(type.isValid());
    CHECK(RVProductTypeList::buildFromCSV(list.toStringList().join(u',')) == list);
    CHECK(!list.containsAgenda() || list.containsCalendar());
    CHECK(list.isEmpty() || list.containsCalendar() || list.containsNotOnlyCalendars());

    RVProductTypeList united;
    united.addWithoutDoubles(list);
    united.addWithoutDoubles(other);
    for (const RVProductType &type : united)
        CHECK_EQUAL(united.count(type), 1);
    for (const RVProductType &type : list + other)
        CHECK(united.contains(type));
    const RVProductTypeList before = united;
    united.addWithoutDoubles(list);
    united.addWithoutDoubles(RVProductType());
    CHECK(united == before);
}

void checkRegistry(const RVProductTypeList &types, const RVArticleVariants &variants)
{
    CalendarChecker checker;
    RVProductCheckerRegistry registry;
    registry.registerChecker(&checker);
    for (const RVProductType &type : types) {
        CHECK_EQUAL(registry.isValid(type, 3), type.isCalendar());
        CHECK_EQUAL(registry.isValid(type, 3), registry.isValidWorker(type, 3));
        CHECK_EQUAL(registry.isValid(type, 2), true);
        CHECK(!registry.isValidBoxStyle(type, variants, 1) || registry.isValid(type, 1));
    }
    registry.unregisterChecker(&checker);
    for (const RVProductType &type : types)
        CHECK(registry.isValid(type, 3));
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const QString code = input.text();
    const QString otherCode = input.text();
    const QString csv = input.text();
    const QString otherCsv = input.text();

    checkType(code);
    checkType(otherCode);
    checkPair(code, otherCode);
    checkList(csv, RVProductTypeList::buildFromCSV(otherCsv));
    checkList(otherCsv, RVProductTypeList(QStringList { code, otherCode }));
    checkRegistry(RVProductTypeList::buildFromCSV(csv), RVArticleVariants(otherCode));
    return 0;
}
