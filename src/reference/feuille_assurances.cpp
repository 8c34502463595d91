#include "reference/feuille_assurances.h"

using namespace Qt::StringLiterals;

feuille_assurances::feuille_assurances()
    : FeuilleConsultation(consultation(
          "feuille_assurances", "Tables des assurances", "assurances", {{u"détails"_s, u"détails"_s}},
          {.légende = LégendePosition::aucune, .infobulle_rafraîchir = InfobulleRafraîchir::rafraichir})) {}
