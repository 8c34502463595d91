#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>

// What a letter is made of, as the screens show it: the template, the school sheet, the legal
// guardian of the family (absent for a pupil without a family reference), the pupil.
struct ModèleDeLettre {
    QString titre, destinataire;
    std::array<QString, 6> paragraphes;
    QString politesse, post_scriptum;
    bool coordonnées_élève = false;     // Check1
    bool coordonnées_directeur = false; // Check3
    bool signature = false;             // Check4
    bool date = false;                  // Check5, which also governs the guardian's block
};

struct SignataireÉcole {
    QString ville, genre_directeur, prénom_directeur, nom_directeur, titre_directeur, nom_école;
};

struct ResponsableLégal {
    QString genre, prénom, nom, numéro, adresse, adresse2, code_postal, ville;
};

struct ÉlèveDeLaLettre {
    QString prénom, nom, matricule, niveau, cycle, date_naissance, lieu_naissance;
};

// The 21 formulas of "document.rpt", Formulas(0) to Formulas(20), each "name= " and its quoted text,
// or "" when its condition fails. The guardian's block (1 to 4) follows the date's box, never the
// guardian's own box, and needs a guardian. No character of the texts is altered: a double quote in
// one ends its formula early, and the run then refuses it.
std::array<QString, 21> formules_de_la_lettre(const ModèleDeLettre& modèle, const SignataireÉcole& école,
                                              const std::optional<ResponsableLégal>& responsable,
                                              const ÉlèveDeLaLettre& élève, const QDate& aujourdhui);

// The preview of a template: its own texts and boxes, around sample values in capitals.
std::array<QString, 21> formules_de_l_aperçu(const ModèleDeLettre& modèle, const QDate& aujourdhui);
