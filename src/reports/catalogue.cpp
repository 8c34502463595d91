#include "reports/catalogue.h"

#include <QString>

namespace {

constexpr const char* séparateur = "--------------------";

constexpr EntréeCatalogue statistiques[] = {
    {"Répartition par sexes", "stat_sexes.rpt"},
    {"Répartition par nationalités", "stat_nationalités.rpt"},
    {"Répartition par situations familiales", "stat_familles.rpt"},
    {"Répartition par CSP des responsables légaux", "stat_csp1.rpt"},
    {"Répartition par CSP des conjoints", "stat_csp2.rpt"},
    {"Répartition par villes de résidence", "stat_villes.rpt"},
    {"Répartition par langues vivantes", "stat_langues.rpt"},
    {"Répartition par cycles", "stat_cycles.rpt"},
    {"Répartition par niveaux", "stat_niveaux.rpt"},
    {"Répartition par classes", "stat_classes.rpt"},
    {"Répartition par âges", "stat_ages.rpt"},
};

constexpr EntréeCatalogue listes[] = {
    {"Liste de classes (alphabétique)", "liste_classes.rpt"},
    {"Liste de classes (âge décroissant)", "liste_classes2.rpt"},
    {"Liste de classes (âge croissant)", "liste_classes3.rpt"},
    {"Liste de présences mensuelles", "liste_présences.rpt"},
    {"Liste de pointage", "liste_pointages.rpt"},
    {"Liste de notation", "liste_notations.rpt"},
    {séparateur, nullptr},
    {"Liste électorale", "liste_électorale.rpt", "{élèves.ainé} = True",
     "Voulez-vous éditer une liste électorale sans l'indication des adresses?", "liste_électorale2.rpt"},
    {"Liste Mairie", "liste_mairie.rpt"},
    {"Liste Association", "liste_ape.rpt",
     "{élèves.ainé} = True AND {familles.communication_données} = \"oui\"",
     "Seules les familles ayant accordé l'autorisation de communiquer leurs données personnelles "
     "non-confidentielles sont concernées par cette liste."},
    {"Liste A", "liste_listea.rpt", "{élèves.niveau_classe_élève} = \"CM2\"",
     "Seules les classes de CM2 sont concernées par la LISTE A."},
    {"Liste B", "liste_listeb.rpt", nullptr,
     "Seuls les élèves de 12 ans (et +), scolarisés dans des classes inférieures au CM2, sont concernés par "
     "la LISTE B."},
    {séparateur, nullptr},
    {"Registre matricule", "registre1.rpt"},
};

constexpr EntréeCatalogue étiquettes[] = {
    {"Etiquettes électorales", "étiquet_adresse1.rpt", "{élèves.ainé} = True"},
    {"Etiquettes adresses sur sélection", "étiquet_adresse2.rpt"},
    {séparateur, nullptr},
    {"Etiquettes cahiers", "étiquet_cahiers.rpt"},
};

constexpr EntréeCatalogue documents[] = {
    {"Fiches des familles", "fiche_famille.rpt"},
    {"Fiches des élèves", "fiche_enfant.rpt"},
    {séparateur, nullptr},
    {"Fiche vierge", "fiche_vierge.rpt", ""},
};

} // namespace

std::span<const EntréeCatalogue> catalogue(int liste) {
    switch (liste) {
    case 1:
        return statistiques;
    case 2:
        return listes;
    case 3:
        return étiquettes;
    case 4:
        return documents;
    default:
        return {};
    }
}

const EntréeCatalogue* entrée_du_catalogue(int liste, const QString& libellé) {
    for (const EntréeCatalogue& e : catalogue(liste))
        if (libellé == QString::fromUtf8(e.libellé))
            return &e;
    return nullptr;
}
