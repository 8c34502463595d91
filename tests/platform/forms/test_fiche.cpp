// The shared frame on a screen of bound boxes: binding, navigator, Validate and Reposition, the
// handlers of the buttons, the error paths, tab following.
#include "EcransEssai.h"

#include "platform/forms/LimiteSaisie.h"
#include "platform/ui/ErrorBoxes.h"

using namespace Qt::StringLiterals;

namespace {

class FicheTest : public ÉcransEssaiTest {
protected:
    template <class F = feuille_essai> F& ouvrir() { return ouvrir_sur<F>(u"SELECT * FROM fiches"_s); }

    QStringList noms() const { return colonne_du_fichier(base, u"fiches"_s, u"nom"_s); }
    QString légende(FeuilleFiche& f) const { return f.datPrimaryRS->Caption(); }
};

// A screen whose data errors are shown.
class feuille_essai_bavarde : public feuille_essai {
public:
    feuille_essai_bavarde() : feuille_essai(configuration()) {}
    static ConfigurationFiche configuration() {
        ConfigurationFiche c = configuration_par_défaut();
        c.nom = u"feuille_essai_bavarde"_s;
        c.boîte_erreur_données = true;
        c.infobulle_rafraîchir = InfobulleRafraîchir::rafraichier;
        return c;
    }
};

// A screen with no add and no delete.
class feuille_essai_muette : public feuille_essai {
public:
    feuille_essai_muette() : feuille_essai(configuration()) {}
    static ConfigurationFiche configuration() {
        ConfigurationFiche c = configuration_par_défaut();
        c.nom = u"feuille_essai_muette"_s;
        c.ajout = FormeAjout::aucune;
        c.suppression = FormeSuppression::aucune;
        return c;
    }
};

} // namespace

TEST_F(FicheTest, every_kind_of_bound_control_shows_the_current_row_and_writes_back_to_it) {
    auto& f = ouvrir();
    EXPECT_EQ(f.nom->text(), "Alpha");
    EXPECT_EQ(f.naissance->text(), "01/02/2015");
    EXPECT_TRUE(f.actif->isChecked());
    EXPECT_EQ(f.notes->toPlainText(), "première");
    EXPECT_EQ(f.libellé->text(), "un");
    EXPECT_EQ(f.naissance_affichée->text(), "01/02/2015");
    EXPECT_EQ(légende(f), "Fiche: 1");
    EXPECT_FALSE(f.datPrimaryRS->DataChanged());
    // A check box writes a boolean and a date is typed as JJ/MM/AAAA.
    f.actif->setFocus();
    QTest::keyClick(f.actif, Qt::Key_Space);
    EXPECT_FALSE(f.actif->isChecked());
    f.naissance->selectAll();
    taper(f.naissance, "25/12/2016");
    cliquer(*f.datPrimaryRS, "suivant");
    EXPECT_EQ(colonne_du_fichier(base, "fiches", "actif").first(), "0");
    EXPECT_EQ(colonne_du_fichier(base, "fiches", "naissance").first(), "2016-12-25");
    cliquer(*f.datPrimaryRS, "premier");
    EXPECT_FALSE(f.actif->isChecked());
    EXPECT_EQ(f.naissance->text(), "25/12/2016");
    EXPECT_EQ(f.naissance_affichée->text(), "25/12/2016")
        << "a label showing the same column is no edit of its own";
    f.libellé->setText("étiquette"); // a label the code writes is an edit of its own
    EXPECT_TRUE(f.datPrimaryRS->DataChanged());
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(colonne_du_fichier(base, "fiches", "libellé").first(), "étiquette");
    cliquer(*f.datPrimaryRS, "dernier");
    EXPECT_EQ(f.nom->text(), "Charlie");
    EXPECT_EQ(f.naissance->text(), "") << "an empty date shows as an empty box";
    EXPECT_EQ(f.notes->toPlainText(), "");
}

