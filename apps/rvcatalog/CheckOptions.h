#ifndef CHECKOPTIONS_H
#define CHECKOPTIONS_H

#include <RVCatalogueCheck.h>

#include <QString>
#include <QStringList>

class QCommandLineParser;

/// What the command line of "check" asks for.
struct CheckOptions
{
    QStringList fileNames;
    QString format; ///< One that FindingWriter knows.
    RVCatalogueCheck check;
    bool listsRules = false; ///< Instead of checking anything.

    /// Tells a parser the options that there are.
    static void addTo(QCommandLineParser *parser);
    /// Takes what the parser has read. Returns the reason where it makes no sense; empty otherwise.
    QString read(const QCommandLineParser &parser);
};

#endif
