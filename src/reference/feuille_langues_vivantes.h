#pragma once

#include "reference/FeuilleConsultation.h"

// The modern languages, and the picker of the language a pupil learns.
class feuille_langues_vivantes : public FeuilleConsultation {
public:
    feuille_langues_vivantes();
};
