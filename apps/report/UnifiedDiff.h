#ifndef UNIFIEDDIFF_H
#define UNIFIEDDIFF_H

#include <QByteArrayView>
#include <QCoreApplication>
#include <QString>

#include <functional>

/// The difference of two files in the unified format, as "diff" makes it and "patch" reads it. Lines are written byte
/// by byte as in the files, in any encoding.
class UnifiedDiff
{
    Q_DECLARE_TR_FUNCTIONS(UnifiedDiff)

public:
    /// Both paths are readable files; the diff uses one name for them, a path relative to the current folder.
    UnifiedDiff(const QString &oldPath, const QString &newPath, const QString &shownName);

    /// Hands over the diff in pieces, none of which is empty. Returns the reason where that is impossible; empty
    /// otherwise.
    QString write(const std::function<void(QByteArrayView)> &take) const;

private:
    QString myOldPath;
    QString myNewPath;
    QString myLabel;
};

#endif
