// The store on a school of 100,000 pupils: each figure is printed beside its goal, as a ratio
// (under 1 means within the goal).
//   build-release/bench/bench_dao   (the base is generated once, then kept beside the template)
// Times are wall-clock; the processor time of the same sections is printed beside them, since a machine
// busy with other work stretches the first and not the second.
#include "generator/Demonstration.h"
#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <map>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int pupils = 100000;
const QString alphabetical = u"SELECT * FROM élèves ORDER BY nom_élève ASC, prénom_élève ASC"_s;

QString template_path() {
    return QStringLiteral(NORVANE_TEMPLATE_PATH);
}

// The measured base, made from the template of this build the first time and kept for later runs.
QString school() {
    const QString path = QFileInfo(template_path()).absolutePath() + u"/bench_100000.mdb"_s;
    const QFileInfo made(path);
    if (made.exists() && made.lastModified() >= QFileInfo(template_path()).lastModified())
        return path;
    std::fprintf(stderr, "Génération de %d élèves fictifs dans %s...\n", pupils, qPrintable(path));
    const QString aside = path + u".en_cours"_s;
    QFile::remove(aside);
    QFile::copy(template_path(), aside);
    {
        auto db = Database::open(aside);
        remplir_démonstration(*db, Démonstration{pupils, 2026});
    }
    QFile::remove(path);
    QFile::rename(aside, path);
    return path;
}

// A copy to write into, so that the kept base stays as generated.
QString scratch_copy(const QString& name) {
    const QString path = QDir::temp().filePath(name);
    QFile::remove(path);
    QFile::copy(school(), path);
    return path;
}

// Processor time of the process, beside the wall clock: the machine may be busy with other work.
double cpu_ms() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

// Wall and processor time of a measured section.
class Chrono {
public:
    Chrono() : cpu_(cpu_ms()) { timer_.start(); }
    void add_to(double& wall, double& cpu) const {
        wall += timer_.nsecsElapsed() / 1e6;
        cpu += cpu_ms() - cpu_;
    }

private:
    QElapsedTimer timer_;
    double cpu_;
};

void report(benchmark::State& state, double measuredMs, double cpuMs, double goalMs) {
    state.counters["ms"] = measuredMs / state.iterations();
    state.counters["cpu_ms"] = cpuMs / state.iterations();
    measuredMs /= state.iterations();
    if (goalMs > 0) {
        state.counters["goal_ms"] = goalMs;
        state.counters["goal_ratio"] = measuredMs / goalMs;
    }
}

// Times `body` at each iteration, after an unmeasured `prepare`, and reports against the goal (0: none).
template <class Prepare, class Body>
void timed(benchmark::State& state, double goalMs, Prepare prepare, Body body) {
    double total = 0, cpu = 0;
    for (auto _ : state) {
        prepare();
        const Chrono chrono;
        body();
        chrono.add_to(total, cpu);
    }
    report(state, total, cpu, goalMs);
}

void BM_OpenAndMoveFirstAlphabetical(benchmark::State& state) {
    const QString path = school();
    timed(
        state, 150, [] {},
        [&] {
            auto db = Database::open(path);
            auto rs = db->OpenRecordset(alphabetical);
            rs->MoveFirst();
            benchmark::DoNotOptimize(rs->field(u"nom_élève"_s));
        });
}
BENCHMARK(BM_OpenAndMoveFirstAlphabetical)->Unit(benchmark::kMillisecond)->Iterations(10);

// An order that no index keeps: the French sort key of every row is computed, then sorted.
void BM_OpenOrderedByTown(benchmark::State& state) {
    const QString path = school();
    timed(
        state, 300, [] {},
        [&] {
            auto db = Database::open(path);
            auto rs = db->OpenRecordset(u"SELECT * FROM élèves ORDER BY ville_résidence ASC"_s);
            rs->MoveFirst();
            benchmark::DoNotOptimize(rs->field(u"ville_résidence"_s));
        });
}
BENCHMARK(BM_OpenOrderedByTown)->Unit(benchmark::kMillisecond)->Iterations(5);

