// The teaching team: its record screen, and the class picker of the pupil screen.
#include "people/feuille_eleve.h"
#include "reference/feuille_equipe.h"
#include "support/Donnees.h"
#include "support/Programme.h"

using namespace Qt::StringLiterals;

namespace {

class FicheEnseignant : public ProgrammeSurModèle {
protected:
    void SetUp() override {
        ProgrammeSurModèle::SetUp();
        remplir_consultations();
    }
    // Command12 "référence de la classe", pressed on its page.
    feuille_équipe& choisir_la_classe(feuille_élève& élève) {
        élève.SSTab1->setCurrentIndex(1);
        QTest::mouseClick(élève.Command12, Qt::LeftButton);
        auto* équipe = module1().feuilles().siChargée<feuille_équipe>();
        if (!équipe)
            throw std::runtime_error("pas de fiche enseignant");
        return *équipe;
    }
    // The pupil's three class fields, on the screen and, once saved, in the file.
    static QString classe(const feuille_élève& élève) {
        return élève.référence_classe_élève->text() + u'|' + élève.niveau_classe_élève->text() + u'|' +
               élève.cycle_classe_élève->text();
    }
    QString classe_dans_le_fichier(feuille_élève& élève) const {
        cliquer(élève, u"cmdMettreàjour"_s);
        return fichier("élèves", "référence_classe_élève").value(0) + u'|' +
               fichier("élèves", "niveau_classe_élève").value(0) + u'|' +
               fichier("élèves", "cycle_classe_élève").value(0);
    }
};

TEST_F(FicheEnseignant, FieldsAndButtonsAsTheTablesSayTheClassCentredAndTheAcceptGreyedInView) {
    auto& f = module1().feuilles().get<feuille_équipe>();
    jouer_table_des_champs(f, u"equipe_champs.tsv"_s, true);
    jouer_table_des_boutons(f, u"equipe_boutons.tsv"_s);
    EXPECT_EQ(f.windowTitle(), u("Fiche enseignant"));
    for (const char* nom :
         {"référence_classe_enseignant", "niveau_classe_enseignant", "cycle_classe_enseignant"})
        EXPECT_EQ(f.findChild<QLineEdit*>(u(nom))->alignment(), Qt::AlignCenter) << nom;
    EXPECT_NE(f.nom_enseignant->alignment(), Qt::AlignCenter);
    EXPECT_EQ(f.bouton_accepter->parentWidget()->objectName(), u("Frame3"));
    EXPECT_FALSE(f.bouton_accepter->isHidden());
    EXPECT_FALSE(f.bouton_accepter->isEnabled());
    EXPECT_TRUE(f.Command3->isEnabled());
}

TEST_F(FicheEnseignant, TheMenuCommandShowsTheStaffFileWithTheButtonGreyedAndTheBareCaption) {
    module1().origine_appel = 3;
    feuille_équipe& f = ouvrir_équipe();
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), u("SELECT * FROM équipe"));
    EXPECT_EQ(f.datPrimaryRS->Caption(), u("1"));
    EXPECT_EQ(f.nom_enseignant->text(), u("DURAND"));
    EXPECT_FALSE(f.bouton_accepter->isEnabled());
    EXPECT_EQ(module1().origine_appel, 3);
    cliquer(f, u("Command3"));
    cliquer(f, u("cmdAjouter"));
    EXPECT_EQ(f.nom_enseignant->text(), QString());
    EXPECT_EQ(f.datPrimaryRS->Caption(), u("0"));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FicheEnseignant, PickingTheClassCopiesItsThreeFieldsAndTheFocusTurnsToTheClassTab) {
    feuille_élève& élève = ouvrir_élève();
    feuille_équipe& équipe = choisir_la_classe(élève);
    EXPECT_TRUE(équipe.isVisible());
    EXPECT_TRUE(équipe.bouton_accepter->isEnabled());
    EXPECT_EQ(module1().origine_appel, 7);
    élève.SSTab1->setCurrentIndex(4);
    cliquer(équipe, u("bouton_accepter"));
    EXPECT_EQ(classe(élève), u("12|CE1|2"));
    EXPECT_FALSE(module1().feuilles().contient(&équipe));
    EXPECT_FALSE(équipe.bouton_accepter->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), élève.cursus_allongé_élève);
    EXPECT_EQ(élève.SSTab1->currentIndex(), 1);
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_EQ(classe_dans_le_fichier(élève), u("12|CE1|2"));
}

TEST_F(FicheEnseignant, OnAnEmptyTeamCommand12StartsANewRowAndAcceptingCopiesThreeEmptyFields) {
    sql("DELETE * FROM équipe");
    sql("UPDATE élèves SET référence_classe_élève = \"9\", niveau_classe_élève = \"CP\", cycle_classe_élève "
        "= \"2\"");
    feuille_élève& élève = ouvrir_élève();
    feuille_équipe& équipe = choisir_la_classe(élève);
    EXPECT_TRUE(équipe.datPrimaryRS->isAddingNew());
    cliquer(équipe, u("bouton_accepter"));
    EXPECT_EQ(classe(élève), u("||"));
    EXPECT_EQ(classe_dans_le_fichier(élève), u("<null>|<null>|<null>"));
    EXPECT_TRUE(fichier("équipe", "nom_enseignant").isEmpty()) << "the untouched new teacher is not written";
}

TEST_F(FicheEnseignant, ANewTeacherNotYetSavedCanBeAccepted) {
    feuille_élève& élève = ouvrir_élève();
    feuille_équipe& équipe = choisir_la_classe(élève);
    cliquer(équipe, u("cmdAjouter"));
    for (const auto& [boîte, texte] : {std::pair{équipe.nom_enseignant, "ROUX"},
                                       {équipe.référence_classe_enseignant, "14"},
                                       {équipe.niveau_classe_enseignant, "CM2"},
                                       {équipe.cycle_classe_enseignant, "3"}}) {
        boîte->setFocus();
        taper_au_focus(u(texte));
    }
    cliquer(équipe, u("bouton_accepter"));
    EXPECT_EQ(classe(élève), u("14|CM2|3"));
    EXPECT_EQ(fichier("équipe", "nom_enseignant"), (QStringList{u("DURAND"), u("ROUX")}))
        << "the new teacher is written as the screen unloads";
    EXPECT_EQ(classe_dans_le_fichier(élève), u("14|CM2|3"));
}

TEST_F(FicheEnseignant, OpenedFromThePupilWhileOpenFromTheMenuOnlyEnablesTheButtonAndUnloadDisablesIt) {
    feuille_équipe& depuis_le_menu = ouvrir_équipe();
    feuille_élève& élève = ouvrir_élève();
    EXPECT_EQ(&choisir_la_classe(élève), &depuis_le_menu);
    EXPECT_TRUE(depuis_le_menu.bouton_accepter->isEnabled());
    cliquer(depuis_le_menu, u("cmdFermer"));
    EXPECT_FALSE(depuis_le_menu.bouton_accepter->isEnabled());
    EXPECT_EQ(module1().origine_appel, 7);
}

} // namespace
