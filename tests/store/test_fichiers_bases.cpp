// The file commands of the chooser and the backup screen, as a user plays them on real files.
#include "../shell/EtatDemarrage.h"

#include "platform/files/Files.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/ListesFichiers.h"
#include "store/feuille_chemin.h"
#include "store/fichiers_bases.h"
#include "support/BaseDirecte.h"
#include "support/Donnees.h"

#include <QDir>
#include <QDirIterator>
#include <QPushButton>

// A row of the table by its scenario's name, in failures and in the test names.
void PrintTo(const QStringList& ligne, std::ostream* os) {
    *os << ligne[0].toStdString();
}

namespace {

using Box = ScriptedInteraction::Box;

class FichiersDesBases : public Démarrage {
protected:
    static void cliquer(QPushButton* bouton) {
        QTest::mouseClick(bouton, Qt::LeftButton);
        processDeletions();
    }
    // "dossier/" a folder; "nom=valeur" a base of the template whose extra table t holds the value (1 by
    // default), but for the template itself, "basevide.mdz".
    void préparer(const QString& fichier) const {
        const QString nom = fichier.section('=', 0, 0), chemin = folder.file(nom);
        const QString valeur = fichier.contains('=') ? fichier.section('=', 1) : "1";
        QDir().mkpath(QFileInfo(chemin).absolutePath());
        if (nom.endsWith('/'))
            return;
        FileCopy(template_path(), chemin);
        if (!nom.endsWith(".mdz"))
            sql_direct(chemin, "CREATE TABLE t (x); INSERT INTO t VALUES (" + valeur + ")");
    }
    QString fichiers() const {
        QStringList noms;
        for (QDirIterator it(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
             it.hasNext();)
            noms << QDir(folder.path()).relativeFilePath(it.next());
        noms.removeOne("options.ini");
        noms.sort(Qt::CaseInsensitive);
        return noms.join(';');
    }
    QString texte(QString t) const {
        return t.replace("\\n", "\n")
            .replace("{dossier}", QDir::toNativeSeparators(folder.path()) + QDir::separator());
    }
    static feuille_chemin& chemin_à_l_écran() { return *feuilles().siChargée<feuille_chemin>(); }
};

class Scénarios : public FichiersDesBases, public ::testing::WithParamInterface<QStringList> {};

TEST_P(Scénarios, duChoixDesBases) {
    const QStringList l = GetParam();
    for (const QString& fichier : l[1].split(';'))
        préparer(fichier);
    démarrer_par_clic();
    if (l[2].startsWith('*')) { // opened first, and held by the pupil screen left open
        choix()->File1->cliquer(l[2].mid(1));
        emit choix()->File1->DblClick();
        mdi()->cliquer("menuenfantsindex1");
        mdi()->cliquer("menufichierindex1");
    }
    ASSERT_TRUE(l[2] == "-" || choix()->File1->cliquer(QString(l[2]).remove('*')));
    for (const QString& réponse : l[5].split('|'))
        if (réponse.startsWith('='))
            ui().expectInputBox(réponse.mid(1));
        else
            ui().expectMsgBox(réponse == "oui" ? vbYes : réponse == "non" ? vbNo : vbOK);
    for (const QString& bouton : l[3].split(' '))
        cliquer(choix()->findChild<QPushButton*>(bouton));
    if (l[4] != "-") {
        chemin_à_l_écran().Dir1->setPath(folder.file(l[4]));
        cliquer(chemin_à_l_écran().cmdUpdate);
    }
    std::vector<Box> boîtes;
    for (const QString& boîte : texte(l[6]).split('|'))
        boîtes.push_back(Box::titled(boîte.section(':', 1), boîte.section(':', 0, 0).toInt()));
    EXPECT_EQ(ui().boxes(), boîtes);
    EXPECT_EQ(fichiers(), l[7]);
    for (const QString& contrôle : l[8].split(';').filter("="))
        EXPECT_EQ(colonne_du_fichier(folder.file(contrôle.section('=', 0, 0)), "t", "x").join(','),
                  contrôle.section('=', 1));
    EXPECT_EQ(ui().mousePointer(), l[9].toInt());
    for (const auto& [invite, titre, proposition] : ui().inputs())
        EXPECT_EQ(invite + '|' + titre + '|' + proposition, texte(l[10]));
}

INSTANTIATE_TEST_SUITE_P(Table, Scénarios, ::testing::ValuesIn(table_de_données("fichiers_bases.tsv")));

TEST_F(FichiersDesBases, LÉcranDuCheminEstPeintAvantLaCopieCachéAprèsEtNeFaitQuAvertirSurUnFichier) {
    préparer("ecole.mdb");
    préparer("sauv/");
    démarrer_par_clic();
    choix()->File1->cliquer("ecole.mdb");
    cliquer(choix()->Command4);
    feuille_chemin& écran = chemin_à_l_écran();
    EXPECT_TRUE(écran.conteneur().isVisible());
    EXPECT_EQ(écran.windowTitle(), "Choix du chemin d'accès");
    EXPECT_EQ(écran.Label3->text(), "Sauvegarde de la base sélectionnée");
    EXPECT_FALSE(choix()->datPrimaryRS->isOpen());
    ui().expectMsgBox().expectInputBox(" autre/ ").expectInputBox("").expectMsgBox();
    ASSERT_TRUE(écran.File1->cliquer("ecole.mdb"));
    EXPECT_EQ(ui().lastBox(),
              Box::titled("Sélectionnez uniquement le lecteur et le dossier à utiliser dans la "
                          "procédure de Sauvegarde/Restauration",
                          vbExclamation));
    écran.Dir1->setPath(folder.file("sauv"));
    cliquer(écran.Command1); // made there, then back to the current folder
    EXPECT_TRUE(QDir(folder.file("sauv/autre")).exists());
    EXPECT_EQ(écran.File1->Path(), QDir::toNativeSeparators(folder.path()));
    cliquer(écran.Command1);
    EXPECT_TRUE(
        ui().lastBox().text.startsWith("Le gestionnaire d'erreurs des données a rencontré l'erreur : 75"));
    écran.Dir1->setPath(folder.file("sauv"));
    struct Peintures : QObject {
        QString cible;
        int avant_la_copie = 0;
        bool eventFilter(QObject*, QEvent* e) override {
            avant_la_copie += e->type() == QEvent::Paint && !QFile::exists(cible);
            return false;
        }
    } peintures;
    peintures.cible = folder.file("sauv/sauvegarde.mdb");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(mdi())); // else nothing is ever painted
    feuilles().nommée("feuille_patientez").installEventFilter(&peintures);
    ui().expectMsgBox();
    cliquer(écran.cmdUpdate);
    EXPECT_GT(peintures.avant_la_copie, 0);
    ASSERT_NE(feuilles().siChargée<feuille_chemin>(), nullptr); // hidden, still loaded
    EXPECT_FALSE(écran.conteneur().isVisible());
    EXPECT_FALSE(feuilles().nommée("feuille_patientez").conteneur().isVisible());
    cliquer(choix()->Command5);
    EXPECT_EQ(chemin_à_l_écran().File1->Path(), QDir::toNativeSeparators(folder.file("sauv")));
    EXPECT_EQ(ui().mousePointer(), vbHourglass);
    cliquer(écran.cmdFermer);
    EXPECT_EQ(feuilles().siChargée<feuille_chemin>(), nullptr);
    choix()->File1->cliquer("ecole.mdb"); // the base closed for the backup opens again
    EXPECT_TRUE(choix()->datPrimaryRS->isOpen());
}

TEST(CheminDeSauvegarde, NePrendQuUnSéparateurMêmeÀLaRacine) {
    for (const auto& [dossier, attendu] :
         {std::pair{"/", "/"}, {" /mnt/clé ", "/mnt/clé/"}, {"/mnt/clé/", "/mnt/clé/"}})
        EXPECT_EQ(chemin_avec_séparateur(QDir::toNativeSeparators(dossier)),
                  QDir::toNativeSeparators(attendu));
}

} // namespace
