// The first byte chooses one of the attributes; then come a keyword list, another one, and a value as a number.
#include "Input.h"
#include "Properties.h"

#include <RVAngle.h>
#include <RVArticleClass.h>
#include <RVArticleClassList.h>
#include <RVCatalogueAttribute.h>
#include <RVCatalogueAttributes.h>
#include <RVCoverType.h>
#include <RVDlpType.h>
#include <RVFotoPaperType.h>
#include <RVOrientation.h>
#include <RVPageAlignment.h>
#include <RVPageBinding.h>
#include <RVPageType.h>
#include <RVPaperType.h>
#include <RVShippingGroupId.h>
#include <RVSpaceMagnitude.h>
#include <RVSpotColor.h>

#include <QDomDocument>
#include <QSizeF>
#include <QVariant>

#include <algorithm>
#include <array>
#include <tuple>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

template<typename T>
using EnumOf = decltype(std::declval<T>().value());

template<typename T>
bool hasKeyword(EnumOf<T> value)
{
    static const QList<EnumOf<T>> known = T().allKnownEnumValues();
    return known.contains(value);
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0 && c.unicode() < 128; });
}

/// A name gives the value that has it. A name that is not ASCII reaches the table of names with other letters.
template<typename T>
void checkName(const QString &name, const T &otherwise)
{
    const T read = T::createFromHumanReadable(name);
    if (isAscii(name))
        CHECK(read == otherwise || read.humanReadableName() == name);
}

template<typename T>
void checkBits(const T &value)
{
    using E = EnumOf<T>;
    const QList<E> bits = value.splitToBitsSorted();
    CHECK_EQUAL(bits.size(), value.countBits());
    CHECK(value.splitToBits() == QSet<E>(bits.begin(), bits.end()));
    CHECK(std::is_sorted(bits.begin(), bits.end()));
    CHECK_EQUAL(value.hasExactlyOneBit(), bits.size() == 1);
    CHECK_EQUAL(value.isConglumerate(), bits.size() > 1);
    CHECK_EQUAL(value.encodeBits().size(), bits.size());

    T sum(E(0));
    for (const E bit : bits) {
        CHECK(T(bit).hasExactlyOneBit());
        CHECK(value.matches(bit) && value.containsAll(bit));
        sum.setBit(bit, true);
    }
    CHECK(sum == (value > T(E(0)) ? value : T(E(0))));
    CHECK_EQUAL(value.isNull(), value == E(0));
}

/// A written value reads back, unless a bit has no keyword of its own.
template<typename T>
void checkWriting(const T &value)
{
    using E = EnumOf<T>;
    const QList<E> bits = value.splitToBitsSorted();
    if (!bits.isEmpty() && std::all_of(bits.begin(), bits.end(), hasKeyword<T>)) {
        CHECK(T(value.encodeCSV()) == value);
        CHECK(T(value.encodeBits().join(u',')) == value);
    }
    if (hasKeyword<T>(value.value())) {
        CHECK(T(value.encode()) == value);
        CHECK(value.allPossibleKeywordsOneElement().contains(value.encode().toLower()));
    }
    for (const QString &keyword : value.allPossibleKeywordsOneElement())
        CHECK(value.decodeOneElement(keyword) == value.value());
    for (const QString &keyword : value.allPossibleKeywords())
        CHECK(T(keyword).hasExactlyOneBit() && value.containsAll(T(keyword)));
}

template<typename T>
void checkReading(const QString &text, const QString &other)
{
    const T value(text);
    CHECK(value.decodeCSV(text) == value.value());
    T set(EnumOf<T>(0));
    CHECK(set.setValue(text) == value.value());
    CHECK(set == value);

    T united(EnumOf<T>(0));
    for (const QString &piece : text.split(u','))
        united |= T(piece);
    CHECK(united == value);
    CHECK(T(text + u',' + other) == T(value | T(other)));
    CHECK(T(other + u" ,\t"_s + text) == T(value | T(other)));
    if (isAscii(text)) { // "ı" is no "i" in lower case, but in upper case
        CHECK(T(text.toUpper()) == value);
        CHECK(T(text.toLower()) == value);
    }
    if (!text.contains(u','))
        CHECK(value.decodeOneElement(text) == value.value());
}

