#ifndef RECENTFILES_H
#define RECENTFILES_H

#include "SettingsGroup.h"

/// The catalogues that were opened last, by their absolute names.
class RecentFiles
{
public:
    static constexpr int LIMIT = 10;

    /// The settings must live longer.
    explicit RecentFiles(Settings *settings);

    void add(const QString &fileName);
    /// At most LIMIT names, the newest first, also of files that are gone.
    QStringList fileNames() const;
    void clear() { myFiles.clear(); }

private:
    SettingsGroup myFiles;
};

#endif
