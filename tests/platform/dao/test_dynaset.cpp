// The recordset behaves as the screens' data sources expect of a dynaset.
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

TEST_F(Dynaset, OpensOnTheFirstRowAndMovesBothWays) {
    EXPECT_EQ(current(), "000001");
    EXPECT_EQ(rs->AbsolutePosition(), 0);
    EXPECT_FALSE(rs->isBOF());
    rs->MoveNext();
    rs->MoveNext();
    EXPECT_EQ(current(), "000003");
    EXPECT_EQ(rs->AbsolutePosition(), 2);
    rs->MoveNext();
    EXPECT_TRUE(rs->isEOF());
    EXPECT_EQ(rs->AbsolutePosition(), -1);
    EXPECT_EQ(error_of([&] { rs->field("matricule"); }), 3021);
    EXPECT_EQ(error_of([&] { rs->MoveNext(); }), 3021);
    rs->MovePrevious();
    EXPECT_EQ(current(), "000003");
    rs->MoveFirst();
    rs->MovePrevious();
    EXPECT_TRUE(rs->isBOF());
    EXPECT_EQ(error_of([&] { rs->MovePrevious(); }), 3021);
    rs->MoveNext();
    EXPECT_EQ(current(), "000001");
}

TEST_F(Dynaset, AnEmptyTableIsAtBothEndsAndHasNoCurrentRecord) {
    auto empty = db->OpenRecordset("médecins");
    EXPECT_TRUE(empty->isBOF());
    EXPECT_TRUE(empty->isEOF());
    EXPECT_EQ(empty->RecordCount(), 0);
    EXPECT_EQ(empty->AbsolutePosition(), -1);
    EXPECT_EQ(error_of([&] { empty->MoveFirst(); }), 3021);
    EXPECT_EQ(error_of([&] { empty->MoveLast(); }), 3021);
    EXPECT_EQ(error_of([&] { empty->Edit(); }), 3021);
    EXPECT_EQ(error_of([&] { empty->Delete(); }), 3021);
    EXPECT_EQ(error_of([&] { empty->Bookmark(); }), 3021);
}

TEST_F(Dynaset, AnAddedRowJoinsTheEndUntilARequery) {
    rs->AddNew();
    EXPECT_EQ(rs->editMode(), EditMode::AddNew);
    EXPECT_EQ(rs->AbsolutePosition(), -1);
    EXPECT_TRUE(rs->field("matricule").isNull());
    rs->setField("matricule", "000000");
    rs->Update();
    EXPECT_EQ(rs->editMode(), EditMode::None);
    EXPECT_EQ(current(), "000001"); // the row current before AddNew stays current
    EXPECT_EQ(rs->RecordCount(), 4);
    rs->MoveLast();
    EXPECT_EQ(current(), "000000");
    EXPECT_EQ(rs->AbsolutePosition(), 3);
    rs->Requery();
    EXPECT_EQ(current(), "000000"); // in matricule order it now comes first
}

TEST_F(Dynaset, BookmarkOfLastModifiedMakesTheSavedRowCurrent) {
    EXPECT_EQ(error_of([&] { rs->LastModified(); }), 3021) << "before any write";
    rs->AddNew();
    rs->setField("matricule", "000004");
    rs->Update();
    rs->setBookmark(rs->LastModified());
    EXPECT_EQ(current(), "000004");
    EXPECT_EQ(rs->AbsolutePosition(), 3);

    rs->MoveFirst();
    rs->MoveNext();
    rs->Edit();
    rs->setField("nom_élève", "Modifié");
    rs->Update();
    rs->MoveLast();
    rs->setBookmark(rs->LastModified());
    EXPECT_EQ(current(), "000002");
    EXPECT_EQ(rs->field("nom_élève").toString(), "Modifié");

    const QByteArray mark = rs->Bookmark();
    rs->MoveFirst();
    rs->setBookmark(mark);
    EXPECT_EQ(current(), "000002");
    EXPECT_EQ(error_of([&] { rs->setBookmark("n'importe quoi"); }), 3159);
}

TEST_F(Dynaset, EditWritesOnUpdateWhileCancelUpdateOrAMoveForgets) {
    EXPECT_EQ(error_of([&] { rs->Update(); }), 3020) << "no AddNew nor Edit yet";
    EXPECT_EQ(error_of([&] { rs->CancelUpdate(); }), 3020);
    EXPECT_EQ(error_of([&] { rs->setField("nom_élève", "x"); }), 3020);
    rs->Edit();
    rs->setField("nom_élève", "Perdu");
    rs->MoveNext();
    EXPECT_EQ(rs->editMode(), EditMode::None);
    rs->MoveFirst();
    EXPECT_EQ(rs->field("nom_élève").toString(), "Nom000001");
    rs->Edit();
    rs->setField("nom_élève", "Changé");
    EXPECT_EQ(rs->field("nom_élève").toString(), "Changé");
    rs->CancelUpdate();
    EXPECT_EQ(rs->field("nom_élève").toString(), "Nom000001");
    rs->Edit();
    rs->setField("nom_élève", "Changé");
    rs->Update();
    EXPECT_EQ(values("SELECT * FROM élèves WHERE matricule = '000001'", "nom_élève"), QStringList{"Changé"});
}

