#pragma once

class DataControl;
class Interaction;

// A jump to one record: the input box's prompt, and the criterion around the user's answer.
struct Recherche {
    const char* invite;
    const char* début_critère;
    const char* fin_critère;
};

// The input box titled "Positionnement sur une fiche", its answer trimmed of blanks; an empty answer
// or Cancel changes nothing. Otherwise the first record of the present order that matches the
// criterion (the engine's LIKE, with * and ?) becomes current, or, with none, the first record with
// "Fiche introuvable...". Nothing is trapped: an apostrophe in the answer breaks the criterion and an
// empty row set has no first record, and either failure goes up to whoever runs the handler.
void positionner(DataControl& source, Interaction& utilisateur, const Recherche& recherche);

// The two jumps of the pupil screen: an input box, then the first pupil of the present order whose
// matricule (or surname, as a prefix) matches the answer with the engine's LIKE. An empty answer or
// Cancel changes nothing; no match leaves the screen on the first record with "Fiche introuvable...".
// Nothing is trapped here: an apostrophe in the answer breaks the criterion and an empty row set has
// no first record, and either failure goes up to whoever runs the handler.
void positionner_par_matricule(DataControl& source, Interaction& utilisateur);
void positionner_par_nom(DataControl& source, Interaction& utilisateur);
