#include "../shell/EtatDemarrage.h"

#include "people/feuille_eleve.h"
#include "platform/dao/Recordset.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/EtiquetteElidee.h"
#include "platform/forms/ListesFichiers.h"
#include "platform/forms/Placement.h"
#include "reference/feuille_sexe.h"
#include "shell/feuille_patientez.h"
#include "store/feuille_login.h"
#include "store/ouverture_base.h"

#include <QDir>
#include <QMdiSubWindow>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString message_sélection =
    u"Vous devez sélectionner la base de données sur laquelle vous souhaitez travailler..."_s;
const QString message_code = u"Erreur de code d'accès... Accès non-autorisé!"_s;
using Box = ScriptedInteraction::Box;

// The status bar once `base` is open.
QString barre_pour(const QString& base) {
    return "Base de données en cours : " + QDir::toNativeSeparators(base);
}

class ChoixDeLaBase : public Démarrage {
protected:
    feuille_choix_base& démarrer_sur_le_choix() {
        démarrer_par_clic();
        EXPECT_TRUE(choix_à_l_écran());
        return *choix();
    }
    static void cliquer(QPushButton* bouton) { QTest::mouseClick(bouton, Qt::LeftButton); }
    static void ouvrir(feuille_choix_base& écran) {
        cliquer(écran.cmdMettreàjour);
        processDeletions();
    }
    // The user at the access code box: types and accepts, or cancels.
    void taper_le_code(const QString& code) {
        ui().expectModal([code](Feuille& f) {
            auto& login = static_cast<feuille_login&>(f);
            QTest::keyClicks(login.accès_tentavive, code);
            QTest::mouseClick(login.cmdMettreàjour, Qt::LeftButton);
        });
    }
    void annuler_le_code() {
        ui().expectModal(
            [](Feuille& f) { QTest::mouseClick(static_cast<feuille_login&>(f).cmdFermer, Qt::LeftButton); });
    }
};

TEST_F(ChoixDeLaBase, LesListesCommencentSurLeDossierCourantAvecLeMotifMdb) {
    créer_base_de_test(folder.file("b.mdb"));
    créer_base_de_test(folder.file("a.mdb"));
    folder.write("basevide.mdz", "x");
    folder.write("notes.txt", "x");
    QDir(folder.path()).mkdir("archives");
    feuille_choix_base& écran = démarrer_sur_le_choix();
    EXPECT_EQ(écran.windowTitle(), "Sélection de la base de travail");
    EXPECT_EQ(écran.File1->Pattern(), "*.mdb");
    EXPECT_EQ(écran.File1->Path(), QDir::toNativeSeparators(folder.path()));
    EXPECT_EQ(écran.Dir1->Path(), QDir::toNativeSeparators(folder.path()));
    QStringList fichiers;
    for (int i = 0; i < écran.File1->count(); ++i)
        fichiers << écran.File1->item(i)->text();
    EXPECT_EQ(fichiers, (QStringList{"a.mdb", "b.mdb"}));
    EXPECT_FALSE(écran.datPrimaryRS->isVisible());
    EXPECT_FALSE(écran.accès_actuel->isVisible());
    EXPECT_FALSE(écran.accès_tentavive->isVisible());
}

TEST_F(ChoixDeLaBase, OuvrirSansRienSélectionnerOuAprèsUnChangementDeDossierDemandeDeChoisir) {
    const QString base = créer_base_de_test(folder.file("ecole.mdb"));
    QDir(folder.path()).mkdir("autre");
    feuille_choix_base& écran = démarrer_sur_le_choix();
    ui().expectMsgBox(vbOK);
    ouvrir(écran);
    EXPECT_EQ(ui().boxes(), std::vector{Box::titled(message_sélection, vbOKOnly + vbExclamation)});
    EXPECT_TRUE(choix_à_l_écran());
    EXPECT_TRUE(menus_de_données_inactifs());

    ASSERT_TRUE(écran.File1->cliquer("ecole.mdb"));
    écran.Dir1->setPath(folder.file("autre"));
    EXPECT_EQ(écran.File1->Path(), QDir::toNativeSeparators(folder.file("autre")));
    EXPECT_EQ(écran.Label4->text(), "");
    EXPECT_EQ(module1().base_en_cours, QDir::toNativeSeparators(base));
    ui().expectMsgBox(vbOK);
    ouvrir(écran);
    EXPECT_EQ(ui().boxes(), std::vector(2, Box::titled(message_sélection, vbOKOnly + vbExclamation)));
    EXPECT_TRUE(choix_à_l_écran());
}

