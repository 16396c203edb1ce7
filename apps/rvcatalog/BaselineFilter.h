#ifndef BASELINEFILTER_H
#define BASELINEFILTER_H

#include "Baseline.h"

/// Leaves the findings out that a baseline knows, or all of them where a baseline is to be written.
class BaselineFilter
{
public:
    /// The files that a command names; each is empty where it names none. Only one of them may be named.
    struct Choice
    {
        QString fileName; ///< to compare with
        QString writtenFileName; ///< to write
        bool isQuiet = false; ///< without notes
    };

    explicit BaselineFilter(const Choice &choice);

    /// Reads the baseline, if any. False, with a message, where that is impossible.
    bool begin(const Console &console);
    /// True for a finding that is to be left out.
    bool isKnown(const QString &catalogue, const RVCatalogueFinding &finding);
    /// The catalogue was read to its end, by this check.
    void finish(const QString &catalogue, const RVCatalogueCheck &check);
    /// Writes the baseline, if any, and tells what there is to be told of it. @p exitCode is that of the program
    /// without a baseline; the result is that with it.
    int end(int exitCode, const Console &console) const;

private:
    enum class Mode {
        Off,
        Compare,
        Write,
    };

    int write(int exitCode, const Console &console) const;
    void note(const Console &console, const QString &text) const;

    bool myIsQuiet;
    Mode myMode = Mode::Off;
    Baseline myBaseline;
};

#endif