// The first opening after the French order changed (another ICU after a system upgrade): every index
// on the sort key is rebuilt, once.
void BM_OpenABaseOfAnotherOrder(benchmark::State& state) {
    const QString path = scratch_copy(u"norvane_bench_ordre.mdb"_s);
    timed(
        state, 3000,
        [&] {
            sqlite3* raw = nullptr;
            sqlite3_open_v2(QFile::encodeName(path).constData(), &raw, SQLITE_OPEN_READWRITE, nullptr);
            sqlite3_exec(raw, "PRAGMA user_version = 1", nullptr, nullptr, nullptr);
            sqlite3_close(raw);
        },
        [&] { benchmark::DoNotOptimize(Database::open(path)); });
    QFile::remove(path);
}
BENCHMARK(BM_OpenABaseOfAnotherOrder)->Unit(benchmark::kMillisecond)->Iterations(3);

// A move as a data control makes it: the next row, and every column of it read for the bound boxes.
void read_row(const Recordset& rs) {
    for (int i = 0; i < static_cast<int>(rs.fields().size()); ++i)
        benchmark::DoNotOptimize(rs.field(i));
}

void BM_ThousandMoveNext(benchmark::State& state) {
    auto db = Database::open(school());
    auto rs = db->OpenRecordset(alphabetical);
    timed(
        state, 50, [&] { rs->setAbsolutePosition(50000); },
        [&] {
            for (int i = 0; i < 1000; ++i) {
                rs->MoveNext();
                read_row(*rs);
            }
        });
}
BENCHMARK(BM_ThousandMoveNext)->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_MoveLast(benchmark::State& state) {
    auto db = Database::open(school());
    auto rs = db->OpenRecordset(alphabetical);
    timed(
        state, 0, [&] { rs->MoveFirst(); },
        [&] {
            rs->MoveLast();
            read_row(*rs);
        });
}
BENCHMARK(BM_MoveLast)->Unit(benchmark::kMillisecond)->Iterations(100);

void BM_FindFirstNamePrefix(benchmark::State& state) {
    auto db = Database::open(school());
    auto rs = db->OpenRecordset(alphabetical);
    timed(
        state, 100, [&] { rs->MoveFirst(); },
        [&] {
            rs->FindFirst(u"nom_élève like 'DUP*'"_s);
            read_row(*rs);
        });
    if (rs->NoMatch())
        state.SkipWithError("aucun élève trouvé");
}
BENCHMARK(BM_FindFirstNamePrefix)->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_AddNewUpdate(benchmark::State& state) {
    const QString path = scratch_copy(u"norvane_bench_ajout.mdb"_s);
    {
        auto db = Database::open(path);
        auto rs = db->OpenRecordset(alphabetical);
        int next = 900000;
        timed(
            state, 5, [] {},
            [&] {
                rs->AddNew();
                rs->setField(u"matricule"_s, QString::number(++next));
                rs->setField(u"nom_élève"_s, u"Nouveau"_s);
                rs->setField(u"prénom_élève"_s, u"Élève"_s);
                rs->setField(u"date_naissance_élève"_s, u"12/03/2019"_s);
                rs->setField(u"ville_résidence"_s, u"Bron"_s);
                rs->Update();
            });
    }
    QFile::remove(path);
}
BENCHMARK(BM_AddNewUpdate)->Unit(benchmark::kMillisecond)->Iterations(200);

