#ifndef CHECKSUMMARY_H
#define CHECKSUMMARY_H

#include <RVCatalogueFinding.h>

#include <QLatin1StringView>
#include <QMap>
#include <QString>

/// The findings of one rule.
struct RuleCount
{
    qint64 count = 0;
    RVCatalogueSeverity severity = RVCatalogueSeverity::Note;
};

/// The result of a run of "check".
struct CheckSummary
{
    qint64 files = 0;
    qint64 unreadable = 0;
    qint64 products = 0;
    qint64 errors = 0;
    qint64 warnings = 0;
    qint64 notes = 0;
    qint64 omitted = 0; ///< The findings among them that were too many to write.
    QMap<QLatin1StringView, RuleCount> rules; ///< The broken rules, by name.
    int signal = 0; ///< The signal that ended the run early; 0 without one.

    /// Counts a finding.
    void count(const RVCatalogueFinding &finding);
    /// One line for people, without its end.
    QString text() const;
};

#endif
