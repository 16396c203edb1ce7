#include "RVConfiguredArticleVariantList.h"

#include "RVDomChildren_p.h"
#include "RVKomma_p.h"
#include "RVOptionPair_p.h"

#include <QDebug>
#include <QMap>

#include <algorithm>
#include <functional>
#include <iterator>

namespace {

bool matches(const RVConfiguredArticleVariant &option, const RVArticleVariants &variants)
{
    return variants.value(option.key()) == option.value();
}

template<typename Condition>
RVConfiguredArticleVariant firstOf(const RVConfiguredArticleVariantList &options, Condition condition)
{
    const auto found = std::find_if(options.begin(), options.end(), condition);
    return found == options.end() ? RVConfiguredArticleVariant() : *found;
}

}

RVConfiguredArticleVariantList::RVConfiguredArticleVariantList(const RVConfiguredArticleVariant &variant)
{
    appendValid(variant);
}

RVConfiguredArticleVariantList::RVConfiguredArticleVariantList(const QDomElement &product)
{
    readVariants(product);
}

RVConfiguredArticleVariantList RVConfiguredArticleVariantList::createFromCSV(const QString &text)
{
    RVConfiguredArticleVariantList result;
    for (const QString &piece : text.split(KOMMA, Qt::SkipEmptyParts))
        result.appendValid(piece);
    return result;
}

RVConfiguredArticleVariantList
RVConfiguredArticleVariantList::createForProduction(const RVConfiguredArticleVariant &variant)
{
    RVConfiguredArticleVariantList result;
    for (const RVOptionPair &pair : rvExpandComposite(variant.key(), variant.value()))
        result.append(RVConfiguredArticleVariant(pair.key, pair.value));
    return result;
}

RVConfiguredArticleVariantList
RVConfiguredArticleVariantList::createFromReduced(const RVConfiguredArticleVariant &variant)
{
    return createForProduction(variant);
}

void RVConfiguredArticleVariantList::readVariants(const QDomElement &product)
{
    clear();
    const QDomElement forms = rvFirstChildElement(product, QStringLiteral("forms"));
    rvVisitChildElements(forms, QStringLiteral("form"), [this](const QDomElement &form) { appendValid(form); });
}

RVConfiguredArticleVariant RVConfiguredArticleVariantList::variantByKey(const QString &key) const
{
    return firstOf(*this, [&](const RVConfiguredArticleVariant &option) { return option.key() == key; });
}

RVConfiguredArticleVariant RVConfiguredArticleVariantList::variantByValue(const QString &value) const
{
    return firstOf(*this, [&](const RVConfiguredArticleVariant &option) { return option.value() == value; });
}

RVConfiguredArticleVariant RVConfiguredArticleVariantList::notAccountableVariant() const
{
    return firstOf(*this, [](const RVConfiguredArticleVariant &option) { return option.isNotAccountable(); });
}

RVConfiguredArticleVariant RVConfiguredArticleVariantList::variant(const RVArticleVariants &variants) const
{
    return firstOf(*this, [&](const RVConfiguredArticleVariant &option) { return matches(option, variants); });
}

RVConfiguredArticleVariantList RVConfiguredArticleVariantList::filter(const QString &key) const
{
    RVConfiguredArticleVariantList result;
    std::copy_if(begin(), end(), std::back_inserter(result),
                 [&](const RVConfiguredArticleVariant &option) { return option.key() == key; });
    return result;
}

QStringList RVConfiguredArticleVariantList::keys() const
{
    QStringList result;
    for (const RVConfiguredArticleVariant &option : *this)
        result += option.key();
    result.sort();
    result.removeDuplicates();
    return result;
}

bool RVConfiguredArticleVariantList::contains(const RVConfiguredArticleVariant &variant) const
{
    return QList::contains(variant);
}

bool RVConfiguredArticleVariantList::contains(const RVConfiguredArticleVariantList &other) const
{
    return std::all_of(other.begin(), other.end(),
                       [&](const RVConfiguredArticleVariant &option) { return contains(option); });
}

