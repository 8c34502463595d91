#pragma once

#include "reference/FeuilleConsultation.h"

// The towns with their postal codes, and the picker that fills a postal code and its town together.
class feuille_villes : public FeuilleConsultation {
public:
    feuille_villes();
};
