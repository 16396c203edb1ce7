#ifndef PRODUCTCHOICE_H
#define PRODUCTCHOICE_H

#include <RVArticleVariants.h>

/// What somebody can choose for a product.
struct ProductChoice
{
    int pages = 0;
    RVArticleVariants variants;
};

#endif
