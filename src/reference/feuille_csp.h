#pragma once

#include "reference/FeuilleConsultation.h"

// The socio-professional categories, and the picker of a parent's category, which takes the code.
class feuille_csp : public FeuilleConsultation {
public:
    feuille_csp();
};
