// The four first layouts on the demonstration school, through every destination: the PDF read back by
// pdftotext, the workbook by xlrd, the rich text by unrtf, the preview driven from the keyboard. What
// they must show is read from the base itself.
#include "Etats.h"

#include "platform/dao/Connection.h"
#include "platform/files/SafeSave.h"
#include "platform/forms/Feuilles.h"
#include "platform/report/PreviewWindow.h"
#include "platform/report/ReportJob.h"
#include "platform/report/Writers.h"
#include "reports/catalogue.h"
#include "shell/MDIForm1.h"
#include "store/Module1.h"
#include "support/BaseDirecte.h"
#include "support/Donnees.h"
#include "support/FailingDevice.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Etats : public ÉtatsTest {
protected:
    // The layout run into a file of that type, as the treatments screen runs it.
    QString fichier(const QString& mise_en_page, int type, const QString& sélection = {}) {
        const QString extension = type == ReportJob::pdfFile        ? u"pdf"_s
                                  : type == ReportJob::richTextFile ? u"rtf"_s
                                                                    : u"xls"_s;
        ReportJob& j = job();
        j.DataFiles(0) = base;
        j.ReportFileName = folder.file(mise_en_page + u".rpt"_s);
        j.SelectionFormula = sélection;
        j.Destination = ReportJob::toFile;
        j.PrintFileType = type;
        j.PrintFileName = folder.file(mise_en_page + u"."_s + extension);
        EXPECT_EQ(j.PrintReport(), 0);
        return j.PrintFileName;
    }
    QStringList colonne(const char* nom) const {
        return colonne_du_fichier(base, u"élèves"_s, QString::fromUtf8(nom));
    }
    // The rows of the pupils that a test picks, by index.
    std::vector<int> élèves_où(const char* nom, const QString& valeur) const {
        std::vector<int> rangs;
        const QStringList valeurs = colonne(nom);
        for (int i = 0; i < valeurs.size(); ++i)
            if (valeurs[i] == valeur)
                rangs.push_back(i);
        return rangs;
    }
};

TEST_F(Etats, stat_sexes_counts_the_selected_pupils_in_a_table_and_a_chart) {
    const QStringList sexes = colonne("sexe_élève"), cycles = colonne("cycle_classe_élève");
    const int filles = static_cast<int>(sexes.count(u"Féminin"_s)),
              garçons = static_cast<int>(sexes.count(u"Masculin"_s));
    const QString pdf = texte_pdf(fichier(u"stat_sexes"_s, ReportJob::pdfFile));
    EXPECT_TRUE(pdf.contains(u"Élèves retenus : %1"_s.arg(sexes.size()))) << pdf.toStdString();
    EXPECT_TRUE(pdf.contains(QRegularExpression(u"Féminin\\s+%1\\s"_s.arg(filles))));
    EXPECT_TRUE(pdf.contains(QRegularExpression(u"Masculin\\s+%1\\s"_s.arg(garçons))));
    EXPECT_TRUE(pdf.contains(QRegularExpression(u"Total\\s+%1\\s+100 %"_s.arg(sexes.size()))));
    EXPECT_EQ(pdf.count(u'\f'), 1);

    int filles_du_cycle_1 = 0;
    for (int i = 0; i < sexes.size(); ++i)
        filles_du_cycle_1 += sexes[i] == u"Féminin" && cycles[i] == u"1";
    const QStringList xls = cellules_xls(
        fichier(u"stat_sexes"_s, ReportJob::spreadsheetFile, u"{élèves.cycle_classe_élève} = \"1\""_s));
    ASSERT_EQ(xls.size(), 4) << xls.join(u'\n').toStdString();
    EXPECT_EQ(xls[0], u"Sexe\tNombre\tPart (%)"_s);
    EXPECT_TRUE(xls[1].startsWith(u"Féminin\t%1\t"_s.arg(filles_du_cycle_1))) << xls[1].toStdString();
    EXPECT_TRUE(texte_rtf(fichier(u"stat_sexes"_s, ReportJob::richTextFile)).contains(u"Masculin"_s));
}

