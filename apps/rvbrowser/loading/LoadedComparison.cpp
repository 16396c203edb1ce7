#include "LoadedComparison.h"

#include "DiffTexts.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// Products that are packed together, as a reader hands them out.
constexpr qsizetype PACK_SIZE = 32;

/// The texts of a product that hardly any other has.
QString ownTexts(const ComparedProduct &product)
{
    QStringList texts { product.oldType.toString(), product.newType.toString(), product.name };
    if (product.articleId.isValid())
        texts += product.articleId.toString();
    return texts.join(u'\n');
}

QString changeTexts(const ComparedProduct &product)
{
    QStringList texts { DiffTexts::kind(product) };
    for (const RVProductChange &change : product.changes)
        texts += { change.label(), change.oldValue().text, change.newValue().text };
    return texts.join(u'\n');
}

bool isSame(const RVProductChange &a, const RVProductChange &b)
{
    return a.subject() == b.subject() && a.item() == b.item() && a.oldValue().value == b.oldValue().value
            && a.newValue().value == b.newValue().value;
}

}

void LoadedComparison::append(const RVProductComparison &product)
{
    ComparedProduct compared(product);
    for (RVProductChange &change : compared.changes)
        change = shared(change);
    mySearchIndex.append(ownTexts(compared), changeTexts(compared));
    if (compared.kind != RVChangeKind::Changed) {
        mySingleNumbers.insert(size(), mySingles->size() + int(myWaiting.size()));
        myWaiting += product.product();
        if (myWaiting.size() >= PACK_SIZE)
            keepWaiting();
    }
    myProducts += std::move(compared);
}

void LoadedComparison::finish(const RVComparisonCounts &counts)
{
    keepWaiting();
    myCounts = counts;
    myChanges.clear();
}

void LoadedComparison::keepWaiting()
{
    if (!myWaiting.isEmpty())
        mySingles->add(myWaiting);
    myWaiting.clear();
}

RVProductChange LoadedComparison::shared(const RVProductChange &change)
{
    const QString key = QStringList { change.label(), change.oldValue().text, change.newValue().text }.join(u'\n');
    const auto known = myChanges.constFind(key);
    if (known != myChanges.constEnd() && isSame(*known, change))
        return *known;
    myChanges.insert(key, change);
    return change;
}
