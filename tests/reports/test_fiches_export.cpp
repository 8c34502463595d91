// The "Imprimer" buttons of the pupil and family screens, and the spreadsheet export of the main window,
// on the demonstration school: the sheet shows the record as stored, an empty key an empty sheet; the
// export's name rules, its question before replacing a file, its messages, and the file read back.
#include "Etats.h"

#include "people/feuille_eleve.h"
#include "people/feuille_famille.h"
#include "platform/forms/Feuilles.h"
#include "platform/report/PreviewWindow.h"
#include "platform/report/ReportJob.h"
#include "reports/feuille_traitements.h"
#include "shell/MDIForm1.h"
#include "support/BaseDirecte.h"
#include "support/BaseDirecte.h"
#include "support/PiloteEcran.h"

#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>

using namespace Qt::StringLiterals;

namespace {

using Box = ScriptedInteraction::Box;

class FichesEtExport : public ÉtatsTest {
protected:
    MDIForm1& mdi() {
        auto& m = feuilles().get<MDIForm1>();
        m.activer_menus();
        return m;
    }
    // Every text of the first page of the preview opened last.
    QString aperçu() const {
        const auto fenêtres = feuilles().get<MDIForm1>().zone->subWindowList(QMdiArea::CreationOrder);
        auto* a = fenêtres.isEmpty() ? nullptr : qobject_cast<PreviewWindow*>(fenêtres.back()->widget());
        QString texte;
        for (const PageElement& e : a ? a->report().page(0).elements : std::vector<PageElement>())
            if (const auto* t = std::get_if<TextElement>(&e))
                texte += t->text + u'\n';
        return texte;
    }
    // The export, the name typed at its prompt; the answers to its boxes are queued by the caller.
    void exporter(const QString& réponse) {
        ui().expectInputBox(réponse);
        mdi().cliquer(u"menuexploitationindex4"_s);
    }
    QString réussite(const QString& chemin) const {
        return u"Le fichier d'exportation "_s + chemin + u" a été créé avec succès."_s;
    }
};

TEST_F(FichesEtExport, the_pupil_sheet_shows_the_record_as_stored_and_an_empty_matricule_an_empty_sheet) {
    mdi().cliquer(u"menuenfantsindex1"_s);
    feuille_élève& f = feuilles().get<feuille_élève>();
    const QString nom = f.nom_enfant->text(), matricule = f.matricule->text();
    f.nom_enfant->setText(u"Pas encore enregistré"_s);
    cliquer(f, u"Command3"_s);
    EXPECT_EQ(job().SelectionFormula, u"{élèves.matricule} = \"%1\""_s.arg(matricule));
    EXPECT_TRUE(aperçu().contains(u"Matricule "_s + matricule));
    EXPECT_TRUE(aperçu().contains(nom.toUpper())) << aperçu().toStdString();
    EXPECT_FALSE(aperçu().contains(u"PAS ENCORE"_s));
    f.matricule->clear();
    cliquer(f, u"Command3"_s);
    EXPECT_TRUE(aperçu().contains(u"Identité"_s));
    EXPECT_FALSE(aperçu().contains(u"Matricule"_s));
    f.matricule->setText(u"0\"1"_s);
    ui().expectMsgBox();
    cliquer(f, u"Command3"_s);
    EXPECT_TRUE(une_boîte(ui(), u"Le gestionnaire d'erreurs des données a rencontré l'erreur : 20515"_s));
    f.cmdRafraîchir->click(); // the edits go, unsaved
}

TEST_F(FichesEtExport, the_family_sheet_shows_the_record_as_stored_and_an_empty_reference_an_empty_sheet) {
    mdi().cliquer(u"menuenfantsindex2"_s);
    feuille_famille& f = feuilles().get<feuille_famille>();
    const QString nom = f.nom_responsable_légal->text(), référence = f.Text13->text();
    f.nom_responsable_légal->setText(u"Pas encore enregistré"_s);
    cliquer(f, u"Command3"_s);
    EXPECT_EQ(job().SelectionFormula, u"{familles.référence_famille} = \"%1\""_s.arg(référence));
    EXPECT_TRUE(aperçu().contains(u"Référence "_s + référence));
    EXPECT_TRUE(aperçu().contains(u"Famille "_s + nom.toUpper())) << aperçu().toStdString();
    EXPECT_FALSE(aperçu().contains(u"PAS ENCORE"_s));
    f.Text13->clear();
    cliquer(f, u"Command3"_s);
    EXPECT_TRUE(aperçu().contains(u"Parent 1 (responsable légal)"_s));
    EXPECT_FALSE(aperçu().contains(u"Référence"_s));
    f.cmdRafraîchir->click();
}

// Run before the treatments screen was ever shown: it is loaded unseen, and its fields restrict the
// export from then on. One row a pupil under a row of headings, every column named.
TEST_F(FichesEtExport, the_export_writes_a_row_a_selected_pupil_under_named_headings) {
    const QString chemin = folder.file(u"élèves.XLS"_s);
    ui().expectMsgBox();
    exporter(folder.file(u"élèves"_s));
    ASSERT_TRUE(feuilles().isLoaded<feuille_traitements>());
    EXPECT_TRUE(feuilles().get<feuille_traitements>().conteneur().isHidden());
    EXPECT_EQ(ui().lastBox(), Box::titled(réussite(chemin), vbOKOnly + vbExclamation));
    const QStringList lignes = cellules_xls(chemin);
    const QStringList matricules = colonne_du_fichier(base, u"élèves"_s, u"matricule"_s);
    ASSERT_EQ(lignes.size(), matricules.size() + 1) << lignes.value(0).toStdString();
    const QStringList entêtes = lignes[0].split(u'\t');
    EXPECT_EQ(entêtes.size(), 104);
    EXPECT_FALSE(entêtes.contains(QString()));
    EXPECT_EQ(QSet<QString>(entêtes.begin(), entêtes.end()).size(), entêtes.size());
    const QStringList première = lignes[1].split(u'\t');
    EXPECT_EQ(première[0], matricules[0]); // a text, its zeros kept
    const QString naissance = colonne_du_fichier(base, u"élèves"_s, u"date_naissance_élève"_s)[0];
    EXPECT_EQ(première[entêtes.indexOf(u"Date de naissance"_s)],
              QDate::fromString(naissance, Qt::ISODate).toString(u"dd/MM/yyyy"_s));

    // A class typed on the treatments screen, long closed: the next export keeps to it, unseen.
    feuilles().get<feuille_traitements>().Text3->setText(u"5"_s);
    ui().expectMsgBox(vbYes).expectMsgBox();
    exporter(chemin);
    EXPECT_EQ(ui().boxes()[1], Box::titled(u"Attention, le fichier d'exportation existe déjà... Il sera "
                                           "remplacé par le nouveau. Voulez-vous continuer ?"_s,
                                           vbYesNo + vbQuestion));
    const QStringList classes = colonne_du_fichier(base, u"élèves"_s, u"référence_classe_élève"_s);
    EXPECT_EQ(cellules_xls(chemin).size(), classes.count(u"5"_s) + 1);
    EXPECT_EQ(job().Destination, ReportJob::toWindow);
}

TEST_F(FichesEtExport, no_to_the_question_leaves_the_file_untouched_and_says_nothing_more) {
    const QString chemin = folder.write(u"ancien.xls"_s, "ancien");
    ui().expectMsgBox(vbNo);
    exporter(chemin);
    EXPECT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(contentOf(chemin), "ancien");
    EXPECT_EQ(job().Destination, ReportJob::toFile);
    EXPECT_EQ(job().PrintFileType, ReportJob::spreadsheetFile);
}

// The answer trimmed, without a trailing separator, with ".XLS" unless it ends so; Cancel gives
// ".XLS" in the current folder; a folder that does not exist ends interrupted.
TEST_F(FichesEtExport, the_name_rules_and_the_messages) {
    const DossierCourant courant(folder.path());
    const QString sep = QDir::separator();
    const std::pair<QString, QString> cas[] = {
        {u"  "_s + folder.file(u"liste"_s) + u"  "_s, folder.file(u"liste.XLS"_s)},
        {folder.file(u"liste.xls"_s), folder.file(u"liste.xls"_s)},
        {folder.file(u"dossier"_s) + sep, folder.file(u"dossier.XLS"_s)},
        {u""_s, u".XLS"_s},
    };
    for (const auto& [réponse, chemin] : cas) {
        ui().expectMsgBox();
        exporter(réponse);
        EXPECT_EQ(ui().lastBox().text, réussite(chemin));
        EXPECT_EQ(cellules_xls(QDir(folder.path()).absoluteFilePath(chemin)).value(0).left(9),
                  u"Matricule"_s);
    }
    EXPECT_EQ(ui().inputs()[0].prompt, u"Entrez le chemin et le nom du fichier d'exportation au format .XLS "
                                       "(Microsoft Excel) que vous souhaitez créer:"_s);
    EXPECT_EQ(ui().inputs()[0].title, u"Exportation des données vers un fichier Excel"_s);
    EXPECT_TRUE(ui().inputs()[0].defaultValue.endsWith(u"export_norv2.XLS"_s));
    ui().expectMsgBox();
    exporter(folder.file(u"absent/liste"_s));
    EXPECT_EQ(ui().lastBox(), Box::titled(u"Demande d'édition interrompue..."_s, vbOKOnly + vbExclamation));
}

} // namespace
