#include "platform/forms/Focus.h"

#include "platform/errors/VbError.h"
#include "platform/forms/Feuille.h"

#include <QTabWidget>

namespace {

Feuille* feuille_de(QWidget& contrôle) {
    for (QWidget* w = &contrôle; w != nullptr; w = w->parentWidget())
        if (auto* feuille = qobject_cast<Feuille*>(w))
            return feuille;
    return nullptr;
}

// Every tab control between the screen and the control shows the page that holds the control.
void montrer_les_pages(QWidget& contrôle) {
    for (QWidget* w = contrôle.parentWidget(); w != nullptr; w = w->parentWidget()) {
        auto* onglets = qobject_cast<QTabWidget*>(w);
        if (onglets == nullptr)
            continue;
        for (int page = 0; page < onglets->count(); ++page)
            if (onglets->widget(page)->isAncestorOf(&contrôle))
                onglets->setCurrentIndex(page);
    }
}

} // namespace

void SetFocus(QWidget& contrôle) {
    Feuille* feuille = feuille_de(contrôle);
    const QWidget& fenêtre = feuille ? feuille->conteneur() : *contrôle.window();
    if (!fenêtre.isVisible() || !contrôle.isEnabled())
        throw VbError(5);
    montrer_les_pages(contrôle);
    if (!contrôle.isVisible())
        throw VbError(5);
    if (feuille)
        feuille->ZOrder();
    contrôle.setFocus(Qt::OtherFocusReason);
}
