// norvane-prepare DOSSIER: writes basevide.mdz, the report layouts that are not there yet and, unless it
// is already there, exemple.mdb with 200 fictional pupils (a dozen with a drawn portrait in DOSSIER/photos)
// into the work folder. norvane-prepare --modele FICHIER: writes the template alone.
#include "generator/Demonstration.h"
#include "generator/MisesEnPage.h"
#include "generator/Portraits.h"
#include "platform/dao/BaseBuilder.h"
#include "platform/dao/Database.h"
#include "platform/errors/VbError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

void écrire_exemple(const QString& modèle, const QString& cible) {
    const QString à_côté = cible + u".en_cours"_s;
    QFile::remove(à_côté);
    if (!QFile::copy(modèle, à_côté))
        throw VbError(3043);
    try {
        auto base = Database::open(à_côté);
        remplir_démonstration(*base, Démonstration{});
        // A dozen pupils with a portrait, beside the base.
        photographier_élèves(*base, QFileInfo(cible).dir().filePath(u"photos"_s), 12);
        base->Close();
    } catch (...) {
        QFile::remove(à_côté);
        throw;
    }
    if (!QFile::rename(à_côté, cible)) {
        QFile::remove(à_côté);
        throw VbError(3043);
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    QTextStream erreurs(stderr);
    try {
        if (arguments.size() == 3 && arguments[1] == u"--modele") {
            create_base(arguments[2], scripts_modèle());
            return 0;
        }
        if (arguments.size() != 2) {
            erreurs << "Usage : norvane-prepare DOSSIER | norvane-prepare --modele FICHIER\n";
            return 2;
        }
        const QDir dossier(arguments[1]);
        if (!dossier.exists() && !QDir().mkpath(dossier.path()))
            throw VbError(76);
        const QString modèle = dossier.filePath(u"basevide.mdz"_s);
        create_base(modèle, scripts_modèle());
        bool mises_en_page_écrites = true;
        écrire_mises_en_page(dossier.path(), &mises_en_page_écrites);
        if (!mises_en_page_écrites)
            throw VbError(75);
        const QString exemple = dossier.filePath(u"exemple.mdb"_s);
        if (!QFile::exists(exemple))
            écrire_exemple(modèle, exemple);
        return 0;
    } catch (const VbError& e) {
        erreurs << "Erreur " << e.number() << " : " << e.description() << "\n";
        return 1;
    }
}
