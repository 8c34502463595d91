// What the screen benchmarks share: a work folder kept for the whole run, the template copied into it,
// a user who always gives the same answers, and the offscreen application around the measurements.
#pragma once

#include "platform/ui/Interaction.h"
#include "shell/ecrans_connus.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <functional>

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
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

} // namespace banc
