#pragma once

#include "platform/forms/FeuilleFiche.h"

// The table of sexes: one grid over `sexe`, kept up to date from the menu, and the picker of the
// pupil's `sexe` field.
class feuille_sexe : public FeuilleFiche {
    Q_OBJECT
public:
    feuille_sexe();

    void bouton_accepter_Click() override;
};
