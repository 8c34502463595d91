#pragma once

#include "reference/FeuilleConsultation.h"

// The streets around the school, and the picker of the first component of an address.
class feuille_adresses : public FeuilleConsultation {
public:
    feuille_adresses();
};
