#ifndef UNIFIEDDIFF_H
#define UNIFIEDDIFF_H

#include <QByteArrayView>
#include <QString>

#include <functional>

/// The difference of two files in the unified format, as "diff" makes it and "patch" reads it. Lines are written byte
/// by byte as they stand in the files, whatever their encoding is.
class UnifiedDiff
{
public:
    /// Both paths lead to files that can be read; the diff calls them by one name, a path from where the program runs.
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
