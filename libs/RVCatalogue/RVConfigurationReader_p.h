#ifndef RVCONFIGURATIONREADER_P_H
#define RVCONFIGURATIONREADER_P_H

#include "RVCatalogueRule.h"
#include "RVConfigurationTree_p.h"

#include <RVProductType.h>

#include <QCoreApplication>
#include <QJsonValue>
#include <QList>
#include <QSizeF>

#include <optional>

/// The contents of a configuration file.
struct RVConfigurationValues
{
    struct Rule
    {
        RVCatalogueRule rule;
        std::optional<RVCatalogueSeverity> severity; ///< none if the rule is off
    };
    struct PageSize
    {
        RVProductType type;
        QSizeF size; ///< in millimetres
    };

    QList<Rule> rules;
    QStringList foreignNames;
    QStringList priceClasses;
    QList<PageSize> pageSizes;
};

/// Interprets a configuration file, and finds its faults.
class RVConfigurationReader
{
    Q_DECLARE_TR_FUNCTIONS(RVCheckConfiguration)

public:
    /// The tree outlives the reader.
    explicit RVConfigurationReader(const RVConfigurationTree &tree) : myTree(tree) { }

    /// The contents; parts with faults are empty.
    RVConfigurationValues read();
    /// The first fault in the file; none if there is no fault.
    std::optional<RVConfigurationFault> fault() const;

private:
    void readRules();
    void readRule(const QString &name, const QJsonValue &value);
    void readForeignNames();
    void readPriceClasses();
    void readPageSizes();
    void readPageSize(const QString &name, const QJsonValue &value);

    std::optional<QJsonObject> table(const QStringList &path, const QJsonValue &value);
    QStringList texts(const QStringList &path, const QJsonValue &value);
    qreal length(const QStringList &path, const QJsonObject &values);
    void refuseOthers(const QStringList &path, const QJsonObject &values, const QStringList &known);
    void refuseKey(const QStringList &path, const QString &text);
    void refuseValue(const QStringList &path, const QString &text);
    void refuseType(const QStringList &path, const QJsonValue &value, const QString &wanted);
    void refuse(const std::optional<RVFilePosition> &position, const QString &text);

    const RVConfigurationTree &myTree;
    RVConfigurationValues myValues;
    std::optional<RVConfigurationFault> myFault; // with a place in the encoded text
};

#endif
