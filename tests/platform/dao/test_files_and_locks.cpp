// Opening files that are missing, damaged or held, compaction, and the locks that other copies see.
#include "platform/dao/StoreTestSupport.h"

#include "platform/dao/FileLock.h"
#include "platform/dao/SideFile.h"
#include "platform/files/Files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray digest(const QString& path) {
    QFile f(path);
    f.open(QIODevice::ReadOnly);
    return QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256);
}

QStringList files_in(const QString& folder) {
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

TEST(OpeningFiles, AMissingFileIs3024AndAMissingFolder3044) {
    TemplateBase base;
    EXPECT_EQ(error_of([&] { Database::open(base.file("absent.mdb")); }), 3024);
    EXPECT_EQ(error_of([&] { Database::open(base.file("absent/base.mdb")); }), 3044);
    EXPECT_EQ(error_of([&] { Database::open(""); }), 3024);
    const QString description = raised_by([&] { Database::open(base.file("absent.mdb")); }).description();
    EXPECT_TRUE(description.contains("absent.mdb")) << description.toStdString();
}

TEST(OpeningFiles, WhatIsNoBaseIs3343AndStaysUntouched) {
    TemplateBase base;
    QByteArray noise(64 * 1024, '\0');
    QRandomGenerator generator(42);
    for (char& c : noise)
        c = static_cast<char>(generator.bounded(256));
    const QString path = base.file("abîmée.mdb");
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(noise) == noise.size());
    f.close();
    QFile(base.file("vide.mdb")).open(QIODevice::WriteOnly);
    QDir(base.folder()).mkdir("dossier.mdb");
    ASSERT_EQ(mkfifo(QFile::encodeName(base.file("tube.mdb")).constData(), 0600), 0);
    const QStringList before = files_in(base.folder());
    alarm(60); // waiting on the FIFO for a writer would hold the test for ever: end it instead
    for (const char* name : {"abîmée.mdb", "vide.mdb", "dossier.mdb", "tube.mdb"})
        EXPECT_EQ(error_of([&] { Database::open(base.file(name)); }), 3343) << name;
    alarm(0);
    EXPECT_EQ(digest(path), QCryptographicHash::hash(noise, QCryptographicHash::Sha256));
    EXPECT_EQ(files_in(base.folder()), before);
    EXPECT_FALSE(fichier_verrouillé(path));

    QFile body(base.path());
    ASSERT_TRUE(body.open(QIODevice::ReadWrite));
    body.seek(100);
    body.write(QByteArray(8000, '\x5a')); // the first pages, table list included
    body.close();
    EXPECT_EQ(error_of([&] { Database::open(base.path())->OpenRecordset("élèves"); }), 3343);
}

TEST(OpeningFiles, AnyExtensionOpens) {
    TemplateBase base("modèle.mdz");
    auto db = Database::open(base.path());
    EXPECT_EQ(db->tableNames().size(), 21);
    EXPECT_EQ(db->path(), base.path());
}

TEST(Sharing, SeveralDatabasesOnOneFileWorkSideBySideAndLeaveNoLockFile) {
    TemplateBase base;
    const QStringList before = files_in(base.folder());
    auto first = Database::open(base.path());
    auto second = Database::open(base.path());
    auto rs = first->OpenRecordset("familles");
    rs->AddNew();
    rs->setField("ville_responsable", "Bron");
    rs->Update();
    auto seen = second->OpenRecordset("familles");
    EXPECT_EQ(seen->RecordCount(), 1);
    seen->Edit();
    seen->setField("code_postal_responsable", "69500");
    seen->Update();
    rs->Requery();
    EXPECT_EQ(rs->field("code_postal_responsable").toString(), "69500");
    first->Execute("DELETE * FROM familles");
    rs.reset();
    seen.reset();
    first.reset();
    second.reset();
    EXPECT_EQ(files_in(base.folder()), before);
}

