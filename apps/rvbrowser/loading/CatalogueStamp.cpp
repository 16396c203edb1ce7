#include "CatalogueStamp.h"

#include <RVCheckConfiguration.h>

#include <utility>

CatalogueStamp CatalogueStamp::of(const QString &fileName)
{
    CatalogueStamp result;
    result.catalogue = FileStamp::of(fileName);
    result.configurationNames = RVCheckConfiguration::files(fileName);
    for (const QString &name : std::as_const(result.configurationNames))
        result.configurations += FileStamp::of(name);
    return result;
}
