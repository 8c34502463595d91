#include "reports/exportation_tableur.h"

#include "platform/files/Files.h"
#include "platform/report/ReportJob.h"
#include "platform/ui/ErrorBoxes.h"
#include "platform/ui/Interaction.h"
#include "reports/etat.h"
#include "store/Module1.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

// The proposal of the prompt: the same name in the user's folder where there is no drive C:.
QString proposition_de_fichier() {
#ifdef Q_OS_WIN
    return u"C:\\export_norv2.XLS"_s;
#else
    return QDir::toNativeSeparators(QDir::home().filePath(u"export_norv2.XLS"_s));
#endif
}

} // namespace

void menuexploitationindex4_Click() {
    avec_piège(ErrorBoxKind::standard, [] {
        ReportJob& job = CrystalReport1();
        job.DataFiles(0) = module1().base_en_cours;
        job.ReportFileName = module1().chemin_application + u"fiche_export.rpt"_s;
        // Whatever was last typed on the treatments screen restricts the export, without a word.
        lancer_état();
        // No guard: Cancel gives "", which becomes ".XLS" in the current folder.
        QString chemin =
            interaction()
                .InputBox(u"Entrez le chemin et le nom du fichier d'exportation au format .XLS "
                          "(Microsoft Excel) que vous souhaitez créer:"_s,
                          u"Exportation des données vers un fichier Excel"_s, proposition_de_fichier())
                .trimmed();
        if (chemin.endsWith(QDir::separator()))
            chemin.chop(1);
        job.Destination = ReportJob::toFile;
        job.PrintFileType = ReportJob::spreadsheetFile;
        if (chemin.right(4).toUpper() != u".XLS")
            chemin += u".XLS"_s;
        if (!Dir(chemin).isEmpty()) {
            if (interaction().MsgBox(
                    u"Attention, le fichier d'exportation existe déjà... Il sera remplacé par "
                    "le nouveau. Voulez-vous continuer ?"_s,
                    vbYesNo + vbQuestion) == vbNo)
                return;
            Kill(chemin);
        }
        job.PrintFileName = chemin;
        job.CopiesToPrinter = 1;
        if (job.PrintReport() == 0)
            interaction().MsgBox(u"Le fichier d'exportation "_s + chemin + u" a été créé avec succès."_s,
                                 vbOKOnly + vbExclamation);
        else
            interaction().MsgBox(u"Demande d'édition interrompue..."_s, vbOKOnly + vbExclamation);
        job.CopiesToPrinter = 1;
        job.Destination = ReportJob::toWindow;
    });
}
