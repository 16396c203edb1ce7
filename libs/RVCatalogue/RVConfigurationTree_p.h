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
    /// The places of an entry, with columns that count letters of the encoded text.
    struct Places
    {
        RVFilePosition key;
        RVFilePosition value;
    };

    QJsonObject root;
    /// By the names from the root on, where the number of an item of a list is its name; without those of unknown
    /// places.
    QHash<QStringList, Places> places;
    /// The file with other letters than those of ASCII as percent encoding has them, but for the mark.
    QByteArray encodedText;

    /// The position in the file of one in the encoded text.
    RVFilePosition inFile(const RVFilePosition &position) const;
};

/// The mark of letters in the encoded text. It is allowed in texts and comments, as they are, and nowhere else. A text
/// that has it escaped as "\u007E", and two hexadecimal digits behind it, is read as another one.
constexpr char RV_CONFIGURATION_MARK = '~';

/// Entries lie no deeper than this, so that all others can be left out: page_sizes, a type, a width, and what is there
/// by mistake.
constexpr qsizetype RV_CONFIGURATION_DEPTH = 4;

/// Reads TOML. The result is the reason why it is none.
std::optional<RVConfigurationFault> rvReadToml(const QByteArray &text, RVConfigurationTree *tree);
/// Reads JSON. The result is the reason why it is none, or no object.
std::optional<RVConfigurationFault> rvReadJson(const QByteArray &text, RVConfigurationTree *tree);

#endif
