#include "people/recherches.h"

#include "platform/forms/DataControl.h"
#include "platform/ui/Interaction.h"

using namespace Qt::StringLiterals;

namespace {

constexpr Recherche par_matricule{"Entrez le matricule de l'enfant dont vous voulez voir la fiche...",
                                  "matricule like '", "'"};
constexpr Recherche par_nom{"Entrez le nom de l'enfant (entier OU partiel) dont vous voulez voir la fiche...",
                            "nom_élève like '", "*'"};

// Blanks on both sides go, and only blanks.
QString sans_blancs(const QString& texte) {
    qsizetype début = 0;
    qsizetype fin = texte.size();
    while (début < fin && texte[début] == QLatin1Char(' '))
        ++début;
    while (fin > début && texte[fin - 1] == QLatin1Char(' '))
        --fin;
    return texte.mid(début, fin - début);
}

} // namespace

void positionner(DataControl& source, Interaction& utilisateur, const Recherche& recherche) {
    const QString réponse = sans_blancs(utilisateur.InputBox(QString::fromUtf8(recherche.invite),
                                                             u"Positionnement sur une fiche"_s, QString()));
    if (réponse.isEmpty())
        return;
    DataRecordset& fiches = source.Recordset();
    fiches.MoveFirst();
    fiches.FindFirst(QString::fromUtf8(recherche.début_critère) + réponse +
                     QString::fromUtf8(recherche.fin_critère));
    if (fiches.NoMatch())
        utilisateur.MsgBox(u"Fiche introuvable..."_s, vbOKOnly + vbInformation,
                           QString::fromUtf8(titre_programme));
}

void positionner_par_matricule(DataControl& source, Interaction& utilisateur) {
    positionner(source, utilisateur, par_matricule);
}

void positionner_par_nom(DataControl& source, Interaction& utilisateur) {
    positionner(source, utilisateur, par_nom);
}
