#include "RVTranslation.h"

#include "RVInstalledTranslator_p.h"

namespace {

RVInstalledTranslator translator()
{
    static const char here = 0;
    return RVInstalledTranslator(QStringLiteral("RVProductBase"), &here);
}

}

bool RVTranslation::install(const QLocale &locale)
{
    return translator().install(locale);
}

void RVTranslation::remove()
{
    translator().remove();
}

QStringList RVTranslation::folders()
{
    return translator().folders();
}
