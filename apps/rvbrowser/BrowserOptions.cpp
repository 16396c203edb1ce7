#include "BrowserOptions.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

std::optional<QSize> readSize(const QString &text)
{
    static const QRegularExpression pattern(u"^([1-9][0-9]{0,3})x([1-9][0-9]{0,3})$"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return QSize(match.captured(1).toInt(), match.captured(2).toInt());
}

bool isPicture(const QString &fileName)
{
    return fileName.endsWith(".png"_L1, Qt::CaseInsensitive);
}

}

BrowserOptions::BrowserOptions(const QStringList &arguments)
{
    myParser.setApplicationDescription(u"Shows the products of a catalogue: attributes, page counts, spine, page, "
                                       "options and order lines."_s);
    myParser.addOptions({
            { { u"h"_s, u"help"_s }, u"Displays this help."_s },
            { u"version"_s, u"Displays the version."_s },
            { u"product"_s, u"Begin with this product type."_s, u"TYPE"_s },
            { u"compare"_s, u"Show the changes since this catalogue, which is the old one."_s, u"OLD.xml"_s },
            { u"screenshot"_s, u"Write a picture of the window and end; needs no display."_s, u"OUT.png"_s },
            { u"size"_s, u"Size of the window in pixels, such as 1280x800."_s, u"WxH"_s },
            { u"palette"_s, u"Colours: light or dark; by default those of the desktop."_s, u"NAME"_s },
            { u"language"_s, u"Language: de or en; by default that of the desktop."_s, u"CODE"_s },
    });
    myParser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML."_s, u"[CATALOGUE.xml]"_s);
    myError = myParser.parse(arguments) ? QString() : myParser.errorText();
    mySize = readSize(myParser.value(u"size"_s));
    if (myError.isEmpty())
        myError = check();
}

bool BrowserOptions::isWithoutDisplay() const
{
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
            || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    return isHelp() || isVersion() || isScreenshot() || (!myError.isEmpty() && !hasDisplay);
}

QString BrowserOptions::check() const
{
    if (myParser.isSet(u"size"_s) && !mySize)
        return u"\"%1\" is no size; write it as 1280x800"_s.arg(myParser.value(u"size"_s));
    if (myParser.isSet(u"palette"_s) && palette() != "light"_L1 && palette() != "dark"_L1)
        return u"there is no palette \"%1\"; there are: light, dark"_s.arg(palette());
    if (myParser.isSet(u"language"_s) && language() != "de"_L1 && language() != "en"_L1)
        return u"there is no language \"%1\"; there are: de, en"_s.arg(language());
    if (myParser.positionalArguments().size() > 1)
        return u"expected at most 1 catalogue, got %1"_s.arg(myParser.positionalArguments().size());
    if (isComparison() && catalogue().isEmpty() && !isHelp() && !isVersion())
        return u"a comparison needs a catalogue to compare \"%1\" with"_s.arg(compared());
    if (isScreenshot() && !isPicture(screenshot()))
        return u"a screenshot is a PNG; let the name \"%1\" end in .png"_s.arg(screenshot());
    if (isScreenshot() && catalogue().isEmpty() && !isHelp() && !isVersion())
        return u"a screenshot needs a catalogue"_s;
    return QString();
}
