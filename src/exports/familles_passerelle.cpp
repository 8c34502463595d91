#include "exports/familles_passerelle.h"

#include "platform/dao/Database.h"
#include "platform/dao/FrenchText.h"
#include "platform/dao/Recordset.h"
#include "platform/errors/VbError.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int pas_d_enregistrement_courant = 3021;

QString colonnes() {
    QStringList noms;
    for (const LignePasserelle& ligne : lignes_passerelle)
        if (ligne.origine == Origine::famille)
            noms << QString::fromUtf8(ligne.colonne);
    return noms.join(u", "_s);
}

// Letters and digits of ASCII alone: LIKE, with no wildcard in the pattern, then matches the same
// letters whatever their case, and nothing else.
bool simple(const QString& référence) {
    return !référence.isEmpty() && std::all_of(référence.begin(), référence.end(), [](QChar c) {
        return c.unicode() < 0x80 && c.isLetterOrNumber();
    });
}

QByteArray clé(const QString& référence) {
    return référence.toLatin1().toLower();
}

} // namespace

FamillesPasserelle::FamillesPasserelle(Database& base) : base_(base) {
    const auto alphabétique =
        base.OpenRecordset(u"SELECT %1 FROM familles ORDER BY nom_responsable_légal ASC, "
                           "prénom_responsable_légal ASC"_s.arg(colonnes()));
    première_alphabétique_ = coder(*alphabétique, 0); // on an empty table, empty values

    const auto table = base.OpenRecordset(u"SELECT référence_famille, %1 FROM familles"_s.arg(colonnes()));
    familles_.reserve(static_cast<size_t>(table->RecordCount()));
    for (; !table->isEOF(); table->MoveNext()) {
        const int position = static_cast<int>(familles_.size());
        const QString référence = table->field(0).toString();
        if (simple(référence)) {
            const QByteArray texte = clé(référence);
            if (!simples_.contains(texte))
                simples_.insert(texte, position);
        } else if (!référence.isEmpty()) {
            autres_.emplace_back(position, référence);
        }
        familles_.push_back(coder(*table, 1));
    }
}

FamillesPasserelle::~FamillesPasserelle() = default;

FamillesPasserelle::FamilleCodée FamillesPasserelle::coder(const Recordset& ligne, int première_colonne) {
    FamilleCodée famille;
    for (int k = 0; k < colonnes_de_famille; ++k) {
        famille.bornes[k] = static_cast<int>(famille.octets.size());
        const QString valeur = ligne.isEOF() ? QString() : ligne.field(première_colonne + k).toString();
        if (ajouter_valeur(famille.octets, valeur))
            famille.remplacées |= 1u << k;
    }
    famille.bornes[colonnes_de_famille] = static_cast<int>(famille.octets.size());
    return famille;
}

QString FamillesPasserelle::critère(const QString& référence) {
    return u"référence_famille LIKE \""_s + référence + u'"';
}

int FamillesPasserelle::chercher(const QString& référence) {
    if (!simple(référence))
        return chercher_par_le_moteur(référence);
    const int avant = simples_.value(clé(référence), static_cast<int>(familles_.size()));
    const int position = chercher_parmi_les_autres(référence, avant);
    if (position < 0)
        throw VbError(pas_d_enregistrement_courant);
    return position;
}

// A family whose reference holds other signs may still match a plain one (a digit of another script,
// say): the engine's LIKE decides, for the few families before the plain match.
int FamillesPasserelle::chercher_parmi_les_autres(const QString& référence, int avant) {
    for (const auto& [position, texte] : autres_) {
        if (position >= avant)
            break;
        if (!collation_)
            collation_ = std::make_unique<dao::FrenchCollation>();
        if (collation_->like(texte, référence))
            return position;
    }
    return avant < static_cast<int>(familles_.size()) ? avant : -1;
}

// Wildcards, quotes and the rest: the search itself, on the table in its own order.
int FamillesPasserelle::chercher_par_le_moteur(const QString& référence) {
    if (!recherche_)
        recherche_ = base_.OpenRecordset(u"SELECT référence_famille FROM familles"_s);
    recherche_->FindFirst(critère(référence));
    if (recherche_->NoMatch())
        throw VbError(pas_d_enregistrement_courant);
    return recherche_->AbsolutePosition();
}

bool FamillesPasserelle::ajouter(QByteArray& octets, int famille, int colonne) const {
    const FamilleCodée& f =
        famille == première_alphabétique ? première_alphabétique_ : familles_[static_cast<size_t>(famille)];
    octets.append(f.octets.constData() + f.bornes[colonne], f.bornes[colonne + 1] - f.bornes[colonne]);
    return (f.remplacées >> colonne) & 1u;
}
