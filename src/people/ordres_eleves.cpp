#include "people/ordres_eleves.h"

namespace {

constexpr const char* alphabétique = "SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC";

constexpr OrdreÉlèves table[] = {
    {"Par ordre alphabétique", alphabétique},
    {"Par ordre alphabétique inverse", "SELECT * FROM élèves ORDER BY nom_élève DESC, prénom_élève DESC"},
    {"Par ordre des matricules", "SELECT * FROM élèves ORDER BY matricule ASC"},
    {"Par ordre inverse des matricules", "SELECT * FROM élèves ORDER BY matricule DESC"},
    {"Par âge", "SELECT * FROM élèves ORDER BY date_naissance_élève ASC"},
    {"Par âge inverse", "SELECT * FROM élèves ORDER BY date_naissance_élève DESC"},
    {"Par date d'inscription", "SELECT * FROM élèves ORDER BY date_inscription_élève ASC"},
    {"Par date d'inscription inverse", "SELECT * FROM élèves ORDER BY date_inscription_élève DESC"},
    // The list's entry reads "Par nationalité", which this text never equals: that entry gives the
    // alphabetical order, as it always has.
    {"nationalité", "SELECT * FROM élèves ORDER BY nationalité_élève ASC"},
    {"Par numéro de classe", "SELECT * FROM élèves ORDER BY référence_classe_élève ASC"},
    {"Par niveau", "SELECT * FROM élèves ORDER BY niveau_classe_élève ASC"},
    {"Par cycle", "SELECT * FROM élèves ORDER BY cycle_classe_élève ASC"},
    {"Par ville de résidence", "SELECT * FROM élèves ORDER BY ville_résidence ASC"},
};

} // namespace

std::span<const OrdreÉlèves> ordres_élèves() {
    return table;
}

QString requête_de_l_ordre(const QString& texte) {
    for (const OrdreÉlèves& ordre : table)
        if (texte == QString::fromUtf8(ordre.texte_comparé))
            return QString::fromUtf8(ordre.requête);
    return QString::fromUtf8(alphabétique);
}
