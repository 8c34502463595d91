#pragma once

class QLineEdit;
class feuille_élève;
class feuille_famille;

// The learning of new lookup values: on leaving one of these fields, a text that the field's lookup
// table does not hold yet is added to it, with a word to the user. Every such field stands disabled,
// so the rule lies dormant until a field is made editable; then it works with nothing more to do.
// Two handlers of the pupil screen keep their own departures (the language, the class).
void brancher_apprentissage(feuille_élève& élève);
void brancher_apprentissage(feuille_famille& famille);
