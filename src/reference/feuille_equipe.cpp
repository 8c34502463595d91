#include "reference/feuille_equipe.h"
#include "platform/forms/Disposition.h"

#include "platform/forms/DataControl.h"
#include "reference/retours.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* aide_choix = "Cliquez pour accéder aux différents choix possibles";

ConfigurationFiche configuration_équipe() {
    ConfigurationFiche c;
    c.nom = u"feuille_équipe"_s;
    c.titre = u"Fiche enseignant"_s;
    c.source_de_conception = u"select * from [équipe]"_s;
    c.légende = LégendePosition::nue;
    c.ajout = FormeAjout::A;
    c.suppression = FormeSuppression::piégée;
    c.bouton_accepter = BoutonAccepter::désactivé;
    return c;
}

} // namespace

std::span<const FieldRow<feuille_équipe>> feuille_équipe::champs() {
    using F = feuille_équipe;
    // clang-format off
    static const FieldRow<F> table[] = {
        {.name = "genre_enseignant", .member = &F::genre_enseignant, .caption = "genre", .button = "Command5",
         .buttonMember = &F::Command5, .buttonTip = aide_choix, .limit = 20,
         .tip = "Monsieur, Madame, Mademoiselle", .group = "Frame1", .lookupFed = true},
        {.name = "nom_enseignant", .member = &F::nom_enseignant, .caption = "nom", .limit = 30,
         .tip = "Nom de l'enseignant", .group = "Frame1"},
        {.name = "prénom_enseignant", .member = &F::prénom_enseignant, .caption = "prénom", .limit = 30,
         .tip = "Prénom de l'enseignant", .group = "Frame1"},
        {.name = "numéro_enseignant", .member = &F::numéro_enseignant, .caption = "numéro", .limit = 10,
         .tip = "Numéro de voirie", .group = "Frame2"},
        {.name = "adresse1_enseignant", .member = &F::adresse1_enseignant, .caption = "adresse",
         .button = "Command2", .buttonMember = &F::Command2, .buttonTip = aide_choix, .limit = 50,
         .tip = "Première composante de l'adresse", .group = "Frame2", .lookupFed = true},
        {.name = "adresse_enseignant", .member = &F::adresse_enseignant, .column = "adresse2_enseignant",
         .caption = "adresse2", .limit = 50, .tip = "Deuxième composante éventuelle de l'adresse",
         .group = "Frame2"},
        {.name = "code_postal_enseignant", .member = &F::code_postal_enseignant, .caption = "c.postal",
         .button = "Command9", .buttonMember = &F::Command9, .buttonTip = aide_choix, .limit = 8,
         .tip = "Code postal", .group = "Frame2", .lookupFed = true},
        {.name = "ville_enseignant", .member = &F::ville_enseignant, .caption = "ville", .button = "Command7",
         .buttonMember = &F::Command7, .buttonTip = aide_choix, .limit = 50, .tip = "Ville",
         .group = "Frame2", .lookupFed = true},
        {.name = "téléphone1_enseignant", .member = &F::téléphone1_enseignant, .caption = "téléphone1",
         .limit = 20, .tip = "Coordonnées téléphoniques de l'enseignant", .group = "Frame2"},
        {.name = "téléphone2_enseignant", .member = &F::téléphone2_enseignant, .caption = "téléphone2",
         .limit = 20, .tip = "Coordonnées téléphoniques de l'enseignant", .group = "Frame2"},
        {.name = "mail_enseignant", .member = &F::mail_enseignant, .caption = "E-mail", .limit = 50,
         .tip = "Adresse électronique de l'enseignant", .group = "Frame2"},
        {.name = "référence_classe_enseignant", .member = &F::référence_classe_enseignant,
         .caption = "référence classe", .limit = 5, .tip = "Référence numérique de la classe",
         .group = "Frame3"},
        {.name = "niveau_classe_enseignant", .member = &F::niveau_classe_enseignant, .caption = "niveau",
         .button = "Command4", .buttonMember = &F::Command4, .buttonTip = aide_choix, .limit = 10,
         .tip = "Niveau : TPS - PS - MS- GS - CP - CE1- CE2 - CM1 - CM2 - CLIN - CLIS - ADA",
         .group = "Frame3"},
        {.name = "cycle_classe_enseignant", .member = &F::cycle_classe_enseignant, .caption = "cycle",
         .limit = 1, .tip = "Cycle : 1, 2 ou 3", .group = "Frame3"},
    };
    // clang-format on
    return table;
}

feuille_équipe::feuille_équipe() : FeuilleFiche(configuration_équipe()) {
    construire();
    brancher_consultations(*this);
}

// Three groups one above the other, each a column of captions and boxes; the accept button stands
// with the class it copies.
void feuille_équipe::construire() {
    auto* colonne = new QVBoxLayout(corps());
    colonne->setContentsMargins(0, 0, 0, 0);
    FieldBuilder disposition(*datPrimaryRS);
    for (const char* nom : {"Frame1", "Frame2", "Frame3"})
        colonne->addWidget(
            disposition.addGroupBox(QString::fromUtf8(nom), corps(),
                                    qstrcmp(nom, "Frame3") == 0 ? Qt::AlignCenter : Qt::Alignment()));
    disposition.build(*this, champs());
    disposition.chainTabOrder();
    retirer_de(layout(), bouton_accepter);
    const QString classe = u"Frame3"_s;
    disposition.grid(classe)->addWidget(bouton_accepter, disposition.nextRow(classe), 1, 1,
                                        disposition.columns(classe) - 1);

    Command3 = new QPushButton(u"&Imprimer"_s, corps());
    Command3->setObjectName(u"Command3"_s);
    Command3->setToolTip(u"Cliquez pour imprimer la fiche"_s);
    auto* bas = new QHBoxLayout;
    bas->addStretch(1);
    bas->addWidget(Command3);
    colonne->addLayout(bas);
}

void feuille_équipe::bouton_accepter_Click() {
    accepter(*this);
}
