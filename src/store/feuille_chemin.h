#pragma once

#include "platform/forms/Feuille.h"

class DirListBox;
class DriveListBox;
class FileListBox;
class QLabel;
class QLineEdit;
class QPushButton;

// "Choix du chemin d'accès": the folder of a backup or of a restore. The chooser sets the action in
// Label1 and shows the screen, which is not modal; "&Accepter" hides it, so the folder last used is
// shown again next time, and does the work.
class feuille_chemin : public Feuille {
    Q_OBJECT
public:
    feuille_chemin();

    static QString action_sauvegarde();   // "Sauvegarde de la base sélectionnée"
    static QString action_restauration(); // "Restauration d'une base sauvegardée"

    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    FileListBox* File1 = nullptr;     // its Path is the chosen folder; its files are only shown
    QLineEdit* Label1 = nullptr;      // hidden: the action in progress, which cmdUpdate follows
    QLabel* Label3 = nullptr;         // the action, as the user reads it
    QPushButton* cmdUpdate = nullptr; // "&Accepter"
    QPushButton* Command1 = nullptr;  // "&Nouveau dossier"
    QPushButton* cmdFermer = nullptr; // "&Fermer"

    void Form_Load() override;
    void Drive1_Change();
    void Dir1_Change();
    void File1_Click();
    void Label1_Change();
    void cmdUpdate_Click();
    void Command1_Click();
    void cmdFermer_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void sauvegarder(const QString& chemin_sauvegarde, Feuille& patientez);
    void restaurer(const QString& chemin_sauvegarde, Feuille& patientez);
};
