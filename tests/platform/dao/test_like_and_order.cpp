// LIKE with Jet's wildcards, and text order and equality as a French user expects them.
#include "platform/dao/StoreTestSupport.h"

#include "platform/dao/FrenchText.h"
#include "support/Donnees.h"

#include <QFile>
#include <sqlite3.h>

namespace {

TEST(JetLike, WildcardsClassesCaseAndAccents) {
    const dao::FrenchCollation collation;
    for (const QStringList& c : table_de_données("jet_like.tsv"))
        EXPECT_EQ(collation.like(c[0], c[1]), c[2] == "oui") << (c[0] + " LIKE " + c[1]).toStdString();
}

class FrenchOrder : public StoreTest {};

// Accents, case and other alphabets sort beside their letter; the first name decides between surnames
// that differ in case only.
TEST_F(FrenchOrder, NamesSortBesideTheirLettersWhateverTheirAccentsCaseOrAlphabet) {
    for (const char* name : {"Eric", "Zoé", "émile", "Emile", "Édith", "Ève", "Abel", "Œdipe", "Oscar", "Ode",
                             "Trần", "Ștefănescu", "Dè", "Dé", "Travers", "Tran", "d’Artagnan", "Stein"})
        addPupil("", name);
    EXPECT_EQ(values("SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC", "nom_élève"),
              (QStringList{"Abel", "d’Artagnan", "Dé", "Dè", "Édith", "Emile", "émile", "Eric", "Ève", "Ode",
                           "Œdipe", "Oscar", "Ștefănescu", "Stein", "Tran", "Trần", "Travers", "Zoé"}));
    db->Execute("DELETE * FROM élèves");
    for (const auto& [nom, prénom] :
         {std::pair{"DUPONT", "Léa"}, {"Dupont", "Adam"}, {"dupont", "Zoé"}, {"Dupont", "Adam"}})
        addPupil("", nom, prénom);
    EXPECT_EQ(values("SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC", "prénom_élève"),
              (QStringList{"Adam", "Adam", "Léa", "Zoé"}));
    EXPECT_EQ(values("SELECT * FROM élèves ORDER BY nom_élève DESC, prénom_élève DESC", "prénom_élève"),
              (QStringList{"Zoé", "Léa", "Adam", "Adam"}));
}

TEST_F(FrenchOrder, EqualValuesKeepTheOrderTheyWereWrittenIn) {
    for (int i = 1; i <= 6; ++i)
        add("élèves",
            {{"matricule", QString("00000%1").arg(i)}, {"ville_résidence", i % 2 ? "Lyon" : "Bron"}});
    const QStringList first = values("SELECT * FROM élèves ORDER BY ville_résidence ASC", "matricule");
    EXPECT_EQ(first, (QStringList{"000002", "000004", "000006", "000001", "000003", "000005"}));
    EXPECT_EQ(values("SELECT * FROM élèves ORDER BY ville_résidence DESC", "matricule"),
              (QStringList{"000005", "000003", "000001", "000006", "000004", "000002"}));
    db->Close();
    db = Database::open(chemin);
    EXPECT_EQ(values("SELECT * FROM élèves ORDER BY ville_résidence ASC", "matricule"), first);
}

// Rewrites a base's indexes as another French order would have them (here byte order backwards), with the
// version of that order recorded.
void index_under_another_order(const QString& path) {
    sqlite3* raw = nullptr;
    ASSERT_EQ(sqlite3_open_v2(QFile::encodeName(path).constData(), &raw, SQLITE_OPEN_READWRITE, nullptr),
              SQLITE_OK);
    const auto backwards = [](sqlite3_context* context, int argc, sqlite3_value** argv) {
        std::string key;
        for (int i = 0; i < argc; ++i)
            key += reinterpret_cast<const char*>(sqlite3_value_text(argv[i])) + std::string(1, '\0');
        for (char& c : key)
            c = static_cast<char>(~c);
        sqlite3_result_blob(context, key.data(), static_cast<int>(key.size()), SQLITE_TRANSIENT);
    };
    const auto backwardsText = [](void*, int na, const void* a, int nb, const void* b) {
        return std::string_view(static_cast<const char*>(b), nb)
            .compare({static_cast<const char*>(a), size_t(na)});
    };
    sqlite3_create_function_v2(raw, "tri_fr", -1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, backwards,
                               nullptr, nullptr, nullptr);
    sqlite3_create_collation_v2(raw, "FR", SQLITE_UTF8, nullptr, backwardsText, nullptr);
    EXPECT_EQ(sqlite3_exec(raw, "REINDEX; PRAGMA user_version = 1", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(raw);
}

TEST_F(FrenchOrder, IndexesOfAnotherOrderAreRebuiltAtOpening) {
    addPupil("000001", "Bernard");
    addPupil("000002", "Abel");
    addPupil("000003", "Zola");
    db->Close();
    index_under_another_order(chemin);
    db = Database::open(chemin);
    const char* alphabetical = "SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC";
    EXPECT_EQ(values(alphabetical, "nom_élève"), (QStringList{"Abel", "Bernard", "Zola"}));
    auto rs = db->OpenRecordset(alphabetical);
    rs->MoveLast();
    rs->Edit();
    rs->setField("matricule", "000009"); // finds its old entries in the rebuilt indexes
    rs->Update();
    rs->Delete();
    EXPECT_EQ(values(alphabetical, "matricule"), (QStringList{"000002", "000001"}));
}

TEST_F(FrenchOrder, CaseOnlyBreaksTiesLowerCaseFirstAndDigitsSortAsText) {
    for (const char* ville : {"BRON", "Bron", "bron", "Brignais", "10", "9", "2"})
        add("élèves", {{"ville_résidence", ville}});
    EXPECT_EQ(values("SELECT * FROM élèves ORDER BY ville_résidence ASC", "ville_résidence"),
              (QStringList{"10", "2", "9", "Brignais", "bron", "Bron", "BRON"}));
}

TEST_F(FrenchOrder, EqualityInAQueryIgnoresCaseAndAccents) {
    addPupil("000001", "Hélène");
    addPupil("000002", "Helene");
    addPupil("000003", "Hélèna");
    addPupil("000004", "d’Artagnan");
    EXPECT_EQ(db->OpenRecordset("SELECT * FROM élèves WHERE nom_élève = \"HELENE\"")->RecordCount(), 2);
    EXPECT_EQ(db->OpenRecordset("SELECT * FROM élèves WHERE nom_élève <> 'hélène'")->RecordCount(), 2);
    EXPECT_EQ(db->OpenRecordset("SELECT * FROM élèves WHERE nom_élève = \"D'ARTAGNAN\"")->RecordCount(), 1);
}

} // namespace

namespace {

int sign(int v) {
    return (v > 0) - (v < 0);
}

std::string key_of(const dao::FrenchCollation& collation, const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    const std::optional<std::string_view> column = std::string_view(utf8.constData(), utf8.size());
    return collation.sortKey({&column, 1});
}

TEST(SortKey, OrdersBytesAsFrenchOrderDoes) {
    const QStringList words = {"",      "a",     "A",       "à",       "b",       "cote",  "côte", "coté",
                               "côté",  "coter", "Cote",    "e",       "é",       "É",     "ea",   "Émile",
                               "Emile", "emile", "Eric",    "oe",      "œ",       "Œdipe", "Ode",  "10",
                               "9",     "z",     "Zoé",     "ß",       "ss",      "Σ",     "σ",    "a b",
                               "a-b",   "ab",    "e\u0301", "\u00e9t", "x\u0001", "d'a",   "d’a",  "Ștefan"};
    const dao::FrenchCollation collation;
    for (const QString& a : words)
        for (const QString& b : words) {
            const int byKey = sign(key_of(collation, a).compare(key_of(collation, b)));
            EXPECT_EQ(byKey, sign(collation.compare(a, b))) << a.toStdString() << " | " << b.toStdString();
        }
}

TEST(SortKey, ColumnsTogetherCompareAllLettersBeforeAnyAccentOrCase) {
    const dao::FrenchCollation collation;
    auto key = [&collation](std::optional<std::string_view> nom, std::optional<std::string_view> prénom) {
        const std::optional<std::string_view> columns[] = {nom, prénom};
        return collation.sortKey(columns);
    };
    EXPECT_LT(key("Dupont", "Adam"), key("DUPONT", "Léa"));
    EXPECT_LT(key("DUPONT", "Adam"), key("Dupont", "Léa"));
    EXPECT_LT(key("Dupont", "Adam"), key("DUPONT", "Adam"));
    EXPECT_LT(key("Du", "Pont"), key("Dup", "Ont"));
    EXPECT_EQ(key(std::nullopt, "Adam"), key("", "Adam"));
}

} // namespace
