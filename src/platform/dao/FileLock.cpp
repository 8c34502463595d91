#include "platform/dao/FileLock.h"

#include <QFile>
#include <utility>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace dao {

FileLock::~FileLock() {
    release();
}

FileLock::FileLock(FileLock&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
    if (this != &other) {
        release();
        fd_ = std::exchange(other.fd_, -1);
    }
    return *this;
}

#ifdef Q_OS_UNIX
// flock() locks are held by the open file description, not the process, so two Database objects of one
// program see each other's locks just as two programs do; and they never meet the engine's own fcntl()
// locks. Closing our descriptor would drop the fcntl() locks this process holds on the file, so it is
// closed only when the engine holds none: between statements, and outside a BeginTrans of another
// Database on the same file, which the program's screens never leave open.
FileLock::Result FileLock::acquire(const QString& path, Mode mode) {
    release();
    // Never waits at open(), whatever the path names; only a regular file is locked.
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return Result::Unreadable;
    struct stat status {};
    if (::fstat(fd, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(fd);
        return Result::Unreadable;
    }
    const int operation = (mode == Mode::Shared ? LOCK_SH : LOCK_EX) | LOCK_NB;
    int rc;
    do {
        rc = ::flock(fd, operation);
    } while (rc != 0 && errno == EINTR);
    if (rc != 0) {
        ::close(fd);
        return Result::InUse;
    }
    fd_ = fd;
    return Result::Held;
}

void FileLock::release() {
    if (fd_ >= 0) {
        ::flock(fd_, LOCK_UN);
        ::close(fd_);
        fd_ = -1;
    }
}
#else
// Elsewhere the system itself refuses to delete or replace a file that the engine holds open.
FileLock::Result FileLock::acquire(const QString& path, Mode) {
    return QFile::exists(path) ? Result::Held : Result::Unreadable;
}
void FileLock::release() {}
#endif

} // namespace dao
