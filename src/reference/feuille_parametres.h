#pragma once

#include "platform/forms/FeuilleFiche.h"

#include <array>

class QLineEdit;

// "intitulés des champs paramétrables": the caption and the help text of each of the pupil's ten free
// fields, in the single row of paramètres. The pupil screen reads them again when it is next pointed.
class feuille_paramètres : public FeuilleFiche {
public:
    feuille_paramètres();

    // txtFields(0) to (19): line n's caption at 2(n-1), its help text at 2(n-1)+1.
    std::array<QLineEdit*, 20> txtFields{};
};
