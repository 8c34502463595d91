#include "reference/feuille_inspection.h"

namespace {
using F = feuille_inspection;
constexpr const char* choix = "Cliquez pour accéder aux différents choix possibles";
} // namespace

feuille_inspection::feuille_inspection()
    : FicheCoordonnées("feuille_inspection", "Inspection de l'Education Nationale", "inspection",
                       "&Inspecteur/Inspectrice") {
    construire(*this, champs());
}

std::span<const FieldRow<feuille_inspection>> feuille_inspection::champs() {
    // clang-format off
    static const FieldRow<F> table[] = {
        {.name = "nom_inspection", .member = &F::nom_inspection, .caption = "dénomination", .limit = 50,
         .tip = "Dénomination de la Circoncription de l'Education Nationale", .group = "Frame2"},
        {.name = "numéro_inspection", .member = &F::numéro_inspection, .caption = "numéro ", .limit = 10,
         .tip = "Numéro de voirie", .group = "Frame2"},
        {.name = "adresse_inspection", .member = &F::adresse_inspection, .caption = "adresse",
         .button = "Command2", .buttonMember = &F::Command2, .buttonTip = choix, .limit = 50,
         .tip = "Première composante de l'adresse de l'Inspection de l'Education Nationale", .group = "Frame2",
         .lookupFed = true, .sameLine = true},
        {.name = "adresse2_inspection", .member = &F::adresse2_inspection, .caption = "suite adresse",
         .limit = 50,
         .tip = "Deuxième composante éventuelle de l'adresse de l'Inspection de l'Education Nationale",
         .group = "Frame2"},
        {.name = "code_postal_inspection", .member = &F::code_postal_inspection, .caption = "c.postal",
         .button = "Command9", .buttonMember = &F::Command9, .buttonTip = choix, .limit = 8,
         .tip = "Code postal", .group = "Frame2", .lookupFed = true},
        {.name = "ville_inspection", .member = &F::ville_inspection, .caption = "ville", .button = "Command7",
         .buttonMember = &F::Command7, .buttonTip = choix, .limit = 50, .tip = "Ville", .group = "Frame2",
         .lookupFed = true, .sameLine = true},
        {.name = "téléphone_inspection", .member = &F::téléphone_inspection, .caption = "téléphone",
         .limit = 20, .tip = "Coordonnées téléphoniques de l'Inspection de l'Education Nationale",
         .group = "Frame2"},
        {.name = "télécopie_inspection", .member = &F::télécopie_inspection, .caption = "télécopie",
         .limit = 20, .tip = "Télécopie  de l'Inspection de l'Education Nationale", .group = "Frame2",
         .sameLine = true},
        {.name = "mail_inspection", .member = &F::mail_inspection, .caption = "E-mail", .limit = 50,
         .tip = "Adresse électronique de l'Inspection de l'Education Nationale", .group = "Frame2"},
        {.name = "rne_inspection", .member = &F::rne_inspection, .caption = "RNE inspection", .limit = 20,
         .tip = "Numéro RNE de l'Inspection de l'Education Nationale", .group = "Frame2"},
        {.name = "genre_inspecteur", .member = &F::genre_inspecteur, .column = "genre_inpecteur",
         .caption = "genre", .button = "Command3", .buttonMember = &F::Command3, .buttonTip = choix,
         .limit = 20, .tip = "Monsieur, Madame, Mademoiselle", .group = "Frame1", .lookupFed = true},
        {.name = "prénom_inspecteur", .member = &F::prénom_inspecteur, .caption = "prénom", .limit = 30,
         .tip = "Prénom de l'Inspecteur (de l'Inspectrice)", .group = "Frame1"},
        {.name = "nom_inspecteur", .member = &F::nom_inspecteur, .caption = "nom", .limit = 30,
         .tip = "Nom de l'Inspecteur (de l'Inspectrice)", .group = "Frame1", .sameLine = true},
        {.name = "politesse_inspecteur", .member = &F::politesse_inspecteur, .caption = "politesse",
         .limit = 50, .tip = "Formule de politesse : Monsieur l'Inspecteur,...", .group = "Frame1"},
        {.name = "Text1", .member = &F::Text1, .column = "titre_inspecteur", .caption = "titre", .limit = 50,
         .tip = "Titre (Inspecteur de l'Education Nationale...)", .group = "Frame1"},
    };
    // clang-format on
    return table;
}
