#include "RVConfigurationReader_p.h"

#include "RVFindingText_p.h"
#include "RVNearestText.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto RULES = "rules"_L1;
constexpr auto FOREIGN = "foreign"_L1;
constexpr auto PRICE_CLASSES = "price_classes"_L1;
constexpr auto PAGE_SIZES = "page_sizes"_L1;
constexpr auto WIDTH = "width"_L1;
constexpr auto HEIGHT = "height"_L1;

/// The longest page in millimetres. No press prints longer ones, so a larger number is not in millimetres.
constexpr qreal LONGEST_PAGE_SIDE = 10000;

constexpr auto OFF = "off"_L1;
constexpr RVCatalogueSeverity SEVERITIES[] = { RVCatalogueSeverity::Note, RVCatalogueSeverity::Warning,
                                               RVCatalogueSeverity::Error };

/// The text that was probably meant; null if none is near.
QString nearest(const QString &wanted, const QStringList &known)
{
    RVNearestText result(wanted, qBound(2, int(wanted.size() + 1) / 2, 4));
    for (const QString &text : known)
        result.offer(text);
    return result.text();
}

QString dotted(const QStringList &path)
{
    return path.join(u'.');
}

}

RVConfigurationValues RVConfigurationReader::read()
{
    refuseOthers({}, myTree.root, { RULES, FOREIGN, PRICE_CLASSES, PAGE_SIZES });
    readRules();
    readForeignNames();
    readPriceClasses();
    readPageSizes();
    return myValues;
}

std::optional<RVConfigurationFault> RVConfigurationReader::fault() const
{
    std::optional<RVConfigurationFault> result = myFault;
    if (result && result->position)
        result->position = myTree.inFile(*result->position);
    return result;
}

void RVConfigurationReader::readRules()
{
    const QJsonObject rules = table({ RULES }, myTree.root.value(RULES)).value_or(QJsonObject());
    for (auto rule = rules.begin(); rule != rules.end(); ++rule)
        readRule(rule.key(), rule.value());
}

void RVConfigurationReader::readRule(const QString &name, const QJsonValue &value)
{
    const QStringList path { RULES, name };
    const RVCatalogueRule rule = RVCatalogueRule::find(name);
    if (rule.isNull()) {
        QStringList known;
        for (const RVCatalogueRule &other : RVCatalogueRule::all())
            known += other.name();
        const QString meant = nearest(name, known);
        return refuseKey(path,
                         meant.isNull()
                                 ? tr("there is no rule %1").arg(rvQuoted(name))
                                 : tr("there is no rule %1; did you mean %2?").arg(rvQuoted(name), rvQuoted(meant)));
    }
    if (!value.isString())
        return refuseType(path, value, tr("a text"));
    const QString text = value.toString();
    QStringList known { OFF };
    for (const RVCatalogueSeverity severity : SEVERITIES) {
        known += rvSeverityName(severity);
        if (text == rvSeverityName(severity))
            myValues.rules += { rule, severity };
    }
    if (text == OFF)
        myValues.rules += { rule, std::nullopt };
    else if (!known.contains(text))
        refuseValue(path, tr("%1 is no severity; there are: %2").arg(rvQuoted(text), known.join(", "_L1)));
}

void RVConfigurationReader::readForeignNames()
{
    myValues.foreignNames = texts({ FOREIGN }, myTree.root.value(FOREIGN));
}

// The price classes are a list, or groups of lists with names for people.
void RVConfigurationReader::readPriceClasses()
{
    const QJsonValue value = myTree.root.value(PRICE_CLASSES);
    if (!value.isObject()) {
        myValues.priceClasses = texts({ PRICE_CLASSES }, value);
        return;
    }
    const QJsonObject groups = value.toObject();
    for (auto group = groups.begin(); group != groups.end(); ++group)
        myValues.priceClasses += texts({ PRICE_CLASSES, group.key() }, group.value());
}

void RVConfigurationReader::readPageSizes()
{
    const QJsonObject sizes = table({ PAGE_SIZES }, myTree.root.value(PAGE_SIZES)).value_or(QJsonObject());
    for (auto size = sizes.begin(); size != sizes.end(); ++size)
        readPageSize(size.key(), size.value());
}

