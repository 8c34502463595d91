#include "reports/feuille_documents.h"

#include "platform/forms/DataControl.h"
#include "platform/forms/Placement.h"
#include "platform/report/ReportJob.h"
#include "platform/ui/ErrorBoxes.h"
#include "reports/etat.h"
#include "reports/lettre.h"
#include "store/Module1.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

ConfigurationFiche configuration_documents() {
    ConfigurationFiche c;
    c.nom = u"feuille_documents"_s;
    c.titre = u"Documents"_s;
    c.source_de_conception = u"documents"_s;
    c.légende = LégendePosition::numérotée;
    c.ajout = FormeAjout::A;
    c.suppression = FormeSuppression::sans_piège;
    c.boîte_erreur_données = false;
    c.infobulle_rafraîchir = InfobulleRafraîchir::rafraichir;
    return c;
}

} // namespace

std::span<const FieldRow<feuille_documents>> feuille_documents::champs() {
    using F = feuille_documents;
    // clang-format off
    static const FieldRow<F> table[] = {
        {.name = "intitulé", .member = &F::intitulé, .column = "intitulé_bouton", .caption = "nom du document",
         .limit = 30, .tip = "Saisissez le nom du document tel qu'il apparaîtra dans la liste des documents"},
        {.name = "titre", .member = &F::titre, .column = "titre_document", .caption = "titre", .limit = 50},
        {.name = "destinataire", .member = &F::destinataire, .column = "destinataire_document",
         .caption = "destinataire", .limit = 50},
        {.name = "paragraphe1", .member = &F::paragraphe1, .column = "paragraphe1_document",
         .caption = "paragraphe 1", .limit = 254},
        {.name = "paragraphe2", .member = &F::paragraphe2, .column = "paragraphe2_document",
         .caption = "paragraphe 2", .limit = 254},
        {.name = "paragraphe3", .member = &F::paragraphe3, .column = "paragraphe3_document",
         .caption = "paragraphe 3", .limit = 254},
        {.name = "paragraphe4", .member = &F::paragraphe4, .column = "paragraphe4_document",
         .caption = "paragraphe 4", .limit = 254},
        {.name = "paragraphe5", .member = &F::paragraphe5, .column = "paragraphe5_document",
         .caption = "paragraphe 5", .limit = 254},
        {.name = "paragraphe6", .member = &F::paragraphe6, .column = "paragraphe6_document",
         .caption = "paragraphe 6", .limit = 254},
        {.name = "politesse", .member = &F::politesse, .column = "politesse_document", .caption = "politesse",
         .limit = 254},
        {.name = "post_scriptum", .member = &F::post_scriptum, .caption = "post-scriptum", .limit = 254},
        {.name = "Check1", .member = &F::Check1, .column = "affichage_coordonnées_élève",
         .caption = "affichage des coordonnées de l'élève",
         .tip = "Cliquez pour afficher les coordonnées de l'élève (nom, prénom date de nais. et classe) sur "
                "le document"},
        {.name = "Check2", .member = &F::Check2, .column = "affichage_coordonnées_responsable_légal",
         .caption = "affichage des coordonnées du responsable légal",
         .tip = "Cliquez pour afficher les coordonnées du responsable légal (nom et adresse) sur le document"},
        {.name = "Check3", .member = &F::Check3, .column = "affichage_coordonnées_directeur",
         .caption = "affichage des coordonnées du directeur / de la directrice",
         .tip = "Cliquez pour afficher les coordonnées de l'élève (Monsieur X..., Directeur de l'école ... de "
                "...) sur le document"},
        {.name = "Check4", .member = &F::Check4, .column = "affichage_signature_directeur",
         .caption = "affichage des zones de signature et de cachet sur le document",
         .tip = "Cliquez pour afficher la zone de signature sur le document"},
        {.name = "Check5", .member = &F::Check5, .column = "affichage_date", .caption = "affichage de la date",
         .tip = "Cliquez pour afficher la date sur le document"},
    };
    // clang-format on
    return table;
}

feuille_documents::feuille_documents() : FeuilleFiche(configuration_documents()) {
    construire();
    resize(en_pixels(10500), en_pixels(9600));
}

// One column of captions and fields, three lines of text a paragraph, the check boxes below them.
void feuille_documents::construire() {
    auto* grille = new QGridLayout(corps());
    grille->setContentsMargins(0, 0, 0, 0);
    FieldBuilder disposition(
        *datPrimaryRS,
        {.captionsAtTop = true, .textLines = 3, .fixedTextHeight = true, .textScrollBarShown = false});
    disposition.addGroup(QString(), grille);
    disposition.build(*this, champs());
    disposition.chainTabOrder();

    Command2 = new QPushButton(u"V&oir"_s, corps());
    Command2->setObjectName(u"Command2"_s);
    Command2->setToolTip(u"Cliquez pour voir le document"_s);
    Command2->setAutoDefault(false);
    connect(Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
    grille->addWidget(Command2, disposition.nextRow(QString()), 1, 1, disposition.columns(QString()) - 1,
                      Qt::AlignRight);
}

ModèleDeLettre feuille_documents::modèle() const {
    ModèleDeLettre m;
    m.titre = titre->text();
    m.destinataire = destinataire->text();
    const QPlainTextEdit* paragraphes[] = {paragraphe1, paragraphe2, paragraphe3,
                                           paragraphe4, paragraphe5, paragraphe6};
    for (std::size_t i = 0; i < m.paragraphes.size(); ++i)
        m.paragraphes[i] = paragraphes[i]->toPlainText();
    m.politesse = politesse->text();
    m.post_scriptum = post_scriptum->text();
    m.coordonnées_élève = Check1->isChecked();
    m.coordonnées_directeur = Check3->isChecked();
    m.signature = Check4->isChecked();
    m.date = Check5->isChecked();
    return m;
}

// Needs no pupil, family or school: the sample values stand in for them.
void feuille_documents::Command2_Click() {
    avec_piège(
        ErrorBoxKind::données,
        [this] {
            ReportJob& job = CrystalReport1();
            job.ReportFileName = module1().chemin_application + u"document.rpt"_s;
            job.DataFiles(0) = module1().base_en_cours;
            // Back on the row last written, which carries a pending edit into its row; a screen where
            // nothing was written yet stays where it is rather than failing on the missing row.
            DataRecordset& rs = datPrimaryRS->Recordset();
            QByteArray dernière;
            en_silence([&] { dernière = rs.LastModified(); });
            if (!dernière.isEmpty())
                rs.setBookmark(dernière);
            const auto formules = formules_de_l_aperçu(modèle(), module1().horloge().aujourdhui());
            for (int i = 0; i < static_cast<int>(formules.size()); ++i)
                job.Formulas(i) = formules[i];
            job.SelectionFormula = u"{documents.intitulé_bouton} = \""_s + intitulé->text() + u"\""_s;
            job.Destination = ReportJob::toWindow;
            job.WindowState = ReportJob::maximised;
            job.setAction(1);
        },
        [] { module1().interaction().setMousePointer(vbDefault); });
}
