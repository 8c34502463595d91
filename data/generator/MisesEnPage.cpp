#include "generator/MisesEnPage.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

QStringList mises_en_page() {
    QStringList noms = QDir(u":/mises_en_page"_s).entryList({u"*.rpt"_s}, QDir::Files, QDir::Name);
    return noms;
}

QStringList écrire_mises_en_page(const QString& dossier, bool* ok) {
    const QDir cible(dossier);
    QStringList écrits;
    bool tout = true;
    auto copier = [&](const QString& source, const QString& nom) {
        const QString chemin = cible.filePath(nom);
        if (QFile::exists(chemin))
            return;
        if (QFile::copy(source, chemin)) {
            // A copy from the resources is read-only; the school's helper must be able to edit it.
            QFile::setPermissions(chemin, QFile::permissions(chemin) | QFileDevice::WriteOwner |
                                              QFileDevice::WriteUser);
            écrits << nom;
        } else {
            tout = false;
        }
    };
    for (const QString& nom : mises_en_page())
        copier(u":/mises_en_page/"_s + nom, nom);
    copier(u":/mises_en_page/README.md"_s, u"LISEZMOI_ETATS.md"_s);
    if (ok)
        *ok = tout;
    return écrits;
}
