#include "store/Module1.h"

void Module1::réinitialiser() {
    feuilles().toutDétruire();
    feuilles().setMdiArea(nullptr);
    base_en_cours.clear();
    chemin_application.clear();
    chemin_choisi.clear();
    chemin_image_choisie.clear();
    origine_appel = 0;
    setInteraction(nullptr);
    horloge().libérer();
    clavier().libérer();
}

Module1& module1() {
    static Module1 état;
    return état;
}
