#include "platform/dao/FileLock.h"
#include "platform/files/Files.h"
#include "support/Fixtures.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

void makeReadOnly(const QString& path) {
    ::chmod(QFile::encodeName(path).constData(), 0444);
}

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

// Kill removes a file or every match of its wildcards, and refuses a folder, a read-only file and what
// is not there, leaving them in place.
TEST_F(Files, KillRemovesTheFileOrEveryWildcardMatchAndRefusesTheRest) {
    for (const char* name : {"a.cpg", "b.cpg"})
        folder.write(name, "x");
    const QString kept = folder.write("protégée.mdb", "garde");
    makeReadOnly(kept);
    Kill(f("*.cpg"));
    EXPECT_EQ(Dir(f("*.cpg")), QString());
    const QString dossier = mkdir("dossier");
    const std::pair<QString, int> refus[] = {
        {f("*.cpg"), 53}, {f("absent/absent.mdb"), 76}, {dossier, 53}, {kept, 75}};
    for (const auto& [chemin, erreur] : refus)
        EXPECT_EQ(error_of([&] { Kill(chemin); }), erreur) << chemin.toStdString();
    EXPECT_TRUE(QFileInfo(dossier).isDir());
    EXPECT_EQ(contentOf(kept), "garde");
}

// FileCopy replaces the target whole and leaves nothing aside; a copy of a read-only template can be
// written. Its failures write nothing and leave a held or read-only target as it was.
TEST_F(Files, FileCopyReplacesTheTargetWholeOrWritesNothing) {
    const QString source = folder.write("base.mdb", QByteArray(200000, 'n'));
    const QString target = folder.write("copie.mdb", "ancienne copie plus longue");
    FileCopy(source, target);
    EXPECT_EQ(contentOf(target), QByteArray(200000, 'n'));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    makeReadOnly(source);
    FileCopy(source, f("nouvelle.mdb"));
    EXPECT_TRUE(QFileInfo(f("nouvelle.mdb")).permissions() & QFileDevice::WriteOwner);

    const QString tenue = folder.write("tenue.mdb", "ancien");
    const dao::FileLock lock = held(tenue);
    const std::tuple<QString, QString, int> refus[] = {{f("absent.mdb"), f("c.mdb"), 53},
                                                       {f("non/absent.mdb"), f("c.mdb"), 76},
                                                       {source, f("non/c.mdb"), 76},
                                                       {mkdir("dossier"), f("c.mdb"), 75},
                                                       {source, tenue, 70},
                                                       {f("nouvelle.mdb"), source, 75}};
    for (const auto& [de, vers, erreur] : refus)
        EXPECT_EQ(error_of([&] { FileCopy(de, vers); }), erreur) << vers.toStdString();
    EXPECT_FALSE(QFileInfo::exists(f("c.mdb")));
    EXPECT_EQ(contentOf(tenue), "ancien");
    EXPECT_EQ(contentOf(source), QByteArray(200000, 'n'));
}

// Two running copies of the program may copy one template at once: the second waits for the first.
TEST_F(Files, FileCopyWaitsForAnotherCopyOfTheSameSource) {
    const QString source = folder.write("basevide.mdz", "modèle");
    dao::FileLock copying;
    ASSERT_EQ(copying.acquire(source, dao::FileLock::Mode::Exclusive), dao::FileLock::Result::Held);
    std::thread other([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        copying.release();
    });
    EXPECT_EQ(error_of([&] { FileCopy(source, f("nouvelle.mdb")); }), 0);
    other.join();
}
