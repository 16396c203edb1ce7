#include "RuleCountWriter.h"

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

void RuleCountWriter::end(const CheckSummary &summary, int)
{
    std::vector<std::pair<QLatin1StringView, RuleCount>> rules;
    for (auto rule = summary.rules.begin(); rule != summary.rules.end(); ++rule)
        rules.emplace_back(rule.key(), rule.value());
    std::stable_sort(rules.begin(), rules.end(),
                     [](const auto &a, const auto &b) { return a.second.count > b.second.count; });
    for (const auto &[name, rule] : rules)
        write(u"%1  %2%3\n"_s
                      .arg(QString::number(rule.count).rightJustified(8),
                           rvSeverityName(rule.severity).toString().leftJustified(9), name)
                      .toStdString());
    write((summary.text() + u'\n').toStdString());
}
