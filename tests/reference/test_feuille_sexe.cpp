// The table of sexes on a copy of the template: a grid screen of the shared frame, whose typing,
// saving and error boxes the frame's own tests walk; here what is the sexes' own.
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/ui/ErrorBoxes.h"
#include "reference/feuille_sexe.h"
#include "store/Module1.h"
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

TEST_F(FeuilleSexeTest, declares_its_caption_grid_and_accept_button) {
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

TEST_F(FeuilleSexeTest, deleting_the_only_row_then_adding_show_3021_each_time_and_the_screen_stays_open) {
    exécuter_par_le_moteur(base, "DELETE * FROM sexe WHERE détails = \"Féminin\"");
    auto& f = ouvrir();
    ui().expectMsgBox();
    cliquer(f, "cmdSupprimer");
    ASSERT_EQ(ui().boxes().size(), 1u);
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3021)));
    EXPECT_EQ(ui().lastBox().buttons, vbExclamation + vbOKOnly);
    EXPECT_EQ(ui().lastBox().title, "Norvane v2");
    EXPECT_TRUE(sexes().isEmpty());
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(f.grdDataGrid->model()->rowCount(), 1) << "only the empty new row is left";

    // Ajouter fails in its move to the last row, without a handler of its own.
    ui().expectMsgBox();
    cliquer(f, "cmdAjouter");
    ASSERT_EQ(ui().boxes().size(), 2u);
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3021)));
    EXPECT_TRUE(f.isVisible());
    EXPECT_TRUE(sexes().isEmpty());
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