template<typename T>
void checkSetOperations(const T &a, const T &b)
{
    using E = EnumOf<T>;
    const E both = a & b;
    const E either = a | b;
    T united = a;
    united.expandTo(b);
    CHECK(united == either && united.containsAll(a) && united.containsAll(b));
    T common = a;
    common.reduceTo(b.value());
    CHECK(common == both && a.reducedTo(b.value()) == both && a.containsAll(both));
    T rest = a;
    rest.exclude(b);
    CHECK(!rest.matches(b));
    CHECK(T(rest | T(both)) == a);
    CHECK_EQUAL(a.matches(b), b.matches(a));
    CHECK_EQUAL(a.matches(b), both != E(0));
    CHECK_EQUAL(a.containsAll(b), both == b.value());

    T toggled = a;
    toggled.toggleBits(b);
    if (b > T(E(0)))
        CHECK((toggled | T(both)) == either && !toggled.matches(both));
    toggled.toggleBits(b);
    CHECK(toggled == a);

    CHECK_EQUAL(int(a < b) + int(a == b) + int(a > b), 1);
    CHECK_EQUAL(a <= b, !(a > b));
    checkOrder(a, b);
    checkCopies(a, b);
}

// Functions that only a single class offers.

template<typename T>
void checkOwn(const T &, const QString &)
{ }

void checkOwn(const RVArticleClass &value, const QString &text)
{
    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("template"));
    value.toTemplates2Format(parent);
    CHECK_EQUAL(parent.childNodes().size(), value.hasValue(ARTICLE_CLASS_PRINTFUN) ? 0 : value.countBits());

    if (value.shippingGroup() != -1)
        CHECK(RVArticleClass::createFromShippingGroupId(value.shippingGroup()) == value);
    CHECK(value.maxAmount() >= 1);
    CHECK(!value.toPHProjectCategory().isEmpty() && !value.toHumanReadable().isEmpty());
    CHECK(value.toStartPageId().isValid());
    CHECK(!(RVArticleClass::lessThanShopCart(value.value(), value.value())));
    value.toHelpTopic();
    value.morePagesText(int(value.value()));

    const RVArticleClassList list = RVArticleClassList::parseArticleClasses(text);
    RVArticleClass united;
    for (const RVArticleClass &element : list) {
        CHECK(!element.isNull());
        united.expandTo(element);
    }
    CHECK(united == RVArticleClass(text));
    CHECK_EQUAL(list.filter(united).size(), list.size());
    CHECK(list.filter(RVArticleClass()).isEmpty());
}

void checkOwn(const RVOrientation &value, const QString &text)
{
    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("template"));
    value.toTemplates2Format(parent);
    CHECK_EQUAL(parent.childNodes().size(), value.hasValue(ORIENTATION_ALL) ? 0 : value.countBits());

    const RVOrientation basics = value.reduceToBasics();
    CHECK(basics.countBits() <= 1 && basics.reduceToBasics() == basics);
    CHECK_EQUAL(basics.encodeForDLP(), value.encodeForDLP());
    CHECK(value.defaultWidthHeightRatio() > 0.0);
    CHECK(!value.previewFileNamePrefix().isEmpty());
    value.humanReadable();
    const RVOrientation read(text, QSizeF(2, 3));
    CHECK(read == (RVOrientation(text).isNull() ? RVOrientation(QSizeF(2, 3)) : RVOrientation(text)));
}

void checkOwn(const RVPageBinding &value, const QString &)
{
    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("template"));
    value.toTemplates2Format(parent);
    CHECK(parent.childNodes().size() <= 1);
    value.humanReadableName();
}

void checkOwn(const RVCoverType &value, const QString &text)
{
    CHECK(!value.isNull() || !value.isRegularCover());
    value.isFullCover();
    value.isSimplex();
    value.humanReadableName();
    value.toolTip();
    checkName(text, RVCoverType());
}

void checkOwn(const RVPaperType &value, const QString &text)
{
    CHECK(!value.humanReadableName().isEmpty());
    checkName(text, RVPaperType(INDIGO));
}

void checkOwn(const RVFotoPaperType &value, const QString &text)
{
    const QString code = value.encodeForProduction();
    if (!code.isEmpty())
        CHECK(RVFotoPaperType::createFromXTCI(code) == QList<RVFotoPaperType> { value });
    for (const RVFotoPaperType &element : RVFotoPaperType::createFromXTCI(text))
        CHECK(element.hasExactlyOneBit());
    CHECK_EQUAL(value.humanReadableName().isNull(), code.isEmpty() && !value.isNull());
}