TEST(Sharing, AnOpenDatabaseBlocksCompactionKillAndCopyUntilClosed) {
    TemplateBase base;
    auto db = Database::open(base.path());
    EXPECT_TRUE(fichier_verrouillé(base.path()));
    EXPECT_EQ(error_of([&] { CompactDatabase(base.path(), base.file("compacte.mdb")); }), 3045);
    EXPECT_FALSE(QFile::exists(base.file("compacte.mdb")));
    EXPECT_EQ(error_of([&] { Kill(base.path()); }), 70);
    EXPECT_EQ(error_of([&] { FileCopy(base.path(), base.file("copie.mdb")); }), 70);
    EXPECT_TRUE(QFile::exists(base.path()));

    auto second = Database::open(base.path());
    db->Close();
    EXPECT_TRUE(fichier_verrouillé(base.path())); // the second still holds it
    second.reset();
    EXPECT_FALSE(fichier_verrouillé(base.path()));
    EXPECT_EQ(error_of([&] { CompactDatabase(base.path(), base.file("compacte.mdb")); }), 0);
    EXPECT_EQ(error_of([&] { Kill(base.path()); }), 0);
}

TEST(Sharing, AnotherRunningCopyHoldsTheFileToo) {
    TemplateBase base;
    int ready[2], release[2];
    ASSERT_EQ(pipe(ready), 0);
    ASSERT_EQ(pipe(release), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        char c = 0;
        try {
            auto db = Database::open(base.path());
            (void)!write(ready[1], "o", 1);
            (void)!read(release[0], &c, 1);
        } catch (...) {
            (void)!write(ready[1], "x", 1);
        }
        _exit(0);
    }
    char state = 0;
    ASSERT_EQ(read(ready[0], &state, 1), 1);
    EXPECT_EQ(state, 'o');
    EXPECT_TRUE(fichier_verrouillé(base.path()));
    EXPECT_EQ(error_of([&] { CompactDatabase(base.path(), base.file("compacte.mdb")); }), 3045);
    EXPECT_EQ(error_of([&] { Kill(base.path()); }), 70);
    auto mine = Database::open(base.path()); // sharing with the other copy is fine
    EXPECT_EQ(mine->OpenRecordset("niveaux")->RecordCount(), 12);
    (void)!write(release[1], "r", 1);
    int status = 0;
    waitpid(child, &status, 0);
    mine->Close();
    EXPECT_FALSE(fichier_verrouillé(base.path()));
    for (int fd : {ready[0], ready[1], release[0], release[1]})
        close(fd);
}

TEST(Compaction, MakesACompleteValidCopyNoLargerThanTheSource) {
    TemplateBase base;
    {
        auto db = Database::open(base.path());
        auto rs = db->OpenRecordset("adresses");
        for (int i = 0; i < 300; ++i) {
            rs->AddNew();
            rs->setField("détails", QString("rue numéro %1").arg(i));
            rs->Update();
        }
        db->Execute("DELETE * FROM adresses WHERE détails LIKE \"*1*\"");
    }
    const QString target = base.file("compacte.mdb");
    CompactDatabase(base.path(), target);
    EXPECT_LE(QFileInfo(target).size(), QFileInfo(base.path()).size());
    auto source = Database::open(base.path());
    auto copy = Database::open(target);
    EXPECT_EQ(copy->tableNames(), source->tableNames());
    for (const QString& table : source->tableNames())
        EXPECT_EQ(copy->OpenRecordset(table)->RecordCount(), source->OpenRecordset(table)->RecordCount())
            << table.toStdString();
    auto rs = copy->OpenRecordset("SELECT * FROM adresses ORDER BY détails ASC");
    rs->MoveFirst();
    EXPECT_EQ(rs->field("détails").toString(), "rue numéro 0");
}

