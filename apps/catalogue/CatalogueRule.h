#ifndef CATALOGUERULE_H
#define CATALOGUERULE_H

#include "CatalogueFinding.h"

#include <QCoreApplication>

/// The rules, in the order of catalogueRules().
enum class Rule {
    ProductsMissing,
    TypeMissing,
    TypeDuplicate,
    ArticleIdMissing,
    ArticleIdInvalid,
    ArticleIdDuplicate,
    ShippingGroupInvalid,
    ElementIgnored,
    NumberInvalid,
    BooleanInvalid,
    UnitUnknown,
    KeywordUnknown,
    KeywordLegacy,
    PageCountsReversed,
    PageCountsInvalid,
    PageStepMissesHighest,
    SpineMissing,
    SpineNegative,
    SpineFontTooSmall,
    OptionIncomplete,
    OptionDuplicate,
    OptionDefaultTwice,
    OptionDefaultMissing,
    OptionColorInvalid,
    OptionCompositeMismatch,
    BarcodeInvalid,
    BarcodePageImpossible,
    BarcodeOutsidePage,
    BarcodeOverlap,
    PriceClassUnknown,
};

const CatalogueRule &catalogueRule(Rule rule);

/// What findings say, in the language of the program: English, unless it has a translation.
class FindingText
{
    Q_DECLARE_TR_FUNCTIONS(FindingText)
};

/// The text in quotes, on one line and not too long, as findings show what a catalogue says.
QString quoted(QStringView text);

#endif
