#include "FindingWriter.h"

#include "CheckOptions.h"
#include "GithubWriter.h"
#include "JsonFindingWriter.h"
#include "JunitWriter.h"
#include "RuleCountWriter.h"
#include "SarifWriter.h"
#include "TextWriter.h"

using namespace Qt::StringLiterals;

namespace {

/// Writes nothing.
class QuietWriter : public FindingWriter
{
public:
    explicit QuietWriter(const Console &console) : FindingWriter(console) { }

    void finding(const QString &, const RVCatalogueFinding &) override { }
    void end(const CheckSummary &, int) override { }
};

std::unique_ptr<FindingWriter> makeText(const CheckOptions &options, const Console &console)
{
    if (options.isSummary)
        return std::make_unique<RuleCountWriter>(console);
    return std::make_unique<TextWriter>(console, Appearance::of(options.color, console.output));
}

template<typename Writer>
std::unique_ptr<FindingWriter> make(const CheckOptions &, const Console &console)
{
    return std::make_unique<Writer>(console);
}

constexpr struct
{
    QLatin1StringView name;
    std::unique_ptr<FindingWriter> (*create)(const CheckOptions &options, const Console &console);
} FORMATS[] = {
    { "text"_L1, makeText },           { "json"_L1, make<JsonFindingWriter> },
    { "sarif"_L1, make<SarifWriter> }, { "github"_L1, make<GithubWriter> },
    { "junit"_L1, make<JunitWriter> },
};

}

QStringList FindingWriter::formats()
{
    QStringList result;
    for (const auto &format : FORMATS)
        result += format.name;
    return result;
}

std::unique_ptr<FindingWriter> FindingWriter::create(const CheckOptions &options, const Console &console)
{
    for (const auto &format : FORMATS) {
        if (!options.isQuiet && options.format == format.name)
            return format.create(options, console);
    }
    return std::make_unique<QuietWriter>(console);
}

FindingWriter::~FindingWriter() = default;
