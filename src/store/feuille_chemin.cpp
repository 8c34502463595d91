#include "store/feuille_chemin.h"

#include "platform/dao/Database.h"
#include "platform/files/Files.h"
#include "platform/forms/Feuilles.h"
#include "platform/forms/FieldRows.h"
#include "platform/forms/ListesFichiers.h"
#include "platform/forms/Placement.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Relier.h"
#include "store/Module1.h"
#include "store/feuille_choix_base.h"
#include "store/fichiers_bases.h"
#include "store/mise_en_page.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Where a folder list goes when it is given a drive: the current folder if it lies on that drive,
// else the drive's root.
QString dossier_courant_du_lecteur(const QString& lecteur) {
    const QString courant = QDir::currentPath();
    return courant.startsWith(QDir::fromNativeSeparators(lecteur), Qt::CaseInsensitive) ? courant : lecteur;
}

void curseur_normal() {
    interaction().setMousePointer(vbDefault);
}

// The wait notice belongs to the shell, above the store, which reaches it by name.
Feuille& feuille_patientez() {
    return feuilles().nommée(u"feuille_patientez"_s);
}

} // namespace

QString feuille_chemin::action_sauvegarde() {
    return u"Sauvegarde de la base sélectionnée"_s;
}

QString feuille_chemin::action_restauration() {
    return u"Restauration d'une base sauvegardée"_s;
}

feuille_chemin::feuille_chemin() : Feuille(u"feuille_chemin"_s) {
    setWindowTitle(u"Choix du chemin d'accès"_s);
    auto* grille = new QGridLayout(this);
    const ListesDeFichiers listes = poser_listes(
        *grille, this,
        {"Cliquez pour sélectionner un lecteur",
         "liste des dossiers du lecteur sélectionné - Cliquez pour ouvrir un dossier", "Fichiers",
         "Liste des fichiers se trouvant dans le dossier sélectionné (non modifiable)"});
    Drive1 = listes.Drive1;
    Dir1 = listes.Dir1;
    File1 = listes.File1;

    Label1 = new QLineEdit(this);
    Label1->setObjectName(u"Label1"_s);
    Label1->hide();
    Label3 = nommé(new QLabel(this), "Label3", "Rappel de l'action en cours");
    Label3->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    Label3->setMinimumHeight(24);
    Label3->setMargin(2);
    QFont gras = Label3->font();
    gras.setBold(true);
    Label3->setFont(gras);
    grille->addWidget(Label3, 4, 0, 1, 2);

    auto* boutons = new QVBoxLayout;
    boutons->setSpacing(6);
    cmdUpdate = namedButton(this, "cmdUpdate", "&Accepter",
                            "Cliquez pour accepter le chemin à utiliser pour la procédure de "
                            "sauvegarde/Restauration");
    cmdUpdate->setDefault(true);
    Command1 = namedButton(this, "Command1", "&Nouveau dossier", "Cliquez pour créer un nouveau dossier");
    cmdFermer = namedButton(this, "cmdFermer", "&Fermer", "Cliquez pour fermer cette fenêtre");
    for (QPushButton* b : {cmdUpdate, Command1, cmdFermer})
        boutons->addWidget(b);
    boutons->addStretch(1);
    grille->addLayout(boutons, 0, 2, 5, 1);

    relier(Drive1, &DriveListBox::Change, this, &feuille_chemin::Drive1_Change);
    relier(Dir1, &DirListBox::Change, this, &feuille_chemin::Dir1_Change);
    relier(File1, &FileListBox::Click, this, &feuille_chemin::File1_Click);
    relier(Label1, &QLineEdit::textChanged, this, &feuille_chemin::Label1_Change);
    relier(cmdUpdate, &QPushButton::clicked, this, &feuille_chemin::cmdUpdate_Click);
    relier(Command1, &QPushButton::clicked, this, &feuille_chemin::Command1_Click);
    relier(cmdFermer, &QPushButton::clicked, this, &feuille_chemin::cmdFermer_Click);
}

void feuille_chemin::Form_Load() {
    centrer_feuille(*this);
    Dir1->setPath(dossier_courant_du_lecteur(Drive1->Drive()));
    File1->setPath(Dir1->Path());
}

// Shown again where it was left, with what the folder holds now: the backup just made, say.
void feuille_chemin::showEvent(QShowEvent* event) {
    Feuille::showEvent(event);
    Dir1->Refresh();
    File1->Refresh();
}

void feuille_chemin::Drive1_Change() {
    avec_piège(ErrorBoxKind::données, [this] {
        Dir1->setPath(dossier_courant_du_lecteur(Drive1->Drive()));
        File1->setPath(Dir1->Path());
    });
}

