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

void taper(QWidget* cible, const QString& texte) {
    for (const QChar c : texte) {
        if (c.unicode() < 128)
            QTest::keyClicks(cible, QString(c));
        else // a letter with an accent has no key of its own in the test library: its text alone
            QTest::sendKeyEvent(QTest::Click, cible, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

void taper_au_focus(const QString& texte) {
    for (const QChar c : texte) {
        QWidget* cible = focus_actuel();
        if (!cible) {
            ADD_FAILURE() << "aucun contrôle n'a le focus";
            return;
        }
        taper(cible, QString(c));
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
