#include "platform/forms/Feuilles.h"

#include <QCoreApplication>
#include <QMdiSubWindow>
#include <algorithm>
#include <stdexcept>

Feuilles& feuilles() {
    static Feuilles registre;
    return registre;
}

Feuilles::~Feuilles() {
    // Widgets cannot outlive the application object; at process end they are left to the system.
    if (QCoreApplication::instance() != nullptr)
        toutDétruire();
}

Feuille* Feuilles::trouver(std::type_index type) const {
    for (const Entrée& e : entrées_)
        if (e.type == type && e.feuille)
            return e.feuille.data();
    return nullptr;
}

void Feuilles::charger(std::type_index type, std::unique_ptr<Feuille> feuille) {
    std::erase_if(entrées_, [&](const Entrée& e) { return e.type == type; }); // destroyed behind our back
    Feuille& f = *feuille;
    f.hide();
    QWidget* conteneur = &f;
    if (zone_ && !f.estHautNiveau()) {
        QMdiSubWindow* sous_fenêtre = zone_->addSubWindow(&f);
        sous_fenêtre->hide();
        f.placerDans(sous_fenêtre);
        conteneur = sous_fenêtre;
    }
    (void)feuille.release(); // from here on owned through its entry, or by the area through its sub-window
    // Registered before Form_Load, so a Form_Load that touches its own screen finds it.
    entrées_.push_back({type, &f, conteneur});
    f.Form_Load();
}

Feuille* Feuilles::parNom(const QString& nom) {
    const auto fabrique = fabriques_.find(nom);
    return fabrique == fabriques_.end() ? nullptr : &fabrique->second(*this);
}

Feuille& Feuilles::nommée(const QString& nom) {
    Feuille* feuille = parNom(nom);
    if (feuille == nullptr)
        throw std::logic_error("Écran inconnu du registre : " + nom.toStdString());
    return *feuille;
}

bool Feuilles::unload(Feuille& feuille) {
    int cancel = 0;
    feuille.Form_QueryUnload(cancel);
    if (cancel != 0)
        return false;
    feuille.exécuterAvantDéchargement();
    feuille.Form_Unload(cancel);
    if (cancel != 0)
        return false;
    oublier(feuille);
    return true;
}

bool Feuilles::toutDécharger() {
    std::vector<QPointer<Feuille>> ordre;
    for (Feuille* f : chargées())
        ordre.insert(ordre.begin(), f);
    for (const auto& f : ordre) {
        int cancel = 0;
        if (f)
            f->Form_QueryUnload(cancel);
        if (cancel != 0)
            return false;
    }
    for (const auto& f : ordre) {
        if (!f || !contient(f.data()))
            continue;
        f->exécuterAvantDéchargement();
        int cancel = 0;
        f->Form_Unload(cancel);
        if (cancel != 0)
            return false;
        oublier(*f);
    }
    return true;
}

void Feuilles::oublier(Feuille& feuille) {
    const auto it = std::find_if(entrées_.begin(), entrées_.end(),
                                 [&](const Entrée& e) { return e.feuille.data() == &feuille; });
    if (it == entrées_.end())
        return;
    feuille.conteneur().hide();
    // Deferred: the screen may be unloading itself from one of its own handlers.
    if (it->conteneur)
        it->conteneur->deleteLater();
    entrées_.erase(it);
}

bool Feuilles::contient(const Feuille* feuille) const {
    return std::any_of(entrées_.begin(), entrées_.end(),
                       [&](const Entrée& e) { return e.feuille.data() == feuille; });
}

std::vector<Feuille*> Feuilles::chargées() const {
    std::vector<Feuille*> liste;
    for (const Entrée& e : entrées_)
        if (e.feuille)
            liste.push_back(e.feuille.data());
    return liste;
}

void Feuilles::toutDétruire() {
    std::vector<Entrée> entrées = std::move(entrées_);
    entrées_.clear();
    for (Entrée& e : entrées)
        delete e.conteneur.data(); // the registry's own, or taken back from the area; null if already gone
}
