#pragma once

#include <QString>

class ReportJob;

// What the subsystems below the shell ask of the main window: the opening of a base its menus and
// status bar, the reports its one report job. The main window is one, and is reached through the
// screen registry by its name, "MDIForm1". (Its name has no accent: moc reads the bases of the main
// window's class.)
class FeuillePrincipale {
public:
    virtual void activer_menus() = 0;
    virtual void setPanel1(const QString& texte) = 0;
    // Shows the screens that the start-up options name, in their order.
    virtual void montrer_écrans_après_ouverture() = 0;
    // The report job that every screen shares (CrystalReport1), created with the main window.
    virtual ReportJob& CrystalReport1() = 0;

protected:
    ~FeuillePrincipale() = default;
};
