#pragma once

#include <QString>

class QLabel;
class QWidget;

// What the two file screens, the chooser and the folder of a backup, share in their look.

// A list's caption above it, in bold.
QLabel* légende_de_liste(const char* texte, QWidget* parent);

class DirListBox;
class DriveListBox;
class FileListBox;
class QGridLayout;

// The help texts and the caption of the three lists of a file screen.
struct TextesDesListes {
    const char* aide_lecteurs;
    const char* aide_dossiers;
    const char* titre_fichiers;
    const char* aide_fichiers;
};

// The three lists of a file screen, Drive1, Dir1 and File1, in the first four rows of `grille`: the
// drives over the folders on the left, the files on the right, each under its caption in bold.
struct ListesDeFichiers {
    DriveListBox* Drive1;
    DirListBox* Dir1;
    FileListBox* File1;
};
// The chooser's texts, which the photo picker keeps for its own lists.
extern const TextesDesListes textes_du_choix_de_base;
ListesDeFichiers poser_listes(QGridLayout& grille, QWidget* parent, const TextesDesListes& textes);

// A control with its object name and help text.
template <class W> W* nommé(W* contrôle, const char* nom, const char* infobulle) {
    contrôle->setObjectName(QString::fromUtf8(nom));
    contrôle->setToolTip(QString::fromUtf8(infobulle));
    return contrôle;
}