TEST_F(Etats, liste_classes_gives_a_page_a_class_with_its_pupils_and_the_page_count) {
    const QStringList classes = colonne("référence_classe_élève"), noms = colonne("nom_élève");
    const int nombre_de_classes = static_cast<int>(QSet<QString>(classes.begin(), classes.end()).size());
    const QString pdf = texte_pdf(fichier(u"liste_classes"_s, ReportJob::pdfFile));
    const QStringList pages = pdf.split(u'\f', Qt::SkipEmptyParts);
    ASSERT_EQ(pages.size(), nombre_de_classes);
    const std::vector<int> classe_1 = élèves_où("référence_classe_élève", u"1"_s);
    EXPECT_TRUE(pages[0].contains(u"Classe 1 :"_s));
    EXPECT_TRUE(pages[0].contains(u"Effectif : %1"_s.arg(classe_1.size()))) << pages[0].toStdString();
    EXPECT_TRUE(pages[0].contains(u"École primaire des Tilleuls"_s));
    EXPECT_TRUE(pages[0].contains(u"page 1 / %1"_s.arg(nombre_de_classes)));
    for (int i : classe_1)
        EXPECT_TRUE(pages[0].contains(noms[i].toUpper())) << noms[i].toStdString();

    const QStringList xls = cellules_xls(fichier(u"liste_classes"_s, ReportJob::spreadsheetFile));
    ASSERT_EQ(xls.size(), noms.size() + 1);
    EXPECT_EQ(xls[0], u"Groupe\tN°\tNom\tPrénom\tNé(e) le\tSexe\tMatricule"_s);
    // Dates as dates, record numbers as the texts they are, leading zeros kept.
    const QStringList matricules = colonne("matricule"), naissances = colonne("date_naissance_élève");
    const QStringList première = xls[1].split(u'\t');
    const qsizetype i = matricules.indexOf(première[6]);
    ASSERT_GE(i, 0) << xls[1].toStdString();
    EXPECT_EQ(première[4], QDate::fromString(naissances[i], Qt::ISODate).toString(u"dd/MM/yyyy"_s));
    EXPECT_EQ(première[1], u"1"_s);
    EXPECT_TRUE(texte_rtf(fichier(u"liste_classes"_s, ReportJob::richTextFile,
                                  u"{élèves.référence_classe_élève} = \"1\""_s))
                    .contains(noms[classe_1.front()].toUpper()));
}

TEST_F(Etats, address_labels_give_one_label_a_family_of_the_selected_pupils) {
    const QStringList familles = colonne("référence_famille"), niveaux = colonne("niveau_classe_élève");
    QSet<QString> toutes(familles.begin(), familles.end()), du_cp;
    for (int i = 0; i < familles.size(); ++i)
        if (niveaux[i] == u"CP")
            du_cp << familles[i];
    const QString pdf = texte_pdf(fichier(u"étiquet_adresse2"_s, ReportJob::pdfFile));
    EXPECT_EQ(pdf.count(u'\f'), (toutes.size() + 23) / 24);
    const QStringList xls = cellules_xls(fichier(u"étiquet_adresse2"_s, ReportJob::spreadsheetFile,
                                                 u"{élèves.niveau_classe_élève} = \"CP\""_s));
    EXPECT_EQ(xls.size(), du_cp.size() + 1);
    const QStringList noms = colonne_du_fichier(base, u"familles"_s, u"nom_responsable_légal"_s);
    const QStringList villes = colonne_du_fichier(base, u"familles"_s, u"ville_responsable"_s);
    EXPECT_TRUE(pdf.contains(noms.front().toUpper()));
    EXPECT_TRUE(pdf.contains(villes.front().toUpper()));
    EXPECT_TRUE(texte_rtf(fichier(u"étiquet_adresse2"_s, ReportJob::richTextFile))
                    .contains(villes.front().toUpper()));
}