TEST_F(FicheTest, the_navigator_arrows_move_and_stop_at_both_ends) {
    auto& f = ouvrir();
    for (const auto& [flèche, nom, position] : {std::tuple{"précédent", "Alpha", "Fiche: 1"},
                                                {"suivant", "Bravo", "Fiche: 2"},
                                                {"dernier", "Charlie", "Fiche: 3"},
                                                {"suivant", "Charlie", "Fiche: 3"},
                                                {"premier", "Alpha", "Fiche: 1"}}) {
        cliquer(*f.datPrimaryRS, flèche);
        EXPECT_EQ(f.nom->text() + u' ' + légende(f), QString(nom) + u' ' + position) << flèche;
    }
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FicheTest, typing_then_moving_writes_the_row_and_an_unchanged_row_is_never_rewritten) {
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "suivant");
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(légende(f), "Fiche: 2") << "Valider on an unchanged row keeps its place";
    EXPECT_EQ(f.nom->text(), "Bravo");
    cliquer(*f.datPrimaryRS, "premier");
    cliquer(f, "cmdRafraîchir");
    EXPECT_EQ(écritures_journalisées(base), 0);

    f.nom->selectAll();
    taper(f.nom, "Alfred");
    cliquer(*f.datPrimaryRS, "suivant");
    EXPECT_EQ(noms(), (QStringList{"Alfred", "Bravo", "Charlie"}));
    EXPECT_EQ(écritures_journalisées(base), 1);
    EXPECT_EQ(f.nom->text(), "Bravo");
}

TEST_F(FicheTest, validate_receives_the_action_codes_and_the_pointer_cycles) {
    auto& f = ouvrir();
    f.actions.clear();
    cliquer(*f.datPrimaryRS, "suivant");
    EXPECT_EQ(ui().mousePointer(), vbDefault);
    cliquer(*f.datPrimaryRS, "précédent");
    cliquer(*f.datPrimaryRS, "dernier");
    cliquer(*f.datPrimaryRS, "premier");
    cliquer(f, "cmdMettreàjour");
    cliquer(f, "cmdAjouter");
    cliquer(f, "cmdRafraîchir");
    cliquer(f, "cmdSupprimer");
    EXPECT_EQ(f.actions, (std::vector<int>{vbDataActionMoveNext, vbDataActionMovePrevious,
                                           vbDataActionMoveLast, vbDataActionMoveFirst, vbDataActionUpdate,
                                           vbDataActionBookmark, vbDataActionAddNew, vbDataActionClose,
                                           vbDataActionDelete, vbDataActionMoveNext}));
    // Every action puts up the hourglass and every Reposition takes it away.
    EXPECT_NE(std::ranges::find(ui().pointerHistory(), vbHourglass), ui().pointerHistory().end());
    EXPECT_EQ(ui().mousePointer(), vbDefault);

    f.actions.clear();
    cliquer(f, "cmdFermer");
    EXPECT_EQ(f.actions, std::vector<int>{vbDataActionUnload});
    EXPECT_EQ(ui().mousePointer(), vbDefault) << "Form_Unload puts the pointer back after the final Validate";
}

TEST_F(FicheTest, ajouter_shows_an_empty_row_numbered_0_which_valider_adds_only_once_typed_into) {
    auto& f = ouvrir();
    cliquer(f, "cmdAjouter");
    EXPECT_EQ(légende(f), "Fiche: 0");
    EXPECT_EQ(f.nom->text(), "");
    EXPECT_FALSE(f.actif->isChecked());
    cliquer(*f.datPrimaryRS, "premier");
    EXPECT_EQ(écritures_journalisées(base), 0);

    cliquer(f, "cmdAjouter");
    taper(f.nom, "Delta");
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(noms(), (QStringList{"Alpha", "Bravo", "Charlie", "Delta"}));
    EXPECT_EQ(légende(f), "Fiche: 4");
    EXPECT_EQ(f.nom->text(), "Delta");
}

TEST_F(FicheTest, closing_with_an_edited_or_new_row_writes_it_without_a_question) {
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "suivant");
    f.nom->selectAll();
    taper(f.nom, "Bertrand");
    cliquer(f, "cmdFermer");
    processDeletions();
    EXPECT_FALSE(module1().feuilles().isLoaded<feuille_essai>());
    EXPECT_EQ(noms(), (QStringList{"Alpha", "Bertrand", "Charlie"}));

    auto& g = ouvrir();
    cliquer(g, "cmdAjouter");
    taper(g.nom, "Echo");
    g.Unload();
    EXPECT_EQ(noms().last(), "Echo");
}

