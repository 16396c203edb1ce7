#ifndef RVCATALOGUERULETABLE_P_H
#define RVCATALOGUERULETABLE_P_H

#include "RVCatalogueRule.h"

#include <QLatin1StringView>
#include <QtGlobal>

#include <cstddef>
#include <iterator>

/// The rules, in the order of the table below.
enum class RVCatalogueRuleId {
    ProductsMissing,
    TypeMissing,
    TypeDuplicate,
    ArticleIdMissing,
    ArticleIdInvalid,
    ArticleIdDuplicate,
    ShippingGroupInvalid,
    ElementIgnored,
    ElementMisspelt,
    ElementMisplaced,
    ElementPrefixed,
    AttributeMisspelt,
    AttributeMisplaced,
    NumberInvalid,
    BooleanInvalid,
    UnitUnknown,
    KeywordUnknown,
    KeywordLegacy,
    PageCountsReversed,
    PageCountsInvalid,
    PageStepMissesHighest,
    MaxPagesMissing,
    PageCountsExcessive,
    SpineMissing,
    SpineNegative,
    SpineFontTooSmall,
    SpineBaseMissing,
    SpinePackagesMissing,
    SpineTooWide,
    OptionIncomplete,
    OptionDuplicate,
    OptionDefaultTwice,
    OptionDefaultMissing,
    OptionColorInvalid,
    OptionCompositeMismatch,
    OptionSeparator,
    OptionBlank,
    OptionLetterCase,
    OptionKeyNames,
    BarcodeInvalid,
    BarcodePageImpossible,
    BarcodeOutsidePage,
    BarcodeOverlap,
    BarcodeSizeMissing,
    BarcodePageMissing,
    BarcodeOffUsualPage,
    PriceClassUnknown,
    SuppressionUnused,
    SuppressionUnknown,
    Count, // the number of rules; stays the last
};
constexpr auto RV_CATALOGUE_RULE_COUNT = std::size_t(RVCatalogueRuleId::Count);

/// The properties and texts of a rule.
struct RVCatalogueRuleRow
{
    static RVCatalogueRule rule(RVCatalogueRuleId id);
    /// The row of a rule; null for a null rule.
    static const RVCatalogueRuleRow *of(RVCatalogueRule rule) { return rule.myRow; }

    RVCatalogueRuleId id;
    RVCatalogueSeverity severity;
    QLatin1StringView name;
    const char *reason; // a source text of RVFindingText
    const char *example;
    const char *mended = ""; // the example without its fault
};

