#include "platform/dao/SideFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace dao {
namespace {

// ".<target>.<pid>-<n>.norvane-tmp": hidden, and of no extension that a list of bases looks for.
constexpr auto suffix = ".norvane-tmp";

[[noreturn]] void fail(int error) {
    throw std::system_error(error, std::generic_category());
}

QByteArray folderOf(const QByteArray& path) {
    return QFile::encodeName(QFileInfo(QFile::decodeName(path)).absolutePath());
}

bool sameFile(int fd, const QByteArray& path) {
    struct stat opened {
    }, named{};
    return ::fstat(fd, &opened) == 0 && ::lstat(path.constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

// Takes the lock without waiting; true when nobody else holds the file.
bool lockExclusive(int fd) {
    int rc;
    do {
        rc = ::flock(fd, LOCK_EX | LOCK_NB);
    } while (rc != 0 && errno == EINTR);
    return rc == 0;
}

void syncFolder(const QByteArray& folder) {
    const int fd = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return; // the rename stands; only its survival of a power cut is left to the system
    const int rc = ::fsync(fd);
    const int error = errno;
    ::close(fd);
    if (rc != 0 && error != EINVAL) // some file systems cannot flush a folder
        fail(error);
}

int renameNoReplace(const char* from, const char* to) {
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // A file system without the no-replace rename: a file made in the short gap between the look and
    // the rename would be replaced.
    struct stat existing {};
    if (::lstat(to, &existing) == 0)
        return EEXIST;
    return ::rename(from, to) == 0 ? 0 : errno;
}

} // namespace

SideFile::SideFile(const QString& target) : target_(QFile::encodeName(target)) {
    const QFileInfo info(target);
    const QString prefix =
        info.absolutePath() + u"/."_s + info.fileName() + u'.' + QString::number(::getpid());
    for (int attempt = 0;; ++attempt) {
        const QByteArray name =
            QFile::encodeName(prefix + u'-' + QString::number(attempt) + QString::fromLatin1(suffix));
        const int fd = ::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd < 0) {
            if (errno == EEXIST)
                continue;
            fail(errno);
        }
        // Between the creation and the lock, a cleaning may have taken the new file for a leftover.
        if (lockExclusive(fd) && sameFile(fd, name)) {
            path_ = name;
            fd_ = fd;
            return;
        }
        ::close(fd);
    }
}

SideFile::~SideFile() {
    if (fd_ < 0)
        return;
    if (!committed_)
        ::unlink(path_.constData());
    ::close(fd_);
}

QString SideFile::path() const {
    return QFile::decodeName(path_);
}

void SideFile::commit(Replace replace) {
    if (::fsync(fd_) != 0)
        fail(errno);
    const int error = replace == Replace::yes
                          ? (::rename(path_.constData(), target_.constData()) == 0 ? 0 : errno)
                          : renameNoReplace(path_.constData(), target_.constData());
    if (error != 0)
        fail(error);
    committed_ = true;
    ::close(fd_); // the lock goes with it: the file is now the target, open to all
    fd_ = -1;
    syncFolder(folderOf(target_));
}

void SideFile::removeLeftovers(const QString& target) {
    const QFileInfo info(target);
    const QDir folder = info.absoluteDir();
    static const QString engineFiles = u"(-journal|-wal|-shm)?"_s;
    const QRegularExpression ours(QRegularExpression::anchoredPattern(
        u"\\."_s + QRegularExpression::escape(info.fileName()) + u"\\.\\d+-\\d+"_s +
        QRegularExpression::escape(QString::fromLatin1(suffix)) + engineFiles));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    for (const QString& name : names) {
        if (!ours.match(name).hasMatch() || !name.endsWith(QString::fromLatin1(suffix)))
            continue; // the engine's files of a copy go with the copy, below
        const QByteArray path = QFile::encodeName(folder.filePath(name));
        const int fd = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0)
            continue;
        if (lockExclusive(fd) && sameFile(fd, path))
            ::unlink(path.constData());
        ::close(fd);
    }
    // An engine's journal whose copy is gone is of no use to anybody.
    for (const QString& name : names) {
        if (!ours.match(name).hasMatch() || name.endsWith(QString::fromLatin1(suffix)))
            continue;
        const QString copy = name.left(name.lastIndexOf(u'-'));
        if (!QFileInfo::exists(folder.filePath(copy)))
            ::unlink(QFile::encodeName(folder.filePath(name)).constData());
    }
}

} // namespace dao
