// The pupil screen on a school of 100,000 pupils: what the user waits for after choosing the menu
// command, after "&Ajouter" (two full re-queries and a move to the last matricule), and after a move.
#include "BenchSupport.h"
#include "generator/Demonstration.h"
#include "people/feuille_eleve.h"
#include "platform/dao/Database.h"
#include "platform/forms/DataControl.h"
#include "store/Module1.h"
#include "store/ouvrir_table.h"

#include <QLineEdit>
#include <memory>

namespace {

constexpr int élèves = 100000;

const QString& base() {
    static const QString chemin = [] {
        const QString c = banc::copie_du_modèle(QStringLiteral("école.mdb"));
        remplir_démonstration(*Database::open(c), Démonstration{élèves});
        return c;
    }();
    return chemin;
}

// A fresh run state for each measurement: the scripted user in place, the school open.
feuille_élève& ouvrir() {
    module1().réinitialiser();
    module1().setInteraction(std::make_shared<banc::RéponseFixe>(vbNo));
    module1().base_en_cours = base();
    ouvrir_table_élèves();
    feuille_élève& f = module1().feuilles().get<feuille_élève>();
    étapes_en_plus_élèves(f, false);
    return f;
}

void BM_commande_gestion_des_élèves(benchmark::State& state) {
    ouvrir();
    for (auto _ : state) {
        ouvrir_table_élèves();
        feuille_élève& f = module1().feuilles().get<feuille_élève>();
        étapes_en_plus_élèves(f, false);
        benchmark::DoNotOptimize(f.matricule->text());
    }
    module1().réinitialiser();
}
BENCHMARK(BM_commande_gestion_des_élèves)->Unit(benchmark::kMillisecond);

void BM_ajouter_un_élève(benchmark::State& state) {
    feuille_élève& f = ouvrir();
    for (auto _ : state) {
        f.cmdAjouter_Click();
        benchmark::DoNotOptimize(f.matricule->text());
    }
    module1().réinitialiser();
}
BENCHMARK(BM_ajouter_un_élève)->Unit(benchmark::kMillisecond);

void BM_élève_suivant(benchmark::State& state) {
    feuille_élève& f = ouvrir();
    DataRecordset& rs = f.datPrimaryRS->Recordset();
    for (auto _ : state) {
        rs.MoveNext();
        if (rs.isEOF())
            rs.MoveFirst();
    }
    module1().réinitialiser();
}
BENCHMARK(BM_élève_suivant)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    return banc::lancer(argc, argv, [] { base(); }); // the school is built before any timing
}