TEST_F(FicheTest, a_value_longer_than_its_box_stays_whole_on_screen_and_in_the_file_and_typing_stops_at_it) {
    sql_direct(base, "UPDATE fiches SET nom = 'Alphonsine-Bérénice' WHERE nom = 'Alpha'");
    auto& f = ouvrir();
    limiter_saisie(*f.nom, 5);
    cliquer(*f.datPrimaryRS, "suivant");
    cliquer(*f.datPrimaryRS, "premier");
    EXPECT_EQ(f.nom->text(), "Alphonsine-Bérénice");
    f.nom->setText("Bernadette-Sophie");
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(noms().first(), "Bernadette-Sophie") << "what the program writes is saved whole";

    f.nom->selectAll();
    taper(f.nom, "Annabelle");
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(noms().first(), "Annab");
}

TEST_F(FicheTest, refresh_goes_back_to_the_first_record_and_sees_other_users_rows) {
    auto& f = ouvrir();
    cliquer(*f.datPrimaryRS, "dernier");
    sql_direct(base, "INSERT INTO fiches (nom) VALUES ('Foxtrot')");
    cliquer(f, "cmdRafraîchir");
    EXPECT_EQ(légende(f), "Fiche: 1");
    cliquer(*f.datPrimaryRS, "dernier");
    EXPECT_EQ(f.nom->text(), "Foxtrot");
    cliquer(*f.datPrimaryRS, "premier");
    f.nom->setText("Alphonse");
    cliquer(f, "cmdRafraîchir");
    EXPECT_EQ(noms().first(), "Alphonse") << "an edited row is written first";
    EXPECT_EQ(f.nom->text(), "Alphonse");
}

TEST_F(FicheTest, deleting_lands_on_the_next_row_or_the_new_last_and_the_only_row_shows_3021) {
    auto& f = ouvrir();
    cliquer(f, "cmdSupprimer");
    EXPECT_EQ(f.nom->text(), "Bravo");
    cliquer(*f.datPrimaryRS, "dernier");
    cliquer(f, "cmdSupprimer");
    EXPECT_EQ(f.nom->text(), "Bravo");
    EXPECT_EQ(noms(), QStringList{"Bravo"});
    ASSERT_TRUE(ui().boxes().empty());
    ui().expectMsgBox();
    cliquer(f, "cmdSupprimer");
    EXPECT_EQ(ui().lastBox(),
              ScriptedInteraction::Box::titled(texte_erreur(ErrorBoxKind::standard, VbError(3021)),
                                               vbExclamation + vbOKOnly));
    EXPECT_TRUE(noms().isEmpty());
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(ui().mousePointer(), vbDefault);
}

TEST_F(FicheTest, supprimer_on_a_new_unsaved_row_shows_3021_deletes_nothing_and_the_row_can_be_saved) {
    sql_direct(base, "DELETE FROM fiches");
    auto& f = ouvrir();
    cliquer(f, "cmdAjouter");
    taper(f.nom, "Delta");
    ui().expectMsgBox();
    cliquer(f, "cmdSupprimer");
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3021)));
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(noms(), QStringList{"Delta"});
}

TEST_F(FicheTest, a_refused_save_or_close_shows_the_box_and_keeps_the_edit_on_screen) {
    auto& f = ouvrir();
    f.naissance->selectAll();
    taper(f.naissance, "31/02/2015");
    ui().expectMsgBox();
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3421)));
    EXPECT_EQ(f.naissance->text(), "31/02/2015");
    EXPECT_TRUE(f.datPrimaryRS->DataChanged());
    EXPECT_EQ(colonne_du_fichier(base, "fiches", "naissance").first(), "2015-02-01");
    // Fermer too is refused: the screen stays open with its edit.
    ui().expectMsgBox();
    cliquer(f, "cmdFermer");
    processDeletions();
    ASSERT_TRUE(module1().feuilles().isLoaded<feuille_essai>());
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3421)));
    EXPECT_EQ(f.naissance->text(), "31/02/2015");
    // Mended, the same edit goes through.
    f.naissance->setText("28/02/2015");
    cliquer(f, "cmdFermer");
    processDeletions();
    EXPECT_FALSE(module1().feuilles().isLoaded<feuille_essai>());
    EXPECT_EQ(colonne_du_fichier(base, "fiches", "naissance").first(), "2015-02-28");
}

