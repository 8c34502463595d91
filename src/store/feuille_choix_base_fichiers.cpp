// The file commands of the chooser: duplicate, delete, compact, create, rename, and the start of a
// backup or a restore. Each works on the folder shown and leaves base_en_cours on the file it worked on.
#include "platform/dao/Database.h"
#include "platform/files/Files.h"
#include "platform/forms/ListesFichiers.h"
#include "platform/ui/ErrorBoxes.h"
#include "store/Module1.h"
#include "store/feuille_chemin.h"
#include "store/feuille_choix_base.h"
#include "store/fichiers_bases.h"
#include "store/ouverture_base.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

void curseur_attente() {
    interaction().setMousePointer(vbHourglass);
}

void curseur_normal() {
    interaction().setMousePointer(vbDefault);
}

void informer(const QString& texte) {
    interaction().MsgBox(texte, vbInformation);
}

void refuser(const QString& texte) {
    interaction().MsgBox(texte, vbExclamation);
}

bool oui(const QString& question, int icône = vbQuestion) {
    return interaction().MsgBox(question, vbYesNo + icône) == vbYes;
}

// A command's trap: the standard box, the default cursor, and the command ends where it failed.
template <class F> void commande(F&& corps) {
    avec_piège(ErrorBoxKind::standard, std::forward<F>(corps));
}

// A new base that would take an existing file's name: the user replaces it, or the command ends.
bool remplacer_si_elle_existe(const QString& début, const QString& cible) {
    if (!existe(cible))
        return true;
    if (!oui(début + cible + u" existe déjà...\n\nVoulez-vous la remplacer par la nouvelle?"_s)) {
        curseur_normal();
        return false;
    }
    Kill(cible);
    return true;
}

// The prompt for a new name, completed with ".mdb". Cancel is not told from an empty answer.
QString nom_demandé(const QString& invite, const QString& titre, const QString& proposition) {
    return nom_complété(interaction().InputBox(invite, titre, proposition));
}

} // namespace

QString feuille_choix_base::dossier_bases() const {
    return File1->Path();
}

QString feuille_choix_base::cible(const QString& nom_saisi) const {
    return dans_le_dossier(dossier_bases(), nom_saisi);
}

void feuille_choix_base::cmdAjouter_Click() {
    commande([this] {
        if (Label4->text().isEmpty())
            return refuser(u"Vous devez sélectionner la base de données que vous souhaitez dupliquer..."_s);
        curseur_attente();
        module1().base_en_cours = Label4->text();
        fermer_base();
        // The request for another name is not enforced: the selected base's own name, answered Yes,
        // deletes it, and the copy then fails for want of a source.
        const QString copie = cible(
            nom_demandé(u"Entrez le nom de la base dupliquée (nom différent de la base existante).\n\n\n"
                        u"L'extension .mdb sera ajoutée automatiquement lors de la duplication.."_s,
                        u"Duplication d'une base existante"_s, u"base_dupliquée"_s));
        if (!remplacer_si_elle_existe(u"La base dupliquée "_s, copie))
            return;
        CompactDatabase(module1().base_en_cours, copie);
        File1->Refresh();
        curseur_normal();
        informer(u"Duplication effectuée..."_s);
    });
}

void feuille_choix_base::cmdSupprimer_Click() {
    commande([this] {
        if (Label4->text().isEmpty())
            return refuser(
                u"Vous devez sélectionner la base de données que vous souhaitez supprimer définitivement..."_s);
        // Counted in the folder shown, the safety copy of a compaction among them.
        if (File1->count() < 2) {
            interaction().MsgBox(u"Suppression impossible... Il doit y avoir au moins UNE BASE de travail "
                                 u"pour pouvoir exploiter le logiciel..."_s,
                                 vbCritical);
            return curseur_normal();
        }
        curseur_attente();
        module1().base_en_cours = Label4->text();
        if (!oui(
                u"La base sélectionnée sera supprimée DEFINITIVEMENT...\n\nConfirmez-vous la suppression?"_s) ||
            !oui(u"Ultime confirmation : Etes-vous certain de vouloir supprimer DEFINITIVEMENT la base de "
                 u"données sélectionnée?"_s,
                 vbCritical))
            return curseur_normal();
        fermer_base();
        Kill(module1().base_en_cours);
        Label4->setText(QString());
        File1->Refresh();
        curseur_normal();
        informer(u"Suppression effectuée..."_s);
    });
}

