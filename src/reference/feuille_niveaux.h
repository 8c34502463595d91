#pragma once

#include "reference/FeuilleConsultation.h"

// The class levels with their cycles, and the picker of a class's level and cycle.
class feuille_niveaux : public FeuilleConsultation {
public:
    feuille_niveaux();
};
