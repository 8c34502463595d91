#pragma once

#include "platform/forms/Feuille.h"

class DirListBox;
class DriveListBox;
class FileListBox;
class QLabel;
class QPushButton;

// "Sélection de la photo de l'enfant": a drive, a folder and an image file of it, with a preview. A
// change of folder clears the choice, a click on a file makes it, "&Accepter" gives it to the pupil
// (an empty choice clears the pupil's photo). No Q_OBJECT: moc cannot read the accented names.
class feuille_choix_photo : public Feuille {
public:
    feuille_choix_photo();

    DriveListBox* Drive1 = nullptr;
    DirListBox* Dir1 = nullptr;
    FileListBox* File1 = nullptr;
    QLabel* apercu = nullptr;
    QLabel* Label4 = nullptr;
    QPushButton* cmdMettreàjour = nullptr;
    QPushButton* cmdFermer = nullptr;

    void Form_Load() override;
    void Drive1_Change();
    void Dir1_Change();
    void File1_Click();
    void File1_DblClick();
    void Label4_Change();
    void cmdMettreàjour_Click();
    void cmdFermer_Click();

private:
    // The path that File1 and its selected file make, as the classic list gives it.
    QString chemin_du_fichier() const;
};
