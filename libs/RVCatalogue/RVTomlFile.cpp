#include "RVConfigurationTree_p.h"

// Exceptions stay off, and all of the library stays in this file, which alone includes it.
#define TOML_HEADER_ONLY 1
#define TOML_EXCEPTIONS 0
#define TOML_ENABLE_FORMATTERS 0
#define TOML_ENABLE_UNRELEASED_FEATURES 0
#define TOML_MAX_NESTED_VALUES 16
#include <toml++/toml.h>

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

/// More dots would nest tables so deeply in one line that the library, which descends into each of them, would need
/// more stack than a thread has.
constexpr qsizetype MOST_DOTS = 256;

class RVTomlFile
{
    Q_DECLARE_TR_FUNCTIONS(RVCheckConfiguration)

public:
    explicit RVTomlFile(RVConfigurationTree *tree) : myTree(tree) { }

    std::optional<RVConfigurationFault> read(const QByteArray &text);

private:
    QJsonObject converted(const toml::table &table, const QStringList &path);
    QJsonArray converted(const toml::array &array, const QStringList &path);
    QJsonValue converted(const toml::node &node, const QStringList &path);

    RVConfigurationTree *myTree;
};

QString fromStd(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

RVFilePosition positionOf(const toml::source_region &region)
{
    return { qint64(region.begin.line), qint64(region.begin.column) };
}

/// The number of a line that has too many dots, from 1; 0 where none has.
qint64 lineOfManyDots(const QByteArray &text)
{
    qint64 number = 1;
    for (const QByteArray &line : text.split('\n')) {
        if (line.count('.') > MOST_DOTS)
            return number;
        ++number;
    }
    return 0;
}

std::optional<RVConfigurationFault> RVTomlFile::read(const QByteArray &text)
{
    if (const qint64 line = lineOfManyDots(text))
        return RVConfigurationFault { tr("this line has more than %1 dots").arg(MOST_DOTS),
                                      RVFilePosition { line, 1 } };
    const toml::parse_result result = toml::parse(std::string_view(text.constData(), std::size_t(text.size())));
    if (!result) {
        const toml::parse_error &error = result.error();
        return RVConfigurationFault { tr("this is no TOML: %1").arg(fromStd(error.description())),
                                      positionOf(error.source()) };
    }
    myTree->root = converted(result.table(), QStringList());
    return std::nullopt;
}

QJsonObject RVTomlFile::converted(const toml::table &table, const QStringList &path)
{
    QJsonObject result;
    for (const auto &[key, value] : table) {
        const QString name = fromStd(key.str());
        const QStringList valuePath = path + QStringList(name);
        myTree->places.insert(valuePath, { positionOf(key.source()), positionOf(value.source()) });
        result.insert(name, converted(value, valuePath));
    }
    return result;
}

QJsonArray RVTomlFile::converted(const toml::array &array, const QStringList &path)
{
    QJsonArray result;
    for (const toml::node &value : array) {
        const QStringList valuePath = path + QStringList(QString::number(result.size()));
        myTree->places.insert(valuePath, { positionOf(value.source()), positionOf(value.source()) });
        result += converted(value, valuePath);
    }
    return result;
}

QJsonValue RVTomlFile::converted(const toml::node &node, const QStringList &path)
{
    const bool isDeep = path.size() >= RV_CONFIGURATION_DEPTH;
    if (const toml::table *table = isDeep ? nullptr : node.as_table())
        return converted(*table, path);
    if (const toml::array *array = isDeep ? nullptr : node.as_array())
        return converted(*array, path);
    if (const auto *text = node.as_string())
        return fromStd(text->get());
    if (const auto *number = node.as_integer())
        return qint64(number->get());
    if (const auto *number = node.as_floating_point())
        return number->get();
    if (const auto *boolean = node.as_boolean())
        return boolean->get();
    return QJsonValue();
}

}

std::optional<RVConfigurationFault> rvReadToml(const QByteArray &text, RVConfigurationTree *tree)
{
    return RVTomlFile(tree).read(text);
}
