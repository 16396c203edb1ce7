#ifndef CHECKOPTIONS_H
#define CHECKOPTIONS_H

#include "BaselineFilter.h"
#include "Configurations.h"

#include <RVCatalogueCheck.h>

#include <QString>
#include <QStringList>

#include <limits>

class QCommandLineParser;

/// The wishes of the command line of "check".
struct CheckOptions
{
    QStringList fileNames;
    QString format; ///< One of FindingWriter.
    QString color; ///< One of the choices of Appearance.
    RVCatalogueCheck check; ///< Without what a configuration file says.
    Configurations::Choice configuration;
    BaselineFilter::Choice baseline;
    int threads = 0; ///< 0 leaves it to the reader.
    qint64 mostFindings = std::numeric_limits<qint64>::max(); ///< That are written; all are counted.
    bool isQuiet = false;
    bool isSummary = false;
    bool listsRules = false; ///< Instead of checking anything.
    bool fixes = false; ///< Mends the files before they are checked.
    bool showsFixes = false; ///< Instead of mending and checking them.

    /// Tells a parser the options that there are.
    static void addTo(QCommandLineParser *parser);
    /// Takes what the parser has read. Returns the reason where it makes no sense; empty otherwise.
    QString read(const QCommandLineParser &parser);

private:
    QString readLooks(const QCommandLineParser &parser);
    QString readNumbers(const QCommandLineParser &parser);
    QString readRules(const QCommandLineParser &parser);
    QString readFiles(const QCommandLineParser &parser);
};

#endif
