#ifndef RVCATALOGUERULE_H
#define RVCATALOGUERULE_H

#include "RVCatalogueExport.h"

#include <QAnyStringView>
#include <QByteArray>
#include <QList>
#include <QString>

/// The severity of a finding: a note is good to know, a warning is probably a mistake, and an error is certainly one.
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
    /// The rule with that name; null if there is none.
    static RVCatalogueRule find(QAnyStringView name);

    bool isNull() const noexcept { return !myRow; } ///< True for the default one.
    QLatin1StringView name() const; ///< A name such as "keyword-unknown", the same in every version.
    RVCatalogueSeverity severity() const; ///< The severity of its findings.
    QString reason() const; ///< One sentence: why it matters, and what to do; in the language of the program.
    QByteArray example() const; ///< A catalogue in UTF-8 that breaks this rule and no other.
    QByteArray mendedExample() const; ///< The same catalogue without its fault; it breaks no rule.
    /// The explanation of a rule in the language of the program: the reason, both examples, and the way to silence it.
    /// Programs, pages and reports use this text. It has no line feed at the end, and is empty for the null rule.
    /// @{
    QString explanation() const; ///< Plain text; examples are indented by four blanks.
    QString explanationAsMarkdown() const; ///< Markdown without a heading.
    /// @}

    /// Compares the identity; null rules are equal.
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
