#include "platform/errors/VbError.h"
#include "platform/files/Files.h"
#include "support/Fixtures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The number of the VbError that `operation` raises, or -1 when it raises none.
int errorOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const VbError& e) {
        return e.number();
    }
    return -1;
}

QByteArray contentOf(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<absent>");
}

void makeReadOnly(const QString& path) {
    ::chmod(QFile::encodeName(path).constData(), 0444);
}

// A file the system itself refuses to remove, even to root: the immutable attribute.
class ImmutableFile {
public:
    explicit ImmutableFile(const QString& path) : path_(path) { set(true); }
    ~ImmutableFile() { set(false); }
    bool applied() const { return applied_; }

private:
    void set(bool on) {
        const int fd = ::open(QFile::encodeName(path_).constData(), O_RDONLY);
        if (fd < 0)
            return;
        int flags = 0;
        if (::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0) {
            flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
            applied_ = ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0 && on;
        }
        ::close(fd);
    }
    QString path_;
    bool applied_ = false;
};

class Files : public ::testing::Test {
protected:
    WorkFolder folder;
};

} // namespace

TEST_F(Files, DirNamesAnExistingFile) {
    const QString path = folder.write(QStringLiteral("options.ini"), "0\r\n");
    EXPECT_EQ(Dir(path), QStringLiteral("options.ini"));
}

TEST_F(Files, DirIsEmptyForWhatIsNotThere) {
    EXPECT_EQ(Dir(folder.file(QStringLiteral("absent.mdb"))), QString());
    EXPECT_EQ(Dir(folder.file(QStringLiteral("nulle_part/absent.mdb"))), QString());
    EXPECT_EQ(Dir(QString()), QString());
}

TEST_F(Files, DirDoesNotSeeFoldersNorHiddenFiles) {
    QDir(folder.path()).mkdir(QStringLiteral("sous_dossier"));
    const QString hidden = folder.write(QStringLiteral(".cachée.mdb"), "x");
    EXPECT_EQ(Dir(folder.file(QStringLiteral("sous_dossier"))), QString());
    EXPECT_EQ(Dir(hidden), QString());
    EXPECT_EQ(Dir(folder.file(QStringLiteral("*.mdb"))), QString());
}

TEST_F(Files, DirSeesReadOnlyFiles) {
    const QString path = folder.write(QStringLiteral("lecture.mdb"), "x");
    makeReadOnly(path);
    EXPECT_EQ(Dir(path), QStringLiteral("lecture.mdb"));
}

TEST_F(Files, DirWithWildcardsGivesTheFirstMatchInNameOrder) {
    folder.write(QStringLiteral("b.mdb"), "x");
    folder.write(QStringLiteral("a.mdb"), "x");
    folder.write(QStringLiteral("c.txt"), "x");
    EXPECT_EQ(Dir(folder.file(QStringLiteral("*.mdb"))), QStringLiteral("a.mdb"));
    EXPECT_EQ(Dir(folder.file(QStringLiteral("?.txt"))), QStringLiteral("c.txt"));
    EXPECT_EQ(Dir(folder.file(QStringLiteral("*.rpt"))), QString());
}

TEST_F(Files, StarDotStarIsEveryFileAndBracketsAreNoWildcards) {
    folder.write(QStringLiteral("sans_extension"), "x");
    EXPECT_EQ(Dir(folder.file(QStringLiteral("*.*"))), QStringLiteral("sans_extension"));
    folder.write(QStringLiteral("[a].mdb"), "x");
    EXPECT_EQ(Dir(folder.file(QStringLiteral("[a]*"))), QStringLiteral("[a].mdb"));
    EXPECT_EQ(Dir(folder.file(QStringLiteral("a*"))), QString());
}

TEST_F(Files, DirKeepsAccentsAndCommasOfNames) {
    const QString path = folder.write(QString::fromUtf8("école, année 2024.mdb"), "x");
    EXPECT_EQ(Dir(path), QString::fromUtf8("école, année 2024.mdb"));
}

