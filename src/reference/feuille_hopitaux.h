#pragma once

#include "reference/FeuilleConsultation.h"

// The hospitals, and the picker of the family's preferred one, which copies all four columns.
class feuille_hôpitaux : public FeuilleConsultation {
public:
    feuille_hôpitaux();
};