// clang-format off
inline constexpr RVCatalogueRuleRow RV_CATALOGUE_RULES[] = {
    { RVCatalogueRuleId::ProductsMissing, RVCatalogueSeverity::Error, QLatin1StringView("products-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "A file without a product is no catalogue: nothing of it can be ordered."),
      R"(<products>
  <family name="Photo books"/>
</products>
)",
      R"(<products>
  <family name="Photo books">
    <product type="DUN9" article_id="1001"/>
  </family>
</products>
)" },
    { RVCatalogueRuleId::TypeMissing, RVCatalogueSeverity::Error, QLatin1StringView("type-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "Projects find their product by its type, so one without a type cannot be ordered."),
      R"(<products>
  <product article_id="1001"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001"/>
</products>
)" },
    { RVCatalogueRuleId::TypeDuplicate, RVCatalogueSeverity::Error, QLatin1StringView("type-duplicate"),
      QT_TRANSLATE_NOOP("RVFindingText", "Of two products of one type the application only ever finds the first, and the codes of a photo book family are one type."),
      R"(<products>
  <product type="DUN9" article_id="1001"/>
  <product type="DUN9_30" article_id="1002"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001"/>
  <product type="DUN5" article_id="1002"/>
</products>
)" },
    { RVCatalogueRuleId::ArticleIdMissing, RVCatalogueSeverity::Error, QLatin1StringView("article-id-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "Shop and production know an article by its id."),
      R"(<products>
  <product type="DUN9"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001"/>
</products>
)" },
    { RVCatalogueRuleId::ArticleIdInvalid, RVCatalogueSeverity::Error, QLatin1StringView("article-id-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "An article id is a whole number above 0; anything else is read as no id."),
      R"(<products>
  <product type="DUN9" article_id="10-01"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001"/>
</products>
)" },
    { RVCatalogueRuleId::ArticleIdDuplicate, RVCatalogueSeverity::Error, QLatin1StringView("article-id-duplicate"),
      QT_TRANSLATE_NOOP("RVFindingText", "Two products with one article id are the same article to shop and production."),
      R"(<products>
  <product type="DUN5" article_id="1001"/>
  <product type="DUN9" article_id="1001"/>
</products>
)",
      R"(<products>
  <product type="DUN5" article_id="1001"/>
  <product type="DUN9" article_id="1002"/>
</products>
)" },
    { RVCatalogueRuleId::ShippingGroupInvalid, RVCatalogueSeverity::Error, QLatin1StringView("shipping-group-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "A shipping group that is no whole number, or -1, is none, so the product is shipped with nothing else."),
      R"(<products>
  <product type="DUN9" article_id="1001" shipping_group="books"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" shipping_group="2"/>
</products>
)" },
    { RVCatalogueRuleId::ElementIgnored, RVCatalogueSeverity::Error, QLatin1StringView("element-ignored"),
      QT_TRANSLATE_NOOP("RVFindingText", "Only the first element of each kind in a product is read, so what the others say is lost."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black"/>
    </forms>
    <forms>
      <form key="coverphoto" value="yes"/>
    </forms>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black"/>
      <form key="coverphoto" value="yes"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::ElementMisspelt, RVCatalogueSeverity::Warning, QLatin1StringView("element-misspelt"),
      QT_TRANSLATE_NOOP("RVFindingText", "An element whose name is not exactly a known one is passed over with everything in it."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <from key="alcolor" value="black"/>
    </forms>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::ElementMisplaced, RVCatalogueSeverity::Warning, QLatin1StringView("element-misplaced"),
      QT_TRANSLATE_NOOP("RVFindingText", "An element is read only where it belongs; anywhere else it is passed over with everything in it."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <form key="alcolor" value="black"/>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::ElementPrefixed, RVCatalogueSeverity::Warning, QLatin1StringView("element-prefixed"),
      QT_TRANSLATE_NOOP("RVFindingText", "Names are compared including their prefixes, so an element with one is passed over with everything in it."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <x:form xmlns:x="urn:example" key="alcolor" value="black"/>
    </forms>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::AttributeMisspelt, RVCatalogueSeverity::Warning, QLatin1StringView("attribute-misspelt"),
      QT_TRANSLATE_NOOP("RVFindingText", "An attribute whose name is not exactly a known one is passed over, and the default stands in its place."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_page="154" page_step="4"/>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::AttributeMisplaced, RVCatalogueSeverity::Warning, QLatin1StringView("attribute-misplaced"),
      QT_TRANSLATE_NOOP("RVFindingText", "An attribute is read only of the elements that it belongs to; of any other it is passed over, and the default stands in its place."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <composition>
      <spine units="cm" base_width="0.8"/>
    </composition>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <composition units="cm">
      <spine base_width="0.8"/>
    </composition>
  </product>
</products>
)" },
    { RVCatalogueRuleId::NumberInvalid, RVCatalogueSeverity::Error, QLatin1StringView("number-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "What cannot be read as a number silently becomes the default."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26 pages"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26"/>
</products>
)" },
    { RVCatalogueRuleId::BooleanInvalid, RVCatalogueSeverity::Error, QLatin1StringView("boolean-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "What is none of true, false, 1, 0, yes, no, on and off silently becomes the default."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" not_accountable="maybe"/>
    </forms>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" not_accountable="true"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::UnitUnknown, RVCatalogueSeverity::Error, QLatin1StringView("unit-unknown"),
      QT_TRANSLATE_NOOP("RVFindingText", "Lengths in an unknown unit are read as millimetres."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <composition units="metres">
      <spine base_width="0.008"/>
    </composition>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001">
    <composition units="mm">
      <spine base_width="8"/>
    </composition>
  </product>
</products>
)" },
    { RVCatalogueRuleId::KeywordUnknown, RVCatalogueSeverity::Error, QLatin1StringView("keyword-unknown"),
      QT_TRANSLATE_NOOP("RVFindingText", "A keyword that nobody knows silently becomes the default of its attribute."),
      R"(<products>
  <product type="DUN9" article_id="1001" cover_type="hardcovr"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" cover_type="hardcover"/>
</products>
)" },
    { RVCatalogueRuleId::KeywordLegacy, RVCatalogueSeverity::Note, QLatin1StringView("keyword-legacy"),
      QT_TRANSLATE_NOOP("RVFindingText", "An alias is still read, but a program that writes the value uses its main keyword."),
      R"(<products>
  <product type="DUN9" article_id="1001" cover_type="hard"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" cover_type="hardcover"/>
</products>
)" },
    { RVCatalogueRuleId::PageCountsReversed, RVCatalogueSeverity::Error, QLatin1StringView("page-counts-reversed"),
      QT_TRANSLATE_NOOP("RVFindingText", "With a lowest page count above the highest no count can be chosen."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="154" max_pages="26" page_step="4"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::PageCountsInvalid, RVCatalogueSeverity::Error, QLatin1StringView("page-counts-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "Without valid page counts the product cannot be ordered."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::PageStepMissesHighest, RVCatalogueSeverity::Warning, QLatin1StringView("page-step-misses-highest"),
      QT_TRANSLATE_NOOP("RVFindingText", "The highest page count can never be reached when the steps do not meet it."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="6"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::MaxPagesMissing, RVCatalogueSeverity::Warning, QLatin1StringView("max-pages-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "Without a highest page count the lowest is the only one, and no step leads anywhere."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" page_step="4"/>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::PageCountsExcessive, RVCatalogueSeverity::Warning, QLatin1StringView("page-counts-excessive"),
      QT_TRANSLATE_NOOP("RVFindingText", "Nobody prints a product in more than a thousand page counts, so one of the numbers is probably mistyped."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="15400" page_step="2"/>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="2"/>
</products>
)" },
    { RVCatalogueRuleId::SpineMissing, RVCatalogueSeverity::Error, QLatin1StringView("spine-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "A glued or lay-flat book has a spine, and without its widths the cover is made too narrow."),
      R"(<products>
  <product type="DUN9" article_id="1001" page_binding="glue"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" page_binding="glue">
    <composition units="mm">
      <spine base_width="8"/>
    </composition>
  </product>
</products>
)" },
    { RVCatalogueRuleId::SpineNegative, RVCatalogueSeverity::Error, QLatin1StringView("spine-negative"),
      QT_TRANSLATE_NOOP("RVFindingText", "A spine that has a negative width, or grows backwards, comes out too narrow."),
      R"(<products>
  <product type="DUN9" article_id="1001" page_binding="glue">
    <composition units="mm">
      <spine base_width="-8"/>
    </composition>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" page_binding="glue">
    <composition units="mm">
      <spine base_width="8"/>
    </composition>
  </product>
</products>
)" },
    { RVCatalogueRuleId::SpineFontTooSmall, RVCatalogueSeverity::Warning, QLatin1StringView("spine-font-too-small"),
      QT_TRANSLATE_NOOP("RVFindingText", "Where the spine shrinks until the smallest font no longer fits, its text is cut off."),
      R"(<products>
  <product type="DUN9" article_id="1001" page_binding="glue" pages="26" max_pages="154" page_step="4">
    <composition units="mm">
      <spine packages_per_block="2" base_width="8" block_width="-0.5" additional_width="0.5"/>
    </composition>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" page_binding="glue" pages="26" max_pages="154" page_step="4">
    <composition units="mm">
      <spine packages_per_block="2" base_width="8" block_width="0.5" additional_width="0.5"/>
    </composition>
  </product>
</products>
)" },
    { RVCatalogueRuleId::SpineBaseMissing, RVCatalogueSeverity::Warning, QLatin1StringView("spine-base-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "Without a base width the block of pages has no thickness at the lowest page count, so the cover is made too narrow."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <composition units="mm">
      <spine additional_width="0.5"/>
    </composition>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <composition units="mm">
      <spine base_width="8" additional_width="0.5"/>
    </composition>
  </product>
</products>
)" },
    { RVCatalogueRuleId::SpinePackagesMissing, RVCatalogueSeverity::Warning, QLatin1StringView("spine-packages-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "A block width counts only with the number of packages that make a block; without it the spine never grows."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <composition units="mm">
      <spine base_width="8" block_width="1"/>
    </composition>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <composition units="mm">
      <spine packages_per_block="2" base_width="8" block_width="1"/>
    </composition>
  </product>
</products>
)" },
    { RVCatalogueRuleId::SpineTooWide, RVCatalogueSeverity::Warning, QLatin1StringView("spine-too-wide"),
      QT_TRANSLATE_NOOP("RVFindingText", "Industrial perfect binders take blocks of at most about 80 mm, so a wider spine is probably given in a wrong unit."),
      R"(<products>
  <product type="DUN9" article_id="1001" page_binding="glue">
    <composition units="mm">
      <spine base_width="81"/>
    </composition>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" page_binding="glue">
    <composition units="mm">
      <spine base_width="8.1"/>
    </composition>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionIncomplete, RVCatalogueSeverity::Error, QLatin1StringView("option-incomplete"),
      QT_TRANSLATE_NOOP("RVFindingText", "An option without key or value is dropped, so the customer is never offered it."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor"/>
    </forms>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionDuplicate, RVCatalogueSeverity::Error, QLatin1StringView("option-duplicate"),
      QT_TRANSLATE_NOOP("RVFindingText", "The customer is offered the same choice twice, and only the first has a price."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" preselected="true"/>
      <form key="alcolor" value="black"/>
    </forms>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" preselected="true"/>
      <form key="alcolor" value="red"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionDefaultTwice, RVCatalogueSeverity::Error, QLatin1StringView("option-default-twice"),
      QT_TRANSLATE_NOOP("RVFindingText", "Of several defaults of one key the last one silently wins."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" preselected="true"/>
      <form key="alcolor" value="red" preselected="true"/>
    </forms>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" preselected="true"/>
      <form key="alcolor" value="red"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionDefaultMissing, RVCatalogueSeverity::Warning, QLatin1StringView("option-default-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "Without a default an order comes without the option, or with whichever stands first."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black"/>
      <form key="alcolor" value="red"/>
    </forms>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" preselected="true"/>
      <form key="alcolor" value="red"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionColorInvalid, RVCatalogueSeverity::Warning, QLatin1StringView("option-color-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "The editor shows no swatch for a colour that it cannot read."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" color="#1a1a1"/>
    </forms>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" color="#1a1a1a"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionCompositeMismatch, RVCatalogueSeverity::Error, QLatin1StringView("option-composite-mismatch"),
      QT_TRANSLATE_NOOP("RVFindingText", "Keys that are chosen together need one value each, or production gets none of them."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor;coverphoto" value="black"/>
    </forms>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor;coverphoto" value="black;yes"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionSeparator, RVCatalogueSeverity::Warning, QLatin1StringView("option-separator"),
      QT_TRANSLATE_NOOP("RVFindingText", "In orders commas separate options and colons keys from values, so an option with one of them is read as something else; only semicolons join keys, and values, that are chosen together."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black,red"/>
    </forms>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionBlank, RVCatalogueSeverity::Warning, QLatin1StringView("option-blank"),
      QT_TRANSLATE_NOOP("RVFindingText", "Keys and values are compared letter by letter, and a blank is a letter that nobody sees."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black "/>
    </forms>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionLetterCase, RVCatalogueSeverity::Warning, QLatin1StringView("option-letter-case"),
      QT_TRANSLATE_NOOP("RVFindingText", "Letter case counts in keys and values, so two spellings are two options."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" preselected="true"/>
      <form key="alcolor" value="Black"/>
    </forms>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" value="black" preselected="true"/>
      <form key="alcolor" value="red"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::OptionKeyNames, RVCatalogueSeverity::Warning, QLatin1StringView("option-key-names"),
      QT_TRANSLATE_NOOP("RVFindingText", "The customer reads one name for each key, so of several names all but one are lost."),
      R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" key_name="Color" value="black" preselected="true"/>
      <form key="alcolor" key_name="Cover" value="red"/>
    </forms>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001">
    <forms>
      <form key="alcolor" key_name="Color" value="black" preselected="true"/>
      <form key="alcolor" key_name="Color" value="red"/>
    </forms>
  </product>
</products>
)" },
    { RVCatalogueRuleId::BarcodeInvalid, RVCatalogueSeverity::Error, QLatin1StringView("barcode-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode without extent or image is dropped, and production cannot tell the product."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="0" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)" },
    { RVCatalogueRuleId::BarcodePageImpossible, RVCatalogueSeverity::Error, QLatin1StringView("barcode-page-impossible"),
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode on a page that the product cannot have is never printed."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10" pageNr="27"/>
    </barcodes>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10" pageNr="26"/>
    </barcodes>
  </product>
</products>
)" },
    { RVCatalogueRuleId::BarcodeOutsidePage, RVCatalogueSeverity::Error, QLatin1StringView("barcode-outside-page"),
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode that leaves its page is cut off and cannot be read."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="-12" position_y="290" width="38" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)" },
    { RVCatalogueRuleId::BarcodeOverlap, RVCatalogueSeverity::Error, QLatin1StringView("barcode-overlap"),
      QT_TRANSLATE_NOOP("RVFindingText", "Barcodes that overlap cannot be read."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10" pageNr="2"/>
      <barcode position_x="40" position_y="290" width="38" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10" pageNr="2"/>
      <barcode position_x="60" position_y="290" width="38" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)" },
    { RVCatalogueRuleId::BarcodeSizeMissing, RVCatalogueSeverity::Warning, QLatin1StringView("barcode-size-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode without width or height is printed with a single unit, which no scanner can read."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" pageNr="2"/>
    </barcodes>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)" },
    { RVCatalogueRuleId::BarcodePageMissing, RVCatalogueSeverity::Warning, QLatin1StringView("barcode-page-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode without a page number stands on page 0."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10"/>
    </barcodes>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" pages="26">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)" },
    { RVCatalogueRuleId::BarcodeOffUsualPage, RVCatalogueSeverity::Warning, QLatin1StringView("barcode-off-usual-page"),
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode that stands beyond every page of the size class and orientation is cut off and cannot be read."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" orientation="portrait" space_magnitude="600cm2">
    <barcodes units="mm">
      <barcode position_x="12" position_y="590" width="38" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" pages="26" orientation="portrait" space_magnitude="600cm2">
    <barcodes units="mm">
      <barcode position_x="12" position_y="290" width="38" height="10" pageNr="2"/>
    </barcodes>
  </product>
</products>
)" },
    { RVCatalogueRuleId::PriceClassUnknown, RVCatalogueSeverity::Warning, QLatin1StringView("price-class-unknown"),
      QT_TRANSLATE_NOOP("RVFindingText", "An add-on whose price class belongs to no known group is not counted where add-ons are billed."),
      R"(<products>
  <product type="DUN9" article_id="1001" page_price_class="RODA"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" page_price_class="KEMI62"/>
</products>
)" },
    { RVCatalogueRuleId::SuppressionUnused, RVCatalogueSeverity::Warning, QLatin1StringView("suppression-unused"),
      QT_TRANSLATE_NOOP("RVFindingText", "A comment that silences nothing today silences the next mistake instead."),
      R"(<products>
  <!-- rvcatalog: ignore keyword-unknown -->
  <product type="DUN9" article_id="1001" cover_type="hardcover"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" cover_type="hardcover"/>
</products>
)" },
    { RVCatalogueRuleId::SuppressionUnknown, RVCatalogueSeverity::Warning, QLatin1StringView("suppression-unknown"),
      QT_TRANSLATE_NOOP("RVFindingText", "A comment that is misspelt silences nothing."),
      R"(<products>
  <!-- rvcatalog: ignore price-class-unknown, price-class -->
  <product type="DUN9" article_id="1001" page_price_class="RODA"/>
</products>
)",
      R"(<products>
  <!-- rvcatalog: ignore price-class-unknown -->
  <product type="DUN9" article_id="1001" page_price_class="RODA"/>
</products>
)" },
};
// clang-format on

constexpr bool rvCatalogueRulesAreInOrder()
{
    for (std::size_t i = 0; i < std::size(RV_CATALOGUE_RULES); ++i) {
        if (std::size_t(RV_CATALOGUE_RULES[i].id) != i)
            return false;
    }
    return true;
}
static_assert(std::size(RV_CATALOGUE_RULES) == RV_CATALOGUE_RULE_COUNT, "every rule has one row");
static_assert(rvCatalogueRulesAreInOrder(), "rows stand in the order of the enumeration");

inline RVCatalogueRule RVCatalogueRuleRow::rule(RVCatalogueRuleId id)
{
    return RVCatalogueRule(&RV_CATALOGUE_RULES[std::size_t(id)]);
}

#endif
