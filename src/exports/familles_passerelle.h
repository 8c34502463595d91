#pragma once

#include "exports/lignes_passerelle.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <array>
#include <memory>
#include <utility>
#include <vector>

class Database;
class Recordset;

namespace dao {
class FrenchCollation;
}

// The families as the gateway export meets them: read once, each one's values already in the file's
// form, and the search that the family screen runs for a pupil's reference.
class FamillesPasserelle {
public:
    // What the family screen shows before any search: the first family of the alphabetical order.
    static constexpr int première_alphabétique = -1;

    explicit FamillesPasserelle(Database& base);
    ~FamillesPasserelle();
    FamillesPasserelle(const FamillesPasserelle&) = delete;
    FamillesPasserelle& operator=(const FamillesPasserelle&) = delete;

    // The family that "référence_famille LIKE" and the reference in double quotes finds first in the
    // table's own order, as a position in that order. None is a failure: 3021, since the row the
    // export then opens for editing does not exist; a criterion the engine cannot read fails with 3077.
    int chercher(const QString& référence);

    // Appends the value of the family's column (0 to colonnes_de_famille - 1, in the order of their
    // lines); returns whether a character of it became '?'.
    bool ajouter(QByteArray& octets, int famille, int colonne) const;

    // The criterion of the search, as the family screen runs it.
    static QString critère(const QString& référence);

private:
    struct FamilleCodée {
        QByteArray octets;
        std::array<int, colonnes_de_famille + 1> bornes{};
        quint32 remplacées = 0; // one bit a column
    };
    static_assert(colonnes_de_famille <= 32);

    static FamilleCodée coder(const Recordset& ligne, int première_colonne);
    int chercher_par_le_moteur(const QString& référence);
    int chercher_parmi_les_autres(const QString& référence, int avant);

    Database& base_;
    FamilleCodée première_alphabétique_;
    std::vector<FamilleCodée> familles_;
    // References of letters and digits alone, as LIKE compares them: case aside. The first family of
    // each.
    QHash<QByteArray, int> simples_;
    // Every other reference, in the table's order, for the engine's own LIKE.
    std::vector<std::pair<int, QString>> autres_;
    std::unique_ptr<dao::FrenchCollation> collation_;
    std::unique_ptr<Recordset> recherche_;
};
