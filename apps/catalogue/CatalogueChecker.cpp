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
        if (product.type.isValid()) {
            const QString family = product.type.toString() == product.typeText
                    ? QString()
                    : u", that is %1,"_s.arg(quoted(product.type.toString()));
            find(&myTypes, quint64(product.type.calcHashValue()), Rule::TypeDuplicate, product, number,
                 u"the type "_s + quoted(product.typeText) + family);
        }
        if (product.articleId != 0)
            find(&myArticleIds, product.articleId, Rule::ArticleIdDuplicate, product, number,
                 u"the article id %1"_s.arg(product.articleId));
    }

private:
    template<typename Id>
    void find(QHash<Id, SmallPosition> *seen, Id id, Rule rule, const CheckedProduct &product, qint64 number,
              const QString &what)
    {
        const auto known = seen->constFind(id);
        if (known == seen->constEnd()) {
            seen->insert(id, { quint32(product.position.line), quint32(product.position.column) });
            return;
        }
        const CatalogueRule &broken = catalogueRule(rule);
        if (!myDisabledRules.contains(broken.name))
            myTake({ product.position, broken.severity,
                     what + u" is already that of the product in line %1"_s.arg(known->line), broken.name, number });
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
            take({ FilePosition(), rule.severity, u"there is no product in this file"_s, rule.name });
    }
    return result;
}
