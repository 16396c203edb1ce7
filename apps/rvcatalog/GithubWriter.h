#ifndef GITHUBWRITER_H
#define GITHUBWRITER_H

#include "FindingWriter.h"

/// Writes the log commands of a workflow by which GitHub shows findings beside the lines of a change.
class GithubWriter : public FindingWriter
{
public:
    explicit GithubWriter(const Console &console) : FindingWriter(console) { }

    void finding(const QString &fileName, const RVCatalogueFinding &finding) override;
    void unreadable(const QString &fileName, const Problem &problem) override;
    void end(const CheckSummary &summary, int exitCode) override;
};

#endif
