#include "RecentFiles.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr auto FILE_KEY = "file"_L1;

}

RecentFiles::RecentFiles(Settings *settings) : myFiles(settings, u"recent"_s, LIMIT) { }

void RecentFiles::add(const QString &fileName)
{
    const QString absolute = QFileInfo(fileName).absoluteFilePath();
    myFiles.setValues({ absolute }, { { FILE_KEY, absolute } });
}

QStringList RecentFiles::fileNames() const
{
    QStringList result;
    for (const QVariantMap &file : myFiles.newest())
        result += file.value(FILE_KEY).toString();
    result.removeAll(QString()); // of damaged settings
    return result;
}
