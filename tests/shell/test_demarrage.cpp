#include "shell/EtatDemarrage.h"

#include "shell/feuille_options.h"

#include <QDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class DémarrageDuProgramme : public Démarrage {
protected:
    // The program stopped and started again in the same folder, the scripted user kept.
    void redémarrer() {
        module1().réinitialiser();
        module1().setInteraction(std::shared_ptr<Interaction>(&ui(), [](Interaction*) {}));
        processDeletions();
        module1().chemin_application.clear();
    }
    // What a user can see and what lands on disk once the start has settled.
    QString état() const {
        return QStringList{QString::fromLatin1(options_ini()),
                           module1().base_en_cours,
                           module1().chemin_application,
                           choix() ? choix()->Label4->text() : u"(déchargé)"_s,
                           mdi() ? mdi()->Panel1() : QString(),
                           feuilles().siChargée<feuille_accueil>() ? u"accueil"_s : QString(),
                           mdi() && mdi()->isVisible() ? u"fenêtre"_s : QString(),
                           choix_à_l_écran() ? u"choix"_s : QString(),
                           mdi() && menus_de_données_inactifs() ? u"menus inactifs"_s : QString()}
            .join(u'|');
    }
};

TEST_F(DémarrageDuProgramme, LeMessageClignoteEntreJaunePâleEtBleu) {
    feuille_accueil& splash = accueil();
    ASSERT_EQ(splash.Timer1->interval(), 600);
    const uint32_t fond_avant = BackColor(*splash.Label1);
    QMetaObject::invokeMethod(splash.Timer1, "timeout");
    EXPECT_NE(BackColor(*splash.Label1), fond_avant);
    EXPECT_EQ(BackColor(*splash.Label1), 0xFF0000u);
    EXPECT_EQ(ForeColor(*splash.Label1), 0x80FFFFu);
    QMetaObject::invokeMethod(splash.Timer1, "timeout");
    EXPECT_EQ(BackColor(*splash.Label1), 0x80FFFFu);
    EXPECT_EQ(ForeColor(*splash.Label1), 0xFF0000u);
}

TEST_F(DémarrageDuProgramme, PremierLancementDansUnDossierVideParClicOuParTouche) {
    démarrer_par_clic();
    const QString par_clic = état();
    EXPECT_EQ(par_clic, u"0\r\n0\r\n0\r\n0\r\n\"\"\r\n||"_s + QDir::toNativeSeparators(folder.path()) +
                            QDir::separator() + u"||||fenêtre|choix|menus inactifs"_s);
    EXPECT_TRUE(ui().boxes().empty());
    redémarrer();
    QFile::remove(folder.file("options.ini"));
    démarrer_par_touche();
    EXPECT_EQ(état(), par_clic);
}

TEST_F(DémarrageDuProgramme, LaBaseRetenueEstOuverteSansLeChoixParClicOuParTouche) {
    const QString base = créer_base_de_test(folder.file("ecole.mdb"));
    const QByteArray texte = "0\r\n0\r\n1\r\n0\r\n" + ligne_de_base(base);
    préparer_options(texte);
    démarrer_par_clic();
    const QString par_clic = état();
    EXPECT_TRUE(par_clic.contains(u"|Base de données en cours : "_s + base + u"||fenêtre||"_s))
        << par_clic.toStdString();
    EXPECT_TRUE(par_clic.endsWith(u"||"_s)) << "menus active";
    redémarrer();
    démarrer_par_touche();
    EXPECT_EQ(état(), par_clic);
    EXPECT_EQ(options_ini(), texte); // the options are read, never rewritten, when the file is there
    EXPECT_FALSE(choix_à_l_écran());
    EXPECT_EQ(feuilles().siChargée<feuille_options>()->Check3->checkState(), Qt::Checked);
}

TEST_F(DémarrageDuProgramme, LeSplashAttendQuUnClicSurLeFondNuOuUneToucheSansCaractèreLaisseSansEffet) {
    feuille_accueil& splash = accueil();
    EXPECT_TRUE(splash.isVisible());
    EXPECT_EQ(splash.lblVersion->text(), "Version 2.2.9");
    const QPoint fond(3, 3); // the margin around Frame1
    ASSERT_EQ(splash.childAt(fond), nullptr);
    QTest::mouseClick(&splash, Qt::LeftButton, {}, fond);
    QTest::keyClick(&splash, Qt::Key_Shift);
    processDeletions();
    EXPECT_NE(feuilles().siChargée<feuille_accueil>(), nullptr);
    EXPECT_EQ(mdi(), nullptr);
    EXPECT_FALSE(QFile::exists(folder.file("options.ini")));
}

