// A pick from a lookup of every town of France (about 36,000 rows): the pupil's "code postal" opens
// the towns, the user goes to the last one and accepts, which copies two cells into the pupil screen,
// closes the lookup and gives the focus to the telephone.
#include "BenchSupport.h"
#include "people/feuille_élève.h"
#include "platform/dao/Database.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/Module1.h"
#include "reference/feuille_villes.h"
#include "shell/ecrans_connus.h"
#include "store/ouvrir_table.h"

#include <QLineEdit>
#include <QPushButton>
#include <sqlite3.h>

namespace {

constexpr int villes = 36000;

QString fabriquer_base() {
    const QString chemin = banc::copie_du_modèle(QStringLiteral("banc.mdb"));
    sqlite3* db = nullptr;
    sqlite3_open(chemin.toUtf8().constData(), &db);
    const std::string sql = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                            std::to_string(villes) +
                            ") INSERT INTO villes (code_postal, détails) "
                            "SELECT printf('%05d', i), 'Commune ' || i FROM n;";
    char* erreur = nullptr;
    if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &erreur) != SQLITE_OK)
        qFatal("base du banc : %s", erreur);
    sqlite3_close(db);
    // The pupils' indexes use the store's own sort key: the pupil goes in through the store.
    Database::open(chemin)->Execute(
        QStringLiteral("INSERT INTO élèves (matricule, nom_élève) VALUES (\"000001\", \"MARTIN\")"));
    return chemin;
}

void BM_choix_de_la_dernière_ville(benchmark::State& state) {
    Module1& m = module1();
    m.base_en_cours = fabriquer_base();
    faire_connaître_les_écrans();
    ouvrir_table_élèves();
    feuille_élève& élève = m.feuilles().get<feuille_élève>();
    élève.Show();
    for (auto _ : state) {
        élève.Command9_Click();
        auto& lookup = m.feuilles().get<feuille_villes>();
        lookup.datPrimaryRS->Recordset().MoveLast();
        lookup.bouton_accepter_Click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    if (élève.ville_résidence->text() != QStringLiteral("Commune %1").arg(villes))
        state.SkipWithError("la ville choisie n'est pas arrivée");
    m.réinitialiser();
}
BENCHMARK(BM_choix_de_la_dernière_ville)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return banc::lancer(argc, argv);
}
