#ifndef RVNAMEVOCABULARY_P_H
#define RVNAMEVOCABULARY_P_H

#include <QByteArrayView>
#include <QLatin1StringView>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>

/// True if a text of a file in UTF-8 is this name.
inline bool rvIsName(QByteArrayView text, QLatin1StringView name)
{
    return text.size() == name.size() && std::memcmp(text.data(), name.data(), std::size_t(text.size())) == 0;
}

/// Names that stand in a table, which outlives the list.
struct RVNameList
{
    constexpr RVNameList() = default;
    constexpr RVNameList(const QLatin1StringView *begin, const QLatin1StringView *end) : first(begin), last(end) { }
    template<std::size_t N>
    constexpr RVNameList(const QLatin1StringView (&names)[N]) : RVNameList(names, names + N)
    { }

    const QLatin1StringView *begin() const { return first; }
    const QLatin1StringView *end() const { return last; }
    bool contains(QByteArrayView name) const
    {
        return std::any_of(first, last, [name](QLatin1StringView each) { return rvIsName(name, each); });
    }

    const QLatin1StringView *first = nullptr;
    const QLatin1StringView *last = nullptr;
};

/// Looks up names fast if they come in about the order of the list, as in most files.
class RVNameFinder
{
public:
    explicit RVNameFinder(const RVNameList &names) : myNames(names), myNext(names.begin()) { }

    bool contains(QByteArrayView name)
    {
        if (const auto *found = find(myNext, myNames.end(), name); found != myNames.end())
            myNext = found + 1;
        else if (const auto *earlier = find(myNames.begin(), myNext, name); earlier != myNext)
            myNext = earlier + 1;
        else
            return false;
        return true;
    }

private:
    static const QLatin1StringView *find(const QLatin1StringView *begin, const QLatin1StringView *end,
                                         QByteArrayView name)
    {
        return std::find_if(begin, end, [name](QLatin1StringView each) { return rvIsName(name, each); });
    }

    RVNameList myNames;
    const QLatin1StringView *myNext;
};

/// An element that is read: its parent and the attributes that are read.
struct RVKnownElement
{
    QLatin1StringView name;
    QLatin1StringView parent; // empty for a product, which stands anywhere
    bool isSingle; // only the first is read
    RVNameList attributes;
};

// clang-format off
inline constexpr QLatin1StringView RV_PRODUCT_ATTRIBUTES[] = {
    QLatin1StringView("type"),
    QLatin1StringView("article_id"),
    QLatin1StringView("name"),
    QLatin1StringView("article_class"),
    QLatin1StringView("cover_type"),
    QLatin1StringView("page_binding"),
    QLatin1StringView("paper_type"),
    QLatin1StringView("foto_paper_type"),
    QLatin1StringView("orientation"),
    QLatin1StringView("space_magnitude"),
    QLatin1StringView("shipping_group"),
    QLatin1StringView("price_class"),
    QLatin1StringView("page_price_class"),
    QLatin1StringView("pages"),
    QLatin1StringView("max_pages"),
    QLatin1StringView("page_step"),
    QLatin1StringView("pieces"),
    QLatin1StringView("photo_box"),
};
inline constexpr QLatin1StringView RV_BARCODES_ATTRIBUTES[] = {
    QLatin1StringView("units"),
};
inline constexpr QLatin1StringView RV_BARCODE_ATTRIBUTES[] = {
    QLatin1StringView("position_x"),
    QLatin1StringView("position_y"),
    QLatin1StringView("width"),
    QLatin1StringView("height"),
    QLatin1StringView("image"),
    QLatin1StringView("pageNr"),
};
inline constexpr QLatin1StringView RV_COMPOSITION_ATTRIBUTES[] = {
    QLatin1StringView("units"),
};
inline constexpr QLatin1StringView RV_SPINE_ATTRIBUTES[] = {
    QLatin1StringView("packages_per_block"),
    QLatin1StringView("base_width"),
    QLatin1StringView("block_width"),
    QLatin1StringView("additional_width"),
};
inline constexpr QLatin1StringView RV_FORM_ATTRIBUTES[] = {
    QLatin1StringView("key"),
    QLatin1StringView("key_name"),
    QLatin1StringView("value"),
    QLatin1StringView("value_name"),
    QLatin1StringView("editor_name"),
    QLatin1StringView("name"),
    QLatin1StringView("preview"),
    QLatin1StringView("color"),
    QLatin1StringView("preselected"),
    QLatin1StringView("not_accountable"),
    QLatin1StringView("price_class"),
};

/// All elements that are read.
inline constexpr RVKnownElement RV_KNOWN_ELEMENTS[] = {
    { QLatin1StringView("product"),     QLatin1StringView(),              false, RV_PRODUCT_ATTRIBUTES },
    { QLatin1StringView("barcodes"),    QLatin1StringView("product"),     true,  RV_BARCODES_ATTRIBUTES },
    { QLatin1StringView("barcode"),     QLatin1StringView("barcodes"),    false, RV_BARCODE_ATTRIBUTES },
    { QLatin1StringView("composition"), QLatin1StringView("product"),     true,  RV_COMPOSITION_ATTRIBUTES },
    { QLatin1StringView("spine"),       QLatin1StringView("composition"), true,  RV_SPINE_ATTRIBUTES },
    { QLatin1StringView("forms"),       QLatin1StringView("product"),     true,  {} },
    { QLatin1StringView("form"),        QLatin1StringView("forms"),       false, RV_FORM_ATTRIBUTES },
};
// clang-format on

/// The element with that name; null if there is none.
inline const RVKnownElement *rvKnownElement(QByteArrayView name)
{
    const auto *found = std::find_if(std::begin(RV_KNOWN_ELEMENTS), std::end(RV_KNOWN_ELEMENTS),
                                     [name](const RVKnownElement &element) { return rvIsName(name, element.name); });
    return found == std::end(RV_KNOWN_ELEMENTS) ? nullptr : found;
}

#endif
