#pragma once

#include "platform/forms/FeuilleFiche.h"
#include "platform/forms/FieldRows.h"
#include "reports/lettre.h"

#include <array>
#include <span>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QTimer;

// "Fiche élève": one pupil of the table élèves at a time, in a band of header fields above eight tabs.
// No Q_OBJECT: moc cannot read an accented class name; connections use member pointers and lambdas,
// and a cast to this class is a dynamic_cast.
class feuille_élève : public FeuilleFiche {
public:
    feuille_élève();
    ~feuille_élève() override;

    // The bound fields of the band and of the tabs, in screen order.
    static std::span<const FieldRow<feuille_élève>> champs();

    // The thirteen orders of Combo1, from index 0.
    static const std::array<const char*, 13> ordres;
    // The Tab key's walk through the fields, before the buttons.
    static const std::array<const char*, 46> ordre_tabulation;

    // Above the tabs.
    QComboBox* Combo1 = nullptr;
    QLineEdit* référence_famille = nullptr;
    QPushButton* Command4 = nullptr;
    QLineEdit* matricule = nullptr;
    QLineEdit* nom_enfant = nullptr;
    QLineEdit* prénom_enfant = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command13 = nullptr;
    QPushButton* Command3 = nullptr;
    QTabWidget* SSTab1 = nullptr;
    // datPrimaryRS, the frame's buttons and grdDataGrid (on Data2) come from the frame.
    DataControl* Data1 = nullptr; // the captions of the ten configurable fields, on paramètres
    DataControl* Data2 = nullptr; // the letter templates, on documents

    // Tab 0, "&Identité".
    QLineEdit* date_inscription = nullptr;
    QPushButton* Command15 = nullptr;
    QLineEdit* date_naissance = nullptr;
    QLabel* Label12 = nullptr;
    QLineEdit* lieu_naissance = nullptr;
    QLineEdit* sexe = nullptr;
    QPushButton* Command7 = nullptr;
    QLineEdit* nationalité = nullptr;
    QPushButton* Command5 = nullptr;
    QLineEdit* code_nationalité = nullptr;
    QLineEdit* chemin_photo = nullptr;
    QPushButton* Command14 = nullptr;
    QLabel* photo = nullptr;
    QCheckBox* Check2 = nullptr;
    QLineEdit* date_radiation = nullptr;
    QLineEdit* établissement_accueil = nullptr;

    // Tab 1, "&Classe".
    QLineEdit* référence_classe_élève = nullptr;
    QPushButton* Command12 = nullptr;
    QLineEdit* niveau_classe_élève = nullptr;
    QLineEdit* cycle_classe_élève = nullptr;
    QLineEdit* cursus_allongé_élève = nullptr;
    QLineEdit* saisine_ccpe_élève = nullptr;
    QLineEdit* langue_vivante_élève = nullptr;
    QPushButton* Command11 = nullptr;

    // Tab 2, "&Personnes autorisées": rows 1 to 5 at indexes 0 to 4.
    std::array<QLineEdit*, 5> nom_contact{};
    std::array<QLineEdit*, 5> prénom_contact{};
    std::array<QLineEdit*, 5> téléphone_contact{};

    // Tab 3, "&Résidence".
    QPushButton* Command16 = nullptr;
    QLineEdit* numéro_résidence = nullptr;
    QLineEdit* adresse_résidence = nullptr;
    QPushButton* Command8 = nullptr;
    QLineEdit* adresse2_résidence = nullptr;
    QLineEdit* code_postal_résidence = nullptr;
    QPushButton* Command9 = nullptr;
    QLineEdit* ville_résidence = nullptr;
    QPushButton* Command10 = nullptr;
    QLineEdit* téléphone1_résidence = nullptr;
    QLineEdit* téléphone2_résidence = nullptr;

    // Tab 4, "&Santé / Divers".
    QLineEdit* vaccinations = nullptr;
    QLineEdit* allergies = nullptr;
    QLineEdit* contre_indications = nullptr;
    QPlainTextEdit* observations_médicales = nullptr;
    QLineEdit* participation_usep = nullptr;
    QLineEdit* restauration_scolaire = nullptr;
    QLineEdit* coopérative_scolaire = nullptr;
    QPlainTextEdit* observations_générales = nullptr;

    // Tabs 5 and 6: champ_paramétable1 to 10 at indexes 0 to 9, one line or several.
    std::array<QWidget*, 10> champ_paramétable{};
    std::array<QLabel*, 10> lblLabels{};     // captions, bound through Data1
    std::array<QLabel*, 10> porteurs_aide{}; // Label2 to Label11, invisible, bound through Data1

    // Tab 7, "&Documents".
    QPushButton* documents_suite = nullptr;
    QPushButton* Command6 = nullptr;
    QCheckBox* Check1 = nullptr;

    QTimer* Timer1 = nullptr;

    // The widget that shows a field of the table by its object name, nullptr when none.
    QWidget* champ(const QString& nom) const;

    void Form_Load() override;

    // Sets the list's entry by code, which runs Combo1_Click as a pick by the user does.
    void fixer_ordre(int index);
    void Combo1_Click();
    // The jumps to one pupil, by matricule or by the start of the surname; nothing trapped.
    void matricule_DblClick();
    void nom_enfant_DblClick();
    void Command2_Click();
    void Command13_Click();
    // The age in Label12, at each change of the birth date's text.
    void date_naissance_Change();

    void matricule_LostFocus();
    void nom_enfant_LostFocus();
    void prénom_enfant_LostFocus();
    // "&Imprimer": the sheet of the record as stored, in the preview.
    void Command3_Click();
    // "Parents": from the pupil to its family, to the picker, or to a new family.
    void Command4_Click();
    // The family's address becomes the pupil's residence.
    void Command16_Click();
    void Command15_Click();
    // "Imprimer le document sélectionné": the letter of the template picked in the list for this pupil,
    // previewed, or printed straight when Check1 is ticked.
    void documents_suite_Click();
    // The pupil's part of a letter, as the screen shows it.
    ÉlèveDeLaLettre élève_de_la_lettre() const;
    // The photo of the record, reloaded at each change of its path: by a move or by the picker.
    void chemin_photo_Change();
    // "photo" and a double click on the picture: the picker, not modal.
    void Command14_Click();
    void Command6_Click();
    void Timer1_Timer();
    // Label2_Change to Label11_Change: a help carrier's text becomes the help balloon of its field.
    void porteur_aide_Change(int index);

    void cmdAjouter_Click() override;
    void cmdRafraîchir_Click() override;

    // The lookup buttons (Command5, 7 to 12) open their pickers from the return table
    // (reference/retours.h).

private:
    void construire();
    void brancher_recherches_et_âge();
    void construire_sources();
    QWidget* construire_bandeau(FieldBuilder& disposition);
    QWidget* construire_boutons();
    void construire_onglets(FieldBuilder& disposition);
    void construire_contacts(QWidget* page);
    void construire_paramétrables(QWidget* page, int premier);
    void construire_documents(QWidget* page);
    void finir_disposition(const FieldBuilder& disposition);
    void poser_tabulation();
    void lier_colonnes();
    void brancher_handlers();
    void montrer_paramètres();
};

// What the command "Gestion du fichier des &Elèves" does besides the preparing rule of every record
// screen: "000001" in the new row of an empty table, then the letter templates pointed, both on their
// own screen and in the list of the last tab.
void étapes_en_plus_élèves(feuille_élève& élève, bool table_vide);
