// A running copy of the program killed at random moments while it compacts, backs up and restores a
// school of 10,000 pupils: the base, or its safety copy, must always come through whole, and what the
// kill left aside must never pass for a base and must go at the next run of the same step.
#include "generator/Demonstration.h"
#include "platform/dao/Connection.h"
#include "platform/dao/Database.h"
#include "platform/dao/Recordset.h"
#include "platform/files/Files.h"
#include "store/fichiers_bases.h"
#include "support/BaseDirecte.h"
#include "support/Fixtures.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <iostream>
#include <map>
#include <random>
#include <sqlite3.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int élèves = 10000;
constexpr int arrêts = 60;

// Another running copy of the program, as a child process: it compacts the base in its folder, backs
// it up and restores the backup beside it, by the chooser's own file steps, for ever or `tours` times.
pid_t lancer(const QString& base, const QString& sauvegardes, int tours = -1) {
    const pid_t enfant = fork();
    if (enfant != 0)
        return enfant;
    const QString sauvegarde = dans_le_dossier(sauvegardes, nom_sauvegarde);
    const QString dossier = QFileInfo(base).absolutePath();
    const int erreur = error_of([&] {
        for (int tour = 0; tour != tours; ++tour) {
            compacter_sur_place(dossier, base);
            compacter_en_remplaçant(base, sauvegarde);
            compacter_en_remplaçant(sauvegarde, dans_le_dossier(dossier, nom_restauration));
        }
    });
    _exit(erreur);
}

int attendre(pid_t enfant) {
    int état = 0;
    waitpid(enfant, &état, 0);
    return état;
}

// Opens with the program's engine, holds every pupil, and passes the engine's own check of its pages.
bool entière(const QString& chemin) {
    int lus = 0;
    error_of([&] { lus = Database::open(chemin)->OpenRecordset("élèves")->RecordCount(); });
    sqlite3* db = nullptr;
    sqlite3_open_v2(QFile::encodeName(chemin).constData(), &db, SQLITE_OPEN_READONLY, nullptr);
    const dao::FrenchCollation ordre; // the indexes' own order, which the check reads them by
    dao::register_jet_functions(db, ordre);
    char** verdict = nullptr;
    sqlite3_get_table(db, "PRAGMA integrity_check", &verdict, nullptr, nullptr, nullptr);
    const bool saine = verdict != nullptr && QByteArray(verdict[1]) == "ok";
    sqlite3_free_table(verdict);
    sqlite3_close(db);
    return lus == élèves && saine;
}

QStringList cachés(const QString& dossier) {
    return QDir(dossier).entryList({".*"}, QDir::Files | QDir::Hidden);
}

TEST(InterruptionsDesFichiers, UnArrêtBrutalLaisseToujoursLaBaseOuSaCopieEntières) {
    WorkFolder dossier;
    const QString sauvegardes = dossier.file("sauvegardes");
    QDir().mkdir(sauvegardes);
    const QString base = dossier.file("école.mdb");
    FileCopy(template_path(), base);
    remplir_démonstration(*Database::open(base), Démonstration{élèves});

    const auto début = std::chrono::steady_clock::now();
    ASSERT_EQ(attendre(lancer(base, sauvegardes, 1)), 0);
    const auto tour_us =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - début)
            .count();

    std::mt19937 hasard(20261124);
    std::uniform_int_distribution<long> délai(0, tour_us);
    std::map<QString, int> constats; // where the kills fell, as what they left tells it
    for (int arrêt = 0; arrêt < arrêts; ++arrêt) {
        const pid_t enfant = lancer(base, sauvegardes);
        std::this_thread::sleep_for(std::chrono::microseconds(délai(hasard)));
        kill(enfant, SIGKILL);
        const int état = attendre(enfant);
        ASSERT_TRUE(WIFSIGNALED(état)) << "la copie a fini seule : " << état;
        for (const QString& reste : cachés(dossier.path()) + cachés(sauvegardes))
            if (reste.endsWith("norvane-tmp") && reste.contains(QString(".%1-").arg(enfant)))
                ++constats[QString("pendant l'écriture de ") + reste.section('.', 1, -3)];
        constats["(base supprimée, pas encore recopiée)"] += !QFile::exists(base);
        const QString copie = dossier.file(nom_copie_avant_compactage);
        ASSERT_TRUE(QFile::exists(base) ? entière(base) : entière(copie)) << arrêt;
        // Whatever a list shows is whole: the copies in progress bear hidden names of their own.
        for (const QDir& d : {QDir(dossier.path()), QDir(sauvegardes)})
            for (const QString& visible : d.entryList(QDir::Files))
                ASSERT_TRUE(entière(d.filePath(visible))) << visible.toStdString();
        if (!QFile::exists(base))
            FileCopy(copie, base); // what the user does with the safety copy
    }
    ASSERT_EQ(attendre(lancer(base, sauvegardes, 1)), 0);
    EXPECT_EQ(cachés(dossier.path()) + cachés(sauvegardes), QStringList());

    std::cout << arrêts << " arrêts brutaux, un tour en " << tour_us / 1000 << " ms :\n";
    for (const auto& [constat, nombre] : constats)
        std::cout << "  " << nombre << " " << constat.toStdString() << "\n";
}

} // namespace
