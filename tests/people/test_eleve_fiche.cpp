// The pupil screen on a work base: opening by its menu command, new pupils and their matricules, the
// sibling question, deletion, saving and closing, the captions of the configurable fields and the
// letter templates.
#include "support/BaseEleves.h"

#include "people/feuille_eleve.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "reports/feuille_documents.h"
#include "store/Module1.h"
#include "support/PiloteEcran.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>

namespace {

const QString ordre_des_matricules = u("SELECT * FROM élèves ORDER BY matricule ASC");
const QString ordre_alphabétique = u("SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC");
const QString question_fratrie =
    u("Voulez-vous ajouter une fiche dans la fratrie en cours (OUI) ou ajouter une "
      "fiche sans référence à la fratrie en cours (NON)...");

class FicheEleveSurBase : public ÉcranÉlèveTest {
protected:
    // The screen unloaded, for the next case to open it afresh.
    static void décharger(feuille_élève& f) {
        f.Unload();
        ScriptedTest::processDeletions();
    }
    // The letter templates of the base replaced by these, then the screen opened on one pupil.
    feuille_élève& ouvrir_sur_modèles(const QString& valeurs) {
        exécuter_par_le_moteur(base, u("DELETE * FROM documents"));
        exécuter_par_le_moteur(base, u("INSERT INTO documents (intitulé_bouton) VALUES ") + valeurs);
        ajouter_élève(base, u("000001"), u("UN"));
        feuille_élève& f = ouvrir();
        f.grdDataGrid->setCurrentIndex(f.grdDataGrid->model()->index(0, 0));
        return f;
    }
};

void cliquer_ajouter(feuille_élève& f) {
    cliquer(f, u("cmdAjouter"));
}

TEST_F(FicheEleveSurBase, TheMenuCommandOpensTheScreenInFrontOnItsFirstTabInMatriculeOrder) {
    ajouter_élève(base, u("000002"), u("ARNAUD"), u("Zoé"));
    ajouter_élève(base, u("000001"), u("MARTIN"), u("Léa"));
    feuille_élève& f = ouvrir();
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(f.SSTab1->currentIndex(), 0);
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), ordre_des_matricules);
    EXPECT_EQ(f.datPrimaryRS->DatabaseName(), base);
    // The list reads alphabetical while the pupils pass in matricule order: the program opens so.
    EXPECT_EQ(f.Combo1->currentText(), u("Par ordre alphabétique"));
    EXPECT_EQ(f.matricule->text(), u("000001"));
    EXPECT_EQ(f.nom_enfant->text(), u("MARTIN"));
    EXPECT_EQ(f.datPrimaryRS->Caption(), u("Fiche: 1"));

    // Chosen again, the command brings the screen back to its first record and first tab.
    cliquer(*f.datPrimaryRS, u("suivant"));
    f.SSTab1->setCurrentIndex(3);
    EXPECT_EQ(&ouvrir(), &f);
    EXPECT_EQ(f.matricule->text(), u("000001"));
    EXPECT_EQ(f.SSTab1->currentIndex(), 0);
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FicheEleveSurBase, AnEmptyTableOpensOnANewPupil000001WrittenOnlyBySaveOrMove) {
    for (const char* comment : {"cmdMettreàjour", "suivant"}) {
        SCOPED_TRACE(comment);
        exécuter_par_le_moteur(base, u("DELETE FROM élèves"));
        feuille_élève& f = ouvrir();
        EXPECT_EQ(f.matricule->text(), u("000001"));
        EXPECT_EQ(f.référence_famille->text(), QString());
        EXPECT_EQ(f.datPrimaryRS->Caption(), u("Fiche: 0"));
        EXPECT_TRUE(matricules().isEmpty());
        if (QString(comment) == u("suivant"))
            cliquer(*f.datPrimaryRS, u("suivant"));
        else
            cliquer(f, u("cmdMettreàjour"));
        EXPECT_EQ(matricules(), QStringList{u("000001")});
        EXPECT_EQ(colonne_du_fichier(base, u("élèves"), u("référence_famille")), QStringList{u("<null>")});
        décharger(f);
    }
}

