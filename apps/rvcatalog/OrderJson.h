#ifndef ORDERJSON_H
#define ORDERJSON_H

#include "Order.h"

#include <string>

/// The files that an order was made of, as the command line names them.
struct OrderFiles
{
    QString catalogue;
    QString project;
};

/// A JSON object with an order and its problems, one line. @p order is null where there are problems.
std::string orderJson(const Order *order, const OrderFiles &files, const QList<Problem> &problems);

#endif
