// The report engine on a small base of four pupils: the selection formula as a table of accepted and
// refused texts, named formulas, layout files read or refused, and what the job keeps between runs.
#include "platform/report/Formula.h"
#include "platform/report/Layout.h"
#include "platform/report/ReportData.h"
#include "platform/report/ReportErrors.h"
#include "platform/report/ReportJob.h"
#include "support/BaseDirecte.h"
#include "support/Donnees.h"
#include "support/Fixtures.h"

using namespace Qt::StringLiterals;

namespace {

// Four pupils: two in CM2 of family 1 (who consents), one eldest in CP of family 2, one in CE1 with no
// cycle and a family the file does not have.
class PetiteBase : public ::testing::Test {
protected:
    void SetUp() override {
        base = copie_du_modèle(folder);
        for (const char* valeurs : {"'000001', 'oui'", "'000002', 'non'"})
            exécuter_par_le_moteur(base, u"INSERT INTO familles (référence_famille, communication_données) "
                                         "VALUES (%1)"_s.arg(QString::fromUtf8(valeurs)));
        for (const char* valeurs :
             {"'000001', '000001', True, 'CM2', '3', '1'", "'000002', '000001', False, 'CM2', '3', '1'",
              "'000003', '000002', True, 'CP', '2', '2'", "'000004', '000009', False, 'CE1', Null, '3'"})
            exécuter_par_le_moteur(
                base,
                u"INSERT INTO élèves (matricule, référence_famille, ainé, niveau_classe_élève, "
                "cycle_classe_élève, référence_classe_élève) VALUES (%1)"_s.arg(QString::fromUtf8(valeurs)));
        layout =
            parseLayout(u"[état]\ngenre = liste\n[données]\ntable = élèves\n"
                        "lien = élèves.référence_famille = familles.référence_famille\n"
                        "tri = élèves.matricule\n[liste]\ncolonne = N° | 1 | gauche | {élèves.matricule}\n"_s,
                        u"essai.rpt"_s);
    }
    int élèves(const QString& formule) const {
        return ReportData::load(layout, base, formule, {u"élèves.matricule"_s}).rowCount();
    }

