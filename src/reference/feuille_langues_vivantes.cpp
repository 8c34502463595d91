#include "reference/feuille_langues_vivantes.h"

using namespace Qt::StringLiterals;

feuille_langues_vivantes::feuille_langues_vivantes()
    : FeuilleConsultation(consultation("feuille_langues_vivantes", "Table des langues vivantes",
                                       "langues_vivantes", {{u"détails"_s, u"détails"_s}})) {}
