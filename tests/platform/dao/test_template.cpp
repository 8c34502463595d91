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

// The lookups carry useful French rows and the towns of France; three letter templates, an empty access
// code, and no school data yet.
TEST_F(Template, CarriesTheRowsTheProgramStartsWith) {
    for (const QStringList& r : table_de_données("modele_lignes.tsv")) {
        const QStringList lues = values(r[0], r[1]);
        if (r[3] == "aucune")
            EXPECT_TRUE(lues.isEmpty()) << r[0].toStdString();
        else
            EXPECT_EQ(r[3] == "toutes" ? lues : lues.mid(0, r[2].count(u'|') + 1), r[2].split(u'|'));
    }
    for (const QString& cycle : values("niveaux", "cycle"))
        EXPECT_TRUE(cycle == "1" || cycle == "2" || cycle == "3");
    const QStringList csp = values("csp", "code");
    EXPECT_GT(csp.size(), 30);
    EXPECT_TRUE(std::ranges::all_of(csp, [](const QString& code) { return code.size() == 2; }));
    EXPECT_FALSE(values("nationalités", "code").contains(QString()));
    EXPECT_GE(values("situations_familiales", "détails").size(), 5);
    const int towns = db->OpenRecordset("villes")->RecordCount();
    EXPECT_GT(towns, 30000);
    EXPECT_LT(towns, 60000);
}

using Demonstration = StoreTest;

TEST_F(Demonstration, FillsFamiliesAndPupilsThatBelongTogether) {
    remplir_démonstration(*db, Démonstration{200, 3});
    auto pupils = db->OpenRecordset("SELECT * FROM élèves ORDER BY matricule ASC");
    EXPECT_EQ(pupils->RecordCount(), 200);
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

} // namespace
