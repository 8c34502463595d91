#include "reference/feuille_genres.h"

using namespace Qt::StringLiterals;

feuille_genres::feuille_genres()
    : FeuilleConsultation(consultation("feuille_genres", "Table des genres", "genres",
                                       {{u"détails"_s, u"détails"_s}},
                                       {.légende = LégendePosition::aucune, .double_clic_accepte = false})) {}
