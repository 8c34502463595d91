// The reports on the demonstration school (100,000 pupils): the class list until its first page is
// drawn in the preview (under 500 ms), all of its pages laid out (under 3 s), and the statistics by sex
// counted and laid out (under 1 s).
#include "BenchSupport.h"
#include "generator/MisesEnPage.h"
#include "platform/report/PreviewWindow.h"
#include "platform/report/ReportJob.h"

#include <QMdiSubWindow>

namespace {

constexpr double objectif_première_page_ms = 500;
constexpr double objectif_toutes_les_pages_ms = 3000;
constexpr double objectif_statistique_ms = 1000;

std::unique_ptr<ReportJob> job_sur_l_école(const char* mise_en_page) {
    auto job = std::make_unique<ReportJob>();
    job->DataFiles(0) = banc::école();
    job->ReportFileName = banc::dossier().filePath(QString::fromUtf8(mise_en_page));
    return job;
}

void BM_liste_de_classes_première_page_à_l_écran(benchmark::State& state) {
    banc::Session session;
    const auto possédé = job_sur_l_école("liste_classes.rpt");
    ReportJob& job = *possédé;
    job.Destination = ReportJob::toWindow;
    job.WindowState = ReportJob::maximised;
    for (auto _ : state) {
        if (job.PrintReport() != 0)
            state.SkipWithError("édition interrompue");
        QMdiSubWindow* fenêtre = session.zone.activeSubWindow();
        benchmark::DoNotOptimize(fenêtre->grab()); // the page drawn as the screen shows it
        state.PauseTiming();
        delete fenêtre;
        state.ResumeTiming();
    }
    banc::objectif(state, objectif_première_page_ms);
}
BENCHMARK(BM_liste_de_classes_première_page_à_l_écran)->Unit(benchmark::kMillisecond);

void BM_liste_de_classes_toutes_les_pages(benchmark::State& state) {
    banc::Session session;
    const auto job = job_sur_l_école("liste_classes.rpt");
    size_t éléments = 0;
    int pages = 0;
    for (auto _ : state) {
        const auto rapport = job->render();
        pages = rapport->pageCount();
        for (int i = 0; i < pages; ++i)
            éléments += rapport->page(i).elements.size();
    }
    state.counters["pages"] = pages;
    benchmark::DoNotOptimize(éléments);
    banc::objectif(state, objectif_toutes_les_pages_ms);
}
BENCHMARK(BM_liste_de_classes_toutes_les_pages)->Unit(benchmark::kMillisecond);

void BM_statistique_par_sexes(benchmark::State& state) {
    banc::Session session;
    const auto job = job_sur_l_école("stat_sexes.rpt");
    for (auto _ : state) {
        const auto rapport = job->render();
        benchmark::DoNotOptimize(rapport->page(0).elements.size());
    }
    banc::objectif(state, objectif_statistique_ms);
}
BENCHMARK(BM_statistique_par_sexes)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    return banc::lancer(argc, argv, [] {
        banc::école();
        écrire_mises_en_page(banc::dossier().path());
    });
}
