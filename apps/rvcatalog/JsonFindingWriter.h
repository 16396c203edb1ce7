#ifndef JSONFINDINGWRITER_H
#define JSONFINDINGWRITER_H

#include "FindingWriter.h"
#include "JsonWriter.h"

#include <vector>

/// Writes one object: the findings, one on each line, then the files that could not be read, then the sums.
class JsonFindingWriter : public FindingWriter
{
public:
    explicit JsonFindingWriter(const Console &console) : FindingWriter(console) { }

    void begin() override;
    void finding(const QString &fileName, const RVCatalogueFinding &finding) override;
    void unreadable(const QString &fileName, const Problem &problem) override;
    void end(const CheckSummary &summary, int exitCode) override;

private:
    JsonWriter myJson; // the object around the findings
    std::vector<UnreadableFile> myUnreadable;
    bool myIsFirst = true;
};

#endif
