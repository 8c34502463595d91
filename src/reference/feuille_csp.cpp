#include "reference/feuille_csp.h"

using namespace Qt::StringLiterals;

feuille_csp::feuille_csp()
    : FeuilleConsultation(consultation(
          "feuille_csp", "Table des CSP (Catégories Socio-Professionnelles)", "csp",
          {{u"code"_s, u"code"_s}, {u"détails"_s, u"détails"_s}},
          {.légende = LégendePosition::aucune, .infobulle_rafraîchir = InfobulleRafraîchir::rafraichir})) {}
