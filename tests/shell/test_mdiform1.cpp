#include "shell/EtatDemarrage.h"

#include "platform/forms/ListesFichiers.h"
#include "shell/commandes.h"
#include "support/Donnees.h"

#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

using Box = ScriptedInteraction::Box;
const Box question_de_sortie = Box::titled("Voulez-vous quitter le logiciel?", vbYesNo + vbQuestion);

class FenêtrePrincipale : public Démarrage {
protected:
    MDIForm1& démarrer() {
        démarrer_par_clic();
        return *mdi();
    }
    void ouvrir_une_base() {
        const QString base = créer_base_de_test(folder.file("ecole.mdb"));
        préparer_options("0\r\n0\r\n1\r\n0\r\n" + ligne_de_base(base));
        démarrer();
        ASSERT_TRUE(menus_de_données_actifs());
    }
};

// The whole tree as the user reads it, one line an entry: level, control name, caption ("-" a separator).
void parcourir(const QMenu* menu, int niveau, QStringList& lues) {
    for (const QAction* a : menu->actions()) {
        lues << u"%1\t%2\t%3"_s.arg(niveau).arg(a->objectName(), a->isSeparator() ? u"-"_s : a->text());
        if (a->menu() != nullptr)
            parcourir(a->menu(), niveau + 1, lues);
    }
}

TEST_F(FenêtrePrincipale, LÉtiquetteEtLArbreDesMenusÀLaLettre) {
    MDIForm1& fenêtre = démarrer();
    EXPECT_EQ(fenêtre.windowTitle(), "Norvane - version 2");
    QStringList lues, attendues;
    for (const QAction* a : fenêtre.fenêtre->menuBar()->actions()) {
        lues << u"0\t%1\t%2"_s.arg(a->objectName(), a->text());
        parcourir(a->menu(), 1, lues);
    }
    for (const QStringList& e : table_de_données(u"menus.tsv"_s))
        attendues << e.join(u'\t');
    EXPECT_EQ(lues, attendues);
}

// Six panels, the first written by the program, the date, and the locks as the system keeps them at
// start and again when the program comes back to the front.
TEST_F(FenêtrePrincipale, SixPanneauxDontLesVerrousSuiventLeClavierDuSystème) {
    module1().clavier().fixer({.majuscules = true, .numérique = true, .insertion = true});
    MDIForm1& fenêtre = démarrer();
    EXPECT_EQ(fenêtre.StatusBar1->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly).size(), 6);
    EXPECT_EQ(fenêtre.panneau(1)->text(), "");
    EXPECT_EQ(fenêtre.panneau(2)->text(), module1().horloge().aujourdhui().toString("dd/MM/yyyy"));
    for (int i : {4, 5, 6})
        EXPECT_TRUE(fenêtre.panneau(i)->isEnabled()) << i;
    module1().clavier().fixer({.majuscules = false, .numérique = true});
    QEvent retour(QEvent::ApplicationActivate);
    QCoreApplication::sendEvent(qApp, &retour);
    EXPECT_FALSE(fenêtre.panneau(4)->isEnabled());
    EXPECT_TRUE(fenêtre.panneau(5)->isEnabled());
}

// A lock key pressed while the focus is deep inside a screen is one press: its panel turns once.
TEST_F(FenêtrePrincipale, UneToucheDeVerrouillageBasculeSonPanneauUneFoisQuelQueSoitLeFocus) {
    MDIForm1& fenêtre = démarrer();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&fenêtre));
    choix()->accès_tentavive->show(); // a text box deep in a child screen, which ignores the lock keys
    choix()->accès_tentavive->setFocus();
    QWindow* fenêtre_système = fenêtre.windowHandle();
    ASSERT_NE(fenêtre_système, nullptr);
    const std::pair<Qt::Key, int> touches[] = {
        {Qt::Key_CapsLock, 4}, {Qt::Key_NumLock, 5}, {Qt::Key_Insert, 6}};
    for (const auto& [touche, numéro] : touches) {
        const bool avant = fenêtre.panneau(numéro)->isEnabled();
        QTest::keyClick(fenêtre_système, touche);
        EXPECT_NE(fenêtre.panneau(numéro)->isEnabled(), avant) << numéro;
        QTest::keyClick(fenêtre_système, touche);
        EXPECT_EQ(fenêtre.panneau(numéro)->isEnabled(), avant) << numéro;
    }
}

