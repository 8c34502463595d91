// The treatments screen on the demonstration school: lancer_état's table, the catalogue as the lists
// show it and what each entry runs, the output block of each option, the file prompt and its ".RTF"
// rule, the reset after a run, and the hide-not-unload close.
#include "Etats.h"

#include "platform/forms/Feuilles.h"
#include "platform/report/PreviewWindow.h"
#include "platform/report/ReportJob.h"
#include "reports/etat.h"
#include "reports/feuille_traitements.h"
#include "shell/MDIForm1.h"
#include "shell/feuille_options.h"
#include "shell/options.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"
#include "support/Donnees.h"
#include "support/PiloteEcran.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Box = ScriptedInteraction::Box;
const Box interrompue = Box::titled(u"Demande d'édition interrompue..."_s, vbOKOnly + vbExclamation);

class Traitements : public ÉtatsTest {
protected:
    feuille_traitements& écran() {
        auto& f = feuilles().get<feuille_traitements>();
        if (!f.isVisible())
            f.Show();
        return f;
    }
    QComboBox* liste(int numéro) { return écran().findChild<QComboBox*>(u"Combo%1"_s.arg(numéro)); }
    // Picks the entry in its list and presses the OK beside it.
    void lancer(int numéro, const QString& libellé) {
        QComboBox* combo = liste(numéro);
        combo->setCurrentIndex(combo->findText(libellé));
        ASSERT_EQ(combo->currentText(), libellé);
        cliquer(écran(), u"Command%1"_s.arg(numéro));
    }
    static std::vector<PreviewWindow*> aperçus() {
        std::vector<PreviewWindow*> trouvés;
        for (QMdiSubWindow* s : feuilles().get<MDIForm1>().zone->subWindowList())
            if (auto* a = qobject_cast<PreviewWindow*>(s->widget()))
                trouvés.push_back(a);
        return trouvés;
    }
};

TEST_F(Traitements, lancer_état_builds_the_selection_from_the_three_fields_as_typed) {
    for (const QStringList& ligne : table_de_données(u"lancer_etat.tsv"_s)) {
        auto& f = feuilles().get<feuille_traitements>();
        f.Text1->setText(ligne[0]);
        f.Text2->setText(ligne[1]);
        f.Text3->setText(ligne[2]);
        job().SelectionFormula = u"{élèves.ainé} = True"_s;
        lancer_état();
        EXPECT_EQ(job().SelectionFormula, ligne.value(3)) << ligne.join(u" | "_s).toStdString();
    }
}

TEST_F(Traitements, lancer_état_loads_the_screen_unseen_with_its_first_texts) {
    ASSERT_FALSE(feuilles().isLoaded<feuille_traitements>());
    lancer_état();
    EXPECT_TRUE(feuilles().isLoaded<feuille_traitements>());
    EXPECT_TRUE(feuilles().get<feuille_traitements>().conteneur().isHidden());
    EXPECT_EQ(job().SelectionFormula, u""_s);
}

