#include "platform/forms/Module1.h"

#include "platform/ui/QtInteraction.h"

Interaction& Module1::interaction() {
    if (!interaction_)
        interaction_ = std::make_shared<QtInteraction>();
    return *interaction_;
}

void Module1::setInteraction(std::shared_ptr<Interaction> interaction) {
    interaction_ = std::move(interaction);
}

void Module1::réinitialiser() {
    feuilles_.toutDétruire();
    feuilles_.setMdiArea(nullptr);
    base_en_cours.clear();
    chemin_application.clear();
    chemin_choisi.clear();
    chemin_image_choisie.clear();
    origine_appel = 0;
    interaction_.reset();
    horloge_.libérer();
    clavier_.libérer();
}

Module1& module1() {
    static Module1 état;
    return état;
}
