// The Jet dialect of the program's statements, read by the store's own tokenizer.
#include "platform/dao/StoreTestSupport.h"

#include "platform/dao/JetSql.h"
#include "support/Donnees.h"

namespace {

using dao::translate_statement;

// Statements as the program writes them and as the engine receives them.
TEST(Dialect, JetTextIsTranslatedWordForWord) {
    for (const QStringList& c : table_de_données("jet_traductions.tsv"))
        EXPECT_EQ(translate_statement(c[0]), c[1]);
}

TEST(Dialect, MalformedTextIsASyntaxError) {
    for (const char* wrong :
         {"SELECT * FROM t WHERE a = \"x", "SELECT * FROM [t", "SELECT * FROM t WHERE (a = 1",
          "SELECT * FROM t; DELETE FROM t", "SELECT * FROM t WHERE a = ?", "SELECT #x# FROM t"}) {
        SCOPED_TRACE(wrong);
        EXPECT_THROW(translate_statement(wrong), dao::JetSyntaxError);
    }
}

class Execute : public StoreTest {};

TEST_F(Execute, ErrorsCarryJetNumbers) {
    EXPECT_EQ(error_of([&] { db->Execute("DELETE * FROM inexistante"); }), 3078);
    EXPECT_EQ(error_of([&] { db->Execute("DELETE * FROM villes WHERE inconnue = 1"); }), 3061);
    EXPECT_EQ(error_of([&] { db->Execute("DELETE * FORM villes"); }), 3075);
    EXPECT_EQ(error_of([&] { db->Execute("SELECT * FROM villes"); }), 3065);
    EXPECT_EQ(error_of([&] { db->OpenRecordset("SELECT * FROM inexistante"); }), 3078);
    EXPECT_EQ(error_of([&] { db->OpenRecordset("SELECT * FROM villes ORDER BY inconnue"); }), 3061);
    EXPECT_EQ(error_of([&] { db->OpenRecordset("SELECT * FROM villes WHERE"); }), 3075);
}

TEST_F(Execute, AFailedStatementChangesNothing) {
    add("familles", {{"ville_responsable", "Bron"}});
    db->Execute("CREATE UNIQUE INDEX une_famille_par_ville ON familles (ville_responsable)");
    add("familles", {{"ville_responsable", "Lyon"}});
    EXPECT_EQ(error_of([&] {
                  db->Execute(
                      "UPDATE familles SET code_postal_responsable = '1', ville_responsable = 'Bron'");
              }),
              3022);
    EXPECT_EQ(values("SELECT * FROM familles WHERE code_postal_responsable = '1'", "ville_responsable"),
              QStringList{});
}

} // namespace
