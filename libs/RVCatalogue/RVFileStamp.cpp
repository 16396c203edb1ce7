#include "RVFileStamp_p.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <linux/limits.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstddef>

namespace {

constexpr mode_t PERMISSIONS = 07777;

/// The value; empty if the file does not have the attribute.
QByteArray extendedAttribute(int descriptor, const QByteArray &name)
{
    QByteArray value(XATTR_SIZE_MAX, Qt::Uninitialized);
    return value.left(::fgetxattr(descriptor, name.constData(), value.data(), XATTR_SIZE_MAX));
}

QByteArray namesOfExtendedAttributes(int descriptor)
{
    QByteArray names(XATTR_LIST_MAX, Qt::Uninitialized);
    return names.left(::flistxattr(descriptor, names.data(), XATTR_LIST_MAX));
}

void copyExtendedAttributes(int from, int to)
{
    for (const QByteArray &name : namesOfExtendedAttributes(from).split('\0')) {
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

bool RVFileStamp::isSpecial() const
{
    return myState.st_mode != 0 && !isOrdinary() && !S_ISDIR(myState.st_mode);
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
