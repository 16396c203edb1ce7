#ifndef TEXTWRITER_H
#define TEXTWRITER_H

#include "FindingWriter.h"

/// One finding a line, as compilers write them, and a summary.
class TextWriter : public FindingWriter
{
public:
    explicit TextWriter(const Console &console) : FindingWriter(console) { }

    void finding(const QString &fileName, const RVCatalogueFinding &finding) override;
    void end(const CheckSummary &summary, int exitCode) override;
};

#endif
