#include "RVPageAlignment.h"

#include "RVEnumerators.h"
#include "RVKeywords_p.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVPageAlignmentEnum>;

namespace {

// clang-format off
constexpr RVKeyword<RVPageAlignmentEnum> KEYWORDS[] = {
    { u"left", PAGE_ALIGNMENT_LEFT },
    { u"leftpage", PAGE_ALIGNMENT_LEFT },
    { u"right", PAGE_ALIGNMENT_RIGHT },
    { u"rightpage", PAGE_ALIGNMENT_RIGHT },
    { u"top", PAGE_ALIGNMENT_TOP },
    { u"bottom", PAGE_ALIGNMENT_BOTTOM },
    { u"center", PAGE_ALIGNMENT_CENTER },
    { u"middle", PAGE_ALIGNMENT_MIDDLE },
    { u"fullpage", PAGE_ALIGNMENT_FULLPAGE },
    { u"cover", PAGE_ALIGNMENT_LEFT },
    { u"coverpage", PAGE_ALIGNMENT_LEFT },
};
// clang-format on

}

RVPageAlignment::RVPageAlignment(RVPageAlignmentEnum value) noexcept : RVEnumWrapper(value) { }

RVPageAlignment::RVPageAlignment(const QString &text) : RVPageAlignment()
{
    setValue(text);
}

QString RVPageAlignment::describe() const
{
    switch (value()) {
    case PAGE_ALIGNMENT_LEFT:
        return QCoreApplication::translate("RVPageAlignment", "links");
    case PAGE_ALIGNMENT_RIGHT:
        return QCoreApplication::translate("RVPageAlignment", "rechts");
    case PAGE_ALIGNMENT_MIDDLE:
        return QCoreApplication::translate("RVPageAlignment", "auf dem Buchrücken");
    case PAGE_ALIGNMENT_FULLPAGE:
        return QCoreApplication::translate("RVPageAlignment", "auf dieser Seite");
    case PAGE_ALIGNMENT_TOP:
        return QCoreApplication::translate("RVPageAlignment", "oben");
    case PAGE_ALIGNMENT_BOTTOM:
        return QCoreApplication::translate("RVPageAlignment", "unten");
    case PAGE_ALIGNMENT_CENTER:
        return QCoreApplication::translate("RVPageAlignment", "mittig");
    }
    return u""_s;
}

QString RVPageAlignment::pdfPostFix(bool split) const
{
    if (split && hasValue(PAGE_ALIGNMENT_LEFT))
        return u"_left.pdf"_s;
    if (split && hasValue(PAGE_ALIGNMENT_RIGHT))
        return u"_right.pdf"_s;
    return u"_center.pdf"_s;
}

QString RVPageAlignment::modifyProductionPath(const QString &path, bool split) const
{
    QString result = path;
    return result.replace(".pdf"_L1, pdfPostFix(split), Qt::CaseInsensitive);
}

void RVPageAlignment::fillTable(RVEnumToStringTable<RVPageAlignmentEnum> *table) const
{
    rvFillTable(table, KEYWORDS, QString(), PAGE_ALIGNMENT_LEFT);
}

QDebug operator<<(QDebug debug, const RVPageAlignment &alignment)
{
    return rvDebugAttribute(debug, "RVPageAlignment", alignment);
}

QDebug operator<<(QDebug debug, RVPageAlignmentEnum value)
{
    return debug << RVEnumerators<RVPageAlignmentEnum>::text(value).constData();
}
