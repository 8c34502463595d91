#pragma once

#include <QString>
#include <optional>

// The classic conversions of typed text into numbers, as the program's record numbers rely on them.
// A text is a number when, blanks aside, it is an optional sign, digits with at most one decimal
// separator ("," or "."), and an optional exponent: "000041", " 42 ", "-3", "4,5", "1E3".

// The number a text holds, or nothing when it holds none.
std::optional<double> valeur_numérique(const QString& texte);

// CDbl: the number a text holds; 13 "Type incompatible" when it holds none (an empty text included).
double CDbl(const QString& texte);

// Str with its leading blank trimmed: a whole number without decimals ("1000000"), otherwise the
// shortest decimal form with "." ("4.5").
QString texte_du_nombre(double valeur);

// Format(texte, "000000") and its kin: a text that holds a number comes out rounded to a whole number
// (halves away from zero) with at least `chiffres` digits, zeros on the left; a longer number stays
// whole; a text that holds no number comes out unchanged.
QString format_zéros(const QString& texte, int chiffres = 6);
