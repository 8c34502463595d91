// The about box: its texts, the engines named as they report themselves, and its two buttons.
#include "shell/EtatDemarrage.h"

#include "shell/commandes.h"
#include "shell/feuille_copyright.h"

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

namespace {

class APropos : public Démarrage {};

TEST_F(APropos, TheBoxNamesTheProgramAndItsEnginesAndItsButtonsDoAsTold) {
    démarrer_par_clic();
    exécuter_commande(*mdi(), u("menuaideindex1"));
    auto* f = feuilles().siChargée<feuille_copyright>();
    ASSERT_NE(f, nullptr);
    EXPECT_TRUE(f->isVisible());
    EXPECT_EQ(f->windowTitle(), u("À propos du logiciel : Norvane v2"));
    EXPECT_EQ(f->lblVersion->text(), u("Version 2.2.9"));
    EXPECT_EQ(f->lblDescription->text(),
              u("Logiciel de Gestion Administrative des Ecoles Maternelles et Elémentaires"));
    EXPECT_EQ(f->SSTab1->currentIndex(), 0);
    EXPECT_TRUE(f->lblMoteurDonnées->text().contains(u("SQLite 3.")));
    EXPECT_TRUE(f->lblMoteurÉtats->text().endsWith(QString::fromLatin1(qVersion())));

    // Where no system tool can be found, a plain box says so.
    const QByteArray chemins = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit());
    ui().expectMsgBox();
    QTest::mouseClick(f->cmdSysInfo, Qt::LeftButton);
    qputenv("PATH", chemins);
    EXPECT_EQ(ui().lastBox(),
              ScriptedInteraction::Box::titled(
                  u("Les informations système ne sont pas disponibles actuellement"), vbOKOnly));

    QTest::mouseClick(f->cmdOK, Qt::LeftButton);
    EXPECT_FALSE(f->isVisible());
    exécuter_commande(*mdi(), u("menuaideindex1"));
    EXPECT_TRUE(f->isVisible());
    EXPECT_FALSE(f->Image1->isVisible());
}

} // namespace
