// The criteria the screens build find what a user expects, and fail as the engine does on a stray quote.
#include "platform/dao/StoreTestSupport.h"

using namespace Qt::StringLiterals;

namespace {

class Criteria : public StoreTest {
protected:
    void SetUp() override {
        addPupil("000042", "DUPONT", "Léa");
        addPupil("000007", "Martin", "Hugo");
        addPupil("000142", "Dupuis", "Zoé");
        addPupil("000043", "Dupont", "Adam");
        pupils = db->OpenRecordset("SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC");
    }
    std::unique_ptr<Recordset> pupils;

    QString found(const QString& criterion) {
        pupils->MoveFirst();
        pupils->FindFirst(criterion);
        return pupils->NoMatch() ? u"aucun"_s : pupils->field("prénom_élève").toString();
    }
};

// A matricule is matched whole unless a wildcard is typed; a name prefix finds the first in the present
// order whatever the case.
TEST_F(Criteria, MatriculeAndNamePrefixFindTheFirstInThePresentOrder) {
    const std::pair<const char*, const char*> cas[] = {
        {"matricule like '42'", "aucun"},      {"matricule like '000042'", "Léa"},
        {"matricule like '*42'", "Léa"}, // DUPONT Léa comes before Dupuis in alphabetical order
        {"matricule like '0001?2'", "Zoé"},    {"nom_élève like 'dup*'", "Adam"},
        {"nom_élève like 'DUPU*'", "Zoé"},     {"nom_élève like 'Mart*'", "Hugo"},
        {"nom_élève like 'Durand*'", "aucun"},
    };
    for (const auto& [critère, prénom] : cas)
        EXPECT_EQ(found(critère), prénom) << critère;
    // A failed search leaves the current row.
    pupils->MoveLast();
    pupils->FindFirst("nom_élève like 'Zz*'");
    EXPECT_EQ(pupils->field("prénom_élève").toString(), "Hugo");
    pupils = db->OpenRecordset("SELECT * FROM élèves ORDER BY matricule DESC");
    EXPECT_EQ(found("nom_élève like 'dupont*'"), "Adam"); // 000043 comes before 000042
}

TEST_F(Criteria, AnApostropheOrAMalformedCriterionIsASyntaxErrorAndNothingRunsBeyondIt) {
    pupils->MoveLast();
    EXPECT_EQ(error_of([&] { pupils->FindFirst("nom_élève like 'D'ARC*'"); }), 3077);
    EXPECT_EQ(error_of([&] { pupils->FindFirst("matricule like 'O'Brien'"); }), 3077);
    EXPECT_EQ(pupils->field("prénom_élève").toString(), "Hugo");
    EXPECT_EQ(error_of([&] { pupils->FindFirst("nom_élève like"); }), 3077);
    EXPECT_EQ(error_of([&] { pupils->FindFirst("(nom_élève = 'a'"); }), 3077);
    EXPECT_EQ(error_of([&] { pupils->FindFirst("nom_élève = 'a'; DELETE FROM élèves"); }), 3077);
    EXPECT_EQ(error_of([&] { pupils->FindFirst(""); }), 3077);
    EXPECT_EQ(db->OpenRecordset("élèves")->RecordCount(), 4);
}

} // namespace
