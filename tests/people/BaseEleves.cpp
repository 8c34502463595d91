#include "BaseEleves.h"

QString créer_base_élèves(const WorkFolder& dossier) {
    return copie_du_modèle(dossier);
}

void ajouter_élève(const QString& chemin, const QString& matricule, const QString& nom, const QString& prénom,
                   const QString& référence) {
    auto texte = [](const QString& v) {
        return v.isNull() ? QStringLiteral("NULL")
                          : QLatin1Char('\'') + QString(v).replace('\'', "''") + '\'';
    };
    exécuter_par_le_moteur(chemin, QStringLiteral("INSERT INTO élèves (matricule, nom_élève, prénom_élève, "
                                                  "référence_famille) VALUES (%1, %2, %3, %4)")
                                       .arg(texte(matricule), texte(nom), texte(prénom), texte(référence)));
}
