#include "shell/MDIForm1.h"
#include "shell/feuille_options.h"
#include "shell/fichier_options.h"
#include "shell/options.h"
#include "store/Module1.h"
#include "store/feuille_choix_base.h"
#include "support/Fixtures.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class FichierOptions : public WorkFolderTest {
protected:
    static Feuilles& feuilles() { return module1().feuilles(); }
    static feuille_options& options() { return feuilles().get<feuille_options>(); }
    QByteArray contenu() const { return contentOf(folder.file("options.ini")); }
    // The main window is up, as during a run; its own load reads the file once.
    void programme_chargé() {
        ui().failOnUnusedAnswers = true;
        feuilles().get<MDIForm1>();
    }
    static std::vector<int> cases() {
        feuille_options& o = options();
        return {valeur_case(o.Check1), valeur_case(o.Check2), valeur_case(o.Check3), valeur_case(o.Check4)};
    }
};

TEST_F(FichierOptions, ÉcrireDonneCinqLignesCrLfNombresNusEtCheminEntreGuillemets) {
    programme_chargé();
    fixer_case(options().Check3, 1);
    fixer_case(options().Check4, 1);
    module1().base_en_cours = u"C:\\écoles\\base.mdb"_s;
    écrire_options();
    EXPECT_EQ(contenu(), QByteArray("0\r\n0\r\n1\r\n1\r\n\"C:\\\xE9"
                                    "coles\\base.mdb\"\r\n"));
    // A character the code page cannot hold is replaced, not lost.
    module1().base_en_cours = u"/bases/Łódź.mdb"_s;
    écrire_options();
    EXPECT_TRUE(contenu().endsWith("\"/bases/?\xF3"
                                   "d?.mdb\"\r\n"));
}

TEST_F(FichierOptions, UnCheminAvecUneVirguleEtDesAccentsSurvitÀLÉcritureEtÀLaLecture) {
    programme_chargé();
    const QString chemin = u"/srv/Écoles/Année 2024, CM1-CM2/élèves, œuvre.mdb"_s;
    module1().base_en_cours = chemin;
    fixer_case(options().Check1, 1);
    écrire_options();
    module1().base_en_cours.clear();
    fixer_case(options().Check1, 0);
    lire_options();
    EXPECT_EQ(module1().base_en_cours, chemin);
    EXPECT_EQ(feuilles().get<feuille_choix_base>().Label4->text(), chemin);
    EXPECT_EQ(cases(), (std::vector<int>{1, 0, 0, 0}));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FichierOptions, UnFichierAbsentEstCrééAvecLesValeursEnPlace) {
    programme_chargé();
    QFile::remove(folder.file("options.ini"));
    module1().base_en_cours = u"x.mdb"_s;
    lire_options();
    EXPECT_EQ(contenu(), QByteArray("0\r\n0\r\n0\r\n0\r\n\"x.mdb\"\r\n"));
}

TEST_F(FichierOptions, LaLectureAccepteLesValeursSurUneLigneSéparéesParDesVirgules) {
    folder.write("options.ini", "1,0,0,1,\"/a, b/c.mdb\"\r\n");
    programme_chargé();
    EXPECT_EQ(cases(), (std::vector<int>{1, 0, 0, 1}));
    EXPECT_EQ(module1().base_en_cours, "/a, b/c.mdb");
}

TEST_F(FichierOptions, UnFichierTropCourtArrêteLaLectureEtGardeCeQuiAÉtéLu) {
    folder.write("options.ini", "1\r\n1\r\n");
    ui().expectMsgBox(vbOK);
    programme_chargé();
    EXPECT_EQ(ui().boxes(),
              std::vector{ScriptedInteraction::Box::titled(
                  "Le gestionnaire d'erreurs des données a rencontré l'erreur : 62\n\n" + error_text(62),
                  vbOKOnly + vbExclamation)});
    EXPECT_EQ(cases(), (std::vector<int>{1, 1, 0, 0}));
    EXPECT_EQ(module1().base_en_cours, "");

    // The file stays open for the rest of the run: the next reading fails in its turn.
    ui().expectMsgBox(vbOK);
    lire_options();
    ASSERT_EQ(ui().boxes().size(), 2u);
    EXPECT_TRUE(ui().boxes()[1].text.startsWith(
        "Le gestionnaire d'erreurs des données a rencontré l'erreur : 55\n\n"));
}

TEST_F(FichierOptions, LaCommandeDuMenuMontreLesOptionsEtAccepterLesÉcritSansDécharger) {
    programme_chargé();
    MDIForm1& mdi = module1().feuilles().get<MDIForm1>();
    mdi.Show();
    mdi.cliquer(u"menuoptionsindex1"_s);
    feuille_options& o = options();
    ASSERT_TRUE(o.conteneur().isVisible());
    EXPECT_EQ(o.Check4->toolTip(), o.Check2->toolTip()) << "the exploitation box keeps the pupils' tooltip";
    o.Check3->click();
    QTest::mouseClick(o.cmdFermer, Qt::LeftButton);
    EXPECT_FALSE(o.conteneur().isVisible());
    ASSERT_EQ(feuilles().siChargée<feuille_options>(), &o);
    EXPECT_EQ(valeur_case(o.Check3), 1);
    // No base open: the remembered path is lost.
    EXPECT_EQ(contenu(), QByteArray("0\r\n0\r\n1\r\n0\r\n\"\"\r\n"));
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(FichierOptions, FermerLesOptionsParLaFenêtreNÉcritRienEtLesCasesRepartentDécochées) {
    programme_chargé();
    const QByteArray avant = contenu();
    module1().feuilles().get<MDIForm1>().menuoptionsindex1_Click();
    options().Check1->click();
    options().conteneur().close();
    processDeletions();
    EXPECT_EQ(feuilles().siChargée<feuille_options>(), nullptr);
    EXPECT_EQ(contenu(), avant);
    EXPECT_EQ(cases(), (std::vector<int>{0, 0, 0, 0}));
}

// A flag that is no number stops the reading with 13, one out of range with 380.
TEST(TexteOptions, ValeursDesIndicateurs) {
    EXPECT_EQ(indicateur_lu("0"), 0);
    EXPECT_EQ(indicateur_lu(" 1 "), 1);
    EXPECT_EQ(indicateur_lu("2"), 2);
    EXPECT_EQ(indicateur_lu(""), 0);
    for (const char* refusé : {"oui", "1a", "x"})
        EXPECT_EQ(error_of([&] { indicateur_lu(QString::fromUtf8(refusé)); }), 13) << refusé;
    EXPECT_EQ(error_of([&] { indicateur_lu("5"); }), 380);
}

} // namespace
