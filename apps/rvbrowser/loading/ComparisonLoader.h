#ifndef COMPARISONLOADER_H
#define COMPARISONLOADER_H

#include "LoadedComparison.h"
#include "ReadLoader.h"

/// Compares catalogues in a thread of its own, two at a time.
class ComparisonLoader : public ReadLoader
{
    Q_OBJECT

public:
    using ReadLoader::ReadLoader;

    /// Begins to compare; gives up without a signal what is being compared.
    void start(const ComparedFiles &files);
    using ReadLoader::giveUp;

Q_SIGNALS:
    void compared(const ComparisonPointer &comparison);

protected:
    bool take(ReadThread *thread) override;
};

#endif
