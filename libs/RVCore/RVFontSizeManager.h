#ifndef RVFONTSIZEMANAGER_H
#define RVFONTSIZEMANAGER_H

#include "RVCoreExport.h"
#include "RVSingleton.h"

#include <QList>
#include <QReadWriteLock>

class RVFontSizeManager;

extern template class RVCORE_EXPORT RVSingleton<RVFontSizeManager>;

/// The font sizes that the editor offers. Any thread.
/// @par Example
/// @snippet tst_examples_platform.cpp RVFontSizeManager
/// @ingroup platform
class RVCORE_EXPORT RVFontSizeManager : public RVSingleton<RVFontSizeManager>
{
public:
    /// The sizes in points, ascending; 6 to 72 unless the application set its own, which may be an empty list.
    QList<int> defaultFontSizes() const;
    /// Replaces the sizes; they may come in any order.
    void setDefaultFontSizes(const QList<int> &sizes);

private:
    mutable QReadWriteLock myLock;
    QList<int> mySizes = { 6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72 };
};

#endif
