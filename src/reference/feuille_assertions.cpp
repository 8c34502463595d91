#include "reference/feuille_assertions.h"

feuille_assertions::feuille_assertions()
    : FeuilleConsultation(consultation("feuille_assertions", "Table des assertions", "assertions",
                                       {{"détails", "détails"}}, {.légende = LégendePosition::aucune})) {}
