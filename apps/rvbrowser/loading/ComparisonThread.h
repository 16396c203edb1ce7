#ifndef COMPARISONTHREAD_H
#define COMPARISONTHREAD_H

#include "LoadedComparison.h"
#include "ReadThread.h"

/// Compares two catalogues.
class ComparisonThread : public ReadThread
{
    Q_OBJECT

public:
    ComparisonThread(const ComparedFiles &files, QObject *parent) : ReadThread(parent), myFiles(files) { }

    /// The differences; null if a file could not be read or reading was given up. Known once the thread has finished.
    ComparisonPointer comparison() const { return myComparison; }

protected:
    void run() override;

private:
    void compare(ObservedFile *before, ObservedFile *after);
    bool add(RVCatalogueComparison *differences, LoadedComparison *comparison);

    ComparedFiles myFiles;
    ComparisonPointer myComparison;
};

#endif
