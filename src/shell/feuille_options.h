#pragma once

#include "platform/forms/Feuille.h"

class QCheckBox;
class QLabel;
class QPushButton;

// The start-up options. It stays loaded and hidden; its four boxes are the options that
// options.ini keeps and that other screens read. On view, it lets the user change them.
class feuille_options : public Feuille {
    Q_OBJECT
public:
    feuille_options();

    QLabel* Label1 = nullptr;
    QCheckBox* Check1 = nullptr; // show the family screen after opening a base
    QCheckBox* Check2 = nullptr; // show the pupil screen after opening a base
    QCheckBox* Check3 = nullptr; // open the remembered base at start-up
    QCheckBox* Check4 = nullptr; // show the treatments screen after opening a base
    QPushButton* cmdFermer = nullptr;

    void Form_Load() override;
    // Hides the screen, so that its boxes keep their values, and writes them with the current base.
    void cmdFermer_Click();
};
