// The pupil screen's searches and orders on a school of 100,000 pupils: a jump by name to a surname near
// the end of the alphabetical order, a jump by matricule with a leading wildcard, and a new order.
#include "BenchSupport.h"
#include "people/ordres_eleves.h"
#include "people/recherches.h"
#include "platform/dao/Database.h"
#include "platform/forms/DataControl.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int élèves = 100000;

QString fabriquer_base() {
    const QString chemin = banc::copie_du_modèle(u"école.mdb"_s);
    auto base = Database::open(chemin);
    base->BeginTrans();
    for (int i = 1; i <= élèves; ++i) {
        const QString n = QString::number(i).rightJustified(6, QLatin1Char('0'));
        base->Execute(
            QStringLiteral("INSERT INTO élèves (matricule, nom_élève, prénom_élève, date_naissance_élève) "
                           "VALUES ('%1', 'NOM%2', 'Prénom', #%3/%4/%5#)")
                .arg(n, n)
                .arg(i % 12 + 1)
                .arg(i % 28 + 1)
                .arg(2010 + i % 9));
    }
    base->CommitTrans();
    base->Close();
    return chemin;
}

const QString& base() {
    static const QString chemin = fabriquer_base();
    return chemin;
}

struct Fiche {
    QWidget racine;
    DataControl* datPrimaryRS = new DataControl(&racine);

    explicit Fiche(const QString& ordre) {
        for (const char* colonne : {"matricule", "nom_élève", "prénom_élève", "date_naissance_élève"})
            datPrimaryRS->bind(new QLineEdit(&racine), QString::fromUtf8(colonne));
        datPrimaryRS->setDatabaseName(base());
        datPrimaryRS->setRecordSource(requête_de_l_ordre(ordre));
        datPrimaryRS->Refresh();
    }
};

void BM_recherche_par_nom_en_fin_d_ordre(benchmark::State& state) {
    Fiche fiche(u"Par ordre alphabétique"_s);
    banc::RéponseFixe utilisateur(vbOK, u"nom0999"_s);
    for (auto _ : state)
        positionner_par_nom(*fiche.datPrimaryRS, utilisateur);
    state.counters["position"] = fiche.datPrimaryRS->Recordset().AbsolutePosition();
}
BENCHMARK(BM_recherche_par_nom_en_fin_d_ordre)->Unit(benchmark::kMillisecond);

void BM_recherche_par_matricule_avec_joker(benchmark::State& state) {
    Fiche fiche(u"Par ordre des matricules"_s);
    banc::RéponseFixe utilisateur(vbOK, u"*99999"_s);
    for (auto _ : state)
        positionner_par_matricule(*fiche.datPrimaryRS, utilisateur);
    state.counters["position"] = fiche.datPrimaryRS->Recordset().AbsolutePosition();
}
BENCHMARK(BM_recherche_par_matricule_avec_joker)->Unit(benchmark::kMillisecond);

void BM_nouvel_ordre_par_âge(benchmark::State& state) {
    Fiche fiche(u"Par ordre des matricules"_s);
    for (auto _ : state) {
        fiche.datPrimaryRS->setRecordSource(requête_de_l_ordre(u"Par âge"_s));
        fiche.datPrimaryRS->Refresh();
    }
}
BENCHMARK(BM_nouvel_ordre_par_âge)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return banc::lancer(argc, argv);
}
