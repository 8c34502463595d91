#pragma once

#include <QByteArray>
#include <QString>
#include <array>

// The record of one pupil in the gateway file NORVANEX.EXP: 39 values, one a line, always in this order.

enum class Origine {
    élève,     // a column of the pupil
    famille,   // a column of the family the family screen shows
    constante, // the text itself
};

struct LignePasserelle {
    Origine origine;
    const char* colonne;           // the column, or the constant's text
    const char* seconde = nullptr; // a second column of the pupil, joined to the first by one blank
};

inline constexpr std::array<LignePasserelle, 39> lignes_passerelle = {{
    {Origine::élève, "nom_élève"},
    {Origine::élève, "prénom_élève"},
    {Origine::élève, "date_inscription_élève"},
    {Origine::élève, "matricule"},
    {Origine::élève, "date_naissance_élève"},
    {Origine::élève, "lieu_naissance_élève"},
    {Origine::élève, "sexe_élève"},
    {Origine::élève, "nationalité_élève"},
    {Origine::élève, "numéro_résidence", "adresse_résidence"},
    {Origine::élève, "code_postal_résidence"},
    {Origine::élève, "ville_résidence"},
    {Origine::élève, "téléphone1_résidence"},
    // The family is looked for here, after the twelfth line.
    {Origine::famille, "nom_responsable_légal"},
    {Origine::famille, "prénom_responsable_légal"},
    {Origine::famille, "profession_responsable_légal"},
    {Origine::famille, "csp_responsable_légal"},
    {Origine::famille, "téléphone_professionnel1_responsable_légal"},
    {Origine::famille, "nom_conjoint"},
    {Origine::famille, "prénom_conjoint"},
    {Origine::famille, "profession_conjoint"},
    {Origine::famille, "csp_conjoint"},
    {Origine::famille, "téléphone_professionnel1_conjoint"},
    {Origine::constante, "1"},
    {Origine::constante, "1"},
    // The eldest-in-school flag compares the tick box with a true boolean, which a tick box never
    // holds: the value is "2" for every pupil, ticked or not, as the receiving side has always read it.
    {Origine::constante, "2"},
    {Origine::élève, "nom_contact1", "prénom_contact1"},
    {Origine::élève, "téléphone_contact1"},
    {Origine::famille, "médecin_traitant"},
    {Origine::famille, "téléphone_médecin_traitant"},
    {Origine::famille, "hôpital_préférentiel"},
    {Origine::famille, "téléphone_hôpital_préférentiel"},
    {Origine::élève, "référence_classe_élève"},
    {Origine::élève, "niveau_classe_élève"},
    {Origine::élève, "cycle_classe_élève"},
    {Origine::élève, "cursus_allongé_élève"},
    {Origine::élève, "restauration_scolaire"},
    {Origine::famille, "société_assurance"},
    {Origine::famille, "police_assurance"},
    {Origine::élève, "observations_générales"},
}};

// The lines written before the pupil's family is looked for.
inline constexpr int lignes_avant_la_famille = 12;

// The family's columns, in the order of their lines.
inline constexpr int colonnes_de_famille = [] {
    int n = 0;
    for (const LignePasserelle& ligne : lignes_passerelle)
        n += ligne.origine == Origine::famille;
    return n;
}();

// Appends one value as the file holds it: a double quote, the text in Windows-1252 with nothing
// escaped, a double quote, carriage return and line feed. A line break inside the text is written as
// carriage return and line feed too, the line end of the file's readers. Returns whether a character
// that the code page cannot hold became '?'.
bool ajouter_valeur(QByteArray& octets, const QString& texte);
