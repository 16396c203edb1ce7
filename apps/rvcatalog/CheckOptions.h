#ifndef CHECKOPTIONS_H
#define CHECKOPTIONS_H

#include "BaselineFilter.h"
#include "Configurations.h"

#include <RVCatalogueCheck.h>

#include <QString>
#include <QStringList>

#include <limits>

class QCommandLineParser;
class RVCatalogueReader;

/// The options of "check" on the command line.
struct CheckOptions
{
    QStringList fileNames;
    QString format; ///< One of the formats of FindingWriter.
    QString color; ///< One of the choices of Appearance.
    RVCatalogueCheck check; ///< The check without the configuration file.
    Configurations::Choice configuration;
    BaselineFilter::Choice baseline;
    int threads = 0; ///< The number of threads; 0 for the default of the reader.
    qint64 mostFindings = std::numeric_limits<qint64>::max(); ///< The limit of written findings; all are counted.
    bool isQuiet = false;
    bool isSummary = false;
    bool listsRules = false; ///< Lists the rules and checks nothing.
    bool fixes = false; ///< Mends the files before they are checked.
    bool showsFixes = false; ///< Shows the changes, and neither mends nor checks.

    /// Adds the options to a parser.
    static void addTo(QCommandLineParser *parser);
    /// Takes the options from the parser. Returns the reason if they make no sense; empty otherwise.
    QString read(const QCommandLineParser &parser);
    /// Sets the number of threads of the reader.
    void limitThreads(RVCatalogueReader *reader) const;

private:
    QString readLooks(const QCommandLineParser &parser);
    QString readNumbers(const QCommandLineParser &parser);
    QString readRules(const QCommandLineParser &parser);
    QString readFiles(const QCommandLineParser &parser);
    QString readStreams() const;
};

#endif
