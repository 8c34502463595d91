#include "reference/feuille_csp.h"

feuille_csp::feuille_csp()
    : FeuilleConsultation(consultation(
          "feuille_csp", "Table des CSP (Catégories Socio-Professionnelles)", "csp",
          {{"code", "code"}, {"détails", "détails"}},
          {.légende = LégendePosition::aucune, .infobulle_rafraîchir = InfobulleRafraîchir::rafraichir})) {}
