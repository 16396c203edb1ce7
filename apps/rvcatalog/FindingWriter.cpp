#include "FindingWriter.h"

#include "JsonFindingWriter.h"
#include "SarifWriter.h"
#include "TextWriter.h"

using namespace Qt::StringLiterals;

namespace {

template<typename Writer>
std::unique_ptr<FindingWriter> make(const Console &console)
{
    return std::make_unique<Writer>(console);
}

constexpr struct
{
    QLatin1StringView name;
    std::unique_ptr<FindingWriter> (*create)(const Console &console);
} FORMATS[] = {
    { "text"_L1, make<TextWriter> },
    { "json"_L1, make<JsonFindingWriter> },
    { "sarif"_L1, make<SarifWriter> },
};

}

void CheckSummary::count(RVCatalogueSeverity severity)
{
    switch (severity) {
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
}

QStringList FindingWriter::formats()
{
    QStringList result;
    for (const auto &format : FORMATS)
        result += format.name;
    return result;
}

std::unique_ptr<FindingWriter> FindingWriter::create(const QString &format, const Console &console)
{
    for (const auto &row : FORMATS) {
        if (format == row.name)
            return row.create(console);
    }
    return nullptr;
}

FindingWriter::~FindingWriter() = default;