TEST_F(Dynaset, ADeletedRowIsAHoleThatMovesSkip) {
    rs->MoveNext();
    rs->Delete();
    EXPECT_EQ(error_of([&] { rs->field("matricule"); }), 3167);
    EXPECT_EQ(error_of([&] { rs->Edit(); }), 3167);
    EXPECT_EQ(rs->AbsolutePosition(), -1);
    EXPECT_EQ(rs->RecordCount(), 2);
    rs->MoveNext();
    EXPECT_EQ(current(), "000003");
    EXPECT_EQ(rs->AbsolutePosition(), 1);
    rs->MovePrevious();
    EXPECT_EQ(current(), "000001");
    EXPECT_EQ(values(*rs, "matricule"), (QStringList{"000001", "000003"}));
    EXPECT_EQ(db->OpenRecordset("élèves")->RecordCount(), 2);
}

// After the last row of the order goes, MoveLast lands on the new last; after the only row, on nothing.
TEST_F(Dynaset, DeletingTheLastRowLandsOnTheNewLastButANewRowCannotBeDeleted) {
    rs->MoveLast();
    rs->Delete();
    rs->MoveNext();
    EXPECT_TRUE(rs->isEOF());
    rs->MoveLast();
    EXPECT_EQ(current(), "000002");
    rs->AddNew();
    EXPECT_EQ(error_of([&] { rs->Delete(); }), 3021) << "a new unsaved row";

    auto one = db->OpenRecordset("SELECT * FROM élèves WHERE matricule = '000002'");
    one->Delete();
    one->MoveNext();
    EXPECT_TRUE(one->isEOF() && one->isBOF());
    EXPECT_EQ(error_of([&] { one->MoveLast(); }), 3021);
    EXPECT_EQ(db->OpenRecordset("élèves")->RecordCount(), 1);
}

TEST_F(Dynaset, ARowDeletedByAnotherDataSourceIsSkippedOrReported) {
    auto other = db->OpenRecordset("SELECT * FROM élèves ORDER BY matricule ASC");
    other->MoveNext();
    other->Delete();
    rs->MoveNext(); // lands beyond the row the other source removed
    EXPECT_EQ(current(), "000003");
    EXPECT_EQ(rs->RecordCount(), 2);
    rs->MoveFirst();
    rs->Edit();
    other->MoveFirst();
    other->Delete();
    rs->setField("nom_élève", "Trop tard");
    EXPECT_EQ(error_of([&] { rs->Update(); }), 3167);
}

TEST_F(Dynaset, AbsolutePositionCanBeSet) {
    rs->setAbsolutePosition(2);
    EXPECT_EQ(current(), "000003");
    EXPECT_EQ(error_of([&] { rs->setAbsolutePosition(3); }), 3001);
    EXPECT_EQ(error_of([&] { rs->setAbsolutePosition(-1); }), 3001);
    EXPECT_EQ(rs->valueAt(1, rs->fieldIndex("matricule")).toString(), "000002");
    EXPECT_TRUE(rs->valueAt(7, 0).isNull());
}

// A duplicate matricule is refused and the row stays edited; pupils without matricule may be several and
// families share a reference.
TEST_F(Dynaset, OnlyAMatriculeGivenTwiceIsRefused) {
    rs->AddNew();
    rs->setField("matricule", "000002");
    EXPECT_EQ(error_of([&] { rs->Update(); }), 3022);
    EXPECT_EQ(rs->editMode(), EditMode::AddNew);
    EXPECT_EQ(rs->field("matricule").toString(), "000002");
    rs->setField("matricule", "000004");
    rs->Update();
    for (int i = 0; i < 2; ++i) {
        rs->AddNew();
        rs->setField("matricule", "");
        rs->Update();
        rs->AddNew();
        rs->Update();
    }
    EXPECT_EQ(db->OpenRecordset("élèves")->RecordCount(), 8);
    add("familles", {{"référence_famille", "000001"}});
    add("familles", {{"référence_famille", "000001"}});
    EXPECT_EQ(db->OpenRecordset("familles")->RecordCount(), 2);
}

TEST_F(Dynaset, FindNextGoesOnFromTheCurrentRow) {
    rs->FindFirst("nom_élève like 'Nom*'");
    EXPECT_EQ(current(), "000001");
    rs->FindNext("nom_élève like 'Nom*'");
    EXPECT_EQ(current(), "000002");
    rs->MoveLast();
    rs->FindNext("nom_élève like 'Nom*'");
    EXPECT_TRUE(rs->NoMatch());
    EXPECT_EQ(current(), "000003");
}

TEST_F(Dynaset, ARecordsetOfAClosedDatabaseIsNoLongerUsable) {
    db->Close();
    EXPECT_FALSE(db->isOpen());
    EXPECT_EQ(error_of([&] { rs->MoveNext(); }), 3420);
    EXPECT_EQ(error_of([&] { db->OpenRecordset("élèves"); }), 3420);
    EXPECT_EQ(error_of([&] { db->Execute("DELETE * FROM élèves"); }), 3420);
}

TEST_F(Dynaset, SelectedColumnsAreTheOnlyFields) {
    auto names = db->OpenRecordset("SELECT nom_élève, matricule FROM élèves ORDER BY matricule DESC");
    ASSERT_EQ(names->fields().size(), 2u);
    EXPECT_EQ(names->fields()[0].name, "nom_élève");
    EXPECT_EQ(names->field("matricule").toString(), "000003");
    EXPECT_EQ(error_of([&] { names->field("prénom_élève"); }), 3265);
}

} // namespace