// The selected path and the status bar are where the user reads which base is chosen and which is
// open: a long path keeps its file name in sight, and the whole path stays in the label.
TEST_F(ChoixDeLaBase, UnLongCheminGardeLeNomDuFichierEnVueSansÉlargirLÉcran) {
    const QString dossier = folder.file(QString(120, QChar(u'é')));
    ASSERT_TRUE(QDir().mkpath(dossier));
    DossierCourant ici(dossier);
    const QString base = créer_base_de_test(dossier + "/ecole.mdb");
    feuille_choix_base& écran = démarrer_sur_le_choix();
    const int largeur = écran.conteneur().width();
    const auto en_vue = [&](QLabel* l) {
        auto* étiquette = dynamic_cast<ÉtiquetteÉlidée*>(l);
        return étiquette && étiquette->text().endsWith(QDir::toNativeSeparators(base)) &&
               étiquette->texteAffiché().endsWith("ecole.mdb");
    };
    ASSERT_TRUE(écran.File1->cliquer("ecole.mdb"));
    EXPECT_TRUE(en_vue(écran.Label4));
    EXPECT_LE(écran.minimumSizeHint().width(), largeur);
    ouvrir(écran);
    EXPECT_TRUE(en_vue(mdi()->panneau(1)));
    EXPECT_LE(mdi()->minimumSizeHint().width(), mdi()->width());
}

TEST_F(ChoixDeLaBase, UnClicSurUnFichierEnFaitDéjàLaBaseEnCours) {
    const QString base = créer_base_de_test(folder.file("ecole.mdb"), u"secret"_s);
    feuille_choix_base& écran = démarrer_sur_le_choix();
    ASSERT_TRUE(écran.File1->cliquer("ecole.mdb"));
    EXPECT_EQ(écran.Label4->text(), QDir::toNativeSeparators(base));
    EXPECT_EQ(module1().base_en_cours, QDir::toNativeSeparators(base));
    EXPECT_EQ(module1().chemin_choisi, QDir::toNativeSeparators(folder.path()) + QDir::separator());
    EXPECT_EQ(écran.accès_actuel->text(), "secret");
    // Annuler does not take it back.
    cliquer(écran.cmdFermer);
    processDeletions();
    EXPECT_EQ(choix(), nullptr);
    EXPECT_EQ(module1().base_en_cours, QDir::toNativeSeparators(base));
}

// The wait notice's hourglass comes and goes.
TEST_F(ChoixDeLaBase, UneBaseSansCodeSOuvreAuDoubleClicSansRienDemanderNiAutreÉcran) {
    const QString base = créer_base_de_test(folder.file("ecole.mdb"));
    feuille_choix_base& écran = démarrer_sur_le_choix();
    ASSERT_TRUE(écran.File1->cliquer("ecole.mdb"));
    EXPECT_EQ(écran.accès_actuel->text(), "");
    emit écran.File1->DblClick();
    processDeletions();
    EXPECT_EQ(choix(), nullptr);
    EXPECT_EQ(mdi()->Panel1(), barre_pour(base));
    EXPECT_TRUE(menus_de_données_actifs());
    EXPECT_TRUE(ui().modals().empty());
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_EQ(feuilles().siChargée<feuille_patientez>(), nullptr);
    EXPECT_NE(std::ranges::find(ui().pointerHistory(), vbHourglass), ui().pointerHistory().end());
    EXPECT_EQ(ui().mousePointer(), vbDefault);
}

TEST_F(ChoixDeLaBase, UneTablePasseSansLigneNeDemandeRienNonPlus) {
    créer_base_de_test(folder.file("ecole.mdb"), std::nullopt);
    démarrer_sur_le_choix().File1->cliquer("ecole.mdb");
    ouvrir(*choix());
    EXPECT_TRUE(ui().modals().empty());
    EXPECT_TRUE(menus_de_données_actifs());
}

// The code shown is that of the file last read: a file that cannot be read has none, even just after
// a file that had one.
TEST_F(ChoixDeLaBase, UnFichierIllisibleAprèsUnFichierÀCodeNeDemandeAucunCode) {
    créer_base_de_test(folder.file("a.mdb"), u"Secret"_s);
    const QString abîmée = folder.write("b.mdb", QByteArray(4096, '\x5A'));
    feuille_choix_base& écran = démarrer_sur_le_choix();
    ASSERT_TRUE(écran.File1->cliquer("a.mdb"));
    ASSERT_EQ(écran.accès_actuel->text(), "Secret");
    ui().expectMsgBox(vbOK);
    ASSERT_TRUE(écran.File1->cliquer("b.mdb"));
    EXPECT_TRUE(une_boîte(ui(), "Le logiciel a rencontré l'erreur : 3343\n\n"));
    EXPECT_EQ(écran.accès_actuel->text(), "");
    ui().expectMsgBox(vbOK); // the same failure, met again by the opening's own reading
    ouvrir(écran);
    EXPECT_TRUE(ui().modals().empty());
    EXPECT_TRUE(menus_de_données_actifs());
    EXPECT_EQ(mdi()->Panel1(), barre_pour(abîmée));
}

