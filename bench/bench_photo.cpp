// Moving through 1,000 pupils who all have a 4-megapixel JPEG photo, on the real pupil screen: each
// move reloads the picture of the new record (goal: under 30 ms a move).
#include "BenchSupport.h"
#include "generator/Portraits.h"
#include "people/feuille_eleve.h"
#include "platform/forms/DataControl.h"
#include "store/ouvrir_table.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

constexpr int élèves = 1000;
constexpr double objectif_ms = 30;

// One large photo, and a link to it under each pupil's own name, so that no move finds its picture
// already decoded.
QString fabriquer_base() {
    const QString chemin = banc::copie_du_modèle(QStringLiteral("photos.mdb"));
    QDir dossier(banc::dossier().path());
    dossier.mkdir(QStringLiteral("photos"));
    const QString grande = dossier.filePath(QStringLiteral("photos/grande.jpg"));
    portrait(1, QSize(2304, 1728), true).save(grande, "JPG", 90);
    auto base = Database::open(chemin);
    base->BeginTrans();
    for (int i = 1; i <= élèves; ++i) {
        const QString n = QString::number(i).rightJustified(6, QLatin1Char('0'));
        const QString photo = dossier.filePath(QStringLiteral("photos/eleve_%1.jpg").arg(n));
        QFile::link(grande, photo);
        base->Execute(QStringLiteral("INSERT INTO élèves (matricule, nom_élève, chemin_photo) VALUES ('%1', "
                                     "'NOM%1', '%2')")
                          .arg(n, photo));
    }
    base->CommitTrans();
    base->Close();
    return chemin;
}

void BM_élève_suivant_avec_sa_photo(benchmark::State& state) {
    banc::Session session;
    module1().base_en_cours = fabriquer_base();
    ouvrir_table_élèves();
    feuille_élève& f = module1().feuilles().get<feuille_élève>();
    f.Show();
    QCoreApplication::processEvents();
    DataRecordset& rs = f.datPrimaryRS->Recordset();
    for (auto _ : state) {
        rs.MoveNext();
        if (rs.isEOF())
            rs.MoveFirst();
        QCoreApplication::processEvents();
    }
    banc::objectif(state, objectif_ms);
}
BENCHMARK(BM_élève_suivant_avec_sa_photo)->Unit(benchmark::kMillisecond)->Iterations(500);

} // namespace

int main(int argc, char** argv) {
    return banc::lancer(argc, argv);
}
