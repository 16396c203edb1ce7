#include "RVNameCheck_p.h"

#include "RVCatalogueAttribute.h"
#include "RVCatalogueCheck.h"
#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVNameText_p.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

/// Every element may have a name, so this attribute belongs everywhere.
constexpr auto NAME_ATTRIBUTE = "name"_L1;
/// Words that other programs would not use by chance, in addition to all words with an underscore.
constexpr QLatin1StringView DISTINCTIVE[] = { "pageNr"_L1, "units"_L1, "pages"_L1, "pieces"_L1, "preselected"_L1 };

bool isDistinctive(QByteArrayView name)
{
    return name.contains('_') || RVNameList(DISTINCTIVE).contains(name);
}

bool areNeighbours(const RVKnownElement &a, const RVKnownElement &b)
{
    return a.parent == b.name || b.parent == a.name;
}

/// The elements that have the attribute, those next to an element first.
QVarLengthArray<const RVKnownElement *> ownersOf(QByteArrayView attribute, const RVKnownElement &element)
{
    QVarLengthArray<const RVKnownElement *> result;
    for (const RVKnownElement &each : RV_KNOWN_ELEMENTS) {
        if (each.attributes.contains(attribute))
            result += &each;
    }
    std::stable_partition(result.begin(), result.end(),
                          [&element](const RVKnownElement *owner) { return areNeighbours(*owner, element); });
    return result;
}

/// The elements that an attribute may have been meant for: the neighbours, or all elements if there are no neighbours.
QString namesOf(const QVarLengthArray<const RVKnownElement *> &owners, const RVKnownElement &element)
{
    QStringList names;
    for (const RVKnownElement *owner : owners) {
        if (areNeighbours(*owner, element) || !areNeighbours(*owners.first(), element))
            names += owner->name;
    }
    return names.join(RVFindingText::tr(" or "));
}

/// The names of the elements that may stand in one.
QVarLengthArray<QLatin1StringView> childrenOf(const RVKnownElement &parent)
{
    QVarLengthArray<QLatin1StringView> result;
    for (const RVKnownElement &element : RV_KNOWN_ELEMENTS) {
        if (element.parent == parent.name)
            result += element.name;
    }
    return result;
}

/// The known element whose name differs only in letter case and signs between words; empty if there is none.
QLatin1StringView sameName(QByteArrayView name)
{
    for (const RVKnownElement &element : RV_KNOWN_ELEMENTS) {
        const QLatin1StringView known[] = { element.name };
        if (rvGuessName(name, known).changes == 0)
            return element.name;
    }
    return QLatin1StringView();
}

bool lacksInAny(const RVCatalogueElement &parent, QLatin1StringView child, QLatin1StringView attribute)
{
    auto element = parent.firstChildElement(child);
    while (!element.isNull() && element.hasAttribute(attribute))
        element = element.nextSiblingElement(child);
    return !element.isNull();
}

/// True for a keyword attribute that other XML than catalogues has.
bool isOtherAttribute(const QString &name)
{
    return !RVCatalogueAttribute::find(name).isNull();
}

QString didYouMean(const QString &name, const RVNameGuess &guess)
{
    if (guess.names.size() == 1)
        return RVFindingText::tr("the attribute %1 is not read; did you mean %2?")
                .arg(rvQuotedName(name), rvQuotedName(guess.names[0]));
    return RVFindingText::tr("the attribute %1 is not read; did you mean %2 or %3?")
            .arg(rvQuotedName(name), rvQuotedName(guess.names[0]), rvQuotedName(guess.names[1]));
}

/// The edit that renames an attribute.
QList<RVFileEdit> renamed(const RVFileRange &attribute, const QString &name, QLatin1StringView better)
{
    RVFileRange range = attribute;
    range.end = range.begin;
    range.end.column += name.size();
    return { { range, better } };
}

}

/// An attribute that its element does not have.
struct RVNameCheck::Attribute
{
    const RVCatalogueElement &element;
    const RVKnownElement &known; // the element
    QByteArrayView name;
    int index;
};

void RVNameCheck::check(const RVCatalogueProduct &product)
{
    checkElement(product.element(), RV_KNOWN_ELEMENTS[0]);
}

