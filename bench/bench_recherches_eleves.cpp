// The pupil screen's searches and orders on a school of 100,000 pupils: a jump by name to a surname near
// the end of the alphabetical order, a jump by matricule with a leading wildcard, and a new order.
#include "people/ordres_élèves.h"
#include "people/recherches_élèves.h"
#include "platform/dao/Database.h"
#include "platform/forms/DataControl.h"
#include "platform/ui/Interaction.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

constexpr int élèves = 100000;

// Answers every input box with the same text and every message box with OK.
class RéponseFixe : public Interaction {
public:
    explicit RéponseFixe(QString réponse) : réponse_(std::move(réponse)) {}
    int MsgBox(const QString&, int, const QString&) override { return vbOK; }
    QString InputBox(const QString&, const QString&, const QString&) override { return réponse_; }
    void showModal(Feuille&) override {}
    void setMousePointer(int pointer) override { pointeur_ = pointer; }
    int mousePointer() const override { return pointeur_; }

private:
    QString réponse_;
    int pointeur_ = vbDefault;
};

QString fabriquer_base(const QTemporaryDir& dossier) {
    const QString chemin = dossier.filePath(QStringLiteral("école.mdb"));
    QFile::copy(QStringLiteral(NORVANE_TEMPLATE_PATH), chemin);
    QFile::setPermissions(chemin, QFile::permissions(chemin) | QFileDevice::WriteOwner);
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

QTemporaryDir& dossier() {
    static QTemporaryDir d;
    return d;
}

const QString& base() {
    static const QString chemin = fabriquer_base(dossier());
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
    Fiche fiche(QStringLiteral("Par ordre alphabétique"));
    RéponseFixe utilisateur(QStringLiteral("nom0999"));
    for (auto _ : state)
        positionner_par_nom(*fiche.datPrimaryRS, utilisateur);
    state.counters["position"] = fiche.datPrimaryRS->Recordset().AbsolutePosition();
}
BENCHMARK(BM_recherche_par_nom_en_fin_d_ordre)->Unit(benchmark::kMillisecond);

void BM_recherche_par_matricule_avec_joker(benchmark::State& state) {
    Fiche fiche(QStringLiteral("Par ordre des matricules"));
    RéponseFixe utilisateur(QStringLiteral("*99999"));
    for (auto _ : state)
        positionner_par_matricule(*fiche.datPrimaryRS, utilisateur);
    state.counters["position"] = fiche.datPrimaryRS->Recordset().AbsolutePosition();
}
BENCHMARK(BM_recherche_par_matricule_avec_joker)->Unit(benchmark::kMillisecond);

void BM_nouvel_ordre_par_âge(benchmark::State& state) {
    Fiche fiche(QStringLiteral("Par ordre des matricules"));
    for (auto _ : state) {
        fiche.datPrimaryRS->setRecordSource(requête_de_l_ordre(QStringLiteral("Par âge")));
        fiche.datPrimaryRS->Refresh();
    }
}
BENCHMARK(BM_nouvel_ordre_par_âge)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
