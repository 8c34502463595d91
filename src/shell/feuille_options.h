#pragma once

#include "platform/forms/Feuille.h"

class QCheckBox;

// The start-up options. It stays loaded and hidden; its four boxes are the options that
// options.ini keeps and that other screens read.
class feuille_options : public Feuille {
    Q_OBJECT
public:
    feuille_options();

    QCheckBox* Check1 = nullptr; // show the family screen after opening a base
    QCheckBox* Check2 = nullptr; // show the pupil screen after opening a base
    QCheckBox* Check3 = nullptr; // open the remembered base at start-up
    QCheckBox* Check4 = nullptr; // show the treatments screen after opening a base
};
