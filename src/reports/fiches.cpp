#include "reports/fiches.h"

#include "platform/report/ReportJob.h"
#include "platform/ui/ErrorBoxes.h"
#include "reports/etat.h"
#include "store/Module1.h"

using namespace Qt::StringLiterals;

void imprimer_la_fiche(const QString& fichier, const QString& sélection) {
    avec_piège(ErrorBoxKind::données, [&] {
        ReportJob& job = CrystalReport1();
        job.ReportFileName = module1().chemin_application + fichier;
        job.DataFiles(0) = module1().base_en_cours;
        job.SelectionFormula = sélection;
        job.Destination = ReportJob::toWindow;
        job.WindowState = ReportJob::maximised;
        job.setAction(1);
    });
}

QString sélection_de_l_élève(const QString& matricule) {
    return u"{élèves.matricule} = \"%1\""_s.arg(matricule);
}

QString sélection_de_la_famille(const QString& référence_famille) {
    return u"{familles.référence_famille} = \"%1\""_s.arg(référence_famille);
}
