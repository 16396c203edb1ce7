#include "ComparisonLoader.h"

#include "ComparisonThread.h"

void ComparisonLoader::start(const ComparedFiles &files)
{
    run(new ComparisonThread(files, this));
}

bool ComparisonLoader::take(ReadThread *thread)
{
    const ComparisonPointer comparison = qobject_cast<ComparisonThread *>(thread)->comparison();
    if (comparison)
        Q_EMIT compared(comparison);
    return comparison != nullptr;
}
