#include "reference/feuille_niveaux.h"

feuille_niveaux::feuille_niveaux()
    : FeuilleConsultation(consultation("feuille_niveaux", "Table des niveaux et des cycles", "niveaux",
                                       {{"code", "code"}, {"détails", "détails"}, {"cycle", "cycle"}})) {}
