#pragma once

#include <QString>
#include <span>

// The reports of the treatments screen, list by list, in the order the lists show them.
struct EntréeCatalogue {
    const char* libellé;
    const char* fichier;                  // the layout, beside the program; nullptr for a separator
    const char* formule = nullptr;        // a fixed selection; nullptr when lancer_état builds it
    const char* message = nullptr;        // shown before the run
    const char* fichier_si_non = nullptr; // the message is then a question, whose No takes this layout
};

// The four lists: 1 Statistiques, 2 Listes, 3 Etiquettes, 4 Documents.
std::span<const EntréeCatalogue> catalogue(int liste);

// The entry of a list that bears that text exactly, or nullptr.
const EntréeCatalogue* entrée_du_catalogue(int liste, const QString& libellé);