void checkOwn(const RVSpaceMagnitude &value, const QString &text)
{
    CHECK(value.maxReasonableImagesPerPage() >= 1);
    CHECK(value.suitableFontSizeInPoints() >= 1);
    CHECK(value.normativeSize() >= 0);
    CHECK_EQUAL(value.normativeSize() > 0, value.countBits() == 1 && hasKeyword<RVSpaceMagnitude>(value.value()));
    CHECK(!value.humanReadableName().isEmpty());
    value.optimumFotosPerPage(RVOrientation(text));
    checkName(text, RVSpaceMagnitude());
    value.scaleFactorForArea(RVSpaceMagnitude(text));
    value.scaleFactorPerDimension(RVSpaceMagnitude(text));
}

void checkOwn(const RVPageAlignment &value, const QString &text)
{
    value.describe();
    for (const bool split : { true, false }) {
        CHECK(value.pdfPostFix(split).endsWith(QLatin1StringView(".pdf")));
        const QString path = value.modifyProductionPath(text, split);
        const bool isPdf = text.contains(QLatin1StringView(".pdf"), Qt::CaseInsensitive);
        CHECK(isPdf ? path.contains(value.pdfPostFix(split)) : path == text);
    }
}

void checkOwn(const RVPageType &value, const QString &text)
{
    RVPageType expanded = value;
    expanded.expandToKeyword(text);
    CHECK(expanded == (value | RVPageType(text)));
    CHECK(value.productionRenderingRule() >= 0 && value.productionRenderingRule() <= 2);
    CHECK(value.explicitOrderPageNumber() >= -1 && value.explicitOrderPageNumber() <= 2);
    CHECK(QList<int>({ 0, 3, 7 }).contains(value.acceptTemplateRule()));
    CHECK(QList<int>({ 0, 3 }).contains(value.acceptFotoRule()));
    value.isSpotColorAllowed({ RVSpotColor(text), RVSpotColor(SPOT_COLOR_GLOSS) });
}

void checkOwn(const RVDlpType &value, const QString &)
{
    const RVDlpType filtered(value | RVDlpType(DLP_TYPE_FILTER_LINNEN_CAPABLE));
    for (const int n : { -1, 0, 1, 3 })
        CHECK_EQUAL(filtered.visibleName(n), value.visibleName(n));
    CHECK_EQUAL(filtered.dlpPath(true), value.dlpPath(true));
    CHECK_EQUAL(filtered.dlpPath(false), value.dlpPath(false));
    CHECK_EQUAL(filtered.queryValue(), value.queryValue());
    CHECK(!value.describe().isEmpty());
}

template<typename T>
void checkAttribute(Input &input)
{
    const QString text = input.text();
    const QString other = input.text();
    const T bits { EnumOf<T>(input.number()) };
    checkReading<T>(text, other);
    for (const T &value : { T(text), bits }) {
        checkBits(value);
        checkWriting(value);
        checkOwn(value, text);
        CHECK(!shown(value).isEmpty() || value.encode().isEmpty());
    }
    checkSetOperations(T(text), T(other));
    checkSetOperations(bits, T(text));
    checkSetOperations(T(text), bits);
}

void checkDecoding(const RVCatalogueAttribute &attribute, const QString &text)
{
    const RVCatalogueAttributeDecoding decoding = attribute.decode(text);
    CHECK(decoding.unknownPieces.size() <= text.count(u',') + 1);
    for (const QString &piece : decoding.unknownPieces)
        CHECK_EQUAL(attribute.decode(piece).unknownPieces, QStringList { piece });
}

constexpr auto CHECKS = std::apply(
        [](const auto &...rows) {
            return std::array { checkAttribute<typename std::decay_t<decltype(rows)>::Class>... };
        },
        RV_CATALOGUE_ATTRIBUTES);

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::size_t choice = data[0] % CHECKS.size();
    Input input(data + 1, size - 1);
    CHECKS[choice](input);
    Input again(data + 1, size - 1);
    checkDecoding(RVCatalogueAttribute::all().at(qsizetype(choice)), again.text());
    return 0;
}