void RVConfigurationReader::readPageSize(const QString &name, const QJsonValue &value)
{
    const QStringList path { PAGE_SIZES, name };
    const RVProductType type(name);
    if (type.toString().trimmed().isEmpty())
        return refuseKey(path, tr("a product type is missing"));
    const auto &known = myValues.pageSizes;
    const bool isDouble = std::any_of(known.begin(), known.end(), [&](const auto &size) { return size.type == type; });
    if (isDouble)
        return refuseKey(path,
                         tr("the product type %1, that is %2, already has a page size")
                                 .arg(rvQuoted(name), rvQuoted(type.toString())));
    const std::optional<QJsonObject> values = table(path, value);
    if (!values)
        return;
    refuseOthers(path, *values, { WIDTH, HEIGHT });
    const qreal width = length(path + QStringList(WIDTH), *values);
    const qreal height = length(path + QStringList(HEIGHT), *values);
    myValues.pageSizes += { type, QSizeF(width, height) };
}

std::optional<QJsonObject> RVConfigurationReader::table(const QStringList &path, const QJsonValue &value)
{
    if (value.isObject())
        return value.toObject();
    if (!value.isUndefined())
        refuseType(path, value, tr("a table"));
    return std::nullopt;
}

QStringList RVConfigurationReader::texts(const QStringList &path, const QJsonValue &value)
{
    if (!value.isArray()) {
        if (!value.isUndefined())
            refuseType(path, value, tr("a list of texts"));
        return {};
    }
    QStringList result;
    const QJsonArray items = value.toArray();
    for (qsizetype i = 0; i < items.size(); ++i) {
        const QStringList itemPath = path + QStringList(QString::number(i));
        const QString text = items.at(i).toString();
        if (!items.at(i).isString())
            refuseType(itemPath, items.at(i), tr("a text"));
        else if (text.trimmed().isEmpty())
            refuseValue(itemPath, tr("%1 has an empty text").arg(dotted(path)));
        else
            result += text;
    }
    return result;
}

// Reads a length in millimetres; any number for one that is refused, since nobody gets the values of such a file.
qreal RVConfigurationReader::length(const QStringList &path, const QJsonObject &values)
{
    const QJsonValue value = values.value(path.constLast());
    const qreal length = value.toDouble();
    const bool isInRange = length > 0 && length <= LONGEST_PAGE_SIDE; // and not nan
    if (value.isUndefined())
        refuseKey(path.mid(0, path.size() - 1), tr("%1 is missing").arg(dotted(path)));
    else if (!value.isDouble())
        refuseType(path, value, tr("a number"));
    else if (!isInRange)
        refuseValue(path, tr("%1 must be above 0 and at most %2 mm").arg(dotted(path)).arg(int(LONGEST_PAGE_SIDE)));
    return length;
}

void RVConfigurationReader::refuseOthers(const QStringList &path, const QJsonObject &values, const QStringList &known)
{
    const QStringList names = values.keys();
    for (const QString &name : names) {
        if (known.contains(name))
            continue;
        const QStringList namePath = path + QStringList(name);
        const QString meant = nearest(name, known);
        refuseKey(
                namePath,
                meant.isNull()
                        ? tr("there is no entry %1; there are: %2").arg(rvQuoted(dotted(namePath)), known.join(", "_L1))
                        : tr("there is no entry %1; did you mean %2?")
                                  .arg(rvQuoted(dotted(namePath)), rvQuoted(meant)));
    }
}

void RVConfigurationReader::refuseKey(const QStringList &path, const QString &text)
{
    const auto places = myTree.places.constFind(path);
    refuse(places == myTree.places.cend() ? std::nullopt : std::optional(places->key), text);
}

void RVConfigurationReader::refuseValue(const QStringList &path, const QString &text)
{
    const auto places = myTree.places.constFind(path);
    refuse(places == myTree.places.cend() ? std::nullopt : std::optional(places->value), text);
}

void RVConfigurationReader::refuseType(const QStringList &path, const QJsonValue &value, const QString &wanted)
{
    const QString found = value.isObject() ? tr("a table")
            : value.isArray()              ? tr("a list")
            : value.isString()             ? tr("a text")
            : value.isDouble()             ? tr("a number")
            : value.isBool()               ? tr("a boolean")
                                           : tr("something else");
    refuseValue(path, tr("%1 must be %2, but is %3").arg(dotted(path), wanted, found));
}

// The first fault in the file counts; if no place is known, the first that was found.
void RVConfigurationReader::refuse(const std::optional<RVFilePosition> &position, const QString &text)
{
    if (!myFault || (position && myFault->position && *position < *myFault->position))
        myFault = RVConfigurationFault { text, position };
}
