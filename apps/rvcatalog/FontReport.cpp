#include "FontReport.h"

#include "Console.h"

#include <RVSpineConfig.h>
#include <SpineFont.h>

#include <QTextStream>

using namespace Qt::StringLiterals;

void reportMissingFont(const Console &console)
{
    if (!RVSpineConfig::canMeasureText() || SpineFont::isDeclared())
        return;
    const QString family = SpineFont::family();
    QTextStream(console.messages) << u"rvcatalog: the font %1 is missing, so font sizes are those of %2 and may differ "
                                     "from other machines; install fonts-dejavu-core\n"_s.arg(
                                             SpineFont::declaredFamily(),
                                             family.isEmpty() ? u"no font at all"_s : family);
}
