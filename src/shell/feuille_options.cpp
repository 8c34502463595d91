#include "shell/feuille_options.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace {

QCheckBox* case_à_cocher(QWidget* parent, const char* nom, const char* légende) {
    auto* c = new QCheckBox(QString::fromUtf8(légende), parent);
    c->setObjectName(QString::fromUtf8(nom));
    parent->layout()->addWidget(c);
    return c;
}

} // namespace

feuille_options::feuille_options() : Feuille(QStringLiteral("feuille_options")) {
    setWindowTitle(QStringLiteral("Options de démarrage"));
    new QVBoxLayout(this);
    Check1 = case_à_cocher(this, "Check1", "afficher la fenêtre de gestion des familles");
    Check2 = case_à_cocher(this, "Check2", "afficher la fenêtre de gestion des élèves");
    Check3 = case_à_cocher(this, "Check3", "ouvrir le dernier fichier utilisé");
    Check4 = case_à_cocher(this, "Check4", "afficher la fenêtre d'exploitation des données");
}
