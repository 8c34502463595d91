#pragma once

#include "platform/forms/FeuilleFiche.h"
#include "platform/forms/FieldRows.h"

#include <span>

class QLineEdit;
class QPushButton;

// "Fiche enseignant": one teacher of the table équipe at a time, with the class that teacher holds.
// From the main window it is the staff file; from the pupil screen it is the class picker, whose
// "Accepter" (enabled rather than shown) copies the class, level and cycle of the teacher on screen.
// No Q_OBJECT: moc cannot read an accented class name.
class feuille_équipe : public FeuilleFiche {
public:
    feuille_équipe();

    // The bound boxes, in keyboard order: Frame1 the person, Frame2 the coordinates, Frame3 the class.
    static std::span<const FieldRow<feuille_équipe>> champs();

    QLineEdit* genre_enseignant = nullptr;
    QLineEdit* nom_enseignant = nullptr;
    QLineEdit* prénom_enseignant = nullptr;
    QLineEdit* numéro_enseignant = nullptr;
    QLineEdit* adresse1_enseignant = nullptr;
    QLineEdit* adresse_enseignant = nullptr; // bound to adresse2_enseignant
    QLineEdit* code_postal_enseignant = nullptr;
    QLineEdit* ville_enseignant = nullptr;
    QLineEdit* téléphone1_enseignant = nullptr;
    QLineEdit* téléphone2_enseignant = nullptr;
    QLineEdit* mail_enseignant = nullptr;
    QLineEdit* référence_classe_enseignant = nullptr;
    QLineEdit* niveau_classe_enseignant = nullptr;
    QLineEdit* cycle_classe_enseignant = nullptr;

    QPushButton* Command5 = nullptr; // "genre"
    QPushButton* Command2 = nullptr; // "adresse"
    QPushButton* Command9 = nullptr; // "c.postal"
    QPushButton* Command7 = nullptr; // "ville"
    QPushButton* Command4 = nullptr; // "niveau"
    QPushButton* Command3 = nullptr; // "&Imprimer", with no action

    // The lookup buttons open their pickers from the return table (reference/retours.h).

    void bouton_accepter_Click() override;

private:
    void construire();
};
