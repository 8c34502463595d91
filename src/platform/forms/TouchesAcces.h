#pragma once

#include <QObject>

class QAction;
class QKeyEvent;
class QMenuBar;

// Alt and a letter belong first to the screen that has the focus: its buttons, tabs and labelled
// fields come before the menus of the main window's bar, whose titles share their letters ("&Fermer"
// and "&Fichier", "&Ajouter" and "&Administration", "&Ouvrir" and "&Options"). A letter the screen
// does not use still opens its menu. Alt alone and F10 reach the bar whatever has the focus.
class TouchesDAccès : public QObject {
public:
    // Watches the whole application; goes with the bar, of which it is a child.
    explicit TouchesDAccès(QMenuBar& barre);

protected:
    bool eventFilter(QObject* objet, QEvent* event) override;

private:
    bool focus_dans_un_écran() const;
    void écarter_la_barre();
    void rétablir_la_barre();
    QAction* menu_de_la_touche(const QKeyEvent& touche) const;
    QAction* premier_menu() const;
    void ouvrir(QAction* menu);

    QMenuBar& barre_;
    bool écartée_ = false;      // the bar is out of the running for the key being pressed
    bool sans_preneur_ = false; // a key taken from the bar that no control of the screen took
};
