#include "CheckSummary.h"

using namespace Qt::StringLiterals;

namespace {

QString counted(qint64 number, QLatin1StringView one, QLatin1StringView many)
{
    return QString::number(number) + u' ' + (number == 1 ? one : many);
}

}

void CheckSummary::count(const RVCatalogueFinding &finding)
{
    switch (finding.severity()) {
    case RVCatalogueSeverity::Note:
        ++notes;
        break;
    case RVCatalogueSeverity::Warning:
        ++warnings;
        break;
    case RVCatalogueSeverity::Error:
        ++errors;
        break;
    }
    RuleCount &rule = rules[finding.rule().name()];
    ++rule.count;
    rule.severity = finding.severity();
}

QString CheckSummary::text() const
{
    QString result = counted(products, "product"_L1, "products"_L1) + " in "_L1 + counted(files, "file"_L1, "files"_L1)
            + ": "_L1 + counted(errors, "error"_L1, "errors"_L1) + ", "_L1
            + counted(warnings, "warning"_L1, "warnings"_L1) + ", "_L1 + counted(notes, "note"_L1, "notes"_L1);
    if (unreadable > 0)
        result += ", "_L1 + counted(unreadable, "unreadable file"_L1, "unreadable files"_L1);
    if (omitted > 0)
        result += u", %1 of them not shown"_s.arg(omitted);
    if (signal != 0)
        result += ", interrupted"_L1;
    return result;
}