TEST_F(FicheEleveSurBase, AddNumbersOneAboveTheHighestMatriculeWithLeadingZeros) {
    const struct {
        const char* existants;
        const char* attendu;
    } cas[] = {
        {"000041", "000042"},
        {"000099", "000100"},
        {"000003 000099 000010", "000100"},
        {"999999", "1000000"},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(c.existants);
        exécuter_par_le_moteur(base, u("DELETE FROM élèves"));
        for (const QString& m : u(c.existants).split(u' '))
            ajouter_élève(base, m, u("NOM") + m);
        feuille_élève& f = ouvrir();
        ui().expectMsgBox(vbNo);
        cliquer_ajouter(f);
        EXPECT_EQ(ui().lastBox().text, question_fratrie);
        EXPECT_EQ(ui().lastBox().buttons, vbYesNoCancel + vbQuestion);
        EXPECT_EQ(ui().lastBox().title, u("Norvane v2"));
        EXPECT_EQ(f.matricule->text(), u(c.attendu));
        EXPECT_EQ(f.nom_enfant->text(), QString());
        EXPECT_EQ(f.datPrimaryRS->Caption(), u("Fiche: 0"));
        // Alphabetical order afterwards, and the list says so.
        EXPECT_EQ(f.datPrimaryRS->RecordSource(), ordre_alphabétique);
        EXPECT_EQ(f.Combo1->currentIndex(), 0);
        // A buffer only, until the user saves.
        EXPECT_EQ(matricules().size(), u(c.existants).split(u' ').size());
        cliquer(f, u("cmdMettreàjour"));
        EXPECT_TRUE(matricules().contains(u(c.attendu)));
        EXPECT_EQ(f.matricule->text(), u(c.attendu));
        décharger(f);
    }
}

TEST_F(FicheEleveSurBase, AfterASevenDigitMatriculeTheTextOrderKeepsGivingTheSameNumber) {
    ajouter_élève(base, u("999999"), u("DERNIER"));
    feuille_élève& f = ouvrir();
    ui().expectMsgBox(vbNo);
    cliquer_ajouter(f);
    EXPECT_EQ(f.matricule->text(), u("1000000"));
    f.nom_enfant->setText(u("SUIVANT"));
    cliquer(f, u("cmdMettreàjour"));
    ui().expectMsgBox(vbNo);
    cliquer_ajouter(f);
    EXPECT_EQ(f.matricule->text(), u("1000000"));
}

TEST_F(FicheEleveSurBase, YesGivesTheNewPupilTheSiblingsReferenceAndNothingElse) {
    ajouter_élève(base, u("000001"), u("DURAND"), u("Paul"), u("000007"));
    exécuter_par_le_moteur(base, u("UPDATE élèves SET ville_résidence = 'Lyon', nom_contact1 = 'Mamie'"));
    feuille_élève& f = ouvrir();
    ui().expectMsgBox(vbYes);
    cliquer_ajouter(f);
    EXPECT_EQ(f.référence_famille->text(), u("000007"));
    EXPECT_EQ(f.matricule->text(), u("000002"));
    EXPECT_EQ(f.nom_enfant->text(), QString());
    EXPECT_EQ(f.ville_résidence->text(), QString());
    EXPECT_EQ(f.nom_contact[0]->text(), QString());
    // A move without typing writes the row: the code's writes are edits.
    cliquer(*f.datPrimaryRS, u("premier"));
    EXPECT_EQ(matricules(), (QStringList{u("000001"), u("000002")}));
    EXPECT_EQ(colonne_du_fichier(base, u("élèves"), u("référence_famille")),
              (QStringList{u("000007"), u("000007")}));
    EXPECT_EQ(colonne_du_fichier(base, u("élèves"), u("ville_résidence")),
              (QStringList{u("Lyon"), u("<null>")}));
}

