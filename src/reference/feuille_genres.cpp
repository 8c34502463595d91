#include "reference/feuille_genres.h"

feuille_genres::feuille_genres()
    : FeuilleConsultation(consultation("feuille_genres", "Table des genres", "genres",
                                       {{"détails", "détails"}},
                                       {.légende = LégendePosition::aucune, .double_clic_accepte = false})) {}
