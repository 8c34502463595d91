#pragma once

class DataControl;
class Interaction;

// The two jumps of the pupil screen: an input box, then the first pupil of the present order whose
// matricule (or surname, as a prefix) matches the answer with the engine's LIKE. An empty answer or
// Cancel changes nothing; no match leaves the screen on the first record with "Fiche introuvable...".
// Nothing is trapped here: an apostrophe in the answer breaks the criterion and an empty row set has
// no first record, and either failure goes up to whoever runs the handler.
void positionner_par_matricule(DataControl& source, Interaction& utilisateur);
void positionner_par_nom(DataControl& source, Interaction& utilisateur);
