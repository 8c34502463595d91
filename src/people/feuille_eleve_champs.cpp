// The bound fields of the pupil screen: names, columns, captions, limits and help texts, in screen order.
#include "people/feuille_eleve.h"

namespace {
using F = feuille_élève;
constexpr bool oui = true;
constexpr bool non = false;
constexpr const char* choix = "Cliquez pour accéder aux différents choix possibles";
constexpr const char* matricule_aide =
    "Cliquez ici pour accéder à une fiche précise directement à partir d'un matricule";
constexpr const char* nom_aide = "Cliquez ici pour accéder à une fiche précise directement à partir d'un nom "
                                 "(ou d'une partie de nom avec utilisation de ? et *)";
} // namespace

std::span<const feuille_élève::Champ> feuille_élève::champs() {
    // clang-format off
    static const Champ table[] = {
        // nom, membre, colonne, groupe, libellé, bouton, membre du bouton, aide du bouton, longueur,
        // infobulle,
        // désactivé, invisible, même ligne
        {"référence_famille", &F::référence_famille, "référence_famille", "Frame12", "Référence famille",
         nullptr, nullptr, nullptr, 0, "Référence de la famille : ne pas modifier...", non, non, non},
        {"matricule", &F::matricule, "matricule", "Frame2", "matricule", "Command2", &F::Command2, matricule_aide, 10,
         nullptr, non, non, non},
        {"nom_enfant", &F::nom_enfant, "nom_élève", "Frame2", "nom", "Command13", &F::Command13, nom_aide, 30,
         nullptr, non, non, oui},
        {"prénom_enfant", &F::prénom_enfant, "prénom_élève", "Frame2", "prénom", nullptr, nullptr, nullptr, 30,
         nullptr, non, non, oui},

        {"date_inscription", &F::date_inscription, "date_inscription_élève", "Frame3", "date d'inscription",
         "Command15", &F::Command15, "Cliquez pour accepter la date du jour comme date d'inscription", 0,
         "Date d'inscription de l'élève dans l'établissement (au format JJ/MM/AAAA)", non, non, non},
        {"date_naissance", &F::date_naissance, "date_naissance_élève", "Frame3", "date de naissance",
         nullptr, nullptr, nullptr, 0, "Date de naissance de l'élève (au format JJ/MM/AAAA)", non, non, non},
        {"Label12", &F::Label12, nullptr, "Frame3", "âge", nullptr, nullptr, nullptr, 0, nullptr, non, non, oui},
        {"lieu_naissance", &F::lieu_naissance, "lieu_naissance_élève", "Frame3", "lieu de naissance",
         nullptr, nullptr, nullptr, 50, "Lieu de naissance de l'élève", non, non, non},
        {"sexe", &F::sexe, "sexe_élève", "Frame3", "sexe", "Command7", &F::Command7, choix, 8, "Sexe de l'élève",
         oui, non, non},
        {"nationalité", &F::nationalité, "nationalité_élève", "Frame3", "nationalité", "Command5",
         &F::Command5, choix, 30, "Nationalité de l'élève", oui, non, non},
        {"code_nationalité", &F::code_nationalité, "code_nationalité_élève", "Frame3", "code nationalité",
         nullptr, nullptr, nullptr, 5, "Code de la nationalité de l'élève", non, non, oui},
        {"chemin_photo", &F::chemin_photo, "chemin_photo", "Frame3", "photo", "Command14", &F::Command14, "Cliquez pour choisir la photo de l'élève",
         254, "chemin d'accès à la photo de l'élève", non, oui, non},
        {"Check2", &F::Check2, "ainé", "Frame3", "Aîné dans l'école", nullptr, nullptr, nullptr, 0,
         "indication de l'aîné dans l'école, dont le nom servira en particulier pour les opérations "
         "électorales", non, non, non},
        {"date_radiation", &F::date_radiation, "date_radiation_élève", "Frame13", "date de radiation",
         nullptr, nullptr, nullptr, 0,
         "Date de radiation de l'établissement pour l'élève concerné (au format JJ/MM/AAAA)", non, non, non},
        {"établissement_accueil", &F::établissement_accueil, "établissement_accueil", "Frame13",
         "Etablissement d'accueil", nullptr, nullptr, nullptr, 50,
         "Coordonnées de l'établissement d'accueil suite à la radiation", non, non, oui},

        {"référence_classe_élève", &F::référence_classe_élève, "référence_classe_élève", "Frame4",
         "référence de la classe", "Command12", &F::Command12, choix, 5, "Référence de la classe", oui, non, non},
        {"niveau_classe_élève", &F::niveau_classe_élève, "niveau_classe_élève", "Frame4", "niveau",
         nullptr, nullptr, nullptr, 10, "Niveau de la classe dans laquelle est inscrit l'élève", oui, non, oui},
        {"cycle_classe_élève", &F::cycle_classe_élève, "cycle_classe_élève", "Frame4", "cycle", nullptr,
         nullptr, nullptr, 1, "Cycle dans lequel est inscrit l'élève", oui, non, oui},
        {"cursus_allongé_élève", &F::cursus_allongé_élève, "cursus_allongé_élève", "Frame4",
         "cursus allongé", nullptr, nullptr, nullptr, 50, "Détails du cursus de l'élève (allongement)", non, non, non},
        {"saisine_ccpe_élève", &F::saisine_ccpe_élève, "saisine_ccpe_élève", "Frame4", "saisine MDPH",
         nullptr, nullptr, nullptr, 50, "Détails des opérations de signalement de l'élève (date saisine,....)", non,
         non, non},
        {"langue_vivante_élève", &F::langue_vivante_élève, "langue_vivante_élève", "Frame4",
         "langue vivante", "Command11", &F::Command11, choix, 30, "Langue vivante étudiée par l'élève", oui, non,
         non},

        {"numéro_résidence", &F::numéro_résidence, "numéro_résidence", "Frame7", "numéro", nullptr,
         nullptr, nullptr, 10, "Numéro de voirie", non, non, non},
        {"adresse_résidence", &F::adresse_résidence, "adresse_résidence", "Frame7", "adresse", "Command8",
         &F::Command8, choix, 50, "Adresse - première composante de l'adresse", oui, non, non},
        {"adresse2_résidence", &F::adresse2_résidence, "adresse2_résidence", "Frame7", "suite adresse",
         nullptr, nullptr, nullptr, 50, "Adresse - deuxième composante éventuelle", non, non, non},
        {"code_postal_résidence", &F::code_postal_résidence, "code_postal_résidence", "Frame7",
         "code postal", "Command9", &F::Command9, choix, 8, "Code postal", oui, non, non},
        {"ville_résidence", &F::ville_résidence, "ville_résidence", "Frame7", "ville", "Command10",
         &F::Command10, choix, 50, "Ville", oui, non, oui},
        {"téléphone1_résidence", &F::téléphone1_résidence, "téléphone1_résidence", "Frame7", "téléphone1",
         nullptr, nullptr, nullptr, 20, "Coordonnées téléphoniques", non, non, non},
        {"téléphone2_résidence", &F::téléphone2_résidence, "téléphone2_résidence", "Frame7", "téléphone 2",
         nullptr, nullptr, nullptr, 20, "Coordonnées téléphoniques", non, non, oui},

        {"vaccinations", &F::vaccinations, "vaccinations", "Frame8", "vaccinations", nullptr, nullptr, nullptr, 50,
         "Vaccinations", non, non, non},
        {"allergies", &F::allergies, "allergies", "Frame8", "allergies", nullptr, nullptr, nullptr, 50, "Allergies",
         non, non, non},
        {"contre_indications", &F::contre_indications, "contre_indications", "Frame8",
         "contre indications", nullptr, nullptr, nullptr, 50, "Contre indications", non, non, non},
        {"observations_médicales", &F::observations_médicales, "observations_médicales", "Frame8",
         "observations médicales", nullptr, nullptr, nullptr, 0,
         "Observations médicales uniquement --- ATTENTION : aucun renseignement préjudiciable à l'enfant ou "
         "à la famille ", non, non, non},
        {"participation_usep", &F::participation_usep, "participation_usep", "Frame6",
         "participation USEP", nullptr, nullptr, nullptr, 20, "USEP", non, non, non},
        {"restauration_scolaire", &F::restauration_scolaire, "restauration_scolaire", "Frame6",
         "restauration scolaire", nullptr, nullptr, nullptr, 30, "Restauration scolaire", non, non, non},
        {"coopérative_scolaire", &F::coopérative_scolaire, "coopérative_scolaire", "Frame6",
         "coopérative scolaire", nullptr, nullptr, nullptr, 30, "Coopérative scolaire", non, non, non},
        {"observations_générales", &F::observations_générales, "observations_générales", "",
         "observations générales", nullptr, nullptr, nullptr, 0,
         "Observations générales sur l'enfant --- ATTENTION : aucune donnée préjudiciable à l'enfant ou à la "
         "famille", non, non, non},
    };
    // clang-format on
    return table;
}

