#pragma once

#include "platform/forms/Clavier.h"
#include "platform/forms/Feuilles.h"
#include "platform/forms/Horloge.h"
#include "platform/ui/Interaction.h"

#include <QString>
#include <cstdint>
#include <memory>

// The program's run state, which every screen shares: one object for the whole run, reached by
// module1(). It lives with the store, the lowest of the subsystems, so that each of them reads it.
class Module1 {
public:
    QString base_en_cours;        // full path of the work database, or empty
    QString chemin_application;   // the program's folder, with a trailing separator
    QString chemin_choisi;        // folder of the last file picked, with a trailing separator
    QString chemin_image_choisie; // path of the last picture picked
    int16_t origine_appel = 0;    // which caller a lookup screen was opened for

    // Shortcuts to the platform's services, which Module1 does not own: interaction(), horloge(),
    // clavier() and feuilles() reach the same ones.
    Interaction& interaction() { return ::interaction(); }
    void setInteraction(std::shared_ptr<Interaction> service) { ::setInteraction(std::move(service)); }
    Horloge& horloge() { return ::horloge(); }
    Clavier& clavier() { return ::clavier(); }
    Feuilles& feuilles() { return ::feuilles(); }

    // The whole program back to its start state: empty strings, 0, every screen destroyed, the real
    // dialogs, the system clock and keyboard.
    void réinitialiser();
};

Module1& module1();
