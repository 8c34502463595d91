#pragma once

#include "reference/FicheCoordonnees.h"

class QLineEdit;
class QPushButton;

// "Fiche école": the single row of école, which the letters read for the school's block.
class feuille_école : public FicheCoordonnées {
public:
    feuille_école();

    // The bound fields in keyboard order.
    static std::span<const FieldRow<feuille_école>> champs();

    QLineEdit* nom_école = nullptr;
    QLineEdit* numéro_école = nullptr;
    QLineEdit* adresse_école = nullptr;
    QPushButton* Command2 = nullptr;
    QLineEdit* suite_adresse_école = nullptr;
    QLineEdit* code_postal_école = nullptr;
    QPushButton* Command9 = nullptr;
    QLineEdit* ville_école = nullptr;
    QPushButton* Command7 = nullptr;
    QLineEdit* téléphone_école = nullptr;
    QLineEdit* télécopie_école = nullptr;
    QLineEdit* mail_école = nullptr;
    QLineEdit* rne_école = nullptr;
    QLineEdit* genre_directeur = nullptr;
    QPushButton* Command3 = nullptr;
    QLineEdit* prénom_directeur = nullptr;
    QLineEdit* nom_directeur = nullptr;
    QLineEdit* Text1 = nullptr; // politesse_directeur
    QLineEdit* Text2 = nullptr; // titre_directeur
};
