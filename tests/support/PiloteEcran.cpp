#include "support/PiloteEcran.h"

#include "platform/forms/Feuille.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

void montrer_active(Feuille& feuille) {
    feuille.Show();
    QWidget& fenêtre = feuille.conteneur();
    fenêtre.activateWindow();
    QApplication::setActiveWindow(&fenêtre);
    if (!QTest::qWaitForWindowActive(&fenêtre))
        ADD_FAILURE() << "la fenêtre " << feuille.objectName().toStdString() << " n'est pas devenue active";
}

void cliquer(QWidget& racine, const QString& nom) {
    auto* bouton = racine.findChild<QAbstractButton*>(nom);
    if (!bouton) {
        ADD_FAILURE() << "pas de bouton " << nom.toStdString();
        return;
    }
    QTest::mouseClick(bouton, Qt::LeftButton);
}

QWidget* focus_actuel() {
    return QApplication::focusWidget();
}

void taper_au_focus(const QString& texte) {
    for (const QChar c : texte) {
        QWidget* cible = focus_actuel();
        if (!cible) {
            ADD_FAILURE() << "aucun contrôle n'a le focus";
            return;
        }
        QTest::keyClicks(cible, QString(c));
    }
}

void touche_au_focus(int touche) {
    QWidget* cible = focus_actuel();
    if (!cible) {
        ADD_FAILURE() << "aucun contrôle n'a le focus";
        return;
    }
    QTest::keyClick(cible, static_cast<Qt::Key>(touche));
}
