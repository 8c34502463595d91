#pragma once

#include <QString>
#include <optional>

class Database;
class QIODevice;

// How far the writing went, so that the two screens can be left where the classic export left them.
struct ParcoursPasserelle {
    int élèves_écrits = 0;                     // written whole; at a failure, the next one was being written
    std::optional<QString> dernière_référence; // the last reference looked for, if any was
    bool dernière_trouvée = false;
    int valeurs_remplacées = 0; // values with a character that the code page cannot hold
};

// Appends every pupil of the base to `fichier`, in matricule order, 39 values each, with the values of
// the family that the family screen would show at that moment: a pupil without a reference repeats
// those of the pupil before. A reference that finds no family stops the writing there, with that
// pupil's first twelve lines in the file. What was written before a failure reaches the file before
// the failure goes on.
void écrire_fiches_passerelle(Database& base, QIODevice& fichier, ParcoursPasserelle& parcours);
