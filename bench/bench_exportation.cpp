// The spreadsheet export and the electoral list on the demonstration school (100,000 pupils). The export
// of every pupil with its family's columns to .xls is set beside the sqlite3 command line dumping the
// same join to CSV, measured in the same run: its goal is three times that dump. The electoral list
// (one line per parent of each eldest pupil's family) is read and all its pages laid out in under 3 s.
#include "BenchSupport.h"
#include "generator/MisesEnPage.h"
#include "platform/report/ReportJob.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

namespace {

constexpr double facteur_objectif_exportation = 3;
constexpr double objectif_liste_électorale_ms = 3000;

// The dump's time, for the export's goal; the dump runs first.
double durée_du_vidage_ms = 0;

// The same rows as the export: every pupil and its family's columns, in the order of the matricules. The
// command line has not the program's French comparison: the join and the order compare as they stand.
const char* const requête_du_vidage =
    "SELECT e.*, f.* FROM élèves AS e LEFT JOIN familles AS f ON f.référence_famille = e.référence_famille "
    "COLLATE BINARY ORDER BY CAST(e.matricule COLLATE BINARY AS INTEGER), e.matricule COLLATE BINARY";

void BM_vidage_csv_par_sqlite3(benchmark::State& state) {
    const QString sortie = banc::dossier().filePath(QStringLiteral("vidage.csv"));
    QElapsedTimer chrono;
    chrono.start();
    for (auto _ : state) {
        QProcess sqlite;
        sqlite.setStandardOutputFile(sortie);
        sqlite.start(QStringLiteral("sqlite3"), {QStringLiteral("-csv"), QStringLiteral("-header"),
                                                 banc::école(), QString::fromUtf8(requête_du_vidage)});
        if (!sqlite.waitForFinished(-1) || sqlite.exitCode() != 0)
            state.SkipWithError("sqlite3 a échoué");
    }
    durée_du_vidage_ms = static_cast<double>(chrono.elapsed()) / static_cast<double>(state.iterations());
    state.counters["octets"] = static_cast<double>(QFile(sortie).size());
}

void BM_exportation_tableur(benchmark::State& state) {
    banc::Session session;
    ReportJob job;
    job.DataFiles(0) = banc::école();
    job.ReportFileName = banc::dossier().filePath(QStringLiteral("fiche_export.rpt"));
    job.Destination = ReportJob::toFile;
    job.PrintFileType = ReportJob::spreadsheetFile;
    job.PrintFileName = banc::dossier().filePath(QStringLiteral("export.xls"));
    for (auto _ : state)
        if (job.PrintReport() != 0)
            state.SkipWithError("édition interrompue");
    state.counters["octets"] = static_cast<double>(QFile(job.PrintFileName).size());
    banc::objectif(state, facteur_objectif_exportation * durée_du_vidage_ms);
}

void BM_liste_électorale_toutes_les_pages(benchmark::State& state) {
    banc::Session session;
    ReportJob job;
    job.DataFiles(0) = banc::école();
    job.ReportFileName = banc::dossier().filePath(QStringLiteral("liste_électorale2.rpt"));
    job.SelectionFormula = QStringLiteral("{élèves.ainé} = True");
    size_t éléments = 0;
    int pages = 0;
    for (auto _ : state) {
        const auto rapport = job.render();
        pages = rapport->pageCount();
        for (int i = 0; i < pages; ++i)
            éléments += rapport->page(i).elements.size();
    }
    benchmark::DoNotOptimize(éléments);
    state.counters["pages"] = pages;
    banc::objectif(state, objectif_liste_électorale_ms);
}

} // namespace

int main(int argc, char** argv) {
    // In this order: the export's goal is set by the dump. Both by the clock on the wall, since the
    // dump's work is done by another process.
    benchmark::RegisterBenchmark("BM_vidage_csv_par_sqlite3", BM_vidage_csv_par_sqlite3)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);
    benchmark::RegisterBenchmark("BM_exportation_tableur", BM_exportation_tableur)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);
    benchmark::RegisterBenchmark("BM_liste_électorale_toutes_les_pages", BM_liste_électorale_toutes_les_pages)
        ->Unit(benchmark::kMillisecond);
    return banc::lancer(argc, argv, [] {
        banc::école();
        écrire_mises_en_page(banc::dossier().path());
    });
}
