#include "reference/feuille_sexe.h"

feuille_sexe::feuille_sexe()
    : FeuilleConsultation(consultation("feuille_sexe", "Table des sexes", "sexe", {{"détails", "détails"}})) {
}
