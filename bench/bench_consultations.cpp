// A pick from the lookup of every town of France that the template carries (about 35,700 rows): the
// pupil's "code postal" opens the towns, the user goes to the last one and accepts, which copies two
// cells into the pupil screen, closes the lookup and gives the focus to the telephone. The goal is that
// of an answer the user does not wait for.
#include "BenchSupport.h"
#include "people/feuille_eleve.h"
#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "reference/feuille_villes.h"
#include "store/Module1.h"
#include "store/ouvrir_table.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int objectif_ms = 100;

struct Base {
    QString chemin;
    QString dernière_ville;
};

// The template as it is, with one pupil to open the pupil screen on.
Base fabriquer_base() {
    const QString chemin = banc::copie_du_modèle(u"banc.mdb"_s);
    auto base = Database::open(chemin);
    base->Execute(u"INSERT INTO élèves (matricule, nom_élève) VALUES (\"000001\", \"MARTIN\")"_s);
    auto villes = base->OpenRecordset(u"villes"_s);
    villes->MoveLast();
    return {chemin, villes->field(u"détails"_s).toString()};
}

void BM_choix_de_la_dernière_ville(benchmark::State& state) {
    Module1& m = module1();
    const Base base = fabriquer_base();
    m.base_en_cours = base.chemin;
    ouvrir_table_élèves();
    feuille_élève& élève = m.feuilles().get<feuille_élève>();
    élève.Show();
    for (auto _ : state) {
        élève.Command9->click();
        auto& lookup = m.feuilles().get<feuille_villes>();
        lookup.datPrimaryRS->Recordset().MoveLast();
        lookup.bouton_accepter_Click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    if (élève.ville_résidence->text() != base.dernière_ville)
        state.SkipWithError("la ville choisie n'est pas arrivée");
    banc::objectif(state, objectif_ms);
    m.réinitialiser();
}
BENCHMARK(BM_choix_de_la_dernière_ville)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return banc::lancer(argc, argv);
}
