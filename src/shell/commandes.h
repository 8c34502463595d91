#pragma once

#include <QString>
#include <functional>
#include <vector>

class MDIForm1;

// What a menu entry does. An entry whose screen is not built yet has an empty command: it does nothing
// and shows nothing.
using Commande = std::function<void(MDIForm1&)>;

struct LigneDeCommande {
    const char* menu; // control name of the menu entry
    Commande faire;
};

// The command map, one line a menu entry that has a command.
const std::vector<LigneDeCommande>& carte_des_commandes();

// Runs the command of the named entry, as a click on it does.
void exécuter_commande(MDIForm1& mdi, const QString& menu);
