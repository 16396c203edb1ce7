#include "RVConfigurationTree_p.h"

// Exceptions are off. Only this file includes toml++, so all of it stays here.
#define TOML_HEADER_ONLY 1
#define TOML_EXCEPTIONS 0
#define TOML_ENABLE_FORMATTERS 0
#define TOML_ENABLE_UNRELEASED_FEATURES 0
#define TOML_MAX_NESTED_VALUES 16
// Some assertions of toml++ fail for a broken file, which it refuses right after them. With this setting they are
// assertions, not assumptions for the compiler.
#undef NDEBUG
#define TOML_ASSERT(expression) static_cast<void>(0)
#include <toml++/toml.h>

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

/// The most dots in a line. More of them would nest tables so deeply that toml++, which recurses into each table, would
/// need more stack than a thread has.
constexpr qsizetype MOST_DOTS = 256;

class RVTomlFile
{
    Q_DECLARE_TR_FUNCTIONS(RVCheckConfiguration)

public:
    explicit RVTomlFile(RVConfigurationTree *tree) : myTree(tree) { }

    std::optional<RVConfigurationFault> read(const QByteArray &text);

private:
    RVConfigurationFault faultOf(const toml::parse_error &error) const;
    QJsonObject converted(const toml::table &table, const QStringList &path);
    QJsonArray converted(const toml::array &array, const QStringList &path);
    QJsonValue converted(const toml::node &node, const QStringList &path);

    RVConfigurationTree *myTree;
};

/// The text without the byte order mark, and with all letters beyond ASCII encoded. toml++ searches such letters for
/// blanks in a way that is undefined behaviour.
QByteArray encoded(QByteArray text)
{
    static const QByteArray plain = [] {
        QByteArray result;
        for (char letter = 0; letter < 127; ++letter)
            result += letter;
        return result.replace(RV_CONFIGURATION_MARK, QByteArray()) + char(127);
    }();
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    return text.toPercentEncoding(plain, QByteArray(1, RV_CONFIGURATION_MARK), RV_CONFIGURATION_MARK);
}

QString decoded(std::string_view text)
{
    const QByteArray bytes(text.data(), qsizetype(text.size()));
    return QString::fromUtf8(QByteArray::fromPercentEncoding(bytes, RV_CONFIGURATION_MARK));
}

RVFilePosition positionOf(const toml::source_region &region)
{
    return { qint64(region.begin.line), qint64(region.begin.column) };
}

bool hasManyDots(const QByteArray &line)
{
    return line.count('.') > MOST_DOTS;
}

bool isForeign(const QByteArray &line)
{
    return !QByteArrayView(line).isValidUtf8();
}

/// The first line with too many dots, as a fault; none if there is no such line.
std::optional<RVConfigurationFault> lineFault(const QByteArray &text, bool (*isOfKind)(const QByteArray &),
                                              const QString &fault)
{
    qint64 number = 1;
    for (const QByteArray &line : text.split('\n')) {
        if (isOfKind(line))
            return RVConfigurationFault { fault, RVFilePosition { number, 1 } };
        ++number;
    }
    return std::nullopt;
}

std::optional<RVConfigurationFault> RVTomlFile::read(const QByteArray &text)
{
    if (const auto fault = lineFault(text, isForeign, tr("this line is not written in UTF-8")))
        return fault;
    if (const auto fault = lineFault(text, hasManyDots, tr("this line has more than %1 dots").arg(MOST_DOTS)))
        return fault;
    myTree->encodedText = encoded(text);
    const QByteArray &letters = myTree->encodedText;
    const toml::parse_result result = toml::parse(std::string_view(letters.constData(), std::size_t(letters.size())));
    if (!result)
        return faultOf(result.error());
    myTree->root = converted(result.table(), QStringList());
    return std::nullopt;
}

RVConfigurationFault RVTomlFile::faultOf(const toml::parse_error &error) const
{
    const RVFilePosition position = myTree->inFile(positionOf(error.source()));
    const QString description = QString::fromUtf8(error.description().data(), qsizetype(error.description().size()));
    if (description.contains(QLatin1Char(RV_CONFIGURATION_MARK)))
        return { tr("this is no TOML: a letter that may stand only in a text stands elsewhere"), position };
    return { tr("this is no TOML: %1").arg(description), position };
}

// NOLINTBEGIN(misc-no-recursion): the depth is limited to that of an entry

QJsonObject RVTomlFile::converted(const toml::table &table, const QStringList &path)
{
    QJsonObject result;
    for (const auto &[key, value] : table) {
        const QString name = decoded(key.str());
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
        return decoded(text->get());
    if (const auto *number = node.as_integer())
        return qint64(number->get());
    if (const auto *number = node.as_floating_point())
        return number->get();
    if (const auto *boolean = node.as_boolean())
        return boolean->get();
    return QJsonValue();
}

// NOLINTEND(misc-no-recursion)

}

std::optional<RVConfigurationFault> rvReadToml(const QByteArray &text, RVConfigurationTree *tree)
{
    return RVTomlFile(tree).read(text);
}
