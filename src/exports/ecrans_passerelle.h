#pragma once

struct ParcoursPasserelle;

// The pupil and family screens as the export leaves them, as if it had driven them row by row: the
// pupil screen past its last row, or on the pupil it stopped at; the family screen, once a reference
// was looked for, on "SELECT * FROM familles" and the family last found, opened for editing, or on its
// first row when the last search found nothing. Each is loaded hidden if it was not loaded.
void laisser_les_écrans(const ParcoursPasserelle& parcours, bool fini);
