#include "reference/feuille_equipe.h"
#include "platform/forms/Disposition.h"

#include "platform/ui/ErrorBoxes.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/LimiteSaisie.h"
#include "reference/FeuilleConsultation.h"
#include "reference/feuille_adresses.h"
#include "reference/feuille_genres.h"
#include "reference/feuille_niveaux.h"
#include "reference/feuille_villes.h"
#include "reference/retours.h"
#include "store/ouvrir_table.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The team opens its lookups with this value of origine_appel.
constexpr int16_t origine_équipe = 6;

const char* const aide_choix = "Cliquez pour accéder aux différents choix possibles";

ConfigurationFiche configuration_équipe() {
    ConfigurationFiche c;
    c.nom = QStringLiteral("feuille_équipe");
    c.titre = QStringLiteral("Fiche enseignant");
    c.source_de_conception = QStringLiteral("select * from [équipe]");
    c.légende = LégendePosition::nue;
    c.ajout = FormeAjout::A;
    c.suppression = FormeSuppression::piégée;
    c.bouton_accepter = BoutonAccepter::désactivé;
    return c;
}

} // namespace

std::span<const feuille_équipe::Champ> feuille_équipe::champs() {
    using F = feuille_équipe;
    static const Champ table[] = {
        {"genre_enseignant", &F::genre_enseignant, "genre_enseignant", "Frame1", "genre", "Command5",
         &F::Command5, 20, "Monsieur, Madame, Mademoiselle", true},
        {"nom_enseignant", &F::nom_enseignant, "nom_enseignant", "Frame1", "nom", nullptr, nullptr, 30,
         "Nom de l'enseignant", false},
        {"prénom_enseignant", &F::prénom_enseignant, "prénom_enseignant", "Frame1", "prénom", nullptr,
         nullptr, 30, "Prénom de l'enseignant", false},
        {"numéro_enseignant", &F::numéro_enseignant, "numéro_enseignant", "Frame2", "numéro", nullptr,
         nullptr, 10, "Numéro de voirie", false},
        {"adresse1_enseignant", &F::adresse1_enseignant, "adresse1_enseignant", "Frame2", "adresse",
         "Command2", &F::Command2, 50, "Première composante de l'adresse", true},
        {"adresse_enseignant", &F::adresse_enseignant, "adresse2_enseignant", "Frame2", "adresse2", nullptr,
         nullptr, 50, "Deuxième composante éventuelle de l'adresse", false},
        {"code_postal_enseignant", &F::code_postal_enseignant, "code_postal_enseignant", "Frame2", "c.postal",
         "Command9", &F::Command9, 8, "Code postal", true},
        {"ville_enseignant", &F::ville_enseignant, "ville_enseignant", "Frame2", "ville", "Command7",
         &F::Command7, 50, "Ville", true},
        {"téléphone1_enseignant", &F::téléphone1_enseignant, "téléphone1_enseignant", "Frame2", "téléphone1",
         nullptr, nullptr, 20, "Coordonnées téléphoniques de l'enseignant", false},
        {"téléphone2_enseignant", &F::téléphone2_enseignant, "téléphone2_enseignant", "Frame2", "téléphone2",
         nullptr, nullptr, 20, "Coordonnées téléphoniques de l'enseignant", false},
        {"mail_enseignant", &F::mail_enseignant, "mail_enseignant", "Frame2", "E-mail", nullptr, nullptr, 50,
         "Adresse électronique de l'enseignant", false},
        {"référence_classe_enseignant", &F::référence_classe_enseignant, "référence_classe_enseignant",
         "Frame3", "référence classe", nullptr, nullptr, 5, "Référence numérique de la classe", false},
        {"niveau_classe_enseignant", &F::niveau_classe_enseignant, "niveau_classe_enseignant", "Frame3",
         "niveau", "Command4", &F::Command4, 10,
         "Niveau : TPS - PS - MS- GS - CP - CE1- CE2 - CM1 - CM2 - CLIN - CLIS - ADA", false},
        {"cycle_classe_enseignant", &F::cycle_classe_enseignant, "cycle_classe_enseignant", "Frame3", "cycle",
         nullptr, nullptr, 1, "Cycle : 1, 2 ou 3", false},
    };
    return table;
}

