// What a user reads and may type on the pupil screen: captions, entry limits and help texts of every tab.
#include "people/feuille_eleve.h"
#include "platform/forms/LimiteSaisie.h"
#include "support/Fixtures.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int une_ligne_sans_limite = 0;
constexpr int plusieurs_lignes = -1;

struct Attendu {
    const char* champ;
    int onglet;
    const char* légende; // text of the caption label, or of the caption button
    const char* bouton;  // caption button, nullptr when the caption is a label
    int longueur;        // entry limit, une_ligne_sans_limite or plusieurs_lignes
    const char* aide;    // help text, nullptr for none
};

const char* const choix = "Cliquez pour accéder aux différents choix possibles";

// clang-format off
const Attendu fiche[] = {
    {"date_inscription", 0, "date d'inscription", "Command15", une_ligne_sans_limite,
     "Date d'inscription de l'élève dans l'établissement (au format JJ/MM/AAAA)"},
    {"date_naissance", 0, "date de naissance", nullptr, une_ligne_sans_limite,
     "Date de naissance de l'élève (au format JJ/MM/AAAA)"},
    {"lieu_naissance", 0, "lieu de naissance", nullptr, 50, "Lieu de naissance de l'élève"},
    {"sexe", 0, "sexe", "Command7", 8, "Sexe de l'élève"},
    {"nationalité", 0, "nationalité", "Command5", 30, "Nationalité de l'élève"},
    {"code_nationalité", 0, "code nationalité", nullptr, 5, "Code de la nationalité de l'élève"},
    {"chemin_photo", 0, "photo", "Command14", 254, "chemin d'accès à la photo de l'élève"},
    {"date_radiation", 0, "date de radiation", nullptr, une_ligne_sans_limite,
     "Date de radiation de l'établissement pour l'élève concerné (au format JJ/MM/AAAA)"},
    {"établissement_accueil", 0, "Etablissement d'accueil", nullptr, 50,
     "Coordonnées de l'établissement d'accueil suite à la radiation"},

    {"référence_classe_élève", 1, "référence de la classe", "Command12", 5, "Référence de la classe"},
    {"niveau_classe_élève", 1, "niveau", nullptr, 10, "Niveau de la classe dans laquelle est inscrit l'élève"},
    {"cycle_classe_élève", 1, "cycle", nullptr, 1, "Cycle dans lequel est inscrit l'élève"},
    {"cursus_allongé_élève", 1, "cursus allongé", nullptr, 50, "Détails du cursus de l'élève (allongement)"},
    {"saisine_ccpe_élève", 1, "saisine MDPH", nullptr, 50,
     "Détails des opérations de signalement de l'élève (date saisine,....)"},
    {"langue_vivante_élève", 1, "langue vivante", "Command11", 30, "Langue vivante étudiée par l'élève"},

    {"nom_contact1", 2, nullptr, nullptr, 30, "Nom d'une personne à contacter"},
    {"prénom_contact1", 2, nullptr, nullptr, 30, "Prénom d'une personne à contacter"},
    {"téléphone_contact1", 2, nullptr, nullptr, 20, "Coordonnées téléphoniques d'une personne à contacter"},
    {"nom_contact2", 2, nullptr, nullptr, 30, "Nom d'une personne à contacter"},
    {"prénom_contact2", 2, nullptr, nullptr, 30, "Prénom d'une personne à contacter"},
    {"téléphone_contact2", 2, nullptr, nullptr, 20, "Coordonnées téléphoniques d'une personne à contacter"},
    {"nom_contact3", 2, nullptr, nullptr, 30, "Nom d'une personne à contacter"},
    {"prénom_contact3", 2, nullptr, nullptr, 30, "Prénom d'une personne à contacter"},
    {"téléphone_contact3", 2, nullptr, nullptr, 20, "Coordonnées téléphoniques d'une personne à contacter"},
    {"nom_contact4", 2, nullptr, nullptr, 30, "Nom d'une personne à contacter"},
    {"prénom_contact4", 2, nullptr, nullptr, 30, "Prénom d'une personne à contacter"},
    {"téléphone_contact4", 2, nullptr, nullptr, 20, "Coordonnées téléphoniques d'une personne à contacter"},
    {"nom_contact5", 2, nullptr, nullptr, 30, "Nom d'une personne à contacter"},
    {"prénom_contact5", 2, nullptr, nullptr, 30, "Prénom d'une personne à contacter"},
    {"téléphone_contact5", 2, nullptr, nullptr, 20, "Coordonnées téléphoniques d'une personne à contacter"},

    {"numéro_résidence", 3, "numéro", nullptr, 10, "Numéro de voirie"},
    {"adresse_résidence", 3, "adresse", "Command8", 50, "Adresse - première composante de l'adresse"},
    {"adresse2_résidence", 3, "suite adresse", nullptr, 50, "Adresse - deuxième composante éventuelle"},
    {"code_postal_résidence", 3, "code postal", "Command9", 8, "Code postal"},
    {"ville_résidence", 3, "ville", "Command10", 50, "Ville"},
    {"téléphone1_résidence", 3, "téléphone1", nullptr, 20, "Coordonnées téléphoniques"},
    {"téléphone2_résidence", 3, "téléphone 2", nullptr, 20, "Coordonnées téléphoniques"},

    {"vaccinations", 4, "vaccinations", nullptr, 50, "Vaccinations"},
    {"allergies", 4, "allergies", nullptr, 50, "Allergies"},
    {"contre_indications", 4, "contre indications", nullptr, 50, "Contre indications"},
    {"observations_médicales", 4, "observations médicales", nullptr, plusieurs_lignes,
     "Observations médicales uniquement --- ATTENTION : aucun renseignement préjudiciable à l'enfant ou à la "
     "famille "},
    {"participation_usep", 4, "participation USEP", nullptr, 20, "USEP"},
    {"restauration_scolaire", 4, "restauration scolaire", nullptr, 30, "Restauration scolaire"},
    {"coopérative_scolaire", 4, "coopérative scolaire", nullptr, 30, "Coopérative scolaire"},
    {"observations_générales", 4, "observations générales", nullptr, plusieurs_lignes,
     "Observations générales sur l'enfant --- ATTENTION : aucune donnée préjudiciable à l'enfant ou à la "
     "famille"},

    {"champ_paramétable1", 5, "champ paramétable 1", nullptr, 50, nullptr},
    {"champ_paramétable2", 5, "champ paramétable 2", nullptr, 50, nullptr},
    {"champ_paramétable3", 5, "champ paramétable 3", nullptr, 50, nullptr},
    {"champ_paramétable4", 5, "champ paramétable 4", nullptr, 50, nullptr},
    {"champ_paramétable5", 5, "champ paramétable 5", nullptr, plusieurs_lignes, nullptr},
    {"champ_paramétable6", 6, "champ paramétable 6", nullptr, 50, nullptr},
    {"champ_paramétable7", 6, "champ paramétable 7", nullptr, 50, nullptr},
    {"champ_paramétable8", 6, "champ paramétable 8", nullptr, 50, nullptr},
    {"champ_paramétable9", 6, "champ paramétable 9", nullptr, plusieurs_lignes, nullptr},
    {"champ_paramétable10", 6, "champ paramétable 10", nullptr, plusieurs_lignes, nullptr},
};

