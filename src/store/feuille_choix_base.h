#pragma once

#include "platform/forms/Feuille.h"

class DataControl;
class DirListBox;
class DriveListBox;
class FileListBox;
class QLabel;
class QLineEdit;
class QPushButton;

// "Sélection de la base de travail": picking the work database among the .mdb files of a folder,
// and the file commands on bases. Its Label4 holds the selected path even while it is hidden.
class feuille_choix_base : public Feuille {
    Q_OBJECT
public:
    feuille_choix_base();

    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    FileListBox* File1 = nullptr;
    QLabel* Label4 = nullptr;
    QPushButton* cmdMettreàjour = nullptr; // "&Ouvrir"
    QPushButton* cmdFermer = nullptr;      // "&Annuler"
    // The file commands on bases (feuille_choix_base_fichiers.cpp).
    QPushButton* cmdAjouter = nullptr; // "&Dupliquer"
    QPushButton* cmdSupprimer = nullptr;
    QPushButton* Command2 = nullptr; // "&Compacter"
    QPushButton* Command3 = nullptr; // "C&réer"
    QPushButton* Command6 = nullptr; // "Re&nommer"
    QPushButton* Command4 = nullptr; // "Sau&vegarder"
    QPushButton* Command5 = nullptr; // "&Restaurer"

    // Hidden: the selected file's passe table, its code, and the code the user typed.
    DataControl* datPrimaryRS = nullptr;
    QLineEdit* accès_actuel = nullptr;
    QLineEdit* accès_tentavive = nullptr;

    void Form_Load() override;
    void Drive1_Change();
    void Dir1_Change();
    void File1_Click();
    void File1_DblClick();
    void cmdMettreàjour_Click();
    void cmdFermer_Click();

    void cmdAjouter_Click();   // duplicate
    void cmdSupprimer_Click(); // delete
    void Command2_Click();     // compact
    void Command3_Click();     // create
    void Command6_Click();     // rename
    void Command4_Click();     // back up, on feuille_chemin
    void Command5_Click();     // restore, on feuille_chemin

    // The folder shown, where the commands work.
    QString dossier_bases() const;

private:
    QString chemin_sélectionné() const;
    // The path of `nom_saisi` in the folder shown.
    QString cible(const QString& nom_saisi) const;
};
