#pragma once

#include "reference/FeuilleConsultation.h"

// The forms of address (Monsieur, Madame...), and the picker of a person's genre. Its grid has no
// double click: only its button accepts.
class feuille_genres : public FeuilleConsultation {
public:
    feuille_genres();
};
