// Options in their text forms: one in the project-file form, one as a pair of key and value, a list of the catalogue's
// options as a text, key and value of one of them, and its other texts; the rest is JSON.
#include "Input.h"
#include "Properties.h"

#include <RVArticleVariants.h>
#include <RVArticleVariantsList.h>
#include <RVConfiguredArticleVariant.h>
#include <RVConfiguredArticleVariantList.h>
#include <RVSpotColor.h>

#include <QDomDocument>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool hasOneOf(const QString &text, QLatin1StringView characters)
{
    return std::any_of(text.begin(), text.end(), [&](QChar c) { return characters.contains(c); });
}

/// The options that the project-file form can carry: neither key nor value is empty.
RVArticleVariants writable(const RVArticleVariants &variants)
{
    RVArticleVariants result;
    for (const QString &key : variants.keys())
        result.insert(RVArticleVariants(key, variants.value(key)));
    return result;
}

/// All keys and values.
QString textsOf(const RVArticleVariants &variants)
{
    return (variants.keys() + variants.values()).join(u'\n');
}

QStringList pieces(const QString &orderText)
{
    return orderText.split(u';', Qt::SkipEmptyParts);
}

void checkForms(const RVArticleVariants &variants)
{
    const QString texts = textsOf(variants);
    if (!hasOneOf(texts, ",:|+"_L1))
        CHECK_EQUAL(RVArticleVariants::createFromKTX(variants.toKTX()), writable(variants));

    const RVArticleVariants production = variants.toXTCI();
    CHECK_EQUAL(production.toXTCI(), production);
    CHECK_EQUAL(writable(production), production);
    CHECK(!textsOf(production).contains(u';'));
    const QStringList written = pieces(variants.toOrderTxt());
    for (const QString &piece : pieces(production.toOrderTxt()))
        CHECK(written.contains(piece));

    if (!texts.contains(u':') && !texts.contains("form_parameter-"_L1)) {
        QJsonArray parameters;
        for (const QString &key : variants.keys())
            parameters += QString("form_parameter-"_L1 + key + u':' + variants.value(key));
        CHECK_EQUAL(RVArticleVariants(parameters), variants);
    }
}

void checkVariants(const RVArticleVariants &variants, const RVArticleVariants &other)
{
    checkForms(variants);
    checkCopies(variants, other);

    const QStringList keys = variants.keys();
    CHECK(std::is_sorted(keys.begin(), keys.end()));
    const QStringList values = variants.values();
    CHECK_EQUAL(values.size(), keys.size());
    CHECK_EQUAL(variants.isValid(), !keys.isEmpty());
    CHECK_EQUAL(variants.containsNotAccountableVariant(), values.contains("notAccountable"_L1));
    CHECK_EQUAL(variants.hasCoverColor(), keys.contains("alcolor"_L1));
    CHECK_EQUAL(variants.hasFlyLeafColor(), keys.contains("flyleafcolor"_L1));
    CHECK_EQUAL(variants.hasCutOut(), keys.contains("cutout"_L1));

    RVArticleVariants backwards;
    for (auto key = keys.rbegin(); key != keys.rend(); ++key)
        backwards.insert(*key, variants.value(*key));
    CHECK_EQUAL(backwards, variants);
    CHECK_EQUAL(backwards.hash(), variants.hash());
    backwards.insert(backwards);
    CHECK_EQUAL(backwards, variants);

    RVArticleVariants merged = variants;
    merged.insert(other);
    CHECK(merged.contains(other));
    CHECK(variants.contains(variants) && variants.contains(RVArticleVariants()));
    CHECK(variants.containsAtLeastOne(variants));
    CHECK(!variants.contains(other) || !other.contains(variants) || writable(variants) == writable(other));
    const RVArticleVariantsList list = { variants, other };
    CHECK(list.containsBoxStyle(variants) && list.containsBoxStyle(other));
}

void checkOption(const RVConfiguredArticleVariant &option, const RVConfiguredArticleVariant &other)
{
    checkCopies(option, other);
    checkOrder(option, option);
    CHECK(!(option < other && other < option));
    CHECK_EQUAL(option.isValid(), !option.key().isEmpty() && !option.value().isEmpty());
    CHECK_EQUAL(option.toString().isNull(), !option.isValid());
    CHECK_EQUAL(option.toArticleVariants().isValid(), option.isValid());
    if (option.isValid() && !option.key().contains(u':') && !option.value().contains(u':'))
        CHECK(RVConfiguredArticleVariant(option.toString()) == option);
    CHECK_EQUAL(option.describe(), option.describe().simplified());
    CHECK_EQUAL(option.describe().isEmpty(), option.keyName().isEmpty());
    option.preview();
    option.isSpotColor(RVSpotColor(option.value()));

    RVConfiguredArticleVariant merged = option;
    merged.merge(other);
    CHECK(merged == option);
    CHECK_EQUAL(merged.keyName(), option.keyName());
    CHECK_EQUAL(merged.isDefault(), option.isDefault());
    CHECK(merged.color() == other.color());
}

