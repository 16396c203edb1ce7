#include "RVFileStamp_p.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <sys/xattr.h>
#include <unistd.h>

#include <cstddef>

namespace {

constexpr mode_t PERMISSIONS = 07777;

QByteArray extendedAttribute(int descriptor, const QByteArray &name)
{
    QByteArray value(qMax(ssize_t(0), ::fgetxattr(descriptor, name.constData(), nullptr, 0)), '\0');
    const ssize_t size = ::fgetxattr(descriptor, name.constData(), value.data(), std::size_t(value.size()));
    return size < 0 ? QByteArray() : value.first(size);
}

void copyExtendedAttributes(int from, int to)
{
    QByteArray names(qMax(ssize_t(0), ::flistxattr(from, nullptr, 0)), '\0');
    names.truncate(qMax(ssize_t(0), ::flistxattr(from, names.data(), std::size_t(names.size()))));
    for (const QByteArray &name : names.split('\0')) {
        const QByteArray value = extendedAttribute(from, name);
        if (!value.isEmpty())
            ::fsetxattr(to, name.constData(), value.constData(), std::size_t(value.size()), 0);
    }
}

}

RVFileStamp::RVFileStamp(const QString &fileName)
{
    if (::stat(QFile::encodeName(fileName).constData(), &myState) != 0)
        myState = {};
}

RVFileStamp::RVFileStamp(int descriptor)
{
    if (::fstat(descriptor, &myState) != 0)
        myState = {};
}

bool RVFileStamp::isOrdinary() const
{
    return S_ISREG(myState.st_mode);
}

// The owner is set first, because a new owner removes some permissions. A user who may not give the file away may still
// give it to another of the user's groups.
bool RVFileStamp::giveAccess(int from, int to) const
{
    if (::fchown(to, myState.st_uid, myState.st_gid) != 0) {
        const bool hasGroup = ::fchown(to, uid_t(-1), myState.st_gid) == 0;
        Q_UNUSED(hasGroup)
    }
    if (::fchmod(to, myState.st_mode & PERMISSIONS) != 0)
        return false;
    copyExtendedAttributes(from, to);
    return true;
}
