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
    qint64 omitted = 0; ///< Of all these, findings that were not written because there were too many.
    QMap<QLatin1StringView, RuleCount> rules; ///< Those that were broken, by name.
    int signal = 0; ///< The one that ended the run before its end; 0 where none did.

    /// Counts a finding.
    void count(const RVCatalogueFinding &finding);
    /// One line for people, without its end.
    QString text() const;
};

#endif
