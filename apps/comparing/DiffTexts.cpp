#include "DiffTexts.h"

#include "ComparedProduct.h"
#include "PrintableText.h"

using namespace Qt::StringLiterals;

QChar DiffTexts::marker(RVChangeKind kind)
{
    switch (kind) {
    case RVChangeKind::Added:
        return u'+';
    case RVChangeKind::Removed:
        return u'-';
    case RVChangeKind::Changed:
    case RVChangeKind::None:
        break;
    }
    return u'~';
}

QString DiffTexts::kind(RVChangeKind kind)
{
    switch (kind) {
    case RVChangeKind::Added:
        return tr("added");
    case RVChangeKind::Removed:
        return tr("removed");
    case RVChangeKind::Changed:
        return tr("changed");
    case RVChangeKind::None:
        break;
    }
    return tr("equal");
}

QString DiffTexts::kind(const ComparedProduct &product)
{
    return product.isRenamed ? tr("renamed") : kind(product.kind);
}

QString DiffTexts::product(const ComparedProduct &product)
{
    QString text = product.type().orderTxtName();
    if (product.isRenamed)
        text = product.oldType.orderTxtName() + " -> "_L1 + text;
    return printableText(product.name.isEmpty() ? text : text + R"( ")"_L1 + product.name + u'"');
}

QString DiffTexts::article(const RVArticleId &id)
{
    return id.isValid() ? tr("article %1").arg(id.toString()) : tr("no article");
}

QString DiffTexts::summary(const RVComparisonCounts &counts)
{
    QString text = tr("%1 added, %2 removed, %3 changed").arg(counts.added).arg(counts.removed).arg(counts.changed);
    if (counts.renamed > 0)
        text += u' ' + tr("(%1 renamed)").arg(counts.renamed);
    return text + ", "_L1 + tr("%1 equal").arg(counts.equal);
}
