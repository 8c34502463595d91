#include "shell/EtatDemarrage.h"

#include "platform/dao/Recordset.h"
#include "platform/forms/DataControl.h"
#include "reference/feuille_sexe.h"
#include <QMdiSubWindow>

using namespace Qt::StringLiterals;

namespace {

const QString table_sexe = u"CREATE TABLE sexe (détails VARCHAR(8));"_s;

class RègleDePréparation : public Démarrage {
protected:
    // The program started on a base, its data menus on.
    MDIForm1& ouvert_sur(const QString& en_plus) {
        const QString base = créer_base_de_test(folder.file("ecole.mdb"), QString(), en_plus);
        préparer_options("0\r\n0\r\n1\r\n0\r\n" + ligne_de_base(base));
        démarrer_par_clic();
        EXPECT_TRUE(menus_de_données_actifs());
        return *mdi();
    }
    static feuille_sexe* sexes() { return feuilles().siChargée<feuille_sexe>(); }
    static bool au_premier_plan(Feuille& f) { return mdi()->zone->activeSubWindow() == &f.conteneur(); }
};

TEST_F(RègleDePréparation, UnÉcranDéjàOuvertRevientSurSaPremièreFicheEtAuPremierPlan) {
    MDIForm1& fenêtre =
        ouvert_sur(table_sexe + "INSERT INTO sexe VALUES ('F');INSERT INTO sexe VALUES ('G');");
    fenêtre.cliquer("menuparamètresindex14");
    ASSERT_NE(sexes(), nullptr);
    EXPECT_EQ(sexes()->datPrimaryRS->Recordset().AbsolutePosition(), 0);
    sexes()->datPrimaryRS->Recordset().MoveLast();
    ASSERT_EQ(sexes()->datPrimaryRS->Recordset().AbsolutePosition(), 1);
    fenêtre.cliquer("menufichierindex1"); // the chooser comes in front
    ASSERT_FALSE(au_premier_plan(*sexes()));
    fenêtre.cliquer("menuparamètresindex14");
    EXPECT_EQ(sexes()->datPrimaryRS->Recordset().AbsolutePosition(), 0);
    EXPECT_TRUE(au_premier_plan(*sexes()));
    EXPECT_FALSE(sexes()->datPrimaryRS->isAddingNew());
}

TEST_F(RègleDePréparation, UneSourceQuiNAPuÊtrePointéeÉchoueDansLaCommandeEtLÉcranResteCaché) {
    MDIForm1& fenêtre = ouvert_sur(QString()); // no table sexe in this file
    ui().expectMsgBox(vbOK);
    fenêtre.cliquer("menuparamètresindex14");
    EXPECT_TRUE(une_boîte(ui(), "Le logiciel a rencontré l'erreur : "));
    ASSERT_NE(sexes(), nullptr); // loaded by the pointing, hidden
    EXPECT_FALSE(sexes()->conteneur().isVisible());
}

} // namespace
