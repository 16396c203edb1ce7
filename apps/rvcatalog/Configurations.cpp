#include "Configurations.h"

#include <QSet>

using namespace Qt::StringLiterals;

bool Configurations::read(const QStringList &catalogues, const Console &console)
{
    QSet<QString> broken;
    for (const QString &catalogue : catalogues) {
        const RVCheckConfiguration configuration = found(catalogue);
        myConfigurations.insert(catalogue, configuration);
        const QString fileName = configuration.fileName();
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
    if (myChoice.isNone)
        return RVCheckConfiguration();
    return myChoice.fileName.isEmpty() ? RVCheckConfiguration::find(catalogue)
                                       : RVCheckConfiguration::read(myChoice.fileName);
}
