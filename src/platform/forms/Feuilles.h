#pragma once

#include "platform/forms/Feuille.h"

#include <QMdiArea>
#include <QPointer>
#include <QString>
#include <map>
#include <memory>
#include <typeindex>
#include <utility>
#include <vector>

// The screen registry. The first touch of a screen constructs it hidden and runs its Form_Load; an
// unload destroys it, so the next touch brings back its stored defaults.
class Feuilles {
public:
    Feuilles() = default;
    Feuilles(const Feuilles&) = delete;
    Feuilles& operator=(const Feuilles&) = delete;
    ~Feuilles();

    // The screen of type F, loaded (hidden) on first touch. F is default-constructible.
    template <class F> F& get() {
        if (Feuille* f = trouver(typeid(F)))
            return static_cast<F&>(*f);
        auto nouvelle = std::make_unique<F>();
        F& f = *nouvelle;
        charger(typeid(F), std::move(nouvelle));
        return f;
    }

    template <class F> bool isLoaded() const { return trouver(typeid(F)) != nullptr; }

    // Screens that other screens reach by name, as a lookup writes into the fields of its caller:
    // each screen that can be so reached is made known once, by the program's start-up.
    template <class F> void faireConnaître(const QString& nom) {
        fabriques_[nom] = [](Feuilles& feuilles) -> Feuille& { return feuilles.get<F>(); };
    }
    bool connaît(const QString& nom) const { return fabriques_.contains(nom); }
    // The screen of that name, loaded hidden on first touch as get<F>() does; nullptr when no screen
    // of that name has been made known. What is made known stays so when the screens are destroyed.
    Feuille* parNom(const QString& nom);
    // The same for a screen the program cannot do without: a name never made known is a fault of the
    // program, thrown as std::logic_error.
    Feuille& nommée(const QString& nom);

    // The screen if it is loaded, without loading it.
    template <class F> F* siChargée() const { return static_cast<F*>(trouver(typeid(F))); }

    // Form_QueryUnload, the screen's pre-unload work, Form_Unload, then destruction (deferred to the
    // event loop, so a screen may unload itself from its own handler). False when a handler cancelled.
    bool unload(Feuille& feuille);
    template <class F> bool unload() {
        F* f = siChargée<F>();
        return f == nullptr || unload(*f);
    }

    // The end of the main window: every screen's Form_QueryUnload first, the last loaded first; if none
    // cancels, each is unloaded in the same order. False, with every screen left loaded, on a cancel
    // in a Form_QueryUnload; false, with the screens before it gone, on a cancel in a Form_Unload.
    bool toutDécharger();

    // The main window's area, where child screens go. Without one, they are plain hidden windows.
    void setMdiArea(QMdiArea* area) { zone_ = area; }
    QMdiArea* mdiArea() const { return zone_; }

    // Whether this very screen is loaded (a screen unloaded but not yet destroyed is not).
    bool contient(const Feuille* feuille) const;

    // Loaded screens, in loading order.
    std::vector<Feuille*> chargées() const;

    // Destroys every screen at once, without running their events: the end of a run or of a test.
    void toutDétruire();

private:
    Feuille* trouver(std::type_index type) const;
    void charger(std::type_index type, std::unique_ptr<Feuille> feuille);

    // The registry owns each screen through its outermost window: the sub-window the area made for it,
    // or the screen itself. A window destroyed behind its back (the area going) leaves a null here.
    struct Entrée {
        std::type_index type;
        QPointer<Feuille> feuille;
        QPointer<QWidget> conteneur;
    };
    void oublier(Feuille& feuille);
    std::vector<Entrée> entrées_;
    QPointer<QMdiArea> zone_;
    std::map<QString, Feuille& (*)(Feuilles&)> fabriques_;
};

// The program's one screen registry.
Feuilles& feuilles();
