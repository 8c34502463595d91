#pragma once

#include "platform/forms/FeuilleFiche.h"

class QLineEdit;

// "Protection de l'accès aux données": the access code of the work base, in clear in its single row of
// passe. The code changes only when the old one is given and the new one typed twice alike; nothing is
// trimmed, so blanks count, and an empty new code removes the protection.
class feuille_accès : public FeuilleFiche {
public:
    feuille_accès();

    QLineEdit* accès_ancien = nullptr;
    QLineEdit* accès_nouveau = nullptr;
    QLineEdit* accès_confirmation = nullptr;
    QLineEdit* accès_actuel = nullptr; // hidden, bound to passe.passe

    void cmdMettreàjour_Click() override;
};
