#pragma once

#include <QString>
#include <initializer_list>

class Feuille;
class QTabWidget;

// One line of a tabbed screen's table: the field, by its control name, and the page that holds it.
struct ChampOnglet {
    const char* champ;
    int onglet;
};

// The GotFocus of each field named brings its page of `SSTab1` forward, so that a user who moves on
// with the Tab key never types into a hidden page. Nothing in the field is selected. A name that no
// control of the screen carries is an error of the declaration: 424 "Objet requis".
void suivre_onglets(Feuille& feuille, QTabWidget& SSTab1, std::initializer_list<ChampOnglet> table);
