#include "shell/fichier_options.h"

#include "platform/text/Windows1252.h"

#include <cmath>

namespace {

constexpr int nombre_de_valeurs = 5;
constexpr int erreur_fin_de_fichier = 62;
constexpr int erreur_type_incompatible = 13;
constexpr int erreur_valeur_de_propriété = 380;

// Reads comma- or line-delimited fields as the classic Input # does: leading blanks skipped, a
// quoted field taken up to its closing quote (commas inside it included), an unquoted one up to the
// next comma or line end, trailing blanks dropped.
class LecteurDélimité {
public:
    explicit LecteurDélimité(const QByteArray& octets) : octets_(octets) {}

    std::optional<QString> champ() {
        while (pos_ < octets_.size() && (octets_[pos_] == ' ' || octets_[pos_] == '\t'))
            ++pos_;
        if (pos_ >= octets_.size())
            return std::nullopt;
        QByteArray brut;
        if (octets_[pos_] == '"') {
            const qsizetype fin = octets_.indexOf('"', pos_ + 1);
            const qsizetype arrêt = fin < 0 ? octets_.size() : fin;
            brut = octets_.mid(pos_ + 1, arrêt - pos_ - 1);
            pos_ = fin < 0 ? octets_.size() : fin + 1;
            sauter_jusqu_au_séparateur();
        } else {
            const qsizetype début = pos_;
            while (pos_ < octets_.size() && !séparateur(octets_[pos_]))
                ++pos_;
            brut = octets_.mid(début, pos_ - début).trimmed();
        }
        consommer_séparateur();
        return depuis_windows1252(brut);
    }

private:
    static bool séparateur(char c) { return c == ',' || c == '\r' || c == '\n'; }

    void sauter_jusqu_au_séparateur() {
        while (pos_ < octets_.size() && !séparateur(octets_[pos_]))
            ++pos_;
    }

    void consommer_séparateur() {
        if (pos_ >= octets_.size())
            return;
        const char c = octets_[pos_++];
        if (c == '\r' && pos_ < octets_.size() && octets_[pos_] == '\n')
            ++pos_;
    }

    const QByteArray& octets_;
    qsizetype pos_ = 0;
};

} // namespace

QByteArray texte_options(const ContenuOptions& contenu) {
    QByteArray texte;
    for (const int indicateur : contenu.indicateurs)
        texte += QByteArray::number(indicateur) + "\r\n";
    texte += '"' + vers_windows1252(contenu.base) + "\"\r\n";
    return texte;
}

LectureOptions lire_texte_options(const QByteArray& octets) {
    LectureOptions lecture;
    LecteurDélimité lecteur(octets);
    for (int i = 0; i < nombre_de_valeurs; ++i) {
        const std::optional<QString> valeur = lecteur.champ();
        if (!valeur) {
            lecture.erreur = VbError(erreur_fin_de_fichier);
            break;
        }
        lecture.valeurs << *valeur;
    }
    return lecture;
}

int indicateur_lu(const QString& valeur) {
    const QString texte = valeur.trimmed();
    if (texte.isEmpty())
        return 0;
    bool nombre = false;
    const double d = texte.toDouble(&nombre);
    if (!nombre)
        throw VbError(erreur_type_incompatible);
    const double arrondi = std::nearbyint(d);
    if (arrondi < 0 || arrondi > 2)
        throw VbError(erreur_valeur_de_propriété);
    return static_cast<int>(arrondi);
}
