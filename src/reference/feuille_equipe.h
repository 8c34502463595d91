#pragma once

#include "platform/forms/FeuilleFiche.h"

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

    // One bound box of the screen, in keyboard order.
    struct Champ {
        const char* nom;                    // object name of the box
        QLineEdit* feuille_équipe::*membre; // where the screen keeps it
        const char* colonne;                // bound column of équipe
        const char* groupe;                 // Frame1 the person, Frame2 the coordinates, Frame3 the class
        const char* libellé;                // caption beside it, on a label or on the button below
        const char* bouton;                 // the lookup button that carries the caption, or nullptr
        QPushButton* feuille_équipe::*membre_bouton;
        int longueur;          // entry limit in characters
        const char* infobulle; // help text
        bool désactivé;        // fed by a lookup only
    };
    static std::span<const Champ> champs();

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

    void Command5_Click();
    void Command2_Click();
    void Command7_Click();
    void Command9_Click();
    void Command4_Click();
    void bouton_accepter_Click() override;

private:
    void construire();
};
