#pragma once

#include <QString>

// An advisory lock on a base file, seen by every copy of the program on this machine: each open
// Database holds a shared one, and whoever wants the file for itself (compaction, deletion, copy) asks
// for an exclusive one, which fails while anybody holds the file. The lock lives on the file itself, so
// nothing is left behind when the program stops, even abruptly.
namespace dao {

class FileLock {
public:
    enum class Mode { Shared, Exclusive };
    enum class Result { Held, InUse, Unreadable };

    FileLock() = default;
    ~FileLock();
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // Tries once, without waiting.
    Result acquire(const QString& path, Mode mode);
    void release();
    bool held() const { return fd_ >= 0; }

private:
    int fd_ = -1;
};

} // namespace dao