// Every entry of the four lists, in order; each runs its own layout with its own selection, and those
// whose layout is still to come end in the interrupted box.
TEST_F(Traitements, the_catalogue_in_its_lists_and_what_each_entry_runs) {
    feuilles().get<feuille_traitements>().Text1->setText(u"3"_s);
    QStringList attendues[5];
    for (const QStringList& ligne : table_de_données(u"catalogue.tsv"_s))
        attendues[ligne[0].toInt()] << ligne[1];
    for (const QStringList& ligne : table_de_données(u"catalogue.tsv"_s)) {
        const int numéro = ligne[0].toInt();
        QStringList montrées;
        for (int i = 0; i < liste(numéro)->count(); ++i)
            montrées << liste(numéro)->itemText(i);
        ASSERT_EQ(montrées, attendues[numéro]);
        SCOPED_TRACE(ligne[1].toStdString());
        const size_t avant = ui().boxes().size(), aperçus_avant = aperçus().size();
        const bool a_un_message = ligne[1] == u"Liste électorale" || ligne[1] == u"Liste A" ||
                                  ligne[1] == u"Liste B" || ligne[1] == u"Liste Association";
        if (a_un_message)
            ui().expectMsgBox(ligne[1] == u"Liste électorale" ? vbYes : vbOK);
        const bool existe = QFile::exists(folder.file(ligne[2]));
        if (ligne[2] != u"-" && !existe)
            ui().expectMsgBox();
        job().ReportFileName = u"avant"_s;
        lancer(numéro, ligne[1]);
        if (ligne[2] == u"-") {
            EXPECT_EQ(ui().boxes().size(), avant);
            EXPECT_EQ(job().ReportFileName, u"avant"_s);
            continue;
        }
        EXPECT_EQ(job().ReportFileName, folder.file(ligne[2]));
        EXPECT_EQ(job().SelectionFormula,
                  ligne[3] == u"sélection" ? u"{élèves.cycle_classe_élève} = \"3\""_s : ligne.value(3));
        EXPECT_EQ(ui().boxes().size(), avant + (a_un_message ? 1 : 0) + (existe ? 0 : 1));
        if (!existe)
            EXPECT_EQ(ui().lastBox(), interrompue);
        EXPECT_EQ(aperçus().size(), aperçus_avant + (existe ? 1 : 0));
    }
}

TEST_F(Traitements, the_messages_before_a_run_and_the_electoral_question_s_no) {
    ui().expectMsgBox(vbNo);
    lancer(2, u"Liste électorale"_s);
    EXPECT_EQ(ui().boxes()[0],
              Box::titled(u"Voulez-vous éditer une liste électorale sans l'indication des adresses?"_s,
                          vbYesNo + vbExclamation));
    EXPECT_EQ(job().ReportFileName, folder.file(u"liste_électorale2.rpt"_s));
    ui().expectMsgBox();
    lancer(2, u"Liste A"_s);
    EXPECT_EQ(ui().boxes()[1], Box::titled(u"Seules les classes de CM2 sont concernées par la LISTE A."_s,
                                           vbOKOnly + vbInformation));
}

TEST_F(Traitements, ok_with_nothing_picked_does_nothing) {
    for (int numéro = 1; numéro <= 4; ++numéro)
        cliquer(écran(), u"Command%1"_s.arg(numéro));
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_TRUE(aperçus().empty());
}

TEST_F(Traitements, screen_option_opens_the_preview_maximised_in_the_main_window) {
    lancer(2, u"Liste de classes (alphabétique)"_s);
    ASSERT_EQ(aperçus().size(), 1u);
    EXPECT_TRUE(aperçus()[0]->parentWidget()->isMaximized());
    EXPECT_EQ(job().WindowState, ReportJob::maximised);
    EXPECT_EQ(aperçus()[0]->report().title, u"Liste de classes"_s);
}

TEST_F(Traitements, printer_option_prints_the_copies_typed_then_the_job_rests_at_one) {
    const QString pdf = imprimer_dans_un_pdf();
    écran().Option1[1]->click();
    écran().Text4->setText(u"3"_s);
    lancer(4, u"Fiche vierge"_s);
    EXPECT_EQ(texte_pdf(pdf).count(u"FICHE DE RENSEIGNEMENTS"_s), 3);
    EXPECT_EQ(job().CopiesToPrinter, 1);
    EXPECT_EQ(job().Destination, ReportJob::toWindow);
}

TEST_F(Traitements, letters_for_copies_start_the_job_with_none_and_end_interrupted_but_reset) {
    imprimer_dans_un_pdf();
    écran().Option1[1]->click();
    écran().Text4->setText(u"deux"_s);
    ui().expectMsgBox();
    lancer(4, u"Fiche vierge"_s);
    EXPECT_EQ(ui().lastBox(), interrompue);
    EXPECT_EQ(job().CopiesToPrinter, 1);
    EXPECT_EQ(job().Destination, ReportJob::toWindow);
}

TEST_F(Traitements, a_failure_in_the_handler_shows_the_standard_box_and_skips_the_reset) {
    imprimer_dans_un_pdf();
    écran().Option1[1]->click();
    écran().Text4->setText(u"99999"_s);
    ui().expectMsgBox();
    lancer(4, u"Fiche vierge"_s);
    EXPECT_TRUE(une_boîte(ui(), u"Le logiciel a rencontré l'erreur : 6"_s));
    EXPECT_EQ(job().Destination, ReportJob::toPrinter);
}

