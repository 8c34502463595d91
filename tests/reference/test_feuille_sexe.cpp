// The table of sexes on a copy of the template: a grid screen of the shared frame, form B of add,
// the data error box shown, and the hidden accept button.
#include "platform/errors/ErrorBoxes.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Module1.h"
#include "reference/feuille_sexe.h"
#include "support/BaseDirecte.h"
#include "support/Fixtures.h"
#include "support/PiloteEcran.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

class FeuilleSexeTest : public WorkFolderTest {
protected:
    void SetUp() override {
        WorkFolderTest::SetUp();
        base = copie_du_modèle(folder);
        module1().base_en_cours = base;
    }

    // What the menu's command does before showing the screen.
    feuille_sexe& ouvrir() {
        auto& f = module1().feuilles().get<feuille_sexe>();
        f.pointer_sur(module1().base_en_cours, QStringLiteral("SELECT * FROM sexe"));
        montrer_active(f);
        return f;
    }

    QStringList sexes() const { return colonne_du_fichier(base, "sexe", "détails"); }
    static QString cellule(DBGrid& g, int ligne) { return g.model()->index(ligne, 0).data().toString(); }

    QString base;
};

} // namespace

TEST_F(FeuilleSexeTest, declares_its_caption_grid_buttons_and_tooltips) {
    auto& f = module1().feuilles().get<feuille_sexe>();
    EXPECT_EQ(f.objectName(), "feuille_sexe");
    EXPECT_EQ(f.windowTitle(), "Table des sexes");
    EXPECT_EQ(f.datPrimaryRS->DatabaseName(), "");
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), "sexe");
    ASSERT_NE(f.grdDataGrid, nullptr);
    ASSERT_EQ(f.grdDataGrid->model()->columnCount(), 1);
    EXPECT_EQ(f.grdDataGrid->model()->headerData(0, Qt::Horizontal).toString(), "détails");

    ASSERT_NE(f.bouton_accepter, nullptr);
    EXPECT_FALSE(f.bouton_accepter->isVisibleTo(&f));
    EXPECT_EQ(f.bouton_accepter->text(), "Accepter");
    EXPECT_EQ(f.bouton_accepter->toolTip(),
              "Cliquez pour accepter ces données et les insérer dans la fiche d'origine");
    EXPECT_EQ(f.cmdAjouter->text(), "&Ajouter");
    EXPECT_EQ(f.cmdAjouter->toolTip(), "Cliquez pour créer une nouvelle fiche de saisie");
    EXPECT_EQ(f.cmdSupprimer->text(), "&Supprimer");
    EXPECT_EQ(f.cmdSupprimer->toolTip(), "Cliquez pour supprimer la fiche en cours");
    EXPECT_EQ(f.cmdRafraîchir->text(), "&Rafraîchir");
    EXPECT_EQ(f.cmdRafraîchir->toolTip(),
              "Cliquez pour rafraîchir les données, dans le cas d'une utilisation multi-utilisateurs");
    EXPECT_EQ(f.cmdMettreàjour->text(), "&Valider");
    EXPECT_EQ(f.cmdMettreàjour->toolTip(), "Cliquez pour enregistrer les renseignements en cours");
    EXPECT_EQ(f.cmdFermer->text(), "&Fermer");
    EXPECT_EQ(f.cmdFermer->toolTip(), "Cliquez pour fermer cette fenêtre");
}

TEST_F(FeuilleSexeTest, shows_the_table_with_the_numbered_caption_and_the_column_limit) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    ASSERT_EQ(g.model()->rowCount(), 3);
    EXPECT_EQ(cellule(g, 0), "Masculin");
    EXPECT_EQ(cellule(g, 1), "Féminin");
    EXPECT_EQ(cellule(g, 2), "");
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 1");
    cliquer(*f.datPrimaryRS, "dernier");
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 2");
    EXPECT_EQ(g.currentIndex().row(), 1);

    g.setFocus();
    g.edit(g.currentIndex());
    auto* éditeur = qobject_cast<QLineEdit*>(focus_actuel());
    ASSERT_NE(éditeur, nullptr);
    EXPECT_EQ(éditeur->maxLength(), 8) << "a sex fits the pupil's box";
}

TEST_F(FeuilleSexeTest, ajouter_leaves_the_focus_in_the_new_row_and_leaving_it_writes_the_typed_row) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    cliquer(f, "cmdAjouter");
    EXPECT_EQ(g.currentIndex().row(), g.newRow());
    ASSERT_NE(focus_actuel(), nullptr);
    EXPECT_TRUE(g.isAncestorOf(focus_actuel()));
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 2");

    taper_au_focus("Neutre");
    touche_au_focus(Qt::Key_Return);
    EXPECT_EQ(sexes().size(), 2) << "not written while the row is current";
    QTest::keyClick(&g, Qt::Key_Up);
    EXPECT_EQ(sexes(), (QStringList{"Masculin", "Féminin", "Neutre"}));
    EXPECT_EQ(cellule(g, 2), "Neutre");
    EXPECT_EQ(g.newRow(), 3);
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 2");
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FeuilleSexeTest, closing_the_screen_writes_the_row_being_typed) {
    auto& f = ouvrir();
    cliquer(f, "cmdAjouter");
    taper_au_focus("Autre");
    cliquer(f, "cmdFermer");
    processDeletions();
    EXPECT_FALSE(module1().feuilles().isLoaded<feuille_sexe>());
    EXPECT_EQ(sexes().last(), "Autre");
    EXPECT_EQ(ui().mousePointer(), vbDefault);
}

