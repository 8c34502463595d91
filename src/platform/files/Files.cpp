#include "platform/files/Files.h"

#include "platform/dao/FileLock.h"
#include "platform/dao/SideFile.h"
#include "platform/errors/VbError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray natif(const QString& chemin) {
    return QFile::encodeName(chemin);
}

bool dossier_existe(const QString& chemin) {
    const QString dossier = QFileInfo(chemin).absolutePath();
    return QFileInfo(dossier).isDir();
}

// The classic number for a system failure on `chemin`.
[[noreturn]] void échouer(int err, const QString& chemin) {
    switch (err) {
    case ENOENT:
        throw VbError(dossier_existe(chemin) ? 53 : 76);
    case ENOTDIR:
        throw VbError(76);
    case EACCES:
    case EPERM:
    case EBUSY:
    case ETXTBSY:
        throw VbError(70);
    case EEXIST:
        throw VbError(58);
    case ENOSPC:
    case EDQUOT:
        throw VbError(61);
    default:
        throw VbError(75);
    }
}

struct stat état_de(const QString& chemin) {
    struct stat st {};
    if (::stat(natif(chemin).constData(), &st) != 0)
        échouer(errno, chemin);
    return st;
}

bool lecture_seule(const struct stat& st) {
    return (st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
}

// A file that can be replaced or removed: it exists as a file, is not read-only and is not held.
void exiger_modifiable(const QString& chemin, const struct stat& st) {
    if (S_ISDIR(st.st_mode))
        throw VbError(75);
    if (lecture_seule(st))
        throw VbError(75);
    if (fichier_verrouillé(chemin))
        throw VbError(70);
}

// The runtime's wildcards: * any run of characters, ? one character, nothing else; "*.*" is every file.
QRegularExpression motif(const QString& nom) {
    if (nom == u"*.*"_s)
        return motif(u"*"_s);
    QString expression;
    for (const QChar c : nom) {
        if (c == u'*')
            expression += u".*"_s;
        else if (c == u'?')
            expression += u'.';
        else
            expression += QRegularExpression::escape(QString(c));
    }
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::CaseInsensitiveOption);
}

bool fichier_normal(const QFileInfo& info) {
    return info.isFile() && !info.fileName().startsWith(u'.');
}

class Descripteur {
public:
    explicit Descripteur(int fd) : fd_(fd) {}
    ~Descripteur() {
        if (fd_ >= 0)
            ::close(fd_);
    }
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;
    int fd() const { return fd_; }

private:
    int fd_;
};

void tout_écrire(int fd, const char* données, ssize_t taille, const QString& cible) {
    while (taille > 0) {
        const ssize_t écrit = ::write(fd, données, static_cast<size_t>(taille));
        if (écrit < 0) {
            if (errno == EINTR)
                continue;
            échouer(errno, cible);
        }
        données += écrit;
        taille -= écrit;
    }
}

void copier_contenu(int source, int cible, const QString& chemin_cible) {
    char tampon[1 << 16];
    for (;;) {
        const ssize_t lu = ::read(source, tampon, sizeof tampon);
        if (lu == 0)
            return;
        if (lu < 0) {
            if (errno == EINTR)
                continue;
            throw VbError(57);
        }
        tout_écrire(cible, tampon, lu, chemin_cible);
    }
}

// The failure of a step of the copy that the system reported by its errno.
[[noreturn]] void échouer_sur(const std::system_error& erreur, const QString& chemin) {
    échouer(erreur.code().value(), chemin);
}

// The source is held for the whole copy, so that nobody opens the base and writes to it half-way
// through. Another copy of the same file, in a running copy of the program, holds it for a moment and
// is waited for; a base open in a screen is refused after that moment.
dao::FileLock tenir_pour_copier(const QString& source) {
    using namespace std::chrono_literals;
    dao::FileLock verrou;
    for (auto attente = 0ms; attente < 1s; attente += 10ms) {
        if (verrou.acquire(source, dao::FileLock::Mode::Exclusive) != dao::FileLock::Result::InUse)
            return verrou;
        std::this_thread::sleep_for(10ms);
    }
    throw VbError(70);
}

} // namespace

