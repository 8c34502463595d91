#include "reference/feuille_parametres.h"

#include "platform/forms/DataControl.h"
#include "platform/forms/LimiteSaisie.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

ConfigurationFiche configuration_paramètres() {
    ConfigurationFiche c;
    c.nom = u"feuille_paramètres"_s;
    c.titre = u"intitulés des champs paramétrables"_s;
    c.source_de_conception = u"paramètres"_s;
    c.ajout = FormeAjout::aucune;
    c.suppression = FormeSuppression::aucune;
    c.infobulle_rafraîchir = InfobulleRafraîchir::rafraichier;
    return c;
}

} // namespace

feuille_paramètres::feuille_paramètres() : FeuilleFiche(configuration_paramètres()) {
    auto* Frame1 = new QGroupBox(corps());
    Frame1->setObjectName(u"Frame1"_s);
    auto* colonne = new QVBoxLayout(corps());
    colonne->setContentsMargins(0, 0, 0, 0);
    colonne->addWidget(Frame1);
    auto* grille = new QGridLayout(Frame1);
    grille->addWidget(new QLabel(u"Intitulés"_s, Frame1), 0, 1, Qt::AlignCenter);
    grille->addWidget(new QLabel(u"Infobulles"_s, Frame1), 0, 2, Qt::AlignCenter);
    grille->setColumnStretch(1, 2);
    grille->setColumnStretch(2, 5);
    QWidget* précédent = nullptr;
    for (int ligne = 0; ligne < 10; ++ligne) {
        const QString n = QString::number(ligne + 1);
        auto* champ = new QLabel(u"Champ "_s + n, Frame1);
        grille->addWidget(champ, ligne + 1, 0);
        for (int côté = 0; côté < 2; ++côté) {
            const int index = 2 * ligne + côté;
            auto* boîte = new QLineEdit(Frame1);
            boîte->setObjectName(u"txtFields"_s + QString::number(index));
            const int longueur = côté == 0 ? 20 : 50;
            limiter_saisie(*boîte, longueur);
            // A caption reads whole; a help text mostly, the box growing with the window.
            boîte->setMinimumWidth(boîte->fontMetrics().averageCharWidth() * std::min(longueur + 2, 40));
            datPrimaryRS->bind(
                boîte,
                (côté == 0 ? u"intitulé_champ_paramétrable"_s : u"infobulle_champ_paramétrable"_s) + n);
            // A screen reader names each box by its line and its column.
            boîte->setAccessibleName((côté == 0 ? u"Intitulé du champ "_s : u"Infobulle du champ "_s) + n);
            grille->addWidget(boîte, ligne + 1, côté + 1);
            if (précédent)
                QWidget::setTabOrder(précédent, boîte);
            précédent = boîte;
            txtFields[index] = boîte;
        }
        champ->setBuddy(txtFields[2 * ligne]);
    }
}
