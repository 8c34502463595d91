// The recordset behaves as the screens' data sources expect of a dynaset. Moves, adds, saves and
// deletes as the screens use them are tested through the frame; here, what the frame does not reach.
#include "platform/dao/StoreTestSupport.h"

namespace {

class Dynaset : public StoreTest {
protected:
    void SetUp() override {
        for (const char* m : {"000001", "000002", "000003"})
            addPupil(m, QString("Nom") + m);
        rs = db->OpenRecordset("SELECT * FROM élèves ORDER BY matricule ASC");
    }
    std::unique_ptr<Recordset> rs;
    QString current() const { return rs->field("matricule").toString(); }
};

// Beyond either end, or on an empty table, there is no current record.
TEST_F(Dynaset, BeyondTheEndsAndOnAnEmptyTableThereIsNoCurrentRecord) {
    rs->MoveLast();
    rs->MoveNext();
    EXPECT_TRUE(rs->isEOF());
    EXPECT_EQ(rs->AbsolutePosition(), -1);
    EXPECT_EQ(error_of([&] { rs->field("matricule"); }), 3021);
    EXPECT_EQ(error_of([&] { rs->MoveNext(); }), 3021);
    rs->MoveFirst();
    rs->MovePrevious();
    EXPECT_TRUE(rs->isBOF());
    EXPECT_EQ(error_of([&] { rs->MovePrevious(); }), 3021);
    auto empty = db->OpenRecordset("médecins");
    EXPECT_TRUE(empty->isBOF() && empty->isEOF());
    for (const auto& action : std::initializer_list<std::function<void()>>{
             [&] { empty->MoveFirst(); }, [&] { empty->MoveLast(); }, [&] { empty->Edit(); },
             [&] { empty->Delete(); }, [&] { empty->Bookmark(); }, [&] { rs->LastModified(); }})
        EXPECT_EQ(error_of(action), 3021);
}

TEST_F(Dynaset, EditWritesOnUpdateWhileCancelUpdateOrAMoveForgets) {
    EXPECT_EQ(error_of([&] { rs->Update(); }), 3020) << "no AddNew nor Edit yet";
    EXPECT_EQ(error_of([&] { rs->setField("nom_élève", "x"); }), 3020);
    rs->Edit();
    rs->setField("nom_élève", "Perdu");
    rs->MoveNext();
    rs->MoveFirst();
    EXPECT_EQ(rs->field("nom_élève").toString(), "Nom000001");
    rs->Edit();
    rs->setField("nom_élève", "Changé");
    rs->CancelUpdate();
    EXPECT_EQ(rs->field("nom_élève").toString(), "Nom000001");
    rs->Edit();
    rs->setField("nom_élève", "Changé");
    rs->Update();
    EXPECT_EQ(values("SELECT * FROM élèves WHERE matricule = '000001'", "nom_élève"), QStringList{"Changé"});
}

// A deleted row is a hole that moves skip, here or in another data source; a new unsaved row cannot be
// deleted.
TEST_F(Dynaset, ADeletedRowIsAHoleThatMovesSkip) {
    rs->MoveNext();
    rs->Delete();
    EXPECT_EQ(error_of([&] { rs->Edit(); }), 3167);
    EXPECT_EQ(rs->RecordCount(), 2);
    rs->MoveNext();
    EXPECT_EQ(current(), "000003");
    EXPECT_EQ(rs->AbsolutePosition(), 1);
    rs->MovePrevious();
    EXPECT_EQ(current(), "000001");
    rs->AddNew();
    EXPECT_EQ(error_of([&] { rs->Delete(); }), 3021);
    rs->CancelUpdate();

    auto other = db->OpenRecordset("SELECT * FROM élèves ORDER BY matricule ASC");
    rs->Edit();
    other->Delete();
    rs->setField("nom_élève", "Trop tard");
    EXPECT_EQ(error_of([&] { rs->Update(); }), 3167);
    other->MoveLast();
    other->Delete();
    EXPECT_EQ(db->OpenRecordset("élèves")->RecordCount(), 0);
}

// A duplicate matricule is refused and the row stays edited; pupils without matricule may be several.
TEST_F(Dynaset, OnlyAMatriculeGivenTwiceIsRefused) {
    rs->AddNew();
    rs->setField("matricule", "000002");
    EXPECT_EQ(error_of([&] { rs->Update(); }), 3022);
    EXPECT_EQ(rs->field("matricule").toString(), "000002");
    rs->setField("matricule", "");
    rs->Update();
    for (const QVariant& aucun : {QVariant(QString("")), QVariant(QString("")), QVariant()}) {
        rs->AddNew();
        rs->setField("matricule", aucun);
        rs->Update();
    }
    EXPECT_EQ(db->OpenRecordset("élèves")->RecordCount(), 7);
}

TEST_F(Dynaset, ARecordsetOfAClosedDatabaseIsNoLongerUsableAndSelectedColumnsAreTheOnlyFields) {
    auto names = db->OpenRecordset("SELECT nom_élève, matricule FROM élèves ORDER BY matricule DESC");
    ASSERT_EQ(names->fields().size(), 2u);
    EXPECT_EQ(names->fields()[0].name, "nom_élève");
    EXPECT_EQ(names->field("matricule").toString(), "000003");
    EXPECT_EQ(error_of([&] { names->field("prénom_élève"); }), 3265);
    db->Close();
    EXPECT_EQ(error_of([&] { rs->MoveNext(); }), 3420);
    EXPECT_EQ(error_of([&] { db->OpenRecordset("élèves"); }), 3420);
    EXPECT_EQ(error_of([&] { db->Execute("DELETE * FROM élèves"); }), 3420);
}

} // namespace
