#pragma once

#include <QByteArray>
#include <QString>

// A whole file written beside its target under a hidden name of its own, which takes the target's
// place only once it is complete and on the disk. A crash, a kill or a power cut thus leaves the
// target as it was or the new file complete, never a torn file under the target's name; what it
// leaves besides is a hidden file that no list of bases shows, removed by the next write of the same
// target. The writer holds an exclusive lock on its file while it works, so that this cleaning never
// takes a file that another running copy of the program is still writing.
//
// Failures are std::system_error with the system's errno, for the caller to number as its own.
namespace dao {

class SideFile {
public:
    // Creates the empty file in the target's folder.
    explicit SideFile(const QString& target);
    // Removes the file unless it took the target's place.
    ~SideFile();
    SideFile(const SideFile&) = delete;
    SideFile& operator=(const SideFile&) = delete;

    QString path() const;
    int descriptor() const { return fd_; }

    enum class Replace { yes, no };
    // Flushes the file to the disk, puts it in the target's place and flushes the folder, so that the
    // new name survives a power cut. With Replace::no an existing target fails with EEXIST.
    void commit(Replace replace);

    // Removes what earlier writes of `target` left behind when they were interrupted, but for the
    // files that a running writer still holds.
    static void removeLeftovers(const QString& target);

private:
    QByteArray target_;
    QByteArray path_;
    int fd_ = -1;
    bool committed_ = false;
};

} // namespace dao
