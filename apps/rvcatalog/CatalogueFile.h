#ifndef CATALOGUEFILE_H
#define CATALOGUEFILE_H

#include "Console.h"

#include <RVCatalogueReader.h>

#include <memory>

/// A catalogue on the command line; "-" is the input of the console.
class CatalogueFile
{
    Q_DISABLE_COPY_MOVE(CatalogueFile)

public:
    CatalogueFile(const QString &name, const Console &console);

    const QString &name() const { return myName; } ///< The name on the command line.
    RVCatalogueReader &reader() { return myReader; }
    /// True, with a message, when the file could not be opened or read on.
    bool reportError() const;
    /// Reads on to the end. False, with a message, if that is impossible.
    bool finish();
    void report(const Problem &problem) const { myConsole.report(myName, problem); }

private:
    QString myName;
    const Console &myConsole;
    std::unique_ptr<QIODevice> myInput; // null for a file
    RVCatalogueReader myReader;
};

#endif
