#include "RVFileStamp_p.h"

#include <QFile>

#include <unistd.h>

namespace {

constexpr mode_t PERMISSIONS = 07777;

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

// The owner goes first, since a new one takes some permissions away. Who may not give the file away may still give it
// to another group of his.
void RVFileStamp::giveAccess(int descriptor) const
{
    if (::fchown(descriptor, myState.st_uid, myState.st_gid) != 0) {
        const bool hasGroup = ::fchown(descriptor, uid_t(-1), myState.st_gid) == 0;
        Q_UNUSED(hasGroup)
    }
    ::fchmod(descriptor, myState.st_mode & PERMISSIONS);
}
