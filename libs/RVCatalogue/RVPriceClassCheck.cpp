#include "RVPriceClassCheck_p.h"

#include "RVCatalogueCheck.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVForeignLetters_p.h"
#include "RVNearestTexts_p.h"

#include <RVPriceClassSet.h>

#include <QRegularExpression>

#include <algorithm>

namespace {

RVPriceClassSet knownPriceClasses()
{
    RVPriceClassSet result = { RVPriceClassSet::framePassepartout().toString() };
    for (const RVPriceClassSet &group : { RVPriceClassSet::frameGlasses(),
                                          RVPriceClassSet::spotColorAll(),
                                          RVPriceClassSet::bookGiftBoxes(),
                                          RVPriceClassSet::bookGiftService(),
                                          RVPriceClassSet::calendarGiftService(),
                                          RVPriceClassSet::calendarGiftBoxes(),
                                          RVPriceClassSet::maps(),
                                          RVPriceClassSet::envelops(),
                                          RVPriceClassSet::calendarFrameClasses(),
                                          RVPriceClassSet::posterWoodenStrips(),
                                          RVPriceClassSet::wallholderPriceClasses(),
                                          RVPriceClassSet::memorabiliaPocketPriceClass(),
                                          RVPriceClassSet::artPrintBoxPriceClasses(),
                                          RVPriceClassSet::videoNames(),
                                          RVPriceClassSet::mattCoverPriceClasses(),
                                          RVPriceClassSet::linenCoverPriceClasses(),
                                          RVPriceClassSet::flyleafAndInsideCoverPriceClasses(),
                                          RVPriceClassSet::pxwPanoPagesPriceClasses(),
                                          RVPriceClassSet::pageIncrements(),
                                          RVPriceClassSet::designPriceClasses() })
        result.unite(group);
    return result;
}

/// In UTF-8, as catalogues have them, so that no text is converted to find one; sorted.
const QList<QByteArray> &knownCodes()
{
    static const QList<QByteArray> theCodes = [] {
        QList<QByteArray> result;
        for (const RVPriceClass &priceClass : knownPriceClasses())
            result += priceClass.toString().toUtf8();
        std::sort(result.begin(), result.end());
        return result;
    }();
    return theCodes;
}

/// False also for some that are in the list, where they have rare letters.
bool isQuicklyFoundIn(const QStringList &codes, QByteArrayView code)
{
    const QAnyStringView wanted = QUtf8StringView(code);
    return std::binary_search(codes.begin(), codes.end(), wanted,
                              [](QAnyStringView a, QAnyStringView b) { return QAnyStringView::compare(a, b) < 0; });
}

QStringList allCodes(const QStringList &ownCodes)
{
    QStringList result;
    for (const QByteArray &known : knownCodes())
        result += QString::fromUtf8(known);
    return result + ownCodes;
}

/// Those that begin with a text that is no code, but the begin of a code or two.
QStringList continued(const QString &begin, const QStringList &codes)
{
    constexpr qsizetype shortest = 3;
    return begin.size() < shortest ? QStringList()
                                   : codes.filter(QRegularExpression(u'^' + QRegularExpression::escape(begin)));
}

}

void RVPriceClassCheck::check(const RVCatalogueElement &element, QLatin1StringView name)
{
    const QByteArrayView bytes = element.utf8(name);
    if (bytes.isEmpty() || std::binary_search(knownCodes().begin(), knownCodes().end(), bytes))
        return;
    const QStringList ownCodes = myReport->check().priceClasses();
    if (isQuicklyFoundIn(ownCodes, bytes))
        return;
    const QString code = element.attribute(name);
    if (!RVPriceClass(code).isFree() && !ownCodes.contains(code))
        addUnknown(element, name, ownCodes);
}

void RVPriceClassCheck::addUnknown(const RVCatalogueElement &element, QLatin1StringView name,
                                   const QStringList &ownCodes)
{
    const QString code = element.attribute(name);
    const RVForeignLetters letters(code);
    const QString plain = letters.plain().trimmed();
    const QStringList codes = allCodes(ownCodes);
    RVNearestTexts nearest(plain);
    for (const QString &each : codes)
        nearest.offer(each);
    const QStringList meant = nearest.texts().isEmpty() ? continued(plain, codes) : nearest.texts();
    const QString advice = meant.isEmpty()
            ? RVFindingText::tr("write one of a group, or one that begins with 0 for what is not billed")
            : RVFindingText::tr("did you mean %1?").arg(rvOneOf(meant));
    // Codes that differ in more than letter case and blanks are other codes.
    const bool isCertain = nearest.texts().size() == 1 && nearest.distance() == 0;
    const QString text = RVFindingText::tr("the price class %1 belongs to no known group").arg(rvQuoted(code));
    myReport->add(RVCatalogueRuleId::PriceClassUnknown, element, name,
                  rvAdvised(rvAdvised(text, letters.text()), advice),
                  { {}, rvReplaced(element, name, isCertain ? nearest.texts().first() : QString()) });
}