    WorkFolder folder;
    QString base;
    Layout layout;
};

TEST_F(PetiteBase, selection_formulas_as_accepted_or_refused) {
    for (const QStringList& ligne : table_de_données(u"formules.tsv"_s)) {
        SCOPED_TRACE(ligne[0].toStdString());
        if (ligne[1] == u"refus")
            EXPECT_EQ(error_of([&] { élèves(ligne[0]); }), report_error::formula_refused);
        else
            EXPECT_EQ(élèves(ligne[0]), ligne[1].toInt());
    }
}

TEST(NamedFormula, name_equals_a_quoted_text_or_a_refusal) {
    EXPECT_EQ(parseNamedFormula(u""_s), std::nullopt);
    const auto f = parseNamedFormula(u"titre_document= \"Certificat de scolarité\""_s);
    ASSERT_TRUE(f);
    EXPECT_EQ(f->name, u"titre_document"_s);
    EXPECT_EQ(f->value, u"Certificat de scolarité"_s);
    EXPECT_EQ(parseNamedFormula(u"vide= \"\""_s)->value, u""_s);
    for (const char* refusée : {"titre", "titre= Certificat", "titre= \"a\"b\"", "= \"a\"", "titre \"a\"",
                                "titre= \"a\" AND b= \"c\"", "titre= \"sans fin"})
        EXPECT_EQ(error_of([&] { parseNamedFormula(QString::fromUtf8(refusée)); }),
                  report_error::formula_refused)
            << refusée;
}

TEST(LayoutFile, a_missing_file_or_a_wrong_line_fails_with_its_place) {
    WorkFolder folder;
    EXPECT_EQ(error_of([&] { readLayout(folder.file(u"absent.rpt"_s)); }), report_error::layout_missing);
    const std::pair<const char*, int> fautes[] = {
        {"[état]\ngenre = roman\n", 2},
        {"[état]\ntitre = x\n[liste]\ncolonne = Nom | large | gauche | {élèves.nom_élève}\n", 4},
        {"genre = liste\n", 1},
        {"[état]\n\n# commentaire\nmarges = 1 2 3\n", 4},
        {"[couleurs]\nfond = bleu\n", 2},
        {"[état]\ngenre = liste\n[données]\ntable = élèves\n", 4}, // a list without a column
    };
    for (const auto& [texte, ligne] : fautes) {
        const VbError e = raised_by([&] { readLayout(folder.write(u"faux.rpt"_s, texte)); });
        EXPECT_EQ(e.number(), report_error::layout_invalid) << texte;
        EXPECT_TRUE(e.description().contains(u"ligne %1 :"_s.arg(ligne))) << e.description().toStdString();
    }
    const Layout l =
        readLayout(folder.write(u"bon.rpt"_s, "\xEF\xBB\xBF"
                                              "[état]\r\ngenre = étiquettes\r\nmarges = 1 2 3,5 4\r\n"
                                              "[données]\r\ntable = élèves\r\n"));
    EXPECT_EQ(l.kind, Layout::Kind::Labels);
    EXPECT_EQ(l.margins, QMarginsF(4, 1, 2, 3.5));
}

// A family twice in the file does not double its pupils; its parents unfold into a line each when
// named, in the order of their names.
TEST_F(PetiteBase, a_join_never_adds_a_row_and_a_row_unfolds_into_its_named_lines) {
    exécuter_par_le_moteur(base, u"INSERT INTO familles (référence_famille) VALUES ('000001')"_s);
    EXPECT_EQ(élèves(u""_s), 4);
    exécuter_par_le_moteur(base,
                           u"UPDATE familles SET nom_responsable_légal = 'Martin', nom_conjoint = 'Abel'"_s);
    layout = parseLayout(
        u"[données]\ntable = élèves\nlien = élèves.référence_famille = familles.référence_famille\n"
        "unique = familles.référence_famille\ntri = ligne.nom\n[lignes]\nvaleurs = nom | qui\n"
        "ligne = {familles.nom_responsable_légal} | 1\nligne = {familles.nom_conjoint} | 2\n"
        "[liste]\ncolonne = N° | 1 | gauche | {ligne.nom}\n"_s,
        u"essai.rpt"_s);
    const ReportData lignes = ReportData::load(layout, base, {}, {u"ligne.nom"_s, u"ligne.qui"_s});
    ASSERT_EQ(lignes.rowCount(), 4);
    EXPECT_EQ(lignes.value(0, 0), u"Abel"_s);
    EXPECT_EQ(lignes.value(3, 1), u"1"_s);
}

TEST(LayoutFile, the_reference_date_falls_in_the_school_year_of_the_day) {
    Layout l;
    const QDate octobre(2025, 10, 15), mars(2026, 3, 15);
    EXPECT_EQ(l.reference(mars), mars);
    l.referenceDate = u"31/12"_s;
    EXPECT_EQ(l.reference(octobre), QDate(2025, 12, 31));
    EXPECT_EQ(l.reference(mars), QDate(2025, 12, 31));
    l.referenceDate = u"30/06"_s;
    EXPECT_EQ(l.reference(octobre), QDate(2026, 6, 30));
}

TEST_F(PetiteBase, a_layout_naming_an_unknown_column_fails_the_run) {
    layout.columns[0].content = u"{élèves.âge_du_capitaine}"_s;
    EXPECT_EQ(error_of([&] { ReportData::load(layout, base, {}, {u"élèves.âge_du_capitaine"_s}); }),
              report_error::layout_invalid);
}

TEST_F(PetiteBase, the_job_keeps_what_a_run_does_not_set_and_tells_a_failure_by_its_status) {
    ReportJob job;
    EXPECT_EQ(job.Destination, 0);
    EXPECT_EQ(job.CopiesToPrinter, 1);
    EXPECT_EQ(error_of([&] { job.Formulas(21); }), 9);
    EXPECT_EQ(error_of([&] { job.DataFiles(1); }), 9);
    job.Formulas(3) = u"nom= \"Dupont\""_s;
    job.SelectionFormula = u"{élèves.ainé} = True"_s;
    job.DataFiles(0) = base;
    job.ReportFileName = folder.file(u"absent.rpt"_s);
    EXPECT_EQ(job.PrintReport(), report_error::layout_missing);
    EXPECT_EQ(error_of([&] { job.setAction(1); }), report_error::layout_missing);
    job.ReportFileName =
        folder.write(u"essai.rpt"_s, "[état]\ngenre = fiche\n[fiche]\ntexte = 0 0 50 5 | gras | {@nom}\n");
    job.Formulas(3) = u"nom= \"Dupont"_s;
    EXPECT_EQ(job.PrintReport(), report_error::formula_refused);
    job.Formulas(3) = u"nom= \"Dupont\""_s;
    job.Destination = ReportJob::toFile;
    job.PrintFileType = 99;
    job.PrintFileName = folder.file(u"sortie"_s);
    EXPECT_EQ(job.PrintReport(), report_error::destination_failed);
    EXPECT_FALSE(QFile::exists(job.PrintFileName));
    // Nothing above was reset by the runs.
    EXPECT_EQ(job.SelectionFormula, u"{élèves.ainé} = True"_s);
    EXPECT_EQ(job.Formulas(3), u"nom= \"Dupont\""_s);
    EXPECT_EQ(job.Destination, ReportJob::toFile);
    const auto rendu = job.render();
    ASSERT_EQ(rendu->pageCount(), 1);
    const auto& texte = std::get<TextElement>(rendu->page(0).elements.front());
    EXPECT_EQ(texte.text, u"Dupont"_s);
}

} // namespace
