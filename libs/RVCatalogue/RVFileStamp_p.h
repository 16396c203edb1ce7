#ifndef RVFILESTAMP_P_H
#define RVFILESTAMP_P_H

#include <QString>

#include <sys/stat.h>

/// The state of a file: its identity, its size, and the time of its last change. A different state means different
/// content.
class RVFileStamp
{
public:
    RVFileStamp() = default; ///< The stamp of no file.
    /// The stamp of a file; that of no file if it does not exist or cannot be examined. Symbolic links are followed.
    explicit RVFileStamp(const QString &fileName);
    explicit RVFileStamp(int descriptor);

    bool isOrdinary() const; ///< False for folders, pipes and devices, and for no file.
    bool isSpecial() const; ///< True for pipes and devices.
    /// Gives the file @p to the owner, group, permissions and extended attributes of this file, which is open as
    /// @p from. Access control lists are extended attributes. Owner, group and attributes are set as far as the program
    /// may and the file system can. False if the permissions cannot be set, with the reason in errno.
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
