#include "RVNamedColor.h"

#include <QColor>
#include <QString>

QString RVNamedColor::renderColorPreviewHTML(const QColor &color)
{
    const QString css = color.isValid() ? color.name() : QStringLiteral("transparent");
    return QStringLiteral("<span style=\"background-color:%1\">&nbsp;&nbsp;&nbsp;</span>").arg(css);
}
