#ifndef JUNITWRITER_H
#define JUNITWRITER_H

#include "FindingWriter.h"

#include <QList>
#include <QString>
#include <QStringList>

/// A test case, which passed, failed or could not be run.
struct JunitCase
{
    QString group;
    QString name;
    QString element; ///< "failure" or "error"; empty if it passed.
    QString message;
    QString text;
};

/// Writes the XML of JUnit for build servers: a suite for each file, with a failed case for each error and warning. A
/// file without them has one case that passed; notes are the output of their suite. A suite begins with its numbers, so
/// it is written after its file was read.
class JunitWriter : public FindingWriter
{
public:
    explicit JunitWriter(const Console &console) : FindingWriter(console) { }

    void begin() override;
    void finding(const QString &fileName, const RVCatalogueFinding &finding) override;
    void unreadable(const QString &fileName, const Problem &problem) override;
    void endFile(const QString &fileName) override;
    void end(const CheckSummary &summary, int exitCode) override;

private:
    /// A suite that is not written yet.
    struct Suite
    {
        QList<JunitCase> cases;
        QStringList notes;
    };

    void writeSuite(const QString &name);

    Suite mySuite;
    qint64 mySuites = 0;
};

#endif
