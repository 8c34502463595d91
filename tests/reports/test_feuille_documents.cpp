// The letter templates on a copy of the template base: a screen of bound boxes and check boxes on the
// shared frame, with form A of add and the delete without a trap.
#include "platform/errors/ErrorBoxes.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Module1.h"
#include "reports/feuille_documents.h"
#include "support/BaseDirecte.h"
#include "support/Fixtures.h"
#include "support/PiloteEcran.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {

class FeuilleDocumentsTest : public WorkFolderTest {
protected:
    void SetUp() override {
        WorkFolderTest::SetUp();
        base = copie_du_modèle(folder);
        module1().base_en_cours = base;
    }

    // What the menu's command does before showing the screen.
    feuille_documents& ouvrir() {
        auto& f = module1().feuilles().get<feuille_documents>();
        f.pointer_sur(module1().base_en_cours, QStringLiteral("SELECT * FROM documents"));
        montrer_active(f);
        return f;
    }

    QStringList intitulés() const { return colonne_du_fichier(base, "documents", "intitulé_bouton"); }
    QString légende(feuille_documents& f) const { return f.datPrimaryRS->Caption(); }

    QString base;
};

} // namespace

TEST_F(FeuilleDocumentsTest, declares_its_controls_limits_captions_and_tooltips) {
    auto& f = module1().feuilles().get<feuille_documents>();
    EXPECT_EQ(f.windowTitle(), "Documents");
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), "documents");
    EXPECT_EQ(f.intitulé->maxLength(), 30);
    EXPECT_EQ(f.intitulé->toolTip(),
              "Saisissez le nom du document tel qu'il apparaîtra dans la liste des documents");
    EXPECT_EQ(f.titre->maxLength(), 50);
    EXPECT_EQ(f.destinataire->maxLength(), 50);
    EXPECT_EQ(f.politesse->maxLength(), 254);
    EXPECT_EQ(f.post_scriptum->maxLength(), 254);
    for (QPlainTextEdit* p :
         {f.paragraphe1, f.paragraphe2, f.paragraphe3, f.paragraphe4, f.paragraphe5, f.paragraphe6})
        EXPECT_EQ(p->property("maxLength").toInt(), 254) << p->objectName().toStdString();

    EXPECT_EQ(f.Check1->text(), "affichage des coordonnées de l'élève");
    EXPECT_EQ(f.Check1->toolTip(),
              "Cliquez pour afficher les coordonnées de l'élève (nom, prénom date de nais. et "
              "classe) sur le document");
    EXPECT_EQ(f.Check2->text(), "affichage des coordonnées du responsable légal");
    EXPECT_EQ(f.Check2->toolTip(),
              "Cliquez pour afficher les coordonnées du responsable légal (nom et adresse) sur le document");
    EXPECT_EQ(f.Check3->text(), "affichage des coordonnées du directeur / de la directrice");
    EXPECT_EQ(f.Check3->toolTip(),
              "Cliquez pour afficher les coordonnées de l'élève (Monsieur X..., Directeur de "
              "l'école ... de ...) sur le document");
    EXPECT_EQ(f.Check4->text(), "affichage des zones de signature et de cachet sur le document");
    EXPECT_EQ(f.Check4->toolTip(), "Cliquez pour afficher la zone de signature sur le document");
    EXPECT_EQ(f.Check5->text(), "affichage de la date");
    EXPECT_EQ(f.Check5->toolTip(), "Cliquez pour afficher la date sur le document");

    EXPECT_EQ(f.Command2->text(), "V&oir");
    EXPECT_EQ(f.Command2->toolTip(), "Cliquez pour voir le document");
    EXPECT_EQ(f.cmdAjouter->text(), "&Ajouter");
    EXPECT_EQ(f.cmdSupprimer->text(), "&Supprimer");
    EXPECT_EQ(f.cmdRafraîchir->toolTip(),
              "Cliquez pour rafraichir les données, dans le cas d'une utilisation multi-utilisateurs");
    EXPECT_EQ(f.cmdMettreàjour->text(), "&Valider");
    EXPECT_EQ(f.cmdFermer->text(), "&Fermer");
    EXPECT_EQ(f.bouton_accepter, nullptr);
    EXPECT_EQ(f.grdDataGrid, nullptr);
}

TEST_F(FeuilleDocumentsTest, the_current_template_fills_the_boxes_and_check_boxes) {
    auto& f = ouvrir();
    EXPECT_EQ(légende(f), "Fiche: 1");
    EXPECT_EQ(f.intitulé->text(), "Certificat de scolarité");
    EXPECT_EQ(f.titre->text(), "CERTIFICAT DE SCOLARITÉ");
    EXPECT_TRUE(f.paragraphe1->toPlainText().startsWith("Je soussigné(e)"));
    EXPECT_TRUE(f.Check1->isChecked());
    EXPECT_FALSE(f.Check2->isChecked());
    cliquer(*f.datPrimaryRS, "suivant");
    EXPECT_EQ(légende(f), "Fiche: 2");
    EXPECT_EQ(f.intitulé->text(), "Certificat de radiation");
    EXPECT_TRUE(f.Check2->isChecked());
}

TEST_F(FeuilleDocumentsTest, valider_on_an_unchanged_row_keeps_position_and_caption) {
    journaliser_écritures(base, {"documents"});
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "suivant");
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(légende(f), "Fiche: 2");
    EXPECT_EQ(f.intitulé->text(), "Certificat de radiation");
    EXPECT_EQ(écritures_journalisées(base), 0);
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_EQ(ui().mousePointer(), vbDefault);
}

