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
    std::optional<RVFilePosition> position; ///< none if the parser does not know it
};

/**
 * A parsed configuration file before its interpretation, in either format: tables, lists, texts, numbers and booleans.
 * Other values, such as dates, are null, and so are values that are nested deeper than any valid entry.
 */
struct RVConfigurationTree
{
    /// The places of entries, with columns that count letters of the encoded text.
    struct Places
    {
        RVFilePosition key;
        RVFilePosition value;
    };

    QJsonObject root;
    /// The places by the names from the root on; the name of an item of a list is its index. Entries with unknown
    /// places are missing.
    QHash<QStringList, Places> places;
    /// The text of the file, with letters beyond ASCII in a percent encoding that uses the mark instead of "%".
    QByteArray encodedText;

    /// The position in the file for a position in the encoded text.
    RVFilePosition inFile(const RVFilePosition &position) const;
};

/// The mark of encoded letters. TOML allows it in the same places as those letters: in texts and comments. A text that
/// has it escaped as "\u007E", followed by two hexadecimal digits, is read as a different one.
constexpr char RV_CONFIGURATION_MARK = '~';

/// The greatest depth of entries, beyond which all others can be left out: page_sizes, a type, a width, and a value
/// that is there by mistake.
constexpr qsizetype RV_CONFIGURATION_DEPTH = 4;

/// Reads TOML. The result is the fault if the text is no TOML.
std::optional<RVConfigurationFault> rvReadToml(const QByteArray &text, RVConfigurationTree *tree);
/// Reads JSON. The result is the fault if the text is no JSON, or no object.
std::optional<RVConfigurationFault> rvReadJson(const QByteArray &text, RVConfigurationTree *tree);

#endif
