#pragma once

#include "reference/FeuilleConsultation.h"

// The doctors, and the picker of the family doctor, which copies all four columns.
class feuille_médecins : public FeuilleConsultation {
public:
    feuille_médecins();
};