// The right code opens the base; any other, or Annuler, leaves the chooser and the menus as they were
// but keeps the refused base as the current one.
class CodeDAccès : public ChoixDeLaBase, public ::testing::WithParamInterface<const char*> {};

TEST_P(CodeDAccès, SeulLeBonOuvreLaBase) {
    const QString base = créer_base_de_test(folder.file("ecole.mdb"), u"Secret"_s);
    feuille_choix_base& écran = démarrer_sur_le_choix();
    écran.File1->cliquer("ecole.mdb");
    const QString tapé = QString::fromUtf8(GetParam());
    if (tapé == "(annuler)")
        annuler_le_code();
    else
        taper_le_code(tapé);
    if (tapé == "Secret") {
        ouvrir(écran);
        EXPECT_EQ(ui().modals(), (std::vector<QString>{"feuille_login"}));
        EXPECT_EQ(mdi()->Panel1(), barre_pour(base));
        EXPECT_TRUE(menus_de_données_actifs());
        return;
    }
    ui().expectMsgBox(vbOK);
    ouvrir(écran);
    EXPECT_EQ(ui().boxes(), std::vector{Box::titled(message_code, vbOKOnly + vbExclamation)});
    EXPECT_TRUE(choix_à_l_écran());
    EXPECT_EQ(choix()->accès_tentavive->text(), "");
    EXPECT_TRUE(menus_de_données_inactifs());
    EXPECT_EQ(mdi()->Panel1(), "");
    EXPECT_EQ(module1().base_en_cours, QDir::toNativeSeparators(base));
}

INSTANTIATE_TEST_SUITE_P(Codes, CodeDAccès,
                         ::testing::Values("Secret", "secret", "Secret ", "", "(annuler)"));

TEST_F(ChoixDeLaBase, UnCodeRefuséQuandUneBaseEstOuverteLaisseSesMenusQuiVontSurLeFichierRefusé) {
    créer_base_de_test(folder.file("a.mdb"), QString(), "CREATE TABLE sexe (détails VARCHAR(8));");
    const QString refusée = créer_base_de_test(folder.file("b.mdb"), u"Secret"_s,
                                               "CREATE TABLE sexe (détails VARCHAR(8));"
                                               "INSERT INTO sexe VALUES ('F');");
    feuille_choix_base& écran = démarrer_sur_le_choix();
    écran.File1->cliquer("a.mdb");
    ouvrir(écran);
    mdi()->cliquer("menufichierindex1");
    choix()->File1->cliquer("b.mdb");
    taper_le_code("faux");
    ui().expectMsgBox(vbOK);
    ouvrir(*choix());
    ASSERT_EQ(ui().boxes().back().text, message_code);
    EXPECT_TRUE(menus_de_données_actifs());
    EXPECT_EQ(mdi()->Panel1(), barre_pour(folder.file("a.mdb")));
    EXPECT_EQ(module1().base_en_cours, QDir::toNativeSeparators(refusée));
    mdi()->cliquer("menuparamètresindex14");
    feuille_sexe* sexes = feuilles().siChargée<feuille_sexe>();
    ASSERT_NE(sexes, nullptr);
    EXPECT_EQ(sexes->datPrimaryRS->DatabaseName(), QDir::toNativeSeparators(refusée));
    EXPECT_EQ(sexes->datPrimaryRS->Recordset().raw().field("détails").toString(), "F");
}

TEST_F(ChoixDeLaBase, ÀLOuvertureAuDémarrageLeBonCodeNeTrouvePasDÉcranPourLeFocus) {
    const QString base = créer_base_de_test(folder.file("ecole.mdb"), u"Secret"_s);
    préparer_options("0\r\n0\r\n1\r\n0\r\n" + ligne_de_base(base));
    taper_le_code("Secret");
    ui().expectMsgBox(vbOK);
    démarrer_par_touche();
    EXPECT_TRUE(une_boîte(ui(), "Le logiciel a rencontré l'erreur : 5\n\n"));
    EXPECT_TRUE(menus_de_données_actifs());
    EXPECT_EQ(mdi()->Panel1(), "Base de données en cours : " + base);
}

