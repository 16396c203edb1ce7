#include "Configurations.h"

#include <QSet>

using namespace Qt::StringLiterals;

bool Configurations::read(const QStringList &catalogues, const Console &console)
{
    QSet<QString> broken;
    // A pipe can be read only once.
    const RVCheckConfiguration chosen = readChosen(console);
    for (const QString &catalogue : catalogues) {
        const RVCheckConfiguration configuration = chosen.isNull() ? found(catalogue) : chosen;
        myConfigurations.insert(catalogue, configuration);
        const QString fileName = chosen.isNull() ? configuration.fileName() : myChoice.fileName;
        if (!configuration.hasError() || broken.contains(fileName))
            continue;
        broken.insert(fileName);
        const QString text = u"error: "_s + configuration.errorString();
        if (const std::optional<RVFilePosition> position = configuration.errorPosition())
            console.report(fileName, Problem { *position, text });
        else
            console.report(fileName, text);
    }
    return broken.isEmpty();
}

// The command line takes precedence.
RVCatalogueCheck Configurations::check(const QString &catalogue) const
{
    RVCatalogueCheck result = myCheck;
    myConfigurations.value(catalogue).apply(&result);
    for (const RVCatalogueRule &rule : RVCatalogueRule::all()) {
        if (!myCheck.isEnabled(rule))
            result.disable(rule);
    }
    return result;
}

// The standard input belongs to the current folder, as a file with that name would.
RVCheckConfiguration Configurations::found(const QString &catalogue) const
{
    return myChoice.isNone ? RVCheckConfiguration() : RVCheckConfiguration::find(catalogue);
}

/// Reads the file for all catalogues; null if there is none.
RVCheckConfiguration Configurations::readChosen(const Console &console) const
{
    if (myChoice.fileName.isEmpty())
        return RVCheckConfiguration();
    if (myChoice.fileName == "-"_L1)
        return RVCheckConfiguration::read(u"/dev/fd/%1"_s.arg(::fileno(console.input)));
    return RVCheckConfiguration::read(myChoice.fileName);
}