TEST_F(DémarrageDuProgramme, FermerLeSplashParLeGestionnaireDeFenêtresFaitCommeUnClic) {
    ASSERT_TRUE(accueil().windowHandle()->close());
    processDeletions();
    EXPECT_EQ(feuilles().siChargée<feuille_accueil>(), nullptr);
    EXPECT_TRUE(mdi() && mdi()->isVisible());
}

// Behind the code box, brought up by a key, the message still blinks; an assistive tool clicks the splash
// meanwhile, which does not unload it twice.
TEST_F(DémarrageDuProgramme, DerrièreLaBoîteDuCodeLeSplashClignoteEtUnClicNeLeDéchargePasDeuxFois) {
    préparer_options("0\r\n0\r\n1\r\n0\r\n" + ligne_de_base(créer_base_de_test(folder.file("a.mdb"), "X")));
    bool clignote = false;
    ui().expectModal([&](Feuille& login) {
        clignote = accueil().isVisible() && accueil().Timer1->isActive();
        QTest::mouseClick(accueil().Image1, Qt::LeftButton);
        processDeletions();
        login.Unload();
    });
    ui().expectMsgBox(vbOK); // the code refused
    démarrer_par_touche();
    EXPECT_TRUE(clignote);
    EXPECT_TRUE(feuilles().siChargée<feuille_accueil>() == nullptr && mdi()->isVisible());
}

class ClicSurUnContrôle : public Démarrage, public ::testing::WithParamInterface<const char*> {};

TEST_P(ClicSurUnContrôle, OuvreLeProgramme) {
    auto* contrôle = accueil().findChild<QWidget*>(QString::fromUtf8(GetParam()));
    ASSERT_NE(contrôle, nullptr);
    QTest::mouseClick(contrôle, Qt::LeftButton, {}, QPoint(2, 2));
    processDeletions();
    EXPECT_EQ(feuilles().siChargée<feuille_accueil>(), nullptr);
    ASSERT_NE(mdi(), nullptr);
    EXPECT_TRUE(mdi()->isVisible());
}

INSTANTIATE_TEST_SUITE_P(ContrôlesDuSplash, ClicSurUnContrôle,
                         ::testing::Values("Frame1", "Image1", "Image2", "Label1", "lblCompany",
                                           "lblPlatform", "lblProductName", "lblVersion", "lblWarning"));

TEST_F(DémarrageDuProgramme, Check3DécochéAvecUnCheminMontreCeCheminSansLOuvrir) {
    const QString base = créer_base_de_test(folder.file("ecole.mdb"));
    préparer_options("0\r\n0\r\n0\r\n0\r\n" + ligne_de_base(base));
    démarrer_par_clic();
    EXPECT_TRUE(choix_à_l_écran());
    EXPECT_EQ(choix()->Label4->text(), base);
    EXPECT_EQ(module1().base_en_cours, base);
    EXPECT_EQ(mdi()->Panel1(), "");
    EXPECT_TRUE(menus_de_données_inactifs());
}

TEST_F(DémarrageDuProgramme, UneBaseRetenueDisparueMontreLErreurPuisLOuvertureVaÀSonTerme) {
    const QString disparue = folder.file("disparue.mdb");
    préparer_options("0\r\n0\r\n1\r\n0\r\n" + ligne_de_base(disparue));
    ui().expectMsgBox(vbOK);
    démarrer_par_clic();
    ASSERT_TRUE(une_boîte(ui(), "Le logiciel a rencontré l'erreur : 3024\n\n"));
    EXPECT_EQ(ui().lastBox(),
              ScriptedInteraction::Box::titled(ui().lastBox().text, vbOKOnly + vbExclamation));
    EXPECT_TRUE(menus_de_données_actifs());
    EXPECT_EQ(mdi()->Panel1(), "Base de données en cours : " + disparue);
    EXPECT_FALSE(choix_à_l_écran());
}

} // namespace
