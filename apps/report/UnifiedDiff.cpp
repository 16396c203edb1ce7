#include "UnifiedDiff.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The path relative to the current folder, if it is below: other programs refuse other paths.
QString relative(const QString &name)
{
    const QDir folder = QDir::current();
    const QString below = folder.relativeFilePath(QDir::cleanPath(folder.absoluteFilePath(name)));
    return below.startsWith("../"_L1) ? QDir::cleanPath(name) : below;
}

/// The name in the form that "patch" and "git apply" read: with a tab behind it if it has blanks, and in quotes if it
/// has letters that would end the line or the name.
QString labelOf(const QString &name)
{
    const auto isSpecial = [](QChar letter) { return letter < u' ' || letter == u'"' || letter == u'\\'; };
    if (std::none_of(name.begin(), name.end(), isSpecial))
        return name.contains(u' ') ? name + u'\t' : name;
    QString quoted;
    for (const QChar letter : name) {
        constexpr int octal = 8;
        constexpr int digits = 3;
        quoted += isSpecial(letter) ? u'\\' + QString::number(letter.unicode(), octal).rightJustified(digits, u'0')
                                    : QString(letter);
    }
    return u'"' + quoted + u'"';
}

}

UnifiedDiff::UnifiedDiff(const QString &oldPath, const QString &newPath, const QString &shownName)
    : myOldPath(QFileInfo(oldPath).absoluteFilePath()),
      myNewPath(QFileInfo(newPath).absoluteFilePath()),
      myLabel(labelOf(relative(shownName)))
{ }

QString UnifiedDiff::write(const std::function<void(QByteArrayView)> &take) const
{
    QProcess diff;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C"_s); // "No newline at end of file" in any other language is no diff
    diff.setProcessEnvironment(environment);
    diff.start(u"diff"_s, { u"-a"_s, u"-u"_s, u"-L"_s, myLabel, u"-L"_s, myLabel, myOldPath, myNewPath });
    diff.closeWriteChannel();
    if (!diff.waitForStarted(-1))
        return tr("cannot run the program \"diff\": %1").arg(diff.errorString());
    while (diff.waitForReadyRead(-1))
        take(diff.readAllStandardOutput());
    diff.waitForFinished(-1);
    if (const QByteArray rest = diff.readAllStandardOutput(); !rest.isEmpty())
        take(rest);
    if (diff.exitStatus() == QProcess::NormalExit && diff.exitCode() <= 1)
        return QString();
    return tr("the program \"diff\" failed: %1").arg(QString::fromLocal8Bit(diff.readAllStandardError()).simplified());
}
