#pragma once

#include "platform/forms/FeuilleFiche.h"
#include "platform/forms/FieldRows.h"

#include <array>
#include <span>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QTimer;

// "Fiche famille": one household of the table familles at a time, its reference above three tabs, the
// legal guardian (Parent 1), the spouse (Parent 2) and the rest (doctor, hospital, insurance, consent).
// No Q_OBJECT: moc cannot read an accented class name.
class feuille_famille : public FeuilleFiche {
public:
    feuille_famille();
    ~feuille_famille() override;

    // The 44 bound fields in keyboard order.
    static std::span<const FieldRow<feuille_famille>> champs();
    // The four orders of Combo1, from index 0.
    static const std::array<const char*, 4> ordres;
    // The face that Command19 takes on every second tick.
    static const char* const autorisation;

    // Above the tabs.
    QLineEdit* Text13 = nullptr; // référence_famille
    QPushButton* Command1 = nullptr;
    QComboBox* Combo1 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;
    QTabWidget* SSTab1 = nullptr;

    // Tab 0, "Parent &1".
    QLineEdit* genre_responsable_légal = nullptr;
    QPushButton* Command21 = nullptr;
    QLineEdit* nom_responsable_légal = nullptr;
    QPushButton* Command23 = nullptr;
    QLineEdit* prénom_responsable_légal = nullptr;
    QLineEdit* mail_responsable_légal = nullptr;
    QLineEdit* profession_responsable_légal = nullptr;
    QLineEdit* employeur_responsable_légal = nullptr;
    QLineEdit* téléphone_professionnel1_responsable_légal = nullptr;
    QLineEdit* téléphone_professionnel2_responsable_légal = nullptr;
    QLineEdit* csp_responsable_légal = nullptr;
    QPushButton* Command13 = nullptr;
    QLineEdit* élection_comité_responsable_légal = nullptr;
    QPushButton* Command18 = nullptr;
    QLineEdit* Text11 = nullptr; // situation_familiale
    QPushButton* Command15 = nullptr;
    QLineEdit* Text3 = nullptr; // numéro_responsable
    QLineEdit* Text2 = nullptr; // adresse_responsable
    QPushButton* Command8 = nullptr;
    QLineEdit* Text1 = nullptr; // adresse2_responsable
    QLineEdit* Text5 = nullptr; // code_postal_responsable
    QPushButton* Command6 = nullptr;
    QLineEdit* Text4 = nullptr; // ville_responsable
    QPushButton* Command5 = nullptr;

    // Tab 1, "Parent &2".
    QLineEdit* genre_conjoint = nullptr;
    QPushButton* Command20 = nullptr;
    QLineEdit* nom_conjoint = nullptr;
    QPushButton* Command22 = nullptr;
    QLineEdit* prénom_conjoint = nullptr;
    QLineEdit* mail_conjoint = nullptr;
    QLineEdit* profession_conjoint = nullptr;
    QLineEdit* employeur_conjoint = nullptr;
    QLineEdit* téléphone_professionnel1_conjoint = nullptr;
    QLineEdit* téléphone_professionnel2_conjoint = nullptr;
    QLineEdit* csp_conjoint = nullptr;
    QPushButton* Command14 = nullptr;
    QLineEdit* élection_comité_conjoint = nullptr;
    QPushButton* Command17 = nullptr;
    QLineEdit* Text8 = nullptr; // numéro_conjoint
    QLineEdit* Text7 = nullptr; // adresse_conjoint
    QPushButton* Command2 = nullptr;
    QLineEdit* Text6 = nullptr;  // adresse2_conjoint
    QLineEdit* Text10 = nullptr; // code_postal_conjoint
    QPushButton* Command9 = nullptr;
    QLineEdit* Text9 = nullptr; // ville_conjoint
    QPushButton* Command7 = nullptr;
    QPushButton* Command16 = nullptr;

    // Tab 2, "&Divers".
    QLineEdit* communication_données = nullptr;
    QPushButton* Command19 = nullptr;
    QLineEdit* médecin_traitant = nullptr;
    QPushButton* Command10 = nullptr;
    QLineEdit* téléphone_médecin_traitant = nullptr;
    QLineEdit* adresse_médecin_traitant = nullptr;
    QLineEdit* ville_médecin_traitant = nullptr;
    QLineEdit* hôpital_préférentiel = nullptr;
    QPushButton* Command11 = nullptr;
    QLineEdit* téléphone_hôpital_préférentiel = nullptr;
    QLineEdit* adresse_hôpital_préférentiel = nullptr;
    QLineEdit* ville_hôpital_préférentiel = nullptr;
    QLineEdit* société_assurance = nullptr;
    QPushButton* Command12 = nullptr;
    QLineEdit* police_assurance = nullptr;
    QPlainTextEdit* observations_assurance = nullptr;

    QTimer* Timer1 = nullptr;

    void Form_Load() override;

    // Sets the list's entry by code and runs Combo1_Click, as a pick by the user does.
    void fixer_ordre(int index);
    void Combo1_Click();
    void cmdAjouter_Click() override;
    void cmdRafraîchir_Click() override;
    void Text13_LostFocus();
    // The three jumps to one family; nothing trapped.
    void Text13_DblClick();
    void nom_responsable_légal_DblClick();
    void nom_conjoint_DblClick();
    // "&Imprimer": the sheet of the record as stored, in the preview.
    void Command3_Click();
    // From the family to its children on the pupil screen.
    void Command4_Click();
    // Parent 1's address becomes Parent 2's.
    void Command16_Click();
    void Timer1_Timer();

private:
    void construire();
    QWidget* construire_bandeau(FieldBuilder& disposition);
    void construire_onglets(FieldBuilder& disposition);
    void finir_disposition(FieldBuilder& disposition);
    void brancher_handlers();
};

// "000001" in the new row of an empty table, as the family command finds it.
void étapes_en_plus_familles(feuille_famille& famille, bool table_vide);