// Buttons and boxes whose caption and help text stand on their own.
const struct { const char* nom; const char* légende; const char* aide; } boutons[] = {
    {"Command15", "date d'inscription", "Cliquez pour accepter la date du jour comme date d'inscription"},
    {"Command14", "photo", "Cliquez pour choisir la photo de l'élève"},
    {"Command7", "sexe", choix},
    {"Command5", "nationalité", choix},
    {"Command12", "référence de la classe", choix},
    {"Command11", "langue vivante", choix},
    {"Command8", "adresse", choix},
    {"Command9", "code postal", choix},
    {"Command10", "ville", choix},
    {"Command16", "CLIQUEZ ICI si l'adresse de résidence est identique à celle du responsable légal",
     "Cliquez pour accepter automatiquement l'adresse du responsable légal en tant qu'adresse du "
     "responsable légal"},
    {"documents_suite", "Imprimer le document sélectionné",
     "Cliquez pour imprimer le document sélectionné dans la liste ci-dessus pour l'élève en cours"},
    {"Command6", "Modifier  le document sélectionné",
     "Cliquez pour modifier le document sélectionné dans la liste ci-dessus"},
    {"Command2", "matricule",
     "Cliquez ici pour accéder à une fiche précise directement à partir d'un matricule"},
    {"Command13", "nom",
     "Cliquez ici pour accéder à une fiche précise directement à partir d'un nom (ou d'une partie de nom avec "
     "utilisation de ? et *)"},
    {"Command4", "Parents", "Cliquez pour accéder à la fiche des parents de l'élève en cours"},
    {"Command3", "&Imprimer", "Cliquez pour imprimer la fiche"},
    {"cmdAjouter", "&Ajouter", "Cliquez pour créer une nouvelle fiche de saisie"},
    {"cmdSupprimer", "&Supprimer", "Cliquez pour supprimer la fiche en cours"},
    {"cmdRafraîchir", "&Rafraîchir",
     "Cliquez pour rafraîchir les données, dans le cas d'une utilisation multi-utilisateurs"},
    {"cmdMettreàjour", "&Valider", "Cliquez pour enregistrer les renseignements en cours"},
    {"cmdFermer", "&Fermer", "Cliquez pour fermer cette fenêtre"},
};
// clang-format on

