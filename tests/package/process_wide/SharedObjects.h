#ifndef SHAREDOBJECTS_H
#define SHAREDOBJECTS_H

#include <RVCore/RVDirectoryConfig.h>
#include <RVCore/RVFontCreator.h>
#include <RVCore/RVFontSizeManager.h>
#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVPageOrganizationManager.h>
#include <RVProductBase/RVProductCheckerRegistry.h>

#include <array>

struct SharedObject
{
    const char *name;
    const void *address;
};

using SharedObjects = std::array<SharedObject, 9>;
using SharedObjectsFunction = void (*)(SharedObjects *);

/// The view of the calling module on the objects that exist once in the process. Each module has its own copy of this.
static inline SharedObjects sharedObjects()
{
    return { {
            { "keyword table of RVSpotColor", RVSpotColor().enumToStringTable() },
            { "keyword table of RVArticleClass", RVArticleClass().enumToStringTable() },
            { "keyword table of RVCoverType", RVCoverType().enumToStringTable() },
            { "names of RVCoverType", &RVCoverType::bindingNames() },
            { "RVPageOrganizationManager", RVPageOrganizationManager::instance() },
            { "RVProductCheckerRegistry", RVProductCheckerRegistry::instance() },
            { "RVFontCreator", RVFontCreator::instance() },
            { "RVFontSizeManager", RVFontSizeManager::instance() },
            { "RVDirectoryConfig", RVDirectoryConfig::instance() },
    } };
}

#endif
