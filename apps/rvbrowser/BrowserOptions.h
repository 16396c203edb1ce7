#ifndef BROWSEROPTIONS_H
#define BROWSEROPTIONS_H

#include <QCommandLineParser>
#include <QSize>
#include <QString>

#include <optional>

/// The wishes of the command line. Can be read before there is an application.
class BrowserOptions
{
public:
    explicit BrowserOptions(const QStringList &arguments);

    /// The fault of the command line; empty where nothing is.
    QString error() const { return myError; }
    bool isHelp() const { return myParser.isSet(QStringLiteral("help")); }
    bool isVersion() const { return myParser.isSet(QStringLiteral("version")); }
    /// True where the program does its work without a window on the screen, and where it has no screen to be wrong on.
    bool isWithoutDisplay() const;
    QString helpText() const { return myParser.helpText(); }

    bool isScreenshot() const { return myParser.isSet(QStringLiteral("screenshot")); }
    QString screenshot() const { return myParser.value(QStringLiteral("screenshot")); }
    bool isComparison() const { return myParser.isSet(QStringLiteral("compare")); }
    QString compared() const { return myParser.value(QStringLiteral("compare")); } ///< The old catalogue.
    QString product() const { return myParser.value(QStringLiteral("product")); }
    QString palette() const { return myParser.value(QStringLiteral("palette")); } ///< "light", "dark" or empty
    QString language() const { return myParser.value(QStringLiteral("language")); } ///< "de", "en" or empty
    std::optional<QSize> size() const { return mySize; }
    QString catalogue() const { return myParser.positionalArguments().value(0); }

private:
    QString check() const;

    QCommandLineParser myParser;
    std::optional<QSize> mySize;
    QString myError;
};

#endif
