#ifndef RULECOUNTWRITER_H
#define RULECOUNTWRITER_H

#include "FindingWriter.h"

/// Writes the number of findings of each rule, the most frequent first, and the summary, but no findings.
class RuleCountWriter : public FindingWriter
{
public:
    explicit RuleCountWriter(const Console &console) : FindingWriter(console) { }

    void finding(const QString &, const RVCatalogueFinding &) override { }
    void end(const CheckSummary &summary, int exitCode) override;
};

#endif
