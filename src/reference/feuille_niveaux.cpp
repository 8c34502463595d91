#include "reference/feuille_niveaux.h"

using namespace Qt::StringLiterals;

feuille_niveaux::feuille_niveaux()
    : FeuilleConsultation(
          consultation("feuille_niveaux", "Table des niveaux et des cycles", "niveaux",
                       {{u"code"_s, u"code"_s}, {u"détails"_s, u"détails"_s}, {u"cycle"_s, u"cycle"_s}})) {}