TEST_F(FeuilleDocumentsTest, ajouter_shows_0_and_a_move_without_typing_adds_no_row) {
    auto& f = ouvrir();
    cliquer(f, "cmdAjouter");
    EXPECT_EQ(légende(f), "Fiche: 0");
    EXPECT_EQ(f.intitulé->text(), "");
    EXPECT_EQ(f.paragraphe1->toPlainText(), "");
    EXPECT_FALSE(f.Check1->isChecked());
    cliquer(*f.datPrimaryRS, "premier");
    EXPECT_EQ(intitulés().size(), 3);
    EXPECT_EQ(légende(f), "Fiche: 1");
}

TEST_F(FeuilleDocumentsTest, a_new_template_typed_and_saved_lands_in_the_file_with_its_check_boxes) {
    auto& f = ouvrir();
    cliquer(f, "cmdAjouter");
    taper(f.intitulé, "Sortie scolaire");
    taper(f.paragraphe1, "Une sortie est prévue.");
    f.Check1->setFocus();
    QTest::keyClick(f.Check1, Qt::Key_Space);
    f.Check5->setFocus();
    QTest::keyClick(f.Check5, Qt::Key_Space);
    cliquer(f, "cmdMettreàjour");
    ASSERT_EQ(intitulés().size(), 4);
    EXPECT_EQ(intitulés().last(), "Sortie scolaire");
    EXPECT_EQ(colonne_du_fichier(base, "documents", "paragraphe1_document").last(), "Une sortie est prévue.");
    EXPECT_NE(colonne_du_fichier(base, "documents", "affichage_coordonnées_élève").last(), "0");
    EXPECT_EQ(colonne_du_fichier(base, "documents", "affichage_coordonnées_responsable_légal").last(), "0");
    EXPECT_NE(colonne_du_fichier(base, "documents", "affichage_date").last(), "0");
    EXPECT_EQ(légende(f), "Fiche: 4");
    EXPECT_EQ(f.intitulé->text(), "Sortie scolaire");
}

TEST_F(FeuilleDocumentsTest, closing_with_an_edited_row_writes_it) {
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "dernier");
    f.titre->selectAll();
    taper(f.titre, "RÉUNION");
    f.Check2->setFocus();
    QTest::keyClick(f.Check2, Qt::Key_Space);
    cliquer(f, "cmdFermer");
    processDeletions();
    EXPECT_FALSE(module1().feuilles().isLoaded<feuille_documents>());
    EXPECT_EQ(colonne_du_fichier(base, "documents", "titre_document").last(), "RÉUNION");
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FeuilleDocumentsTest, refresh_goes_back_to_the_first_record) {
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "dernier");
    cliquer(f, "cmdRafraîchir");
    EXPECT_EQ(légende(f), "Fiche: 1");
    EXPECT_EQ(f.intitulé->text(), "Certificat de scolarité");
}

TEST_F(FeuilleDocumentsTest, deleting_lands_on_the_next_row_and_on_the_new_last_at_the_end) {
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "suivant");
    cliquer(f, "cmdSupprimer");
    EXPECT_EQ(f.intitulé->text(), "Réunion de parents");
    cliquer(f, "cmdSupprimer");
    EXPECT_EQ(f.intitulé->text(), "Certificat de scolarité");
    EXPECT_EQ(intitulés(), QStringList{"Certificat de scolarité"});
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FeuilleDocumentsTest, deleting_the_only_row_fails_untrapped_with_3021_and_the_screen_stays) {
    exécuter_par_le_moteur(base,
                           "DELETE * FROM documents WHERE titre_document <> \"CERTIFICAT DE SCOLARITÉ\"");
    auto& f = ouvrir();
    ui().expectMsgBox();
    cliquer(f, "cmdSupprimer");
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3021)));
    EXPECT_TRUE(intitulés().isEmpty());
    EXPECT_TRUE(module1().feuilles().isLoaded<feuille_documents>());
    EXPECT_TRUE(f.isVisible());
}

TEST_F(FeuilleDocumentsTest, a_refused_save_shows_the_standard_box_and_keeps_the_edit_on_screen) {
    exécuter_par_le_moteur(base, "CREATE UNIQUE INDEX intitulé_unique ON documents (intitulé_bouton)");
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "suivant");
    f.intitulé->selectAll();
    taper(f.intitulé, "Certificat de scolarité");
    ui().expectMsgBox();
    cliquer(f, "cmdMettreàjour");
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3022)));
    EXPECT_EQ(f.intitulé->text(), "Certificat de scolarité");
    EXPECT_TRUE(f.datPrimaryRS->DataChanged());
    EXPECT_EQ(intitulés()[1], "Certificat de radiation");
    EXPECT_EQ(ui().mousePointer(), vbDefault);
}

TEST_F(FeuilleDocumentsTest, a_paragraph_takes_no_more_than_254_characters) {
    auto& f = ouvrir();
    f.paragraphe6->setFocus();
    taper(f.paragraphe6, QString(260, QChar('x')));
    EXPECT_EQ(f.paragraphe6->toPlainText().size(), 254);
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(colonne_du_fichier(base, "documents", "paragraphe6_document").first(),
              QString(254, QChar('x')));
}

TEST_F(FeuilleDocumentsTest, voir_is_present_and_leaves_the_data_alone) {
    journaliser_écritures(base, {"documents"});
    auto& f = ouvrir();
    cliquer(f, "Command2");
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_EQ(écritures_journalisées(base), 0);
    EXPECT_EQ(légende(f), "Fiche: 1");
}
