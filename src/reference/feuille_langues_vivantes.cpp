#include "reference/feuille_langues_vivantes.h"

feuille_langues_vivantes::feuille_langues_vivantes()
    : FeuilleConsultation(consultation("feuille_langues_vivantes", "Table des langues vivantes",
                                       "langues_vivantes", {{"détails", "détails"}})) {}
