// The data grid of the lookup screens under the shared frame: lines, headings, typing in cells, the
// empty new row, add form B, leaving a line, deleting, Col and Text.
#include "EcransEssai.h"

#include "platform/forms/DBGrid.h"

using namespace Qt::StringLiterals;

namespace {

class GrilleTest : public ÉcransEssaiTest {
protected:
    feuille_grille_essai& ouvrir() { return ouvrir_sur<feuille_grille_essai>(u"SELECT * FROM valeurs"_s); }

    QStringList détails() const { return colonne_du_fichier(base, "valeurs", "détails"); }
    static QString cellule(DBGrid& g, int ligne, int colonne) {
        return g.model()->index(ligne, colonne).data().toString();
    }
    static void aller(DBGrid& g, int ligne, int colonne) {
        g.setCurrentIndex(g.model()->index(ligne, colonne));
    }
    // F2 on a cell, as the user opens it for typing; its text is selected, ready to be typed over.
    static QLineEdit* éditer(DBGrid& g, int ligne, int colonne) {
        aller(g, ligne, colonne);
        g.setFocus();
        QTest::keyClick(&g, Qt::Key_F2);
        auto* éditeur = qobject_cast<QLineEdit*>(focus_actuel());
        if (éditeur)
            éditeur->selectAll();
        return éditeur;
    }
};

} // namespace

// Every row under its heading and an empty new row at the end, which without AllowAddNew stays hidden as
// rows come and go.
TEST_F(GrilleTest, shows_every_row_under_its_heading_and_an_empty_new_row_at_the_end) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    ASSERT_EQ(g.model()->columnCount(), 2);
    EXPECT_EQ(g.model()->headerData(1, Qt::Horizontal).toString(), "détails");
    ASSERT_EQ(g.model()->rowCount(), 4);
    EXPECT_EQ(cellule(g, 0, 1), "Ananas");
    EXPECT_EQ(cellule(g, 2, 0), "C");
    EXPECT_EQ(g.newRow(), 3);
    EXPECT_EQ(cellule(g, 3, 1), "");
    EXPECT_FALSE(g.model()->index(0, 1).data(Qt::CheckStateRole).isValid()) << "a cell shows no check box";
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 1");
    g.setAllowAddNew(false);
    EXPECT_FALSE(g.AllowAddNew());
    EXPECT_TRUE(g.isRowHidden(g.newRow()));
    EXPECT_FALSE(g.isRowHidden(2));

    aller(g, 1, 0);
    cliquer(f, "cmdSupprimer");
    ASSERT_EQ(g.newRow(), 2);
    EXPECT_TRUE(g.isRowHidden(2));
    EXPECT_FALSE(g.isRowHidden(1));
    cliquer(f, "cmdRafraîchir");
    EXPECT_TRUE(g.isRowHidden(g.newRow()));

    g.setAllowAddNew(true);
    EXPECT_FALSE(g.isRowHidden(g.newRow()));
}

TEST_F(GrilleTest, col_and_text_read_the_current_cell_typed_text_included) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    aller(g, 1, 0);
    EXPECT_EQ(g.Col(), 0);
    EXPECT_EQ(g.Text(), "B");
    g.setCol(1);
    EXPECT_EQ(g.Col(), 1);
    EXPECT_EQ(g.Text(), "Banane");
    EXPECT_THROW(g.setCol(2), VbError);

    QLineEdit* éditeur = éditer(g, 1, 0);
    ASSERT_NE(éditeur, nullptr);
    EXPECT_EQ(éditeur->maxLength(), 5) << "a cell editor keeps to the column size";
    touche_au_focus(Qt::Key_Escape);
    ASSERT_NE(éditer(g, 1, 1), nullptr);
    taper_au_focus("Bergamote");
    EXPECT_EQ(g.Text(), "Bergamote") << "the text being typed, before the line is left";
    EXPECT_EQ(détails()[1], "Banane");
}

// Leaving the line writes it, by a key or by an arrow of the navigator.
TEST_F(GrilleTest, typing_in_a_cell_then_leaving_the_line_writes_it) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    ASSERT_NE(éditer(g, 1, 1), nullptr);
    taper_au_focus("Brugnon");
    touche_au_focus(Qt::Key_Return);
    EXPECT_EQ(détails()[1], "Banane") << "nothing is written while the line is still current";
    QTest::keyClick(&g, Qt::Key_Down);
    EXPECT_EQ(détails(), (QStringList{"Ananas", "Brugnon", "Cerise"}));
    EXPECT_EQ(cellule(g, 1, 1), "Brugnon");
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 3");
    ASSERT_NE(éditer(g, 0, 0), nullptr);
    taper_au_focus("Z");
    cliquer(*f.datPrimaryRS, "suivant");
    EXPECT_EQ(colonne_du_fichier(base, "valeurs", "code").first(), "Z");
    EXPECT_EQ(g.currentIndex().row(), 1);
}

TEST_F(GrilleTest, ajouter_leaves_the_user_typing_in_the_new_row_and_leaving_it_writes_it) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    cliquer(f, "cmdAjouter");
    EXPECT_EQ(g.currentIndex().row(), g.newRow());
    ASSERT_NE(focus_actuel(), nullptr);
    EXPECT_TRUE(g.isAncestorOf(focus_actuel())) << "the focus is in the grid's cell editor";
    EXPECT_EQ(f.datPrimaryRS->Caption(), "Fiche: 3") << "the caption is not touched until the row is written";

    taper_au_focus("D");
    touche_au_focus(Qt::Key_Tab);
    taper_au_focus("Datte");
    touche_au_focus(Qt::Key_Return);
    EXPECT_EQ(détails().size(), 3);
    QTest::keyClick(&g, Qt::Key_Up);
    EXPECT_EQ(détails(), (QStringList{"Ananas", "Banane", "Cerise", "Datte"}));
    EXPECT_EQ(colonne_du_fichier(base, "valeurs", "code").last(), "D");
    EXPECT_EQ(g.model()->rowCount(), 5);
    EXPECT_EQ(cellule(g, 3, 1), "Datte");
    EXPECT_EQ(g.newRow(), 4);
    EXPECT_EQ(cellule(g, 4, 1), "");
}

