#ifndef DIFFTEXTS_H
#define DIFFTEXTS_H

#include <QCoreApplication>
#include <QString>

struct ComparedProduct;
class RVArticleId;
struct RVComparisonCounts;
enum class RVChangeKind;

/// The words for differences between two catalogues, in the language of the program.
class DiffTexts
{
    Q_DECLARE_TR_FUNCTIONS(DiffTexts)

public:
    /// "+", "-", and "~" for what has changed.
    static QChar marker(RVChangeKind kind);
    /// "added", "removed" or "changed".
    static QString kind(RVChangeKind kind);
    /// The same, but "renamed" for a product that has another type.
    static QString kind(const ComparedProduct &product);
    /// The type and the name of a product, and the other type where it was renamed.
    static QString product(const ComparedProduct &product);
    /// "article 1018"
    static QString article(const RVArticleId &id);
    /// "1 added, 1 removed, 7 changed (1 renamed), 30 equal"
    static QString summary(const RVComparisonCounts &counts);
};

#endif
