#include "reference/feuille_nationalites.h"

using namespace Qt::StringLiterals;

feuille_nationalités::feuille_nationalités()
    : FeuilleConsultation(consultation("feuille_nationalités", "Table des nationalités", "nationalités",
                                       {{u"détails"_s, u"détails"_s}, {u"code"_s, u"code"_s}})) {}
