#include "platform/forms/TouchesAcces.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QTimer>

namespace {

bool est_touche_d_accès(const QKeyEvent& touche) {
    return (touche.modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier && touche.key() != Qt::Key_Alt &&
           touche.key() != Qt::Key_Meta && touche.key() != Qt::Key_unknown;
}

QKeySequence combinaison(const QKeyEvent& touche) {
    const Qt::KeyboardModifiers modificateurs = touche.modifiers() & ~Qt::KeypadModifier;
    return QKeySequence(QKeyCombination(modificateurs, static_cast<Qt::Key>(touche.key())));
}

} // namespace

TouchesDAccès::TouchesDAccès(QMenuBar& barre) : QObject(&barre), barre_(barre) {
    qApp->installEventFilter(this);
}

bool TouchesDAccès::focus_dans_un_écran() const {
    const QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr || focus->window() != barre_.window())
        return false;
    for (const QWidget* w = focus; w != nullptr; w = w->parentWidget())
        if (qobject_cast<const QMdiSubWindow*>(w))
            return true;
    return false;
}

// Qt gives a key shared by the bar and a screen to neither: it cycles between them, the first press
// opening the menu and a button only taking the focus. The bar is taken out of the running for this
// one key press by its disabled flag alone: setEnabled would reach its menus and, coming back, enable
// again the data menus that are off without a base. It is back before any handler runs.
void TouchesDAccès::écarter_la_barre() {
    if (écartée_ || !barre_.isEnabled())
        return;
    barre_.setAttribute(Qt::WA_Disabled, true);
    écartée_ = true;
    QTimer::singleShot(0, this, &TouchesDAccès::rétablir_la_barre);
}

void TouchesDAccès::rétablir_la_barre() {
    if (!écartée_)
        return;
    barre_.setAttribute(Qt::WA_Disabled, false);
    écartée_ = false;
}

QAction* TouchesDAccès::menu_de_la_touche(const QKeyEvent& touche) const {
    for (QAction* menu : barre_.actions())
        if (menu->isVisible() && menu->isEnabled() &&
            QKeySequence::mnemonic(menu->text()) == combinaison(touche))
            return menu;
    return nullptr;
}

QAction* TouchesDAccès::premier_menu() const {
    for (QAction* menu : barre_.actions())
        if (menu->isVisible() && menu->isEnabled() && menu->menu() != nullptr)
            return menu;
    return nullptr;
}

void TouchesDAccès::ouvrir(QAction* menu) {
    barre_.setActiveAction(menu);
}

bool TouchesDAccès::eventFilter(QObject* objet, QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride: // sent before Qt looks the key up among the shortcuts
        if (est_touche_d_accès(*static_cast<QKeyEvent*>(event)) && focus_dans_un_écran())
            écarter_la_barre();
        break;
    case QEvent::Shortcut: // a control of the screen took the key
        rétablir_la_barre();
        break;
    case QEvent::KeyPress: {
        // No shortcut took the key: it goes to the focus, then up to the main window if no control
        // wants it. There a letter the screen does not use opens its menu, and F10 the first one.
        rétablir_la_barre();
        if (objet != barre_.window())
            break;
        const auto& touche = *static_cast<QKeyEvent*>(event);
        QAction* menu = nullptr;
        if (est_touche_d_accès(touche))
            menu = menu_de_la_touche(touche);
        else if (touche.key() == Qt::Key_F10 && touche.modifiers() == Qt::NoModifier)
            menu = premier_menu();
        if (menu == nullptr)
            break;
        ouvrir(menu);
        return true;
    }
    default:
        break;
    }
    return QObject::eventFilter(objet, event);
}