TEST_F(FicheEleveSurBase, NoOrAnEmptyCurrentReferenceGiveNone) {
    ajouter_élève(base, u("000001"), u("DURAND"), u("Paul"), u("000007"));
    ajouter_élève(base, u("000002"), u("SEUL"), u("Max"));
    feuille_élève& f = ouvrir();
    cliquer(*f.datPrimaryRS, u("dernier"));
    EXPECT_EQ(f.nom_enfant->text(), u("SEUL"));
    ui().expectMsgBox(vbYes);
    cliquer_ajouter(f);
    EXPECT_EQ(f.référence_famille->text(), QString());
    EXPECT_EQ(f.matricule->text(), u("000003"));

    cliquer(*f.datPrimaryRS, u("premier")); // saves the new pupil, which joins the end of the list
    EXPECT_EQ(f.nom_enfant->text(), u("DURAND"));
    EXPECT_EQ(f.référence_famille->text(), u("000007"));
    ui().expectMsgBox(vbNo);
    cliquer_ajouter(f);
    EXPECT_EQ(f.référence_famille->text(), QString());
    EXPECT_EQ(f.matricule->text(), u("000004"));
    cliquer(f, u("cmdMettreàjour"));
    EXPECT_EQ(colonne_du_fichier(base, u("élèves"), u("référence_famille")),
              (QStringList{u("000007"), u("<null>"), u("<null>"), u("<null>")}));
}

TEST_F(FicheEleveSurBase, CancelChangesNothing) {
    // On the new row of an empty table's opening...
    feuille_élève& f = ouvrir();
    ui().expectMsgBox(vbCancel);
    cliquer_ajouter(f);
    EXPECT_EQ(f.matricule->text(), u("000001"));
    EXPECT_EQ(f.datPrimaryRS->Caption(), u("Fiche: 0"));
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), ordre_des_matricules);
    EXPECT_TRUE(matricules().isEmpty());
    décharger(f);
    exécuter_par_le_moteur(base, u("DELETE FROM élèves"));

    // ... and on a pupil in the middle of the list, with the order the user had.
    ajouter_élèves(base, {"000001", "000002", "000003"});
    feuille_élève& g = ouvrir();
    cliquer(*g.datPrimaryRS, u("suivant"));
    ui().expectMsgBox(vbCancel);
    cliquer_ajouter(g);
    EXPECT_EQ(g.matricule->text(), u("000002"));
    EXPECT_EQ(g.datPrimaryRS->Caption(), u("Fiche: 2"));
    EXPECT_EQ(g.datPrimaryRS->RecordSource(), ordre_des_matricules);
    EXPECT_EQ(matricules().size(), 3);
}

TEST_F(FicheEleveSurBase, AHighestMatriculeThatIsNoNumberStopsTheAddWithTheTypeError) {
    ajouter_élève(base, u("000001"), u("UN"));
    ajouter_élève(base, u("abc"), u("DEUX"));
    feuille_élève& f = ouvrir();
    ui().expectMsgBox(vbNo).expectMsgBox(vbOK);
    cliquer_ajouter(f);
    ASSERT_EQ(ui().boxes().size(), 2u);
    EXPECT_EQ(ui().lastBox().text, u("Le logiciel a rencontré l'erreur : 13\n\nType incompatible"));
    EXPECT_EQ(ui().lastBox().buttons, vbOKOnly + vbExclamation);
    EXPECT_EQ(ui().mousePointer(), vbDefault);
    // The matricule order of the failed step stays, while the list reads alphabetical.
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), ordre_des_matricules);
    EXPECT_EQ(f.Combo1->currentText(), u("Par ordre alphabétique"));
    EXPECT_EQ(f.matricule->text(), u("abc"));
    EXPECT_NE(f.datPrimaryRS->Caption(), u("Fiche: 0"));
    EXPECT_EQ(matricules().size(), 2);
}