TEST(Compaction, RefusesAnExistingTargetAMissingSourceAndANonBase) {
    TemplateBase base;
    const QString target = base.copy("existe.mdb");
    const QByteArray before = digest(target);
    EXPECT_EQ(error_of([&] { CompactDatabase(base.path(), target); }), 3204);
    EXPECT_EQ(digest(target), before);
    EXPECT_EQ(error_of([&] { CompactDatabase(base.path(), base.path()); }), 3204);
    EXPECT_EQ(error_of([&] { CompactDatabase(base.file("absent.mdb"), base.file("c.mdb")); }), 3024);
    EXPECT_EQ(error_of([&] { CompactDatabase(base.path(), base.file("absent/c.mdb")); }), 3044);
    QFile noise(base.file("bruit.mdb"));
    noise.open(QIODevice::WriteOnly);
    noise.write(QByteArray(4096, 'z'));
    noise.close();
    EXPECT_EQ(error_of([&] { CompactDatabase(base.file("bruit.mdb"), base.file("c.mdb")); }), 3343);
    EXPECT_FALSE(QFile::exists(base.file("c.mdb")));
}

TEST(Sharing, WhileAFileIsHeldForCompactionNobodyOpensIt) {
    TemplateBase base;
    dao::FileLock compaction;
    ASSERT_EQ(compaction.acquire(base.path(), dao::FileLock::Mode::Exclusive), dao::FileLock::Result::Held);
    EXPECT_EQ(error_of([&] { Database::open(base.path()); }), 3051);
    compaction.release();
    EXPECT_EQ(error_of([&] { Database::open(base.path()); }), 0);
}

TEST(Sharing, AWriterWaitsForAnotherThenGivesUpWithTheLockedError) {
    TemplateBase base;
    auto first = Database::open(base.path());
    auto second = Database::open(base.path());
    first->BeginTrans();
    first->Execute("DELETE * FROM sexe");
    EXPECT_EQ(second->OpenRecordset("sexe")->RecordCount(), 2); // readers still see the last commit
    EXPECT_EQ(error_of([&] { second->Execute("DELETE * FROM genres"); }), 3260);
    first->CommitTrans();
    EXPECT_EQ(second->OpenRecordset("sexe")->RecordCount(), 0);
    EXPECT_EQ(error_of([&] { second->Execute("DELETE * FROM genres"); }), 0);
}

TEST(Sharing, ALongReadingLeavesOthersReadingAndMayWrite) {
    TemplateBase base;
    auto first = Database::open(base.path());
    auto second = Database::open(base.path());
    first->BeginReadTrans();
    EXPECT_EQ(first->OpenRecordset("sexe")->RecordCount(), 2);
    EXPECT_EQ(second->OpenRecordset("sexe")->RecordCount(), 2);
    first->Execute("DELETE * FROM sexe");
    first->CommitTrans();
    EXPECT_EQ(second->OpenRecordset("sexe")->RecordCount(), 0);
}

// A file that another program is writing is busy, not damaged, and the attempt leaves it as it was.
TEST(Sharing, ABaseAnotherProgramHoldsAtOpeningIsLockedNotDamaged) {
    TemplateBase base;
    sqlite3* other = nullptr;
    sqlite3_open(QFile::encodeName(base.path()).constData(), &other);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE; DELETE FROM sexe", nullptr, nullptr, nullptr), SQLITE_OK);
    const QByteArray before = digest(base.path());
    EXPECT_EQ(raised_by([&] { Database::open(base.path()); }).description(), error_text(3260));
    EXPECT_EQ(digest(base.path()), before);
    sqlite3_close(other);
}

// The cleaning of leftovers at the start of a write spares the copy another running writer is making.
TEST(Compaction, TheCleaningOfLeftoversSparesACopyInProgress) {
    TemplateBase base;
    dao::SideFile inProgress(base.file("copie.mdb"));
    const QString killed = base.file(".copie.mdb.1-0.norvane-tmp");
    QFile(killed).open(QIODevice::WriteOnly);
    CompactDatabase(base.path(), base.file("copie.mdb"));
    EXPECT_FALSE(QFile::exists(killed));
    EXPECT_TRUE(QFile::exists(inProgress.path()));
}

} // namespace
