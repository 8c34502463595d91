#include "reference/feuille_adresses.h"

using namespace Qt::StringLiterals;

feuille_adresses::feuille_adresses()
    : FeuilleConsultation(consultation(
          "feuille_adresses", "Tables des adresses (Rues avoisinantes)", "adresses",
          {{u"détails"_s, u"détails"_s}},
          {.légende = LégendePosition::aucune, .infobulle_rafraîchir = InfobulleRafraîchir::rafraichir})) {}
