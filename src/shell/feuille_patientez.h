#pragma once

#include "platform/forms/Feuille.h"

class QLabel;

// The wait notice shown, with the hourglass, while a base opens or a copy is made.
class feuille_patientez : public Feuille {
    Q_OBJECT
public:
    feuille_patientez();

    QLabel* Label1 = nullptr;

    void Form_Load() override;
};
