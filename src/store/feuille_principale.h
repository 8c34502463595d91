#pragma once

#include <QString>

// What the opening of a base asks of the main window, which sits above the store: the main window is
// one, and is reached through the screen registry by its name, "MDIForm1". (Its name has no accent:
// moc reads the bases of the main window's class.)
class FeuillePrincipale {
public:
    virtual void activer_menus() = 0;
    virtual void setPanel1(const QString& texte) = 0;
    // Shows the screens that the start-up options name, in their order.
    virtual void montrer_écrans_après_ouverture() = 0;

protected:
    ~FeuillePrincipale() = default;
};
