#ifndef RULECOUNTWRITER_H
#define RULECOUNTWRITER_H

#include "FindingWriter.h"

/// No findings, but how many there are of each rule, the most frequent first, and the summary.
class RuleCountWriter : public FindingWriter
{
public:
    explicit RuleCountWriter(const Console &console) : FindingWriter(console) { }

    void finding(const QString &, const RVCatalogueFinding &) override { }
    void end(const CheckSummary &summary, int exitCode) override;
};

#endif
