// The template base: its 21 tables with their exact names, sizes that hold the entry limits, and rows.
#include "platform/dao/StoreTestSupport.h"

#include "generator/Demonstration.h"
#include "support/Donnees.h"

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

TEST_F(Template, HasTheTwentyOneTablesAndTheColumnsTheScreensRelyOn) {
    QStringList tables = db->tableNames(),
                attendues = QString("adresses assertions assurances csp documents école "
                                    "équipe familles genres hôpitaux inspection "
                                    "langues_vivantes médecins nationalités niveaux "
                                    "paramètres passe sexe situations_familiales villes "
                                    "élèves")
                                .split(' ');
    tables.sort();
    attendues.sort();
    EXPECT_EQ(tables, attendues);
    EXPECT_EQ(db->OpenRecordset("élèves")->fields().size(), 60u);
    EXPECT_EQ(db->OpenRecordset("familles")->fields().size(), 44u);
    EXPECT_EQ(db->OpenRecordset("paramètres")->fields().size(), 20u);
    EXPECT_EQ(db->OpenRecordset("documents")->fields().size(), 16u);
    const std::map<QString, FieldType> types = {{"Text", FieldType::Text},
                                                {"Memo", FieldType::Memo},
                                                {"Boolean", FieldType::Boolean},
                                                {"Date", FieldType::Date}};
    for (const QStringList& c : table_de_données("modele_colonnes.tsv")) {
        SCOPED_TRACE((c[0] + u'.' + c[1]).toStdString());
        const FieldInfo f = column(c[0], c[1]);
        EXPECT_EQ(f.type, types.at(c[2]));
        if (c[3].isEmpty())
            continue;
        EXPECT_GE(f.size, c[3].toInt());
        auto rs = db->OpenRecordset(c[0]);
        rs->AddNew();
        EXPECT_EQ(error_of([&] { rs->setField(c[1], QString(c[3].toInt(), u'é')); }), 0);
    }
    for (const QStringList& c : table_de_données("modele_consultations.tsv"))
        EXPECT_LE(column(c[0], c[1]).size, column(c[2], c[3]).size) << c.join(u' ').toStdString();
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

using Demonstration = StoreTest;

TEST_F(Demonstration, FillsFamiliesAndPupilsThatBelongTogether) {
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

TEST_F(Demonstration, NamesOnlyRowsOfTheLookups) {
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

} // namespace
