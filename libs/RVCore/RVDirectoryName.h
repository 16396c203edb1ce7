#ifndef RVDIRECTORYNAME_H
#define RVDIRECTORYNAME_H

#include "RVCoreExport.h"

class QDebug;
class QString;

/// The directories, each with its name. @ingroup platform
enum RVDirectoryNameEnum : qint32 {
    DIRECTORY_CLIPARTS = 2, ///< "cliparts"
    DIRECTORY_STYLES = 4, ///< "styles"
    DIRECTORY_BACKGROUNDS = 8, ///< "backgrounds"
    DIRECTORY_FORMPARAMETERS = 16, ///< "formparameters"
    DIRECTORY_LAYOUTS = 64, ///< "layouts"
    DIRECTORY_DESIGNS = 65536, ///< "designs"
    DIRECTORY_TEMPLATES = 131072, ///< "templates"
};

/// One of the directories for downloaded design content. 0 is no directory.
/// @par Example
/// @snippet tst_examples_platform.cpp RVDirectoryName
/// @ingroup platform
class RVCORE_EXPORT RVDirectoryName
{
public:
    /// Any value, also one without a name.
    constexpr RVDirectoryName(RVDirectoryNameEnum value) noexcept : myValue(value) { }

    constexpr RVDirectoryNameEnum value() const noexcept { return myValue; } ///< The value that it was made from.
    /// The directory's name, such as "cliparts"; a null text for any other value.
    QString name() const;

    /// By value.
    /// @{
    friend constexpr bool operator==(RVDirectoryName a, RVDirectoryName b) noexcept { return a.myValue == b.myValue; }
    friend constexpr bool operator!=(RVDirectoryName a, RVDirectoryName b) noexcept { return !(a == b); }
    friend constexpr size_t qHash(RVDirectoryName name, size_t seed = 0) noexcept
    {
        return seed ^ unsigned(name.myValue);
    }
    /// @}

private:
    RVDirectoryNameEnum myValue;
};

Q_DECLARE_TYPEINFO(RVDirectoryName, Q_RELOCATABLE_TYPE);

/// Prints the name of the enumerator, such as DIRECTORY_DESIGNS. @relates RVDirectoryName
RVCORE_EXPORT QDebug operator<<(QDebug debug, RVDirectoryNameEnum value);

#endif
