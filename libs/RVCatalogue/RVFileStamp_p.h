#ifndef RVFILESTAMP_P_H
#define RVFILESTAMP_P_H

#include <QString>

#include <sys/stat.h>

/// The state of a file: which one it is, its size, and when it was changed. Another state means another content.
class RVFileStamp
{
public:
    RVFileStamp() = default; ///< That of no file.
    /// That of no file where there is none, or none that may be looked at. Symbolic links are followed.
    explicit RVFileStamp(const QString &fileName);
    explicit RVFileStamp(int descriptor);

    bool isOrdinary() const; ///< False for folders, pipes and devices, and for no file.
    /// Gives the file @p to owner, group, permissions and extended attributes, which access control lists are, of this
    /// one, which is open as @p from; owner, group and attributes as far as the program may and the file system can.
    /// False where the permissions cannot be given, with the reason in errno.
    [[nodiscard]] bool giveAccess(int from, int to) const;

    friend bool operator==(const RVFileStamp &a, const RVFileStamp &b)
    {
        const auto equal = [](const timespec &one, const timespec &other) {
            return one.tv_sec == other.tv_sec && one.tv_nsec == other.tv_nsec;
        };
        return a.myState.st_dev == b.myState.st_dev && a.myState.st_ino == b.myState.st_ino
                && a.myState.st_size == b.myState.st_size && equal(a.myState.st_mtim, b.myState.st_mtim)
                && equal(a.myState.st_ctim, b.myState.st_ctim);
    }
    friend bool operator!=(const RVFileStamp &a, const RVFileStamp &b) { return !(a == b); }

private:
    struct stat myState = {};
};

#endif
