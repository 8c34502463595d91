// The pupil screen on a work base: opening by its menu command, new pupils and their matricules, the
// sibling question, the captions of the configurable fields and the letter templates.
#include "people/feuille_eleve.h"
#include "platform/forms/DBGrid.h"
#include "reports/feuille_documents.h"
#include "support/Programme.h"

namespace {

const QString ordre_des_matricules = u("SELECT * FROM élèves ORDER BY matricule ASC");
const QString erreur_3021 = u("Le logiciel a rencontré l'erreur : 3021\n\n");

class FicheEleveSurBase : public ProgrammeSurModèle {
protected:
    QStringList matricules() const { return fichier("élèves", "matricule"); }
    // Ajouter, answered `réponse` to the sibling question.
    void ajouter(feuille_élève& f, int réponse) {
        ui().expectMsgBox(réponse);
        cliquer(f, u("cmdAjouter"));
    }
    // The screen unloaded and the table emptied, for the next case to open afresh.
    void recommencer(feuille_élève& f) {
        sql("DELETE FROM élèves"); // the new pupil the unload writes may not clash
        f.Unload();
        processDeletions();
        sql("DELETE FROM élèves");
    }
    // The letter templates of the base replaced by these, then the screen opened on one pupil.
    feuille_élève& ouvrir_sur_modèles(const char* valeurs) {
        sql("DELETE * FROM documents");
        sql((std::string("INSERT INTO documents (intitulé_bouton, titre_document) VALUES ") + valeurs)
                .c_str());
        ajouter_élève(u("000001"), u("UN"));
        feuille_élève& f = ouvrir_élève();
        f.SSTab1->setCurrentIndex(7);
        return f;
    }
};

TEST_F(FicheEleveSurBase, TheMenuCommandOpensTheScreenOnItsFirstTabInMatriculeOrderAndComesBackThere) {
    ajouter_élève(u("000002"), u("ARNAUD"));
    ajouter_élève(u("000001"), u("MARTIN"));
    feuille_élève& f = ouvrir_élève();
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), ordre_des_matricules);
    EXPECT_EQ(f.datPrimaryRS->DatabaseName(), base);
    // The list reads alphabetical while the pupils pass in matricule order: the program opens so.
    EXPECT_EQ(f.Combo1->currentText(), u("Par ordre alphabétique"));
    EXPECT_EQ(f.nom_enfant->text(), u("MARTIN"));
    EXPECT_EQ(f.datPrimaryRS->Caption(), u("Fiche: 1"));
    cliquer(*f.datPrimaryRS, u("suivant"));
    f.SSTab1->setCurrentIndex(3);
    EXPECT_EQ(&ouvrir_élève(), &f);
    EXPECT_EQ(f.matricule->text(), u("000001"));
    EXPECT_EQ(f.SSTab1->currentIndex(), 0);
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FicheEleveSurBase, AnEmptyTableOpensOnANewPupil000001) {
    feuille_élève& f = ouvrir_élève();
    EXPECT_EQ(f.matricule->text(), u("000001"));
    EXPECT_EQ(f.datPrimaryRS->Caption(), u("Fiche: 0"));
    EXPECT_TRUE(matricules().isEmpty());
    cliquer(f, u("cmdMettreàjour"));
    EXPECT_EQ(matricules(), QStringList{u("000001")});
    EXPECT_EQ(fichier("élèves", "référence_famille"), QStringList{u("<null>")});
}

// After a seven-digit matricule the text order still finds 999999 last and gives the same number again.
TEST_F(FicheEleveSurBase, AddNumbersOneAboveTheHighestMatriculeInTextOrderWithLeadingZeros) {
    const std::pair<const char*, const char*> cas[] = {
        {"000041", "000042"}, {"000003 000099 000010", "000100"}, {"999999 1000000", "1000000"}};
    for (const auto& [existants, attendu] : cas) {
        SCOPED_TRACE(existants);
        for (const QString& m : u(existants).split(u' '))
            ajouter_élève(m, u("NOM") + m);
        feuille_élève& f = ouvrir_élève();
        ajouter(f, vbNo);
        EXPECT_EQ(ui().lastBox(), ScriptedInteraction::Box::titled(
                                      u("Voulez-vous ajouter une fiche dans la fratrie en cours (OUI) "
                                        "ou ajouter une fiche sans référence à la fratrie en cours "
                                        "(NON)..."),
                                      vbYesNoCancel + vbQuestion));
        EXPECT_EQ(f.matricule->text(), u(attendu));
        EXPECT_EQ(f.nom_enfant->text(), QString());
        EXPECT_EQ(f.datPrimaryRS->Caption(), u("Fiche: 0"));
        // Alphabetical order afterwards, and the list says so.
        EXPECT_EQ(f.datPrimaryRS->RecordSource(),
                  u("SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC"));
        EXPECT_EQ(f.Combo1->currentIndex(), 0);
        EXPECT_EQ(matricules().size(), u(existants).split(u' ').size())
            << "a buffer only, until the user saves";
        recommencer(f);
    }
}

