// Every SQL text the program passes to the store runs on the template as written.
#include "platform/dao/StoreTestSupport.h"

#include "generator/Demonstration.h"

namespace {

const QStringList pupil_orders = {"matricule",          "date_naissance_élève",   "date_inscription_élève",
                                  "nationalité_élève",  "référence_classe_élève", "niveau_classe_élève",
                                  "cycle_classe_élève", "ville_résidence"};

class SqlTexts : public StoreTest {
protected:
    void SetUp() override { remplir_démonstration(*db, Démonstration{60, 7}); }
};

TEST_F(SqlTexts, PupilOrdersOpenOnTheWholeTableInTheirOrder) {
    for (const QString& column : pupil_orders) {
        for (const char* direction : {" ASC", " DESC"}) {
            SCOPED_TRACE((column + direction).toStdString());
            auto rs = db->OpenRecordset("SELECT * FROM élèves ORDER BY " + column + direction);
            EXPECT_EQ(rs->RecordCount(), 60);
            const QStringList got = values(*rs, column);
            QStringList sorted = got;
            const bool dates = column.startsWith(u"date");
            const bool descending = QString(direction) == " DESC";
            const auto before = [&](const QString& a, const QString& b) {
                if (dates)
                    return QDate::fromString(a, "dd/MM/yyyy") < QDate::fromString(b, "dd/MM/yyyy");
                return french_key(a) < french_key(b);
            };
            std::stable_sort(sorted.begin(), sorted.end(), [&](const QString& a, const QString& b) {
                return descending ? before(b, a) : before(a, b);
            });
            EXPECT_EQ(got, sorted);
        }
    }
}

TEST_F(SqlTexts, FamilyOrdersOpen) {
    for (const char* sql :
         {"SELECT * FROM familles ORDER BY nom_responsable_légal ASC, prénom_responsable_légal ASC",
          "SELECT * FROM familles ORDER BY nom_responsable_légal DESC, prénom_responsable_légal DESC",
          "SELECT * FROM familles ORDER BY référence_famille ASC",
          "SELECT * FROM familles ORDER BY référence_famille DESC"}) {
        SCOPED_TRACE(sql);
        auto rs = db->OpenRecordset(sql);
        EXPECT_GT(rs->RecordCount(), 20);
    }
    auto rs = db->OpenRecordset("SELECT * FROM familles ORDER BY référence_famille DESC");
    rs->MoveFirst();
    const QString highest = rs->field("référence_famille").toString();
    rs->MoveLast();
    EXPECT_EQ(rs->field("référence_famille").toString(), "000001");
    EXPECT_GT(highest, QString("000001"));
}

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

TEST_F(SqlTexts, ChildrenOfAFamilyAreFoundByTheirReference) {
    auto famille = db->OpenRecordset("SELECT * FROM familles ORDER BY référence_famille ASC");
    famille->MoveFirst();
    const QString reference = famille->field("référence_famille").toString();
    auto children =
        db->OpenRecordset("SELECT * FROM élèves WHERE référence_famille LIKE \"" + reference + "\"");
    ASSERT_GT(children->RecordCount(), 0);
    for (const QString& r : values(*children, "référence_famille"))
        EXPECT_EQ(r, reference);
}

} // namespace
