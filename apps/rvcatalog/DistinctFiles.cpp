#include "DistinctFiles.h"

#include <QFileInfo>
#include <QHash>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// A key that is the same for all names of a file; the name itself if there is no file.
QString identity(const QString &fileName)
{
    const QString path = fileName == "-"_L1 ? QString() : QFileInfo(fileName).canonicalFilePath();
    return path.isEmpty() ? fileName : path;
}

}

QStringList distinctFiles(const QStringList &fileNames, const Console &console)
{
    QStringList result;
    QHash<QString, QString> firstNames;
    for (const QString &fileName : fileNames) {
        QString &first = firstNames[identity(fileName)];
        if (first.isNull()) {
            first = fileName;
            result += fileName;
            continue;
        }
        const QString text = fileName == first ? u"it is named twice, and checked once"_s
                                               : u"it is the same file as %1, and checked once"_s.arg(first);
        QTextStream(console.messages) << fileName << ": " << text << '\n';
    }
    return result;
}
