#include "reference/feuille_adresses.h"

feuille_adresses::feuille_adresses()
    : FeuilleConsultation(consultation(
          "feuille_adresses", "Tables des adresses (Rues avoisinantes)", "adresses", {{"détails", "détails"}},
          {.légende = LégendePosition::aucune, .infobulle_rafraîchir = InfobulleRafraîchir::rafraichir})) {}
