#pragma once

#include "reference/FeuilleConsultation.h"

// The insurers, and the picker of the family's insurance company.
class feuille_assurances : public FeuilleConsultation {
public:
    feuille_assurances();
};