// An assistive tool reaches the chooser behind the modal box and cancels it; the right code follows.
TEST_F(ChoixDeLaBase, LeChoixDéchargéPendantLaBoîteDuCodeArrêteLOuverture) {
    créer_base_de_test(folder.file("ecole.mdb"), u"Secret"_s);
    démarrer_sur_le_choix().File1->cliquer("ecole.mdb");
    ui().expectModal([this](Feuille& login) {
        choix()->cmdFermer->click();
        processDeletions();
        QTest::keyClicks(static_cast<feuille_login&>(login).accès_tentavive, "Secret");
        static_cast<feuille_login&>(login).cmdMettreàjour->click();
    });
    ouvrir_base_choisie();
    EXPECT_EQ(choix(), nullptr);
    EXPECT_TRUE(menus_de_données_inactifs());
}

TEST_F(ChoixDeLaBase, LaBoîteDuCodeClignoteEtMasqueLaSaisie) {
    feuille_login& login = feuilles().get<feuille_login>();
    EXPECT_EQ(login.accès_tentavive->echoMode(), QLineEdit::Password);
    ASSERT_EQ(login.Timer1->interval(), 300);
    for (const bool avant : {login.Image1->isHidden(), !login.Image1->isHidden()}) {
        QMetaObject::invokeMethod(login.Timer1, "timeout");
        EXPECT_NE(login.Image1->isHidden(), avant);
        EXPECT_EQ(login.Image2->isHidden(), login.Image1->isHidden());
    }
}

// The pupil screen named by the options is only shown: it points itself at the base as it loads, and
// its two other data sources stay as the screen stores them.
TEST_F(ChoixDeLaBase, LOptionDesÉlèvesMontreLÉcranDesÉlèvesSurLaBaseOuverte) {
    const QString base = copie_du_modèle(folder);
    préparer_options("1\r\n1\r\n1\r\n0\r\n" + ligne_de_base(base));
    démarrer_par_clic();
    EXPECT_TRUE(ui().boxes().empty());
    EXPECT_TRUE(menus_de_données_actifs());
    feuille_élève* élève = feuilles().siChargée<feuille_élève>();
    ASSERT_NE(élève, nullptr);
    EXPECT_TRUE(élève->conteneur().isVisible());
    EXPECT_EQ(mdi()->zone->activeSubWindow(), &élève->conteneur());
    // Placed by the size it is shown at, though the main window was still hidden when it loaded.
    EXPECT_EQ(élève->conteneur().pos(), position_sur_l_écran(élève->conteneur().size(), position_centrée));
    EXPECT_EQ(élève->datPrimaryRS->DatabaseName(), base);
    EXPECT_TRUE(élève->datPrimaryRS->isOpen());
    EXPECT_EQ(élève->Data1->DatabaseName(), "");
    EXPECT_EQ(élève->Data2->DatabaseName(), "");
}

TEST_F(ChoixDeLaBase, UnÉcranDesÉlèvesDéjàOuvertResteSurSonFichierÀLOuvertureDUneAutreBase) {
    const QString première = copie_du_modèle(folder, "a.mdb");
    copie_du_modèle(folder, "b.mdb");
    préparer_options("0\r\n1\r\n1\r\n0\r\n" + ligne_de_base(première));
    démarrer_par_clic();
    ASSERT_NE(feuilles().siChargée<feuille_élève>(), nullptr);
    mdi()->cliquer("menufichierindex1");
    choix()->File1->cliquer("b.mdb");
    ouvrir(*choix());
    EXPECT_EQ(mdi()->Panel1(), barre_pour(folder.file("b.mdb")));
    EXPECT_TRUE(feuilles().get<feuille_élève>().conteneur().isVisible());
    EXPECT_EQ(feuilles().get<feuille_élève>().datPrimaryRS->DatabaseName(), première);
}

TEST_F(ChoixDeLaBase, SansOptionCochéeLOuvertureNeMontreAucunÉcran) {
    const QString base = copie_du_modèle(folder);
    préparer_options("0\r\n0\r\n1\r\n0\r\n" + ligne_de_base(base));
    démarrer_par_clic();
    EXPECT_TRUE(menus_de_données_actifs());
    EXPECT_EQ(feuilles().siChargée<feuille_élève>(), nullptr);
    EXPECT_TRUE(std::ranges::none_of(mdi()->zone->subWindowList(), &QWidget::isVisible));
}

} // namespace
