#ifndef PRODUCTCHOICE_H
#define PRODUCTCHOICE_H

#include <RVArticleVariants.h>

/// The choices of the user for a product.
struct ProductChoice
{
    int pages = 0;
    RVArticleVariants variants;
};

#endif
