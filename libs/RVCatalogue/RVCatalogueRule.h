#ifndef RVCATALOGUERULE_H
#define RVCATALOGUERULE_H

#include "RVCatalogueExport.h"

#include <QAnyStringView>
#include <QByteArray>
#include <QList>
#include <QString>

/// The severity of a finding: a note is good to know, a warning is probably a mistake, an error certainly is.
/// @ingroup catalogues
enum class RVCatalogueSeverity {
    Note,
    Warning,
    Error,
};

struct RVCatalogueRuleRow;

/**
 * A rule that catalogues are checked by. Rules are fixed, so a copy costs nothing; the default rule is null, without a
 * name.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueRule
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueRule
{
public:
    RVCatalogueRule() = default;

    /// Every rule, grouped by subject.
    static QList<RVCatalogueRule> all();
    /// The rule of that name; null where there is none.
    static RVCatalogueRule find(QAnyStringView name);

    bool isNull() const noexcept { return !myRow; } ///< True for the default one.
    QLatin1StringView name() const; ///< Such as "keyword-unknown"; it stays the same from version to version.
    RVCatalogueSeverity severity() const; ///< Of its findings.
    QString reason() const; ///< One sentence on why it matters, in the language of the program.
    QByteArray example() const; ///< A catalogue in UTF-8 that breaks this rule and no other.
    QByteArray mendedExample() const; ///< The same catalogue without its fault; it breaks no rule.
    /// The reason, both examples, and how to silence it, in the language of the program: the one text that
    /// programs, pages and reports have of a rule. No line feed at the end; empty for the null rule.
    /// @{
    QString explanation() const; ///< As plain text, examples set in by four blanks.
    QString explanationAsMarkdown() const; ///< Without a heading.
    /// @}

    /// By identity; null ones are equal.
    /// @{
    friend bool operator==(RVCatalogueRule a, RVCatalogueRule b) noexcept { return a.myRow == b.myRow; }
    friend bool operator!=(RVCatalogueRule a, RVCatalogueRule b) noexcept { return !(a == b); }
    /// @}

private:
    friend struct RVCatalogueRuleRow;

    explicit RVCatalogueRule(const RVCatalogueRuleRow *row) : myRow(row) { }

    const RVCatalogueRuleRow *myRow = nullptr;
};

Q_DECLARE_TYPEINFO(RVCatalogueRule, Q_RELOCATABLE_TYPE);

/// "note", "warning" or "error".
/// @relates RVCatalogueRule
RVCATALOGUE_EXPORT QLatin1StringView rvSeverityName(RVCatalogueSeverity severity);

#endif
