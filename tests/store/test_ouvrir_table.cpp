#include "../shell/EtatDemarrage.h"

#include "platform/files/Files.h"
#include "platform/forms/DataControl.h"
#include "platform/forms/ListesFichiers.h"
#include "reference/feuille_sexe.h"
#include "store/ouverture_base.h"
#include "store/ouvrir_table.h"

using namespace Qt::StringLiterals;

namespace {

using PointageDesSources = Démarrage;

TEST_F(PointageDesSources, UnÉchecEstPasséSousSilenceEtLesÉtapesSuivantesOntLieu) {
    module1().base_en_cours = folder.file("disparue.mdb");
    ouvrir_table_sexe();
    feuille_sexe* écran = feuilles().siChargée<feuille_sexe>();
    ASSERT_NE(écran, nullptr);
    EXPECT_FALSE(écran->conteneur().isVisible());
    EXPECT_EQ(écran->datPrimaryRS->DatabaseName(), folder.file("disparue.mdb"));
    EXPECT_EQ(écran->datPrimaryRS->RecordSource(), "SELECT * FROM sexe");
    EXPECT_FALSE(écran->datPrimaryRS->isOpen());
    EXPECT_TRUE(ui().boxes().empty());
}

TEST_F(PointageDesSources, LaTableDuCodeDuChoixMontreLaBoîteStandard) {
    module1().base_en_cours = folder.file("disparue.mdb");
    ui().expectMsgBox(vbOK);
    ouvrir_table_passe_choix();
    EXPECT_TRUE(une_boîte(ui(), "Le logiciel a rencontré l'erreur : 3024\n\n"));
    EXPECT_EQ(feuilles().get<feuille_choix_base>().accès_actuel->text(), "");
}

TEST_F(PointageDesSources, FermerBaseLibèreLeFichierQueLeChoixLisait) {
    const QString base = créer_base_de_test(folder.file("ecole.mdb"), u"x"_s);
    démarrer_par_clic();
    ASSERT_TRUE(choix()->File1->cliquer("ecole.mdb"));
    EXPECT_TRUE(fichier_verrouillé(base));
    fermer_base();
    EXPECT_FALSE(fichier_verrouillé(base));
    fermer_base(); // nothing left to close: passed over
    EXPECT_TRUE(ui().boxes().empty());
}

} // namespace
