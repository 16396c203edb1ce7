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
      QT_TRANSLATE_NOOP("RVFindingText", "A file without a product is not a catalogue, and nothing can be ordered from it; add a product."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A product without a type cannot be ordered, because projects find their product by its type; give it a type."),
      R"(<products>
  <product article_id="1001"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001"/>
</products>
)" },
    { RVCatalogueRuleId::TypeDuplicate, RVCatalogueSeverity::Error, QLatin1StringView("type-duplicate"),
      QT_TRANSLATE_NOOP("RVFindingText", "The application finds only the first of two products of the same type, and all codes of a photo book family are one type; give each product its own type."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "Shop and production identify an article by its id; give the product an article id."),
      R"(<products>
  <product type="DUN9"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001"/>
</products>
)" },
    { RVCatalogueRuleId::ArticleIdInvalid, RVCatalogueSeverity::Error, QLatin1StringView("article-id-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "An article id is a whole number above 0, and any other text is read as no id; write such a number."),
      R"(<products>
  <product type="DUN9" article_id="10-01"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001"/>
</products>
)" },
    { RVCatalogueRuleId::ArticleIdDuplicate, RVCatalogueSeverity::Error, QLatin1StringView("article-id-duplicate"),
      QT_TRANSLATE_NOOP("RVFindingText", "Two products with the same article id are one article to shop and production; give each product its own id."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A shipping group that is -1 or not a whole number counts as none, so the product is shipped separately; write the number of a group."),
      R"(<products>
  <product type="DUN9" article_id="1001" shipping_group="books"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" shipping_group="2"/>
</products>
)" },
    { RVCatalogueRuleId::ElementIgnored, RVCatalogueSeverity::Error, QLatin1StringView("element-ignored"),
      QT_TRANSLATE_NOOP("RVFindingText", "Only the first element of each kind in a product is read, and no product inside another, so the contents of all others are lost; merge the parts and separate the products."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An element with an unknown name is skipped with everything in it; correct the name."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An element in the wrong place is skipped with everything in it; move it into the element that it belongs to."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An element with a prefix is skipped with everything in it, because the prefix counts as part of its name; remove the prefix."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An attribute with an unknown name is skipped, and the default of the intended attribute applies; correct the name."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_page="154" page_step="4"/>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::AttributeMisplaced, RVCatalogueSeverity::Warning, QLatin1StringView("attribute-misplaced"),
      QT_TRANSLATE_NOOP("RVFindingText", "An attribute of the wrong element is skipped, and its default applies; move it to the element that it belongs to."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A value that cannot be read as a number is replaced with the default without a message; write a number."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26 pages"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26"/>
</products>
)" },
    { RVCatalogueRuleId::BooleanInvalid, RVCatalogueSeverity::Error, QLatin1StringView("boolean-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "A value other than true, false, 1, 0, yes, no, on and off is replaced with the default without a message; write one of these."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "Lengths in an unknown unit are read as millimetres; write mm, cm, inch, pt or 0.1mm."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An unknown keyword is replaced with the default of its attribute without a message; write a known keyword."),
      R"(<products>
  <product type="DUN9" article_id="1001" cover_type="hardcovr"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" cover_type="hardcover"/>
</products>
)" },
    { RVCatalogueRuleId::KeywordLegacy, RVCatalogueSeverity::Note, QLatin1StringView("keyword-legacy"),
      QT_TRANSLATE_NOOP("RVFindingText", "An alias is still read, but programs write the main keyword of the value; write the main keyword."),
      R"(<products>
  <product type="DUN9" article_id="1001" cover_type="hard"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" cover_type="hardcover"/>
</products>
)" },
    { RVCatalogueRuleId::PageCountsReversed, RVCatalogueSeverity::Error, QLatin1StringView("page-counts-reversed"),
      QT_TRANSLATE_NOOP("RVFindingText", "No page count can be chosen if the lowest is above the highest; correct pages or max_pages."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="154" max_pages="26" page_step="4"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::PageCountsInvalid, RVCatalogueSeverity::Error, QLatin1StringView("page-counts-invalid"),
      QT_TRANSLATE_NOOP("RVFindingText", "A product without valid page counts cannot be ordered; correct pages, max_pages, page_step or pieces."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::PageStepMissesHighest, RVCatalogueSeverity::Warning, QLatin1StringView("page-step-misses-highest"),
      QT_TRANSLATE_NOOP("RVFindingText", "The highest page count can never be chosen if no number of steps leads to it; correct page_step or max_pages."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="6"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::MaxPagesMissing, RVCatalogueSeverity::Warning, QLatin1StringView("max-pages-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "The lowest page count is the only one if the highest is missing, and the step has no effect; add max_pages."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" page_step="4"/>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="4"/>
</products>
)" },
    { RVCatalogueRuleId::PageCountsExcessive, RVCatalogueSeverity::Warning, QLatin1StringView("page-counts-excessive"),
      QT_TRANSLATE_NOOP("RVFindingText", "A product with more than 1000 page counts probably has a mistyped number; check pages, max_pages and page_step."),
      R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="15400" page_step="2"/>
</products>
)", R"(<products>
  <product type="DUN9" article_id="1001" pages="26" max_pages="154" page_step="2"/>
</products>
)" },
    { RVCatalogueRuleId::SpineMissing, RVCatalogueSeverity::Error, QLatin1StringView("spine-missing"),
      QT_TRANSLATE_NOOP("RVFindingText", "The cover of a glued or lay-flat book is made too narrow if the widths of its spine are missing; add them."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A spine with a negative width or a negative number of packages comes out too narrow; write 0 or more."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "The text on a spine is cut off at the page counts at which the spine is too narrow for the smallest font; make the spine grow with the pages."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A spine without a base width has no room for the pages of the lowest page count, so the cover is made too narrow; add base_width."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A spine never grows if the number of packages that make a block is missing; add packages_per_block."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "Industrial perfect binders take blocks of at most about 80 mm, so a wider spine is probably given in a wrong unit; check the unit and the widths."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An option without a key or a value is dropped and never offered to the customer; give it both."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An option with the key and value of an earlier one is offered a second time, but only the first has a price; remove one of them."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "Only the last of several defaults of one key takes effect; mark one value of the key as preselected."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An order comes without the option, or with the first value, if no value of the key is the default; mark one as preselected."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "The editor shows no swatch for a colour that it cannot read; write six hexadecimal digits behind a number sign, or the English name of a colour."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "Keys that are chosen together need one value each, or production gets none of them; write as many values as keys."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An option that contains a comma or a colon is misread in orders, where commas separate options and colons separate keys from values; join keys, or values, that are chosen together with semicolons."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A key or value with a blank or an invisible character differs from the same text without it; remove the character."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "Two spellings of a key or value that differ in letter case are two options; choose one spelling."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "The customer sees one name for each key, so the other names of a key are lost; write the same key_name in all its forms."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode without an extent or an image is dropped, so production cannot identify the product; give it both."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode on a page that the product cannot have is never printed; correct pageNr."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode that extends beyond its page is cut off and cannot be read; correct its position or size."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "Barcodes that overlap cannot be read; move one of them."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode without a width or a height is printed one unit wide or high, which no scanner can read; add both."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode without a page number stands on page 0; add pageNr."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A barcode beyond every usual page of the size class and orientation is cut off and cannot be read; correct its position or size."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "An add-on whose price class belongs to no known group is not counted when add-ons are billed; correct the price class."),
      R"(<products>
  <product type="DUN9" article_id="1001" page_price_class="RODA"/>
</products>
)",
      R"(<products>
  <product type="DUN9" article_id="1001" page_price_class="KEMI62"/>
</products>
)" },
    { RVCatalogueRuleId::SuppressionUnused, RVCatalogueSeverity::Warning, QLatin1StringView("suppression-unused"),
      QT_TRANSLATE_NOOP("RVFindingText", "A comment that silences no finding now would silence a later mistake; remove it."),
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
      QT_TRANSLATE_NOOP("RVFindingText", "A misspelt comment silences no finding; correct its spelling."),
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