void feuille_choix_base::Command2_Click() {
    commande([this] {
        informer(u"Info : À mesure que sont modifiées les données d'une base de données, le fichier se "
                 u"fragmente, utilisant un espace disque excessif. Compactez régulièrement votre base de "
                 u"données pour défragmenter le fichier de base de données. La base de données compactée "
                 u"est généralement de plus petite taille et souvent plus rapide."_s);
        if (Label4->text().isEmpty())
            return refuser(u"Vous devez sélectionner la base de données que vous souhaitez compacter..."_s);
        curseur_attente();
        module1().base_en_cours = Label4->text();
        fermer_base();
        compacter_sur_place(dossier_bases(), module1().base_en_cours);
        File1->Refresh();
        curseur_normal();
        informer(u"Compactage effectué..."_s);
    });
}

// The template is looked for in the folder shown, and base_en_cours names it until a base is picked.
void feuille_choix_base::Command3_Click() {
    commande([this] {
        curseur_attente();
        module1().base_en_cours = cible(nom_modèle);
        fermer_base();
        const QString saisi =
            interaction()
                .InputBox(
                    u"Entrez le nom de la nouvelle base de données (nom différent des bases existantes)."
                    u"\n\n\nL'extension .mdb sera ajoutée automatiquement lors de la création de cette "
                    u"base totalement vide.."_s,
                    u"Création d'une nouvelle base vide"_s, u"nouvelle_base"_s)
                .trimmed();
        if (saisi.isEmpty())
            return informer(u"Création de la nouvelle base annulée..."_s); // the wait cursor stays on
        const QString nouvelle = cible(nom_complété(saisi).replace(u' ', u'_'));
        if (!remplacer_si_elle_existe(u"La nouvelle base "_s, nouvelle))
            return;
        FileCopy(module1().base_en_cours, nouvelle);
        File1->Refresh();
        curseur_normal();
        informer(u"Création effectuée..."_s);
    });
}

// A compaction into the new name, then the old file deleted: the base is never without a whole copy.
void feuille_choix_base::Command6_Click() {
    commande([this] {
        if (Label4->text().isEmpty())
            return refuser(u"Vous devez sélectionner la base de données que vous souhaitez renommer..."_s);
        curseur_attente();
        module1().base_en_cours = Label4->text();
        fermer_base();
        const QString nouvelle = cible(nom_demandé(u"Entrez le nouveau nom de la base sélectionnée."_s,
                                                   u"Modification du nom d'une base existante"_s, QString()));
        if (existe(nouvelle))
            return refuser(u"La base "_s + nouvelle + u" existe déjà...\n\nAction impossible!"_s);
        CompactDatabase(module1().base_en_cours, nouvelle);
        Kill(module1().base_en_cours);
        Label4->setText(QString());
        File1->Refresh();
        curseur_normal();
        informer(u"La base de données a été renommée..."_s);
    });
}

void feuille_choix_base::Command4_Click() {
    commande([this] {
        if (Label4->text().isEmpty()) {
            refuser(u"Vous devez sélectionner la base de données que vous souhaitez sauvegarder..."_s);
            return curseur_normal();
        }
        // The list forgets its selection at each refresh, while Label4 keeps the path.
        const QListWidgetItem* fichier = File1->currentItem();
        if (fichier == nullptr || fichier->text().isEmpty()) {
            informer(u"Sélectionnez le fichier à sauvegarder pour pouvoir poursuivre..."_s);
            Label4->setText(QString());
            return curseur_normal();
        }
        module1().base_en_cours = Label4->text();
        fermer_base();
        feuille_chemin& chemin = feuilles().get<feuille_chemin>();
        chemin.Label1->setText(feuille_chemin::action_sauvegarde());
        chemin.Show();
    });
}

// The wait cursor stays on while the folder is chosen.
void feuille_choix_base::Command5_Click() {
    commande([] {
        curseur_attente();
        fermer_base();
        feuille_chemin& chemin = feuilles().get<feuille_chemin>();
        chemin.Label1->setText(feuille_chemin::action_restauration());
        chemin.Show();
    });
}