// NOLINTBEGIN(misc-no-recursion): the depth is that of the known elements
void RVNameCheck::checkElement(const RVCatalogueElement &element, const RVKnownElement &known)
{
    checkAttributes(element, known);
    for (auto child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        checkChild(child, element, known);
}

void RVNameCheck::checkAttributes(const RVCatalogueElement &element, const RVKnownElement &known)
{
    Names mended;
    RVNameFinder finder(known.attributes);
    const int count = element.attributeCount();
    for (int i = 0; i < count; ++i) {
        const QByteArrayView name = element.attributeName(i);
        if (finder.contains(name) || name == "xmlns" || name.contains(':'))
            continue;
        const Attribute attribute = { element, known, name, i };
        if (!checkPlace(attribute))
            checkSpelling(attribute, &mended);
    }
}

/// True for an attribute of another element, even if it was not meant for that one.
bool RVNameCheck::checkPlace(const Attribute &attribute)
{
    const auto owners = ownersOf(attribute.name, attribute.known);
    if (owners.isEmpty())
        return false;
    const RVKnownElement &owner = *owners.first();
    const QLatin1StringView name(attribute.name.data(), attribute.name.size());
    const bool isAbove = owner.parent == attribute.known.name && lacksInAny(attribute.element, owner.name, name);
    const bool isBelow = attribute.known.parent == owner.name && owner.parent.isEmpty()
            && !myReport->product().element().hasAttribute(name);
    const bool isMisplaced = name != NAME_ATTRIBUTE && (isDistinctive(attribute.name) || isAbove || isBelow);
    if (!isMisplaced || myReport->check().isForeign(name))
        return true;
    for (const RVKnownElement *each : owners) {
        const auto *known = std::find(each->attributes.begin(), each->attributes.end(), name);
        myReport->addMeant(RVCatalogueRuleId::AttributeMisplaced, each->name, *known);
    }
    myReport->add(RVCatalogueRuleId::AttributeMisplaced, attribute.element.attributeRange(attribute.index),
                  RVFindingText::tr("the attribute %1 is not read in %2; it belongs to %3")
                          .arg(rvQuotedName(name), attribute.known.name, namesOf(owners, attribute.known)));
    return true;
}

/// @p mended are the new names of earlier attributes.
void RVNameCheck::checkSpelling(const Attribute &attribute, Names *mended)
{
    RVNameGuess guess = rvGuessName(attribute.name, attribute.known.attributes);
    if (guess.names.isEmpty())
        return;
    const QString name = QString::fromUtf8(attribute.name);
    const auto isThere = [&](QLatin1StringView each) {
        return attribute.element.hasAttribute(each) || std::find(mended->begin(), mended->end(), each) != mended->end();
    };
    // The missing one of several equally near names was meant.
    if (guess.names.size() > 1)
        guess.names.erase(std::remove_if(guess.names.begin(), guess.names.end(), isThere), guess.names.end());
    if (guess.names.isEmpty() || myReport->check().isForeign(name) || isOtherAttribute(name))
        return;
    const RVFileRange range = attribute.element.attributeRange(attribute.index);
    const bool isInFile = range.begin != attribute.element.position();
    const bool isSafe = isInFile && guess.names.size() == 1 && guess.changes <= 1 && !isThere(guess.names[0]);
    for (const QLatin1StringView meant : guess.names)
        myReport->addMeant(RVCatalogueRuleId::AttributeMisspelt, attribute.element, meant);
    myReport->add(RVCatalogueRuleId::AttributeMisspelt, range, didYouMean(name, guess),
                  { {}, isSafe ? renamed(range, name, guess.names[0]) : QList<RVFileEdit>() });
    if (isSafe)
        *mended += guess.names[0];
}

void RVNameCheck::checkChild(const RVCatalogueElement &child, const RVCatalogueElement &parent,
                             const RVKnownElement &known)
{
    const RVKnownElement *knownChild = rvKnownElement(child.utf8Name());
    if (!knownChild)
        return checkUnknownChild(child, known);
    if (knownChild->parent == known.name) {
        if (!knownChild->isSingle || parent.firstChildElement(knownChild->name).position() == child.position())
            checkElement(child, *knownChild);
        return;
    }
    const QLatin1StringView name = knownChild->name;
    if (knownChild->parent.isEmpty() && known.parent.isEmpty())
        return; // RVIgnoredElementCheck reports a product in a product.
    const QString text = knownChild->parent.isEmpty()
            ? RVFindingText::tr("the element %1 is not read in %2").arg(rvQuotedName(name), known.name)
            : RVFindingText::tr("the element %1 is not read in %2; it belongs into %3")
                      .arg(rvQuotedName(name), known.name, knownChild->parent);
    addElement(RVCatalogueRuleId::ElementMisplaced, child, name, text);
}
// NOLINTEND(misc-no-recursion)

void RVNameCheck::checkUnknownChild(const RVCatalogueElement &child, const RVKnownElement &parent)
{
    const QByteArrayView utf8 = child.utf8Name();
    const qsizetype colon = utf8.indexOf(':');
    const auto children = childrenOf(parent);
    const RVNameList known(children.begin(), children.end());
    const RVNameGuess guess = rvGuessName(utf8.sliced(colon + 1), known);
    const bool isExact = known.contains(utf8.sliced(colon + 1));
    if (utf8.contains(':')) {
        if (isExact)
            addElement(RVCatalogueRuleId::ElementPrefixed, child, guess.names[0],
                       rvPrefixedElementText(QString::fromUtf8(utf8), guess.names[0]));
        return;
    }
    const QLatin1StringView meant = guess.names.isEmpty() ? sameName(utf8) : guess.names[0];
    if (!meant.isEmpty())
        addElement(RVCatalogueRuleId::ElementMisspelt, child, meant,
                   rvMisspeltElementText(QString::fromUtf8(utf8), meant));
}

void RVNameCheck::addElement(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView meant,
                             const QString &text)
{
    if (myReport->check().isForeign(element.name()))
        return;
    myReport->addMeant(rule, meant);
    myReport->add(rule, element, text);
}
