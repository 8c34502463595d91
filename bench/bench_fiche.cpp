// The record screen frame on a table of 100,000 rows: a move of the data control with its bound boxes,
// a write of an edited row, and the grid reading the lines at the end of the table.
#include "BenchSupport.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"

#include <QLineEdit>
#include <memory>
#include <sqlite3.h>

namespace {

constexpr int lignes = 100000;

QString fabriquer_base() {
    const QString chemin = banc::dossier().filePath(QStringLiteral("banc.mdb"));
    sqlite3* db = nullptr;
    sqlite3_open(chemin.toUtf8().constData(), &db);
    sqlite3_exec(
        db,
        "CREATE TABLE fiches (nom TEXT(30), prénom TEXT(30), naissance DATE, ville TEXT(50));"
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 100000) "
        "INSERT INTO fiches SELECT 'NOM' || i, 'Prénom' || i, '2015-01-01', 'Ville' || (i % 97) FROM n;",
        nullptr, nullptr, nullptr);
    sqlite3_close(db);
    return chemin;
}

struct Écran {
    QWidget racine;
    DataControl* données = new DataControl(&racine);
    DBGrid* grille = new DBGrid(&racine);
    std::vector<QLineEdit*> boîtes;

    explicit Écran(const QString& base) {
        for (const char* colonne : {"nom", "prénom", "naissance", "ville"}) {
            auto* boîte = new QLineEdit(&racine);
            données->bind(boîte, QString::fromUtf8(colonne));
            boîtes.push_back(boîte);
        }
        grille->addColumn(QStringLiteral("nom"), QStringLiteral("nom"));
        grille->addColumn(QStringLiteral("ville"), QStringLiteral("ville"));
        grille->setDataSource(données);
        données->setDatabaseName(base);
        données->setRecordSource(QStringLiteral("SELECT * FROM fiches"));
        données->Refresh();
    }
};

const QString& base() {
    static const QString chemin = fabriquer_base();
    return chemin;
}

void BM_déplacement_avec_quatre_boîtes_liées(benchmark::State& state) {
    Écran écran(base());
    DataRecordset& rs = écran.données->Recordset();
    for (auto _ : state) {
        rs.MoveNext();
        if (rs.isEOF())
            rs.MoveFirst();
    }
    benchmark::DoNotOptimize(écran.boîtes.front()->text());
}
BENCHMARK(BM_déplacement_avec_quatre_boîtes_liées);

void BM_écriture_d_une_ligne_modifiée(benchmark::State& state) {
    Écran écran(base());
    DataRecordset& rs = écran.données->Recordset();
    int n = 0;
    for (auto _ : state) {
        écran.boîtes.back()->setText(QStringLiteral("Ville") + QString::number(++n));
        écran.données->UpdateRecord();
        rs.MoveNext();
        if (rs.isEOF())
            rs.MoveFirst();
    }
}
BENCHMARK(BM_écriture_d_une_ligne_modifiée);

void BM_grille_au_bout_de_la_table(benchmark::State& state) {
    Écran écran(base());
    écran.données->Recordset().MoveLast();
    const QAbstractItemModel& modèle = *écran.grille->model();
    int ligne = lignes - 1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(modèle.index(ligne, 0).data());
        ligne = ligne == lignes - 40 ? lignes - 1 : ligne - 1;
    }
}
BENCHMARK(BM_grille_au_bout_de_la_table);

} // namespace

int main(int argc, char** argv) {
    return banc::lancer(argc, argv);
}
