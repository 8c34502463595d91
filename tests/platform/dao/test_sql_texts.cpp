// Every SQL text the program passes to the store runs on the template as written.
#include "platform/dao/StoreTestSupport.h"

#include "generator/Demonstration.h"

namespace {

class SqlTexts : public StoreTest {
protected:
    void SetUp() override { remplir_démonstration(*db, Démonstration{60, 7}); }
};

TEST_F(SqlTexts, BracketedSourcesOfTheSheetScreensOpen) {
    add("école", {});
    for (const char* sql : {"select * from [école]", "select * from [équipe]", "select * from [inspection]",
                            "select * from [paramètres]", "école", "[équipe]"}) {
        SCOPED_TRACE(sql);
        EXPECT_EQ(error_of([&] { db->OpenRecordset(sql); }), 0);
    }
    EXPECT_EQ(db->OpenRecordset("select * from [école]")->RecordCount(), 2);
}

TEST_F(SqlTexts, LookupSearchesFindTheirValue) {
    add("adresses", {{"détails", "quai des Écluses"}});
    add("assurances", {{"détails", "Garantie scolaire"}});
    EXPECT_EQ(values("SELECT * FROM adresses WHERE détails LIKE \"quai des écluses\"", "détails"),
              QStringList{"quai des Écluses"});
    EXPECT_EQ(values("SELECT * FROM assertions WHERE détails LIKE \"OUI\"", "détails"), QStringList{"oui"});
    EXPECT_EQ(values("SELECT * FROM assurances WHERE détails LIKE \"garantie*\"", "détails").size(), 1);
    EXPECT_EQ(values("SELECT * FROM langues_vivantes WHERE détails LIKE \"anglais\"", "détails"),
              QStringList{"Anglais"});
    EXPECT_EQ(values("SELECT * FROM sexe WHERE détails LIKE \"féminin\"", "détails"), QStringList{"Féminin"});
    EXPECT_EQ(values("SELECT * FROM situations_familiales WHERE détails LIKE \"Pacsés\"", "détails"),
              QStringList{"Pacsés"});
    auto rs = db->OpenRecordset("SELECT détails FROM situations_familiales WHERE détails LIKE \"veuve\"");
    ASSERT_EQ(rs->fields().size(), 1u);
    EXPECT_EQ(rs->field("détails").toString(), "Veuve");
    EXPECT_EQ(values("SELECT * FROM sexe WHERE détails LIKE \"autre\"", "détails"), QStringList{});
}

TEST_F(SqlTexts, EmptyingEachTableLeavesItEmptyAndTheOthersWhole) {
    for (const char* table : {"familles", "élèves", "adresses", "assurances", "école", "équipe", "hôpitaux",
                              "inspection", "médecins", "villes"}) {
        SCOPED_TRACE(table);
        add(table, {});
        const int niveaux = db->OpenRecordset("niveaux")->RecordCount();
        db->Execute(QString("DELETE * FROM ") + table);
        EXPECT_EQ(db->OpenRecordset(table)->RecordCount(), 0);
        EXPECT_EQ(db->OpenRecordset("niveaux")->RecordCount(), niveaux);
    }
}

} // namespace
