#ifndef CONFIGURATIONS_H
#define CONFIGURATIONS_H

#include "Console.h"

#include <RVCatalogueCheck.h>
#include <RVCheckConfiguration.h>

#include <QHash>
#include <QString>
#include <QStringList>

/// Finds the check of each catalogue: that of its configuration file, without the rules that the command line leaves
/// out.
class Configurations
{
public:
    /// The configuration file for all catalogues on the command line, or the wish to use none.
    struct Choice
    {
        QString fileName; ///< empty if each catalogue uses the file in its folder or above
        bool isNone = false;
    };

    Configurations(const Choice &choice, const RVCatalogueCheck &check) : myChoice(choice), myCheck(check) { }

    /// Reads the configurations of these catalogues. False, with a message for each broken one.
    bool read(const QStringList &catalogues, const Console &console);
    /// The check of a catalogue whose configuration was read.
    RVCatalogueCheck check(const QString &catalogue) const;

private:
    RVCheckConfiguration found(const QString &catalogue) const;
    RVCheckConfiguration readChosen(const Console &console) const;

    Choice myChoice;
    RVCatalogueCheck myCheck;
    QHash<QString, RVCheckConfiguration> myConfigurations; // by the catalogue
};

#endif