bool RVConfiguredArticleVariantList::contains(const RVArticleVariants &variants, bool) const
{
    const QStringList keys = variants.keys();
    return std::all_of(keys.begin(), keys.end(), [&](const QString &key) {
        return contains(RVConfiguredArticleVariant(key, variants.value(key)));
    });
}

bool RVConfiguredArticleVariantList::containsAtLeastOne(const RVConfiguredArticleVariantList &other) const
{
    if (isEmpty() || other.isEmpty())
        return true;
    return std::any_of(begin(), end(),
                       [&](const RVConfiguredArticleVariant &option) { return other.contains(option); });
}

bool RVConfiguredArticleVariantList::containsOnlyColorWhite() const
{
    return size() == 1 && contains(RVArticleVariants(QStringLiteral("color"), QStringLiteral("white")));
}

RVArticleVariants RVConfiguredArticleVariantList::defaultVariants() const
{
    RVConfiguredArticleVariantList defaults;
    std::copy_if(begin(), end(), std::back_inserter(defaults), std::mem_fn(&RVConfiguredArticleVariant::isDefault));
    if (defaults.isEmpty()) {
        QMap<QString, RVConfiguredArticleVariant> firstByKey;
        std::for_each(rbegin(), rend(),
                      [&](const RVConfiguredArticleVariant &option) { firstByKey.insert(option.key(), option); });
        defaults.append(firstByKey.values());
    }
    RVArticleVariants result;
    for (const RVConfiguredArticleVariant &option : defaults)
        result.insert(option.toArticleVariants());
    return result;
}

QStringList RVConfiguredArticleVariantList::visibleNames(const RVArticleVariants &variants) const
{
    QStringList result;
    for (const RVConfiguredArticleVariant &option : *this) {
        if (matches(option, variants))
            result += QStringLiteral("%1: %2").arg(option.keyName(), option.visibleName());
    }
    return result;
}

QStringList RVConfiguredArticleVariantList::editorNames(const RVArticleVariants &variants) const
{
    QStringList result;
    for (const RVConfiguredArticleVariant &option : *this) {
        if (matches(option, variants))
            result += option.editorName();
    }
    return result;
}

RVArticleVariantsList RVConfiguredArticleVariantList::possibleBoxStyles() const
{
    const RVConfiguredArticleVariantList photos = filter(RVArticleVariants::coverFotoKeyName());
    RVArticleVariantsList result;
    for (const RVConfiguredArticleVariant &box : filter(RVArticleVariants::pictureBoxKeyName())) {
        if (photos.isEmpty())
            result += box.toArticleVariants();
        for (const RVConfiguredArticleVariant &photo : photos) {
            RVArticleVariants style = box.toArticleVariants();
            style.insert(photo.toArticleVariants());
            result += style;
        }
    }
    return result;
}

QString RVConfiguredArticleVariantList::joinForOrderTxt() const
{
    QStringList pieces;
    for (const RVConfiguredArticleVariant &option : *this) {
        for (const RVOptionPair &pair : rvExpandComposite(option.key(), option.value()))
            pieces += rvJoinOption(pair.key, pair.value);
    }
    return pieces.join(u';');
}

void RVConfiguredArticleVariantList::intersect(const RVConfiguredArticleVariantList &other, bool takeOtherWhenEmpty)
{
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the argument may be this very list.
    const RVConfiguredArticleVariantList kept = other;
    if (isEmpty() && takeOtherWhenEmpty)
        *this = kept;
    else
        removeIf([&](const RVConfiguredArticleVariant &option) { return !kept.contains(option); });
}

void RVConfiguredArticleVariantList::appendValid(const RVConfiguredArticleVariant &variant)
{
    if (variant.isValid())
        append(variant);
}

QDebug operator<<(QDebug debug, const RVConfiguredArticleVariantList &variants)
{
    debug.nospace() << "RVConfiguredArticleVariantList: [";
    int position = 0;
    // Every option switches the blanks back on when it is done.
    for (const RVConfiguredArticleVariant &variant : variants)
        debug.nospace() << ++position << ": " << variant;
    debug.nospace() << " ]";
    return debug.space();
}
