#ifndef PRODUCTCONDITION_H
#define PRODUCTCONDITION_H

#include <RVCatalogueProduct.h>

#include <QString>
#include <QStringList>

#include <functional>

/**
 * A condition on products, such as "cover_type=HARDCOVER", "name=*Mini*" or "max_pages>=100".
 *
 * Keywords compare by their values: a product meets a list of them when it has all of their bits. Texts may have the
 * wildcards "*", "?" and "[...]", and are compared without letter case. Numbers may have "<", ">", "<=" and ">=" as
 * well; a product without the number meets none of these. A missing value after "=" selects products without the
 * attribute. "!=" negates the result.
 */
class ProductCondition
{
public:
    /// The names of attributes, those with keywords first.
    static QStringList attributeNames();

    explicit ProductCondition(const QString &text);

    /// The reason why the text is no condition; empty if it is one. No product meets an invalid condition.
    const QString &problem() const { return myProblem; }
    /// Any thread may ask.
    bool isMetBy(const RVCatalogueProduct &product) const;

private:
    using Test = std::function<bool(const RVCatalogueProduct &)>;

    Test keywordTest(const QString &name, const QString &sign, const QString &value);
    Test numberTest(const QString &name, const QString &sign, const QString &value);
    Test textTest(const QString &name, const QString &sign, const QString &value);

    Test myTest;
    QString myProblem;
    bool myIsNegated = false;
};

#endif