TEST_F(Files, KillRemovesTheFile) {
    const QString path = folder.write(QStringLiteral("cible.mdb"), "x");
    Kill(path);
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(Files, KillMissingFileIs53AndMissingFolderIs76) {
    EXPECT_EQ(errorOf([&] { Kill(folder.file(QStringLiteral("absent.mdb"))); }), 53);
    EXPECT_EQ(errorOf([&] { Kill(folder.file(QStringLiteral("absent/absent.mdb"))); }), 76);
}

TEST_F(Files, KillOfAFolderIsFileNotFound) {
    QDir(folder.path()).mkdir(QStringLiteral("dossier"));
    EXPECT_EQ(errorOf([&] { Kill(folder.file(QStringLiteral("dossier"))); }), 53);
    EXPECT_TRUE(QFileInfo(folder.file(QStringLiteral("dossier"))).isDir());
}

TEST_F(Files, KillOfAReadOnlyFileIs75AndTheFileStays) {
    const QString path = folder.write(QStringLiteral("protégée.mdb"), "garde");
    makeReadOnly(path);
    EXPECT_EQ(errorOf([&] { Kill(path); }), 75);
    EXPECT_EQ(contentOf(path), "garde");
}

TEST_F(Files, KillOfAFileHeldByAnOpenDatabaseIs70) {
    const QString path = folder.write(QStringLiteral("ouverte.mdb"), "en cours");
    {
        const VerrouPartagé held(path);
        ASSERT_TRUE(held.tenu());
        EXPECT_TRUE(fichier_verrouillé(path));
        EXPECT_EQ(errorOf([&] { Kill(path); }), 70);
        EXPECT_EQ(contentOf(path), "en cours");
    }
    EXPECT_FALSE(fichier_verrouillé(path));
    Kill(path);
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(Files, KillOfAFileTheSystemRefusesIs70) {
    const QString path = folder.write(QStringLiteral("immuable.mdb"), "x");
    const ImmutableFile immutable(path);
    if (!immutable.applied())
        GTEST_SKIP() << "immutable attribute not available on this file system";
    EXPECT_EQ(errorOf([&] { Kill(path); }), 70);
    EXPECT_TRUE(QFileInfo::exists(path));
}

TEST_F(Files, KillWithWildcardRemovesEveryMatch) {
    folder.write(QStringLiteral("a.cpg"), "x");
    folder.write(QStringLiteral("b.cpg"), "x");
    const QString kept = folder.write(QStringLiteral("c.mdb"), "x");
    Kill(folder.file(QStringLiteral("*.cpg")));
    EXPECT_EQ(Dir(folder.file(QStringLiteral("*.cpg"))), QString());
    EXPECT_TRUE(QFileInfo::exists(kept));
    EXPECT_EQ(errorOf([&] { Kill(folder.file(QStringLiteral("*.cpg"))); }), 53);
}

TEST_F(Files, FileCopyCopiesAndReplaces) {
    const QString source = folder.write(QStringLiteral("base.mdb"), QByteArray(200000, 'n'));
    const QString target = folder.write(QStringLiteral("copie.mdb"), "ancienne copie plus longue");
    FileCopy(source, target);
    EXPECT_EQ(contentOf(target), QByteArray(200000, 'n'));
    EXPECT_EQ(contentOf(source), QByteArray(200000, 'n'));
}

TEST_F(Files, FileCopyOfAReadOnlyTemplateGivesABaseTheUserCanWrite) {
    const QString model = folder.write(QStringLiteral("basevide.mdz"), "modèle");
    makeReadOnly(model);
    const QString base = folder.file(QStringLiteral("nouvelle.mdb"));
    FileCopy(model, base);
    EXPECT_EQ(contentOf(base), "modèle");
    EXPECT_TRUE(QFileInfo(base).permissions() & QFileDevice::WriteOwner);
    Kill(base);
}

TEST_F(Files, FileCopyLeavesNothingAside) {
    const QString source = folder.write(QStringLiteral("base.mdb"), "x");
    FileCopy(source, folder.file(QStringLiteral("copie.mdb")));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST_F(Files, FileCopyMissingSourceIs53AndMissingFoldersAre76) {
    const QString source = folder.write(QStringLiteral("base.mdb"), "x");
    EXPECT_EQ(errorOf([&] {
                  FileCopy(folder.file(QStringLiteral("absent.mdb")), folder.file(QStringLiteral("c.mdb")));
              }),
              53);
    EXPECT_EQ(errorOf([&] {
                  FileCopy(folder.file(QStringLiteral("non/absent.mdb")),
                           folder.file(QStringLiteral("c.mdb")));
              }),
              76);
    EXPECT_EQ(errorOf([&] { FileCopy(source, folder.file(QStringLiteral("non/c.mdb"))); }), 76);
}

TEST_F(Files, FileCopyOverAHeldOrReadOnlyTargetIsRefusedAndTheTargetStays) {
    const QString source = folder.write(QStringLiteral("base.mdb"), "nouveau");
    const QString held = folder.write(QStringLiteral("tenue.mdb"), "ancien");
    const QString readOnly = folder.write(QStringLiteral("lecture.mdb"), "ancien");
    makeReadOnly(readOnly);
    {
        const VerrouPartagé lock(held);
        EXPECT_EQ(errorOf([&] { FileCopy(source, held); }), 70);
    }
    EXPECT_EQ(errorOf([&] { FileCopy(source, readOnly); }), 75);
    EXPECT_EQ(contentOf(held), "ancien");
    EXPECT_EQ(contentOf(readOnly), "ancien");
}

TEST_F(Files, FileCopyOfAHeldSourceIs70) {
    const QString source = folder.write(QStringLiteral("base.mdb"), "x");
    const VerrouPartagé lock(source);
    EXPECT_EQ(errorOf([&] { FileCopy(source, folder.file(QStringLiteral("copie.mdb"))); }), 70);
    EXPECT_FALSE(QFileInfo::exists(folder.file(QStringLiteral("copie.mdb"))));
}

TEST_F(Files, FileCopyOfAFolderIs75) {
    QDir(folder.path()).mkdir(QStringLiteral("dossier"));
    EXPECT_EQ(
        errorOf([&] { FileCopy(folder.file(QStringLiteral("dossier")), folder.file(QStringLiteral("c"))); }),
        75);
}

TEST_F(Files, MkDirMakesOneFolder) {
    MkDir(folder.file(QStringLiteral("sauvegardes")));
    EXPECT_TRUE(QFileInfo(folder.file(QStringLiteral("sauvegardes"))).isDir());
}

TEST_F(Files, MkDirOnATakenNameIs75AndWithoutParentIs76) {
    QDir(folder.path()).mkdir(QStringLiteral("là"));
    folder.write(QStringLiteral("fichier"), "x");
    EXPECT_EQ(errorOf([&] { MkDir(folder.file(QStringLiteral("là"))); }), 75);
    EXPECT_EQ(errorOf([&] { MkDir(folder.file(QStringLiteral("fichier"))); }), 75);
    EXPECT_EQ(errorOf([&] { MkDir(folder.file(QStringLiteral("a/b"))); }), 76);
}

TEST_F(Files, RmDirRemovesOnlyAnEmptyFolder) {
    QDir(folder.path()).mkpath(QStringLiteral("plein/dedans"));
    EXPECT_EQ(errorOf([&] { RmDir(folder.file(QStringLiteral("plein"))); }), 75);
    RmDir(folder.file(QStringLiteral("plein/dedans")));
    EXPECT_FALSE(QFileInfo::exists(folder.file(QStringLiteral("plein/dedans"))));
    EXPECT_EQ(errorOf([&] { RmDir(folder.file(QStringLiteral("absent"))); }), 76);
}

TEST_F(Files, NameRenamesButNeverOverAnExistingFile) {
    const QString old = folder.write(QStringLiteral("ancien.mdb"), "contenu");
    const QString taken = folder.write(QStringLiteral("pris.mdb"), "autre");
    EXPECT_EQ(errorOf([&] { Name(old, taken); }), 58);
    EXPECT_EQ(contentOf(taken), "autre");
    Name(old, folder.file(QStringLiteral("nouveau.mdb")));
    EXPECT_EQ(contentOf(folder.file(QStringLiteral("nouveau.mdb"))), "contenu");
    EXPECT_EQ(errorOf([&] { Name(old, folder.file(QStringLiteral("x.mdb"))); }), 53);
}
