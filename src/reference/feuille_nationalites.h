#pragma once

#include "reference/FeuilleConsultation.h"

// The nationalities with their codes, and the picker of a pupil's nationality and its code.
class feuille_nationalités : public FeuilleConsultation {
public:
    feuille_nationalités();
};