const std::array<const char*, 13> feuille_élève::ordres = {
    "Par ordre alphabétique",
    "Par ordre alphabétique inverse",
    "Par ordre des matricules",
    "Par ordre inverse des matricules",
    "Par âge",
    "Par âge inverse",
    "Par date d'inscription",
    "Par date d'inscription inverse",
    "Par nationalité",
    "Par numéro de classe",
    "Par niveau",
    "Par cycle",
    "Par ville de résidence",
};

const std::array<const char*, 46> feuille_élève::ordre_tabulation = {
    "matricule",
    "nom_enfant",
    "prénom_enfant",
    "code_nationalité",
    "date_naissance",
    "lieu_naissance",
    "date_inscription",
    "cursus_allongé_élève",
    "saisine_ccpe_élève",
    "nom_contact1",
    "prénom_contact1",
    "téléphone_contact1",
    "nom_contact2",
    "prénom_contact2",
    "téléphone_contact2",
    "nom_contact3",
    "prénom_contact3",
    "téléphone_contact3",
    "nom_contact4",
    "prénom_contact4",
    "téléphone_contact4",
    "nom_contact5",
    "prénom_contact5",
    "téléphone_contact5",
    "numéro_résidence",
    "adresse2_résidence",
    "téléphone1_résidence",
    "téléphone2_résidence",
    "vaccinations",
    "allergies",
    "contre_indications",
    "observations_médicales",
    "coopérative_scolaire",
    "restauration_scolaire",
    "participation_usep",
    "observations_générales",
    "champ_paramétable1",
    "champ_paramétable2",
    "champ_paramétable3",
    "champ_paramétable4",
    "champ_paramétable5",
    "champ_paramétable6",
    "champ_paramétable7",
    "champ_paramétable8",
    "champ_paramétable9",
    "champ_paramétable10",
};
