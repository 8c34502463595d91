// The template base: its 21 tables with their exact names, sizes that hold the entry limits, and rows.
#include "platform/dao/StoreTestSupport.h"

#include "generator/Demonstration.h"

namespace {

class Template : public StoreTest {
protected:
    FieldInfo column(const QString& table, const QString& name) {
        auto rs = db->OpenRecordset(table);
        const int index = rs->fieldIndex(name);
        EXPECT_GE(index, 0) << table.toStdString() << "." << name.toStdString();
        return index >= 0 ? rs->fields()[index] : FieldInfo{};
    }
};

TEST_F(Template, HasTheTwentyOneTables) {
    QStringList tables = db->tableNames();
    tables.sort();
    QStringList expected = template_tables();
    expected.sort();
    EXPECT_EQ(tables, expected);
}

TEST_F(Template, KeepsTheOddColumnNamesToTheLetter) {
    EXPECT_EQ(column("inspection", "genre_inpecteur").type, FieldType::Text);
    EXPECT_EQ(column("élèves", "champ_paramétable1").type, FieldType::Text);
    EXPECT_EQ(column("paramètres", "intitulé_champ_paramétrable1").type, FieldType::Text);
    EXPECT_EQ(column("élèves", "ainé").type, FieldType::Boolean);
    EXPECT_EQ(column("élèves", "saisine_ccpe_élève").type, FieldType::Text);
    EXPECT_EQ(column("équipe", "adresse2_enseignant").type, FieldType::Text);
    EXPECT_EQ(db->OpenRecordset("élèves")->fields().size(), 60u);
    EXPECT_EQ(db->OpenRecordset("familles")->fields().size(), 44u);
    EXPECT_EQ(db->OpenRecordset("paramètres")->fields().size(), 20u);
    EXPECT_EQ(db->OpenRecordset("documents")->fields().size(), 16u);
}

TEST_F(Template, ColumnsHoldAtLeastTheirEntryLimits) {
    const std::vector<std::tuple<const char*, const char*, int>> limits = {
        {"élèves", "cycle_classe_élève", 1},
        {"élèves", "code_nationalité_élève", 5},
        {"élèves", "sexe_élève", 8},
        {"élèves", "matricule", 10},
        {"élèves", "participation_usep", 20},
        {"élèves", "nom_élève", 30},
        {"élèves", "lieu_naissance_élève", 50},
        {"élèves", "chemin_photo", 254},
        {"familles", "csp_conjoint", 2},
        {"familles", "communication_données", 3},
        {"familles", "référence_famille", 10},
        {"familles", "ville_médecin_traitant", 30},
        {"familles", "adresse_hôpital_préférentiel", 50},
        {"école", "politesse_directeur", 30},
        {"inspection", "titre_inspecteur", 50},
        {"équipe", "référence_classe_enseignant", 5},
        {"documents", "intitulé_bouton", 30},
        {"documents", "post_scriptum", 254},
        {"paramètres", "intitulé_champ_paramétrable10", 20},
        {"paramètres", "infobulle_champ_paramétrable3", 50},
        {"passe", "passe", 10}};
    for (const auto& [table, name, limit] : limits) {
        SCOPED_TRACE(std::string(table) + "." + name);
        const FieldInfo f = column(table, name);
        EXPECT_EQ(f.type, FieldType::Text);
        EXPECT_GE(f.size, limit);
        auto rs = db->OpenRecordset(table);
        rs->AddNew();
        EXPECT_EQ(error_of([&] { rs->setField(name, QString(limit, u'é')); }), 0);
    }
    for (const char* memo : {"observations_générales", "observations_médicales", "champ_paramétable5",
                             "champ_paramétable9", "champ_paramétable10", "référence_famille"})
        EXPECT_EQ(column("élèves", memo).type, FieldType::Memo) << memo;
    EXPECT_EQ(column("familles", "observations_assurance").type, FieldType::Memo);
    for (const char* date : {"date_naissance_élève", "date_inscription_élève", "date_radiation_élève"})
        EXPECT_EQ(column("élèves", date).type, FieldType::Date) << date;
}

TEST_F(Template, LookupValuesFitTheBoxesTheyFeed) {
    EXPECT_LE(column("sexe", "détails").size, column("élèves", "sexe_élève").size);
    EXPECT_LE(column("niveaux", "cycle").size, column("équipe", "cycle_classe_enseignant").size);
    EXPECT_LE(column("niveaux", "code").size, column("équipe", "niveau_classe_enseignant").size);
    EXPECT_LE(column("csp", "code").size, column("familles", "csp_responsable_légal").size);
    EXPECT_LE(column("assertions", "détails").size, column("familles", "communication_données").size);
    EXPECT_LE(column("nationalités", "code").size, column("élèves", "code_nationalité_élève").size);
    EXPECT_LE(column("nationalités", "détails").size, column("élèves", "nationalité_élève").size);
    EXPECT_LE(column("genres", "détails").size, column("familles", "genre_conjoint").size);
    EXPECT_LE(column("langues_vivantes", "détails").size, column("élèves", "langue_vivante_élève").size);
    EXPECT_LE(column("médecins", "ville").size, column("familles", "ville_médecin_traitant").size);
    EXPECT_LE(column("villes", "code_postal").size, column("école", "code_postal_école").size);
}

TEST_F(Template, LookupTablesCarryUsefulFrenchRows) {
    EXPECT_EQ(values("genres", "détails").mid(0, 3), (QStringList{"Monsieur", "Madame", "Mademoiselle"}));
    EXPECT_EQ(values("sexe", "détails"), (QStringList{"Masculin", "Féminin"}));
    EXPECT_EQ(values("assertions", "détails"), (QStringList{"oui", "non"}));
    EXPECT_EQ(values("niveaux", "code"), (QStringList{"TPS", "PS", "MS", "GS", "CP", "CE1", "CE2", "CM1",
                                                      "CM2", "CLIN", "CLIS", "ADA"}));
    for (const QString& cycle : values("niveaux", "cycle"))
        EXPECT_TRUE(cycle == "1" || cycle == "2" || cycle == "3");
    const QStringList csp = values("csp", "code");
    EXPECT_GT(csp.size(), 30);
    for (const QString& code : csp)
        EXPECT_EQ(code.size(), 2);
    EXPECT_TRUE(values("nationalités", "détails").contains("Française"));
    for (const QString& code : values("nationalités", "code"))
        EXPECT_FALSE(code.isEmpty());
    EXPECT_GE(values("situations_familiales", "détails").size(), 5);
    EXPECT_TRUE(values("langues_vivantes", "détails").contains("Anglais"));
}

TEST_F(Template, TownsAreThoseOfFrance) {
    EXPECT_EQ(values("SELECT * FROM villes WHERE code_postal = \"75001\"", "détails"), QStringList{"Paris"});
    EXPECT_EQ(values("SELECT * FROM villes WHERE code_postal = \"94240\"", "détails"),
              QStringList{"L'Haÿ-les-Roses"});
    const int towns = db->OpenRecordset("villes")->RecordCount();
    EXPECT_GT(towns, 30000);
    EXPECT_LT(towns, 60000);
}

TEST_F(Template, ThreeLetterTemplatesAndAnEmptyAccessCode) {
    EXPECT_EQ(values("documents", "intitulé_bouton"),
              (QStringList{"Certificat de scolarité", "Certificat de radiation", "Réunion de parents"}));
    auto passe = db->OpenRecordset("passe");
    EXPECT_EQ(passe->RecordCount(), 1);
    EXPECT_EQ(passe->field("passe").toString(), "");
    for (const char* empty : {"élèves", "familles", "école", "inspection", "équipe", "paramètres"})
        EXPECT_EQ(db->OpenRecordset(empty)->RecordCount(), 0) << empty;
}

TEST(Demonstration, FillsFamiliesAndPupilsThatBelongTogether) {
    TemplateBase base;
    auto db = Database::open(base.path());
    remplir_démonstration(*db, Démonstration{200, 3});
    auto pupils = db->OpenRecordset("SELECT * FROM élèves ORDER BY matricule ASC");
    EXPECT_EQ(pupils->RecordCount(), 200);
    pupils->MoveLast();
    EXPECT_EQ(pupils->field("matricule").toString(), "000200");
    auto families = db->OpenRecordset("familles");
    EXPECT_LT(families->RecordCount(), 200);
    int struck = 0, eldest = 0;
    QSet<QString> references;
    for (pupils->MoveFirst(); !pupils->isEOF(); pupils->MoveNext()) {
        references.insert(pupils->field("référence_famille").toString());
        struck += pupils->field("date_radiation_élève").isNull() ? 0 : 1;
        eldest += pupils->field("ainé").toBool() ? 1 : 0;
        EXPECT_FALSE(pupils->field("nom_élève").toString().isEmpty());
        EXPECT_FALSE(pupils->field("niveau_classe_élève").toString().isEmpty());
    }
    EXPECT_EQ(references.size(), families->RecordCount()); // every family has a child here
    EXPECT_EQ(eldest, families->RecordCount());
    EXPECT_GT(struck, 0);
    for (families->MoveFirst(); !families->isEOF(); families->MoveNext())
        EXPECT_TRUE(references.contains(families->field("référence_famille").toString()));
    EXPECT_GE(db->OpenRecordset("équipe")->RecordCount(), 8);
}

// The values of `columns` in the rows `sql` gives, each row's joined by '|'.
QSet<QString> rows_of(Database& db, const QString& sql, const QStringList& columns) {
    QSet<QString> out;
    for (auto rs = db.OpenRecordset(sql); !rs->isEOF(); rs->MoveNext()) {
        QStringList cells;
        for (const QString& column : columns)
            cells << rs->field(column).toString();
        out.insert(cells.join(u'|'));
    }
    return out;
}

TEST(Demonstration, NamesOnlyRowsOfTheLookups) {
    TemplateBase base;
    auto db = Database::open(base.path());
    remplir_démonstration(*db, Démonstration{60, 5});
    const auto expect_rows_of = [&](const QString& records, const QStringList& fields, const QString& lookup,
                                    const QStringList& columns) {
        const QSet<QString> named = rows_of(*db, records, fields);
        EXPECT_FALSE(named.isEmpty()) << records.toStdString();
        for (const QString& row : named) {
            const QString candidates = QString("SELECT * FROM %1 WHERE %2 = \"%3\"")
                                           .arg(lookup, columns[0], row.section(u'|', 0, 0));
            EXPECT_TRUE(rows_of(*db, candidates, columns).contains(row)) << qPrintable(lookup + ": " + row);
        }
    };
    const QStringList town{"code_postal", "détails"}, practice{"nom", "téléphone", "adresse", "ville"};
    expect_rows_of("familles", {"code_postal_responsable", "ville_responsable"}, "villes", town);
    expect_rows_of("élèves", {"code_postal_résidence", "ville_résidence"}, "villes", town);
    expect_rows_of("école", {"code_postal_école", "ville_école"}, "villes", town);
    expect_rows_of("élèves", {"lieu_naissance_élève"}, "villes", {"détails"});
    expect_rows_of("familles", {"adresse_responsable"}, "adresses", {"détails"});
    expect_rows_of("élèves", {"adresse_résidence"}, "adresses", {"détails"});
    expect_rows_of("familles", {"société_assurance"}, "assurances", {"détails"});
    expect_rows_of("SELECT * FROM familles WHERE médecin_traitant <> \"\"",
                   {"médecin_traitant", "téléphone_médecin_traitant", "adresse_médecin_traitant",
                    "ville_médecin_traitant"},
                   "médecins", practice);
    expect_rows_of("SELECT * FROM familles WHERE hôpital_préférentiel <> \"\"",
                   {"hôpital_préférentiel", "téléphone_hôpital_préférentiel", "adresse_hôpital_préférentiel",
                    "ville_hôpital_préférentiel"},
                   "hôpitaux", practice);
}

TEST(Demonstration, TheSameSeedGivesTheSameSchool) {
    auto names = [](quint32 seed) {
        TemplateBase base;
        auto db = Database::open(base.path());
        remplir_démonstration(*db, Démonstration{40, seed});
        QStringList out;
        auto rs = db->OpenRecordset("SELECT * FROM élèves ORDER BY matricule ASC");
        for (; !rs->isEOF(); rs->MoveNext())
            out << rs->field("prénom_élève").toString() + rs->field("date_naissance_élève").toString();
        return out;
    };
    EXPECT_EQ(names(11), names(11));
    EXPECT_NE(names(11), names(12));
}

} // namespace
