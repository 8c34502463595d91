#include "exports/fiches_passerelle.h"

#include "exports/familles_passerelle.h"
#include "exports/lignes_passerelle.h"
#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"
#include "platform/files/SafeSave.h"
#include "platform/ui/ErrorBoxes.h"

#include <QStringList>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// The file is written in pieces of this size: the pupils' bytes gather in memory between two writes.
constexpr qsizetype taille_d_écriture = 256 * 1024;

// Where each line takes its value from, found once: the pupil's columns in the row set read, or the
// family's column among those of its lines.
struct Source {
    const LignePasserelle* ligne;
    int colonne = -1;
    int seconde = -1;
};

class ÉcritureDesFiches {
public:
    ÉcritureDesFiches(Database& base, ParcoursPasserelle& parcours) : familles_(base), parcours_(parcours) {
        QStringList colonnes{u"référence_famille"_s};
        int colonne_de_famille = 0;
        for (const LignePasserelle& ligne : lignes_passerelle) {
            Source source{&ligne};
            if (ligne.origine == Origine::famille) {
                source.colonne = colonne_de_famille++;
            } else if (ligne.origine == Origine::élève) {
                source.colonne = static_cast<int>(colonnes.size());
                colonnes << QString::fromUtf8(ligne.colonne);
                if (ligne.seconde != nullptr) {
                    source.seconde = static_cast<int>(colonnes.size());
                    colonnes << QString::fromUtf8(ligne.seconde);
                }
            }
            sources_.push_back(source);
        }
        élèves_ =
            base.OpenRecordset(u"SELECT %1 FROM élèves ORDER BY matricule ASC"_s.arg(colonnes.join(u", ")));
    }

    void écrire(QIODevice& fichier) {
        try {
            for (; !élèves_->isEOF(); élèves_->MoveNext()) {
                écrire_élève();
                if (tampon_.size() >= taille_d_écriture) {
                    writeAll(fichier, tampon_);
                    tampon_.clear();
                }
            }
            writeAll(fichier, tampon_);
        } catch (...) {
            en_silence([&] { writeAll(fichier, tampon_); });
            throw;
        }
    }

private:
    void écrire_élève() {
        for (int i = 0; i < lignes_avant_la_famille; ++i)
            écrire_ligne(sources_[i]);
        const QString référence = élèves_->field(0).toString();
        if (!référence.isEmpty()) {
            parcours_.dernière_référence = référence;
            parcours_.dernière_trouvée = false;
            famille_ = familles_.chercher(référence);
            parcours_.dernière_trouvée = true;
        }
        for (size_t i = lignes_avant_la_famille; i < sources_.size(); ++i)
            écrire_ligne(sources_[i]);
        ++parcours_.élèves_écrits;
    }

    void écrire_ligne(const Source& source) {
        bool remplacée = false;
        switch (source.ligne->origine) {
        case Origine::élève: {
            QString texte = élèves_->field(source.colonne).toString();
            if (source.seconde >= 0)
                texte += u' ' + élèves_->field(source.seconde).toString();
            remplacée = ajouter_valeur(tampon_, texte);
            break;
        }
        case Origine::famille:
            remplacée = familles_.ajouter(tampon_, famille_, source.colonne);
            break;
        case Origine::constante:
            ajouter_valeur(tampon_, QString::fromUtf8(source.ligne->colonne));
            break;
        }
        parcours_.valeurs_remplacées += remplacée;
    }

    FamillesPasserelle familles_;
    ParcoursPasserelle& parcours_;
    std::vector<Source> sources_;
    std::unique_ptr<Recordset> élèves_;
    int famille_ = FamillesPasserelle::première_alphabétique;
    QByteArray tampon_;
};

} // namespace

void écrire_fiches_passerelle(Database& base, QIODevice& fichier, ParcoursPasserelle& parcours) {
    // One reading of the file from the first family to the last pupil, its lock taken once.
    base.BeginReadTrans();
    ÉcritureDesFiches(base, parcours).écrire(fichier);
    base.CommitTrans();
}
