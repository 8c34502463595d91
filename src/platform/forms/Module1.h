#pragma once

#include "platform/forms/Clavier.h"
#include "platform/forms/Feuilles.h"
#include "platform/forms/Horloge.h"
#include "platform/ui/Interaction.h"

#include <QString>
#include <cstdint>
#include <memory>

// The run state that every screen shares, and the services the program shares. One object for the
// whole run, reached by module1().
class Module1 {
public:
    QString base_en_cours;        // full path of the work database, or empty
    QString chemin_application;   // the program's folder, with a trailing separator
    QString chemin_choisi;        // folder of the last file picked, with a trailing separator
    QString chemin_image_choisie; // path of the last picture picked
    int16_t origine_appel = 0;    // which caller a lookup screen was opened for

    // The user's side of message boxes, input boxes and modal screens; the real dialogs by default.
    Interaction& interaction();
    // Puts another service in place (a test's scripted one); nullptr brings back the real dialogs.
    void setInteraction(std::shared_ptr<Interaction> interaction);

    Horloge& horloge() { return horloge_; }
    Clavier& clavier() { return clavier_; }
    Feuilles& feuilles() { return feuilles_; }

    // Back to the start state: empty strings, 0, every screen destroyed, real dialogs, system clock
    // and keyboard.
    void réinitialiser();

private:
    std::shared_ptr<Interaction> interaction_;
    Horloge horloge_;
    Clavier clavier_;
    Feuilles feuilles_;
};

Module1& module1();
