#ifndef FIXPLAN_H
#define FIXPLAN_H

#include "LoadedCatalogue.h"

#include <RVFileEditor.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>

/// The fixes that some findings of a catalogue propose: what they would change in the file, and the change itself. It
/// changes nothing in a file that is another one than when the catalogue was loaded.
class FixPlan
{
    Q_DECLARE_TR_FUNCTIONS(FixPlan)
    Q_DISABLE_COPY_MOVE(FixPlan)

public:
    /// @p findings are numbers in the catalogue; those without a fix do not matter.
    FixPlan(const LoadedCatalogue &catalogue, const QList<int> &findings);

    QString fileName() const { return myFileName; }
    int count() const { return int(myEditor.count()); } ///< Fixes that are made.
    int leftOut() const { return int(myEditor.leftOut()); } ///< Fixes that touch others, for another time.

    /// Finds out what changes. False where that is impossible.
    bool prepare();
    /// The changes as a unified diff, the bytes as they stand in the file; empty before it is prepared.
    QByteArray diff() const { return myDiff; }
    /// Makes the change. False where that is impossible, and nothing is changed.
    bool save();
    QString errorString() const { return myError; } ///< One line, without a full stop; empty without an error.

private:
    bool isAsLoaded();
    bool fail(const QString &text);

    QString myFileName;
    FileStamp myLoaded;
    RVFileEditor myEditor;
    QByteArray myDiff;
    QString myError;
};

#endif
