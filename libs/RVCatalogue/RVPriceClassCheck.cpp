#include "RVPriceClassCheck_p.h"

#include "RVCatalogueCheck.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVForeignLetters_p.h"
#include "RVNearestTexts_p.h"

#include <RVPriceClassSet.h>

#include <algorithm>
#include <iterator>

namespace {

RVPriceClassSet knownPriceClasses()
{
    RVPriceClassSet result = RVPriceClassSet::framePassepartout();
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

/// The codes in UTF-8, as in catalogues, so that a search converts no text; sorted.
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

/// @p codes are sorted. False also for some codes in the list that have rare letters.
bool isQuicklyFoundIn(const QStringList &codes, QByteArrayView code)
{
    const QAnyStringView wanted = QUtf8StringView(code);
    return std::binary_search(codes.begin(), codes.end(), wanted,
                              [](QAnyStringView a, QAnyStringView b) { return QAnyStringView::compare(a, b) < 0; });
}

const QStringList &knownTexts()
{
    static const QStringList theTexts = [] {
        QStringList result;
        for (const QByteArray &code : knownCodes())
            result += QString::fromUtf8(code);
        return result;
    }();
    return theTexts;
}

QString withoutBlanks(const QString &text)
{
    QString result = text;
    return result.removeIf([](QChar letter) { return letter.isSpace(); });
}

/// Blanks do not count if the code without them is known.
RVNearestTexts nearestCodes(const QString &text, const QStringList &codes)
{
    RVNearestTexts result(text);
    RVNearestTexts closed(withoutBlanks(text));
    for (const QString &code : codes) {
        result.offer(code);
        closed.offer(code);
    }
    return result.distance() != 0 && closed.distance() == 0 ? closed : result;
}

/// The codes that could be meant: the nearest ones, or if none is near, those with the same begin.
QStringList meantCodes(const QString &text, const QStringList &codes, const RVNearestTexts &nearest)
{
    constexpr qsizetype shortest = 3;
    if (!nearest.texts().isEmpty() || text.size() < shortest)
        return nearest.texts();
    QStringList result;
    std::copy_if(codes.begin(), codes.end(), std::back_inserter(result),
                 [&text](const QString &code) { return code.startsWith(text); });
    return result;
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
        addUnknown(element, name, code, ownCodes);
}

void RVPriceClassCheck::addUnknown(const RVCatalogueElement &element, QLatin1StringView name, const QString &code,
                                   const QStringList &ownCodes)
{
    const RVForeignLetters letters(code);
    const QString plain = letters.plain().trimmed();
    const QStringList codes = knownTexts() + ownCodes;
    const RVNearestTexts nearest = nearestCodes(plain, codes);
    const QStringList meant = meantCodes(plain, codes, nearest);
    const QString advice = meant.isEmpty()
            ? RVFindingText::tr("write one of a group, or one that begins with 0 if nothing is billed")
            : RVFindingText::tr("did you mean %1?").arg(rvOneOf(meant));
    // Codes that differ in more than letter case and blanks are different codes.
    const bool isCertain = nearest.texts().size() == 1 && nearest.distance() == 0;
    const QString text = RVFindingText::tr("the price class %1 belongs to no known group").arg(rvQuoted(code));
    myReport->add(RVCatalogueRuleId::PriceClassUnknown, element, name,
                  rvAdvised(rvAdvised(text, letters.text()), advice),
                  { {}, rvReplaced(element, name, isCertain ? nearest.texts().first() : QString()) });
}
