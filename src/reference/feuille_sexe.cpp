#include "reference/feuille_sexe.h"

using namespace Qt::StringLiterals;

feuille_sexe::feuille_sexe()
    : FeuilleConsultation(
          consultation("feuille_sexe", "Table des sexes", "sexe", {{u"détails"_s, u"détails"_s}})) {}
