#include "reference/feuille_nationalites.h"

feuille_nationalités::feuille_nationalités()
    : FeuilleConsultation(consultation("feuille_nationalités", "Table des nationalités", "nationalités",
                                       {{"détails", "détails"}, {"code", "code"}})) {}