QString Dir(const QString& chemin) {
    if (chemin.isEmpty())
        return QString();
    const QFileInfo info(chemin);
    const QString nom = info.fileName();
    if (!nom.contains(u'*') && !nom.contains(u'?'))
        return fichier_normal(info) ? nom : QString();
    const QDir dossier = info.dir();
    if (!dossier.exists())
        return QString();
    const QRegularExpression filtre = motif(nom);
    for (const QFileInfo& entrée : dossier.entryInfoList(QDir::Files | QDir::NoDotAndDotDot, QDir::Name))
        if (fichier_normal(entrée) && filtre.match(entrée.fileName()).hasMatch())
            return entrée.fileName();
    return QString();
}

void Kill(const QString& chemin) {
    const QFileInfo info(chemin);
    if (info.fileName().contains(u'*') || info.fileName().contains(u'?')) {
        if (!info.dir().exists())
            throw VbError(76);
        const QString premier = Dir(chemin);
        if (premier.isEmpty())
            throw VbError(53);
        const QRegularExpression filtre = motif(info.fileName());
        for (const QFileInfo& entrée : info.dir().entryInfoList(QDir::Files, QDir::Name))
            if (fichier_normal(entrée) && filtre.match(entrée.fileName()).hasMatch())
                Kill(entrée.filePath());
        return;
    }
    const struct stat st = état_de(chemin);
    if (S_ISDIR(st.st_mode))
        throw VbError(53); // the runtime looks for files only
    exiger_modifiable(chemin, st);
    if (::unlink(natif(chemin).constData()) != 0)
        échouer(errno, chemin);
}

void FileCopy(const QString& source, const QString& cible) {
    const struct stat st_source = état_de(source);
    if (S_ISDIR(st_source.st_mode))
        throw VbError(75);
    const dao::FileLock à_soi = tenir_pour_copier(source);
    if (!dossier_existe(cible))
        throw VbError(76);
    struct stat st_cible {};
    if (::stat(natif(cible).constData(), &st_cible) == 0)
        exiger_modifiable(cible, st_cible);

    const Descripteur entrée(::open(natif(source).constData(), O_RDONLY | O_CLOEXEC));
    if (entrée.fd() < 0)
        échouer(errno, source);
    // Made with the ordinary permissions of a new file, not those of the source: a copy of a read-only
    // template must be a base the user can write.
    try {
        dao::SideFile::removeLeftovers(cible);
        dao::SideFile copie(cible);
        copier_contenu(entrée.fd(), copie.descriptor(), cible);
        copie.commit(dao::SideFile::Replace::yes);
    } catch (const std::system_error& erreur) {
        échouer_sur(erreur, cible);
    }
}

void MkDir(const QString& chemin) {
    if (::mkdir(natif(chemin).constData(), 0777) == 0)
        return;
    if (errno == EEXIST)
        throw VbError(75);
    échouer(errno, chemin);
}

void RmDir(const QString& chemin) {
    if (::rmdir(natif(chemin).constData()) == 0)
        return;
    if (errno == ENOENT)
        throw VbError(76);
    if (errno == ENOTEMPTY || errno == EEXIST || errno == ENOTDIR)
        throw VbError(75);
    échouer(errno, chemin);
}

void Name(const QString& ancien, const QString& nouveau) {
    const struct stat st = état_de(ancien);
    struct stat st_nouveau {};
    if (::lstat(natif(nouveau).constData(), &st_nouveau) == 0)
        throw VbError(58);
    if (!S_ISDIR(st.st_mode) && fichier_verrouillé(ancien))
        throw VbError(70);
    if (::rename(natif(ancien).constData(), natif(nouveau).constData()) != 0) {
        if (errno == EXDEV)
            throw VbError(74);
        échouer(errno, nouveau);
    }
}

bool fichier_verrouillé(const QString& chemin) {
    // A lock belongs to an open file description, so this also sees a lock of this very process.
    dao::FileLock essai;
    return essai.acquire(chemin, dao::FileLock::Mode::Exclusive) == dao::FileLock::Result::InUse;
}
