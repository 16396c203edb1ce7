#ifndef CONFIGURATIONS_H
#define CONFIGURATIONS_H

#include "Console.h"

#include <RVCatalogueCheck.h>
#include <RVCheckConfiguration.h>

#include <QHash>
#include <QString>
#include <QStringList>

/// Finds the check that each catalogue has to pass: that of the configuration file which belongs to it, without the
/// rules that the command line leaves out.
class Configurations
{
public:
    /// The file that a command names for all catalogues, or none of any kind.
    struct Choice
    {
        QString fileName; ///< empty where each catalogue has the one that is found for it
        bool isNone = false;
    };

    Configurations(const Choice &choice, const RVCatalogueCheck &check) : myChoice(choice), myCheck(check) { }

    /// Reads the configurations of these catalogues. False, with a message for each, where some are broken.
    bool read(const QStringList &catalogues, const Console &console);
    /// The check of a catalogue whose configuration was read.
    RVCatalogueCheck check(const QString &catalogue) const;

private:
    RVCheckConfiguration found(const QString &catalogue) const;

    Choice myChoice;
    RVCatalogueCheck myCheck;
    QHash<QString, RVCheckConfiguration> myConfigurations; // by the catalogue
};

#endif
