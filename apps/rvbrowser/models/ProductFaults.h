#ifndef PRODUCTFAULTS_H
#define PRODUCTFAULTS_H

#include "LoadedCatalogue.h"

#include <QCoreApplication>

/// The errors of one product, in few words.
class ProductFaults
{
    Q_DECLARE_TR_FUNCTIONS(ProductFaults)

public:
    ProductFaults(const LoadedCatalogue &catalogue, int product);

    /// One line each for the first three, and how many more there are; empty where there are none.
    QString text() const;

private:
    QStringList myErrors;
};

#endif