TEST_F(FicheEleveSurBase, YesGivesTheNewPupilTheSiblingsReferenceAndNothingElseOtherwiseNone) {
    ajouter_élève(u("000001"), u("DURAND"), u("Paul"), u("000007"));
    ajouter_élève(u("000002"), u("SEUL"));
    sql("UPDATE élèves SET ville_résidence = 'Lyon', nom_contact1 = 'Mamie'");
    feuille_élève& f = ouvrir_élève();
    ajouter(f, vbYes);
    EXPECT_EQ(f.référence_famille->text(), u("000007"));
    EXPECT_EQ(f.matricule->text(), u("000003"));
    EXPECT_EQ(f.ville_résidence->text(), QString());
    EXPECT_EQ(f.nom_contact[0]->text(), QString());
    // A move without typing writes the row: the code's writes are edits.
    cliquer(*f.datPrimaryRS, u("dernier"));
    EXPECT_EQ(fichier("élèves", "référence_famille"), (QStringList{u("000007"), u("<null>"), u("000007")}));
    EXPECT_EQ(fichier("élèves", "ville_résidence"), (QStringList{u("Lyon"), u("Lyon"), u("<null>")}));

    cliquer(*f.datPrimaryRS, u("premier"));
    ASSERT_EQ(f.nom_enfant->text(), u("DURAND"));
    ajouter(f, vbNo);
    EXPECT_EQ(f.référence_famille->text(), QString());
    EXPECT_EQ(f.matricule->text(), u("000004"));
}

TEST_F(FicheEleveSurBase, YesOnAPupilWithoutReferenceGivesNone) {
    ajouter_élève(u("000001"), u("SEUL"));
    feuille_élève& f = ouvrir_élève();
    ajouter(f, vbYes);
    EXPECT_EQ(f.référence_famille->text(), QString());
    EXPECT_EQ(f.matricule->text(), u("000002"));
}

TEST_F(FicheEleveSurBase, CancelChangesNothing) {
    for (const char* m : {"000001", "000002", "000003"})
        ajouter_élève(u(m), u("NOM"));
    feuille_élève& f = ouvrir_élève();
    cliquer(*f.datPrimaryRS, u("suivant"));
    ajouter(f, vbCancel);
    EXPECT_EQ(f.matricule->text(), u("000002"));
    EXPECT_EQ(f.datPrimaryRS->Caption(), u("Fiche: 2"));
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), ordre_des_matricules);
    EXPECT_EQ(matricules().size(), 3);
}

TEST_F(FicheEleveSurBase, AHighestMatriculeThatIsNoNumberStopsTheAddWithTheTypeError) {
    ajouter_élève(u("000001"), u("UN"));
    ajouter_élève(u("abc"), u("DEUX"));
    feuille_élève& f = ouvrir_élève();
    ui().expectMsgBox(vbOK);
    ajouter(f, vbNo);
    ASSERT_EQ(ui().boxes().size(), 2u);
    EXPECT_EQ(ui().lastBox(),
              ScriptedInteraction::Box::titled(u("Le logiciel a rencontré l'erreur : 13\n\nType "
                                                 "incompatible"),
                                               vbOKOnly + vbExclamation));
    EXPECT_EQ(ui().mousePointer(), vbDefault);
    // The matricule order of the failed step stays, while the list reads alphabetical.
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), ordre_des_matricules);
    EXPECT_EQ(f.matricule->text(), u("abc"));
    EXPECT_EQ(matricules().size(), 2);
}

// With no pupil left, the add has no last matricule to count from: its move to the last row is
// reported and no record is added.
TEST_F(FicheEleveSurBase, DeletingTheOnlyPupilThenAddingReportsTheMissingRowEachTimeAndAddsNothing) {
    ajouter_élève(u("000001"), u("SEUL"));
    feuille_élève& f = ouvrir_élève();
    ui().expectMsgBox(vbOK);
    cliquer(f, u("cmdSupprimer"));
    EXPECT_TRUE(ui().lastBox().text.startsWith(erreur_3021));
    ASSERT_TRUE(matricules().isEmpty());
    ui().expectMsgBox(vbOK);
    ajouter(f, vbNo);
    ASSERT_EQ(ui().boxes().size(), 3u);
    EXPECT_TRUE(ui().lastBox().text.startsWith(erreur_3021));
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), ordre_des_matricules);
    EXPECT_FALSE(f.datPrimaryRS->isAddingNew());
    EXPECT_TRUE(matricules().isEmpty());
}

