#pragma once

#include "platform/forms/Clignotement.h"
#include "shell/MDIForm1.h"
#include "shell/feuille_accueil.h"
#include "store/Module1.h"
#include "store/feuille_choix_base.h"
#include "support/BaseDirecte.h"
#include "support/Fixtures.h"
#include "support/PiloteEcran.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <memory>

// The program started in a temporary folder made current, as a user starts it from a shortcut.
class Démarrage : public WorkFolderTest {
protected:
    void SetUp() override {
        WorkFolderTest::SetUp();
        courant_ = std::make_unique<DossierCourant>(folder.path());
        module1().chemin_application.clear();
    }
    void TearDown() override {
        WorkFolderTest::TearDown();
        courant_.reset();
    }

    static Feuilles& feuilles() { return module1().feuilles(); }
    static feuille_accueil& accueil() { return feuilles().get<feuille_accueil>(); }
    static MDIForm1* mdi() { return feuilles().siChargée<MDIForm1>(); }
    static feuille_choix_base* choix() { return feuilles().siChargée<feuille_choix_base>(); }

    void démarrer_par_clic() {
        QTest::mouseClick(accueil().Image1, Qt::LeftButton);
        processDeletions();
    }
    void démarrer_par_touche() {
        QTest::keyClick(&accueil(), Qt::Key_N);
        processDeletions();
    }

    QByteArray options_ini() const { return contentOf(folder.file(QStringLiteral("options.ini"))); }
    void préparer_options(const QByteArray& texte) const {
        folder.write(QStringLiteral("options.ini"), texte);
    }
    static QByteArray ligne_de_base(const QString& chemin) { return "\"" + chemin.toUtf8() + "\"\r\n"; }

    static bool menus_de_données_actifs() { return menus_de_données_tous(true); }
    static bool menus_de_données_inactifs() { return menus_de_données_tous(false); }
    static bool menus_de_données_tous(bool actifs) {
        for (const char* nom :
             {"menuenfantsindex0", "menuparamètresindex0", "menuutilitairesindex0", "menuexploitationindex0"})
            if (mdi()->menu(QString::fromUtf8(nom))->isEnabled() != actifs)
                return false;
        return true;
    }
    static bool choix_à_l_écran() { return choix() != nullptr && choix()->conteneur().isVisible(); }

private:
    std::unique_ptr<DossierCourant> courant_;
};
