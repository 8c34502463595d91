#include "reports/lettre.h"

using namespace Qt::StringLiterals;

namespace {

// "name" and its quoted value, or "" when the condition fails.
QString formule(bool condition, const QString& nom, const QString& valeur) {
    return condition ? nom + u'"' + valeur + u'"' : QString();
}

// A text of the template: present when not empty.
QString texte(const QString& nom, const QString& valeur) {
    return formule(!valeur.isEmpty(), nom, valeur);
}

} // namespace

std::array<QString, 21> formules_de_la_lettre(const ModèleDeLettre& m, const SignataireÉcole& é,
                                              const std::optional<ResponsableLégal>& r,
                                              const ÉlèveDeLaLettre& e, const QDate& aujourdhui) {
    std::array<QString, 21> f;
    f[0] = formule(m.date, u"date_contrôlée= "_s, é.ville + u", "_s + aujourdhui.toString(u"dd/MM/yyyy"_s));
    if (r && m.date) {
        f[1] = formule(true, u"nom_responsable_contrôlé="_s, r->genre + u' ' + r->prénom + u' ' + r->nom);
        f[2] = formule(true, u"adresse_responsable_contrôlée="_s, r->numéro + u", "_s + r->adresse);
        f[3] = formule(true, u"adresse2_responsable_contrôlée="_s, r->adresse2);
        f[4] = formule(true, u"ville_responsable_contrôlée="_s, r->code_postal + u' ' + r->ville);
    }
    f[5] = texte(u"titre_document= "_s, m.titre);
    f[6] = texte(u"destinataire_document= "_s, m.destinataire);
    f[7] = texte(u"paragraphe1= "_s, m.paragraphes[0]);
    f[8] = formule(m.coordonnées_directeur, u"nom_directeur_contrôlé= "_s,
                   é.genre_directeur + u' ' + é.prénom_directeur + u' ' + é.nom_directeur + u", "_s +
                       é.titre_directeur);
    f[9] = texte(u"paragraphe2= "_s, m.paragraphes[1]);
    f[10] = formule(m.coordonnées_élève, u"élève_contrôlé= "_s, e.prénom + u' ' + e.nom);
    f[11] = formule(m.coordonnées_élève, u"élève_contrôlé2= "_s,
                    u"Inscrit sous le matricule n° "_s + e.matricule + u" - Fréquentant la classe de "_s +
                        e.niveau + u" - cycle "_s + e.cycle);
    f[12] = formule(m.coordonnées_élève, u"élève_contrôlé3= "_s,
                    u"Date de naissance : "_s + e.date_naissance + u" - Lieu de naissance : "_s +
                        e.lieu_naissance);
    f[13] = texte(u"paragraphe3= "_s, m.paragraphes[2]);
    f[14] = texte(u"paragraphe4= "_s, m.paragraphes[3]);
    f[15] = texte(u"paragraphe5= "_s, m.paragraphes[4]);
    f[16] = texte(u"paragraphe6= "_s, m.paragraphes[5]);
    f[17] = texte(u"politesse= "_s, m.politesse);
    f[18] = formule(m.signature, u"signature_contrôlée= "_s,
                    é.prénom_directeur + u' ' + é.nom_directeur + u", "_s + é.titre_directeur);
    f[19] = formule(m.signature, u"cachet_contrôlé= "_s, é.nom_école + u" - "_s + é.ville);
    f[20] = texte(u"postscriptum= "_s, m.post_scriptum);
    return f;
}

// The stamp's sample shows a postal code where a letter shows the school's name: so it was drawn.
std::array<QString, 21> formules_de_l_aperçu(const ModèleDeLettre& modèle, const QDate& aujourdhui) {
    const SignataireÉcole école{u"VILLE"_s,           u"MONSIEUR"_s,  u"ZZZZZZZZZZ"_s,
                                u"ZZZZZZZZZZZZZZZ"_s, u"Directeur"_s, u"00000"_s};
    const ResponsableLégal responsable{u"Monsieur"_s,       u"Xxxx-Xxxxx"_s, u"XXXXXXXXXX"_s, u"XXXX"_s,
                                       u"Rue XXXXXXXXXX"_s, u"B.P. XXXX"_s,  u"00000"_s,      u"VILLE"_s};
    const ÉlèveDeLaLettre élève{u"PRENOM_ENFANT"_s,         u"NOM_ENFANT"_s, u"MATRICULE_ENFANT"_s,
                                u"CLASSE_ENFANT"_s,         u"X"_s,          u"00/00/0000"_s,
                                u"VILLE_NAISSANCE_ENFANT"_s};
    return formules_de_la_lettre(modèle, école, responsable, élève, aujourdhui);
}
