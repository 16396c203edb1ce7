#ifndef ORDERJSON_H
#define ORDERJSON_H

#include "Order.h"

#include <string>

/// The files of an order, as named on the command line.
struct OrderFiles
{
    QString catalogue;
    QString project;
};

/// A JSON object with an order and its problems, on one line. @p order is null if there are problems.
std::string orderJson(const Order *order, const OrderFiles &files, const QList<Problem> &problems);

#endif