// A failed write on an arrow goes to the Error event and the screen stays on the row; that handler
// shows a box on some screens, on others it clears the response without one.
TEST_F(FicheTest, a_failed_write_on_an_arrow_goes_to_the_error_event_and_stays_on_the_row) {
    auto& silencieuse = ouvrir();
    silencieuse.naissance->setText("pas une date");
    cliquer(*silencieuse.datPrimaryRS, "suivant");
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_EQ(silencieuse.naissance->text(), "pas une date");

    auto& f = ouvrir<feuille_essai_bavarde>();
    f.naissance->setText("pas une date");
    ui().expectMsgBox();
    cliquer(*f.datPrimaryRS, "suivant");
    const auto boîte =
        ScriptedInteraction::Box::titled("Data error event hit err:" + error_text(3421), vbOKOnly);
    EXPECT_EQ(ui().boxes(), std::vector{boîte});
    EXPECT_EQ(f.nom->text(), "Alpha");

    // Refused again when the screen unloads, the row is told once more, once.
    ui().expectMsgBox();
    f.Unload();
    processDeletions();
    EXPECT_TRUE(module1().feuilles().isLoaded<feuille_essai_bavarde>());
    EXPECT_EQ(ui().boxes(), std::vector(2, boîte));
}

// Another copy's save of the row on show stands: this copy's is refused, as is one of a row deleted
// meanwhile, until "Rafraîchir" or "Fermer" leaves the row. A save of another row is no conflict.
TEST_F(FicheTest, a_row_another_user_changed_or_deleted_since_it_was_shown_is_refused_until_left) {
    auto& f = ouvrir<feuille_essai_bavarde>();
    sql_direct(base, "UPDATE fiches SET nom = 'Bruno' WHERE nom = 'Bravo'");
    f.nom->setText("Alfred");
    cliquer(f, "cmdMettreàjour");
    sql_direct(base, "UPDATE fiches SET nom = 'Albert' WHERE nom = 'Alfred'");
    f.nom->setText("Alphonse");
    ui().expectMsgBox();
    cliquer(*f.datPrimaryRS, "suivant");
    EXPECT_EQ(ui().lastBox().text, "Data error event hit err:" + error_text(3197));
    cliquer(f, "cmdRafraîchir");
    EXPECT_EQ(f.nom->text(), "Albert");

    f.nom->setText("Perdu");
    sql_direct(base, "DELETE FROM fiches WHERE nom = 'Albert'");
    ui().expectMsgBox();
    cliquer(f, "cmdMettreàjour");
    EXPECT_EQ(ui().lastBox().text, texte_erreur(ErrorBoxKind::standard, VbError(3167)));
    cliquer(f, "cmdFermer");
    processDeletions();
    EXPECT_FALSE(module1().feuilles().isLoaded<feuille_essai_bavarde>());
    EXPECT_EQ(noms(), (QStringList{"Bruno", "Charlie"}));
}

// Refresh tooltips, positions and the frame's buttons the real screens use are played by their tables;
// here the forms no screen uses yet.
TEST_F(FicheTest, the_configuration_may_leave_out_add_and_delete_and_spell_the_refresh_tooltip_otherwise) {
    auto& muette = ouvrir<feuille_essai_muette>();
    EXPECT_EQ(muette.cmdAjouter, nullptr);
    EXPECT_EQ(muette.cmdSupprimer, nullptr);
    EXPECT_EQ(ouvrir<feuille_essai_bavarde>().cmdRafraîchir->toolTip(),
              "Cliquez pour rafraichier les données, dans le cas d'une utilisation multi-utilisateurs");
}
