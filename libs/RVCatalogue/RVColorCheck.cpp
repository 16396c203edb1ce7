#include "RVColorCheck_p.h"

#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVForeignLetters_p.h"
#include "RVNearestTexts_p.h"

#include <QColor>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr auto COLOR_ATTRIBUTE = "color"_L1;

bool isColor(const QString &text)
{
    return QColor::fromString(text).isValid();
}

/// The colour that an invalid text certainly means: "#1a1a1a" for "1a1a1a"; null if there is none.
QString meantColor(const QString &text)
{
    static const QRegularExpression theHexadecimal(u"^(?|0[xX]((?:[0-9a-fA-F]{2}){3,4})|([0-9a-fA-F]{6}))$"_s);
    static const QRegularExpression theBlanks(u"\\s+"_s);
    QString plain = RVForeignLetters(text).plain().remove(theBlanks);
    if (isColor(plain))
        return plain;
    const QRegularExpressionMatch match = theHexadecimal.match(plain);
    return match.hasMatch() ? u'#' + match.captured(1) : QString();
}

/// The advice for a text that begins with "#".
QString digitsAdvice(const QString &text)
{
    static const QRegularExpression theOthers(u"[^0-9a-fA-F]"_s);
    const QString digits = text.sliced(1);
    const QRegularExpressionMatch other = theOthers.match(digits);
    return other.hasMatch() ? RVFindingText::tr("%1 is no hexadecimal digit").arg(rvQuoted(other.captured()))
                            : RVFindingText::tr("it has %1 instead of 6 digits").arg(digits.size());
}

QString nearestNames(const QString &text)
{
    constexpr int limit = 4;
    RVNearestTexts nearest(text, limit);
    for (const QString &name : QColor::colorNames())
        nearest.offer(name);
    return rvOneOf(nearest.texts());
}

QString adviceOn(const QString &color)
{
    const QString plain = RVForeignLetters(color).plain().trimmed();
    if (plain.startsWith(u'#'))
        return digitsAdvice(plain);
    const QString nearest = nearestNames(plain);
    return nearest.isEmpty() ? RVFindingText::tr("write an English name, or \"#\" and 6 hexadecimal digits")
                             : RVFindingText::tr("did you mean %1?").arg(nearest);
}

}

void RVColorCheck::check(const RVCatalogueElement &form)
{
    const QByteArrayView bytes = form.utf8(COLOR_ATTRIBUTE);
    if (bytes.isEmpty() || QColor::fromString(QUtf8StringView(bytes)).isValid())
        return;
    const QString color = form.attribute(COLOR_ATTRIBUTE);
    if (!isColor(color))
        addInvalid(form, color);
}

void RVColorCheck::addInvalid(const RVCatalogueElement &form, const QString &color)
{
    const QString meant = meantColor(color);
    const QString advice = meant.isNull() ? adviceOn(color) : RVFindingText::tr("write %1").arg(rvQuoted(meant));
    const QString text = RVFindingText::tr("%1 is no colour").arg(rvQuoted(color));
    myReport->add(RVCatalogueRuleId::OptionColorInvalid, form, COLOR_ATTRIBUTE,
                  rvAdvised(rvAdvised(text, RVForeignLetters(color).text()), advice),
                  { {}, rvReplaced(form, COLOR_ATTRIBUTE, meant) });
}
