#include "shell/feuille_options.h"

#include "platform/forms/Placement.h"
#include "platform/ui/Interaction.h"
#include "platform/ui/Relier.h"
#include "shell/options.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QCheckBox* case_à_cocher(QWidget* parent, const char* nom, const char* légende, const char* infobulle) {
    auto* c = new QCheckBox(QString::fromUtf8(légende), parent);
    c->setObjectName(QString::fromUtf8(nom));
    c->setToolTip(QString::fromUtf8(infobulle));
    c->setContentsMargins(16, 0, 0, 0); // under "Au démarrage du logiciel,", which they complete
    parent->layout()->addWidget(c);
    return c;
}

} // namespace

feuille_options::feuille_options() : Feuille(u"feuille_options"_s) {
    setWindowTitle(u"Options de démarrage"_s);
    auto* disposition = new QVBoxLayout(this);
    disposition->setContentsMargins(18, 14, 18, 14);
    disposition->setSpacing(8);
    Label1 = new QLabel(u"Au démarrage du logiciel,"_s, this);
    Label1->setObjectName(u"Label1"_s);
    disposition->addWidget(Label1);
    Check1 = case_à_cocher(this, "Check1", "afficher la fenêtre de gestion des familles",
                           "Cochez pour afficher automatiquement la fenêtre de gestion des familles au "
                           "démarrage du logiciel");
    Check2 = case_à_cocher(this, "Check2", "afficher la fenêtre de gestion des élèves",
                           "Cochez pour afficher automatiquement la fenêtre de gestion des élèves au "
                           "démarrage du logiciel");
    Check3 = case_à_cocher(this, "Check3", "ouvrir le dernier fichier utilisé",
                           "Cochez pour ouvrir automatiquement le dernier fichier utilisé au démarrage du "
                           "logiciel");
    // The same tooltip as Check2's, word for word.
    Check4 = case_à_cocher(this, "Check4", "afficher la fenêtre d'exploitation des données",
                           "Cochez pour afficher automatiquement la fenêtre de gestion des élèves au "
                           "démarrage du logiciel");
    auto* rangée = new QHBoxLayout;
    rangée->addStretch(1);
    cmdFermer = new QPushButton(u"Accepter && &Fermer"_s, this);
    cmdFermer->setObjectName(u"cmdFermer"_s);
    cmdFermer->setToolTip(u"Cliquez pour fermer cette fenêtre"_s);
    rangée->addWidget(cmdFermer);
    disposition->addSpacing(6);
    disposition->addLayout(rangée);
    relier(cmdFermer, &QPushButton::clicked, this, &feuille_options::cmdFermer_Click);
}

void feuille_options::Form_Load() {
    centrer_feuille(*this);
}

void feuille_options::cmdFermer_Click() {
    interaction().setMousePointer(vbDefault);
    Hide();
    écrire_options();
}
