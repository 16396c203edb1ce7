#include "TextWriter.h"

using namespace Qt::StringLiterals;

namespace {

QString counted(qint64 number, QLatin1StringView one, QLatin1StringView many)
{
    return QString::number(number) + u' ' + (number == 1 ? one : many);
}

}

void TextWriter::finding(const QString &fileName, const RVCatalogueFinding &finding)
{
    const RVFilePosition position = finding.range().begin;
    const QString line = u"%1:%2:%3: %4: %5 [%6]\n"_s.arg(
            fileName, QString::number(position.line), QString::number(position.column),
            rvSeverityName(finding.severity()), finding.text(), finding.rule().name());
    write(line.toStdString());
}

void TextWriter::end(const CheckSummary &summary, int)
{
    const QString checked = counted(summary.products, "product"_L1, "products"_L1) + " in "_L1
            + counted(summary.files, "file"_L1, "files"_L1);
    const QString found = counted(summary.errors, "error"_L1, "errors"_L1) + ", "_L1
            + counted(summary.warnings, "warning"_L1, "warnings"_L1) + ", "_L1
            + counted(summary.notes, "note"_L1, "notes"_L1);
    const QString unread = summary.unreadable == 0
            ? QString()
            : ", "_L1 + counted(summary.unreadable, "unreadable file"_L1, "unreadable files"_L1);
    write((checked + ": "_L1 + found + unread + u'\n').toStdString());
}
