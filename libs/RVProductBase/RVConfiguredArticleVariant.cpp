#include "RVConfiguredArticleVariant.h"

#include "RVArticleVariants.h"
#include "RVNamedColor.h"
#include "RVOptionPair_p.h"
#include "RVSpotColor.h"
#include "RVXMLParser.h"

#include <QDebug>
#include <QDomElement>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

QString textAttribute(const QDomElement &element, const QString &name)
{
    return RVXMLParser::attribute(element, name, u""_s, true);
}

/// The colour of a text such as "#8c1c2b", the form of nearly all colours of a catalogue.
std::optional<QColor> parseHexColor(QStringView text)
{
    if (text.size() != 7 || text.front() != u'#')
        return std::nullopt;
    QRgb rgb = 0;
    for (const QChar letter : text.sliced(1)) {
        if (letter >= u'0' && letter <= u'9')
            rgb = rgb << 4 | QRgb(letter.unicode() - u'0');
        else if (const char16_t lower = letter.unicode() | 0x20; lower >= u'a' && lower <= u'f')
            rgb = rgb << 4 | QRgb(lower - u'a' + 10);
        else
            return std::nullopt;
    }
    return QColor::fromRgb(rgb);
}

QColor colorAttribute(const QDomElement &element, const QString &name)
{
    const QString text = textAttribute(element, name);
    if (text.isEmpty())
        return QColor();
    const auto color = parseHexColor(text);
    return color ? *color : QColor::fromString(text);
}

// The fields are set one by one, so that every text is moved into its place.
RVConfiguredArticleVariantImpl *readOption(const QDomElement &element)
{
    auto option = std::make_unique<RVConfiguredArticleVariantImpl>();
    option->key = textAttribute(element, u"key"_s);
    option->keyName = textAttribute(element, u"key_name"_s);
    option->value = textAttribute(element, u"value"_s);
    option->visibleName = textAttribute(element, u"value_name"_s);
    option->editorName = textAttribute(element, u"editor_name"_s);
    option->name = textAttribute(element, u"name"_s);
    option->preview = textAttribute(element, u"preview"_s);
    option->color = colorAttribute(element, u"color"_s);
    option->preselected = RVXMLParser::boolAttribute(element, u"preselected"_s, false);
    option->notAccountable = RVXMLParser::boolAttribute(element, u"not_accountable"_s, false);
    return option.release();
}

}

RVConfiguredArticleVariant::RVConfiguredArticleVariant() : d(new RVConfiguredArticleVariantImpl) { }

RVConfiguredArticleVariant::RVConfiguredArticleVariant(const QString &key, const QString &value)
    : RVConfiguredArticleVariant()
{
    d->key = key;
    d->value = value;
}

RVConfiguredArticleVariant::RVConfiguredArticleVariant(const QString &text) : RVConfiguredArticleVariant()
{
    const QStringList pieces = text.split(u':');
    if (pieces.size() != 2)
        return;
    d->key = pieces.at(0);
    d->value = pieces.at(1);
}

RVConfiguredArticleVariant::RVConfiguredArticleVariant(const QDomElement &element) : d(readOption(element)) { }

RVConfiguredArticleVariant::RVConfiguredArticleVariant(const RVConfiguredArticleVariantImpl &fields)
    : d(new RVConfiguredArticleVariantImpl(fields))
{ }

QString RVConfiguredArticleVariant::key() const
{
    return d->key;
}

QString RVConfiguredArticleVariant::keyName() const
{
    return d->keyName;
}

QString RVConfiguredArticleVariant::value() const
{
    return d->value;
}

QString RVConfiguredArticleVariant::visibleName() const
{
    return isValid() ? d->visibleName : QString();
}

QString RVConfiguredArticleVariant::editorName() const
{
    return d->editorName;
}

QString RVConfiguredArticleVariant::preview() const
{
    return d->preview.isEmpty() ? d->previewNameFallbacked(d->value) : d->preview;
}

QColor RVConfiguredArticleVariant::color() const
{
    return d->color;
}

bool RVConfiguredArticleVariant::isDefault() const
{
    return d->preselected;
}

bool RVConfiguredArticleVariant::isNotAccountable() const
{
    return d->notAccountable;
}

bool RVConfiguredArticleVariant::isValid() const
{
    return d->isValid();
}

bool RVConfiguredArticleVariant::isSpotColor(const RVSpotColor &spotColor) const
{
    return d->value == spotColor.encode();
}

QString RVConfiguredArticleVariant::describe() const
{
    if (d->keyName.isEmpty())
        return QString();
    const QString swatch = d->color.isValid() ? RVNamedColor::renderColorPreviewHTML(d->color) : QString();
    return u"%1: %2 %3"_s.arg(d->keyName, swatch, d->visibleName).simplified();
}

void RVConfiguredArticleVariant::merge(const RVConfiguredArticleVariant &other)
{
    d->preview = other.d->preview;
    d->color = other.d->color;
}

RVArticleVariants RVConfiguredArticleVariant::toArticleVariants() const
{
    return RVArticleVariants(d->key, d->value);
}

QString RVConfiguredArticleVariant::toString() const
{
    return isValid() ? rvJoinOption(d->key, d->value) : QString();
}

bool RVConfiguredArticleVariant::operator==(const RVConfiguredArticleVariant &other) const
{
    return d == other.d || (d->key == other.d->key && d->value == other.d->value);
}

bool RVConfiguredArticleVariant::operator<(const RVConfiguredArticleVariant &other) const
{
    return d != other.d && d->keyName < other.d->keyName;
}

QDebug operator<<(QDebug debug, const RVConfiguredArticleVariant &variant)
{
    debug.nospace() << u"RVConfiguredArticleVariant: key: %1 value: %2 "_s.arg(variant.key(), variant.value());
    return debug.space();
}
