#ifndef RVCHECKCONFIGURATION_H
#define RVCHECKCONFIGURATION_H

#include "RVCatalogueExport.h"
#include "RVFilePosition.h"

#include <QSharedDataPointer>
#include <QString>
#include <QStringList>

#include <optional>

class RVCatalogueCheck;
class RVCheckConfigurationData;

/**
 * The settings of a print house for the check of its catalogues: rules that are off or have another severity, names
 * that other programs read, price classes and page sizes. It is read from a file `rvcatalog.toml` or `rvcatalog.json`
 * beside the catalogue or in a folder above it:
 *
 * @code
 * foreign = ["supplier"]
 * price_classes = ["TAS1", "TAS2"]
 *
 * [rules]
 * keyword-legacy = "off"
 *
 * [page_sizes]
 * DUN9 = { width = 210, height = 297 } # mm
 * @endcode
 *
 * A file with any other content is broken, and all of it is ignored. The default configuration is null and changes
 * nothing.
 *
 * Copies share their data, also between threads. Any thread may read a file.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCheckConfiguration
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCheckConfiguration
{
public:
    RVCheckConfiguration();
    RVCheckConfiguration(const RVCheckConfiguration &other);
    RVCheckConfiguration(RVCheckConfiguration &&other) noexcept;
    RVCheckConfiguration &operator=(const RVCheckConfiguration &other);
    RVCheckConfiguration &operator=(RVCheckConfiguration &&other) noexcept;
    ~RVCheckConfiguration();

    /// The names of the files in the folder of the catalogue, or otherwise in the nearest folder above it that has one:
    /// none, one, or two, which is a mistake. The catalogue itself need not exist.
    static QStringList files(const QString &catalogueFileName);
    /// Reads the file that belongs to a catalogue; null if there is none.
    static RVCheckConfiguration find(const QString &catalogueFileName);
    /// Reads a file of at most 1 MiB, as JSON if its name ends in ".json" and as TOML otherwise.
    static RVCheckConfiguration read(const QString &fileName);

    bool isNull() const noexcept { return !d; } ///< True for the default one.
    QString fileName() const; ///< The given name, or the absolute path of a found file; empty for a null one.

    bool hasError() const; ///< True if the file cannot be read or has invalid content.
    /// One line, without a full stop, in the language of the program; empty without an error.
    QString errorString() const;
    /// The place of the error in the file, if it is known. In JSON it is known only if the file is no valid JSON.
    std::optional<RVFilePosition> errorPosition() const;

    /// Applies the settings to the check; a configuration that is null or broken changes nothing.
    void apply(RVCatalogueCheck *check) const;

private:
    explicit RVCheckConfiguration(RVCheckConfigurationData *data);

    QSharedDataPointer<RVCheckConfigurationData> d;
};

Q_DECLARE_TYPEINFO(RVCheckConfiguration, Q_RELOCATABLE_TYPE);

#endif
