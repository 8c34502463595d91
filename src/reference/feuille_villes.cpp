#include "reference/feuille_villes.h"

using namespace Qt::StringLiterals;

feuille_villes::feuille_villes()
    : FeuilleConsultation(
          consultation("feuille_villes", "Table des villes", "villes",
                       {{u"code_postal"_s, u"codes postaux"_s}, {u"détails"_s, u"détails"_s}})) {}
