#include "Order.h"

#include <Bill.h>

using namespace Qt::StringLiterals;

Order::Order(const RVCatalogueProject &project, const RVCatalogueProduct &product)
    : myProject(project),
      myValues(product),
      myOptions(product.options())
{ }

/// The problem of an option; empty if the catalogue offers it.
QString Order::wrongOption(const QString &key, const QString &value) const
{
    const RVConfiguredArticleVariantList offered = myOptions.filter(key);
    QStringList values;
    for (const RVConfiguredArticleVariant &option : offered)
        values += option.value();
    if (offered.isEmpty())
        return u"%1 has no option \"%2\"; it has: %3"_s.arg(myValues.type.toString(), key,
                                                            myOptions.keys().join(", "_L1));
    if (!values.contains(value))
        return u"the option \"%1\" has no value \"%2\"; it has: %3"_s.arg(key, value, values.join(", "_L1));
    return QString();
}

QStringList Order::optionProblems() const
{
    QStringList problems;
    for (const QString &piece : myProject.variants().split(u',', Qt::SkipEmptyParts)) {
        if (!RVArticleVariants(piece).isValid())
            problems += u"\"%1\" is no option; options are written key:value"_s.arg(piece);
    }
    const RVArticleVariants wanted = chosen();
    for (const QString &key : wanted.keys()) {
        const QString problem = wrongOption(key, wanted.value(key));
        if (!problem.isEmpty())
            problems += problem;
    }
    return problems;
}

/// The reason why this number of pages cannot be ordered; empty if it can.
QString Order::pageCountProblem() const
{
    const RVPageCountOrganization &counts = myValues.pageCounts;
    const QString type = myValues.type.toString();
    const QString text = myProject.pages();
    bool isNumber = false;
    const int pages = text.toInt(&isNumber);
    if (text.isEmpty() || !counts.isValid() || (isNumber && counts.isValidPageCount(pages)))
        return QString();
    if (!isNumber)
        return u"\"%1\" is no page count"_s.arg(text);
    if (counts.minPages() == counts.maxPages())
        return u"%1 pages are impossible: %2 has always %3"_s.arg(text, type).arg(counts.minPages());
    return u"%1 pages are impossible: %2 has %3 to %4 pages in steps of %5, the next is %6"_s.arg(text, type)
            .arg(counts.minPages())
            .arg(counts.maxPages())
            .arg(counts.pageIncrement())
            .arg(qMin(counts.constrain(pages), counts.pageCounts().last()));
}

/// The place of an attribute of the project file.
RVFilePosition Order::place(QLatin1StringView attribute) const
{
    return myProject.element().attributeRange(attribute).begin;
}

QList<Problem> Order::problems() const
{
    QList<Problem> result;
    for (const QString &text : optionProblems())
        result += { place("variants"_L1), text };
    const RVPageCountOrganization &counts = myValues.pageCounts;
    if (!counts.isValid())
        result += { place("productname"_L1),
                    u"the catalogue gives no valid page counts for %1 (%2)"_s.arg(myValues.type.toString(),
                                                                                  counts.dump()) };
    const QString text = pageCountProblem();
    if (!text.isEmpty())
        result += { place("pages"_L1), text };
    return result;
}

int Order::pages() const
{
    const QString wanted = myProject.pages();
    return wanted.isEmpty() ? myValues.pageCounts.minPages() : wanted.toInt();
}

int Order::packages() const
{
    return myValues.pageCounts.countPackages(pages());
}

RVArticleVariants Order::variants() const
{
    RVArticleVariants result = myOptions.defaultVariants();
    result.insert(chosen());
    return result;
}

QList<ProductOption> Order::options() const
{
    const RVArticleVariants ordered = variants();
    QList<ProductOption> result;
    for (const ProductOption &option : ProductOption::of(myValues.product)) {
        if (ordered.value(option.option.key()) == option.option.value())
            result += option;
    }
    return result;
}

QStringList Order::chosenKeys() const
{
    return chosen().keys();
}

QMap<RVPriceClass, qint64> Order::priceClasses() const
{
    return Bill(myValues.product, packages(), variants()).counts();
}
