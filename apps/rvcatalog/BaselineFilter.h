#ifndef BASELINEFILTER_H
#define BASELINEFILTER_H

#include "Baseline.h"

/// Leaves out the findings that a baseline knows, or all of them when it writes a baseline.
class BaselineFilter
{
public:
    /// The files on the command line; each is empty if it is not given. Only one of them may be given.
    struct Choice
    {
        QString fileName; ///< to compare with
        QString writtenFileName; ///< to write
        bool isQuiet = false; ///< without notes
    };

    explicit BaselineFilter(const Choice &choice);

    /// Reads the baseline, if any. False, with a message, if that or writing one is impossible.
    bool begin(const Console &console);
    /// True for a finding to leave out.
    bool isKnown(const QString &catalogue, const RVCatalogueFinding &finding);
    /// Ends a catalogue that was read to its end with this check.
    void finish(const QString &catalogue, const RVCatalogueCheck &check);
    /// Writes the baseline, if any, and reports about it. @p exitCode is that of the program without a baseline; the
    /// result is that with it.
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
    Console myConsole; // for a baseline that is the standard output, where findings are not
};

#endif