TEST_F(Traitements, a_class_typed_with_a_double_quote_ends_interrupted) {
    écran().Text3->setText(u"4\"B"_s);
    ui().expectMsgBox();
    lancer(1, u"Répartition par sexes"_s);
    EXPECT_EQ(ui().lastBox(), interrompue);
    EXPECT_TRUE(aperçus().empty());
}

// The answer of the file prompt, trimmed, without a trailing separator, with ".RTF" unless it ends so.
TEST_F(Traitements, the_file_prompt_and_its_rtf_rule) {
    const DossierCourant courant(folder.path());
    const QString sep = QDir::separator();
    const std::pair<QString, QString> cas[] = {
        {u"  "_s + folder.file(u"liste"_s) + u"  "_s, folder.file(u"liste.RTF"_s)},
        {folder.file(u"liste.rtf"_s), folder.file(u"liste.rtf"_s)},
        {folder.file(u"dossier"_s) + sep, folder.file(u"dossier.RTF"_s)},
        {u""_s, u".RTF"_s}, // Cancel
    };
    écran().Option1[2]->click();
    for (const auto& [réponse, chemin] : cas) {
        ui().expectInputBox(réponse);
        lancer(4, u"Fiche vierge"_s);
        EXPECT_EQ(job().PrintFileName, chemin);
        EXPECT_EQ(job().PrintFileType, ReportJob::richTextFile);
        EXPECT_TRUE(
            texte_rtf(QDir(folder.path()).absoluteFilePath(chemin)).contains(u"FICHE DE RENSEIGNEMENTS"_s));
    }
    ASSERT_EQ(ui().inputs().size(), 4u);
    EXPECT_EQ(ui().inputs()[0].prompt, u"Entrez le chemin et le nom du fichier que vous souhaitez créer :"_s);
    EXPECT_EQ(ui().inputs()[0].title, u"Exportation du traitement vers un fichier"_s);
    EXPECT_TRUE(ui().inputs()[0].defaultValue.endsWith(u"export_norv2.rtf"_s));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(Traitements, fiche_vierge_clears_the_selection_whatever_the_fields_hold) {
    écran().Text1->setText(u"1"_s);
    job().SelectionFormula = u"{élèves.ainé} = True"_s;
    lancer(4, u"Fiche vierge"_s);
    EXPECT_EQ(job().SelectionFormula, u""_s);
}

TEST_F(Traitements, closing_hides_and_keeps_what_was_typed_and_chosen) {
    auto& f = écran();
    f.Text2->setText(u"CE1"_s);
    f.Option1[2]->click();
    f.HScroll1->setValue(12);
    EXPECT_EQ(f.Text4->text(), u"12"_s);
    f.HScroll1->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(f.Text4->text(), u"22"_s);
    cliquer(f, u"cmdFermer"_s);
    processDeletions();
    ASSERT_TRUE(feuilles().isLoaded<feuille_traitements>());
    EXPECT_TRUE(f.conteneur().isHidden());
    feuilles().get<MDIForm1>().activer_menus();
    feuilles().get<MDIForm1>().cliquer(u"menuexploitationindex3"_s);
    EXPECT_FALSE(f.conteneur().isHidden());
    EXPECT_EQ(f.Text2->text(), u"CE1"_s);
    EXPECT_TRUE(f.Option1[2]->isChecked());
    EXPECT_EQ(liste(1)->count(), 11); // filled once
}

} // namespace

namespace {

TEST_F(Traitements, the_start_up_option_shows_the_screen_after_an_opening) {
    fixer_case(feuilles().get<feuille_options>().Check4, 1);
    feuilles().get<MDIForm1>().montrer_écrans_après_ouverture();
    ASSERT_TRUE(feuilles().isLoaded<feuille_traitements>());
    EXPECT_FALSE(feuilles().get<feuille_traitements>().conteneur().isHidden());
}

} // namespace
