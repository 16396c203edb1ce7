#include "RVArticleVariantsList.h"

#include <algorithm>

RVArticleVariantsList::~RVArticleVariantsList() = default;

bool RVArticleVariantsList::containsBoxStyle(const RVArticleVariants &variants) const
{
    return std::any_of(begin(), end(), [&](const RVArticleVariants &element) { return element.contains(variants); });
}