void feuille_chemin::Dir1_Change() {
    avec_piège(ErrorBoxKind::données, [this] { File1->setPath(Dir1->Path()); });
}

// The files are shown so that the user sees where a backup lies; none of them is to be chosen.
void feuille_chemin::File1_Click() {
    avec_piège(ErrorBoxKind::données, [] {
        interaction().MsgBox(u"Sélectionnez uniquement le lecteur et le dossier à utiliser dans la procédure "
                             u"de Sauvegarde/Restauration"_s,
                             vbExclamation);
    });
}

void feuille_chemin::Label1_Change() {
    Label3->setText(Label1->text());
}

void feuille_chemin::cmdUpdate_Click() {
    QPointer<Feuille> patientez;
    avec_piège(
        ErrorBoxKind::données,
        [&] {
            const QString chemin_sauvegarde = chemin_avec_séparateur(File1->Path());
            Hide();
            interaction().setMousePointer(vbHourglass);
            // On the screen before the long step begins, which holds the event loop.
            patientez = &feuille_patientez();
            patientez->Show();
            patientez->ZOrder();
            patientez->conteneur().repaint();
            if (Label1->text() == action_sauvegarde())
                sauvegarder(chemin_sauvegarde, *patientez);
            else if (Label1->text() == action_restauration())
                restaurer(chemin_sauvegarde, *patientez);
            else
                throw VbError(0);
        },
        [&] {
            if (patientez)
                patientez->Hide();
        });
}

// Whatever the base is called, its backup is "sauvegarde.mdb": one folder holds one backup.
void feuille_chemin::sauvegarder(const QString& chemin_sauvegarde, Feuille& patientez) {
    const QString cible = chemin_sauvegarde + nom_sauvegarde;
    if (existe(cible)) {
        if (interaction().MsgBox(u"La base "_s + cible +
                                     u" existe déjà...\n\nVoulez-vous la remplacer par la sauvegarde?"_s,
                                 vbYesNo + vbQuestion) != vbYes) {
            patientez.Hide();
            return curseur_normal();
        }
        Kill(cible);
    }
    CompactDatabase(module1().base_en_cours, cible);
    feuilles().get<feuille_choix_base>().File1->Refresh();
    patientez.Hide();
    curseur_normal();
    interaction().MsgBox(u"Sauvegarde effectuée...\n\nVous disposez maintenant d'une sauvegarde ("_s +
                             chemin_sauvegarde + nom_sauvegarde + u")."_s,
                         vbInformation);
}

// The backup comes back beside the bases under a name of its own, replacing the last one restored
// without a question, and never over a base.
void feuille_chemin::restaurer(const QString& chemin_sauvegarde, Feuille& patientez) {
    const QString source = chemin_sauvegarde + nom_sauvegarde;
    if (!existe(source)) {
        interaction().MsgBox(u"La base "_s + source + u" n'existe pas... Restauration impossible!"_s,
                             vbInformation);
        patientez.Hide();
        return curseur_normal();
    }
    feuille_choix_base& choix = feuilles().get<feuille_choix_base>();
    compacter_en_remplaçant(source, dans_le_dossier(choix.dossier_bases(), nom_restauration));
    choix.File1->Refresh();
    patientez.Hide();
    curseur_normal();
    interaction().MsgBox(u"Restauration effectuée..."_s, vbInformation);
}

// Cancel is not told from an empty name, which names the folder itself: the system refuses it.
void feuille_chemin::Command1_Click() {
    avec_piège(ErrorBoxKind::données, [this] {
        QString nom = interaction()
                          .InputBox(u"Entrez le nom du nouveau dossier que vous souhaitez créer :"_s,
                                    u"Nouveau dossier"_s, u"Nouveau dossier"_s)
                          .trimmed();
        if (nom.endsWith(QDir::separator()))
            nom.chop(1);
        QString dossier = File1->Path().trimmed();
        if (dossier.endsWith(QDir::separator()))
            dossier.chop(1);
        MkDir(dossier + QDir::separator() + nom);
        // Back to the drive's current folder, not into the new one.
        Dir1->setPath(dossier_courant_du_lecteur(Drive1->Drive()));
        File1->setPath(Dir1->Path());
        Dir1->Refresh();
        File1->Refresh();
        setFocus();
    });
}

// The action is abandoned; a base closed for it stays closed.
void feuille_chemin::cmdFermer_Click() {
    en_silence([this] { Label1->setText(QString()); });
    en_silence([this] { Unload(); });
    curseur_normal();
}