TEST_F(Etats, the_blank_sheet_is_one_page_to_fill_with_the_school_s_name) {
    const QString pdf = texte_pdf(fichier(u"fiche_vierge"_s, ReportJob::pdfFile));
    EXPECT_EQ(pdf.count(u'\f'), 1);
    for (const char* texte :
         {"FICHE DE RENSEIGNEMENTS", "École primaire des Tilleuls", "Responsable légal (parent 1)",
          "Personnes à contacter en cas d'urgence", "Signature du responsable légal"})
        EXPECT_TRUE(pdf.contains(QString::fromUtf8(texte))) << texte;
    EXPECT_TRUE(
        cellules_xls(fichier(u"fiche_vierge"_s, ReportJob::spreadsheetFile)).contains(u"Nom et prénom"_s));
    EXPECT_TRUE(texte_rtf(fichier(u"fiche_vierge"_s, ReportJob::richTextFile))
                    .contains(u"Renseignements médicaux"_s));
}

// Every layout of the catalogue run to PDF on the demonstration school and read back against its
// contract, as tests/data/contrats_etats.tsv writes it; no layout of the catalogue goes unchecked.
TEST_F(Etats, every_catalogue_entry_shows_what_its_contract_says) {
    module1().horloge().fixer(QDateTime(QDate(2025, 10, 15), QTime(9, 0)));
    const QList<QStringList> lignes = table_de_données(u"contrats_etats.tsv"_s);
    const auto connexion = dao::Connection::open(base, dao::Connection::Access::Shared);
    auto résultats = [&](const QString& sql) {
        if (sql.isEmpty())
            return QList<QStringList>{{}};
        QList<QStringList> rangs;
        for (dao::Statement requête = connexion->prepare(sql); requête.step();) {
            rangs << QStringList();
            for (int c = 0; c < requête.columnCount(); ++c)
                rangs.back() << requête.column(c).toString();
        }
        return rangs;
    };
    QSet<QString> couverts;
    for (const QStringList& l : lignes)
        if (l[2] == u"préparer")
            connexion->run(l[4]);
        else
            couverts << l[0];
    for (int liste = 1; liste <= 4; ++liste)
        for (const EntréeCatalogue& e : catalogue(liste))
            for (const char* f : {e.fichier, e.fichier_si_non})
                EXPECT_TRUE(f == nullptr || couverts.contains(QString::fromUtf8(f))) << f;
    std::map<QStringList, QString> textes;
    for (const QStringList& l : lignes) {
        if (l[2] == u"préparer")
            continue;
        QString& texte = textes[l.mid(0, 2)];
        if (texte.isEmpty())
            texte = texte_pdf(fichier(l[0].chopped(4), ReportJob::pdfFile, l[1]));
        const QList<QStringList> rangs = résultats(l[4]);
        EXPECT_FALSE(rangs.isEmpty()) << l.join(u" | "_s).toStdString();
        for (const QStringList& valeurs : rangs) {
            QString motif = l[3];
            for (qsizetype i = valeurs.size(); i > 0; --i)
                motif.replace(u"%"_s + QString::number(i), QRegularExpression::escape(valeurs[i - 1]));
            const QRegularExpression attendu(motif, QRegularExpression::CaseInsensitiveOption);
            if (l[2] == u"pages")
                EXPECT_EQ(texte.count(u'\f'), motif.toInt()) << l[0].toStdString();
            else
                EXPECT_EQ(texte.contains(attendu), l[2] == u"contient")
                    << l[0].toStdString() << " : " << motif.toStdString();
        }
    }
}

