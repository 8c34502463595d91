// The teaching team: its record screen, and the class picker of the pupil screen.
#include "Consultations.h"

#include "people/feuille_eleve.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/LimiteSaisie.h"
#include "platform/ui/ErrorBoxes.h"
#include "reference/feuille_equipe.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"
#include "support/PiloteEcran.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace {

class FicheEnseignant : public ConsultationsTest {
protected:
    // Command12 "référence de la classe", pressed on its page.
    feuille_équipe& choisir_la_classe(feuille_élève& élève) {
        élève.SSTab1->setCurrentIndex(1);
        QTest::mouseClick(élève.Command12, Qt::LeftButton);
        auto* équipe = module1().feuilles().siChargée<feuille_équipe>();
        if (!équipe)
            throw std::runtime_error("pas de fiche enseignant");
        return *équipe;
    }
    // The pupil's three class fields, as the screen shows them.
    static QStringList classe(const feuille_élève& élève) {
        return {élève.référence_classe_élève->text(), élève.niveau_classe_élève->text(),
                élève.cycle_classe_élève->text()};
    }
    QStringList classe_dans_le_fichier() const {
        return {fichier("élèves", "référence_classe_élève").value(0),
                fichier("élèves", "niveau_classe_élève").value(0),
                fichier("élèves", "cycle_classe_élève").value(0)};
    }
};

TEST_F(FicheEnseignant, DeclaresItsFieldsInKeyboardOrderWithTheirLimitsTooltipsAndGroups) {
    auto& f = module1().feuilles().get<feuille_équipe>();
    EXPECT_EQ(f.windowTitle(), u("Fiche enseignant"));
    EXPECT_EQ(f.datPrimaryRS->RecordSource(), u("select * from [équipe]"));
    struct Attendu {
        const char* nom;
        int longueur;
        const char* groupe;
        const char* infobulle;
        bool saisissable;
    };
    const Attendu attendus[] = {
        {"genre_enseignant", 20, "Frame1", "Monsieur, Madame, Mademoiselle", false},
        {"nom_enseignant", 30, "Frame1", "Nom de l'enseignant", true},
        {"prénom_enseignant", 30, "Frame1", "Prénom de l'enseignant", true},
        {"numéro_enseignant", 10, "Frame2", "Numéro de voirie", true},
        {"adresse1_enseignant", 50, "Frame2", "Première composante de l'adresse", false},
        {"adresse_enseignant", 50, "Frame2", "Deuxième composante éventuelle de l'adresse", true},
        {"code_postal_enseignant", 8, "Frame2", "Code postal", false},
        {"ville_enseignant", 50, "Frame2", "Ville", false},
        {"téléphone1_enseignant", 20, "Frame2", "Coordonnées téléphoniques de l'enseignant", true},
        {"téléphone2_enseignant", 20, "Frame2", "Coordonnées téléphoniques de l'enseignant", true},
        {"mail_enseignant", 50, "Frame2", "Adresse électronique de l'enseignant", true},
        {"référence_classe_enseignant", 5, "Frame3", "Référence numérique de la classe", true},
        {"niveau_classe_enseignant", 10, "Frame3",
         "Niveau : TPS - PS - MS- GS - CP - CE1- CE2 - CM1 - CM2 - CLIN - CLIS - ADA", true},
        {"cycle_classe_enseignant", 1, "Frame3", "Cycle : 1, 2 ou 3", true},
    };
    QWidget* précédent = nullptr;
    for (const Attendu& a : attendus) {
        SCOPED_TRACE(a.nom);
        auto* boîte = f.findChild<QLineEdit*>(u(a.nom));
        ASSERT_NE(boîte, nullptr);
        EXPECT_EQ(limite_saisie(*boîte), a.longueur);
        EXPECT_EQ(boîte->toolTip(), u(a.infobulle));
        EXPECT_EQ(boîte->isEnabled(), a.saisissable);
        EXPECT_EQ(boîte->parentWidget()->objectName(), u(a.groupe));
        EXPECT_EQ(boîte->alignment() == Qt::AlignCenter, u(a.groupe) == u("Frame3"));
        if (précédent)
            EXPECT_EQ(précédent->nextInFocusChain(), boîte);
        précédent = boîte;
    }
    const std::pair<const char*, const char*> boutons[] = {
        {"Command5", "genre"}, {"Command2", "adresse"}, {"Command9", "c.postal"},
        {"Command7", "ville"}, {"Command4", "niveau"},
    };
    for (const auto& [nom, légende] : boutons) {
        auto* b = f.findChild<QPushButton*>(u(nom));
        ASSERT_NE(b, nullptr) << nom;
        EXPECT_EQ(b->text(), u(légende));
        EXPECT_EQ(b->toolTip(), u("Cliquez pour accéder aux différents choix possibles"));
    }
    EXPECT_EQ(f.bouton_accepter->parentWidget()->objectName(), u("Frame3"));
    EXPECT_FALSE(f.bouton_accepter->isHidden()) << "in view, greyed";
    EXPECT_FALSE(f.bouton_accepter->isEnabled());
    EXPECT_EQ(f.Command3->text(), u("&Imprimer"));
    EXPECT_EQ(f.Command3->toolTip(), u("Cliquez pour imprimer la fiche"));
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
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_TRUE(f.isVisible());
}

