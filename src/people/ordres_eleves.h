#pragma once

#include <QString>
#include <span>

// One entry of the pupil screen's order list as Combo1_Click reads it: the text it compares the list's
// text with, and the query it then sets.
struct OrdreÉlèves {
    const char* texte_comparé;
    const char* requête;
};

// The thirteen orders, in the list's order. The ninth compares with "nationalité" while the list says
// "Par nationalité", so that entry never matches and its query is never set from the list.
std::span<const OrdreÉlèves> ordres_élèves();

// The query of the first order whose text equals `texte` exactly; the alphabetical one otherwise.
QString requête_de_l_ordre(const QString& texte);
