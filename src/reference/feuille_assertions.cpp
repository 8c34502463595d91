#include "reference/feuille_assertions.h"

using namespace Qt::StringLiterals;

feuille_assertions::feuille_assertions()
    : FeuilleConsultation(consultation("feuille_assertions", "Table des assertions", "assertions",
                                       {{u"détails"_s, u"détails"_s}},
                                       {.légende = LégendePosition::aucune})) {}
