#pragma once

#include <QString>
#include <cstdint>
#include <vector>

class FeuilleFiche;

// One value that an accept copies: from a column of the lookup's grid, by its number, or, on the
// teaching team, from one of its text boxes; into a text box of the calling screen.
struct Copie {
    int colonne;        // grid column, -1 when the value comes from a text box
    const char* depuis; // the lookup's text box, nullptr for a grid column
    const char* vers;   // the caller's text box
};
constexpr Copie colonne(int numéro, const char* vers) {
    return {numéro, nullptr, vers};
}
constexpr Copie champ(const char* depuis, const char* vers) {
    return {-1, depuis, vers};
}

// One pair of lookup screen and origine_appel that the lookup knows: whose text boxes receive what,
// in which order, and which field takes the focus afterwards.
struct Retour {
    const char* consultation;         // the lookup screen
    int16_t origine_appel;            // the value its caller's button set
    const char* appelant;             // the calling screen, reached by name
    std::vector<const char*> boutons; // the caller's buttons that open the lookup with this value
    std::vector<Copie> copies;        // in the order of copying
    const char* focus;                // the caller's field that takes the focus, nullptr for none
};

// Every pair known to the program, the callers not built yet included: such a row comes to life
// when its calling screen is made known to the screen registry by name.
const std::vector<Retour>& table_des_retours();

// The row of this lookup for this value, or nullptr when the lookup does not know the value.
const Retour* retour(const QString& consultation, int16_t origine_appel);

// The lookup buttons of a calling screen, from the rows of the table that name it: each button opens
// its lookup for its row's origine_appel, a failure shown with the standard box. A row whose lookup the
// program does not have yet leaves its buttons as they are; a button the screen lacks is an error of
// the table: 424 "Objet requis".
void brancher_consultations(FeuilleFiche& appelant);

// bouton_accepter_Click of every screen of the protocol. When the table has the pair of this screen
// and origine_appel, and its calling screen is part of the program: each value is copied in order into
// the caller's text box (an edit of the caller's current row, loading that screen hidden if it was
// closed), the lookup unloads, and the focus field, if any, takes the focus. In every case the accept
// button is then put out of use: hidden on a lookup, disabled on the teaching team. Any failure shows
// the standard box and ends there.
void accepter(FeuilleFiche& consultation);
