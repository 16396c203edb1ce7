#include "RVDlpType.h"

#include "RVDirectoryName.h"
#include "RVEnumerators.h"
#include "RVKeywords_p.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVDlpTypeEnum>;

namespace {

constexpr RVKeyword<RVDlpTypeEnum> KEYWORDS[] = {
    { u"background", DLP_TYPE_BACKGROUND },
    { u"template", DLP_TYPE_TEMPLATE },
    { u"clipart", DLP_TYPE_CLIPART },
    { u"mask", DLP_TYPE_MASK },
    { u"style_v2", DLP_TYPE_STYLE_V2 },
    { u"layoutcollection", DLP_TYPE_LAYOUTCOLLECTION },
    { u"form_parameter_data", DLP_TYPE_FORM_PARAMETER_DATA },
    { u"predefined_project", DLP_TYPE_PREDEFINED_PROJECT },
    { u"filter_linnen_capable", DLP_TYPE_FILTER_LINNEN_CAPABLE },
    { u"storybook", DLP_TYPE_STORYBOOK },
    { u"style_v2_coverpage", DLP_TYPE_STYLE_V2_COVERPAGE },
    { u"style_v2_innerpage", DLP_TYPE_STYLE_V2_INNERPAGE },
};

/// A text with the note to translators that every plural form has.
struct CountedText
{
    const char *text;
    const char *comment;
};

constexpr struct
{
    RVDlpTypeEnum value;
    const char *text;
    CountedText counted;
} NAMES[] = {
    { DLP_TYPE_BACKGROUND, QT_TRANSLATE_NOOP("RVDlpType", "Hintergründe"),
      QT_TRANSLATE_N_NOOP3("RVDlpType", "%n Hintergründe", "Bitte jede Pluralform ausschreiben!!!") },
    { DLP_TYPE_STYLE_V2, QT_TRANSLATE_NOOP("RVDlpType", "Stile"),
      QT_TRANSLATE_N_NOOP3("RVDlpType", "%n Stile", "Bitte jede Pluralform ausschreiben!!!") },
    { DLP_TYPE_TEMPLATE, QT_TRANSLATE_NOOP("RVDlpType", "Designs"),
      QT_TRANSLATE_N_NOOP3("RVDlpType", "%n Designs", "Bitte jede Pluralform ausschreiben!!!") },
    { DLP_TYPE_CLIPART, QT_TRANSLATE_NOOP("RVDlpType", "Cliparts"),
      QT_TRANSLATE_N_NOOP3("RVDlpType", "%n Cliparts", "Bitte jede Pluralform ausschreiben!!!") },
    { DLP_TYPE_MASK, QT_TRANSLATE_NOOP("RVDlpType", "Masken & Rahmen"),
      QT_TRANSLATE_N_NOOP3("RVDlpType", "%n Masken & Rahmen", "Bitte jede Pluralform ausschreiben!!!") },
    { DLP_TYPE_STORYBOOK, QT_TRANSLATE_NOOP("RVDlpType", "Buchvorlagen"),
      QT_TRANSLATE_N_NOOP3("RVDlpType", "%n Buchvorlagen", "Bitte jede Pluralform ausschreiben!!!") },
    { DLP_TYPE_STORYBOOK | DLP_TYPE_STYLE_V2, QT_TRANSLATE_NOOP("RVDlpType", "Vorlagen"),
      QT_TRANSLATE_N_NOOP3("RVDlpType", "%n Vorlagen", "Bitte jede Pluralform ausschreiben!!!") },
};

/// The directory for content of the type; 0 if it has none. Masks go to the cliparts.
RVDirectoryNameEnum directory(RVDlpTypeEnum type, bool alternative)
{
    switch (type) {
    case DLP_TYPE_BACKGROUND:
        return DIRECTORY_BACKGROUNDS;
    case DLP_TYPE_STYLE_V2:
        return DIRECTORY_STYLES;
    case DLP_TYPE_TEMPLATE:
        return alternative ? DIRECTORY_DESIGNS : DIRECTORY_TEMPLATES;
    case DLP_TYPE_CLIPART:
    case DLP_TYPE_MASK:
        return DIRECTORY_CLIPARTS;
    case DLP_TYPE_LAYOUTCOLLECTION:
        return DIRECTORY_LAYOUTS;
    case DLP_TYPE_FORM_PARAMETER_DATA:
        return DIRECTORY_FORMPARAMETERS;
    case DLP_TYPE_PREDEFINED_PROJECT:
        return DIRECTORY_TEMPLATES;
    default:
        return RVDirectoryNameEnum(0);
    }
}

}

RVDlpType::RVDlpType(RVDlpTypeEnum value) noexcept : RVEnumWrapper(value) { }

RVDlpType::RVDlpType(const QString &text) : RVDlpType()
{
    setValue(text);
}

QString RVDlpType::visibleName(int n) const
{
    const auto *const row = std::find_if(std::begin(NAMES), std::end(NAMES),
                                         [this](const auto &name) { return name.value == withoutFilter(); });
    if (row == std::end(NAMES))
        return QString();
    if (n == -1)
        return QCoreApplication::translate("RVDlpType", row->text);
    // The translator does not fill in negative numbers.
    return QCoreApplication::translate("RVDlpType", row->counted.text, row->counted.comment, n)
            .replace("%n"_L1, QString::number(n));
}

QString RVDlpType::dlpPath(bool alternative) const
{
    const RVDirectoryName name(directory(withoutFilter(), alternative));
    return name.value() != 0 ? name.name() : QString();
}

bool RVDlpType::dlpButtonForbidden() const
{
    return hasValue(DLP_TYPE_LAYOUTCOLLECTION);
}

QString RVDlpType::queryValue() const
{
    const bool isStyle = matches(DLP_TYPE_STYLE_V2 | DLP_TYPE_STORYBOOK | DLP_TYPE_STYLE_V2_COVERPAGE
                                 | DLP_TYPE_STYLE_V2_INNERPAGE);
    return enumToStringTable()->encode(isStyle ? DLP_TYPE_STYLE_V2 : withoutFilter());
}

QString RVDlpType::describe() const
{
    return u"%1 | %2"_s.arg(QString::number(value()), encodeCSV());
}

void RVDlpType::fillTable(RVEnumToStringTable<RVDlpTypeEnum> *table) const
{
    rvInsertKeywords(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVDlpType &dlpType)
{
    return rvDebugAttribute(debug, "RVDlpType", dlpType);
}

QDebug operator<<(QDebug debug, RVDlpTypeEnum value)
{
    return debug << RVEnumerators<RVDlpTypeEnum>::text(value).constData();
}
