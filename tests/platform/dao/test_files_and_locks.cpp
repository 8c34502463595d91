// Opening files that are missing, damaged or held, compaction, and the locks that other copies see.
#include "platform/dao/StoreTestSupport.h"

#include "platform/dao/FileLock.h"
#include "platform/dao/SideFile.h"
#include "platform/files/Files.h"

#include <QDir>
#include <QFile>
#include <sqlite3.h>

namespace {

QStringList files_in(const QString& folder) {
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

// A fresh copy of the template in a folder of its own, not opened.
class FileTest : public ::testing::Test {
protected:
    WorkFolder dossier;
    const QString base = copie_du_modèle(dossier);
};
using OpeningFiles = FileTest;
using Sharing = FileTest;
using Compaction = FileTest;

// A missing file is 3024 and names the file, a missing folder 3044; any extension opens.
TEST_F(OpeningFiles, AMissingFileIs3024AndAMissingFolder3044) {
    EXPECT_EQ(error_of([&] { Database::open(dossier.file("absent/base.mdb")); }), 3044);
    EXPECT_EQ(error_of([&] { Database::open(""); }), 3024);
    const VbError absent = raised_by([&] { Database::open(dossier.file("absent.mdb")); });
    EXPECT_EQ(absent.number(), 3024);
    EXPECT_TRUE(absent.description().contains("absent.mdb")) << absent.description().toStdString();
    EXPECT_EQ(Database::open(copie_du_modèle(dossier, "modèle.mdz"))->tableNames().size(), 21);
}

TEST_F(OpeningFiles, WhatIsNoBaseIs3343AndStaysUntouched) {
    const QByteArray bruit(64 * 1024, '\x5a');
    const QString abîmée = dossier.write("abîmée.mdb", bruit);
    dossier.write("vide.mdb", "");
    QDir(dossier.path()).mkdir("dossier.mdb");
    const QStringList before = files_in(dossier.path());
    for (const char* name : {"abîmée.mdb", "vide.mdb", "dossier.mdb"})
        EXPECT_EQ(error_of([&] { Database::open(dossier.file(name)); }), 3343) << name;
    EXPECT_EQ(contentOf(abîmée), bruit);
    EXPECT_EQ(files_in(dossier.path()), before);
    EXPECT_FALSE(fichier_verrouillé(abîmée));

    QFile body(base);
    ASSERT_TRUE(body.open(QIODevice::ReadWrite));
    body.seek(100);
    body.write(QByteArray(8000, '\x5a')); // the first pages, table list included
    body.close();
    EXPECT_EQ(error_of([&] { Database::open(base)->OpenRecordset("élèves"); }), 3343);
}

TEST_F(Sharing, SeveralDatabasesOnOneFileWorkSideBySideAndLeaveNoLockFile) {
    const QStringList before = files_in(dossier.path());
    auto first = Database::open(base);
    auto second = Database::open(base);
    auto rs = first->OpenRecordset("familles");
    rs->AddNew();
    rs->setField("ville_responsable", "Bron");
    rs->Update();
    auto seen = second->OpenRecordset("familles");
    seen->Edit();
    seen->setField("code_postal_responsable", "69500");
    seen->Update();
    rs->Requery();
    EXPECT_EQ(rs->field("code_postal_responsable").toString(), "69500");
    rs.reset();
    seen.reset();
    first.reset();
    second.reset();
    EXPECT_EQ(files_in(dossier.path()), before);
}

TEST_F(Sharing, AnOpenDatabaseBlocksCompactionKillAndCopyUntilClosed) {
    auto db = Database::open(base);
    EXPECT_TRUE(fichier_verrouillé(base));
    EXPECT_EQ(error_of([&] { CompactDatabase(base, dossier.file("compacte.mdb")); }), 3045);
    EXPECT_FALSE(QFile::exists(dossier.file("compacte.mdb")));
    EXPECT_EQ(error_of([&] { Kill(base); }), 70);
    EXPECT_EQ(error_of([&] { FileCopy(base, dossier.file("copie.mdb")); }), 70);
    EXPECT_TRUE(QFile::exists(base));

    auto second = Database::open(base);
    db->Close();
    EXPECT_TRUE(fichier_verrouillé(base)); // the second still holds it
    second.reset();
    EXPECT_FALSE(fichier_verrouillé(base));
    EXPECT_EQ(error_of([&] { CompactDatabase(base, dossier.file("compacte.mdb")); }), 0);
    EXPECT_EQ(error_of([&] { Kill(base); }), 0);
}

TEST_F(Compaction, MakesACompleteValidCopyNoLargerThanTheSource) {
    {
        auto db = Database::open(base);
        auto rs = db->OpenRecordset("adresses");
        for (int i = 0; i < 300; ++i) {
            rs->AddNew();
            rs->setField("détails", QString("rue numéro %1").arg(i));
            rs->Update();
        }
        db->Execute("DELETE * FROM adresses WHERE détails LIKE \"*1*\"");
    }
    const QString target = dossier.file("compacte.mdb");
    CompactDatabase(base, target);
    EXPECT_LE(QFileInfo(target).size(), QFileInfo(base).size());
    auto source = Database::open(base);
    auto copy = Database::open(target);
    EXPECT_EQ(copy->tableNames(), source->tableNames());
    for (const QString& table : source->tableNames())
        EXPECT_EQ(copy->OpenRecordset(table)->RecordCount(), source->OpenRecordset(table)->RecordCount())
            << table.toStdString();
    auto rs = copy->OpenRecordset("SELECT * FROM adresses ORDER BY détails ASC");
    rs->MoveFirst();
    EXPECT_EQ(rs->field("détails").toString(), "rue numéro 0");
}

TEST_F(Compaction, RefusesAnExistingTargetAMissingSourceAndANonBase) {
    const QString target = copie_du_modèle(dossier, "existe.mdb");
    const QByteArray before = contentOf(target);
    EXPECT_EQ(error_of([&] { CompactDatabase(base, target); }), 3204);
    EXPECT_EQ(contentOf(target), before);
    EXPECT_EQ(error_of([&] { CompactDatabase(base, base); }), 3204);
    EXPECT_EQ(error_of([&] { CompactDatabase(dossier.file("absent.mdb"), dossier.file("c.mdb")); }), 3024);
    EXPECT_EQ(error_of([&] { CompactDatabase(base, dossier.file("absent/c.mdb")); }), 3044);
    const QString bruit = dossier.write("bruit.mdb", QByteArray(4096, 'z'));
    EXPECT_EQ(error_of([&] { CompactDatabase(bruit, dossier.file("c.mdb")); }), 3343);
    EXPECT_FALSE(QFile::exists(dossier.file("c.mdb")));
}

TEST_F(Sharing, WhileAFileIsHeldForCompactionNobodyOpensIt) {
    dao::FileLock compaction;
    ASSERT_EQ(compaction.acquire(base, dao::FileLock::Mode::Exclusive), dao::FileLock::Result::Held);
    EXPECT_EQ(error_of([&] { Database::open(base); }), 3051);
    compaction.release();
    EXPECT_EQ(error_of([&] { Database::open(base); }), 0);
}

TEST_F(Sharing, AWriterWaitsForAnotherThenGivesUpWithTheLockedError) {
    auto first = Database::open(base);
    auto second = Database::open(base);
    first->BeginTrans();
    first->Execute("DELETE * FROM sexe");
    EXPECT_EQ(second->OpenRecordset("sexe")->RecordCount(), 2); // readers still see the last commit
    EXPECT_EQ(error_of([&] { second->Execute("DELETE * FROM genres"); }), 3260);
    first->CommitTrans();
    EXPECT_EQ(second->OpenRecordset("sexe")->RecordCount(), 0);
    EXPECT_EQ(error_of([&] { second->Execute("DELETE * FROM genres"); }), 0);
}

TEST_F(Sharing, ALongReadingLeavesOthersReadingAndMayWrite) {
    auto first = Database::open(base);
    auto second = Database::open(base);
    first->BeginReadTrans();
    EXPECT_EQ(first->OpenRecordset("sexe")->RecordCount(), 2);
    EXPECT_EQ(second->OpenRecordset("sexe")->RecordCount(), 2);
    first->Execute("DELETE * FROM sexe");
    first->CommitTrans();
    EXPECT_EQ(second->OpenRecordset("sexe")->RecordCount(), 0);
}

// A file that another program is writing is busy, not damaged, and the attempt leaves it as it was.
TEST_F(Sharing, ABaseAnotherProgramHoldsAtOpeningIsLockedNotDamaged) {
    sqlite3* other = nullptr;
    sqlite3_open(QFile::encodeName(base).constData(), &other);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE; DELETE FROM sexe", nullptr, nullptr, nullptr), SQLITE_OK);
    const QByteArray before = contentOf(base);
    EXPECT_EQ(raised_by([&] { Database::open(base); }).description(), error_text(3260));
    EXPECT_EQ(contentOf(base), before);
    sqlite3_close(other);
}

// The cleaning of leftovers at the start of a write spares the copy another running writer is making.
TEST_F(Compaction, TheCleaningOfLeftoversSparesACopyInProgress) {
    dao::SideFile inProgress(dossier.file("copie.mdb"));
    const QString killed = dossier.file(".copie.mdb.1-0.norvane-tmp");
    QFile(killed).open(QIODevice::WriteOnly);
    CompactDatabase(base, dossier.file("copie.mdb"));
    EXPECT_FALSE(QFile::exists(killed));
    EXPECT_TRUE(QFile::exists(inProgress.path()));
}

} // namespace
