#pragma once

#include "reference/FeuilleConsultation.h"

// The short answers (oui, non), and the picker of the family's consent and election fields.
class feuille_assertions : public FeuilleConsultation {
public:
    feuille_assertions();
};
