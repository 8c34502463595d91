// The compaction of the demonstration school (100,000 pupils) beside plain copies of the same file,
// made in the same iterations so that they meet the same disk and the same cache. The compaction
// rebuilds the base page by page and flushes it to the disk before it takes its name, as a copy must
// that is to survive a power cut; the goal is a compaction within three times a plain copy that also
// reaches the disk (copy, then flush). Shown beside: the plain copy left in the system's cache
// (copie_simple_ms), and the program's own copy (FileCopy_ms), which is flushed and put in place whole.
#include "BenchSupport.h"
#include "platform/dao/Database.h"
#include "platform/files/Files.h"

#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double fois_la_copie = 3;

double millisecondes(const std::function<void()>& étape) {
    const auto début = std::chrono::steady_clock::now();
    étape();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - début).count();
}

void sur_le_disque(const QString& fichier) {
    const int fd = ::open(QFile::encodeName(fichier).constData(), O_RDONLY);
    ::fsync(fd);
    ::close(fd);
}

void BM_compactage_contre_copie(benchmark::State& state) {
    const QString source = banc::école();
    const QString copie = banc::dossier().filePath(u"copie.mdb"_s);
    const QString copie_du_programme = banc::dossier().filePath(u"copie_du_programme.mdb"_s);
    const QString compactée = banc::dossier().filePath(u"compactée.mdb"_s);
    double copie_ms = 0, copie_sur_disque_ms = 0, filecopy_ms = 0;
    for (auto _ : state) {
        state.PauseTiming();
        for (const QString& f : {copie, copie_du_programme, compactée})
            QFile::remove(f);
        const double copiée = millisecondes([&] {
            std::filesystem::copy_file(QFile::encodeName(source).toStdString(),
                                       QFile::encodeName(copie).toStdString());
        });
        copie_ms += copiée;
        copie_sur_disque_ms += copiée + millisecondes([&] { sur_le_disque(copie); });
        filecopy_ms += millisecondes([&] { FileCopy(source, copie_du_programme); });
        state.ResumeTiming();
        CompactDatabase(source, compactée);
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["copie_simple_ms"] = copie_ms / n;
    state.counters["copie_sur_disque_ms"] = copie_sur_disque_ms / n;
    state.counters["FileCopy_ms"] = filecopy_ms / n;
    state.counters["Mo"] = static_cast<double>(QFileInfo(source).size()) / (1024.0 * 1024.0);
    banc::objectif(state, fois_la_copie * copie_sur_disque_ms / n);
    for (const QString& f : {copie, copie_du_programme, compactée})
        QFile::remove(f);
}
BENCHMARK(BM_compactage_contre_copie)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

int main(int argc, char** argv) {
    return banc::lancer(argc, argv, [] { banc::école(); });
}