// With no pupil left, the add has no last matricule to count from: its move to the last row is
// reported, no record is added, and the matricule order of that step stays.
TEST_F(FicheEleveSurBase, DeletingTheOnlyPupilThenAddingReportsTheMissingRowEachTimeAndAddsNothing) {
    ajouter_élève(base, u("000001"), u("SEUL"));
    feuille_élève& f = ouvrir();
    ui().expectMsgBox(vbOK);
    cliquer(f, u("cmdSupprimer"));
    EXPECT_TRUE(ui().lastBox().text.startsWith(u("Le logiciel a rencontré l'erreur : 3021\n\n")));
    ASSERT_TRUE(matricules().isEmpty());
    EXPECT_TRUE(module1().feuilles().isLoaded<feuille_élève>());

    ui().expectMsgBox(vbNo).expectMsgBox(vbOK);
    cliquer_ajouter(f);
    ASSERT_EQ(ui().boxes().size(), 3u);
    EXPECT_TRUE(ui().lastBox().text.startsWith(u("Le logiciel a rencontré l'erreur : 3021\n\n")))
        << ui().lastBox().text.toStdString();
    EXPECT_EQ(ui().lastBox().buttons, vbOKOnly + vbExclamation);
    EXPECT_EQ(ui().mousePointer(), vbDefault);
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), ordre_des_matricules);
    EXPECT_FALSE(f.datPrimaryRS->isAddingNew());
    EXPECT_TRUE(matricules().isEmpty());
}

TEST_F(FicheEleveSurBase, TheConfigurableFieldsTakeTheirCaptionsAndBalloonsFromTheParameters) {
    exécuter_par_le_moteur(
        base, u("INSERT INTO paramètres (intitulé_champ_paramétrable1, infobulle_champ_paramétrable1, "
                "intitulé_champ_paramétrable10, infobulle_champ_paramétrable10) "
                "VALUES ('Transport', 'Car du matin', 'Garderie', 'Soir')"));
    ajouter_élève(base, u("000001"), u("UN"));
    feuille_élève& f = ouvrir();
    EXPECT_EQ(f.lblLabels[0]->text(), u("Transport"));
    EXPECT_EQ(f.champ_paramétable[0]->toolTip(), u("Car du matin"));
    EXPECT_EQ(f.lblLabels[9]->text(), u("Garderie"));
    EXPECT_EQ(f.champ_paramétable[9]->toolTip(), u("Soir"));
    EXPECT_EQ(f.lblLabels[4]->text(), QString());
    EXPECT_EQ(f.champ(u("Label2"))->property("text").toString(), u("Car du matin"));
    // Moving through the pupils never moves the captions.
    f.champ_paramétable[0]->setProperty("text", u("oui"));
    cliquer(f, u("cmdMettreàjour"));
    EXPECT_EQ(colonne_du_fichier(base, u("élèves"), u("champ_paramétable1")), QStringList{u("oui")});
    EXPECT_EQ(colonne_du_fichier(base, u("paramètres"), u("intitulé_champ_paramétrable1")),
              QStringList{u("Transport")});
}

TEST_F(FicheEleveSurBase, WithoutParametersTheStoredCaptionsStayAndNoFieldHasABalloon) {
    ajouter_élève(base, u("000001"), u("UN"));
    feuille_élève& f = ouvrir();
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(f.lblLabels[i]->text(), u("champ paramétable ") + QString::number(i + 1));
        EXPECT_EQ(f.porteurs_aide[i]->text(), u("infobulle"));
        EXPECT_EQ(f.champ_paramétable[i]->toolTip(), QString());
    }
}

