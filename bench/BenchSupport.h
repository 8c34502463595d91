// What the screen benchmarks share: a work folder kept for the whole run, the template copied into it,
// the demonstration school, a user who always gives the same answers, the offscreen application around
// the measurements, and the closing table that sets each figure beside its goal.
#pragma once

#include "generator/Demonstration.h"
#include "platform/dao/Database.h"
#include "platform/ui/Interaction.h"
#include "shell/ecrans_connus.h"

#include "platform/forms/Feuilles.h"
#include "store/Module1.h"

#include <QApplication>
#include <QFile>
#include <QMdiArea>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <functional>
#include <string>
#include <unistd.h>
#include <vector>

namespace banc {

// Removed at the end of the run with everything the benchmarks made in it.
inline QTemporaryDir& dossier() {
    static QTemporaryDir d;
    return d;
}

// A fresh writable copy of this build's template in the run's folder, replacing an earlier one.
inline QString copie_du_modèle(const QString& nom) {
    const QString chemin = dossier().filePath(nom);
    QFile::remove(chemin);
    QFile::copy(QStringLiteral(NORVANE_TEMPLATE_PATH), chemin);
    QFile::setPermissions(chemin, QFile::permissions(chemin) | QFileDevice::WriteOwner);
    return chemin;
}

constexpr int élèves_de_l_école = 100000;

// The template filled with the demonstration school, built once for the run.
inline const QString& école() {
    static const QString chemin = [] {
        const QString c = copie_du_modèle(QStringLiteral("école.mdb"));
        remplir_démonstration(*Database::open(c), Démonstration{élèves_de_l_école});
        return c;
    }();
    return chemin;
}

// The goal of a measurement, in its benchmark's time unit, per iteration.
inline void objectif(benchmark::State& state, double but) {
    state.counters["objectif"] = but;
}

// After the usual table, one line a figure that has a goal: real and processor time, the goal, and the
// ratio of each time to it (under 1: within the goal). The machine may be shared, so the processor
// time is the figure to judge by. Of the aggregates of repetitions, the mean and the median.
class RapportAvecObjectifs : public benchmark::ConsoleReporter {
public:
    // In colour on a terminal only, as the library's own reporter, so that a saved run reads plain.
    RapportAvecObjectifs() : ConsoleReporter(isatty(fileno(stdout)) ? OO_ColorTabular : OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.counters.count("objectif") &&
                (run.run_type == Run::RT_Iteration || run.aggregate_name == "mean" ||
                 run.aggregate_name == "median"))
                avec_objectif_.push_back(run);
    }

    void Finalize() override {
        ConsoleReporter::Finalize();
        if (avec_objectif_.empty())
            return;
        std::printf("\n%s", aligné("mesure", 64).c_str());
        for (const char* titre : {"réel", "processeur", "objectif", "ratio réel", "ratio proc"})
            std::printf(" %s", aligné(titre, 12, true).c_str());
        std::printf("\n");
        for (const Run& run : avec_objectif_) {
            const std::string unité = benchmark::GetTimeUnitString(run.time_unit);
            const double but = run.counters.at("objectif");
            const double réel = run.GetAdjustedRealTime(), processeur = run.GetAdjustedCPUTime();
            std::printf("%s %9.1f %-2s %9.1f %-2s %9s %-2s %12.2f %12.2f\n",
                        aligné(run.benchmark_name(), 64).c_str(), réel, unité.c_str(), processeur,
                        unité.c_str(), ("< " + std::to_string(static_cast<long>(but))).c_str(), unité.c_str(),
                        réel / but, processeur / but);
        }
    }

private:
    // Padded to `largeur` characters as the terminal shows them, accented letters counting for one.
    static std::string aligné(std::string texte, int largeur, bool à_droite = false) {
        int caractères = 0;
        for (const unsigned char c : texte)
            caractères += (c & 0xC0) != 0x80;
        if (caractères < largeur)
            texte.insert(à_droite ? 0 : texte.size(), static_cast<size_t>(largeur - caractères), ' ');
        return texte;
    }

    std::vector<Run> avec_objectif_;
};

// Answers every message box with `bouton` and every input box with `réponse`; never shows a screen.
class RéponseFixe : public Interaction {
public:
    explicit RéponseFixe(int bouton, QString réponse = {}) : bouton_(bouton), réponse_(std::move(réponse)) {}
    int MsgBox(const QString&, int, const QString&) override { return bouton_; }
    QString InputBox(const QString&, const QString&, const QString&) override { return réponse_; }
    void showModal(ModalScreen&) override {}
    void setMousePointer(int pointer) override { pointeur_ = pointer; }
    int mousePointer() const override { return pointeur_; }

private:
    int bouton_;
    QString réponse_;
    int pointeur_ = vbDefault;
};

// The run state as the program starts a session on the school: no screen loaded, a user who answers
// No, the screens opening inside the main window's area.
struct Session {
    QMdiArea zone;

    Session() { recommencer(); }
    ~Session() { module1().réinitialiser(); }

    void recommencer() {
        module1().réinitialiser();
        module1().setInteraction(std::make_shared<RéponseFixe>(vbNo));
        module1().base_en_cours = école();
        module1().feuilles().setMdiArea(&zone);
        zone.show();
    }
};

// The benchmarks' main(): an offscreen application, the screens made known by name as the program's
// start-up does, `avant` run before any timing.
inline int lancer(int argc, char** argv, const std::function<void()>& avant = {}) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    faire_connaître_les_écrans();
    if (avant)
        avant();
    benchmark::Initialize(&argc, argv);
    RapportAvecObjectifs rapport;
    benchmark::RunSpecifiedBenchmarks(&rapport);
    benchmark::Shutdown();
    return 0;
}

} // namespace banc
