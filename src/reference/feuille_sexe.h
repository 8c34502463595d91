#pragma once

#include "reference/FeuilleConsultation.h"

// The table of sexes, and the picker of the pupil's `sexe` field.
class feuille_sexe : public FeuilleConsultation {
public:
    feuille_sexe();
};