// Stepping onto the new row and away without typing adds nothing; closing while typing in it writes it.
TEST_F(GrilleTest, the_new_row_is_written_once_typed_into_even_by_closing_the_screen) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    cliquer(f, "cmdAjouter");
    QTest::mouseClick(g.viewport(), Qt::LeftButton, {}, g.visualRect(g.model()->index(0, 1)).center());
    EXPECT_EQ(g.currentIndex().row(), 0);
    EXPECT_EQ(g.model()->rowCount(), 4);
    cliquer(f, "cmdAjouter");
    taper_au_focus("E");
    cliquer(f, "cmdFermer");
    processDeletions();
    EXPECT_FALSE(module1().feuilles().isLoaded<feuille_grille_essai>());
    EXPECT_EQ(détails(), (QStringList{"Ananas", "Banane", "Cerise", "E"})) << "typed where the focus stood";
}

TEST_F(GrilleTest, supprimer_removes_the_row_and_the_delete_key_only_clears_the_cell) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    aller(g, 1, 0);
    cliquer(f, "cmdSupprimer");
    EXPECT_EQ(détails(), (QStringList{"Ananas", "Cerise"}));
    EXPECT_EQ(g.model()->rowCount(), 3);
    EXPECT_EQ(g.currentIndex().row(), 1);
    EXPECT_EQ(g.Text(), "C");

    g.setFocus();
    QTest::keyClick(&g, Qt::Key_Delete);
    auto* éditeur = qobject_cast<QLineEdit*>(focus_actuel());
    ASSERT_NE(éditeur, nullptr) << "the cell opens for typing, its text gone";
    EXPECT_EQ(éditeur->text(), "");
    EXPECT_EQ(détails(), (QStringList{"Ananas", "Cerise"}));
}

TEST_F(GrilleTest, a_line_the_engine_refuses_shows_the_error_event_box_and_stays_under_edit) {
    sql_direct(base, "CREATE UNIQUE INDEX code_unique ON valeurs (code)");
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    cliquer(f, "cmdAjouter");
    taper_au_focus("A");
    touche_au_focus(Qt::Key_Return);
    ui().expectMsgBox();
    QTest::keyClick(&g, Qt::Key_Up);
    EXPECT_EQ(ui().lastBox().text, "Data error event hit err:" + error_text(3022));
    EXPECT_EQ(g.currentIndex().row(), g.newRow());
    EXPECT_EQ(cellule(g, g.newRow(), 0), "A");
    EXPECT_EQ(détails().size(), 3);
}

TEST_F(GrilleTest, a_double_click_accepts_even_with_the_button_hidden_and_enter_presses_it_shown) {
    auto& f = ouvrir();
    DBGrid& g = *f.grdDataGrid;
    aller(g, 2, 1);
    QTest::mouseDClick(g.viewport(), Qt::LeftButton, {}, g.visualRect(g.model()->index(2, 1)).center());
    EXPECT_EQ(f.acceptés, QStringList{"Cerise"});

    f.acceptés.clear();
    f.bouton_accepter->show();
    ASSERT_NE(éditer(g, 1, 1), nullptr);
    taper_au_focus("Bleuet");
    touche_au_focus(Qt::Key_Return);
    EXPECT_EQ(f.acceptés, QStringList{"Bleuet"}) << "with the text being typed";
}

// The accept button of a lookup starts hidden and unload hides it again; Escape closes the screen.
TEST_F(GrilleTest, escape_closes_a_lookup_screen_whose_unload_hides_its_accept_button_again) {
    auto& f = ouvrir();
    EXPECT_FALSE(f.bouton_accepter->isVisible());
    f.bouton_accepter->show();
    f.grdDataGrid->setFocus();
    touche_au_focus(Qt::Key_Escape);
    EXPECT_FALSE(f.bouton_accepter->isVisibleTo(&f));
    processDeletions();
    EXPECT_FALSE(module1().feuilles().isLoaded<feuille_grille_essai>());
}

TEST_F(GrilleTest, tab_past_the_last_cell_leaves_the_grid_and_opens_no_other_row) {
    auto& f = ouvrir();
    cliquer(f, "cmdAjouter");
    taper_au_focus("D");
    touche_au_focus(Qt::Key_Tab);
    taper_au_focus("Datte");
    touche_au_focus(Qt::Key_Tab);
    EXPECT_EQ(focus_actuel(), f.cmdAjouter) << "the next control";
    taper_au_focus("X");
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(colonne_du_fichier(base, "valeurs", "code"), (QStringList{"A", "B", "C", "D"}));
}

TEST_F(GrilleTest, an_access_key_of_the_frame_takes_the_cell_being_typed_in_as_a_click_does) {
    auto& f = ouvrir();
    cliquer(f, "cmdAjouter");
    taper_au_focus("E");
    QTest::keyClick(focus_actuel(), Qt::Key_V, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&f] { return !f.cmdMettreàjour->isDown(); })); // its press shows a moment
    EXPECT_EQ(colonne_du_fichier(base, "valeurs", "code").last(), "E");
}
