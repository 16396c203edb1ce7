#include "ComparedProduct.h"

ComparedProduct::ComparedProduct(const RVProductComparison &product)
    : kind(product.kind()),
      isRenamed(product.isRenamed()),
      oldType(product.oldProduct().type()),
      newType(product.newProduct().type()),
      name(product.product().name()),
      articleId(product.product().articleId()),
      oldPosition(product.oldPosition()),
      newPosition(product.newPosition()),
      changes(product.changes())
{ }
