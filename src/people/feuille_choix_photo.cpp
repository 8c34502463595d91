#include "people/feuille_choix_photo.h"

#include "people/feuille_eleve.h"
#include "platform/forms/ListesFichiers.h"
#include "platform/forms/Pictures.h"
#include "platform/forms/Placement.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Relier.h"
#include "store/Module1.h"
#include "store/mise_en_page.h"

#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

feuille_choix_photo::feuille_choix_photo() : Feuille(u"feuille_choix_photo"_s) {
    setWindowTitle(u"Sélection de la photo de l'enfant"_s);
    auto* grille = new QGridLayout(this);
    // The labels and help texts that speak of databases are the chooser's, kept here as they are.
    const ListesDeFichiers listes = poser_listes(*grille, this, textes_du_choix_de_base);
    Drive1 = listes.Drive1;
    Dir1 = listes.Dir1;
    File1 = listes.File1;
    File1->setPattern(u"*.jpg ; *.gif ; *.bmp"_s);
    apercu = nommé(new QLabel(this), "apercu", "");
    apercu->setFrameShape(QFrame::Box);
    apercu->setFixedSize(en_pixels(1215) + 40, en_pixels(1575) + 50);
    grille->addWidget(apercu, 1, 2, 3, 1, Qt::AlignTop);
    grille->addWidget(légende_de_liste("Chemin de la photo sélectionnée", this), 4, 0, 1, 3);
    Label4 = nommé(new QLabel(this), "Label4", "");
    Label4->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    Label4->setMinimumHeight(24);
    grille->addWidget(Label4, 5, 0, 1, 3);
    auto* boutons = new QHBoxLayout;
    cmdMettreàjour = nommé(new QPushButton(u"&Accepter"_s, this), "cmdMettreàjour",
                           "Cliquez pour accepter la photo sélectionnée");
    cmdFermer = nommé(new QPushButton(u"&Annuler"_s, this), "cmdFermer", "Cliquez pour annuler");
    boutons->addStretch(1);
    boutons->addWidget(cmdMettreàjour);
    boutons->addWidget(cmdFermer);
    grille->addLayout(boutons, 6, 0, 1, 3);

    relier(Drive1, &DriveListBox::Change, this, [this] { Drive1_Change(); });
    relier(Dir1, &DirListBox::Change, this, [this] { Dir1_Change(); });
    relier(File1, &FileListBox::Click, this, [this] { File1_Click(); });
    relier(File1, &FileListBox::DblClick, this, [this] { File1_DblClick(); });
    relier(cmdMettreàjour, &QPushButton::clicked, this, [this] { cmdMettreàjour_Click(); });
    relier(cmdFermer, &QPushButton::clicked, this, [this] { cmdFermer_Click(); });
}

void feuille_choix_photo::Form_Load() {
    avec_piège(ErrorBoxKind::standard, [this] {
        File1->setPath(Dir1->Path());
        centrer_feuille(*this);
    });
}

void feuille_choix_photo::Drive1_Change() {
    avec_piège(ErrorBoxKind::standard, [this] {
        Dir1->setPath(Drive1->Drive());
        File1->setPath(Dir1->Path());
        Label4->clear();
        Label4_Change();
    });
}

void feuille_choix_photo::Dir1_Change() {
    avec_piège(ErrorBoxKind::standard, [this] {
        File1->setPath(Dir1->Path());
        Label4->clear();
        Label4_Change();
    });
}

// No test for a folder that already ends with a separator: at the root the path holds two.
QString feuille_choix_photo::chemin_du_fichier() const {
    return File1->Path() + QDir::separator() + File1->FileName();
}

void feuille_choix_photo::File1_Click() {
    avec_piège(ErrorBoxKind::logiciel_données, [this] {
        Label4->setText(chemin_du_fichier());
        Label4_Change();
        module1().chemin_choisi = File1->Path() + QDir::separator();
        module1().chemin_image_choisie = Label4->text();
    });
}

void feuille_choix_photo::File1_DblClick() {
    avec_piège(ErrorBoxKind::logiciel_données, [this] {
        Label4->setText(chemin_du_fichier());
        Label4_Change();
    });
}

// A path of another kind leaves the preview as it was.
void feuille_choix_photo::Label4_Change() {
    avec_piège(ErrorBoxKind::standard, [this] {
        const QString chemin = Label4->text();
        if (chemin.isEmpty()) {
            apercu->clear();
            return;
        }
        const QString fin = chemin.right(3).toUpper();
        if (fin == u"JPG"_s || fin == u"BMP"_s || fin == u"GIF"_s)
            showPicture(*apercu, chemin);
    });
}

// Nothing checks that a file was chosen: an empty path clears the pupil's photo.
void feuille_choix_photo::cmdMettreàjour_Click() {
    avec_piège(ErrorBoxKind::standard, [this] {
        module1().feuilles().get<feuille_élève>().chemin_photo->setText(Label4->text());
        module1().interaction().setMousePointer(vbDefault);
        Unload();
    });
}

void feuille_choix_photo::cmdFermer_Click() {
    module1().interaction().setMousePointer(vbDefault);
    Unload();
}
