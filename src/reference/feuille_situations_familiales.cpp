#include "reference/feuille_situations_familiales.h"

feuille_situations_familiales::feuille_situations_familiales()
    : FeuilleConsultation(consultation("feuille_situations_familiales", "Table des situations familiales",
                                       "situations_familiales", {{"détails", "détails"}})) {}
