#ifndef SHAREDOBJECTS_H
#define SHAREDOBJECTS_H

#include <RVCore/RVDirectoryConfig.h>
#include <RVCore/RVFontCreator.h>
#include <RVCore/RVFontSizeManager.h>
#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVPageOrganizationManager.h>

#include <array>

struct SharedObject
{
    const char *name;
    const void *address;
};

using SharedObjects = std::array<SharedObject, 5>;
using SharedObjectsFunction = void (*)(SharedObjects *);

/// What the calling module sees of the objects that exist once in the process. Each module has its own copy of this.
static inline SharedObjects sharedObjects()
{
    return { {
        { "keyword table of RVSpotColor", RVSpotColor().enumToStringTable() },
        { "RVPageOrganizationManager", RVPageOrganizationManager::instance() },
        { "RVFontCreator", RVFontCreator::instance() },
        { "RVFontSizeManager", RVFontSizeManager::instance() },
        { "RVDirectoryConfig", RVDirectoryConfig::instance() },
    } };
}

#endif
