#include "SharedObjects.h"

extern "C" Q_DECL_EXPORT void pluginSharedObjects(SharedObjects *objects)
{
    *objects = sharedObjects();
}
