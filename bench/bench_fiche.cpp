// The record screen frame on the 100,000 pupils of the demonstration school, without any screen's own
// handlers: a move of the data control with a bound control on each of the sixty columns (as many as the
// pupil screen binds, each of the kind its column takes), the save of an edited row, and the grid
// reading the lines at the end of the table. A move has the pupil screen's goal, 30 µs; a save writes to
// the disk and should take no longer than the store's own write of a row (5 ms); the grid should read a
// screenful of 40 lines of two cells within a frame of 16 ms, 200 µs a cell.
#include "BenchSupport.h"
#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double objectif_déplacement_us = 30;
constexpr double objectif_écriture_ms = 5;
constexpr double objectif_cellule_us = 200;
const QString source = u"SELECT * FROM élèves ORDER BY matricule ASC"_s;

struct Écran {
    QWidget racine;
    DataControl* données = new DataControl(&racine);
    DBGrid* grille = new DBGrid(&racine);
    QLineEdit* ville = nullptr;
    int contrôles = 0;

    Écran() {
        const auto base = Database::open(banc::école());
        const auto élèves = base->OpenRecordset(source);
        for (const FieldInfo& colonne : élèves->fields())
            lier(colonne);
        ville = racine.findChild<QLineEdit*>(u"ville_résidence"_s);
        grille->addColumn(u"nom_élève"_s, u"nom_élève"_s);
        grille->addColumn(u"ville_résidence"_s, u"ville_résidence"_s);
        grille->setDataSource(données);
        données->setDatabaseName(banc::école());
        données->setRecordSource(source);
        données->Refresh();
    }

    void lier(const FieldInfo& colonne) {
        QWidget* contrôle = nullptr;
        if (colonne.type == FieldType::Memo) {
            auto* zone = new QPlainTextEdit(&racine);
            données->bind(zone, colonne.name);
            contrôle = zone;
        } else if (colonne.type == FieldType::Boolean) {
            auto* case_à_cocher = new QCheckBox(&racine);
            données->bind(case_à_cocher, colonne.name);
            contrôle = case_à_cocher;
        } else {
            auto* boîte = new QLineEdit(&racine);
            données->bind(boîte, colonne.name);
            contrôle = boîte;
        }
        contrôle->setObjectName(colonne.name);
        ++contrôles;
    }
};

void BM_déplacement_avec_toutes_les_colonnes_liées(benchmark::State& state) {
    Écran écran;
    DataRecordset& rs = écran.données->Recordset();
    for (auto _ : state) {
        rs.MoveNext();
        if (rs.isEOF())
            rs.MoveFirst();
    }
    state.counters["contrôles"] = écran.contrôles;
    banc::objectif(state, objectif_déplacement_us);
}
BENCHMARK(BM_déplacement_avec_toutes_les_colonnes_liées)->Unit(benchmark::kMicrosecond);

// Each save writes a town that no row holds yet, so that every iteration reaches the file.
void BM_écriture_d_une_ligne_modifiée(benchmark::State& state) {
    static int passage = 0;
    ++passage;
    Écran écran;
    DataRecordset& rs = écran.données->Recordset();
    int n = 0;
    QString écrite;
    for (auto _ : state) {
        écrite = u"Ville écrite %1-%2"_s.arg(passage).arg(++n);
        écran.ville->setText(écrite);
        écran.données->UpdateRecord();
        rs.MoveNext();
        if (rs.isEOF())
            rs.MoveFirst();
    }
    const QString relecture = u"SELECT * FROM élèves WHERE ville_résidence = \"%1\""_s.arg(écrite);
    const auto relue = Database::open(banc::école())->OpenRecordset(relecture);
    if (relue->RecordCount() != 1)
        state.SkipWithError("la dernière écriture n'est pas dans le fichier");
    banc::objectif(state, objectif_écriture_ms);
}
BENCHMARK(BM_écriture_d_une_ligne_modifiée)->Unit(benchmark::kMillisecond);

void BM_grille_au_bout_de_la_table(benchmark::State& state) {
    Écran écran;
    écran.données->Recordset().MoveLast();
    const QAbstractItemModel& modèle = *écran.grille->model();
    const int lignes = banc::élèves_de_l_école;
    int ligne = lignes - 1;
    for (auto _ : state) {
        benchmark::DoNotOptimize(modèle.index(ligne, 0).data());
        ligne = ligne == lignes - 40 ? lignes - 1 : ligne - 1;
    }
    banc::objectif(state, objectif_cellule_us);
}
BENCHMARK(BM_grille_au_bout_de_la_table)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    return banc::lancer(argc, argv, [] { banc::école(); }); // the school is built before any timing
}
