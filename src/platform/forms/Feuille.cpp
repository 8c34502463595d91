#include "platform/forms/Feuille.h"

#include "platform/forms/Feuilles.h"
#include "platform/forms/FiltreEvenements.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

Feuille::Feuille(const QString& nom, Genre genre) : genre_(genre) {
    setObjectName(nom);
    setAttribute(Qt::WA_DeleteOnClose, false);
}

// The screen's own members are gone by now, but its controls are not: no handler may run any more.
Feuille::~Feuille() {
    if (filtre_)
        filtre_->désarmer();
}

QWidget& Feuille::conteneur() {
    if (sous_fenêtre_)
        return *sous_fenêtre_;
    return *this;
}

const QWidget& Feuille::conteneur() const {
    if (sous_fenêtre_)
        return *sous_fenêtre_;
    return *this;
}

void Feuille::Show() {
    show();
    conteneur().show();
    ZOrder();
}

void Feuille::Hide() {
    conteneur().hide();
}

void Feuille::ZOrder() {
    QWidget& fenêtre = conteneur();
    fenêtre.raise();
    if (auto* sous_fenêtre = qobject_cast<QMdiSubWindow*>(&fenêtre); sous_fenêtre && sous_fenêtre->mdiArea())
        sous_fenêtre->mdiArea()->setActiveSubWindow(sous_fenêtre);
    else if (fenêtre.isVisible())
        fenêtre.activateWindow();
}

bool Feuille::Unload() {
    return feuilles().unload(*this);
}

void Feuille::avantDéchargement(std::function<void()> tâche) {
    avant_déchargement_.push_back(std::move(tâche));
}

void Feuille::exécuterAvantDéchargement() {
    for (const auto& tâche : avant_déchargement_)
        tâche();
}

FiltreÉvénements& Feuille::filtre() {
    if (!filtre_)
        filtre_ = new FiltreÉvénements(this); // owned by this screen as its Qt child
    return *filtre_;
}

void Feuille::surGotFocus(QWidget* contrôle, std::function<void()> handler) {
    filtre().attacher(contrôle, FiltreÉvénements::Sorte::GotFocus, std::move(handler));
}

void Feuille::surLostFocus(QWidget* contrôle, std::function<void()> handler) {
    filtre().attacher(contrôle, FiltreÉvénements::Sorte::LostFocus, std::move(handler));
}

void Feuille::surDblClick(QWidget* contrôle, std::function<void()> handler) {
    filtre().attacher(contrôle, FiltreÉvénements::Sorte::DblClick, std::move(handler));
}

// Closing the window by its own button is an unload, with the same events and the same refusal.
void Feuille::closeEvent(QCloseEvent* event) {
    const bool chargée = feuilles().contient(this);
    if (!chargée || Unload())
        event->accept();
    else
        event->ignore();
}
