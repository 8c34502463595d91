#include "reference/feuille_situations_familiales.h"

using namespace Qt::StringLiterals;

feuille_situations_familiales::feuille_situations_familiales()
    : FeuilleConsultation(consultation("feuille_situations_familiales", "Table des situations familiales",
                                       "situations_familiales", {{u"détails"_s, u"détails"_s}})) {}
