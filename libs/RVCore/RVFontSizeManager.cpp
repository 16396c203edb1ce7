#include "RVFontSizeManager.h"

#include <algorithm>

template class RVSingleton<RVFontSizeManager>;

QList<int> RVFontSizeManager::defaultFontSizes() const
{
    const QReadLocker locker(&myLock);
    return mySizes;
}

void RVFontSizeManager::setDefaultFontSizes(const QList<int> &sizes)
{
    QList<int> sorted = sizes;
    std::sort(sorted.begin(), sorted.end());
    const QWriteLocker locker(&myLock);
    mySizes = sorted;
}
