#include "platform/forms/FiltreEvenements.h"

#include "platform/ui/ErrorBoxes.h"

#include <QAbstractScrollArea>
#include <QEvent>

void FiltreÉvénements::attacher(QWidget* contrôle, Sorte sorte, std::function<void()> handler) {
    Handlers& h = handlers_[contrôle];
    switch (sorte) {
    case Sorte::GotFocus:
        h.got_focus = std::move(handler);
        break;
    case Sorte::LostFocus:
        h.lost_focus = std::move(handler);
        break;
    case Sorte::DblClick:
        h.dbl_click = std::move(handler);
        break;
    }
    surveiller(contrôle, contrôle);
    // Lists and grids receive their clicks on the viewport, not on themselves.
    if (auto* zone = qobject_cast<QAbstractScrollArea*>(contrôle))
        surveiller(zone->viewport(), contrôle);
}

void FiltreÉvénements::désarmer() {
    handlers_.clear();
    cibles_.clear();
}

void FiltreÉvénements::surveiller(QWidget* cible, QWidget* contrôle) {
    if (cibles_.contains(cible))
        return;
    cibles_[cible] = contrôle;
    cible->installEventFilter(this);
    connect(cible, &QObject::destroyed, this, [this, cible] {
        handlers_.erase(cible);
        cibles_.erase(cible);
    });
}

bool FiltreÉvénements::eventFilter(QObject* watched, QEvent* event) {
    const auto cible = cibles_.find(watched);
    if (cible == cibles_.end())
        return false;
    const auto h = handlers_.find(cible->second);
    if (h == handlers_.end())
        return false;
    std::function<void()> handler;
    switch (event->type()) {
    case QEvent::FocusIn:
        handler = h->second.got_focus;
        break;
    case QEvent::FocusOut:
        handler = h->second.lost_focus;
        break;
    case QEvent::MouseButtonDblClick:
        handler = h->second.dbl_click;
        break;
    default:
        break;
    }
    // A copy: the handler may replace its own entry or unload the screen.
    if (handler)
        avec_filet(handler);
    return false;
}
