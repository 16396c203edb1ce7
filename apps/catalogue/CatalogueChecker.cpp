#include "CatalogueChecker.h"

#include "BatchPipeline.h"
#include "ProductCheck.h"

using namespace Qt::StringLiterals;

namespace {

/// A place in as little memory as a hundred thousand of them need.
struct SmallPosition
{
    quint32 line;
    quint32 column;
};

/// What may come only once in a file. A type is known by its hash, which has 64 bits.
class Duplicates
{
public:
    Duplicates(const QSet<QString> &disabledRules, const CatalogueChecker::Take &take)
        : myDisabledRules(disabledRules),
          myTake(take)
    { }

    void check(const CheckedProduct &product, qint64 number)
    {
        if (product.type.isValid())
            find(&myTypes, quint64(product.type.calcHashValue()), Rule::TypeDuplicate, product, number, typeText);
        if (product.articleId != 0)
            find(&myArticleIds, product.articleId, Rule::ArticleIdDuplicate, product, number, articleIdText);
    }

private:
    using Text = QString (*)(const CheckedProduct &product, const QString &line);

    static QString typeText(const CheckedProduct &product, const QString &line)
    {
        const QString family = product.type.toString();
        if (product.typeText == family)
            return FindingText::tr("the type %1 is already that of the product in line %2").arg(quoted(family), line);
        return FindingText::tr("the type %1, that is %2, is already that of the product in line %3")
                .arg(quoted(product.typeText), quoted(family), line);
    }

    static QString articleIdText(const CheckedProduct &product, const QString &line)
    {
        return FindingText::tr("the article id %1 is already that of the product in line %2")
                .arg(QString::number(product.articleId), line);
    }

    template<typename Id>
    void find(QHash<Id, SmallPosition> *seen, Id id, Rule rule, const CheckedProduct &product, qint64 number, Text text)
    {
        const auto known = seen->constFind(id);
        if (known == seen->constEnd()) {
            seen->insert(id, { quint32(product.position.line), quint32(product.position.column) });
            return;
        }
        const CatalogueRule &broken = catalogueRule(rule);
        if (!myDisabledRules.contains(broken.name))
            myTake({ product.position, broken.severity, text(product, QString::number(known->line)), broken.name,
                     number });
    }

    const QSet<QString> &myDisabledRules;
    const CatalogueChecker::Take &myTake;
    QHash<quint64, SmallPosition> myTypes;
    QHash<int, SmallPosition> myArticleIds;
};

}

CatalogueCheckResult CatalogueChecker::check(QIODevice *device, const Take &take) const
{
    CatalogueReader reader(device, u"product"_s);
    CatalogueCheckResult result;
    Duplicates duplicates(myDisabledRules, take);
    const auto checkBatch = [this](const CatalogueBatch &batch) {
        ProductCheck productCheck(myDisabledRules);
        QList<CheckedProduct> products;
        products.reserve(batch.size());
        for (int i = 0; i < batch.size(); ++i)
            products += productCheck.check(batch.at(i), batch.firstProduct() + i);
        return products;
    };
    forEachBatch(reader, checkBatch, [&](const QList<CheckedProduct> &products) {
        for (const CheckedProduct &product : products) {
            duplicates.check(product, result.products++);
            for (const CatalogueFinding &finding : product.findings)
                take(finding);
        }
        result.isCancelled = myProgress && !myProgress(reader.bytesRead());
        return !result.isCancelled;
    });
    if (result.isCancelled)
        return result;
    if (reader.hasError()) {
        result.error = reader.errorString();
        result.errorPosition = reader.errorPosition();
    } else if (result.products == 0) {
        const CatalogueRule &rule = catalogueRule(Rule::ProductsMissing);
        if (!myDisabledRules.contains(rule.name))
            take({ FilePosition(), rule.severity, FindingText::tr("there is no product in this file"), rule.name });
    }
    return result;
}
