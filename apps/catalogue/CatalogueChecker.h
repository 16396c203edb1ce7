#ifndef CATALOGUECHECKER_H
#define CATALOGUECHECKER_H

#include "CatalogueFinding.h"

#include <QSet>

#include <functional>

class QIODevice;

/// What a check came to.
struct CatalogueCheckResult
{
    qint64 products = 0;
    bool isCancelled = false;
    /// Why the file could not be read to its end, and where; empty when it could.
    /// @{
    QString error;
    FilePosition errorPosition;
    /// @}
};

/**
 * Finds what would go wrong with a catalogue in the ordering application.
 *
 * A catalogue is read once, as a stream; products are checked on every core of the machine. Of all products only
 * numbers are kept, to notice types and article ids that come twice. The findings come in the order of the file.
 *
 * Fonts are measured to find spines that are too narrow for any text, for which the program needs a QGuiApplication.
 */
class CatalogueChecker
{
public:
    using Take = std::function<void(const CatalogueFinding &)>;
    using Progress = std::function<bool(qint64 bytesRead)>;

    /// @p disabledRules are names of rules that find nothing.
    explicit CatalogueChecker(const QSet<QString> &disabledRules = {}) : myDisabledRules(disabledRules) { }

    /// Called from time to time while a file is checked; the check ends early when it returns false.
    void setProgress(const Progress &progress) { myProgress = progress; }

    /// Checks a device that is open for reading. @p take and the progress function are called on the caller's thread.
    /// Findings before a place where the file cannot be read on stand.
    CatalogueCheckResult check(QIODevice *device, const Take &take) const;

private:
    QSet<QString> myDisabledRules;
    Progress myProgress;
};

#endif
