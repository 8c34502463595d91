#include "store/feuille_choix_base.h"

#include "platform/forms/DataControl.h"
#include "platform/forms/EtiquetteElidee.h"
#include "platform/forms/FieldRows.h"
#include "platform/forms/ListesFichiers.h"
#include "platform/forms/Placement.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Relier.h"
#include "store/Module1.h"
#include "store/mise_en_page.h"
#include "store/ouverture_base.h"
#include "store/ouvrir_table.h"

#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

feuille_choix_base::feuille_choix_base() : Feuille(u"feuille_choix_base"_s) {
    setWindowTitle(u"Sélection de la base de travail"_s);
    auto* grille = new QGridLayout(this);
    const ListesDeFichiers listes = poser_listes(*grille, this, textes_du_choix_de_base);
    Drive1 = listes.Drive1;
    Dir1 = listes.Dir1;
    File1 = listes.File1;
    File1->setPattern(u"*.mdb"_s);

    grille->addWidget(légende_de_liste("Base de données sélectionnée", this), 4, 0, 1, 2);
    Label4 = new ÉtiquetteÉlidée(this);
    Label4->setObjectName(u"Label4"_s);
    Label4->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    Label4->setMinimumHeight(24);
    Label4->setMargin(2);
    grille->addWidget(Label4, 5, 0, 1, 2);

    auto* boutons = new QVBoxLayout;
    boutons->setSpacing(6);
    cmdMettreàjour =
        namedButton(this, "cmdMettreàjour", "&Ouvrir", "Cliquez pour ouvrir la base de données sélectionnée");
    cmdMettreàjour->setDefault(true);
    cmdFermer = namedButton(this, "cmdFermer", "&Annuler", "Cliquez pour annuler");
    boutons->addWidget(cmdMettreàjour);
    boutons->addWidget(cmdFermer);
    boutons->addSpacing(12);
    auto* fichiers = new QGroupBox(u"Fichiers"_s, this);
    auto* colonne = new QVBoxLayout(fichiers);
    cmdAjouter =
        namedButton(fichiers, "cmdAjouter", "&Dupliquer",
                    "Cliquez pour dupliquer une base de données existante sous un autre nom (la base est "
                    "intégralement dupliquée)");
    cmdSupprimer = namedButton(fichiers, "cmdSupprimer", "&Supprimer",
                               "Cliquez pour supprimer définitivement la base de données sélectionnée");
    Command2 = namedButton(fichiers, "Command2", "&Compacter",
                           "Cliquez pour compacter la base de données sélectionnée");
    Command3 = namedButton(fichiers, "Command3", "C&réer",
                           "Cliquez pour créer une nouvelle base de données totalement vide");
    Command6 =
        namedButton(fichiers, "Command6", "Re&nommer", "Cliquez pour renommer une base de données existante");
    Command4 = namedButton(
        fichiers, "Command4", "Sau&vegarder",
        "Cliquez pour sauvegarder la base de données sélectionnée dans un autre dossier OU sur un "
        "autre support");
    Command5 = namedButton(
        fichiers, "Command5", "&Restaurer",
        "Cliquez pour restaurer une base de données sauvegardée à partir d'un un autre dossier OU "
        "d'un autre support");
    for (QPushButton* b : {cmdAjouter, cmdSupprimer, Command2, Command3, Command6, Command4, Command5})
        colonne->addWidget(b);
    boutons->addWidget(fichiers);
    boutons->addStretch(1);
    grille->addLayout(boutons, 0, 2, 6, 1);

    datPrimaryRS = new DataControl(this);
    datPrimaryRS->setObjectName(u"datPrimaryRS"_s);
    datPrimaryRS->hide();
    accès_actuel = new QLineEdit(this);
    accès_actuel->setObjectName(u"accès_actuel"_s);
    accès_actuel->hide();
    datPrimaryRS->bind(accès_actuel, u"passe"_s);
    accès_tentavive = new QLineEdit(this);
    accès_tentavive->setObjectName(u"accès_tentavive"_s);
    accès_tentavive->hide();
    avantDéchargement([this] { datPrimaryRS->unload(); });

    relier(Drive1, &DriveListBox::Change, this, &feuille_choix_base::Drive1_Change);
    relier(Dir1, &DirListBox::Change, this, &feuille_choix_base::Dir1_Change);
    relier(File1, &FileListBox::Click, this, &feuille_choix_base::File1_Click);
    relier(File1, &FileListBox::DblClick, this, &feuille_choix_base::File1_DblClick);
    relier(cmdMettreàjour, &QPushButton::clicked, this, &feuille_choix_base::cmdMettreàjour_Click);
    relier(cmdFermer, &QPushButton::clicked, this, &feuille_choix_base::cmdFermer_Click);
    relier(cmdAjouter, &QPushButton::clicked, this, &feuille_choix_base::cmdAjouter_Click);
    relier(cmdSupprimer, &QPushButton::clicked, this, &feuille_choix_base::cmdSupprimer_Click);
    relier(Command2, &QPushButton::clicked, this, &feuille_choix_base::Command2_Click);
    relier(Command3, &QPushButton::clicked, this, &feuille_choix_base::Command3_Click);
    relier(Command6, &QPushButton::clicked, this, &feuille_choix_base::Command6_Click);
    relier(Command4, &QPushButton::clicked, this, &feuille_choix_base::Command4_Click);
    relier(Command5, &QPushButton::clicked, this, &feuille_choix_base::Command5_Click);
}

void feuille_choix_base::Form_Load() {
    centrer_feuille(*this);
}

void feuille_choix_base::Drive1_Change() {
    Dir1->setPath(Drive1->Drive());
    File1->setPath(Dir1->Path());
    Label4->setText(QString());
}

// Moving elsewhere clears the selection on screen, but base_en_cours keeps the file clicked before.
void feuille_choix_base::Dir1_Change() {
    File1->setPath(Dir1->Path());
    Label4->setText(QString());
}

QString feuille_choix_base::chemin_sélectionné() const {
    return File1->Path() + QDir::separator() + File1->FileName();
}

// A single click already makes the file the current base, before any code is asked for.
void feuille_choix_base::File1_Click() {
    avec_piège(ErrorBoxKind::logiciel_données, [this] {
        Module1& m = module1();
        Label4->setText(chemin_sélectionné());
        m.chemin_choisi = File1->Path() + QDir::separator();
        m.base_en_cours = Label4->text();
        ouvrir_table_passe_choix();
    });
}

void feuille_choix_base::File1_DblClick() {
    avec_piège(ErrorBoxKind::logiciel_données, [this] {
        Label4->setText(chemin_sélectionné());
        cmdMettreàjour_Click();
    });
}

void feuille_choix_base::cmdMettreàjour_Click() {
    ouvrir_base_choisie();
}

void feuille_choix_base::cmdFermer_Click() {
    interaction().setMousePointer(vbDefault);
    Unload();
}
