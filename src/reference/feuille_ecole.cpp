#include "reference/feuille_ecole.h"

namespace {
using F = feuille_école;
constexpr const char* choix = "Cliquez pour accéder aux différents choix possibles";
} // namespace

feuille_école::feuille_école()
    : FicheCoordonnées("feuille_école", "Fiche école", "école", "&Directeur/Directrice") {
    construire(*this, champs());
}

std::span<const FieldRow<feuille_école>> feuille_école::champs() {
    // clang-format off
    static const FieldRow<F> table[] = {
        {.name = "nom_école", .member = &F::nom_école, .caption = "nom de l'école", .limit = 50,
         .tip = "Nom de l'école", .group = "Frame2"},
        {.name = "numéro_école", .member = &F::numéro_école, .caption = "numéro", .limit = 10,
         .tip = "numéro dans la voirie", .group = "Frame2"},
        {.name = "adresse_école", .member = &F::adresse_école, .caption = "adresse", .button = "Command2",
         .buttonMember = &F::Command2, .buttonTip = choix, .limit = 50,
         .tip = "Première composante de l'adresse de l'école", .group = "Frame2", .lookupFed = true,
         .sameLine = true},
        {.name = "suite_adresse_école", .member = &F::suite_adresse_école, .column = "adresse2_école",
         .caption = "suite adresse", .limit = 50,
         .tip = "Deuxième composante éventuelle de l'adresse de l'école", .group = "Frame2"},
        {.name = "code_postal_école", .member = &F::code_postal_école, .caption = "c.postal",
         .button = "Command9", .buttonMember = &F::Command9, .buttonTip = choix, .limit = 8,
         .tip = "Code postal de l'école", .group = "Frame2", .lookupFed = true},
        {.name = "ville_école", .member = &F::ville_école, .caption = "ville", .button = "Command7",
         .buttonMember = &F::Command7, .buttonTip = choix, .limit = 50, .tip = "Ville de l'école",
         .group = "Frame2", .lookupFed = true, .sameLine = true},
        {.name = "téléphone_école", .member = &F::téléphone_école, .caption = "téléphone", .limit = 20,
         .tip = "Coordonnées téléphoniques de l'école", .group = "Frame2"},
        {.name = "télécopie_école", .member = &F::télécopie_école, .caption = "télécopie", .limit = 20,
         .tip = "Télécopie de l'école", .group = "Frame2", .sameLine = true},
        {.name = "mail_école", .member = &F::mail_école, .caption = "E-mail", .limit = 50,
         .tip = "Adresse électronique de l'école", .group = "Frame2"},
        {.name = "rne_école", .member = &F::rne_école, .caption = "numéro RNE", .limit = 20,
         .tip = "Numéro RNE de l'école", .group = "Frame2"},
        {.name = "genre_directeur", .member = &F::genre_directeur, .column = "genre_directeur_école",
         .caption = "genre", .button = "Command3", .buttonMember = &F::Command3, .buttonTip = choix,
         .limit = 20, .tip = "Monsieur, Madame, Mademoiselle", .group = "Frame1", .lookupFed = true},
        {.name = "prénom_directeur", .member = &F::prénom_directeur, .column = "prénom_directeur_école",
         .caption = "prénom", .limit = 30, .tip = "Prénom du Directeur (de la Directrice)",
         .group = "Frame1"},
        {.name = "nom_directeur", .member = &F::nom_directeur, .column = "nom_directeur_école",
         .caption = "nom", .limit = 30, .tip = "Nom du Directeur (de la Directrice)", .group = "Frame1",
         .sameLine = true},
        {.name = "Text1", .member = &F::Text1, .column = "politesse_directeur", .caption = "politesse",
         .limit = 30, .tip = "Formule de politesse", .group = "Frame1"},
        {.name = "Text2", .member = &F::Text2, .column = "titre_directeur", .caption = "titre", .limit = 30,
         .tip = "Titre (Directeur, Directrice,...)", .group = "Frame1"},
    };
    // clang-format on
    return table;
}
