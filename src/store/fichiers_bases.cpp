#include "store/fichiers_bases.h"

#include "platform/dao/Database.h"
#include "platform/files/Files.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString nom_complété(const QString& saisi) {
    const QString nom = saisi.trimmed();
    return nom.right(4).toUpper() == u".MDB" ? nom : nom + u".mdb"_s;
}

QString dans_le_dossier(const QString& dossier, const QString& nom) {
    return chemin_avec_séparateur(dossier) + nom;
}

QString chemin_avec_séparateur(const QString& dossier) {
    const QString chemin = dossier.trimmed();
    return chemin.endsWith(QDir::separator()) ? chemin : chemin + QDir::separator();
}

bool existe(const QString& fichier) {
    return !Dir(fichier).isEmpty();
}

// The order is what keeps the base: its safety copy stands before the engine reads it, and the base
// goes only once its compacted copy is whole on the disk. Interrupted between the last two steps, the
// base is left as these two copies.
void compacter_sur_place(const QString& dossier_bases, const QString& base) {
    const QString copie_de_sécurité = dans_le_dossier(dossier_bases, nom_copie_avant_compactage);
    if (existe(copie_de_sécurité))
        Kill(copie_de_sécurité);
    FileCopy(base, copie_de_sécurité);
    const QString compactage = dans_le_dossier(dossier_bases, nom_compactage);
    if (existe(compactage))
        Kill(compactage);
    CompactDatabase(base, compactage);
    Kill(base);
    FileCopy(compactage, base);
}

void compacter_en_remplaçant(const QString& source, const QString& cible) {
    if (existe(cible))
        Kill(cible);
    CompactDatabase(source, cible);
}
