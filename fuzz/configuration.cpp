// A configuration file. Its first line is its name, whose suffix selects the format; the rest is its content.
#include "Input.h"
#include "Properties.h"

#include <RVCatalogueCheck.h>
#include <RVCheckConfiguration.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

void checkPosition(const RVCheckConfiguration &configuration, const QByteArray &text)
{
    const std::optional<RVFilePosition> position = configuration.errorPosition();
    if (!position)
        return;
    CHECK(configuration.hasError());
    CHECK(position->line >= 1);
    CHECK(position->column >= 1);
    CHECK(position->line <= text.count('\n') + 1);
}

/// A broken configuration changes nothing, and a valid one can be applied twice.
void checkApplying(const RVCheckConfiguration &configuration)
{
    RVCatalogueCheck check;
    configuration.apply(&check);
    const QStringList priceClasses = check.priceClasses();
    CHECK(!configuration.hasError() || priceClasses.isEmpty());
    configuration.apply(&check);
    CHECK_EQUAL(check.priceClasses(), priceClasses);
    for (const RVCatalogueRule &rule : RVCatalogueRule::all())
        CHECK(!configuration.hasError() || (check.isEnabled(rule) && check.severity(rule) == rule.severity()));
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    Input input(data, size);
    const bool isJson = input.text().endsWith(".json"_L1);
    const QString fileName = folder.filePath(isJson ? u"rvcatalog.json"_s : u"rvcatalog.toml"_s);
    const QByteArray text = input.rest();
    QFile file(fileName);
    CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    CHECK_EQUAL(file.write(text), text.size());
    file.close();

    const RVCheckConfiguration configuration = RVCheckConfiguration::find(folder.filePath(u"products.xml"_s));
    CHECK(!configuration.isNull());
    CHECK_EQUAL(configuration.fileName(), fileName);
    CHECK_EQUAL(configuration.hasError(), !configuration.errorString().isEmpty());
    CHECK(!configuration.errorString().contains(u'\n'));
    checkPosition(configuration, text);
    checkApplying(configuration);
    file.remove();
    return 0;
}