feuille_équipe::feuille_équipe() : FeuilleFiche(configuration_équipe()) {
    construire();
    connect(Command5, &QPushButton::clicked, this, [this] { Command5_Click(); });
    connect(Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
    connect(Command7, &QPushButton::clicked, this, [this] { Command7_Click(); });
    connect(Command9, &QPushButton::clicked, this, [this] { Command9_Click(); });
    connect(Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
}

// Three groups one above the other, each a column of captions and boxes; the accept button stands
// with the class it copies.
void feuille_équipe::construire() {
    auto* colonne = new QVBoxLayout(corps());
    colonne->setContentsMargins(0, 0, 0, 0);
    QGridLayout* grilles[3] = {};
    for (int i = 0; i < 3; ++i) {
        auto* groupe = new QGroupBox(corps());
        groupe->setObjectName(QStringLiteral("Frame%1").arg(i + 1));
        grilles[i] = new QGridLayout(groupe);
        grilles[i]->setColumnStretch(1, 1);
        colonne->addWidget(groupe);
    }
    QWidget* précédent = nullptr;
    for (const Champ& c : champs()) {
        const int g = QString::fromUtf8(c.groupe).back().digitValue() - 1;
        QWidget* parent = grilles[g]->parentWidget();
        auto* boîte = new QLineEdit(parent);
        boîte->setObjectName(QString::fromUtf8(c.nom));
        limiter_saisie(*boîte, c.longueur);
        boîte->setToolTip(QString::fromUtf8(c.infobulle));
        boîte->setEnabled(!c.désactivé);
        if (g == 2)
            boîte->setAlignment(Qt::AlignCenter);
        this->*c.membre = boîte;
        QWidget* légende = nullptr;
        if (c.bouton) {
            auto* bouton = new QPushButton(QString::fromUtf8(c.libellé), parent);
            bouton->setObjectName(QString::fromUtf8(c.bouton));
            bouton->setToolTip(QString::fromUtf8(aide_choix));
            this->*c.membre_bouton = bouton;
            légende = bouton;
        } else {
            auto* étiquette = new QLabel(QString::fromUtf8(c.libellé), parent);
            étiquette->setBuddy(boîte);
            légende = étiquette;
        }
        const int ligne = grilles[g]->rowCount();
        grilles[g]->addWidget(légende, ligne, 0);
        grilles[g]->addWidget(boîte, ligne, 1);
        datPrimaryRS->bind(boîte, QString::fromUtf8(c.colonne));
        if (précédent)
            setTabOrder(précédent, boîte);
        précédent = boîte;
    }
    retirer_de(layout(), bouton_accepter);
    grilles[2]->addWidget(bouton_accepter, grilles[2]->rowCount(), 1);

    Command3 = new QPushButton(QStringLiteral("&Imprimer"), corps());
    Command3->setObjectName(QStringLiteral("Command3"));
    Command3->setToolTip(QStringLiteral("Cliquez pour imprimer la fiche"));
    auto* bas = new QHBoxLayout;
    bas->addStretch(1);
    bas->addWidget(Command3);
    colonne->addLayout(bas);
}

void feuille_équipe::Command5_Click() {
    avec_piège(ErrorBoxKind::standard,
               [] { consulter<feuille_genres>(ouvrir_table_genres, origine_équipe); });
}

void feuille_équipe::Command2_Click() {
    avec_piège(ErrorBoxKind::standard,
               [] { consulter<feuille_adresses>(ouvrir_table_adresses, origine_équipe); });
}

// "ville" and "c.postal" open the same picker, which fills both.
void feuille_équipe::Command7_Click() {
    avec_piège(ErrorBoxKind::standard,
               [] { consulter<feuille_villes>(ouvrir_table_villes, origine_équipe); });
}

void feuille_équipe::Command9_Click() {
    Command7_Click();
}

void feuille_équipe::Command4_Click() {
    avec_piège(ErrorBoxKind::standard,
               [] { consulter<feuille_niveaux>(ouvrir_table_niveaux, origine_équipe); });
}

void feuille_équipe::bouton_accepter_Click() {
    accepter(*this);
}