TEST_F(FicheEnseignant, AjouterIsAPlainNewRowWrittenOnSave) {
    feuille_équipe& f = ouvrir_équipe();
    cliquer(f, u("cmdAjouter"));
    EXPECT_EQ(f.nom_enseignant->text(), u(""));
    EXPECT_EQ(f.datPrimaryRS->Caption(), u("0"));
    f.nom_enseignant->setText(u("PETIT"));
    cliquer(f, u("cmdMettreàjour"));
    EXPECT_EQ(fichier("équipe", "nom_enseignant"), (QStringList{u("DURAND"), u("PETIT")}));
    EXPECT_EQ(f.datPrimaryRS->Caption(), u("2"));
}

TEST_F(FicheEnseignant, PickingTheClassCopiesItsThreeFieldsAndTheFocusTurnsToTheClassTab) {
    feuille_élève& élève = ouvrir_élève();
    feuille_équipe& équipe = choisir_la_classe(élève);
    EXPECT_TRUE(équipe.isVisible());
    EXPECT_TRUE(équipe.bouton_accepter->isEnabled());
    EXPECT_EQ(module1().origine_appel, 7);
    élève.SSTab1->setCurrentIndex(4);
    cliquer(équipe, u("bouton_accepter"));
    EXPECT_EQ(classe(élève), (QStringList{u("12"), u("CE1"), u("2")}));
    EXPECT_FALSE(module1().feuilles().contient(&équipe));
    EXPECT_FALSE(équipe.bouton_accepter->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), élève.cursus_allongé_élève);
    EXPECT_EQ(élève.SSTab1->currentIndex(), 1);
    EXPECT_TRUE(ui().boxes().empty());

    cliquer(élève, u("cmdMettreàjour"));
    EXPECT_EQ(classe_dans_le_fichier(), (QStringList{u("12"), u("CE1"), u("2")}));
}

TEST_F(FicheEnseignant, OnAnEmptyTeamCommand12StartsANewRowAndAcceptingCopiesThreeEmptyFields) {
    exécuter_par_le_moteur(base, u("DELETE * FROM équipe"));
    exécuter_par_le_moteur(base, u("UPDATE élèves SET référence_classe_élève = \"9\", niveau_classe_élève = "
                                   "\"CP\", cycle_classe_élève = \"2\""));
    feuille_élève& élève = ouvrir_élève();
    ASSERT_EQ(classe(élève), (QStringList{u("9"), u("CP"), u("2")}));
    feuille_équipe& équipe = choisir_la_classe(élève);
    EXPECT_TRUE(équipe.datPrimaryRS->isAddingNew());
    EXPECT_EQ(équipe.datPrimaryRS->Caption(), u("0"));
    cliquer(équipe, u("bouton_accepter"));
    EXPECT_EQ(classe(élève), (QStringList{u(""), u(""), u("")}));
    cliquer(élève, u("cmdMettreàjour"));
    EXPECT_EQ(classe_dans_le_fichier(), (QStringList{u("<null>"), u("<null>"), u("<null>")}));
    EXPECT_TRUE(fichier("équipe", "nom_enseignant").isEmpty()) << "the untouched new teacher is not written";
}

TEST_F(FicheEnseignant, ANewTeacherNotYetSavedCanBeAccepted) {
    feuille_élève& élève = ouvrir_élève();
    feuille_équipe& équipe = choisir_la_classe(élève);
    cliquer(équipe, u("cmdAjouter"));
    équipe.nom_enseignant->setFocus();
    for (const auto& [boîte, texte] : {std::pair{équipe.nom_enseignant, "ROUX"},
                                       {équipe.référence_classe_enseignant, "14"},
                                       {équipe.niveau_classe_enseignant, "CM2"},
                                       {équipe.cycle_classe_enseignant, "3"}}) {
        boîte->setFocus();
        taper_au_focus(u(texte));
    }
    cliquer(équipe, u("bouton_accepter"));
    EXPECT_EQ(classe(élève), (QStringList{u("14"), u("CM2"), u("3")}));
    EXPECT_EQ(fichier("équipe", "nom_enseignant"), (QStringList{u("DURAND"), u("ROUX")}))
        << "the new teacher is written as the screen unloads";
    cliquer(élève, u("cmdMettreàjour"));
    EXPECT_EQ(classe_dans_le_fichier(), (QStringList{u("14"), u("CM2"), u("3")}));
}

TEST_F(FicheEnseignant, AnotherLookupOpenedMeanwhileLeavesTheAcceptToDisableItselfOnly) {
    feuille_élève& élève = ouvrir_élève();
    feuille_équipe& équipe = choisir_la_classe(élève);
    élève.SSTab1->setCurrentIndex(0);
    QTest::mouseClick(élève.Command7, Qt::LeftButton);
    ASSERT_EQ(module1().origine_appel, 1);
    cliquer(équipe, u("bouton_accepter"));
    EXPECT_TRUE(module1().feuilles().contient(&équipe));
    EXPECT_FALSE(équipe.bouton_accepter->isEnabled());
    EXPECT_EQ(classe(élève), (QStringList{u(""), u(""), u("")}));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FicheEnseignant, OpenedFromThePupilWhileOpenFromTheMenuOnlyEnablesTheButtonAndUnloadDisablesIt) {
    feuille_équipe& depuis_le_menu = ouvrir_équipe();
    feuille_élève& élève = ouvrir_élève();
    feuille_équipe& équipe = choisir_la_classe(élève);
    EXPECT_EQ(&équipe, &depuis_le_menu);
    EXPECT_TRUE(équipe.bouton_accepter->isEnabled());
    cliquer(équipe, u("cmdFermer"));
    EXPECT_FALSE(équipe.bouton_accepter->isEnabled());
    EXPECT_EQ(module1().origine_appel, 7);
}

} // namespace
