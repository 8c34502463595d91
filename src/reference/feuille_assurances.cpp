#include "reference/feuille_assurances.h"

feuille_assurances::feuille_assurances()
    : FeuilleConsultation(consultation(
          "feuille_assurances", "Tables des assurances", "assurances", {{"détails", "détails"}},
          {.légende = LégendePosition::aucune, .infobulle_rafraîchir = InfobulleRafraîchir::rafraichir})) {}
