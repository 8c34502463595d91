#include "store/mise_en_page.h"

#include "platform/forms/ListesFichiers.h"

#include <QGridLayout>
#include <QLabel>

QLabel* légende_de_liste(const char* texte, QWidget* parent) {
    auto* légende = new QLabel(QString::fromUtf8(texte), parent);
    QFont police = légende->font();
    police.setBold(true);
    légende->setFont(police);
    return légende;
}

const TextesDesListes textes_du_choix_de_base = {
    "Sélectionnez le lecteur sur lequel se trouve la base de données",
    "Sélectionnez le dossier dans l'arborescence", "Bases de données",
    "Sélectionnez la base de données sur laquelle vous souhaitez travailler"};

ListesDeFichiers poser_listes(QGridLayout& grille, QWidget* parent, const TextesDesListes& textes) {
    grille.setContentsMargins(14, 12, 14, 12);
    grille.setHorizontalSpacing(14);
    grille.setVerticalSpacing(4);
    grille.addWidget(légende_de_liste("Lecteurs", parent), 0, 0);
    auto* lecteurs = nommé(new DriveListBox(parent), "Drive1", textes.aide_lecteurs);
    grille.addWidget(lecteurs, 1, 0);
    grille.addWidget(légende_de_liste("Dossiers", parent), 2, 0);
    auto* dossiers = nommé(new DirListBox(parent), "Dir1", textes.aide_dossiers);
    dossiers->setMinimumSize(240, 200);
    grille.addWidget(dossiers, 3, 0);
    grille.addWidget(légende_de_liste(textes.titre_fichiers, parent), 0, 1);
    auto* fichiers = nommé(new FileListBox(parent), "File1", textes.aide_fichiers);
    fichiers->setMinimumSize(220, 200);
    grille.addWidget(fichiers, 1, 1, 3, 1);
    return {lecteurs, dossiers, fichiers};
}
