#pragma once

#include "reference/FicheCoordonnees.h"

class QLineEdit;
class QPushButton;

// "Inspection de l'Education Nationale": the single row of inspection, the district of the school.
class feuille_inspection : public FicheCoordonnées {
public:
    feuille_inspection();

    // The bound fields in keyboard order.
    static std::span<const FieldRow<feuille_inspection>> champs();

    QLineEdit* nom_inspection = nullptr;
    QLineEdit* numéro_inspection = nullptr;
    QLineEdit* adresse_inspection = nullptr;
    QPushButton* Command2 = nullptr;
    QLineEdit* adresse2_inspection = nullptr;
    QLineEdit* code_postal_inspection = nullptr;
    QPushButton* Command9 = nullptr;
    QLineEdit* ville_inspection = nullptr;
    QPushButton* Command7 = nullptr;
    QLineEdit* téléphone_inspection = nullptr;
    QLineEdit* télécopie_inspection = nullptr;
    QLineEdit* mail_inspection = nullptr;
    QLineEdit* rne_inspection = nullptr;
    QLineEdit* genre_inspecteur = nullptr; // bound to genre_inpecteur
    QPushButton* Command3 = nullptr;
    QLineEdit* prénom_inspecteur = nullptr;
    QLineEdit* nom_inspecteur = nullptr;
    QLineEdit* politesse_inspecteur = nullptr;
    QLineEdit* Text1 = nullptr; // titre_inspecteur
};