// A sheet holds 65,536 rows: past them the rows go on in the next sheet, under the same headings.
TEST_F(Etats, past_a_sheet_s_rows_the_workbook_goes_on_in_the_next_sheet) {
    struct Rangs : RenderedReport {
        int pageCount() const override { return 1; }
        ReportPage page(int) const override { return {}; }
        int sheetRowCount() const override { return 70001; }
        SheetRow sheetRow(int i) const override {
            return {i == 0 ? QVariant(u"N°"_s) : QVariant(qlonglong(i))};
        }
    } rangs;
    const QString chemin = folder.file(u"rangs.xls"_s);
    saveWhole(chemin, [&](QIODevice& d) { writeXls(rangs, d); });
    const QStringList première = cellules_xls(chemin, 0), seconde = cellules_xls(chemin, 1);
    ASSERT_EQ(première.size(), 65536);
    EXPECT_EQ(première.back(), u"65535"_s);
    ASSERT_EQ(seconde.size(), 70001 - 65535);
    EXPECT_EQ(seconde[0], u"N°"_s);
    EXPECT_EQ(seconde[1], u"65536"_s);
}

// A heading a little too wide for its column is set smaller, as on the page, not shortened.
TEST_F(Etats, rich_text_sets_a_text_smaller_before_it_shortens_it) {
    EXPECT_TRUE(texte_rtf(fichier(u"registre1"_s, ReportJob::richTextFile)).contains(u"Inscription"_s));
}

// A device that fills up is never taken for a complete file: each writer raises, so the safe-save
// writer keeps the former file.
TEST_F(Etats, a_full_disk_fails_every_writer) {
    job().DataFiles(0) = base;
    job().ReportFileName = folder.file(u"liste_classes.rpt"_s);
    const auto rapport = job().render();
    for (auto écrire : {&writePdf, &writeRtf, &writeXls})
        for (qint64 place : {0, 100, 5000}) {
            FailingDevice disque(place);
            EXPECT_EQ(error_of([&] { écrire(*rapport, disque); }), 75) << place;
        }
}

TEST_F(Etats, the_preview_pages_zooms_and_saves_from_the_keyboard) {
    MDIForm1& mdi = feuilles().get<MDIForm1>();
    mdi.show();
    job().DataFiles(0) = base;
    job().ReportFileName = folder.file(u"liste_classes.rpt"_s);
    job().Destination = ReportJob::toWindow;
    job().WindowState = ReportJob::maximised;
    ASSERT_EQ(job().PrintReport(), 0);
    QMdiSubWindow* fenêtre = mdi.zone->activeSubWindow();
    ASSERT_NE(fenêtre, nullptr);
    auto* aperçu = qobject_cast<PreviewWindow*>(fenêtre->widget());
    ASSERT_NE(aperçu, nullptr);
    EXPECT_TRUE(fenêtre->isMaximized());
    QApplication::setActiveWindow(&mdi);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mdi));
    aperçu->setFocus();
    const int dernière = aperçu->report().pageCount() - 1;
    const std::pair<QKeyCombination, int> pages[] = {
        {Qt::Key_PageDown, 1},          {Qt::Key_End, dernière}, {Qt::Key_PageDown, dernière},
        {Qt::Key_PageUp, dernière - 1}, {Qt::Key_Home, 0},       {Qt::Key_PageUp, 0}};
    for (const auto& [touche, page] : pages) {
        QTest::keyClick(aperçu, touche.key(), touche.keyboardModifiers());
        EXPECT_EQ(aperçu->currentPage(), page);
    }
    const double ajusté = aperçu->zoom();
    QTest::keyClick(aperçu, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(aperçu->zoom(), ajusté);
    QTest::keyClick(aperçu, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(aperçu, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(aperçu->zoom(), ajusté);
    QTest::keyClick(aperçu, Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(aperçu->zoom(), ajusté);
    aperçu->saveAsPdf(folder.file(u"aperçu.pdf"_s));
    EXPECT_TRUE(texte_pdf(folder.file(u"aperçu.pdf"_s)).contains(u"Classe 1 :"_s));
    const QPointer<QMdiSubWindow> fermée = fenêtre;
    QTest::keyClick(aperçu, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents();
    processDeletions();
    EXPECT_TRUE(fermée.isNull());
}

} // namespace
