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

    /// Once the thread has finished: null where one of the files could not be read, or all was given up.
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
