#include "platform/dao/FileLock.h"
#include "platform/files/Files.h"
#include "support/Fixtures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

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
    QString f(const char* name) const { return folder.file(QString::fromUtf8(name)); }
    QString mkdir(const char* name) const {
        QDir(folder.path()).mkpath(QString::fromUtf8(name));
        return f(name);
    }
    // A shared lock as an open database holds on its file.
    static dao::FileLock held(const QString& path) {
        dao::FileLock lock;
        EXPECT_EQ(lock.acquire(path, dao::FileLock::Mode::Shared), dao::FileLock::Result::Held);
        return lock;
    }
};

} // namespace

// Dir names a file, accents, commas and read-only included, or the first match of its wildcards in name
// order; it is empty for what is not there, folders and hidden files. Brackets are no wildcards.
TEST_F(Files, DirNamesAFileOrTheFirstMatchInNameOrder) {
    mkdir("seul");
    for (const char* name : {"école, année 2024.mdb", "b.mdb", "a.mdb", "c.txt", ".cachée.mdb", "[a].xls",
                             "seul/sans_extension"})
        folder.write(name, "x");
    makeReadOnly(f("b.mdb"));
    mkdir("sous_dossier");
    const std::pair<QString, const char*> cas[] = {{f("école, année 2024.mdb"), "école, année 2024.mdb"},
                                                   {f("b.mdb"), "b.mdb"},
                                                   {f("*.mdb"), "a.mdb"},
                                                   {f("?.txt"), "c.txt"},
                                                   {f("*.rpt"), ""},
                                                   {f("[a]*"), "[a].xls"},
                                                   {f("seul/*.*"), "sans_extension"},
                                                   {f("absent.mdb"), ""},
                                                   {f("nulle_part/absent.mdb"), ""},
                                                   {QString(), ""},
                                                   {f("sous_dossier"), ""},
                                                   {f(".cachée.mdb"), ""}};
    for (const auto& [chemin, nom] : cas)
        EXPECT_EQ(Dir(chemin), QString::fromUtf8(nom)) << chemin.toStdString();
}

TEST_F(Files, KillRemovesTheFileOrEveryWildcardMatch) {
    const QString path = folder.write("cible.mdb", "x");
    Kill(path);
    EXPECT_FALSE(QFileInfo::exists(path));
    folder.write("a.cpg", "x");
    folder.write("b.cpg", "x");
    const QString kept = folder.write("c.mdb", "x");
    Kill(f("*.cpg"));
    EXPECT_EQ(Dir(f("*.cpg")), QString());
    EXPECT_TRUE(QFileInfo::exists(kept));
    EXPECT_EQ(error_of([&] { Kill(f("*.cpg")); }), 53);
}

TEST_F(Files, KillRefusalsLeaveTheFileInPlace) {
    EXPECT_EQ(error_of([&] { Kill(f("absent.mdb")); }), 53);
    EXPECT_EQ(error_of([&] { Kill(f("absent/absent.mdb")); }), 76);
    const QString dossier = mkdir("dossier");
    EXPECT_EQ(error_of([&] { Kill(dossier); }), 53); // the runtime looks for files only
    EXPECT_TRUE(QFileInfo(dossier).isDir());
    const QString readOnly = folder.write("protégée.mdb", "garde");
    makeReadOnly(readOnly);
    EXPECT_EQ(error_of([&] { Kill(readOnly); }), 75);
    EXPECT_EQ(contentOf(readOnly), "garde");
}

TEST_F(Files, KillOfAFileTheSystemRefusesIs70) {
    const QString path = folder.write("immuable.mdb", "x");
    const ImmutableFile immutable(path);
    if (!immutable.applied())
        GTEST_SKIP() << "immutable attribute not available on this file system";
    EXPECT_EQ(error_of([&] { Kill(path); }), 70);
    EXPECT_TRUE(QFileInfo::exists(path));
}

