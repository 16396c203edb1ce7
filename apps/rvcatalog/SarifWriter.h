#ifndef SARIFWRITER_H
#define SARIFWRITER_H

#include "FindingWriter.h"

#include <RVCatalogueRule.h>

#include <QList>

#include <vector>

class JsonWriter;

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
    void writeDriver(JsonWriter *json) const;
    void writeNotifications(JsonWriter *json, const CheckSummary &summary) const;

    const QList<RVCatalogueRule> myRules = RVCatalogueRule::all();
    std::vector<UnreadableFile> myUnreadable;
    bool myIsFirst = true;
};

#endif