class FicheEleve : public ::testing::Test {
protected:
    std::unique_ptr<feuille_élève> f = std::make_unique<feuille_élève>();

    template <class T> T* trouve(const char* nom) const { return f->findChild<T*>(u(nom)); }

    // The caption a user reads beside a field: the label that names it as its buddy.
    QString étiquette_de(QWidget* champ) const {
        for (QLabel* l : f->findChildren<QLabel*>())
            if (l->buddy() == champ)
                return l->text();
        return u"<aucune>"_s;
    }
};

TEST_F(FicheEleve, EveryFieldOfTheTabsHasItsCaptionLimitHelpAndPage) {
    for (const Attendu& a : fiche) {
        SCOPED_TRACE(a.champ);
        auto* champ = trouve<QWidget>(a.champ);
        ASSERT_NE(champ, nullptr);
        EXPECT_TRUE(f->SSTab1->widget(a.onglet)->isAncestorOf(champ));
        EXPECT_EQ(champ->toolTip(), a.aide ? u(a.aide) : QString());
        if (a.bouton) {
            EXPECT_EQ(trouve<QPushButton>(a.bouton)->text(), u(a.légende));
        } else if (a.légende) {
            EXPECT_EQ(étiquette_de(champ), u(a.légende));
        }
        if (a.longueur == plusieurs_lignes) {
            auto* zone = qobject_cast<QPlainTextEdit*>(champ);
            ASSERT_NE(zone, nullptr);
            EXPECT_EQ(zone->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        } else {
            auto* ligne = qobject_cast<QLineEdit*>(champ);
            ASSERT_NE(ligne, nullptr);
            EXPECT_EQ(limite_saisie(*ligne), a.longueur == une_ligne_sans_limite ? 32767 : a.longueur);
        }
    }
}

TEST_F(FicheEleve, ButtonsCarryTheirCaptionsAndHelpTexts) {
    for (const auto& b : boutons) {
        SCOPED_TRACE(b.nom);
        auto* bouton = trouve<QPushButton>(b.nom);
        ASSERT_NE(bouton, nullptr);
        EXPECT_EQ(bouton->text(), u(b.légende));
        EXPECT_EQ(bouton->toolTip(), u(b.aide));
    }
    EXPECT_EQ(f->Check1->text(), u("Impression directe sans prévisualisation"));
    EXPECT_EQ(f->Check2->toolTip(), u("indication de l'aîné dans l'école, dont le nom servira en particulier "
                                      "pour les opérations électorales"));
}

TEST_F(FicheEleve, TheBandAboveTheTabs) {
    EXPECT_EQ(f->windowTitle(), u("Fiche élève"));
    EXPECT_FALSE(f->SSTab1->isAncestorOf(f->matricule));
    EXPECT_EQ(limite_saisie(*f->matricule), 10);
    EXPECT_EQ(limite_saisie(*f->nom_enfant), 30);
    EXPECT_EQ(limite_saisie(*f->prénom_enfant), 30);
    EXPECT_EQ(étiquette_de(f->prénom_enfant), u("prénom"));
    EXPECT_EQ(étiquette_de(f->référence_famille), u("Référence famille"));
    EXPECT_EQ(limite_saisie(*f->référence_famille), 32767);
    EXPECT_EQ(f->référence_famille->toolTip(), u("Référence de la famille : ne pas modifier..."));
    EXPECT_TRUE(f->référence_famille->alignment() & Qt::AlignRight);
    EXPECT_EQ(f->Combo1->toolTip(), u("Cliquez pour modifier l'ordre d'apparition des fiches"));
    // The entries of the list, each with its order, are walked on a base of pupils.
    EXPECT_EQ(f->Combo1->count(), 13);
}

TEST_F(FicheEleve, TheEightTabsInOrder) {
    const char* onglets[] = {"&Identité",       "&Classe",     "&Personnes autorisées", "&Résidence",
                             "&Santé / Divers", "Autres (&1)", "Autres (&2)",           "&Documents"};
    ASSERT_EQ(f->SSTab1->count(), 8);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(f->SSTab1->tabText(i), u(onglets[i]));
}

TEST_F(FicheEleve, LookupFieldsAreDisabledAndThePathAndHelpCarriersHidden) {
    f->show();
    const QStringList fermés = u("sexe nationalité adresse_résidence code_postal_résidence ville_résidence "
                                 "référence_classe_élève niveau_classe_élève cycle_classe_élève "
                                 "langue_vivante_élève")
                                   .split(u' ');
    int désactivés = 0;
    for (auto* e : f->findChildren<QLineEdit*>())
        désactivés += e->isEnabled() ? 0 : 1;
    EXPECT_EQ(désactivés, 9);
    for (const QString& nom : fermés)
        EXPECT_FALSE(f->findChild<QLineEdit*>(nom)->isEnabled()) << nom.toStdString();
    EXPECT_TRUE(f->code_nationalité->isEnabled());

    f->SSTab1->setCurrentIndex(0);
    EXPECT_FALSE(f->chemin_photo->isVisible());
    EXPECT_TRUE(f->Command14->isVisible());
    f->SSTab1->setCurrentIndex(5);
    for (int i = 2; i <= 11; ++i) {
        f->SSTab1->setCurrentIndex(i <= 6 ? 5 : 6);
        auto* porteur = trouve<QLabel>(u"Label%1"_s.arg(i).toUtf8().constData());
        ASSERT_NE(porteur, nullptr) << i;
        EXPECT_FALSE(porteur->isVisible()) << i;
        EXPECT_EQ(porteur->text(), u("infobulle"));
    }
}

TEST_F(FicheEleve, TheEldestCaptionBlinksWhateverTheBoxHolds) {
    EXPECT_EQ(f->Timer1->interval(), 500);
    EXPECT_TRUE(f->Timer1->isActive());
    const QString aîné = u("Aîné dans l'école");
    EXPECT_EQ(f->Check2->text(), aîné);
    f->Check2->setChecked(true);
    f->Timer1_Timer();
    EXPECT_EQ(f->Check2->text(), QString());
    EXPECT_TRUE(f->Check2->isChecked());
    f->Timer1_Timer();
    EXPECT_EQ(f->Check2->text(), aîné);
    EXPECT_TRUE(f->Check2->isChecked());
}

// On a display 1024 pixels wide the screen, in its window of the main window, still shows every order
// of the list and every caption of the buttons whole.
TEST_F(FicheEleve, AtItsSmallestTheScreenFitsA1024DisplayAndShowsEveryOrderWhole) {
    f->show();
    const QSize plus_petite = f->minimumSizeHint().expandedTo(f->minimumSize());
    EXPECT_LE(plus_petite.width(), 1000);
    f->resize(plus_petite);
    QApplication::processEvents();
    for (int i = 0; i < f->Combo1->count(); ++i) {
        f->Combo1->setCurrentIndex(i);
        QStyleOptionComboBox option;
        option.initFrom(f->Combo1);
        option.currentText = f->Combo1->currentText();
        const QRect texte = f->Combo1->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                               QStyle::SC_ComboBoxEditField, f->Combo1);
        EXPECT_GE(texte.width(), f->Combo1->fontMetrics().horizontalAdvance(option.currentText))
            << option.currentText.toStdString();
    }
    for (QPushButton* b : f->findChildren<QPushButton*>()) {
        if (!b->isVisibleTo(f.get()) || f->SSTab1->isAncestorOf(b))
            continue;
        EXPECT_GE(b->width(), b->fontMetrics().horizontalAdvance(b->text().remove(u'&')) + 8)
            << b->objectName().toStdString();
    }
}
} // namespace