TEST_F(Files, FileCopyReplacesTheTargetAndLeavesNothingAside) {
    const QString source = folder.write("base.mdb", QByteArray(200000, 'n'));
    const QString target = folder.write("copie.mdb", "ancienne copie plus longue");
    FileCopy(source, target);
    EXPECT_EQ(contentOf(target), QByteArray(200000, 'n'));
    EXPECT_EQ(contentOf(source), QByteArray(200000, 'n'));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

TEST_F(Files, FileCopyOfAReadOnlyTemplateGivesABaseTheUserCanWrite) {
    const QString model = folder.write("basevide.mdz", "modèle");
    makeReadOnly(model);
    FileCopy(model, f("nouvelle.mdb"));
    EXPECT_EQ(contentOf(f("nouvelle.mdb")), "modèle");
    EXPECT_TRUE(QFileInfo(f("nouvelle.mdb")).permissions() & QFileDevice::WriteOwner);
    Kill(f("nouvelle.mdb"));
}

TEST_F(Files, FileCopyFailuresWriteNothing) {
    const QString source = folder.write("base.mdb", "nouveau");
    EXPECT_EQ(error_of([&] { FileCopy(f("absent.mdb"), f("c.mdb")); }), 53);
    EXPECT_EQ(error_of([&] { FileCopy(f("non/absent.mdb"), f("c.mdb")); }), 76);
    EXPECT_EQ(error_of([&] { FileCopy(source, f("non/c.mdb")); }), 76);
    EXPECT_EQ(error_of([&] { FileCopy(mkdir("dossier"), f("c.mdb")); }), 75);
    EXPECT_FALSE(QFileInfo::exists(f("c.mdb")));
}

TEST_F(Files, FileCopyOverAHeldOrReadOnlyTargetIsRefusedAndTheTargetStays) {
    const QString source = folder.write("base.mdb", "nouveau");
    const QString target = folder.write("tenue.mdb", "ancien");
    const QString readOnly = folder.write("lecture.mdb", "ancien");
    makeReadOnly(readOnly);
    {
        const dao::FileLock lock = held(target);
        EXPECT_EQ(error_of([&] { FileCopy(source, target); }), 70);
    }
    EXPECT_EQ(error_of([&] { FileCopy(source, readOnly); }), 75);
    EXPECT_EQ(contentOf(target), "ancien");
    EXPECT_EQ(contentOf(readOnly), "ancien");
}

TEST_F(Files, MkDirMakesOneFolderAndRmDirRemovesOnlyAnEmptyOne) {
    MkDir(f("sauvegardes"));
    EXPECT_TRUE(QFileInfo(f("sauvegardes")).isDir());
    folder.write("fichier", "x");
    EXPECT_EQ(error_of([&] { MkDir(f("sauvegardes")); }), 75);
    EXPECT_EQ(error_of([&] { MkDir(f("fichier")); }), 75);
    EXPECT_EQ(error_of([&] { MkDir(f("a/b")); }), 76);
    mkdir("plein/dedans");
    EXPECT_EQ(error_of([&] { RmDir(f("plein")); }), 75);
    RmDir(f("plein/dedans"));
    EXPECT_FALSE(QFileInfo::exists(f("plein/dedans")));
    EXPECT_EQ(error_of([&] { RmDir(f("absent")); }), 76);
}

TEST_F(Files, NameRenamesButNeverOverAnExistingFile) {
    const QString old = folder.write("ancien.mdb", "contenu");
    const QString taken = folder.write("pris.mdb", "autre");
    EXPECT_EQ(error_of([&] { Name(old, taken); }), 58);
    EXPECT_EQ(contentOf(taken), "autre");
    Name(old, f("nouveau.mdb"));
    EXPECT_EQ(contentOf(f("nouveau.mdb")), "contenu");
    EXPECT_EQ(error_of([&] { Name(old, f("x.mdb")); }), 53);
}