TEST_F(FicheEleveSurBase, TheLastTabListsTheTemplatesAndOpensThePickedOneForEditing) {
    exécuter_par_le_moteur(base, u("DELETE * FROM documents"));
    exécuter_par_le_moteur(base, u("INSERT INTO documents (intitulé_bouton, titre_document) VALUES "
                                   "('Certificat de scolarité', 'Certificat'), ('Réunion', 'Invitation')"));
    ajouter_élève(base, u("000001"), u("UN"));
    feuille_élève& f = ouvrir();
    ASSERT_NE(f.grdDataGrid, nullptr);
    EXPECT_EQ(f.grdDataGrid->model()->headerData(0, Qt::Horizontal).toString(), u("documents existants"));
    EXPECT_EQ(f.grdDataGrid->model()->index(0, 0).data().toString(), u("Certificat de scolarité"));
    EXPECT_EQ(f.grdDataGrid->model()->index(1, 0).data().toString(), u("Réunion"));
    // The letters' screen is pointed too, hidden, for the letters to come.
    ASSERT_TRUE(module1().feuilles().isLoaded<feuille_documents>());

    f.SSTab1->setCurrentIndex(7);
    f.grdDataGrid->setCurrentIndex(f.grdDataGrid->model()->index(1, 0));
    cliquer(f, u("Command6"));
    auto& documents = module1().feuilles().get<feuille_documents>();
    EXPECT_TRUE(documents.isVisible());
    EXPECT_EQ(documents.intitulé->text(), u("Réunion"));
    EXPECT_EQ(documents.titre->text(), u("Invitation"));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FicheEleveSurBase, ATemplateNameNoLongerInTheFileOpensANewTemplate) {
    feuille_élève& f = ouvrir_sur_modèles(u("('Ancien'), ('Autre')"));
    exécuter_par_le_moteur(base, u("DELETE FROM documents WHERE intitulé_bouton = 'Ancien'"));
    cliquer(f, u("Command6"));
    auto& documents = module1().feuilles().get<feuille_documents>();
    EXPECT_TRUE(documents.isVisible());
    EXPECT_EQ(documents.intitulé->text(), QString());
    EXPECT_EQ(documents.datPrimaryRS->Caption(), u("Fiche: 0"));
    EXPECT_EQ(colonne_du_fichier(base, u("documents"), u("intitulé_bouton")), QStringList{u("Autre")});
}

TEST_F(FicheEleveSurBase, EditingATemplateWhenNoneIsLeftReportsTheMissingRecord) {
    feuille_élève& f = ouvrir_sur_modèles(u("('Seul')"));
    exécuter_par_le_moteur(base, u("DELETE FROM documents"));
    ui().expectMsgBox(vbOK);
    cliquer(f, u("Command6"));
    EXPECT_TRUE(ui().lastBox().text.startsWith(u("Le logiciel a rencontré l'erreur : 3021\n\n")));
    EXPECT_FALSE(module1().feuilles().get<feuille_documents>().isVisible());
}

TEST_F(FicheEleveSurBase, TheTemplateListIsOnlyReadFromThePupilScreen) {
    ajouter_élève(base, u("000001"), u("UN"));
    feuille_élève& f = ouvrir();
    const QStringList avant = colonne_du_fichier(base, u("documents"), u("intitulé_bouton"));
    ASSERT_FALSE(avant.isEmpty());
    montrer_active(f);
    f.SSTab1->setCurrentIndex(7);
    f.grdDataGrid->setFocus();
    f.grdDataGrid->setCurrentIndex(f.grdDataGrid->model()->index(0, 0));
    touche_au_focus(Qt::Key_Delete);
    taper_au_focus(u("x"));
    touche_au_focus(Qt::Key_Return);
    cliquer(*f.datPrimaryRS, u("suivant"));
    EXPECT_EQ(colonne_du_fichier(base, u("documents"), u("intitulé_bouton")), avant);

    // Below the last template there is nothing to type into either.
    f.grdDataGrid->setFocus();
    f.grdDataGrid->setCurrentIndex(f.grdDataGrid->model()->index(avant.size() - 1, 0));
    touche_au_focus(Qt::Key_Down);
    EXPECT_EQ(f.grdDataGrid->currentIndex().row(), avant.size() - 1);
    taper_au_focus(u("Nouveau"));
    cliquer(*f.datPrimaryRS, u("suivant"));
    EXPECT_EQ(colonne_du_fichier(base, u("documents"), u("intitulé_bouton")), avant);
    int lignes_vues = 0;
    for (int ligne = 0; ligne < f.grdDataGrid->model()->rowCount(); ++ligne)
        lignes_vues += f.grdDataGrid->isRowHidden(ligne) ? 0 : 1;
    EXPECT_EQ(lignes_vues, avant.size());
}

} // namespace
