#include "reference/feuille_villes.h"

feuille_villes::feuille_villes()
    : FeuilleConsultation(consultation("feuille_villes", "Table des villes", "villes",
                                       {{"code_postal", "codes postaux"}, {"détails", "détails"}})) {}
