#ifndef SARIFWRITER_H
#define SARIFWRITER_H

#include "FindingWriter.h"
#include "JsonWriter.h"

#include <RVCatalogueRule.h>

#include <QList>

#include <vector>

/// Writes the Static Analysis Results Interchange Format, version 2.1.0, with one run, and each result on its own line.
class SarifWriter : public FindingWriter
{
public:
    explicit SarifWriter(const Console &console) : FindingWriter(console) { }

    void begin() override;
    void finding(const QString &fileName, const RVCatalogueFinding &finding) override;
    void unreadable(const QString &fileName, const Problem &problem) override;
    void end(const CheckSummary &summary, int exitCode) override;

private:
    void writeDriver();
    void writeNotifications(const CheckSummary &summary);

    JsonWriter myJson; // the objects around the results
    const QList<RVCatalogueRule> myRules = RVCatalogueRule::all();
    std::vector<UnreadableFile> myUnreadable;
    bool myIsFirst = true;
};

#endif