// "&Ouvrir" of the chooser and "&Options" of the bar share their letter; the chooser has no F.
TEST_F(FenêtrePrincipale, LesTouchesDAccèsDeLÉcranPassentAvantLesMenusQuiRestentÀPortée) {
    démarrer();
    montrer_active(*mdi());
    choix()->File1->setFocus();
    QTest::keyClick(choix()->File1, Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(choix()->cmdMettreàjour->isDown());
    const QMenu* fichier = mdi()->menu("menufichierindex0")->menu();
    for (const auto touche : {QKeyCombination(Qt::AltModifier, Qt::Key_F), QKeyCombination(Qt::Key_F10)}) {
        QTest::keyClick(choix()->File1, touche.key(), touche.keyboardModifiers());
        EXPECT_EQ(QApplication::activePopupWidget(), fichier);
        if (QApplication::activePopupWidget())
            QApplication::activePopupWidget()->close();
    }
    EXPECT_FALSE(mdi()->menu("menuenfantsindex0")->isEnabled()); // the bar went and came back untouched
}

// Qt's own words speak French too: the menu of a screen's window, the context menu of a text box.
TEST_F(FenêtrePrincipale, LeMenuDeLaFenêtreDUnÉcranEstEnFrançais) {
    démarrer();
    auto* sous_fenêtre = qobject_cast<QMdiSubWindow*>(&choix()->conteneur());
    ASSERT_NE(sous_fenêtre, nullptr);
    QStringList textes;
    for (const QAction* a : sous_fenêtre->systemMenu()->actions())
        if (!a->isSeparator())
            textes << a->text();
    EXPECT_TRUE(textes.contains("&Fermer")) << textes.join(' ').toStdString();
    EXPECT_TRUE(textes.contains("&Déplacer")) << textes.join(' ').toStdString();
    EXPECT_FALSE(textes.contains("&Close"));
}

TEST_F(FenêtrePrincipale, ChaqueEntréeEstDansLaCarteEtCelleDontLÉcranNExistePasEncoreNeFaitRien) {
    MDIForm1& fenêtre = démarrer();
    fenêtre.activer_menus();
    const size_t chargées = feuilles().chargées().size();
    for (const LigneDeCommande& ligne : carte_des_commandes()) {
        if (ligne.faire)
            continue;
        fenêtre.cliquer(QString::fromUtf8(ligne.menu));
        EXPECT_EQ(feuilles().chargées().size(), chargées) << ligne.menu;
    }
    EXPECT_TRUE(ui().boxes().empty());

    // No entry of the menus is missing from the map.
    for (QAction* a : fenêtre.fenêtre->findChildren<QAction*>()) {
        if (a->isSeparator() || a->menu() != nullptr || a->objectName().isEmpty())
            continue;
        const bool trouvée = std::any_of(carte_des_commandes().begin(), carte_des_commandes().end(),
                                         [&](const LigneDeCommande& l) { return a->objectName() == l.menu; });
        EXPECT_TRUE(trouvée) << a->objectName().toStdString();
    }
}

// Closing the base empties the state and the bar but leaves the screens; with none open it says all the
// same that it is closed.
TEST_F(FenêtrePrincipale, FermerLaBaseVideLÉtatEtLaBarreMaisLaisseLesÉcrans) {
    ouvrir_une_base();
    ui().expectMsgBox(vbOK).expectMsgBox(vbOK);
    mdi()->cliquer("menufichierindex3");
    mdi()->cliquer("menufichierindex3");
    EXPECT_EQ(ui().boxes(), std::vector(2, Box::titled("La base est fermée...", vbOKOnly + vbInformation)));
    EXPECT_EQ(module1().base_en_cours, "");
    EXPECT_EQ(mdi()->Panel1(), "");
    ASSERT_NE(choix(), nullptr);
    EXPECT_EQ(choix()->Label4->text(), "");
    EXPECT_FALSE(choix_à_l_écran()); // loaded again by the clearing, but hidden
    EXPECT_TRUE(menus_de_données_inactifs());
    for (const char* nom : {"menufichierindex0", "menuoptionsindex0", "menuaideindex0"})
        EXPECT_TRUE(mdi()->menu(QString::fromUtf8(nom))->isEnabled()) << nom;
}

TEST_F(FenêtrePrincipale, NonÀLaQuestionDeSortieLaisseToutCommeAvantOuiDéchargeTout) {
    ouvrir_une_base();
    const QString panneau = mdi()->Panel1();
    const size_t chargées = feuilles().chargées().size();
    ui().expectMsgBox(vbNo);
    mdi()->cliquer("menufichierindex2");
    processDeletions();
    EXPECT_EQ(ui().boxes(), std::vector{question_de_sortie});
    ASSERT_NE(mdi(), nullptr);
    EXPECT_TRUE(mdi()->isVisible());
    EXPECT_EQ(mdi()->Panel1(), panneau);
    EXPECT_EQ(feuilles().chargées().size(), chargées);
    EXPECT_TRUE(menus_de_données_actifs());

    ui().expectMsgBox(vbNo);
    mdi()->close();
    processDeletions();
    EXPECT_EQ(ui().boxes(), std::vector(2, question_de_sortie)) << "closing the window asks the same";
    ASSERT_NE(mdi(), nullptr);

    ui().expectMsgBox(vbYes);
    mdi()->cliquer("menufichierindex2");
    processDeletions();
    EXPECT_EQ(mdi(), nullptr);
    EXPECT_TRUE(feuilles().chargées().empty());
}

TEST_F(FenêtrePrincipale, OuvrirUneBaseMontreLeChoixEtVideLeCodeTapé) {
    ouvrir_une_base();
    feuilles().get<feuille_choix_base>().accès_tentavive->setText("ancien");
    mdi()->cliquer("menufichierindex1");
    ASSERT_TRUE(choix_à_l_écran());
    EXPECT_EQ(choix()->accès_tentavive->text(), "");
}

} // namespace
