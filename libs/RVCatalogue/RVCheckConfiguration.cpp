#include "RVCheckConfiguration.h"

#include "RVCatalogueCheck.h"
#include "RVConfigurationReader_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSharedData>

using namespace Qt::StringLiterals;

class RVCheckConfigurationData : public QSharedData
{
    Q_DECLARE_TR_FUNCTIONS(RVCheckConfiguration)

public:
    explicit RVCheckConfigurationData(const QString &name) : fileName(name) { }

    void read();
    void fail(const QString &text);

    QString fileName;
    RVConfigurationValues values;
    std::optional<RVConfigurationFault> fault;

private:
    std::optional<QByteArray> readText();
    std::optional<RVConfigurationFault> interpret(const QByteArray &text);
};

namespace {

constexpr qint64 LARGEST_FILE = 1 << 20;
constexpr QLatin1StringView FILE_NAMES[] = { "rvcatalog.toml"_L1, "rvcatalog.json"_L1 };

bool isThere(const QString &fileName)
{
    const QFileInfo info(fileName);
    return info.exists() || info.isSymLink(); // a link without a target is no file, but was meant to be one
}

}

void RVCheckConfigurationData::read()
{
    const std::optional<QByteArray> text = readText();
    if (!text)
        return;
    fault = interpret(*text);
    if (!fault)
        return;
    values = RVConfigurationValues();
    fault->text = fault->text.simplified();
}

void RVCheckConfigurationData::fail(const QString &text)
{
    fault = RVConfigurationFault { text, std::nullopt };
}

std::optional<QByteArray> RVCheckConfigurationData::readText()
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(tr("cannot open the file: %1").arg(file.errorString()));
        return std::nullopt;
    }
    // A pipe gives its text in pieces.
    QByteArray text;
    for (QByteArray piece = file.read(LARGEST_FILE); !piece.isEmpty() && text.size() <= LARGEST_FILE;
         piece = file.read(LARGEST_FILE))
        text += piece;
    if (file.error() != QFileDevice::NoError)
        fail(tr("cannot read the file: %1").arg(file.errorString()));
    else if (text.size() > LARGEST_FILE)
        fail(tr("the file is larger than 1 MiB"));
    else
        return text;
    return std::nullopt;
}

std::optional<RVConfigurationFault> RVCheckConfigurationData::interpret(const QByteArray &text)
{
    RVConfigurationTree tree;
    const bool isJson = fileName.endsWith(".json"_L1, Qt::CaseInsensitive);
    std::optional<RVConfigurationFault> result = isJson ? rvReadJson(text, &tree) : rvReadToml(text, &tree);
    if (result)
        return result;
    RVConfigurationReader reader(tree);
    values = reader.read();
    return reader.fault();
}

// A configuration without data is null and changes nothing.
RVCheckConfiguration::RVCheckConfiguration() = default;
RVCheckConfiguration::RVCheckConfiguration(const RVCheckConfiguration &other) = default;
RVCheckConfiguration::RVCheckConfiguration(RVCheckConfiguration &&other) noexcept = default;
RVCheckConfiguration &RVCheckConfiguration::operator=(const RVCheckConfiguration &other) = default;
RVCheckConfiguration &RVCheckConfiguration::operator=(RVCheckConfiguration &&other) noexcept = default;
RVCheckConfiguration::~RVCheckConfiguration() = default;

RVCheckConfiguration::RVCheckConfiguration(RVCheckConfigurationData *data) : d(data) { }

QStringList RVCheckConfiguration::files(const QString &catalogueFileName)
{
    QString folder = QFileInfo(catalogueFileName).absolutePath();
    while (true) {
        QStringList result;
        for (const QLatin1StringView name : FILE_NAMES) {
            const QString fileName = QDir(folder).filePath(name);
            if (isThere(fileName))
                result += fileName;
        }
        const QString above = QFileInfo(folder).absolutePath();
        if (!result.isEmpty() || above == folder)
            return result;
        folder = above;
    }
}

RVCheckConfiguration RVCheckConfiguration::find(const QString &catalogueFileName)
{
    const QStringList found = files(catalogueFileName);
    if (found.isEmpty())
        return RVCheckConfiguration();
    auto *data = new RVCheckConfigurationData(found.constFirst());
    RVCheckConfiguration result(data);
    const QFileInfo info(found.constFirst());
    if (found.size() > 1)
        data->fail(RVCheckConfigurationData::tr("%1 lies in the same folder, and only one of them can count")
                           .arg(QFileInfo(found.constLast()).fileName()));
    else if (info.exists() && !info.isFile()) // a pipe would wait for its writer
        data->fail(RVCheckConfigurationData::tr("it is no regular file"));
    else
        data->read();
    return result;
}

RVCheckConfiguration RVCheckConfiguration::read(const QString &fileName)
{
    auto *data = new RVCheckConfigurationData(fileName);
    RVCheckConfiguration result(data);
    data->read();
    return result;
}

QString RVCheckConfiguration::fileName() const
{
    return d ? d->fileName : QString();
}

bool RVCheckConfiguration::hasError() const
{
    return d && d->fault;
}

QString RVCheckConfiguration::errorString() const
{
    return hasError() ? d->fault->text : QString();
}

std::optional<RVFilePosition> RVCheckConfiguration::errorPosition() const
{
    return hasError() ? d->fault->position : std::nullopt;
}

void RVCheckConfiguration::apply(RVCatalogueCheck *check) const
{
    if (!d)
        return;
    for (const RVConfigurationValues::Rule &rule : d->values.rules) {
        if (rule.severity)
            check->setSeverity(rule.rule, *rule.severity);
        else
            check->disable(rule.rule);
    }
    check->addForeignNames(d->values.foreignNames);
    check->addPriceClasses(d->values.priceClasses);
    for (const RVConfigurationValues::PageSize &size : d->values.pageSizes)
        check->setPageSize(size.type, size.size);
}
