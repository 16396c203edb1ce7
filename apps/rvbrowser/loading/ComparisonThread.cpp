#include "ComparisonThread.h"

#include "ObservedFile.h"

#include <RVCatalogueReader.h>

namespace {

/// The part of the progress, in percent, that reading one of the files takes. As much time goes into comparing the
/// products that differ, where there are many.
constexpr int READING = 25;
constexpr int COMPARING = 100 - 2 * READING;

}

void ComparisonThread::run()
{
    ObservedFile before(myFiles.before.path, [this](int percent) { return report(READING * percent / 100); });
    ObservedFile after(myFiles.after.path, [this](int percent) { return report(READING + READING * percent / 100); });
    if (open(&before, myFiles.before.fileName) && open(&after, myFiles.after.fileName))
        compare(&before, &after);
}

void ComparisonThread::compare(ObservedFile *before, ObservedFile *after)
{
    RVCatalogueReader oldReader(before);
    RVCatalogueReader newReader(after);
    RVCatalogueComparison differences(&oldReader, &newReader);
    if (isInterruptionRequested())
        return;
    if (oldReader.hasError())
        return fail({ myFiles.before.fileName, oldReader.errorPosition(), oldReader.errorString() });
    if (newReader.hasError())
        return fail({ myFiles.after.fileName, newReader.errorPosition(), newReader.errorString() });
    const auto comparison = std::make_shared<LoadedComparison>(myFiles);
    if (add(&differences, comparison.get()))
        myComparison = comparison;
}

// False if the thread is to end.
bool ComparisonThread::add(RVCatalogueComparison *differences, LoadedComparison *comparison)
{
    const qint64 all = qMax(qint64(1), differences->remaining());
    for (RVProductComparison product = differences->next(); !product.isNull(); product = differences->next()) {
        comparison->append(product);
        if (!report(2 * READING + int(COMPARING * (all - differences->remaining()) / all)))
            return false;
    }
    comparison->finish(differences->counts());
    return report(100);
}
