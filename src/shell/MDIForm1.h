#pragma once

#include "platform/forms/Feuille.h"
#include "store/feuille_principale.h"

#include <QFile>
#include <QString>
#include <memory>

class QAction;
class ReportJob;
class QLabel;
class QMainWindow;
class QMdiArea;
class QMenu;
class QStatusBar;

// The main window: menus, status bar, and the area where the child screens live. It is loaded once,
// by the first touch, and lives until the user answers Yes to the quit question.
class MDIForm1 : public Feuille, public FeuillePrincipale {
    Q_OBJECT
public:
    MDIForm1();
    ~MDIForm1() override;

    QMainWindow* fenêtre = nullptr; // menus, area and status bar
    QMdiArea* zone = nullptr;
    QStatusBar* StatusBar1 = nullptr;

    // A menu entry by its control name ("menufichierindex1"); a submenu's entry is its title entry.
    QAction* menu(const QString& nom) const;
    // Status bar panel 1 to 6.
    QLabel* panneau(int numéro) const;
    QString Panel1() const;
    void setPanel1(const QString& texte) override;

    void désactiver_menus();
    void activer_menus() override;
    void montrer_écrans_après_ouverture() override;
    ReportJob& CrystalReport1() override { return *CrystalReport1_; }

    void Form_Load() override; // MDIForm_Load
    void Form_QueryUnload(int& cancel) override;
    void Form_Unload(int& cancel) override;

    // Commands of the menus that are the main window's own.
    void menufichierindex1_Click();
    void menufichierindex3_Click();
    void menufichierindex2_Click();
    void menuoptionsindex1_Click();

    // Runs the command of a menu entry, as a click on it does.
    void cliquer(const QString& nom);

    // options.ini as a failed reading left it: open for the rest of the run.
    std::unique_ptr<QFile> fichier_options_resté_ouvert;
    // File number 2, NORVANEX.EXP, as a failed gateway export left it: open for the rest of the run.
    std::unique_ptr<QFile> fichier_passerelle_resté_ouvert;

private:
    std::unique_ptr<ReportJob> CrystalReport1_;
    void construire_menus();
    void construire_barre_d_état();
    void mettre_à_jour_l_heure();
};
