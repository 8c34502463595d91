// The letter of the pupil on screen: documents_suite_Click, from the template picked in the list, the
// school sheet, the guardian of the family and the pupil's fields as they stand, unsaved edits included.
#include "people/feuille_eleve.h"

#include "people/feuille_famille.h"
#include "platform/forms/DBGrid.h"
#include "platform/forms/DataControl.h"
#include "platform/report/ReportJob.h"
#include "platform/ui/ErrorBoxes.h"
#include "reference/feuille_ecole.h"
#include "reports/etat.h"
#include "reports/feuille_documents.h"
#include "reports/lettre.h"
#include "store/Module1.h"
#include "store/ouvrir_table.h"

#include <QCheckBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

QString entre_guillemets(const QString& texte) {
    return u'"' + texte + u'"';
}

SignataireÉcole signataire(const feuille_école& école) {
    return {école.ville_école->text(),   école.genre_directeur->text(), école.prénom_directeur->text(),
            école.nom_directeur->text(), école.Text2->text(),           école.nom_école->text()};
}

ResponsableLégal responsable(const feuille_famille& f) {
    return {f.genre_responsable_légal->text(),
            f.prénom_responsable_légal->text(),
            f.nom_responsable_légal->text(),
            f.Text3->text(),
            f.Text2->text(),
            f.Text1->text(),
            f.Text5->text(),
            f.Text4->text()};
}

// The family of the reference, searched as the family screen searches it; with none, the question is
// asked and its answer not looked at: the letter takes what the family screen then shows.
ResponsableLégal famille_de(const QString& référence) {
    ouvrir_table_familles();
    feuille_famille& famille = module1().feuilles().get<feuille_famille>();
    famille.datPrimaryRS->setRecordSource(u"SELECT * FROM familles"_s);
    famille.datPrimaryRS->Refresh();
    DataRecordset& familles = famille.datPrimaryRS->Recordset();
    familles.FindFirst(u"référence_famille LIKE "_s + entre_guillemets(référence));
    familles.Edit();
    if (familles.NoMatch())
        module1().interaction().MsgBox(u"La fiche de la famille n'existe pas... Créez-la!"_s,
                                       vbYesNo + vbQuestion, QString::fromUtf8(titre_programme));
    return responsable(famille);
}

} // namespace

ÉlèveDeLaLettre feuille_élève::élève_de_la_lettre() const {
    return {prénom_enfant->text(),       nom_enfant->text(),         matricule->text(),
            niveau_classe_élève->text(), cycle_classe_élève->text(), date_naissance->text(),
            lieu_naissance->text()};
}

void feuille_élève::documents_suite_Click() {
    avec_piège(
        ErrorBoxKind::données,
        [this] {
            const QString choisi = grdDataGrid->Text();
            ouvrir_table_documents();
            feuille_documents& documents = module1().feuilles().get<feuille_documents>();
            DataRecordset& modèles = documents.datPrimaryRS->Recordset();
            modèles.FindFirst(u"intitulé_bouton = "_s + entre_guillemets(choisi));
            modèles.Edit();
            if (modèles.NoMatch()) {
                module1().interaction().MsgBox(
                    u"Le document "_s + entre_guillemets(choisi) +
                        u" n'a pas été trouvé dans la table des documents... Opération "
                        u"impossible!"_s,
                    vbExclamation, QString::fromUtf8(titre_programme));
                return;
            }
            ReportJob& job = CrystalReport1();
            job.ReportFileName = module1().chemin_application + u"document.rpt"_s;
            job.DataFiles(0) = module1().base_en_cours;
            ouvrir_table_école();
            const SignataireÉcole école = signataire(module1().feuilles().get<feuille_école>());
            const ModèleDeLettre modèle = documents.modèle();
            const QDate aujourdhui = module1().horloge().aujourdhui();
            job.Formulas(0) = formules_de_la_lettre(modèle, école, {}, {}, aujourdhui)[0];
            std::optional<ResponsableLégal> tuteur;
            if (!référence_famille->text().isEmpty())
                tuteur = famille_de(référence_famille->text());
            const auto formules =
                formules_de_la_lettre(modèle, école, tuteur, élève_de_la_lettre(), aujourdhui);
            for (int i = 1; i < static_cast<int>(formules.size()); ++i)
                job.Formulas(i) = formules[i];
            job.SelectionFormula = u"{documents.intitulé_bouton} = "_s + entre_guillemets(choisi);
            if (Check1->isChecked()) {
                job.Destination = ReportJob::toPrinter;
            } else {
                job.Destination = ReportJob::toWindow;
                job.WindowState = ReportJob::maximised;
            }
            job.setAction(1);
        },
        [] { module1().interaction().setMousePointer(vbDefault); });
}
