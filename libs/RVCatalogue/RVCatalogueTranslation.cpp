#include "RVCatalogueTranslation.h"

#include "RVInstalledTranslator_p.h"

namespace {

RVInstalledTranslator translator()
{
    static const char here = '\0';
    return RVInstalledTranslator(QStringLiteral("RVCatalogue"), &here);
}

}

bool RVCatalogueTranslation::install(const QLocale &locale)
{
    return translator().install(locale);
}

void RVCatalogueTranslation::remove()
{
    translator().remove();
}

QStringList RVCatalogueTranslation::folders()
{
    return translator().folders();
}