void checkEachOption(const RVConfiguredArticleVariantList &options)
{
    QStringList texts;
    for (const RVConfiguredArticleVariant &option : options) {
        CHECK(option.isValid());
        CHECK(options.contains(option));
        CHECK(options.variantByKey(option.key()).key() == option.key());
        CHECK(options.variantByValue(option.value()).value() == option.value());
        CHECK(options.variant(option.toArticleVariants()) == option);
        CHECK(options.contains(option.toArticleVariants()));
        for (const RVConfiguredArticleVariant &single : RVConfiguredArticleVariantList::createForProduction(option))
            CHECK(single.isValid() && !single.key().contains(u';') && !single.value().contains(u';'));
        CHECK(RVConfiguredArticleVariantList::createFromReduced(option)
              == RVConfiguredArticleVariantList::createForProduction(option));
        texts += option.toString();
    }
    const QString csv = texts.join(u',');
    if (csv.count(u',') + 1 == options.size() && csv.count(u':') == options.size())
        CHECK(RVConfiguredArticleVariantList::createFromCSV(csv) == options);
}

void checkKeys(const RVConfiguredArticleVariantList &options)
{
    qsizetype countOfKeys = 0;
    for (const QString &key : options.keys())
        countOfKeys += options.filter(key).size();
    CHECK_EQUAL(countOfKeys, options.size());

    const RVArticleVariants defaults = options.defaultVariants();
    CHECK(options.contains(defaults));
    CHECK_EQUAL(defaults.keys(), options.keys());
    CHECK_EQUAL(options.visibleNames(defaults).size(), options.editorNames(defaults).size());
    const auto photos = options.filter(u"coverphoto"_s).size();
    CHECK_EQUAL(options.possibleBoxStyles().size(), options.filter(u"boxstyle"_s).size() * qMax(1, int(photos)));
    CHECK(!options.containsOnlyColorWhite() || options.joinForOrderTxt() == "color:white"_L1);
}

void checkSets(const RVConfiguredArticleVariantList &options, const RVConfiguredArticleVariantList &other)
{
    CHECK(options.contains(options) && options.containsAtLeastOne(options));
    CHECK_EQUAL(options.containsAtLeastOne(other), other.containsAtLeastOne(options));
    RVConfiguredArticleVariantList common = options;
    common.intersect(other);
    CHECK(options.contains(common) && other.contains(common));
    CHECK_EQUAL(!common.isEmpty(), options.containsAtLeastOne(other) && !options.isEmpty() && !other.isEmpty());
    common.intersect(other);
    CHECK(options.contains(common) && other.contains(common));
    RVConfiguredArticleVariantList same = options;
    same.intersect(same);
    CHECK(same == options);
    RVConfiguredArticleVariantList taken;
    taken.intersect(options, true);
    CHECK(taken == options);
    CHECK(shown(options).startsWith("RVConfiguredArticleVariantList: ["_L1));
}

void checkOptions(const RVConfiguredArticleVariantList &options, const RVConfiguredArticleVariantList &other)
{
    checkEachOption(options);
    checkKeys(options);
    checkSets(options, other);
}

/// An option of the products XML, with the same text in every text attribute.
RVConfiguredArticleVariant fromXml(const QString &key, const QString &value, const QString &text)
{
    QDomDocument document;
    QDomElement form = document.createElement(u"form"_s);
    form.setAttribute(u"key"_s, key);
    form.setAttribute(u"value"_s, value);
    for (const QString &name : { u"key_name"_s, u"value_name"_s, u"editor_name"_s, u"name"_s, u"preview"_s, u"color"_s,
                                 u"preselected"_s, u"not_accountable"_s })
        form.setAttribute(name, text);
    const RVConfiguredArticleVariant option(form);
    CHECK_EQUAL(option.key(), key);
    CHECK_EQUAL(option.value(), value);
    CHECK_EQUAL(option.keyName(), text);
    CHECK_EQUAL(option.editorName(), text);
    RVArticleVariants pair;
    pair.insert(key, value);
    CHECK_EQUAL(RVArticleVariants(form), pair);
    return option;
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const QString ktx = input.text();
    const RVArticleVariants read = RVArticleVariants::createFromKTX(ktx);
    const RVArticleVariants single(input.text());
    const auto options = RVConfiguredArticleVariantList::createFromCSV(input.text());
    const QString key = input.text();
    const QString value = input.text();
    RVArticleVariants raw = single;
    raw.insert(key, value);
    raw.splitForProduction(key, value);
    const RVConfiguredArticleVariant configured = fromXml(key, value, input.text());
    const RVArticleVariants json(QJsonDocument::fromJson(input.rest()).array());

    CHECK_EQUAL(RVArticleVariants::createFromKTX(ktx + u',' + ktx), read);
    checkVariants(read, json);
    for (const RVArticleVariants &variants : { single, raw, json })
        checkVariants(variants, read);
    checkOption(configured, RVConfiguredArticleVariant(ktx));
    checkOption(RVConfiguredArticleVariant(ktx), configured);
    checkOptions(options, RVConfiguredArticleVariantList(configured));
    checkOptions(options, RVConfiguredArticleVariantList::createFromCSV(ktx));
    checkOptions(RVConfiguredArticleVariantList::createForProduction({ key.simplified(), value.simplified() }), {});
    return 0;
}