void BM_MemoryOfAnOpenRecordset(benchmark::State& state) {
    auto db = Database::open(school());
    double megabytes = 0;
    for (auto _ : state) {
        const size_t before = mallinfo2().uordblks;
        auto rs = db->OpenRecordset(alphabetical);
        rs->MoveLast();
        rs->MoveFirst();
        megabytes =
            (static_cast<double>(mallinfo2().uordblks) - static_cast<double>(before)) / (1024.0 * 1024.0);
        benchmark::DoNotOptimize(rs);
    }
    state.counters["MB"] = megabytes;
    state.counters["goal_ratio"] = megabytes / 16;
}
BENCHMARK(BM_MemoryOfAnOpenRecordset)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_CompactAgainstPlainCopy(benchmark::State& state) {
    const QString source = scratch_copy(u"norvane_bench_source.mdb"_s);
    const QString copy = QDir::temp().filePath(u"norvane_bench_copie.mdb"_s);
    const QString compacted = QDir::temp().filePath(u"norvane_bench_compacte.mdb"_s);
    double copyMs = 0, compactMs = 0, copyCpu = 0, compactCpu = 0;
    for (auto _ : state) {
        QFile::remove(copy);
        QFile::remove(compacted);
        const Chrono copying;
        QFile::copy(source, copy);
        copying.add_to(copyMs, copyCpu);
        const Chrono compacting;
        CompactDatabase(source, compacted);
        compacting.add_to(compactMs, compactCpu);
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["copy_ms"] = copyMs / n;
    state.counters["compact_ms"] = compactMs / n;
    state.counters["copy_cpu_ms"] = copyCpu / n;
    state.counters["cpu_ms"] = compactCpu / n;
    state.counters["MB"] = QFileInfo(source).size() / (1024.0 * 1024.0);
    state.counters["goal_ratio"] = compactMs / copyMs / 3;
    for (const QString& f : {source, copy, compacted})
        QFile::remove(f);
}
BENCHMARK(BM_CompactAgainstPlainCopy)->Unit(benchmark::kMillisecond)->Iterations(3);

// The save of a row already stored, checked against what was read of it before it is written.
void BM_EditUpdate(benchmark::State& state) {
    const QString path = scratch_copy(u"norvane_bench_modif.mdb"_s);
    {
        auto db = Database::open(path);
        auto rs = db->OpenRecordset(alphabetical);
        rs->setAbsolutePosition(50000);
        int turn = 0;
        timed(
            state, 5, [] {},
            [&] {
                rs->Edit();
                rs->setField(u"ville_résidence"_s, u"Bron %1"_s.arg(++turn));
                rs->Update();
            });
    }
    QFile::remove(path);
}
BENCHMARK(BM_EditUpdate)->Unit(benchmark::kMillisecond)->Iterations(200);

// After the table of runs, one line a figure with its goal.
class GoalReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            runs_.push_back(run);
    }
    void Finalize() override {
        ConsoleReporter::Finalize();
        std::printf("\n%-34s %12s %14s %8s %12s\n", "mesure (100 000 élèves)", "valeur", "objectif", "ratio",
                    "processeur");
        for (const Run& run : runs_) {
            const auto value = [&](const char* name) {
                const auto it = run.counters.find(name);
                return it == run.counters.end() ? -1.0 : static_cast<double>(it->second);
            };
            const std::string name = run.benchmark_name();
            if (name.find("Memory") != std::string::npos) {
                std::printf("%-34s %9.2f MB %11s MB %8.3f\n", "mémoire d'un recordset ouvert", value("MB"),
                            "< 16", value("goal_ratio"));
            } else if (name.find("Compact") != std::string::npos) {
                std::printf("%-34s %9.1f ms %8s copie %8.3f %9.1f ms\n", "CompactDatabase",
                            value("compact_ms"), "< 3x", value("goal_ratio"), value("cpu_ms"));
                std::printf("%-34s %9.1f ms %14s %8s %9.1f ms   (base de %.1f MB)\n",
                            "  copie simple du même fichier", value("copy_ms"), "", "", value("copy_cpu_ms"),
                            value("MB"));
            } else {
                const double ratio = value("goal_ratio"), goal = value("goal_ms");
                const QByteArray objectif = goal < 0 ? "aucun" : "< " + QByteArray::number(goal) + " ms";
                std::printf("%-34s %9.3f ms %14s %8s %9.3f ms\n", label(name), value("ms"),
                            objectif.constData(),
                            ratio < 0 ? "-" : QByteArray::number(ratio, 'f', 3).constData(), value("cpu_ms"));
            }
        }
    }

private:
    static const char* label(const std::string& name) {
        static const std::map<std::string, const char*> labels = {
            {"BM_OpenAndMoveFirstAlphabetical", "ouverture + MoveFirst alphabétique"},
            {"BM_OpenOrderedByTown", "ouverture par ville (sans index)"},
            {"BM_OpenABaseOfAnotherOrder", "ouverture après changement d'ordre"},
            {"BM_ThousandMoveNext", "1 000 MoveNext (lignes lues)"},
            {"BM_MoveLast", "MoveLast"},
            {"BM_FindFirstNamePrefix", "FindFirst nom_élève like 'DUP*'"},
            {"BM_AddNewUpdate", "AddNew + Update"},
            {"BM_EditUpdate", "Edit + Update (ligne relue)"}};
        for (const auto& [key, text] : labels)
            if (name.rfind(key, 0) == 0)
                return text;
        return name.c_str();
    }
    std::vector<Run> runs_;
};

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    school();
    GoalReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
