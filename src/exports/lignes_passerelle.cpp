#include "exports/lignes_passerelle.h"

#include "platform/text/Windows1252.h"

using namespace Qt::StringLiterals;

namespace {

// What a text needs before its bytes: a letter typed as its base and a combining accent is held by
// the code page once composed; a line break becomes the file's own.
struct Besoins {
    bool composer = false;
    bool sauts_de_ligne = false;
};

Besoins besoins(const QString& texte) {
    Besoins b;
    for (const QChar c : texte) {
        b.composer |= c.unicode() >= 0x300;
        b.sauts_de_ligne |= c == u'\n' || c == u'\r';
    }
    return b;
}

QString sauts_de_ligne_windows(const QString& texte) {
    QString résultat = texte;
    résultat.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u"\n"_s, u"\r\n"_s);
    return résultat;
}

} // namespace

bool ajouter_valeur(QByteArray& octets, const QString& texte) {
    const Besoins b = besoins(texte);
    QString forme = b.composer ? texte.normalized(QString::NormalizationForm_C) : texte;
    if (b.sauts_de_ligne)
        forme = sauts_de_ligne_windows(forme);
    octets.append('"');
    const bool remplacé = ajouter_en_windows1252(octets, forme) > 0;
    octets.append("\"\r\n");
    return remplacé;
}