TEST_F(FicheEleveSurBase, TheConfigurableFieldsTakeTheirCaptionsAndBalloonsFromTheParameters) {
    ajouter_élève(u("000001"), u("UN"));
    feuille_élève& f = ouvrir_élève();
    for (int i = 0; i < 10; ++i) { // none yet: the stored captions stay and no field has a balloon
        EXPECT_EQ(f.lblLabels[i]->text(), u("champ paramétable ") + QString::number(i + 1));
        EXPECT_EQ(f.champ_paramétable[i]->toolTip(), QString());
    }
    f.Unload();
    processDeletions();
    sql("INSERT INTO paramètres (intitulé_champ_paramétrable1, infobulle_champ_paramétrable1, "
        "intitulé_champ_paramétrable10, infobulle_champ_paramétrable10) VALUES ('Transport', 'Car du matin', "
        "'Garderie', 'Soir')");
    feuille_élève& g = ouvrir_élève();
    EXPECT_EQ(g.lblLabels[0]->text(), u("Transport"));
    EXPECT_EQ(g.champ_paramétable[0]->toolTip(), u("Car du matin"));
    EXPECT_EQ(g.lblLabels[9]->text(), u("Garderie"));
    EXPECT_EQ(g.champ_paramétable[9]->toolTip(), u("Soir"));
    EXPECT_EQ(g.lblLabels[4]->text(), QString());
    EXPECT_EQ(g.champ(u("Label2"))->property("text").toString(), u("Car du matin"));
    g.champ_paramétable[0]->setProperty("text", u("oui"));
    cliquer(g, u("cmdMettreàjour"));
    EXPECT_EQ(fichier("élèves", "champ_paramétable1"), QStringList{u("oui")});
    EXPECT_EQ(fichier("paramètres", "intitulé_champ_paramétrable1"), QStringList{u("Transport")});
}

TEST_F(FicheEleveSurBase, TheLastTabListsTheTemplatesAndOpensThePickedOneForEditing) {
    feuille_élève& f =
        ouvrir_sur_modèles("('Certificat de scolarité', 'Certificat'), ('Réunion', 'Invitation')");
    EXPECT_EQ(f.grdDataGrid->model()->headerData(0, Qt::Horizontal).toString(), u("documents existants"));
    EXPECT_EQ(f.grdDataGrid->model()->index(0, 0).data().toString(), u("Certificat de scolarité"));
    f.grdDataGrid->setCurrentIndex(f.grdDataGrid->model()->index(1, 0));
    cliquer(f, u("Command6"));
    auto& documents = module1().feuilles().get<feuille_documents>();
    EXPECT_TRUE(documents.isVisible());
    EXPECT_EQ(documents.intitulé->text(), u("Réunion"));
    EXPECT_EQ(documents.titre->text(), u("Invitation"));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FicheEleveSurBase, ATemplateGoneFromTheFileOpensANewOne) {
    feuille_élève& f = ouvrir_sur_modèles("('Ancien', ''), ('Autre', '')");
    sql("DELETE FROM documents WHERE intitulé_bouton = 'Ancien'");
    cliquer(f, u("Command6"));
    auto& documents = module1().feuilles().get<feuille_documents>();
    EXPECT_TRUE(documents.isVisible());
    EXPECT_EQ(documents.datPrimaryRS->Caption(), u("Fiche: 0"));
    EXPECT_EQ(fichier("documents", "intitulé_bouton"), QStringList{u("Autre")});
}

TEST_F(FicheEleveSurBase, TheTemplateListIsOnlyRead) {
    feuille_élève& f = ouvrir_sur_modèles("('Seul', '')");
    montrer_active(f);
    f.SSTab1->setCurrentIndex(7);
    f.grdDataGrid->setFocus();
    f.grdDataGrid->setCurrentIndex(f.grdDataGrid->model()->index(0, 0));
    touche_au_focus(Qt::Key_Delete);
    taper_au_focus(u("x"));
    touche_au_focus(Qt::Key_Down); // below the last template there is no new line either
    taper_au_focus(u("Nouveau"));
    touche_au_focus(Qt::Key_Return);
    cliquer(*f.datPrimaryRS, u("suivant"));
    EXPECT_EQ(fichier("documents", "intitulé_bouton"), QStringList{u("Seul")});
    EXPECT_TRUE(f.grdDataGrid->isRowHidden(1));
}

} // namespace
