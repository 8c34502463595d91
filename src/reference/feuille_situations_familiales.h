#pragma once

#include "reference/FeuilleConsultation.h"

// The family situations, and the picker of a family's situation.
class feuille_situations_familiales : public FeuilleConsultation {
public:
    feuille_situations_familiales();
};
