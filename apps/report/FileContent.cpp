#include "FileContent.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

QString writeToDevice(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(content) != content.size())
        return file.errorString();
    return QString();
}

QString replaceFile(const QString &fileName, const QByteArray &content)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        return file.errorString();
    return QString();
}

}

QString writeContent(const QString &fileName, const QByteArray &content)
{
    const QFileInfo file(fileName);
    const bool isDevice = file.exists() && !file.isFile() && !file.isDir();
    return isDevice ? writeToDevice(fileName, content) : replaceFile(fileName, content);
}
