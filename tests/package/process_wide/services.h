#ifndef SERVICES_H
#define SERVICES_H

#include <RVDirectoryConfig.h>
#include <RVFontCreator.h>
#include <RVFontSizeManager.h>
#include <RVPageOrganizationManager.h>
#include <RVSpotColor.h>

#include <array>

/// Everything of which a process has one, as the module that calls this sees it.
inline std::array<const void *, 5> servicesOfThisModule()
{
    return {
        RVSpotColor().enumToStringTable(), RVPageOrganizationManager::instance(), RVFontCreator::instance(),
        RVFontSizeManager::instance(),     RVDirectoryConfig::instance(),
    };
}

using ServicesFunction = void (*)(std::array<const void *, 5> *);

#endif
