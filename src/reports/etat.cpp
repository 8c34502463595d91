#include "reports/etat.h"

#include "platform/forms/Feuilles.h"
#include "platform/report/ReportJob.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Interaction.h"
#include "reports/feuille_traitements.h"
#include "store/feuille_principale.h"

#include <QLineEdit>
#include <stdexcept>

using namespace Qt::StringLiterals;

ReportJob& CrystalReport1() {
    auto* fenêtre = dynamic_cast<FeuillePrincipale*>(&feuilles().nommée(u"MDIForm1"_s));
    if (fenêtre == nullptr)
        throw std::logic_error("MDIForm1 n'est pas la fenêtre principale");
    return fenêtre->CrystalReport1();
}

void lancer_état() {
    avec_piège(ErrorBoxKind::standard, [] {
        ReportJob& job = CrystalReport1();
        feuille_traitements& traitements = feuilles().get<feuille_traitements>();
        // As typed: a keyword in lower case is a value like any other.
        const QString cycle = traitements.Text1->text();
        const QString niveau = traitements.Text2->text();
        const QString classe = traitements.Text3->text();
        job.SelectionFormula = QString();
        QStringList termes;
        if (cycle != u"TOUS")
            termes << u"{élèves.cycle_classe_élève} = \"%1\""_s.arg(cycle);
        if (niveau != u"TOUS")
            termes << u"{élèves.niveau_classe_élève} = \"%1\""_s.arg(niveau);
        if (classe != u"TOUTES")
            termes << u"{élèves.référence_classe_élève} = \"%1\""_s.arg(classe);
        job.SelectionFormula = termes.join(u" AND "_s);
    });
}

void terminer_édition(ReportJob& job) {
    if (job.PrintReport() != 0)
        interaction().MsgBox(u"Demande d'édition interrompue..."_s, vbOKOnly + vbExclamation);
    job.CopiesToPrinter = 1;
    job.Destination = ReportJob::toWindow;
}