TEST_F(FeuilleSexeTest, closing_with_an_edited_cell_writes_it) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    g.setFocus();
    QTest::keyClick(&g, Qt::Key_F2);
    auto* éditeur = qobject_cast<QLineEdit*>(focus_actuel());
    ASSERT_NE(éditeur, nullptr);
    éditeur->selectAll();
    taper_au_focus("Garçon");
    touche_au_focus(Qt::Key_Return);
    f.Unload();
    EXPECT_EQ(sexes(), (QStringList{"Garçon", "Féminin"}));
}

TEST_F(FeuilleSexeTest, valider_on_an_unchanged_row_keeps_position_and_caption) {
    journaliser_écritures(base, {"sexe"});
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "dernier");
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 2");
    EXPECT_EQ(f.grdDataGrid->currentIndex().row(), 1);
    EXPECT_EQ(écritures_journalisées(base), 0);
    EXPECT_EQ(ui().mousePointer(), vbDefault);
}

TEST_F(FeuilleSexeTest, refresh_goes_back_to_the_first_record) {
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "dernier");
    exécuter_par_le_moteur(base, "INSERT INTO sexe (détails) VALUES (\"Inconnu\")");
    cliquer(f, "cmdRafraîchir");
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 1");
    EXPECT_EQ(f.grdDataGrid->currentIndex().row(), 0);
    EXPECT_EQ(f.grdDataGrid->model()->rowCount(), 4) << "another user's row shows after the refresh";
}

TEST_F(FeuilleSexeTest, deleting_the_only_row_shows_3021_removes_it_and_the_screen_stays_open) {
    exécuter_par_le_moteur(base, "DELETE * FROM sexe WHERE détails = \"Féminin\"");
    auto& f = ouvrir();
    ui().expectMsgBox();
    cliquer(f, "cmdSupprimer");
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3021)));
    EXPECT_EQ(ui().lastBox().buttons, vbExclamation + vbOKOnly);
    EXPECT_EQ(ui().lastBox().title, "Norvane v2");
    EXPECT_TRUE(sexes().isEmpty());
    EXPECT_TRUE(module1().feuilles().isLoaded<feuille_sexe>());
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(f.grdDataGrid->model()->rowCount(), 1) << "only the empty new row is left";
}

TEST_F(FeuilleSexeTest, deleting_a_row_lands_on_the_next_one) {
    auto& f = ouvrir();
    cliquer(f, "cmdSupprimer");
    EXPECT_EQ(sexes(), QStringList{"Féminin"});
    EXPECT_EQ(f.grdDataGrid->Text(), "Féminin");
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 1");
}

TEST_F(FeuilleSexeTest, a_row_the_engine_refuses_shows_the_data_error_box_and_stays_typed) {
    exécuter_par_le_moteur(base, "CREATE UNIQUE INDEX sexe_unique ON sexe (détails)");
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    cliquer(f, "cmdAjouter");
    taper_au_focus("Masculin");
    touche_au_focus(Qt::Key_Return);
    ui().expectMsgBox();
    QTest::keyClick(&g, Qt::Key_Up);
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, "Data error event hit err:" + error_text(3022));
    EXPECT_EQ(ui().lastBox().buttons, vbOKOnly);
    EXPECT_EQ(g.currentIndex().row(), g.newRow());
    EXPECT_EQ(cellule(g, g.newRow()), "Masculin");
    EXPECT_EQ(sexes().size(), 2);
}

TEST_F(FeuilleSexeTest, accepting_with_no_known_caller_copies_nothing_and_hides_the_button) {
    auto& f = ouvrir();
    f.bouton_accepter->show();
    module1().origine_appel = 7;
    cliquer(f, "bouton_accepter");
    EXPECT_FALSE(f.bouton_accepter->isVisible());
    EXPECT_TRUE(f.isVisible());
    EXPECT_TRUE(module1().feuilles().isLoaded<feuille_sexe>());
    EXPECT_EQ(module1().origine_appel, 7);
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FeuilleSexeTest, ajouter_on_an_empty_table_fails_in_its_move_last_without_a_handler) {
    exécuter_par_le_moteur(base, "DELETE * FROM sexe");
    auto& f = ouvrir();
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 0");
    ui().expectMsgBox();
    cliquer(f, "cmdAjouter");
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3021)));
    EXPECT_TRUE(f.isVisible());
    EXPECT_TRUE(sexes().isEmpty());
}
