#pragma once

#include "reference/FeuilleConsultation.h"

// "Table des responsables légaux": the families in a grid, from which the pupil screen's "Parents"
// picks the family of an unlinked pupil. Only the reference goes back into the pupil.
class feuille_choix_famille : public FeuilleConsultation {
public:
    feuille_choix_famille();
};
