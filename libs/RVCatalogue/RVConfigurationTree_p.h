#ifndef RVCONFIGURATIONTREE_P_H
#define RVCONFIGURATIONTREE_P_H

#include "RVFilePosition.h"

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

/// A fault of a configuration file.
struct RVConfigurationFault
{
    QString text; ///< one line, without a full stop
    std::optional<RVFilePosition> position; ///< none where the reader does not know it
};

/**
 * A configuration file before anybody asks what it means: tables, lists, texts, numbers and booleans, whatever the
 * format is. All else, say a date, is null, and so is whatever lies deeper than a configuration ever does.
 */
struct RVConfigurationTree
{
    /// The places of an entry. A column is a letter here, however many UTF-16 code units it needs.
    struct Places
    {
        RVFilePosition key;
        RVFilePosition value;
    };

    QJsonObject root;
    /// By the names from the root on, where the number of an item of a list is its name; without those of unknown
    /// places.
    QHash<QStringList, Places> places;
};

/// Entries lie no deeper than this, so that all others can be left out: page_sizes, a type, a width, and what is there
/// by mistake.
constexpr qsizetype RV_CONFIGURATION_DEPTH = 4;

/// Reads TOML. The result is the reason why it is none.
std::optional<RVConfigurationFault> rvReadToml(const QByteArray &text, RVConfigurationTree *tree);
/// Reads JSON. The result is the reason why it is none, or no object.
std::optional<RVConfigurationFault> rvReadJson(const QByteArray &text, RVConfigurationTree *tree);

/// The position in UTF-16 code units of one that counts letters.
RVFilePosition rvInCodeUnits(const QByteArray &text, const RVFilePosition &position);

#endif
